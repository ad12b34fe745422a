#include "fotografo.h"

#include <ui/disegno/finestra_disegno.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/generazione/finestra_libretto_disegno.h>

#include <QApplication>
#include <QListView>
#include <QMouseEvent>

namespace lirmeto::foto {

bool Fotografo::Disegno(const std::string& file) {
  FormDisegno form(ambiente_);
  if (!form.Apri(file)) return false;
  ui::FinestraDisegno finestra(form);
  Mostra(finestra, 1240, 840);
  // The mouse stands near a point, so that the readout shows.
  QWidget& superficie = finestra.Pannello().Superficie();
  const QPointF posto(superficie.width() * 0.45, superficie.height() * 0.55);
  QMouseEvent mouse(QEvent::MouseMove, posto, superficie.mapToGlobal(posto), Qt::NoButton, Qt::NoButton, {});
  QApplication::processEvents();
  QApplication::sendEvent(&superficie, &mouse);
  return Salva(finestra, "disegno") && Righello(finestra) && Vuota();
}

// The ruler round the middle of the drawing, the fourth side under the mouse.
bool Fotografo::Righello(ui::FinestraDisegno& finestra) {
  QWidget& superficie = finestra.Pannello().Superficie();
  for (QAction* azione : finestra.findChildren<QAction*>())
    if (azione->text() == QLatin1String("Righello")) azione->setChecked(true);
  for (const QPointF& quota : {QPointF(0.2, 0.3), QPointF(0.7, 0.2), QPointF(0.8, 0.7), QPointF(0.3, 0.8)}) {
    const QPointF posto(superficie.width() * quota.x(), superficie.height() * quota.y());
    for (const QEvent::Type tipo : {QEvent::MouseMove, QEvent::MouseButtonPress}) {
      QMouseEvent mouse(tipo, posto, superficie.mapToGlobal(posto), Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(&superficie, &mouse);
    }
  }
  return Salva(finestra, "righello");
}

bool Fotografo::Vuota() {
  FormDisegno form(ambiente_);
  ui::FinestraDisegno finestra(form);
  Mostra(finestra, 900, 600);
  return Salva(finestra, "disegno_vuoto");
}

// The libretto from a drawing, over the old libretto beside it, with one line lit.
bool Fotografo::LibrettoDisegno(const std::string& file) {
  const std::string vecchio = file.substr(0, file.size() - 4) + ".TXT";
  if (!modello_.Avvia(ambiente_.disco.Esiste(vecchio) ? vecchio : std::string())) return false;
  ambiente_.sessione.NomeFileLibretto = file;
  DisegnoCondiviso disegno;
  LibrettoDaDisegno form(ambiente_, disegno);
  form.Form_Load();
  ui::FinestraLibrettoDisegno finestra(form);
  Mostra(finestra, 1440, 900);
  auto* linee = finestra.findChild<QListView*>(QStringLiteral("List1"));
  linee->setCurrentIndex(linee->model()->index(1, 0));
  return Salva(finestra, "libretto_disegno");
}

} // namespace lirmeto::foto
