#include <ui/libretto/pannello_pulsanti.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/testo_qt.h>
#include <ui/libretto/menu_principale.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace lirmeto::ui {

namespace {

constexpr const char* Indice = "indice"; // property of a button: its place in the array

QStringList Gruppi() {
  QStringList gruppi;
  for (const Pulsante& pulsante : Pulsanti()) gruppi.append(AQString(pulsante.gruppo));
  gruppi.removeDuplicates();
  return gruppi;
}

} // namespace

PannelloPulsanti::PannelloPulsanti(Disponibile disponibile, QWidget* padre)
    : QScrollArea(padre), disponibile_(std::move(disponibile)) {
  setObjectName(QStringLiteral("PannelloPulsanti"));
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* interno = new QWidget;
  interno->setObjectName(QStringLiteral("InternoPulsanti"));
  auto* colonna = new QVBoxLayout(interno);
  colonna->setContentsMargins(8, 2, 8, 6);
  colonna->setSpacing(0);
  for (const QString& gruppo : Gruppi()) AggiungiGruppo(*colonna, gruppo);
  colonna->addStretch(1);
  setWidget(interno);
  setMinimumWidth(interno->sizeHint().width() + verticalScrollBar()->sizeHint().width());
}

void PannelloPulsanti::AggiungiGruppo(QVBoxLayout& colonna, const QString& titolo) {
  colonna.addWidget(TitoloGruppo(titolo, this));
  QHBoxLayout* figure = nullptr;
  for (const Pulsante& pulsante : Pulsanti()) {
    if (AQString(pulsante.gruppo) != titolo) continue;
    QToolButton* bottone = CreaBottone(pulsante);
    if (!pulsante.didascalia.empty()) {
      colonna.addWidget(bottone);
      continue;
    }
    if (figure == nullptr) figure = new QHBoxLayout;
    figure->addWidget(bottone);
  }
  if (figure == nullptr) return;
  figure->addStretch(1);
  colonna.addLayout(figure);
}

QToolButton* PannelloPulsanti::CreaBottone(const Pulsante& pulsante) {
  auto* bottone = new QToolButton(this);
  const bool figura = pulsante.didascalia.empty();
  bottone->setText(AQString(pulsante.didascalia));
  bottone->setIcon(Icona(NomeIconaPulsante(pulsante.indice)));
  bottone->setIconSize(QSize(18, 18));
  bottone->setAutoRaise(true);
  bottone->setFocusPolicy(Qt::TabFocus);
  bottone->setToolButtonStyle(figura ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
  bottone->setSizePolicy(figura ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
  bottone->setProperty(Indice, pulsante.indice);
  const QString tasti = Scorciatoia(pulsante.comando).toString(QKeySequence::NativeText);
  const QString effetto = AQString(EffettoDi(pulsante.comando));
  bottone->setToolTip(tasti.isEmpty() ? effetto : QStringLiteral("%1 (%2)").arg(effetto, tasti));
  bottone->setEnabled(disponibile_(pulsante.comando));
  bottone->installEventFilter(this);
  const Comando comando = pulsante.comando;
  connect(bottone, &QToolButton::clicked, this, [this, comando] { emit Premuto(comando); });
  bottoni_[pulsante.indice] = bottone;
  return bottone;
}

void PannelloPulsanti::MostraProvincia(const QString& sigla) {
  QToolButton* bottone = Bottone(PulsanteProvincia);
  if (bottone == nullptr) return;
  const auto tutti = Pulsanti();
  const auto questo =
      std::find_if(tutti.begin(), tutti.end(), [](const Pulsante& uno) { return uno.indice == PulsanteProvincia; });
  bottone->setText(sigla.isEmpty() ? AQString(questo->didascalia)
                                   : AQString(questo->didascalia) + QStringLiteral("  [%1]").arg(sigla));
}

QToolButton* PannelloPulsanti::Bottone(int indice) const {
  const auto posto = bottoni_.find(indice);
  return posto == bottoni_.end() ? nullptr : posto->second;
}

bool PannelloPulsanti::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Enter) emit PuntatoreSopra(oggetto->property(Indice).toInt());
  return QScrollArea::eventFilter(oggetto, evento);
}

} // namespace lirmeto::ui
