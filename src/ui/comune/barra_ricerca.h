#pragma once
// The find bar: a text, the hits counted, next and previous. It knows no list:
// it asks its owner to search and to go.

#include <QWidget>

#include <cstddef>

class QLabel;
class QLineEdit;

namespace lirmeto::ui {

class BarraRicerca : public QWidget {
  Q_OBJECT
public:
  explicit BarraRicerca(QWidget* padre = nullptr);

  void Apri();   // shows the bar, its text selected and ready to be typed over
  void Chiudi(); // hides it

  [[nodiscard]] QString Testo() const;

  // What the last search gave: which hit is the current one (from 1, 0 for
  // none) and how many there are.
  void MostraEsito(std::size_t attuale, std::size_t quante);
  [[nodiscard]] QString Esito() const;

signals:
  void TestoCambiato();
  void Successiva();
  void Precedente();
  void Chiusa();

protected:
  void keyPressEvent(QKeyEvent* evento) override;

private:
  QLineEdit* casella_;
  QLabel* esito_;
};

} // namespace lirmeto::ui
