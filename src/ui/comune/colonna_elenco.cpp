#include <ui/comune/colonna_elenco.h>

#include <ui/comune/casella_con_titolo.h>

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace lirmeto::ui {

QWidget* ColonnaElenco(const QString& titolo, QListWidget& elenco) {
  auto* riquadro = new QWidget(elenco.parentWidget());
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(0, 0, 0, 0);
  elenco.setAccessibleName(titolo);
  elenco.setUniformItemSizes(true);
  colonna->addWidget(TitoloGruppo(titolo, riquadro));
  colonna->addWidget(&elenco, 1);
  return riquadro;
}

} // namespace lirmeto::ui
