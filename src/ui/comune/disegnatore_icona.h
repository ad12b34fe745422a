#pragma once
// An icon drawn from its picture in the colours of the light that the windows are in.

#include <QIconEngine>
#include <QString>

namespace lirmeto::ui {

class DisegnatoreIcona : public QIconEngine {
public:
  explicit DisegnatoreIcona(QString percorso) : percorso_(std::move(percorso)) {}

  void paint(QPainter* pittore, const QRect& dove, QIcon::Mode modo, QIcon::State stato) override;
  QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override;
  [[nodiscard]] QIconEngine* clone() const override { return new DisegnatoreIcona(percorso_); }

private:
  QString percorso_; // without its extension
};

} // namespace lirmeto::ui
