#include <ui/supporto/finestra_stampa_generale.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/modello_classe.h>
#include <ui/comune/testo_qt.h>

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace lirmeto::ui {

namespace {

using Form = KR_StampaGenerale;

// Two buttons of which one is always chosen; `scegli` is told which.
template <typename Azione>
void AggiungiScelta(QVBoxLayout& colonna, const std::array<QString, 2>& testi, bool secondo, const Azione& scegli) {
  for (std::size_t i = 0; i < testi.size(); ++i) {
    auto* voce = new QRadioButton(testi[i]);
    voce->setChecked((i == 1) == secondo);
    QObject::connect(voce, &QRadioButton::toggled, voce, [scegli, i](bool si) {
      if (si) scegli(i == 1);
    });
    colonna.addWidget(voce);
  }
}

} // namespace

FinestraStampaGenerale::FinestraStampaGenerale(KR_StampaGenerale& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello),
      righe_(new ModelloClasse(modello.List1, FontDa(modello.CarattereLista), this, Fondo::Bianco)),
      lista_(new QListView(this)), quante_(new QLabel(this)), modelli_(new QListWidget(this)),
      visualizzatore_(new QLabel(this)) {
  setWindowTitle(AQString(modello_.Titolo));
  auto* piano = new QHBoxLayout;
  piano->setContentsMargins(12, 10, 12, 12);
  piano->setSpacing(12);
  piano->addWidget(CreaElenco(), 1);
  piano->addWidget(CreaColonna());
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->setMenuBar(CreaMenu());
  colonna->addWidget(CreaBarra());
  colonna->addLayout(piano, 1);
  AdattaAlloSchermo(*this, 1080, 680);
  Mostra();
  lista_->setFocus();
}

QMenuBar* FinestraStampaGenerale::CreaMenu() {
  auto* barra = new QMenuBar(this);
  QMenu* menu = barra->addMenu(QStringLiteral("&Report"));
  QAction* testo = menu->addAction(QStringLiteral("Editor di &Testo"), this, [this] { modello_.ApriTesto(); });
  testo->setEnabled(modello_.ConFile());
  menu->addSeparator();
  menu->addAction(QStringLiteral("&Chiudi"), this, [this] { Esegui(Form::ChiudiForm); });
  return barra;
}

BarraACapo* FinestraStampaGenerale::CreaBarra() {
  auto* barra = new BarraACapo(this);
  const auto aggiungi = [&](const char* icona, const QString& testo, int comando, const QKeySequence& tasti) {
    QAction* voce =
        barra->addAction(Icona(QString::fromLatin1(icona)), testo, this, [this, comando] { Esegui(comando); });
    voce->setShortcut(tasti);
    if (!tasti.isEmpty())
      voce->setToolTip(QStringLiteral("%1 (%2)").arg(testo, tasti.toString(QKeySequence::NativeText)));
  };
  aggiungi("stampa", QStringLiteral("Stampa"), Form::StampaLista, QKeySequence(Qt::CTRL | Qt::Key_P));
  aggiungi("scegli_stampante", QStringLiteral("Stampante"), Form::ScegliStampante, {});
  aggiungi("carattere", QStringLiteral("Carattere"), Form::ScegliCarattere, {});
  barra->Separa();
  aggiungi("copia", QStringLiteral("Copia"), Form::CopiaLista, QKeySequence(Qt::CTRL | Qt::Key_C));
  aggiungi("modifica", QStringLiteral("Modifica"), Form::ModificaLista, QKeySequence(Qt::Key_F2));
  barra->Allarga();
  aggiungi("chiudi", QStringLiteral("Chiudi"), Form::ChiudiForm, {});
  return barra;
}

QAbstractButton* FinestraStampaGenerale::Bottone(int comando, const QString& testo, const QString& spiegazione) {
  constexpr int larghezza = 118; // the captions of a row of buttons are of one width
  auto* bottone = new QPushButton(testo, this);
  bottone->setMinimumWidth(larghezza);
  bottone->setToolTip(spiegazione);
  bottone->setAutoDefault(false);
  connect(bottone, &QPushButton::clicked, this, [this, comando] { Esegui(comando); });
  return bottone;
}

QWidget* FinestraStampaGenerale::CreaElenco() {
  auto* parte = new QWidget(this);
  lista_->setModel(righe_);
  lista_->setUniformItemSizes(true);
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setAccessibleName(QStringLiteral("Righe della stampa"));
  lista_->setToolTip(QStringLiteral("Doppio clic per modificare le righe"));
  connect(lista_, &QListView::doubleClicked, this, [this] { Esegui(Form::ModificaLista); });
  quante_->setObjectName(QStringLiteral("Posto"));
  auto* piede = new QHBoxLayout;
  piede->addWidget(Bottone(Form::AggiungiBianco, QStringLiteral("Sposta a destra"),
                           QStringLiteral("Mette un bianco davanti a ogni riga")));
  piede->addWidget(Bottone(Form::TogliCarattere, QStringLiteral("Sposta a sinistra"),
                           QStringLiteral("Toglie il primo carattere di ogni riga")));
  piede->addWidget(
      Bottone(Form::AggiungiRiga, QStringLiteral("Aggiungi riga"), QStringLiteral("Aggiunge una riga vuota in cima")));
  piede->addWidget(
      Bottone(Form::TogliPrimaRiga, QStringLiteral("Togli prima riga"), QStringLiteral("Toglie la prima riga")));
  piede->addStretch(1);
  piede->addWidget(quante_);
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->addWidget(lista_, 1);
  colonna->addLayout(piede);
  return parte;
}

QWidget* FinestraStampaGenerale::CreaColonna() {
  constexpr int larghezza = 270;
  auto* parte = new QWidget(this);
  parte->setFixedWidth(larghezza);
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(10);
  colonna->addWidget(CreaCarta());
  colonna->addWidget(CreaModelli(), 1);
  colonna->addWidget(CreaCsv());
  return parte;
}

QGroupBox* FinestraStampaGenerale::CreaCarta() {
  auto* gruppo = new QGroupBox(QStringLiteral("Carta"), this);
  auto* colonna = new QVBoxLayout(gruppo);
  AggiungiScelta(*colonna, {QStringLiteral("Verticale"), QStringLiteral("Orizzontale")},
                 modello_.Option1 == Orientamento::Orizzontale, [this](bool secondo) {
                   modello_.Option1 = secondo ? Orientamento::Orizzontale : Orientamento::Verticale;
                 });
  auto* numeri = new QCheckBox(QStringLiteral("Numeri di pagina"), gruppo);
  numeri->setChecked(modello_.NumeriDiPagina);
  connect(numeri, &QCheckBox::toggled, this, [this](bool si) { modello_.NumeriDiPagina = si; });
  colonna->addWidget(numeri);
  return gruppo;
}

QGroupBox* FinestraStampaGenerale::CreaModelli() {
  auto* gruppo = new QGroupBox(QStringLiteral("Modelli di stampa"), this);
  modelli_->setAccessibleName(gruppo->title());
  modelli_->setToolTip(QStringLiteral("Doppio clic per aprire il modello"));
  connect(modelli_, &QListWidget::currentRowChanged, this, [this](int riga) { modello_.ModelloScelto = riga; });
  connect(modelli_, &QListWidget::itemDoubleClicked, this, [this] { modello_.DoppioClickModello(); });
  auto* griglia = new QGridLayout(gruppo);
  griglia->addWidget(modelli_, 0, 0, 1, 2);
  griglia->addWidget(Bottone(Form::CompilaIlModello, QStringLiteral("Compila"),
                             QStringLiteral("Compila il modello scelto coi dati del libretto e lo apre")),
                     1, 0);
  griglia->addWidget(
      Bottone(Form::AggiornaModelli, QStringLiteral("Aggiorna"), QStringLiteral("Rilegge l'elenco dei modelli")), 1, 1);
  return gruppo;
}

QGroupBox* FinestraStampaGenerale::CreaCsv() {
  auto* gruppo = new QGroupBox(QStringLiteral("File CSV"), this);
  auto* colonna = new QVBoxLayout(gruppo);
  AggiungiScelta(*colonna, {QStringLiteral("Apri col visualizzatore"), QStringLiteral("Apri con Pernico")},
                 modello_.Option3 == AperturaCsv::Pernico, [this](bool secondo) {
                   modello_.Option3 = secondo ? AperturaCsv::Pernico : AperturaCsv::Visualizzatore;
                 });
  visualizzatore_->setObjectName(QStringLiteral("Posto"));
  visualizzatore_->setTextFormat(Qt::PlainText);
  colonna->addWidget(visualizzatore_);
  auto* scelta = new QHBoxLayout;
  scelta->addWidget(Bottone(Form::ScegliVisualizzatore, QStringLiteral("Scegli..."),
                            QStringLiteral("Sceglie il programma che apre i file CSV")));
  scelta->addWidget(Bottone(Form::DimenticaVisualizzatore, QStringLiteral("Dimentica"),
                            QStringLiteral("Torna al programma predefinito")));
  colonna->addLayout(scelta);
  QAbstractButton* apri = Bottone(Form::ApriCsv, QStringLiteral("Apri il CSV"),
                                  modello_.ConFile() ? QStringLiteral("Apre la stampa come tabella")
                                                     : QStringLiteral("Questa stampa non ha un file CSV"));
  apri->setEnabled(modello_.ConFile());
  colonna->addWidget(apri);
  return gruppo;
}

void FinestraStampaGenerale::Esegui(int comando) {
  modello_.Esegui(comando);
  if (modello_.Chiusa) return accept();
  Mostra();
}

void FinestraStampaGenerale::Mostra() {
  MostraCarattere();
  const QLocale italiano(QLocale::Italian);
  const int quante = righe_->rowCount();
  quante_->setText(quante == 1 ? QStringLiteral("1 riga") : QStringLiteral("%1 righe").arg(italiano.toString(quante)));
  visualizzatore_->setText(QStringLiteral("Visualizzatore: %1").arg(AQString(modello_.Label3)));
  MostraModelli();
}

// The lines in their font, with the same line under the cursor as before.
void FinestraStampaGenerale::MostraCarattere() {
  const int attuale = lista_->currentIndex().row();
  const QFont font = FontDa(modello_.CarattereLista);
  righe_->CambiaCarattere(font);
  lista_->setFont(font);
  righe_->Ricarica();
  lista_->setCurrentIndex(righe_->index(std::min(attuale, righe_->rowCount() - 1)));
}

void FinestraStampaGenerale::MostraModelli() {
  const QSignalBlocker zitta(modelli_);
  modelli_->clear();
  for (const std::string& nome : modello_.File1) modelli_->addItem(AQString(nome));
  modelli_->setCurrentRow(static_cast<int>(modello_.ModelloScelto));
}

void FinestraStampaGenerale::changeEvent(QEvent* evento) {
  QDialog::changeEvent(evento);
  if (evento->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  const Carattere prima = modello_.CarattereLista;
  modello_.AllAttivazione();
  if (modello_.CarattereLista != prima) MostraCarattere();
}

void FinestraStampaGenerale::closeEvent(QCloseEvent* evento) {
  modello_.Chiudi();
  QDialog::closeEvent(evento);
}

// Esc.
void FinestraStampaGenerale::reject() {
  Esegui(Form::ChiudiForm);
}

} // namespace lirmeto::ui
