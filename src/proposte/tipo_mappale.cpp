#include <proposte/tipo_mappale.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga_censuaria.h>
#include <proposte/lettere.h>
#include <proposte/memo.h>

#include <array>
#include <optional>

namespace lirmeto {

namespace {

constexpr int VuotaMemo = 3;
constexpr std::size_t RigaOriginale = 2; // of List1

constexpr std::array PulsantiNuova = {
    PulsanteForm{pulsante::Aggiungi, "salva", "Salva nel Libretto",
                 "Il memo prende il posto delle righe censuarie del libretto"},
    PulsanteForm{2, "giu", "Metti nel Memo", "Le righe di questa particella vanno nel memo"},
    PulsanteForm{4, "sn_sr", "SN / SR", "Superficie nominale o reale"},
    PulsanteForm{VuotaMemo, "nuovo", "Vuota Memo", "Toglie tutte le righe del memo"},
    PulsanteForm{pulsante::Copia, "copia", "Copia", "Il memo negli appunti"},
    PulsanteForm{pulsante::Stampa, "stampa", "Stampa", "Stampa il memo"},
    PulsanteForm{pulsante::Chiudi, "chiudi", "Chiudi", "Chiude senza toccare il libretto"},
};

// The same buttons, two of them at other indices.
constexpr auto PulsantiVariazione = [] {
  auto pulsanti = PulsantiNuova;
  pulsanti[1].indice = 4;
  pulsanti[2].indice = 2;
  return pulsanti;
}();

} // namespace

void TipoMappale::Form_Load() {
  Titolo = TitoloForm();
  ComponiSezione();
  List2.Riempi(RigheCensuarie(LaSessione().Libretto));
}

void TipoMappale::Esegui(int indice) {
  if (indice == pulsante::Aggiungi) return Salva();
  if (indice == VuotaMemo) return List2.Svuota();
  if (indice == IndiciPropri().memo) return AggiungiAlMemo();
  if (indice == IndiciPropri().scambia) return ScambiaSrSn();
  FormCensuario::Esegui(indice);
}

void TipoMappale::ScambiaSrSn() {
  const std::string_view nuovo = LeggiCampo(List1[RigaOriginale], censuario::SrSn) == "SN" ? "SR" : "SN";
  for (const std::size_t indice : {RigaOriginale, List1.size() - 1}) {
    std::string riga(List1[indice]);
    ScriviCampo(riga, censuario::SrSn, nuovo);
    List1.Cambia(indice, riga);
  }
}

void TipoMappale::Salva() {
  if (List2.Quante() <= RigheDiTesta)
    return LAmbiente().dialoghi.Messaggio("Nessuna informazone da aggiungere al Libretto!", "Memo Vuoto");
  SalvaPropostaFile1(LAmbiente(), List2);
  Chiusa = true;
}

std::string TipoMappale::ConNome(std::string_view modello) const {
  std::string riga(modello);
  ScriviCampo(riga, censuario::Particella, Particella());
  return riga;
}

std::string TipoMappale::ConArea(std::string riga) const {
  ScriviArea(riga, scelta_.dati.superficie);
  return riga;
}

// The class as its box holds it.
std::string TipoMappale::ConQualita(std::string riga) const {
  const bool conClasse = Valore(scelta_.codiceQualita) < censuario::PrimaNonAgraria;
  SovrascriviCampo(riga, censuario::Qualita, scelta_.codiceQualita);
  SovrascriviCampo(riga, censuario::Classe, conClasse ? std::string_view(scelta_.dati.classe) : "  ");
  return riga;
}

// --- new construction

std::span<const PulsanteForm> TipoMappale::Pulsanti() const {
  return PulsantiVariazione;
}

std::span<const PulsanteForm> KR_NuovaCostruzione::Pulsanti() const {
  return PulsantiNuova;
}

void KR_NuovaCostruzione::ComponiSezione() {
  constexpr std::size_t nomi = 26;
  for (std::size_t i = 1; i <= nomi; ++i) List3.push_back(NomeTemporaneo(i));
  List1.Aggiungi(censuario::Intestazione);
  List1.Aggiungi(RigaConteggio(censuario::Stralcio, 3));
  List1.Aggiungi(ConQualita(ConArea(ConNome(censuario::ModelloOriginale))));
  List1.Aggiungi(ConNome(censuario::ModelloSoppressa));
  List1.Aggiungi(ConArea(std::string(censuario::ModelloCostituita)));
}

void KR_NuovaCostruzione::ScegliNome(std::size_t voce) {
  if (voce >= List3.size()) return;
  List3Indice = static_cast<long>(voce);
  const std::size_t ultima = List1.size() - 1;
  std::string riga(List1[ultima]);
  SovrascriviCampo(riga, censuario::Temporaneo, List3[voce]);
  List1.Cambia(ultima, riga);
}

// The count is put into the second row of the memo, whatever its section is: meant so; the findings tell.
void KR_NuovaCostruzione::AggiungiAlMemo() {
  if (List2.Vuoto()) return List2.Riempi(List1);
  AggiungiDati(List2, List1);
  RinnovaConteggio(List2);
}

void KR_NuovaCostruzione::DoppioClickMemo(std::size_t riga) {
  if (riga < RigheDiTesta || riga >= List2.Quante()) return;
  List2.Togli(riga);
  RinnovaConteggio(List2);
}

// --- variation

// The varied parcel is an urban entity without class, whatever the original was.
void KR_TMVariazione::ComponiSezione() {
  List1.Aggiungi(censuario::Intestazione);
  List1.Aggiungi(RigaConteggio(censuario::Stralcio, 2));
  List1.Aggiungi(ConQualita(ConArea(ConNome(censuario::ModelloFabbricato))));
  List1.Aggiungi(ConArea(ConNome(censuario::ModelloVariata)));
}

// The rows go behind the last section "3SPC" of the memo, or open one; every "3SPC" row takes the count of the last:
// meant so; the findings tell.
void KR_TMVariazione::AggiungiAlMemo() {
  if (List2.Vuoto()) return List2.Riempi(List1);
  const auto e3Spc = [this](std::size_t i) { return Contiene(List2.Riga(i), "3SPC"); };
  std::optional<std::size_t> conteggio;
  for (std::size_t i = 0; i < List2.Quante(); ++i) {
    if (e3Spc(i))
      conteggio = 0;
    else if (conteggio)
      ++*conteggio;
  }
  if (!conteggio) List2.Aggiungi(List1[1]);
  AggiungiDati(List2, List1);
  const std::string cifre = TreCifre(conteggio.value_or(0) + List1.size() - RigheDiTesta);
  for (std::size_t i = 0; i < List2.Quante(); ++i) {
    if (!e3Spc(i)) continue;
    std::string riga(List2.Riga(i));
    SovrascriviCampo(riga, censuario::Conteggio, cifre);
    List2.Cambia(i, riga);
  }
}

} // namespace lirmeto
