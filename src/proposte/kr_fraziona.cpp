#include <proposte/kr_fraziona.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga_censuaria.h>
#include <proposte/derivazioni.h>

namespace lirmeto {

namespace {

using Grid = GrigliaProposta;

constexpr Regola SoloNellaGriglia = {
    "", Severita::Avviso,
    "La correzione di 1 mq alla prima derivata sta solo nella griglia: la riga censuaria non la porta",
    "le aree delle righe non tornano"};

} // namespace

void KR_Fraziona::Form_Load() {
  MemoSuDisco();
  Apri(LeggiIngressi());
  const std::string proposta = LaSessione().CartellaProgramma + "\\temp\\TempProposta";
  if (!LAmbiente().disco.Esiste(proposta)) return;
  grafica_.Vista().Check1 = true; // the updated extract over the old one
  (void)Intrappola(LAmbiente(), [&] { grafica_.KR_CaricaPropostaDaLibretto(proposta); });
}

void KR_Fraziona::Apri(const Ingressi& ingressi) {
  Check1 = LaSessione().ModoEditor != ModoSopprime;
  PropostaDerivate::Apri(ingressi);
}

std::string_view KR_Fraziona::Sezione() const {
  return censuario::Frazionamento;
}

bool KR_Fraziona::ConClasse(std::string_view qualita) const {
  constexpr double ultimaConClasse = 129;
  return Valore(qualita) <= ultimaConClasse;
}

// More derivations than derived parcels: error 9.
void KR_Fraziona::PrendiNomi() {
  for (std::size_t i = 0; i < List3.size(); ++i)
    MSFlexGrid1.Metti(Grid::PrimaDerivata + i, Grid::NomeProposta, NomeDerivata(List3[i]));
}

// A parcel that the proposal numbers takes no letter, but the next letter follows the row's place all the same.
std::string KR_Fraziona::NomeDellaNuova(std::size_t riga) const {
  const std::string_view proposta = Taglia(MSFlexGrid1.Cella(riga, Grid::NomeProposta));
  return proposta.empty() ? NomeInSerie(riga) : std::string(proposta);
}

// The first derived parcel takes one square metre of the difference, however large it is, and in the grid alone: its
// census row keeps the value before. Meant so; the findings tell.
void KR_Fraziona::Concludi() {
  const double differenza = DifferenzaGriglia();
  if (differenza != 0) {
    const double corretta = MSFlexGrid1.ValoreCella(Grid::PrimaDerivata, Grid::Area) + (differenza > 0 ? -1 : 1);
    MSFlexGrid1.Metti(Grid::PrimaDerivata, Grid::Area, TestoPieno(corretta));
  }
  MSFlexGrid1.Dipingi(Grid::Originale, Grid::Area, differenza != 0 ? ColoreCella::Giallo : ColoreCella::Bianco);
}

std::vector<Segnalazione> KR_Fraziona::Rilievi() const {
  auto rilievi = PropostaDerivate::Rilievi();
  if (MSFlexGrid1.Colore(Grid::Originale, Grid::Area) == ColoreCella::Giallo)
    rilievi.push_back({&SoloNellaGriglia, {}, 0, {}, {}});
  return rilievi;
}

} // namespace lirmeto
