#pragma once
// The window that shows any drawing file by itself.

#include <grafica/form_disegno.h>

#include <QDialog>

namespace lirmeto::ui {

class GraficaPannello;

class FinestraDisegno : public QDialog {
  Q_OBJECT
public:
  // The model must outlive the window.
  explicit FinestraDisegno(FormDisegno& modello, QWidget* padre = nullptr);

  [[nodiscard]] GraficaPannello& Pannello() { return *pannello_; }

signals:
  void FileLasciato(const QString& percorsoOspite);

protected:
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

private:
  void AggiungiApri();
  void Lascia(const QString& percorsoOspite);
  void Mostra();

  FormDisegno& modello_;
  GraficaPannello* pannello_;
};

} // namespace lirmeto::ui
