#pragma once
// The console's side of the interfaces: messages to a stream, answers from the command line, no windows.

#include <base/dialoghi.h>
#include <base/macchina.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lirmeto {

class DialoghiConsole final : public Dialoghi {
public:
  // The answers are given in their order and the last one stays; without any it is no.
  DialoghiConsole(std::FILE* canale, std::vector<Risposta> risposte);

  // One "[title] text" each, UTF-8.
  void Messaggio(std::string_view testo, std::string_view titolo = TitoloProgramma,
                 Gravita gravita = Gravita::Informazione) override;
  [[nodiscard]] Risposta Chiedi(std::string_view testo, std::string_view titolo, Bottoni bottoni) override;

  // Nobody is there to choose: as if cancelled.
  [[nodiscard]] std::optional<std::size_t> Scegli(std::string_view testo, std::string_view titolo,
                                                  const std::vector<std::string>& risposte) override;
  [[nodiscard]] std::string ScegliFileDaAprire(const RichiestaFile& richiesta) override;
  [[nodiscard]] std::string ScegliFileDaSalvare(const RichiestaFile& richiesta) override;
  [[nodiscard]] Carattere ScegliCarattere(const Carattere& attuale) override;
  void ScegliStampante() override;

  // There is no printer either.
  void Stampa(const Stampato& stampato) override;

  // One line, written over, when the stream is a terminal.
  // Whoever sits at the terminal gives up in the terminal's own way.
  [[nodiscard]] bool Attesa(std::string_view /*cosa*/) override { return true; }
  void Avanzamento(std::string_view lavoro, std::size_t fatto, std::size_t totale) override;

private:
  void CancellaAvanzamento();

  std::FILE* canale_;
  bool terminale_;
  std::vector<Risposta> risposte_;
  std::size_t prossima_ = 0;
  std::string lavoro_;                           // under way; empty for none
  std::chrono::steady_clock::time_point inizio_; // of that work
  std::size_t percento_ = 0;                     // shown last
  bool mostrato_ = false;
};

class FinestreAssenti final : public Finestre {
public:
  void MostraModale(Modello& /*modello*/) override {}
  [[nodiscard]] bool Disponibile(std::string_view /*nome*/) const override { return false; }
  void Apri(std::string_view /*nome*/) override {}
};

// Settings of one run: the defaults, and what the run itself wrote.
class ImpostazioniDiUnGiro final : public Impostazioni {
public:
  [[nodiscard]] std::string Leggi(std::string_view sezione, std::string_view chiave,
                                  std::string_view predefinito) const override;
  void Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) override;

private:
  std::map<std::pair<std::string, std::string>, std::string> valori_;
};

// A clipboard that nobody else sees.
class AppuntiDiUnGiro final : public Appunti {
public:
  [[nodiscard]] std::string Testo() const override { return testo_; }
  void MettiTesto(std::string_view testo) override { testo_ = testo; }

private:
  std::string testo_;
};

// "[title] text" and a line end; both texts are Windows-1252.
[[nodiscard]] std::string RigaMessaggio(std::string_view titolo, std::string_view testo);

} // namespace lirmeto
