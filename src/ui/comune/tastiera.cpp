#include <ui/comune/tastiera.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace lirmeto::ui {

namespace {

using Giro = std::vector<QWidget*>;

// --- the order of the eye

void Raccogli(QWidget& widget, Giro& giro);

void Raccogli(QLayout& piano, Giro& giro) {
  std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> parti; // place, part
  auto* griglia = qobject_cast<QGridLayout*>(&piano);
  for (int i = 0; i < piano.count(); ++i) {
    std::pair<int, int> posto{i, 0};
    int altezza = 0;
    int larghezza = 0;
    if (griglia != nullptr) griglia->getItemPosition(i, &posto.first, &posto.second, &altezza, &larghezza);
    parti.emplace_back(posto, piano.itemAt(i));
  }
  std::stable_sort(parti.begin(), parti.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& [posto, parte] : parti) {
    if (parte->widget() != nullptr) Raccogli(*parte->widget(), giro);
    if (parte->layout() != nullptr) Raccogli(*parte->layout(), giro);
  }
}

template <typename Contenitore>
void RaccogliPagine(const Contenitore& contenitore, Giro& giro) {
  for (int i = 0; i < contenitore.count(); ++i) Raccogli(*contenitore.widget(i), giro);
}

// Labels come too: they are the captions of what follows them.
void Raccogli(QWidget& widget, Giro& giro) {
  if (const auto* area = qobject_cast<QScrollArea*>(&widget)) {
    if (area->widget() != nullptr) Raccogli(*area->widget(), giro);
  } else if (const auto* divisa = qobject_cast<QSplitter*>(&widget)) {
    RaccogliPagine(*divisa, giro);
  } else if (const auto* pila = qobject_cast<QStackedWidget*>(&widget)) {
    RaccogliPagine(*pila, giro);
  } else if (const auto* schede = qobject_cast<QTabWidget*>(&widget)) {
    giro.push_back(schede->tabBar());
    if (schede->cornerWidget() != nullptr) Raccogli(*schede->cornerWidget(), giro);
    RaccogliPagine(*schede, giro);
  } else if (const auto* barra = qobject_cast<QToolBar*>(&widget)) {
    for (QAction* voce : barra->actions())
      if (QWidget* parte = barra->widgetForAction(voce)) Raccogli(*parte, giro);
  } else if ((widget.focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QLabel*>(&widget) != nullptr) {
    giro.push_back(&widget);
  } else if (widget.layout() != nullptr) {
    Raccogli(*widget.layout(), giro);
  }
}

Giro Visti(QWidget& finestra) {
  Giro giro;
  if (finestra.layout() != nullptr)
    Raccogli(*finestra.layout(), giro);
  else
    Raccogli(finestra, giro);
  return giro;
}

// --- letters

struct Didascalia {
  QString testo;
  std::function<void(const QString&)> metti;
  bool casella;
};

bool PrendeTesto(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
}

// Words of the program and not of the act: units, counts and faults have names of their own in the style.
bool EDidascalia(const QLabel& etichetta) {
  const QString nome = etichetta.objectName();
  return (nome.isEmpty() || nome == QStringLiteral("TitoloGruppo")) && !etichetta.text().isEmpty() &&
         !Qt::mightBeRichText(etichetta.text());
}

void AbbinaEtichette(const Giro& giro) {
  for (std::size_t i = 0; i + 1 < giro.size(); ++i) {
    auto* etichetta = qobject_cast<QLabel*>(giro[i]);
    if (etichetta != nullptr && etichetta->buddy() == nullptr && EDidascalia(*etichetta) && PrendeTesto(*giro[i + 1]))
      etichetta->setBuddy(giro[i + 1]);
  }
}

// The buttons of a bar are left out: a change of their action would take the letter off again.
bool MostraTesto(const QAbstractButton& bottone) {
  const auto* strumento = qobject_cast<const QToolButton*>(&bottone);
  if (strumento == nullptr) return true;
  return strumento->defaultAction() == nullptr &&
         (strumento->toolButtonStyle() != Qt::ToolButtonIconOnly || strumento->icon().isNull());
}

std::vector<Didascalia> Didascalie(const QWidget& finestra, const Giro& giro) {
  std::vector<Didascalia> didascalie;
  QSet<const QWidget*> chiamate; // by a label
  for (QWidget* widget : giro) {
    auto* etichetta = qobject_cast<QLabel*>(widget);
    if (etichetta == nullptr || etichetta->buddy() == nullptr || !etichetta->isVisibleTo(&finestra)) continue;
    chiamate.insert(etichetta->buddy());
    didascalie.push_back({etichetta->text(), [etichetta](const QString& testo) { etichetta->setText(testo); }, true});
  }
  for (QWidget* widget : giro) {
    auto* bottone = qobject_cast<QAbstractButton*>(widget);
    if (bottone == nullptr || !bottone->isVisibleTo(&finestra) || chiamate.contains(bottone) || !MostraTesto(*bottone))
      continue;
    didascalie.push_back({bottone->text(), [bottone](const QString& testo) { bottone->setText(testo); }, false});
  }
  std::stable_partition(didascalie.begin(), didascalie.end(), [](const Didascalia& una) { return una.casella; });
  return didascalie;
}

// Places of the letters that may be underlined, those that begin a word first.
std::vector<qsizetype> Posti(const QString& testo, const QSet<QChar>& prese) {
  std::vector<qsizetype> iniziali;
  std::vector<qsizetype> altre;
  for (qsizetype i = 0; i < testo.size(); ++i) {
    const QChar lettera = testo[i].toUpper();
    const bool buona = (lettera >= u'A' && lettera <= u'Z') || (lettera >= u'0' && lettera <= u'9');
    if (buona && !prese.contains(lettera)) (i == 0 || !testo[i - 1].isLetterOrNumber() ? iniziali : altre).push_back(i);
  }
  iniziali.insert(iniziali.end(), altre.begin(), altre.end());
  return iniziali;
}

// As many captions as can have a letter get one: a caption may push another one on to a letter that is still free.
class Assegnazione {
public:
  Assegnazione(const std::vector<Didascalia>& didascalie, const QSet<QChar>& prese) : didascalie_(didascalie) {
    for (const Didascalia& didascalia : didascalie) posti_.push_back(Posti(didascalia.testo, prese));
    for (std::size_t i = 0; i < didascalie.size(); ++i) {
      provate_.clear();
      (void)Trova(i);
    }
  }

  // Letter, caption and its place there.
  [[nodiscard]] const QMap<QChar, std::pair<std::size_t, qsizetype>>& Lettere() const { return lettere_; }

private:
  [[nodiscard]] bool Trova(std::size_t quale) {
    for (const qsizetype posto : posti_[quale]) {
      const QChar lettera = didascalie_[quale].testo[posto].toUpper();
      if (provate_.contains(lettera)) continue;
      provate_.insert(lettera);
      if (lettere_.contains(lettera) && !Trova(lettere_[lettera].first)) continue;
      lettere_[lettera] = {quale, posto};
      return true;
    }
    return false;
  }

  const std::vector<Didascalia>& didascalie_;
  std::vector<std::vector<qsizetype>> posti_;
  QMap<QChar, std::pair<std::size_t, qsizetype>> lettere_;
  QSet<QChar> provate_;
};

} // namespace

void OrdinaTab(QWidget& finestra) {
  for (QScrollArea* area : finestra.findChildren<QScrollArea*>())
    area->setFocusPolicy(Qt::NoFocus); // what it holds has
  Giro giro = Visti(finestra);
  std::erase_if(giro, [](const QWidget* widget) { return (widget->focusPolicy() & Qt::TabFocus) == 0; });
  for (std::size_t i = 1; i < giro.size(); ++i) QWidget::setTabOrder(giro[i - 1], giro[i]);
}

void AssegnaMnemoniche(QWidget& finestra, const QSet<QChar>& prese) {
  const Giro giro = Visti(finestra);
  AbbinaEtichette(giro);
  std::vector<Didascalia> didascalie = Didascalie(finestra, giro);
  QSet<QChar> occupate = prese;
  for (const Didascalia& didascalia : didascalie)
    if (const qsizetype segno = didascalia.testo.indexOf(u'&'); segno >= 0 && segno + 1 < didascalia.testo.size())
      occupate.insert(didascalia.testo[segno + 1].toUpper());
  std::erase_if(didascalie, [](const Didascalia& una) { return una.testo.contains(u'&'); });
  const Assegnazione assegnazione(didascalie, occupate);
  for (const auto& [quale, posto] : assegnazione.Lettere())
    didascalie[quale].metti(QString(didascalie[quale].testo).insert(posto, u'&'));
}

} // namespace lirmeto::ui
