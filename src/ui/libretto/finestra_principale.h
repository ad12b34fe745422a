#pragma once
// The main window over its model: it shows, passes on what the user does, and shows again; it decides nothing.

#include <applicazione/finestra_principale.h>

#include <QMainWindow>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QAction;
class QLabel;
class QSplitter;
class QTimer;
class QToolButton;
class QVBoxLayout;

namespace lirmeto::ui {

class BarraRicerca;
class ElencoVerifiche;
class EtichettaBreve;
class PannelloDati;
class PannelloPulsanti;
class PannelloRilievo;
class PannelloStrumenti;
class RigaDiStato;
class StrisciaCampi;
class VistaRighe;

class FinestraPrincipale : public QMainWindow {
  Q_OBJECT
public:
  // Turns a path of the host into one of the logic's; empty, and the user told, for one that cannot be said.
  using PercorsoDaOspite = std::function<std::string(const QString&)>;

  // The model must outlive the window and have been started.
  FinestraPrincipale(KR_LibrettoOriginale& modello, PercorsoDaOspite percorso, QWidget* padre = nullptr);

  // Shows the model as it now is.
  void Mostra();

protected:
  void changeEvent(QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

private:
  [[nodiscard]] QWidget* CreaPiano();
  [[nodiscard]] QWidget* CreaCentro();
  [[nodiscard]] QWidget* CreaTestata();
  [[nodiscard]] QWidget* CreaPiede();
  void CollegaPannelli();
  void CollegaElenco();
  void CollegaRicerca();
  void CollegaVerifiche();
  void CollegaStrumenti();
  void CollegaConsegne();
  void CollegaCampi();
  void CreaMenuRighe();
  void CreaScorciatoie();
  void Comanda(Comando comando);
  void Fa(const std::function<void()>& azione);
  void Lascia(const QString& percorsoOspite, void (KR_LibrettoOriginale::*dove)(const std::string&));
  void MostraElenco();
  void MostraStoria();
  void MostraEsito();
  void MostraTitolo();
  void MostraStrumenti();
  void MostraSpiegazione();
  void AggiornaVerifiche();
  void MostraVerifiche();
  void TieniMisure();
  void VaiAllaCorrente();
  void Cerca();
  void VaiATrovata(bool avanti);
  void ChiudiSeFinita();
  [[nodiscard]] std::function<bool(Comando)> Disponibile() const {
    return [this](Comando comando) { return modello_.Disponibile(comando); };
  }
  [[nodiscard]] ElencoRighe& Elenco() { return modello_.DatiSessione().List1; }

  KR_LibrettoOriginale& modello_;
  PercorsoDaOspite percorso_;
  PannelloPulsanti* pulsanti_;
  PannelloDati* dati_;
  PannelloStrumenti* strumenti_;
  VistaRighe* righe_;
  BarraRicerca* ricerca_;
  RigaDiStato* spiegazione_;
  StrisciaCampi* campi_;
  EtichettaBreve* nomeFile_;
  QLabel* posizione_;
  ElencoVerifiche* verifiche_;
  PannelloRilievo* rilievo_;
  QSplitter* accanto_;               // rows and picture
  QSplitter* sopra_;                 // both of them and the list of findings
  QToolButton* conta_;               // how many findings there are; shows and hides their list
  QTimer* ritardo_;                  // the checks follow when the event loop is free
  QToolButton* scartate_;            // notice of the rows that a reorder dropped; lists them
  EtichettaBreve* esito_;            // what the last command did
  QTimer* consegne_;                 // looks for what a second start hands over
  std::vector<std::string> recenti_; // as the menu shows them
  std::vector<std::size_t> trovate_; // rows that hold the text looked for
  std::optional<unsigned long> versioneTrovate_;
  bool occupata_ = false; // a command is running
  bool chiusa_ = false;   // the model has been told of the closing
};

} // namespace lirmeto::ui
