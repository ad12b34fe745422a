#include <ui/comune/colonna_elenco.h>

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace lirmeto::ui {

QWidget* ColonnaElenco(const QString& titolo, QListWidget& elenco) {
  auto* riquadro = new QWidget(elenco.parentWidget());
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(0, 0, 0, 0);
  auto* sopra = new QLabel(titolo, riquadro);
  sopra->setObjectName(QStringLiteral("TitoloGruppo"));
  elenco.setAccessibleName(titolo);
  elenco.setUniformItemSizes(true);
  colonna->addWidget(sopra);
  colonna->addWidget(&elenco, 1);
  return riquadro;
}

} // namespace lirmeto::ui
