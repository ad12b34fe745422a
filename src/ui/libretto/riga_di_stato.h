#pragma once
// One line that explains a row: its kind, then name, value and unit of each
// field; what does not fit is in the tooltip.

#include <core/descrizione_riga.h>

#include <QWidget>

#include <string_view>

namespace lirmeto::ui {

class RigaDiStato : public QWidget {
  Q_OBJECT
public:
  explicit RigaDiStato(QWidget* padre = nullptr);

  void MostraRiga(std::string_view riga);
  void Pulisci();

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

protected:
  void paintEvent(QPaintEvent* evento) override;

private:
  struct Pezzo {
    QString testo;
    QColor colore;
    bool grassetto;
  };
  [[nodiscard]] QList<Pezzo> Pezzi() const;

  RigaDescritta descritta_;
  QColor striscia_;
};

} // namespace lirmeto::ui
