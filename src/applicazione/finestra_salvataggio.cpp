// What the main window does so that no edit is lost: its close, a new libretto, and knowing what is saved.

#include <applicazione/finestra_principale.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/salvataggio.h>

#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   nothing changed since the file was opened   the close writes nothing
//   what opening mends (repeated rows, notes)   is no change
//   a libretto that an .LXB or a command made   is not saved, whatever the disk has
//   "Nuovo Libretto", what stands unsaved       asks: yes saves it first and stops if that fails, no lets it go
//   the header form of a new libretto closed    the libretto that stood comes back, with its file
//   without a confirm
//   a save that fails at the close              asks until it goes well, the user gives it up, or the window stays

namespace {

constexpr std::string_view NomeForm = "KR_LibrettoOriginale";

enum Scelta : std::size_t { Riprova, Altrove, SenzaSalvare };

} // namespace

// What a save would write now. The rows are gone through again only when they are others than the last time.
std::uint64_t KR_LibrettoOriginale::ImprontaAttuale() const {
  const ElencoRighe& elenco = ambiente_.sessione.List1;
  if (!impronta_ || impronta_->versione != elenco.Versione())
    impronta_ = ImprontaLetta{elenco.Versione(), ImprontaRighe(elenco)};
  return ImprontaElenco(impronta_->righe, ambiente_.sessione);
}

void KR_LibrettoOriginale::RicordaIntatto() {
  salvato_ = ImprontaAttuale();
}

// An export leaves owners and extract out: a libretto without a file is not saved by it.
void KR_LibrettoOriginale::RicordaSalvato() {
  if (!ambiente_.sessione.NomeFileLibretto.empty()) salvato_ = ImprontaLibretto(ambiente_.sessione);
}

void KR_LibrettoOriginale::Salva() {
  const bool senzaNome = ambiente_.sessione.NomeFileLibretto.empty();
  if (senzaNome) return Esporta();
  const bool salvato = SalvaLibrettoMisure(ambiente_);
  if (salvato) RicordaSalvato();
  MostraSessione();
  if (salvato) Esito = FattoARighe("Salvat", ambiente_.sessione.List1.Quante()) + " in " + EtichettaFile;
}

void KR_LibrettoOriginale::Esporta() {
  const std::string dove = EsportaLibrettoInFile(ambiente_);
  if (!dove.empty()) Esito = FattoARighe("Esportat", ambiente_.sessione.List1.Quante()) + " in " + dove;
}

bool KR_LibrettoOriginale::DaSalvare() const {
  return salvato_ != ImprontaAttuale();
}

// Whether the libretto that stands may go.
bool KR_LibrettoOriginale::LasciaIlLibretto() {
  if (!DaSalvare()) return true;
  const Risposta risposta = ambiente_.dialoghi.Chiedi("Il libretto attuale non è salvato. Salvarlo?"_w,
                                                      "Nuovo Libretto", Bottoni::SiNoAnnulla);
  if (risposta != Risposta::Si) return risposta == Risposta::No;
  AggiornaLibrettoMisure(ambiente_);
  if (!SalvaLibrettoMisure(ambiente_)) return false;
  RicordaSalvato();
  return true;
}

// The marker is set where there is one: the button's and the menu's command differ in that.
void KR_LibrettoOriginale::NuovoLibretto(std::string_view marcatore) {
  if (!LasciaIlLibretto()) return;
  Sessione& sessione = ambiente_.sessione;
  Sessione prima = sessione;
  sessione.Libretto.clear();
  sessione.Ditta.clear();
  sessione.NomeFileLibretto.clear();
  sessione.EsitoForm = EsitoConfermato; // where no form comes up the new libretto stays
  CaricaLibrettoInList1(ambiente_);
  if (!marcatore.empty()) sessione.PuntoErrore = marcatore;
  ApriIntestazione();
  if (sessione.EsitoForm < 0) {
    prima.EsitoForm = sessione.EsitoForm;
    sessione = std::move(prima);
  }
  MostraSessione();
}

bool KR_LibrettoOriginale::SalvaOChiedi() {
  const std::vector<std::string> scelte = {"Riprova", "Salva altrove...", "Chiudi senza salvare"};
  bool salvato = SalvaLibrettoMisure(ambiente_);
  while (!salvato) {
    const auto scelta = ambiente_.dialoghi.Scegli(
        "Il libretto non è stato salvato: le modifiche sono solo in questa finestra."_w, "Chiusura", scelte);
    if (!scelta) return false;
    if (*scelta == SenzaSalvare) return true;
    salvato = *scelta == Riprova ? SalvaLibrettoMisure(ambiente_) : SalvaLibrettoAltrove(ambiente_);
  }
  return true;
}

std::optional<PosizioneForm> KR_LibrettoOriginale::PostoSalvato() const {
  return LeggiPosizione(ambiente_.impostazioni, NomeForm);
}

void KR_LibrettoOriginale::Chiusura(const PosizioneForm& posizione) {
  ambiente_.sessione.Ditta = Maiuscolo(CasellaDitta);
  ScriviPosizione(ambiente_.impostazioni, NomeForm, posizione);
  Finita = ambiente_.sessione.FineScambio; // it leaves everything as it was
  if (Finita) return;
  Prova([&] { Finita = !DaSalvare(); });
  if (Finita) return;
  Prova([&] { AggiornaLibrettoMisure(ambiente_); });
  Finita = SalvaOChiedi();
  MostraSessione();
}

} // namespace lirmeto
