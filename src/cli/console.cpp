#include <cli/console.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>

#include <piattaforma/canali.h>

namespace lirmeto {

namespace {

constexpr auto PrimaDiMostrare = std::chrono::milliseconds(500);

void ScriviSu(std::FILE* canale, std::string_view utf8) {
  std::fwrite(utf8.data(), 1, utf8.size(), canale);
  std::fflush(canale);
}

} // namespace

std::string RigaMessaggio(std::string_view titolo, std::string_view testo) {
  return "[" + AUtf8(titolo) + "] " + Sostituisci(AUtf8(testo), FineRiga, "\n") + "\n";
}

DialoghiConsole::DialoghiConsole(std::FILE* canale, std::vector<Risposta> risposte)
    : canale_(canale), terminale_(Terminale(canale)), risposte_(std::move(risposte)) {}

void DialoghiConsole::Messaggio(std::string_view testo, std::string_view titolo, Gravita /*gravita*/) {
  CancellaAvanzamento();
  ScriviSu(canale_, RigaMessaggio(titolo, testo));
}

Risposta DialoghiConsole::Chiedi(std::string_view testo, std::string_view titolo, Bottoni bottoni) {
  Messaggio(testo, titolo);
  if (risposte_.empty()) return Risposta::No;
  const Risposta risposta = risposte_[prossima_];
  if (prossima_ + 1 < risposte_.size()) ++prossima_;
  // A question with two buttons cannot be cancelled.
  return bottoni == Bottoni::SiNo && risposta == Risposta::Annulla ? Risposta::No : risposta;
}

std::optional<std::size_t> DialoghiConsole::Scegli(std::string_view testo, std::string_view titolo,
                                                   const std::vector<std::string>& /*risposte*/) {
  Messaggio(testo, titolo);
  return std::nullopt;
}

std::string DialoghiConsole::ScegliFileDaAprire(const RichiestaFile& /*richiesta*/) {
  throw Errore(errore::DialogoAnnullato);
}

std::string DialoghiConsole::ScegliFileDaSalvare(const RichiestaFile& /*richiesta*/) {
  throw Errore(errore::DialogoAnnullato);
}

Carattere DialoghiConsole::ScegliCarattere(const Carattere& /*attuale*/) {
  throw Errore(errore::DialogoAnnullato);
}

void DialoghiConsole::ScegliStampante() {
  throw Errore(errore::DialogoAnnullato);
}

void DialoghiConsole::Stampa(const Stampato& /*stampato*/) {
  throw Errore(errore::ErroreStampante);
}

void DialoghiConsole::Avanzamento(std::string_view lavoro, std::size_t fatto, std::size_t totale) {
  if (!terminale_) return;
  if (fatto >= totale) {
    CancellaAvanzamento();
    lavoro_.clear();
    return;
  }
  const auto adesso = std::chrono::steady_clock::now();
  if (lavoro != lavoro_) {
    lavoro_ = lavoro;
    inizio_ = adesso;
    mostrato_ = false;
  }
  const std::size_t percento = fatto * 100 / totale;
  if (adesso - inizio_ < PrimaDiMostrare || (mostrato_ && percento == percento_)) return;
  percento_ = percento;
  mostrato_ = true;
  ScriviSu(canale_, "\r" + AUtf8(lavoro) + ": " + TestoIntero(static_cast<long long>(percento)) + "%");
}

void DialoghiConsole::CancellaAvanzamento() {
  if (mostrato_) ScriviSu(canale_, "\r\033[K");
  mostrato_ = false;
}

std::string ImpostazioniDiUnGiro::Leggi(std::string_view sezione, std::string_view chiave,
                                        std::string_view predefinito) const {
  const auto trovato = valori_.find({std::string(sezione), std::string(chiave)});
  return trovato == valori_.end() ? std::string(predefinito) : trovato->second;
}

void ImpostazioniDiUnGiro::Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
  valori_[{std::string(sezione), std::string(chiave)}] = valore;
}

} // namespace lirmeto
