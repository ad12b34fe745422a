#include <ui/fiduciali/finestra_elco_pf_griglia.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr int RigheMisurate = 200; // by which the columns get their width

} // namespace

FinestraElcoPfGriglia::FinestraElcoPfGriglia(KR_ElcoPfGriglia& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), righe_(modello), tabella_(new QTableView(this)), cerca_(new QLineEdit(this)),
      totale_(new QLabel(this)), invito_(new QLabel(this)) {
  setWindowTitle(QStringLiteral("Punti Fiduciali"));
  PreparaTabella();
  invito_->setObjectName(QStringLiteral("Avviso"));
  invito_->setText(QStringLiteral("Di questo comune non è installata la TAF, o non ha punti: «Importa TAF e Misurate» "
                                  "la scarica."));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addLayout(CreaTestata());
  colonna->addWidget(invito_);
  colonna->addWidget(tabella_, 1);
  colonna->addLayout(CreaPiede());
  Mostra();
  AdattaAlloSchermo(*this, 1180, 600);
}

QHBoxLayout* FinestraElcoPfGriglia::CreaTestata() {
  auto* testata = new QHBoxLayout;
  testata->setSpacing(18);
  for (const std::string& testo : {modello_.Label1(), modello_.Label2()}) {
    auto* etichetta = new QLabel(AQString(testo), this);
    etichetta->setTextFormat(Qt::PlainText);
    testata->addWidget(etichetta);
  }
  testata->addWidget(totale_);
  testata->addStretch(1);
  auto* titolo = new QLabel(QStringLiteral("&Cerca"), this);
  titolo->setBuddy(cerca_);
  cerca_->setProperty("cerca", true);
  cerca_->setObjectName(QStringLiteral("Text1"));
  cerca_->setClearButtonEnabled(true);
  cerca_->setPlaceholderText(QStringLiteral("in tutte le colonne"));
  cerca_->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 18);
  testata->addWidget(titolo);
  testata->addWidget(cerca_);
  connect(cerca_, &QLineEdit::textChanged, this,
          [this](const QString& testo) { Cambia([&] { modello_.Filtra(DaQString(testo)); }); });
  return testata;
}

void FinestraElcoPfGriglia::PreparaTabella() {
  tabella_->setModel(&righe_);
  tabella_->setObjectName(QStringLiteral("Tabella"));
  tabella_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella_->setSelectionMode(QAbstractItemView::ContiguousSelection);
  tabella_->setAlternatingRowColors(true);
  tabella_->setWordWrap(false);
  tabella_->setContextMenuPolicy(Qt::ActionsContextMenu);
  tabella_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  tabella_->horizontalHeader()->setResizeContentsPrecision(RigheMisurate);
  tabella_->horizontalHeader()->setSortIndicatorShown(true);
  tabella_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  tabella_->horizontalHeader()->setSectionsClickable(true);
  connect(tabella_->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int colonna) {
    Cambia([&] { modello_.Ordina(static_cast<std::size_t>(colonna)); });
    tabella_->horizontalHeader()->setSortIndicator(colonna,
                                                   modello_.Crescente() ? Qt::AscendingOrder : Qt::DescendingOrder);
  });
  connect(tabella_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &FinestraElcoPfGriglia::PrendiSelezione);
  connect(tabella_, &QTableView::doubleClicked, this, &FinestraElcoPfGriglia::ApriGrafica);
}

// Each command is a button and an entry of the table's own menu.
QHBoxLayout* FinestraElcoPfGriglia::CreaPiede() {
  auto* piede = new QHBoxLayout;
  const auto aggiungi = [&](const char* nome, const QString& icona, const QString& testo, const QKeySequence& tasti,
                            const std::function<void()>& comando) {
    auto* bottone = new QPushButton(Icona(icona), testo, this);
    bottone->setObjectName(QString::fromLatin1(nome));
    bottone->setAutoDefault(false);
    connect(bottone, &QPushButton::clicked, this, comando);
    QAction* voce = tabella_->addAction(Icona(icona), testo);
    voce->setShortcut(tasti);
    voce->setShortcutContext(Qt::WidgetShortcut);
    connect(voce, &QAction::triggered, this, comando);
    piede->addWidget(bottone);
  };
  aggiungi("Grafica", QStringLiteral("fiduciali"), QStringLiteral("Grafica"), QKeySequence(Qt::Key_Return),
           [this] { ApriGrafica(); });
  aggiungi("Stampa", QStringLiteral("stampa"), QStringLiteral("Stampa"), QKeySequence::Print,
           [this] { modello_.Stampa(); });
  aggiungi("Copia", QStringLiteral("copia"), QStringLiteral("Copia"), QKeySequence::Copy, [this] { modello_.Copia(); });
  aggiungi("Monografie", QStringLiteral("importa"), QStringLiteral("Monografie: Importa TAF e Misurate"), {},
           [this] { Cambia([&] { modello_.Monografie(); }); });
  piede->addStretch(1);
  auto* chiudi = new QPushButton(QStringLiteral("Chiudi"), this);
  chiudi->setObjectName(QStringLiteral("Chiudi"));
  chiudi->setAutoDefault(false);
  connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
  piede->addWidget(chiudi);
  return piede;
}

void FinestraElcoPfGriglia::Cambia(const std::function<void()>& cambia) {
  righe_.Cambia(cambia);
  Mostra();
}

void FinestraElcoPfGriglia::PrendiSelezione() {
  const QModelIndexList scelte = tabella_->selectionModel()->selectedRows();
  if (scelte.isEmpty()) return modello_.SelezionaNessuna();
  const auto [prima, ultima] = std::minmax_element(
      scelte.begin(), scelte.end(), [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
  modello_.Seleziona(static_cast<std::size_t>(prima->row()), static_cast<std::size_t>(ultima->row()));
}

void FinestraElcoPfGriglia::ApriGrafica() {
  modello_.Grafica();
  if (modello_.Chiusa) accept();
}

void FinestraElcoPfGriglia::Mostra() {
  totale_->setText(AQString(modello_.Label3()));
  invito_->setVisible(modello_.Tabella().punti.empty());
  tabella_->resizeColumnsToContents();
}

} // namespace lirmeto::ui
