#include <ui/comune/piede_scelta.h>

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace lirmeto::ui {

PiedeScelta CreaPiedeScelta(const QString& conferma, QDialog& finestra) {
  auto* prendi = new QPushButton(conferma, &finestra);
  auto* chiudi = new QPushButton(QStringLiteral("Chiudi"), &finestra);
  prendi->setObjectName(QStringLiteral("Conferma"));
  chiudi->setObjectName(QStringLiteral("Chiudi"));
  prendi->setDefault(true);
  chiudi->setAutoDefault(false);
  QObject::connect(chiudi, &QPushButton::clicked, &finestra, &QDialog::reject);
  auto* riga = new QHBoxLayout;
  riga->addStretch(1);
  riga->addWidget(prendi);
  riga->addWidget(chiudi);
  return {riga, prendi};
}

} // namespace lirmeto::ui
