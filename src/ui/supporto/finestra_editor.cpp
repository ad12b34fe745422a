#include <ui/supporto/finestra_editor.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/barra_ricerca.h>
#include <ui/comune/casella_testo.h>
#include <ui/comune/testo_qt.h>
#include <ui/libretto/riga_di_stato.h>

#include <base/testo.h>

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QShortcut>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace lirmeto::ui {

namespace {

constexpr std::array<int, 3> Dimensioni = {8, 10, 12}; // points
constexpr int DimensioneIniziale = 10;

} // namespace

FinestraEditor::FinestraEditor(KR_EditorGen& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello), casella_(new CasellaTesto(this)), ricerca_(new BarraRicerca(this)),
      spiegazione_(new RigaDiStato(this)), posto_(new QLabel(this)), avviso_(new QLabel(this)) {
  setWindowTitle(AQString(modello_.Titolo));
  casella_->MettiTesto(modello_.Testo);
  avviso_->setObjectName(QStringLiteral("Avviso"));
  avviso_->setTextFormat(Qt::PlainText);
  avviso_->hide();
  posto_->setObjectName(QStringLiteral("Posto"));
  auto* piede = new QHBoxLayout;
  piede->setContentsMargins(6, 0, 10, 0);
  piede->addWidget(spiegazione_, 1);
  piede->addWidget(posto_);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaBarra());
  colonna->addWidget(ricerca_);
  colonna->addWidget(casella_, 1);
  colonna->addWidget(avviso_);
  colonna->addLayout(piede);
  CreaRicerca();
  connect(casella_, &CasellaTesto::cursorPositionChanged, this, &FinestraEditor::MostraPosto);
  connect(casella_, &CasellaTesto::LettereNonAmmesse, this, [this](const QString& lettere) {
    avviso_->setText(QStringLiteral("Il testo non può contenere %1: al salvataggio diventa «?».").arg(lettere));
    avviso_->show();
  });
  AdattaAlloSchermo(*this, 1000, 700);
  casella_->VaiAllaRiga(modello_.RigaIniziale);
  MostraPosto();
  casella_->setFocus();
}

BarraACapo* FinestraEditor::CreaBarra() {
  auto* barra = new BarraACapo(this);
  const auto aggiungi = [&](const char* icona, const QString& testo, const QKeySequence& tasti, auto&& azione) {
    QAction* voce = barra->addAction(Icona(QString::fromLatin1(icona)), testo, this, azione);
    voce->setShortcut(tasti);
    if (!tasti.isEmpty())
      voce->setToolTip(QStringLiteral("%1 (%2)").arg(testo, tasti.toString(QKeySequence::NativeText)));
  };
  aggiungi("salva", QStringLiteral("Salva"), QKeySequence(Qt::CTRL | Qt::Key_S), [this] { Salva(); });
  if (!modello_.DelLibretto()) aggiungi("incolla", QStringLiteral("Incolla"), {}, [this] { casella_->paste(); });
  barra->Separa();
  aggiungi("maiuscolo", QStringLiteral("MAIUSCOLO"), QKeySequence(Qt::CTRL | Qt::Key_U),
           [this] { casella_->SelezioneInMaiuscolo(); });
  aggiungi("minuscolo", QStringLiteral("minuscolo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_U),
           [this] { casella_->SelezioneInMinuscolo(); });
  barra->Separa();
  AggiungiDimensioni(*barra);
  barra->Separa();
  aggiungi("cerca", QStringLiteral("Cerca"), QKeySequence(Qt::CTRL | Qt::Key_F), [this] { ricerca_->Apri(); });
  barra->Allarga();
  aggiungi("chiudi", QStringLiteral("Chiudi"), {}, [this] { Chiudi(); });
  return barra;
}

void FinestraEditor::AggiungiDimensioni(BarraACapo& barra) {
  barra.Aggiungi(new QLabel(QStringLiteral("  Carattere "), &barra));
  for (const int punti : Dimensioni) {
    QAction* voce = barra.addAction(QString::number(punti), this, [this, punti] { casella_->CambiaDimensione(punti); });
    voce->setToolTip(QStringLiteral("Carattere da %1 punti").arg(punti));
    voce->setCheckable(true);
    voce->setChecked(punti == DimensioneIniziale);
    dimensioni_.addAction(voce);
  }
}

void FinestraEditor::CreaRicerca() {
  connect(ricerca_, &BarraRicerca::Successiva, this, [this] { Trova(true); });
  connect(ricerca_, &BarraRicerca::Precedente, this, [this] { Trova(false); });
  connect(ricerca_, &BarraRicerca::Chiusa, casella_, [this] { casella_->setFocus(); });
  connect(ricerca_, &BarraRicerca::TestoCambiato, this,
          [this] { ricerca_->MostraEsito(0, casella_->RigheCon(ricerca_->Testo())); });
  connect(new QShortcut(QKeySequence(Qt::Key_F3), this), &QShortcut::activated, this, [this] { Trova(true); });
  connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3), this), &QShortcut::activated, this,
          [this] { Trova(false); });
}

void FinestraEditor::Trova(bool avanti) {
  if (ricerca_->Testo().isEmpty()) return ricerca_->Apri();
  casella_->Trova(ricerca_->Testo(), avanti);
}

void FinestraEditor::MostraPosto() {
  const QTextCursor cursore = casella_->textCursor();
  posto_->setText(QStringLiteral("Riga %1 di %2, colonna %3")
                      .arg(cursore.blockNumber() + 1)
                      .arg(casella_->blockCount())
                      .arg(cursore.positionInBlock() + 1));
  if (modello_.DiRighe()) spiegazione_->MostraRiga(DaQString(cursore.block().text()));
}

void FinestraEditor::Salva() {
  modello_.Testo = casella_->Testo();
  modello_.Salva();
  if (modello_.Chiusa) accept();
}

void FinestraEditor::Chiudi() {
  modello_.Testo = casella_->Testo();
  if (modello_.Chiudi()) accept();
}

// Esc and the window's own cross ask as the button does.
void FinestraEditor::reject() {
  ricerca_->isVisible() ? ricerca_->Chiudi() : Chiudi();
}

void FinestraEditor::closeEvent(QCloseEvent* evento) {
  evento->ignore();
  Chiudi();
}

} // namespace lirmeto::ui
