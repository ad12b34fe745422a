#pragma once
// The window over PREGEO.INI as a text.

#include <pregeo/form_configura_pregeo.h>

#include <QDialog>

class QLabel;

namespace lirmeto::ui {

class BarraACapo;

class CasellaTesto;

class FinestraConfiguraPregeo : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraConfiguraPregeo(FormConfiguraPregeo& modello, QWidget* padre = nullptr);

  // Esc and the window's own cross close as the button does.
  void reject() override;

private:
  [[nodiscard]] BarraACapo* CreaBarra();
  [[nodiscard]] QWidget* CreaPiede();
  void Salva();
  void Ricarica();
  void MostraEtichette();

  FormConfiguraPregeo& modello_;
  CasellaTesto* casella_;
  QLabel* avviso_;
  QLabel* versione_;
};

} // namespace lirmeto::ui
