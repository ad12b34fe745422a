#include <ui/libretto/striscia_campi.h>

#include <ui/comune/senza_barre.h>
#include <ui/comune/testo_qt.h>

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace lirmeto::ui {

namespace {

constexpr int LettereMinime = 5;
constexpr int LettereMassime = 34;
constexpr int LettereLibere = 24; // at least, of a note that ends the row
constexpr int Aria = 20;          // pixels of a box beside its letters

} // namespace

StrisciaCampi::StrisciaCampi(QWidget* padre)
    : QScrollArea(padre), dentro_(new QWidget(this)), riga_(new QHBoxLayout(dentro_)), vuota_(new QLabel(dentro_)) {
  setObjectName(QStringLiteral("StrisciaCampi"));
  dentro_->setObjectName(QStringLiteral("CampiRiga"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  riga_->setContentsMargins(10, 2, 10, 4);
  riga_->setSpacing(8);
  vuota_->setObjectName(QStringLiteral("Posto"));
  riga_->addWidget(vuota_);
  riga_->addStretch(1);
  setWidget(dentro_);
  while (posti_.size() < MassimeCaselle) Aggiungi();
  Pulisci();
}

void StrisciaCampi::Aggiungi() {
  Posto posto{new QWidget(dentro_), nullptr, nullptr, nullptr};
  posto.titolo = new QLabel(posto.insieme);
  posto.titolo->setTextFormat(Qt::PlainText);
  posto.titolo->setObjectName(QStringLiteral("Posto"));
  posto.casella = new QLineEdit(posto.insieme);
  posto.casella->setObjectName(QStringLiteral("Campo_%1").arg(posti_.size()));
  posto.casella->installEventFilter(this);
  RifiutaBarre(*posto.casella);
  posto.unita = new QLabel(posto.insieme);
  posto.unita->setObjectName(QStringLiteral("Posto"));
  auto* accanto = new QHBoxLayout;
  accanto->setSpacing(3);
  accanto->addWidget(posto.casella);
  accanto->addWidget(posto.unita);
  auto* colonna = new QVBoxLayout(posto.insieme);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(posto.titolo);
  colonna->addLayout(accanto);
  riga_->insertWidget(static_cast<int>(posti_.size()), posto.insieme);
  posti_.push_back(posto);
}

void StrisciaCampi::MostraRiga(std::size_t riga, std::string_view testo) {
  if (quale_ == riga && testo_ == testo) return;
  quale_ = riga;
  testo_ = testo;
  caselle_ = CaselleDi(testo);
  vuota_->setText(QStringLiteral("Questa riga si cambia nell'editor (Invio)"));
  Disponi();
}

void StrisciaCampi::Pulisci() {
  quale_.reset();
  testo_.clear();
  caselle_.clear();
  vuota_->setText(QStringLiteral("Selezionare una riga: qui si cambiano i suoi campi (F4)"));
  Disponi();
}

void StrisciaCampi::Disponi() {
  for (std::size_t i = 0; i < posti_.size(); ++i) {
    if (i < caselle_.size()) Riempi(i);
    posti_[i].insieme->setVisible(i < caselle_.size());
  }
  vuota_->setVisible(caselle_.empty());
  const int alta = fontMetrics().height() * 2 + 20;
  const bool scorre = dentro_->minimumSizeHint().width() > viewport()->width();
  setFixedHeight(alta + (scorre ? horizontalScrollBar()->sizeHint().height() : 0));
}

// Wide enough for what stands there, and for a little more.
void StrisciaCampi::Riempi(std::size_t quale) {
  const CasellaRiga& casella = caselle_[quale];
  const Posto& posto = posti_[quale];
  const QString nome = AQString(casella.nome);
  const QString unita = AQString(casella.unita);
  posto.titolo->setText(nome);
  posto.unita->setText(unita);
  posto.unita->setVisible(!unita.isEmpty());
  posto.casella->setAccessibleName(unita.isEmpty() ? nome : nome + QStringLiteral(" (%1)").arg(unita));
  posto.casella->setToolTip(QStringLiteral("%1: Invio cambia il campo, Esc lo lascia (F4)").arg(nome));
  constexpr int senzaLimite = 32767;
  posto.casella->setMaxLength(casella.lettere > 0 ? static_cast<int>(casella.lettere) : senzaLimite);
  Rimetti(quale);
  const bool libera = quale + 1 == caselle_.size() && casella.unita.empty() && casella.lettere == 0;
  const int lettere = std::clamp(static_cast<int>(std::max(casella.valore.size(), casella.lettere)) + 1,
                                 libera ? LettereLibere : LettereMinime, LettereMassime);
  const int larga = fontMetrics().horizontalAdvance(u'0') * lettere + Aria;
  posto.casella->setFixedWidth(std::max(larga, fontMetrics().horizontalAdvance(nome)));
}

void StrisciaCampi::Rimetti(std::size_t quale) {
  QLineEdit& casella = *posti_[quale].casella;
  casella.setText(AQString(caselle_[quale].valore));
  casella.setModified(false);
  casella.setCursorPosition(0);
  if (casella.hasFocus()) casella.selectAll();
}

bool StrisciaCampi::Entra() {
  if (caselle_.empty()) return false;
  posti_.front().casella->setFocus(Qt::ShortcutFocusReason);
  posti_.front().casella->selectAll();
  return true;
}

void StrisciaCampi::Prendi() {
  for (std::size_t i = 0; i < caselle_.size(); ++i) Prendi(i);
}

// The box shows what stands in the row until the row itself has changed.
void StrisciaCampi::Prendi(std::size_t quale) {
  if (quale >= caselle_.size() || !quale_ || !posti_[quale].casella->isModified()) return;
  const QString testo = posti_[quale].casella->text();
  Rimetti(quale);
  if (testo != AQString(caselle_[quale].valore)) emit Cambiato(*quale_, caselle_[quale].campo, testo);
}

bool StrisciaCampi::Tasto(std::size_t quale, int tasto) {
  switch (tasto) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    Prendi(quale);
    posti_[quale].casella->selectAll();
    return true;
  case Qt::Key_Escape:
    if (quale < caselle_.size()) Rimetti(quale);
    emit Lasciata();
    return true;
  case Qt::Key_Up:
  case Qt::Key_Down:
    Prendi(quale);
    emit Spostata(tasto == Qt::Key_Up ? -1 : 1);
    posti_[quale].casella->selectAll();
    return true;
  default:
    return false;
  }
}

// A box that is left for another one is taken; one whose window goes to the back is not.
bool StrisciaCampi::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto posto =
      std::find_if(posti_.begin(), posti_.end(), [oggetto](const Posto& uno) { return uno.casella == oggetto; });
  if (posto == posti_.end()) return QScrollArea::eventFilter(oggetto, evento);
  const auto quale = static_cast<std::size_t>(posto - posti_.begin());
  if (evento->type() == QEvent::KeyPress) return Tasto(quale, static_cast<QKeyEvent*>(evento)->key());
  if (evento->type() == QEvent::FocusIn) ensureWidgetVisible(posto->insieme);
  if (evento->type() == QEvent::FocusOut) {
    const Qt::FocusReason perche = static_cast<QFocusEvent*>(evento)->reason();
    if (perche != Qt::ActiveWindowFocusReason && perche != Qt::PopupFocusReason) Prendi(quale);
  }
  return QScrollArea::eventFilter(oggetto, evento);
}

} // namespace lirmeto::ui
