#include <ui/comune/barra_ricerca.h>

#include <ui/comune/aspetto.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

namespace lirmeto::ui {

namespace {

QToolButton* Bottone(const QString& icona, const QString& spiegazione, QWidget* padre) {
  auto* bottone = new QToolButton(padre);
  bottone->setIcon(Icona(icona));
  bottone->setToolTip(spiegazione);
  bottone->setAutoRaise(true);
  bottone->setFocusPolicy(Qt::NoFocus);
  return bottone;
}

} // namespace

BarraRicerca::BarraRicerca(QWidget* padre) : QWidget(padre), casella_(new QLineEdit(this)), esito_(new QLabel(this)) {
  setObjectName(QStringLiteral("BarraRicerca"));
  setAttribute(Qt::WA_StyledBackground);
  casella_->setProperty("cerca", true);
  casella_->setPlaceholderText(QStringLiteral("Testo da cercare nelle righe"));
  casella_->setAccessibleName(QStringLiteral("Testo da cercare"));
  casella_->setClearButtonEnabled(true);
  casella_->setMinimumWidth(260);
  esito_->setMinimumWidth(150);
  auto* precedente = Bottone(QStringLiteral("precedente"), QStringLiteral("Precedente (Maiusc+F3)"), this);
  auto* successiva = Bottone(QStringLiteral("successivo"), QStringLiteral("Successiva (F3)"), this);
  auto* chiudi = Bottone(QStringLiteral("chiudi"), QStringLiteral("Chiudi (Esc)"), this);
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(8, 4, 4, 4);
  riga->addWidget(new QLabel(QStringLiteral("Cerca:"), this));
  riga->addWidget(casella_);
  riga->addWidget(precedente);
  riga->addWidget(successiva);
  riga->addWidget(esito_, 1);
  riga->addWidget(chiudi);
  connect(casella_, &QLineEdit::textChanged, this, &BarraRicerca::TestoCambiato);
  connect(precedente, &QToolButton::clicked, this, &BarraRicerca::Precedente);
  connect(successiva, &QToolButton::clicked, this, &BarraRicerca::Successiva);
  connect(chiudi, &QToolButton::clicked, this, &BarraRicerca::Chiudi);
  hide();
}

void BarraRicerca::Apri() {
  show();
  casella_->setFocus(Qt::ShortcutFocusReason);
  casella_->selectAll();
  emit TestoCambiato();
}

void BarraRicerca::Chiudi() {
  hide();
  emit Chiusa();
}

QString BarraRicerca::Testo() const {
  return casella_->text();
}

void BarraRicerca::MostraEsito(std::size_t attuale, std::size_t quante) {
  const QLocale italiano(QLocale::Italian);
  const QString totale = italiano.toString(static_cast<qulonglong>(quante));
  const QString righe = quante == 1 ? QStringLiteral("riga") : QStringLiteral("righe");
  if (casella_->text().isEmpty()) {
    esito_->clear();
  } else if (quante == 0) {
    esito_->setText(QStringLiteral("Nessuna riga"));
  } else if (attuale == 0) {
    esito_->setText(QStringLiteral("%1 %2").arg(totale, righe));
  } else {
    esito_->setText(
        QStringLiteral("%1 di %2 %3").arg(italiano.toString(static_cast<qulonglong>(attuale)), totale, righe));
  }
}

QString BarraRicerca::Esito() const {
  return esito_->text();
}

void BarraRicerca::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape) {
    Chiudi();
  } else if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
    evento->modifiers().testFlag(Qt::ShiftModifier) ? emit Precedente() : emit Successiva();
  } else {
    QWidget::keyPressEvent(evento);
  }
}

} // namespace lirmeto::ui
