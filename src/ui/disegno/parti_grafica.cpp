#include <ui/disegno/parti_grafica.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/disegno/grafica_superficie.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>

namespace lirmeto::ui {

QAction* AggiungiRighello(BarraACapo& barra, GraficaSuperficie& superficie, const std::function<void(bool)>& accendi) {
  QAction* righello = barra.addAction(Icona(QStringLiteral("righello")), QStringLiteral("Righello"));
  righello->setCheckable(true);
  righello->setToolTip(QStringLiteral("Misura distanza, direzione e area fra i punti su cui si fa clic"));
  QObject::connect(righello, &QAction::toggled, &superficie, [&superficie, accendi](bool acceso) {
    accendi(acceso);
    superficie.setFocus();
  });
  QObject::connect(&superficie, &GraficaSuperficie::RighelloLasciato, righello,
                   [righello] { righello->setChecked(false); });
  return righello;
}

QLayout* PiedeGrafica(QLabel& posto, QLabel& conteggi) {
  posto.setObjectName(QStringLiteral("PostoMouse"));
  posto.setFont(FontMonospazio(9));
  conteggi.setObjectName(QStringLiteral("Posto"));
  auto* piede = new QHBoxLayout;
  piede->setContentsMargins(10, 4, 10, 4);
  piede->addWidget(&posto, 1);
  piede->addWidget(&conteggi);
  return piede;
}

} // namespace lirmeto::ui
