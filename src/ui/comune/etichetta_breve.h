#pragma once
// A label that shortens its text to the room that it has, with "..." where something is missing.

#include <QLabel>

namespace lirmeto::ui {

// Its tooltip is the whole text.
class EtichettaBreve final : public QLabel {
public:
  EtichettaBreve(Qt::TextElideMode dove, QWidget* padre);

  void Mostra(const QString& testo);

protected:
  void paintEvent(QPaintEvent* evento) override;

private:
  Qt::TextElideMode dove_;
};

} // namespace lirmeto::ui
