#include <ui/libretto/pannello_strumenti.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/testo_qt.h>

#include <QGraphicsDropShadowEffect>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

PannelloStrumenti::PannelloStrumenti(QWidget* padre) : QFrame(padre) {
  setObjectName(QStringLiteral("PannelloStrumenti"));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 8, 10, 10);
  colonna->setSpacing(2);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Utilità Catastali"), this));
  for (const Strumento& strumento : Strumenti()) {
    auto* bottone = new QPushButton(this);
    bottone->setText(AQString(strumento.didascalia));
    bottone->setObjectName(AQString(strumento.tag));
    bottone->setToolTip(AQString(EffettoDi(strumento.comando)));
    bottone->setFlat(true);
    bottone->setFocusPolicy(Qt::TabFocus);
    bottone->setAutoDefault(true); // Enter presses it, as the blank does
    connect(bottone, &QPushButton::clicked, this, [this, tag = strumento.tag] { emit Premuto(tag); });
    colonna->addWidget(bottone);
  }
  auto* ombra = new QGraphicsDropShadowEffect(this);
  ombra->setBlurRadius(18);
  ombra->setOffset(0, 3);
  ombra->setColor(ColoreTema(Tono::Ombra));
  setGraphicsEffect(ombra);
  hide();
}

void PannelloStrumenti::Entra() {
  findChild<QPushButton*>()->setFocus(Qt::TabFocusReason);
}

void PannelloStrumenti::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() != Qt::Key_Escape) return QFrame::keyPressEvent(evento);
  emit Lasciato();
}

} // namespace lirmeto::ui
