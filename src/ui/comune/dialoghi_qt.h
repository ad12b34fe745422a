#pragma once
// Message boxes, questions, file and font choice, progress: the window's side
// of Dialoghi.

#include <ui/supporto/stampa_qt.h>

#include <base/dialoghi.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <functional>

namespace lirmeto::ui {

// How paths of the logic and of the host are turned into each other; both may
// throw Errore.
struct Percorsi {
  std::function<QString(std::string_view)> aOspite;
  std::function<std::string(const QString&)> daOspite;
};

class DialoghiQt final : public Dialoghi {
public:
  explicit DialoghiQt(Percorsi percorsi);
  ~DialoghiQt() override;
  DialoghiQt(const DialoghiQt&) = delete;
  DialoghiQt& operator=(const DialoghiQt&) = delete;

  void Messaggio(std::string_view testo, std::string_view titolo, Gravita gravita) override;
  // Closing the box without a button means Annulla where there is one, else No.
  [[nodiscard]] Risposta Chiedi(std::string_view testo, std::string_view titolo, Bottoni bottoni) override;
  [[nodiscard]] std::optional<std::size_t> Scegli(std::string_view testo, std::string_view titolo,
                                                  const std::vector<std::string>& risposte) override;
  [[nodiscard]] std::string ScegliFileDaAprire(const RichiestaFile& richiesta) override;
  [[nodiscard]] std::string ScegliFileDaSalvare(const RichiestaFile& richiesta) override;
  [[nodiscard]] Carattere ScegliCarattere(const Carattere& attuale) override;
  void ScegliStampante() override;
  void Stampa(const Stampato& stampato) override;
  void Avanzamento(std::string_view lavoro, std::size_t fatto, std::size_t totale) override;
  [[nodiscard]] bool Attesa(std::string_view cosa) override;
  void Lavora(bool si) override;

private:
  [[nodiscard]] std::string ScegliFile(const RichiestaFile& richiesta, bool daSalvare);
  [[nodiscard]] bool Tocca();
  void CreaBarra();
  void MostraBarra(const QString& lavoro, std::size_t fatto, std::size_t totale);
  void NascondiBarra();

  Percorsi percorsi_;
  StampaQt stampa_;
  QPointer<QProgressDialog> barra_;
  QElapsedTimer inizio_;  // of the work under way
  QElapsedTimer disegno_; // since the bar was last drawn
  QTimer abbandono_;      // work that ended in an error never says that it is over
};

} // namespace lirmeto::ui
