#include <proposte/kr_stralcio.h>

#include <base/testo.h>
#include <core/riga_censuaria.h>
#include <proposte/derivazioni.h>

#include <unordered_set>

namespace lirmeto {

namespace {

using Grid = GrigliaProposta;

constexpr Regola MemoDiFrazionamento = {
    "", Severita::Avviso, "Il memo di questo stralcio si dichiara 51FTP, un frazionamento: Ricomincia lo intesta 3SPC",
    "la sezione di uno stralcio si chiama 3SPC"};

constexpr std::size_t RigaOrigine = 2;   // of List1
constexpr std::size_t PrimaDerivata = 4; // of List1: behind the suppressed or varied parcel

// What a derivation line calls the derived parcel: what stands before " = ".
std::string_view NomeUrbano(std::string_view linea) {
  const std::string_view parte = ParteDerivata(linea);
  return Taglia(parte.substr(0, parte.find(" = ")));
}

} // namespace

void KR_Stralcio::Form_Load() {
  MemoSuDisco();
  Apri(LeggiIngressi());
}

// Parcels that the proposal marks with a plus are selected from the start.
void KR_Stralcio::Apri(const Ingressi& ingressi) {
  TestoProposta = ingressi.proposta;
  for (const auto& linea : DerivazioniDi(Scelta().derivazioni, Particella())) List4.Aggiungi(linea);
  for (std::size_t i = 0; i < List4.Quante(); ++i)
    List4.Seleziona(i, Contiene(TestoProposta, std::string(NomeUrbano(List4.Riga(i))) + "+"));
  PropostaDerivate::Apri(ingressi);
}

std::string_view KR_Stralcio::Sezione() const {
  return censuario::Stralcio;
}

bool KR_Stralcio::ConClasse(std::string_view qualita) const {
  return qualita != censuario::FabbricatoRurale && qualita != censuario::EnteUrbano;
}

// Quality and class follow the origin, whatever the derived parcel is: meant so; the findings tell where a class stands
// on a quality that has none.
void KR_Stralcio::Concludi() {
  MSFlexGrid1.Dipingi(Grid::Originale, Grid::Area,
                      DifferenzaGriglia() != 0 ? ColoreCella::Giallo : ColoreCella::Bianco);
  const std::string qualita(LeggiCampo(List1[RigaOrigine], censuario::Qualita));
  const std::string classe(LeggiCampo(List1[RigaOrigine], censuario::Classe));
  for (std::size_t i = PrimaDerivata; i < List1.size(); ++i) {
    std::string riga(List1[i]);
    ScriviCampo(riga, censuario::Qualita, qualita);
    ScriviCampo(riga, censuario::Classe, classe);
    List1.Cambia(i, riga);
  }
  SegnaUrbani();
}

void KR_Stralcio::SegnaUrbani() {
  std::unordered_set<std::string_view> urbani;
  for (std::size_t i = 0; i < List4.Quante(); ++i)
    if (List4.Selezionata(i)) urbani.insert(NomeUrbano(List4.Riga(i)));
  for (std::size_t i = PrimaDerivata; i < List1.size(); ++i) {
    if (!urbani.contains(Taglia(LeggiCampo(List1[i], censuario::Temporaneo)))) continue;
    std::string riga(List1[i]);
    ScriviCampo(riga, censuario::Qualita, censuario::EnteUrbano);
    ScriviCampo(riga, censuario::Classe, {});
    List1.Cambia(i, riga);
  }
}

std::vector<Segnalazione> KR_Stralcio::Rilievi() const {
  auto rilievi = PropostaDerivate::Rilievi();
  if (List2.Quante() > 1 && ApreSezione(List2.Riga(1), censuario::Frazionamento))
    rilievi.push_back({&MemoDiFrazionamento, {}, 0, {}, {}});
  return rilievi;
}

} // namespace lirmeto
