#include <ui/comune/prepara_finestra.h>

#include <ui/comune/menu_elenchi.h>
#include <ui/comune/senza_barre.h>
#include <ui/comune/tastiera.h>

#include <QLineEdit>
#include <QVariant>

namespace lirmeto::ui {

void PreparaFinestra(QWidget& finestra) {
  AssegnaMnemoniche(finestra);
  OrdinaTab(finestra);
  DaiMenuAgliElenchi(finestra);
  for (QLineEdit* casella : finestra.findChildren<QLineEdit*>())
    if (!casella->isReadOnly() && casella->validator() == nullptr && !casella->property("cerca").toBool())
      RifiutaBarre(*casella);
}

} // namespace lirmeto::ui
