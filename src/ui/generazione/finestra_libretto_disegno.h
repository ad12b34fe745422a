#pragma once
// The window of the libretto from a drawing: the drawing with the old rows below it, the list of lines, the options.

#include <generazione/libretto_da_disegno.h>

#include <QDialog>

#include <optional>
#include <utility>
#include <vector>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QStringListModel;
class QVBoxLayout;

namespace lirmeto::ui {

class GraficaPannello;

class FinestraLibrettoDisegno : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraLibrettoDisegno(LibrettoDaDisegno& modello, QWidget* padre = nullptr);

protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
  [[nodiscard]] QWidget* CreaDisegno();
  [[nodiscard]] QWidget* CreaLinee();
  [[nodiscard]] QWidget* CreaOpzioni();
  [[nodiscard]] QVBoxLayout& AggiungiGruppo(QBoxLayout& colonna, const QString& titolo);
  void AggiungiVoce(QBoxLayout& gruppo, const VoceOpzione& voce);
  void AggiungiPrecisione(QBoxLayout& colonna);
  [[nodiscard]] QButtonGroup& GruppoDi(std::string_view nome);
  [[nodiscard]] QBoxLayout* CreaPiede();
  void CollegaLinee();

  void Mostra();
  void MostraLinee();
  void Scegli(const VoceOpzione& voce, bool si);
  void Togli(int riga);
  void Rimetti();
  void PassaSopra(double x, double y);
  void Illumina(std::optional<std::size_t> sotto);
  void Genera();

  LibrettoDaDisegno& modello_;
  GraficaPannello* pannello_;
  QListView* linee_;
  QStringListModel* testiLinee_;
  QLabel* quanteLinee_;
  QLabel* lunghezza_; // of the line that is lit
  QLineEdit* dislivello_;
  QLabel* avviso_;
  QPushButton* genera_;
  QWidget* riquadroTaf_ = nullptr;
  std::vector<std::pair<const VoceOpzione*, QAbstractButton*>> voci_;
  std::vector<std::pair<std::string_view, QButtonGroup*>> gruppi_; // option buttons of which one is chosen
  QButtonGroup* precisione_;
  std::optional<std::size_t> sotto_; // the line under the pointer
};

} // namespace lirmeto::ui
