#include <ui/comune/riquadro_comuni.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/frecce_elenco.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr double Punti = 10; // of the rows

} // namespace

RiquadroComuni::RiquadroComuni(SceltaComune& modello, QWidget* padre)
    : QWidget(padre), modello_(modello), nome_(new QLineEdit(this)), codice_(new QLineEdit(this)),
      elenco_(new QListView(this)), scelto_(new QLabel(this)) {
  auto* testata = new QLabel(AQString(TestataComuni), this);
  testata->setFont(FontMonospazio(Punti));
  testata->setObjectName(QStringLiteral("Posto"));
  testata->setIndent(elenco_->frameWidth() + 3); // where the rows begin
  elenco_->setModel(&righe_);
  elenco_->setUniformItemSizes(true);
  elenco_->setFont(FontMonospazio(Punti));
  elenco_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  elenco_->setMinimumWidth(
      QFontMetrics(FontMonospazio(Punti)).horizontalAdvance(AQString(TestataComuni) + QStringLiteral("WWWW")));
  elenco_->setAccessibleName(QStringLiteral("Comuni"));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->addWidget(CreaCaselle());
  colonna->addWidget(testata);
  colonna->addWidget(elenco_, 1);
  Collega(*nome_, [this](std::string_view testo) { modello_.CambiaText1(testo); });
  Collega(*codice_, [this](std::string_view testo) { modello_.CambiaText2(testo); });
  connect(elenco_, &QListView::clicked, this, [this](const QModelIndex& posto) {
    modello_.Clic(static_cast<std::size_t>(posto.row()));
    Mostra();
  });
  connect(elenco_, &QListView::doubleClicked, this, [this](const QModelIndex& posto) {
    modello_.DoppioClic(static_cast<std::size_t>(posto.row()));
    emit Scelto();
  });
  connect(elenco_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& posto) {
    if (!posto.isValid() || posto.row() == modello_.Indice) return;
    modello_.Clic(static_cast<std::size_t>(posto.row())); // by the arrow keys
    Mostra();
  });
  Ricarica();
}

QWidget* RiquadroComuni::CreaCaselle() {
  auto* caselle = new QWidget(this);
  auto* riga = new QHBoxLayout(caselle);
  riga->setContentsMargins(0, 0, 0, 0);
  auto* titoloNome = new QLabel(QStringLiteral("&Nome"), this);
  auto* titoloCodice = new QLabel(QStringLiteral("&Codice"), this);
  titoloNome->setBuddy(nome_);
  titoloCodice->setBuddy(codice_);
  nome_->setObjectName(QStringLiteral("Text1"));
  nome_->setPlaceholderText(QStringLiteral("inizio del nome"));
  codice_->setObjectName(QStringLiteral("Text2"));
  codice_->setPlaceholderText(QStringLiteral("codice"));
  codice_->setMaximumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 10);
  scelto_->setObjectName(QStringLiteral("EtichettaPosizione"));
  scelto_->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 6);
  riga->addWidget(titoloNome);
  riga->addWidget(nome_, 1);
  riga->addSpacing(10);
  riga->addWidget(titoloCodice);
  riga->addWidget(codice_);
  riga->addWidget(scelto_);
  return caselle;
}

void RiquadroComuni::Collega(QLineEdit& casella, const std::function<void(std::string_view)>& cambia) {
  FrecceAllElenco(casella, *elenco_); // Enter is the window's, for its button
  connect(&casella, &QLineEdit::textEdited, this, [this, cambia](const QString& testo) {
    cambia(DaQString(testo));
    Mostra();
    elenco_->scrollTo(elenco_->currentIndex(), QAbstractItemView::PositionAtCenter);
  });
}

void RiquadroComuni::Ricarica() {
  QStringList righe;
  righe.reserve(static_cast<qsizetype>(modello_.List1.size()));
  for (const std::string& riga : modello_.List1) righe.append(AQString(riga));
  righe_.setStringList(righe);
  Mostra();
}

void RiquadroComuni::Mostra() {
  MettiTesto(*nome_, modello_.Text1);
  MettiTesto(*codice_, modello_.Text2);
  scelto_->setText(AQString(modello_.Etichetta));
  const QModelIndex posto = righe_.index(static_cast<int>(modello_.Indice));
  if (posto != elenco_->currentIndex()) elenco_->setCurrentIndex(posto);
  if (!posto.isValid()) elenco_->clearSelection();
}

} // namespace lirmeto::ui
