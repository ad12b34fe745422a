#pragma once
// The window of the header form: the act, the surveyor and the survey in groups, a box a line.

#include <intestazione/catasto1_form.h>

#include <QDialog>

#include <array>
#include <vector>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;

namespace lirmeto::ui {

class FinestraCatasto1 : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraCatasto1(FormCatasto1TXT& modello, QWidget* padre = nullptr);

  void done(int esito) override;
  // Esc and the window's own cross close as the button does.
  void reject() override;

private:
  [[nodiscard]] QWidget* CreaCaselle();
  [[nodiscard]] QWidget* CreaPiede();
  QGridLayout& AggiungiGruppo(QBoxLayout& colonna, const QString& titolo);
  void AggiungiAtto(QBoxLayout& colonna);
  void AggiungiRilievo(QBoxLayout& colonna);
  void AggiungiTecnico(QBoxLayout& colonna);
  void AggiungiElencoTecnici(QGridLayout& griglia);
  void AggiungiArchivi(QBoxLayout& colonna);
  void AggiungiOpzioni(QBoxLayout& colonna);

  using Parti = std::vector<QWidget*>;
  // A box with its caption, what stands behind it on its line, and its width in letters (0: all there is).
  void AggiungiCasella(QGridLayout& griglia, std::size_t indice, int lettere, Parti dietro = {});
  // The same with the entries of a list to choose from.
  void AggiungiScelta(QGridLayout& griglia, Elenco elenco, Parti dietro = {});
  void AggiungiRiga(QGridLayout& griglia, const QString& etichetta, const Parti& parti);
  void CollegaCasella(std::size_t indice, QLineEdit* linea);
  [[nodiscard]] QPushButton* Bottone(int indice);
  [[nodiscard]] Parti PiuMeno(int piu, int meno);

  void Premi(int indice);
  void Mostra();
  void MostraDifetto(std::size_t indice);
  void MostraElenchi();
  void MostraTecnici();

  FormCatasto1TXT& modello_;
  std::array<QLineEdit*, NumeroCaselle> caselle_{};
  std::array<QLabel*, NumeroCaselle> difetti_{}; // beside the boxes that can be wrong
  std::array<QComboBox*, NumeroElenchi> elenchi_{};
  QListWidget* tecnici_;
  QLabel* comune_;
  QToolButton* estratto_;
  QLabel* misurate_;
  QLineEdit* archivio_;
  QCheckBox* aggiornaIni_;
  QCheckBox* aggiornaData_;
};

} // namespace lirmeto::ui
