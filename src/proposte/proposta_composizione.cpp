// The census rows and the incomes of derived parcels, from the areas in the grid.

#include <proposte/proposta_derivate.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga_censuaria.h>

#include <algorithm>
#include <cmath>

namespace lirmeto {

namespace {

using Grid = GrigliaProposta;

constexpr std::string_view FormatoReddito = "#######0.00";

double Quoziente(double dividendo, double divisore) {
  if (divisore == 0) throw Errore(errore::DivisionePerZero);
  return dividendo / divisore;
}

} // namespace

void PropostaDerivate::Assorbi(const std::string& marcatore, const std::function<void()>& opera) {
  LaSessione().PuntoErrore = marcatore;
  assorbito_.clear();
  try {
    opera();
  } catch (const Errore& errore) {
    assorbito_ = errore.Descrizione() + " (" + marcatore + ")";
  }
}

void PropostaDerivate::Ricomponi() {
  if (RigaCorrente < Grid::PrimaDerivata) return;
  Assorbi(std::string(Marcatore()), [this] { Componi(); });
}

void PropostaDerivate::Componi() {
  PrendiNomi();
  if (RigaCorrente >= Grid::PrimaDerivata) MSFlexGrid1.Metti(RigaCorrente, Grid::PropAree, Text2);
  Ripartisci();
  DipingiRedditi();
  ComponiRighe();
  Concludi();
}

// Areas and incomes of the derived parcels. The incomes follow the rounded area; the rows are computed each by itself.
void PropostaDerivate::Ripartisci() {
  const double fisse = MSFlexGrid1.Somma(Grid::PropAree, true);
  const double tutte = MSFlexGrid1.Somma(Grid::PropAree);
  MSFlexGrid1.Metti(Grid::Originale, Grid::PropAree, TestoPieno(tutte));
  const double catastale = MSFlexGrid1.ValoreCella(Grid::Originale, Grid::Area);
  double area = tutte;
  for (std::size_t i = Grid::PrimaDerivata; i < MSFlexGrid1.Righe(); ++i) {
    const double data = MSFlexGrid1.ValoreCella(i, Grid::PropAree);
    if (tutte > 0) area = MSFlexGrid1.EFissa(i) ? data : Quoziente(catastale - fisse, tutte - fisse) * data;
    MSFlexGrid1.Metti(i, Grid::Area, Formatta(area, "#######0"));
    for (const auto reddito : {Grid::RA, Grid::RD}) {
      const double quota = Quoziente(MSFlexGrid1.ValoreCella(Grid::Originale, reddito), catastale);
      MSFlexGrid1.Metti(i, reddito, Formatta(quota * MSFlexGrid1.ValoreCella(i, Grid::Area), FormatoReddito));
    }
  }
}

void PropostaDerivate::DipingiRedditi() {
  for (const auto reddito : {Grid::RA, Grid::RD}) {
    const std::string somma = Formatta(MSFlexGrid1.Somma(reddito), FormatoReddito);
    const bool uguale = somma == Formatta(MSFlexGrid1.ValoreCella(Grid::Originale, reddito), FormatoReddito);
    MSFlexGrid1.Dipingi(Grid::Originale, reddito, uguale ? ColoreCella::Bianco : ColoreCella::Giallo);
  }
}

// The count is that of the grid's rows: one too many where the number is kept and no row "S" is written. Meant so; the
// findings tell.
void PropostaDerivate::ComponiRighe() {
  List1.clear();
  List1.Aggiungi(censuario::Intestazione);
  List1.Aggiungi(RigaConteggio(Sezione(), MSFlexGrid1.Righe() - 1));
  for (std::size_t i = Grid::Originale; i < MSFlexGrid1.Righe(); ++i) {
    MSFlexGrid1.Dipingi(i, Grid::SrSn,
                        MSFlexGrid1.Cella(i, Grid::SrSn) == "SR" ? ColoreCella::Rosso : ColoreCella::Bianco);
    if (i == Grid::Originale)
      List1.Aggiungi(RigaOriginale());
    else if (i != Grid::Soppressa)
      List1.Aggiungi(RigaDerivata(i));
    else if (!Mantiene())
      List1.Aggiungi(RigaSoppressa());
  }
}

std::string PropostaDerivate::RigaOriginale() const {
  std::string riga(censuario::ModelloOriginale);
  const std::string qualita = CodiceQualita(LaSessione().TabellaQualita, scelta_.dati.qualita);
  ScriviCampo(riga, censuario::Particella, MSFlexGrid1.Cella(Grid::Originale, Grid::Particella));
  ScriviArea(riga, MSFlexGrid1.Cella(Grid::Originale, Grid::Area));
  ScriviCampo(riga, censuario::SrSn, MSFlexGrid1.Cella(Grid::Originale, Grid::SrSn));
  // By value: "01" gives "1 ".
  ScriviCampo(riga, censuario::Classe, ConClasse(qualita) ? TestoPieno(Valore(scelta_.dati.classe)) : std::string{});
  SovrascriviCampo(riga, censuario::Qualita, qualita);
  return riga;
}

std::string PropostaDerivate::RigaSoppressa() const {
  std::string riga(censuario::ModelloSoppressa);
  ScriviCampo(riga, censuario::Particella, MSFlexGrid1.Cella(Grid::Originale, Grid::Particella));
  return riga;
}

std::string PropostaDerivate::RigaDerivata(std::size_t indice) const {
  std::string riga(censuario::ModelloVuoto);
  const std::string& operazione = MSFlexGrid1.Cella(indice, Grid::Operazione);
  SovrascriviCampo(riga, censuario::Operazione, operazione);
  ScriviArea(riga, MSFlexGrid1.Cella(indice, Grid::Area));
  ScriviCampo(riga, censuario::SrSn, MSFlexGrid1.Cella(indice, Grid::SrSn));
  if (operazione == "V") {
    ScriviCampo(riga, censuario::Particella, Particella());
    return riga;
  }
  ScriviCampo(riga, censuario::Lettera, MSFlexGrid1.Cella(indice, Grid::Particella));
  ScriviCampo(riga, censuario::Temporaneo, NomeDellaNuova(indice));
  return riga;
}

} // namespace lirmeto
