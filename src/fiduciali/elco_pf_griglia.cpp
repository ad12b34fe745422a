#include <fiduciali/elco_pf_griglia.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <fiduciali/elco_pf_grafica.h>
#include <fiduciali/misurate.h>
#include <supporto/stampa_generale.h>

#include <algorithm>
#include <numeric>

namespace lirmeto {

// What could be done in more than one way:
//
//   the cells of a line of the .CSV      have a tab between, as in the one that the plane writes
//   no row is selected                   all rows shown are
//   rows sorted or left out              are printed and copied as they are shown
//   a blank line of the TAF              is no point

namespace {

// Order of two rows by a column: numbers by their value, texts by their bytes.
bool Precede(const RecordTaf& a, const RecordTaf& b, const ColonnaPF& colonna) {
  if (!colonna.numero) return a.*colonna.cella < b.*colonna.cella;
  return Valore(a.*colonna.cella) < Valore(b.*colonna.cella);
}

bool HaNelleCelle(const RecordTaf& punto, std::string_view maiuscolo) {
  return std::any_of(ColonnePF.begin(), ColonnePF.end(),
                     [&](const ColonnaPF& colonna) { return Contiene(Maiuscolo(punto.*colonna.cella), maiuscolo); });
}

std::string RigaAColonne(const RecordTaf& punto) {
  std::string riga;
  for (const ColonnaPF& colonna : ColonnePF) riga += RiempiECorta(Taglia(punto.*colonna.cella), colonna.caratteri);
  return riga;
}

} // namespace

KR_ElcoPfGriglia::KR_ElcoPfGriglia(Ambiente& ambiente, TabellaPF tabella)
    : ambiente_(ambiente), tabella_(std::move(tabella)) {}

std::string KR_ElcoPfGriglia::Label1() const {
  return "Provincia di " + tabella_.provincia;
}

std::string KR_ElcoPfGriglia::Label2() const {
  return "Comune di " + tabella_.nome;
}

std::string KR_ElcoPfGriglia::Label3() const {
  return "PF Totali " + TestoIntero(static_cast<long long>(tabella_.punti.size()));
}

void KR_ElcoPfGriglia::Carica() {
  ambiente_.sessione.PuntoErrore = "KR_ElcoPfGriglia";
  (void)Intrappola(ambiente_, [this] { CaricaPunti(ambiente_, tabella_); });
  Disponi();
}

void KR_ElcoPfGriglia::Filtra(std::string_view testo) {
  Text1 = testo;
  Disponi();
}

void KR_ElcoPfGriglia::Ordina(std::size_t colonna) {
  if (colonna >= ColonnePF.size()) return;
  crescente_ = colonna != colonna_ || !crescente_;
  colonna_ = colonna;
  Disponi();
}

void KR_ElcoPfGriglia::Disponi() {
  const auto& punti = tabella_.punti;
  const std::string cercato = Maiuscolo(Text1);
  Viste.resize(punti.size());
  std::iota(Viste.begin(), Viste.end(), std::size_t{0});
  if (!cercato.empty()) std::erase_if(Viste, [&](std::size_t riga) { return !HaNelleCelle(punti[riga], cercato); });
  SelezionaNessuna();
  if (colonna_ >= ColonnePF.size()) return;
  std::stable_sort(Viste.begin(), Viste.end(), [&](std::size_t a, std::size_t b) {
    return crescente_ ? Precede(punti[a], punti[b], ColonnePF[colonna_])
                      : Precede(punti[b], punti[a], ColonnePF[colonna_]);
  });
}

void KR_ElcoPfGriglia::Seleziona(std::size_t una, std::size_t altra) {
  selezionate_ = {std::min(una, altra), std::max(una, altra) + 1};
}

KR_ElcoPfGriglia::Tratto KR_ElcoPfGriglia::Selezionate() const {
  if (selezionate_.ultimo == 0) return {0, Viste.size()};
  return {std::min(selezionate_.primo, Viste.size()), std::min(selezionate_.ultimo, Viste.size())};
}

void KR_ElcoPfGriglia::Stampa() {
  const Tratto tratto = Selezionate();
  if (tratto.primo == tratto.ultimo) return;
  ambiente_.sessione.PuntoErrore = "Stampa_TAF";
  (void)Intrappola(ambiente_, [&] {
    std::string csv;
    ListaRighe lista;
    for (std::size_t i = tratto.primo; i < tratto.ultimo; ++i) {
      csv.append(RigaConTab(tabella_.punti[Viste[i]])).append(FineRiga);
      lista.Aggiungi(RigaAColonne(tabella_.punti[Viste[i]]));
    }
    StampaConFile(ambiente_, std::move(lista), csv, ambiente_.sessione.CartellaProgramma + "\\temp\\Stampa_TAF");
  });
}

void KR_ElcoPfGriglia::Copia() {
  const Tratto tratto = Selezionate();
  std::string testo;
  for (std::size_t i = tratto.primo; i < tratto.ultimo; ++i)
    testo.append(RigaConTab(tabella_.punti[Viste[i]])).append(FineRiga);
  ambiente_.appunti.MettiTesto(testo);
}

void KR_ElcoPfGriglia::Grafica() {
  KR_ElcoPFGrafica form(ambiente_, tabella_);
  form.AlCaricamento();
  ambiente_.finestre.MostraModale(form);
  Chiusa = TuttoChiuso = form.TuttoChiuso;
}

void KR_ElcoPfGriglia::Monografie() {
  (void)Intrappola(ambiente_, [this] { ImportaTafMisurate(ambiente_); });
  Carica();
}

} // namespace lirmeto
