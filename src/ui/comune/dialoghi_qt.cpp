#include <ui/comune/dialoghi_qt.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/cursore_attesa.h>
#include <ui/comune/tastiera.h>
#include <ui/comune/testo_qt.h>

#include <base/errore.h>

#include <QApplication>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>
#include <utility>
#include <vector>

namespace lirmeto::ui {

namespace {

constexpr int PrimaDellaBarra = 500; // milliseconds before a bar shows
constexpr int Ridisegno = 50;        // milliseconds between two drawings
constexpr int Abbandono = 300;       // milliseconds of idle windows after which a bar is stale
constexpr int PassiBarra = 1000;

QWidget* FinestraAttuale() {
  QWidget* modale = QApplication::activeModalWidget();
  return modale != nullptr ? modale : QApplication::activeWindow();
}

// A box is only as wide as its text, and its frame would cut a longer title.
void AllargaPerIlTitolo(QMessageBox& scatola) {
  constexpr int bottoniCornice = 140; // pixels
  auto* griglia = qobject_cast<QGridLayout*>(scatola.layout());
  if (griglia == nullptr) return;
  QFont grassetto = scatola.font();
  grassetto.setBold(true);
  const int larga = QFontMetrics(grassetto).horizontalAdvance(scatola.windowTitle()) + bottoniCornice;
  griglia->addItem(new QSpacerItem(larga, 0), griglia->rowCount(), 0, 1, griglia->columnCount());
}

void Componi(QMessageBox& scatola, std::string_view testo, std::string_view titolo) {
  scatola.setTextFormat(Qt::PlainText);
  scatola.setText(PerMessaggio(testo));
  scatola.setWindowTitle(PerMessaggio(titolo));
  AllargaPerIlTitolo(scatola);
}

// Where the dialog is Qt's own: wide enough for names, sizes and dates, and without the long list of endings.
void Sistema(QFileDialog& finestra) {
  finestra.setOption(QFileDialog::HideNameFilterDetails);
  AdattaAlloSchermo(finestra, 900, 540);
  for (QTreeView* elenco : finestra.findChildren<QTreeView*>()) {
    elenco->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    elenco->header()->setStretchLastSection(true);
  }
}

int Mostra(QDialog& finestra) {
  const TempoDellUtente sua;
  return finestra.exec();
}

} // namespace

DialoghiQt::DialoghiQt(Percorsi percorsi) : percorsi_(std::move(percorsi)) {
  abbandono_.setSingleShot(true);
  abbandono_.setInterval(Abbandono);
  QObject::connect(&abbandono_, &QTimer::timeout, &abbandono_, [this] { NascondiBarra(); });
}

DialoghiQt::~DialoghiQt() {
  delete barra_;
}

void DialoghiQt::Messaggio(std::string_view testo, std::string_view titolo, Gravita gravita) {
  NascondiBarra();
  QMessageBox scatola(FinestraAttuale());
  Componi(scatola, testo, titolo);
  scatola.setIcon(gravita == Gravita::Critico ? QMessageBox::Critical : QMessageBox::Information);
  scatola.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
  Mostra(scatola);
}

Risposta DialoghiQt::Chiedi(std::string_view testo, std::string_view titolo, Bottoni bottoni) {
  NascondiBarra();
  QMessageBox scatola(FinestraAttuale());
  Componi(scatola, testo, titolo);
  scatola.setIcon(QMessageBox::Question);
  QPushButton* si = scatola.addButton(QStringLiteral("&Sì"), QMessageBox::YesRole);
  QPushButton* no = scatola.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
  const bool conAnnulla = bottoni == Bottoni::SiNoAnnulla;
  QPushButton* annulla = conAnnulla ? scatola.addButton(QStringLiteral("&Annulla"), QMessageBox::RejectRole) : no;
  scatola.setDefaultButton(si);
  scatola.setEscapeButton(annulla);
  Mostra(scatola);
  if (scatola.clickedButton() == si) return Risposta::Si;
  return conAnnulla && scatola.clickedButton() != no ? Risposta::Annulla : Risposta::No;
}

std::optional<std::size_t> DialoghiQt::Scegli(std::string_view testo, std::string_view titolo,
                                              const std::vector<std::string>& risposte) {
  NascondiBarra();
  QMessageBox scatola(FinestraAttuale());
  Componi(scatola, testo, titolo);
  scatola.setIcon(QMessageBox::Question);
  std::vector<QAbstractButton*> bottoni;
  bottoni.reserve(risposte.size());
  for (const std::string& risposta : risposte)
    bottoni.push_back(scatola.addButton(AQString(risposta), QMessageBox::ActionRole));
  scatola.setEscapeButton(scatola.addButton(QStringLiteral("&Annulla"), QMessageBox::RejectRole));
  AssegnaMnemoniche(scatola);
  Mostra(scatola);
  const auto premuto = std::find(bottoni.begin(), bottoni.end(), scatola.clickedButton());
  if (premuto == bottoni.end()) return std::nullopt;
  return static_cast<std::size_t>(premuto - bottoni.begin());
}

std::string DialoghiQt::ScegliFile(const RichiestaFile& richiesta, bool daSalvare) {
  NascondiBarra();
  QFileDialog finestra(FinestraAttuale(), AQString(richiesta.titolo));
  finestra.setAcceptMode(daSalvare ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  finestra.setFileMode(daSalvare ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (!richiesta.filtro.empty()) finestra.setNameFilter(AQString(richiesta.filtro));
  if (!richiesta.cartella.empty()) finestra.setDirectory(percorsi_.aOspite(richiesta.cartella));
  if (!richiesta.nome.empty()) finestra.selectFile(AQString(richiesta.nome));
  Sistema(finestra);
  if (Mostra(finestra) != QDialog::Accepted || finestra.selectedFiles().isEmpty())
    throw Errore(errore::DialogoAnnullato);
  return percorsi_.daOspite(finestra.selectedFiles().first());
}

std::string DialoghiQt::ScegliFileDaAprire(const RichiestaFile& richiesta) {
  return ScegliFile(richiesta, false);
}

std::string DialoghiQt::ScegliFileDaSalvare(const RichiestaFile& richiesta) {
  return ScegliFile(richiesta, true);
}

void DialoghiQt::ScegliStampante() {
  NascondiBarra();
  const TempoDellUtente sua;
  if (!stampa_.Scegli(FinestraAttuale())) throw Errore(errore::DialogoAnnullato);
}

void DialoghiQt::Stampa(const Stampato& stampato) {
  NascondiBarra();
  if (!stampa_.Pronta()) ScegliStampante();
  stampa_.Stampa(stampato);
}

Carattere DialoghiQt::ScegliCarattere(const Carattere& attuale) {
  NascondiBarra();
  QFont suo = FontDa(attuale);
  suo.setFamily(QFontInfo(suo).family()); // the one that stands in for it, if it is not installed
  QFontDialog finestra(suo, FinestraAttuale());
  finestra.setWindowTitle(QStringLiteral("Carattere dell'elenco"));
  if (Mostra(finestra) != QDialog::Accepted) throw Errore(errore::DialogoAnnullato);
  return CarattereDa(finestra.selectedFont());
}

void DialoghiQt::Lavora(bool si) {
  MostraAttesa(si);
}

void DialoghiQt::Avanzamento(std::string_view lavoro, std::size_t fatto, std::size_t totale) {
  if (fatto >= totale) {
    NascondiBarra();
    return;
  }
  if (Tocca()) MostraBarra(AQString(lavoro), fatto, totale);
}

// Whether the bar is to be drawn now.
bool DialoghiQt::Tocca() {
  if (!inizio_.isValid()) inizio_.start();
  return inizio_.elapsed() >= PrimaDellaBarra && !(disegno_.isValid() && disegno_.elapsed() < Ridisegno);
}

// The windows are painted from the beginning; the bar has a button to give up and comes up like the others.
bool DialoghiQt::Attesa(std::string_view cosa) {
  const bool mostra = Tocca();
  if (mostra && barra_ == nullptr) {
    CreaBarra();
    barra_->setRange(0, 0);
    barra_->setCancelButtonText(QStringLiteral("Rinuncia"));
    barra_->setLabelText(AQString(cosa));
    barra_->show();
  }
  if (mostra) disegno_.start();
  // Without the bar a click would reach the window that waits.
  QApplication::processEvents(barra_ == nullptr ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
  return barra_ == nullptr || !barra_->wasCanceled();
}

void DialoghiQt::CreaBarra() {
  barra_ = new QProgressDialog(FinestraAttuale());
  barra_->setWindowModality(Qt::ApplicationModal);
  barra_->setMinimumWidth(360);
  barra_->setAutoReset(false);
  barra_->setWindowTitle(AQString(TitoloProgramma));
}

void DialoghiQt::MostraBarra(const QString& lavoro, std::size_t fatto, std::size_t totale) {
  if (barra_ == nullptr) {
    CreaBarra();
    barra_->setCancelButton(nullptr);
    barra_->setRange(0, PassiBarra);
  }
  barra_->setLabelText(lavoro);
  barra_->setValue(static_cast<int>(static_cast<double>(fatto) / static_cast<double>(totale) * PassiBarra));
  barra_->show();
  abbandono_.start();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  disegno_.start();
}

void DialoghiQt::NascondiBarra() {
  abbandono_.stop();
  inizio_.invalidate();
  disegno_.invalidate();
  delete barra_;
}

} // namespace lirmeto::ui
