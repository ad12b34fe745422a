#pragma once
// The two small windows of the automated typologies: which parcels, and which of them keeps its identifier.

#include <generazione/mappale_da_mantenere.h>
#include <generazione/seleziona_mappali.h>

#include <QDialog>

class QLabel;
class QListWidget;

namespace lirmeto::ui {

class FinestraSelezionaMappali : public QDialog {
  Q_OBJECT
public:
  // The models must be loaded and outlive the windows.
  explicit FinestraSelezionaMappali(SelezionaMappali& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QLayout* CreaCaselle();
  [[nodiscard]] QLayout* CreaPiede();
  void Mostra();
  void Fa(void (SelezionaMappali::*comando)());

  SelezionaMappali& modello_;
  QListWidget* elenco_;
};

class FinestraMappaleDaMantenere : public QDialog {
  Q_OBJECT
public:
  explicit FinestraMappaleDaMantenere(MappaleDaMantenere& modello, QWidget* padre = nullptr);

private:
  void Mostra();

  MappaleDaMantenere& modello_;
  QListWidget* mappali_;
  QListWidget* urbani_;
};

} // namespace lirmeto::ui
