#pragma once
// The style of all windows; on dark ground its frames are lighter than what they enclose.

#include <QProxyStyle>

namespace lirmeto::ui {

class StileFinestre : public QProxyStyle {
  Q_OBJECT
public:
  StileFinestre();

  void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opzione, QPainter* pittore,
                     const QWidget* oggetto) const override;
};

} // namespace lirmeto::ui
