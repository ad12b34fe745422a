#pragma once
// The fields of the current row as boxes under the list: a value typed there and Enter, or leaving the box, changes the
// field; Esc leaves it as it was.

#include <core/caselle_riga.h>

#include <QScrollArea>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace lirmeto::ui {

class StrisciaCampi : public QScrollArea {
  Q_OBJECT
public:
  explicit StrisciaCampi(QWidget* padre = nullptr);

  // Shows the boxes of a row; costs nothing when it is the one already shown.
  void MostraRiga(std::size_t riga, std::string_view testo);
  void Pulisci();

  // The first box has the keys, its text selected. False when the row has no box.
  bool Entra();
  // What is typed and not yet taken is told as changed.
  void Prendi();

signals:
  void Cambiato(std::size_t riga, std::size_t campo, const QString& testo);
  void Lasciata();          // Esc: the keys go back to the list
  void Spostata(int passo); // arrow up or down: another row, the same box

protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
  struct Posto {
    QWidget* insieme;
    QLabel* titolo;
    QLabel* unita;
    QLineEdit* casella;
  };
  void Aggiungi();
  void Riempi(std::size_t quale);
  void Rimetti(std::size_t quale);
  void Prendi(std::size_t quale);
  void Disponi();
  [[nodiscard]] bool Tasto(std::size_t quale, int tasto);

  QWidget* dentro_;
  QHBoxLayout* riga_;
  QLabel* vuota_;            // what stands there without boxes
  std::vector<Posto> posti_; // made once and used again
  std::vector<CasellaRiga> caselle_;
  std::optional<std::size_t> quale_; // row shown
  std::string testo_;
};

} // namespace lirmeto::ui
