#include <ui/comune/menu_elenchi.h>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMap>
#include <QShortcut>

#include <algorithm>

namespace lirmeto::ui {

namespace {

bool DiUnaScelta(const QWidget& vista) {
  for (const QObject* sopra = vista.parent(); sopra != nullptr; sopra = sopra->parent())
    if (qobject_cast<const QComboBox*>(sopra) != nullptr) return true;
  return false;
}

void CopiaRigheScelte(const QAbstractItemView& vista) {
  QModelIndexList scelte = vista.selectionModel()->selectedIndexes();
  if (scelte.isEmpty() && vista.currentIndex().isValid()) scelte.append(vista.currentIndex());
  QMap<int, QMap<int, QString>> righe; // by row and column
  for (const QModelIndex& cella : scelte) righe[cella.row()][cella.column()] = cella.data().toString();
  QStringList testi;
  testi.reserve(righe.size());
  for (const auto& riga : righe) testi.append(QStringList(riga.values()).join(u'\t'));
  if (!testi.isEmpty()) QGuiApplication::clipboard()->setText(testi.join(u'\n'));
}

// Whether the keys belong to a command of the whole window.
bool Occupati(const QWidget& finestra, QKeySequence::StandardKey tasti) {
  const auto sue = finestra.findChildren<QAction*>();
  const auto scorciatoie = finestra.findChildren<QShortcut*>();
  return std::any_of(sue.begin(), sue.end(),
                     [tasti](const QAction* una) {
                       return una->shortcutContext() != Qt::WidgetShortcut &&
                              una->shortcut().matches(tasti) == QKeySequence::ExactMatch;
                     }) ||
         std::any_of(scorciatoie.begin(), scorciatoie.end(), [tasti](const QShortcut* una) {
           return una->context() != Qt::WidgetShortcut && una->key().matches(tasti) == QKeySequence::ExactMatch;
         });
}

QAction* Voce(QAbstractItemView& vista, const QString& testo, QKeySequence::StandardKey tasti) {
  auto* voce = new QAction(testo, &vista);
  if (!Occupati(*vista.window(), tasti)) voce->setShortcuts(tasti);
  voce->setShortcutContext(Qt::WidgetShortcut);
  vista.addAction(voce);
  return voce;
}

} // namespace

void DaiMenuAgliElenchi(QWidget& finestra) {
  for (QAbstractItemView* vista : finestra.findChildren<QAbstractItemView*>()) {
    if (vista->contextMenuPolicy() != Qt::DefaultContextMenu || vista->model() == nullptr || DiUnaScelta(*vista) ||
        qobject_cast<QHeaderView*>(vista) != nullptr)
      continue;
    vista->setContextMenuPolicy(Qt::ActionsContextMenu);
    QObject::connect(Voce(*vista, QStringLiteral("&Copia"), QKeySequence::Copy), &QAction::triggered, vista,
                     [vista] { CopiaRigheScelte(*vista); });
    const auto modo = vista->selectionMode();
    if (modo == QAbstractItemView::ExtendedSelection || modo == QAbstractItemView::MultiSelection)
      QObject::connect(Voce(*vista, QStringLiteral("&Seleziona tutto"), QKeySequence::SelectAll), &QAction::triggered,
                       vista, &QAbstractItemView::selectAll);
  }
}

} // namespace lirmeto::ui
