#pragma once
// A user of dialogs that come up one inside the other, and of the main window's menus.

#include <ui/tavolo.h>

#include <QAbstractButton>
#include <QAction>
#include <QMenuBar>

#include <functional>
#include <map>
#include <utility>

namespace lirmeto::prova {

// Plays the user in each dialog that comes up, by its name or its title, until all have had their turn.
class Utente {
public:
  using Gioco = std::function<void(QWidget&)>;
  explicit Utente(std::map<QString, Gioco> giochi) : giochi_(std::move(giochi)) {
    QObject::connect(&orologio_, &QTimer::timeout, [this] {
      QWidget* finestra = QApplication::activeModalWidget();
      if (finestra == nullptr) return;
      auto gioco = giochi_.find(finestra->objectName());
      if (gioco == giochi_.end()) gioco = giochi_.find(finestra->windowTitle());
      if (gioco == giochi_.end()) return;
      const Gioco questo = gioco->second;
      giochi_.erase(gioco);
      Dopo(0, [questo, finestra] { questo(*finestra); }); // a timer does not go on inside its own turn
    });
    orologio_.start(1);
  }
  [[nodiscard]] bool Finito() const { return giochi_.empty(); }

private:
  std::map<QString, Gioco> giochi_;
  QTimer orologio_;
};

inline void Premi(QWidget& finestra, const QString& testo) {
  for (auto* bottone : finestra.findChildren<QAbstractButton*>())
    if (bottone->text().remove(u'&') == testo || bottone->objectName() == testo) return bottone->click();
  qFatal("no such button: %s", qPrintable(testo));
}

inline void Scegli(Tavolo& tavolo, const QString& inizio) {
  for (QAction* azione : tavolo.finestra->menuBar()->findChildren<QAction*>())
    if (azione->text().remove(u'&').startsWith(inizio)) return azione->trigger();
  qFatal("no such entry: %s", qPrintable(inizio));
}

} // namespace lirmeto::prova
