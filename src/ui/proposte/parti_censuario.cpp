#include <ui/proposte/parti_censuario.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/verifiche/segni.h>

#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace lirmeto::ui {

namespace {

constexpr double Punti = 9; // size of the rows' letters
constexpr int RuoloDove = Qt::UserRole;
constexpr int RuoloRiga = Qt::UserRole + 1;

QString NomeDi(Severita severita) {
  const QString nome = AQString(std::string(NomeSeverita(severita)));
  return nome.left(1).toUpper() + nome.mid(1);
}

QString NomeDi(ElencoRilievi::Dove dove) {
  if (dove == ElencoRilievi::Dove::Composizione) return QStringLiteral("particella");
  return dove == ElencoRilievi::Dove::Memo ? QStringLiteral("memo") : QString();
}

} // namespace

QToolButton* CreaPulsante(const PulsanteForm& pulsante, QWidget* padre, const std::function<void(int)>& premi) {
  auto* bottone = new QToolButton(padre);
  bottone->setObjectName(QStringLiteral("Pulsante_%1").arg(pulsante.indice));
  bottone->setIcon(Icona(AQString(pulsante.icona)));
  bottone->setText(AQString(pulsante.didascalia));
  bottone->setToolTip(AQString(pulsante.spiegazione));
  bottone->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bottone->setAutoRaise(true);
  QObject::connect(bottone, &QToolButton::clicked, padre, [premi, indice = pulsante.indice] { premi(indice); });
  return bottone;
}

BarraACapo* CreaPulsantiera(std::span<const PulsanteForm> pulsanti, QWidget* padre,
                            const std::function<void(int)>& premi) {
  auto* barra = new BarraACapo(padre);
  for (const PulsanteForm& pulsante : pulsanti) {
    QToolButton* bottone = CreaPulsante(pulsante, barra, premi);
    bottone->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    barra->Aggiungi(bottone);
  }
  return barra;
}

// --- rows

ElencoCensuario::ElencoCensuario(const QString& titolo, const ListaRighe& righe, QWidget* padre)
    : QWidget(padre), righe_(righe), modello_(righe, FontMonospazio(Punti), this), titolo_(TitoloGruppo(titolo, this)),
      vista_(new QListView(this)) {
  Imposta(titolo);
}

ElencoCensuario::ElencoCensuario(const QString& titolo, ElencoRighe& righe, QWidget* padre)
    : QWidget(padre), righe_(righe.Righe()), conSelezione_(&righe),
      modello_(righe.Righe(), FontMonospazio(Punti), this), titolo_(TitoloGruppo(titolo, this)),
      vista_(new QListView(this)) {
  Imposta(titolo);
  vista_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  connect(vista_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { PrendiSelezione(); });
}

void ElencoCensuario::Imposta(const QString& titolo) {
  titoloBase_ = titolo;
  vista_->setModel(&modello_);
  vista_->setFont(FontMonospazio(Punti));
  vista_->setAccessibleName(titolo);
  vista_->setUniformItemSizes(true);
  vista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(2);
  colonna->addWidget(titolo_);
  colonna->addWidget(vista_, 1);
  connect(vista_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& indice) {
    if (indice.isValid()) emit Corrente(AQString(righe_[static_cast<std::size_t>(indice.row())]));
  });
  connect(vista_, &QListView::doubleClicked, this,
          [this](const QModelIndex& indice) { emit DoppioClic(static_cast<std::size_t>(indice.row())); });
}

void ElencoCensuario::Ricarica() {
  const int corrente = vista_->currentIndex().row();
  const int alto = vista_->verticalScrollBar()->value();
  {
    const QSignalBlocker fermo(vista_->selectionModel());
    modello_.Ricarica();
    if (corrente >= 0 && corrente < modello_.rowCount())
      vista_->selectionModel()->setCurrentIndex(modello_.index(corrente), QItemSelectionModel::NoUpdate);
    for (std::size_t i = 0; conSelezione_ != nullptr && i < conSelezione_->Quante(); ++i)
      if (conSelezione_->Selezionata(i))
        vista_->selectionModel()->select(modello_.index(static_cast<int>(i)), QItemSelectionModel::Select);
  }
  vista_->verticalScrollBar()->setValue(alto);
  titolo_->setText(QStringLiteral("%1 (%2)").arg(titoloBase_).arg(righe_.size()));
}

void ElencoCensuario::VaiA(std::size_t riga) {
  if (riga < righe_.size()) vista_->setCurrentIndex(modello_.index(static_cast<int>(riga)));
}

void ElencoCensuario::PrendiSelezione() {
  for (std::size_t i = 0; i < conSelezione_->Quante(); ++i)
    conSelezione_->Seleziona(i, vista_->selectionModel()->isSelected(modello_.index(static_cast<int>(i))));
  emit SelezioneCambiata();
}

// --- findings

ElencoRilievi::ElencoRilievi(QWidget* padre) : QListWidget(padre) {
  setObjectName(QStringLiteral("Rilievi"));
  setAccessibleName(QStringLiteral("Rilievi"));
  setUniformItemSizes(true);
  connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem* voce) {
    if (voce->data(RuoloRiga).isValid())
      emit Scelto(static_cast<Dove>(voce->data(RuoloDove).toInt()), voce->data(RuoloRiga).toULongLong());
  });
}

QSize ElencoRilievi::sizeHint() const {
  constexpr int righe = 4;
  return {400, righe * (fontMetrics().height() + 4) + 2 * frameWidth()};
}

void ElencoRilievi::Mostra(const std::vector<Segnalazione>& form, const std::vector<Segnalazione>& composizione,
                           const std::vector<Segnalazione>& memo) {
  clear();
  Aggiungi(Dove::Form, form);
  Aggiungi(Dove::Composizione, composizione);
  Aggiungi(Dove::Memo, memo);
  if (count() == 0) addItem(QStringLiteral("Nessun rilievo"));
}

// More than a few dozen nobody reads.
void ElencoRilievi::Aggiungi(Dove dove, const std::vector<Segnalazione>& rilievi) {
  constexpr std::size_t massimi = 50;
  for (std::size_t i = 0; i < std::min(rilievi.size(), massimi); ++i) {
    const Segnalazione& rilievo = rilievi[i];
    QString testo = NomeDi(rilievo.regola->severita);
    if (rilievo.riga) testo += QStringLiteral(", %1 riga %2").arg(NomeDi(dove)).arg(*rilievo.riga + 1);
    testo += QStringLiteral(": ") + AQString(Testo(rilievo, 1));
    auto* voce = new QListWidgetItem(IconaSegno(rilievo.regola->severita), testo, this);
    voce->setData(RuoloDove, static_cast<int>(dove));
    if (rilievo.riga) voce->setData(RuoloRiga, QVariant::fromValue<qulonglong>(*rilievo.riga));
  }
  if (rilievi.size() > massimi) addItem(QStringLiteral("... e altri %1").arg(rilievi.size() - massimi));
}

// --- the parcel lit

EvidenzaParticella::EvidenzaParticella(GraficaSuperficie& superficie) : QWidget(&superficie), superficie_(superficie) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setGeometry(superficie.rect());
  superficie.installEventFilter(this);
  connect(&superficie, &GraficaSuperficie::Ridisegnata, this, qOverload<>(&QWidget::update));
}

void EvidenzaParticella::Illumina(std::vector<LineaGrafica> lati) {
  lati_ = std::move(lati);
  update();
}

bool EvidenzaParticella::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Resize) setGeometry(superficie_.rect());
  return QWidget::eventFilter(oggetto, evento);
}

void EvidenzaParticella::paintEvent(QPaintEvent* /*evento*/) {
  constexpr double spessore = 5;
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(QPen(ColoreTema(Tono::Particella), spessore, Qt::SolidLine, Qt::RoundCap));
  for (const LineaGrafica& lato : lati_)
    pittore.drawLine(superficie_.Posto(lato.X1, lato.Y1), superficie_.Posto(lato.X2, lato.Y2));
}

} // namespace lirmeto::ui
