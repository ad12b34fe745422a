#include <ui/comune/stile_finestre.h>

#include <ui/comune/tema.h>

#include <QStyleFactory>
#include <QStyleOption>

namespace lirmeto::ui {

namespace {

bool HaCornice(QStyle::PrimitiveElement elemento) {
  switch (elemento) {
  case QStyle::PE_Frame:
  case QStyle::PE_FrameLineEdit:
  case QStyle::PE_PanelLineEdit:
  case QStyle::PE_FrameGroupBox:
  case QStyle::PE_IndicatorCheckBox:
  case QStyle::PE_IndicatorItemViewItemCheck:
  case QStyle::PE_IndicatorRadioButton:
    return true;
  default:
    return false;
  }
}

} // namespace

StileFinestre::StileFinestre() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

// The style draws a frame in a darker tone of the window's colour, which a dark one does not have: it is told another.
void StileFinestre::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opzione, QPainter* pittore,
                                  const QWidget* oggetto) const {
  constexpr int quantoScurisce = 150;
  if (!HaCornice(elemento) || !TemaScuro()) return QProxyStyle::drawPrimitive(elemento, opzione, pittore, oggetto);
  auto* scritta = const_cast<QStyleOption*>(opzione); // its type, of which there are many, must stay
  const QPalette prima = scritta->palette;
  scritta->palette.setColor(QPalette::Window, ColoreTema(Tono::Cornice).lighter(quantoScurisce));
  QProxyStyle::drawPrimitive(elemento, opzione, pittore, oggetto);
  scritta->palette = prima;
}

} // namespace lirmeto::ui
