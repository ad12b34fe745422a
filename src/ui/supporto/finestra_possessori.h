#pragma once
// The window of the archive of possessors: its files in a column, the lines of the chosen one beside it.

#include <supporto/archivio_possessori.h>

#include <QDialog>

class QListWidget;

namespace lirmeto::ui {

class FinestraPossessori : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraPossessori(ArchivioPossessori& modello, QWidget* padre = nullptr);

private:
  void Collega();
  void Esegui(int indice);
  void MostraFile();
  void MostraRighe();

  ArchivioPossessori& modello_;
  QListWidget* file_;
  QListWidget* righe_;
};

} // namespace lirmeto::ui
