#pragma once
// The data beside the row list: labels of the act, the surveyor's boxes, the
// owners box, the option list.

#include <applicazione/finestra_principale.h>

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QToolButton;
class QVBoxLayout;

namespace lirmeto::ui {

class PannelloDati : public QWidget {
  Q_OBJECT
public:
  // The model must outlive the panel; what is typed goes straight into it.
  explicit PannelloDati(KR_LibrettoOriginale& modello, QWidget* padre = nullptr);

  // Shows the model's labels, boxes and options; a box that already shows its
  // text keeps its caret.
  void Mostra();

signals:
  void Premuto(lirmeto::Comando comando); // the extract's label
  void Scritto();                         // into a box

private:
  void AggiungiEtichette(QVBoxLayout& colonna);
  void AggiungiTecnico(QVBoxLayout& colonna);
  void AggiungiDitta(QVBoxLayout& colonna);
  void AggiungiOpzioni(QVBoxLayout& colonna);
  void DittaCambiata();

  KR_LibrettoOriginale& modello_;
  QToolButton* estratto_;
  QLabel* misurate_;
  QLabel* versione_;
  QLineEdit* iscrizione_;
  QLineEdit* codiceFiscale_;
  QPlainTextEdit* ditta_;
  QListWidget* opzioni_;
};

} // namespace lirmeto::ui
