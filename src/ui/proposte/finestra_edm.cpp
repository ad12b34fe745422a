#include <ui/proposte/finestra_edm.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/invito_elenco.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/proposte/parti_censuario.h>

#include <core/posizione_form.h>
#include <proposte/contorno_particella.h>

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1240;
constexpr int Altezza = 700;
constexpr std::array Proposte = {6, 7, 10, 8, 9, 11, 1, 0};
constexpr std::array Archivio = {13, 12, 16, 15, 3, 18};
constexpr std::array Particella = {2, 14, 19, 5};
constexpr const char* NomeForm = "KR_EDM";

PulsanteForm PulsanteDi(int indice) {
  return *std::ranges::find_if(KR_EDM::Pulsanti(), [indice](const PulsanteForm& uno) { return uno.indice == indice; });
}

} // namespace

void ModelloNomi::Ricarica() {
  beginResetModel();
  endResetModel();
}

int ModelloNomi::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(nomi_.size());
}

QVariant ModelloNomi::data(const QModelIndex& indice, int ruolo) const {
  const auto riga = static_cast<std::size_t>(indice.row());
  if (!indice.isValid() || ruolo != Qt::DisplayRole || riga >= nomi_.size()) return {};
  return AQString(nomi_[riga]);
}

FinestraEdm::FinestraEdm(KR_EDM& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello), list1_(new QListWidget(this)), nomi_(modello.File1),
      file1_(new QListView(this)), label1_(new QLabel(this)), label2_(new QLabel(this)), errori_(new QLabel(this)),
      codice_(new QLabel(this)),
      disegno_(new GraficaPannello(modello.Dintorni(), modello.Grafica1(), host::KR_EDM, this)),
      evidenza_(new EvidenzaParticella(disegno_->Superficie())) {
  setObjectName(QString::fromLatin1(NomeForm));
  disegno_->NascondiCaricamento();
  disegno_->Superficie().MettiInvito(QStringLiteral("Scegliere una particella: si vede nell'estratto associato"));
  auto* barra = new BarraACapo(this);
  for (const int indice : Proposte) {
    QToolButton* bottone = CreaPulsante(PulsanteDi(indice), barra, [this](int premuto) { Premi(premuto); });
    bottone->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    barra->Aggiungi(bottone);
    bottoni_.emplace_back(bottone, indice);
  }
  auto* piano = new QHBoxLayout;
  piano->setContentsMargins(10, 0, 10, 10);
  piano->setSpacing(12);
  piano->addWidget(CreaElenchi());
  piano->addWidget(CreaCaselle());
  piano->addWidget(CreaDisegno(), 1);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->addWidget(barra);
  colonna->addLayout(piano, 1);
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  RimettiAlPosto(*this, LeggiPosizione(modello_.Dintorni().impostazioni, NomeForm));
  Mostra();
  file1_->setFocus();
}

QWidget* FinestraEdm::CreaElenchi() {
  auto* dentro = new QWidget(this);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(0, 0, 0, 0);
  list1_->setObjectName(QStringLiteral("List1"));
  colonna->addWidget(ColonnaElenco(QStringLiteral("Particelle del libretto"), *list1_), 1);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Archivio"), this));
  file1_->setObjectName(QStringLiteral("File1"));
  file1_->setAccessibleName(QStringLiteral("Archivio"));
  file1_->setModel(&nomi_);
  file1_->setUniformItemSizes(true);
  MettiInvito(*file1_, QStringLiteral("Archivio vuoto: «Archivio dall'Estratto» o «Archivio dal Libretto» lo riempie"));
  file1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  colonna->addWidget(file1_, 3);
  QWidget* bottoni = Bottoni(Archivio, 2);
  colonna->addWidget(bottoni);
  dentro->setFixedWidth(bottoni->sizeHint().width());
  connect(list1_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* voce) {
    modello_.ClicList1(static_cast<std::size_t>(list1_->row(voce)));
    Mostra();
  });
  connect(file1_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& indice) {
    modello_.ClicFile1(indice.isValid() ? indice.row() : -1);
    Mostra();
  });
  return dentro;
}

QWidget* FinestraEdm::Bottoni(std::span<const int> indici, int colonne) {
  auto* dentro = new QWidget(this);
  auto* griglia = new QGridLayout(dentro);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setSpacing(2);
  for (const int indice : indici) {
    QToolButton* bottone = CreaPulsante(PulsanteDi(indice), dentro, [this](int premuto) { Premi(premuto); });
    bottone->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    griglia->addWidget(bottone, griglia->count() / colonne, griglia->count() % colonne);
    bottoni_.emplace_back(bottone, indice);
  }
  return dentro;
}

QWidget* FinestraEdm::CreaCaselle() {
  auto* dentro = new QWidget(this);
  constexpr int larghezza = 280;
  dentro->setFixedWidth(larghezza);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Particella"), this));
  colonna->addLayout(CreaParticella());
  colonna->addWidget(Bottoni(Particella, 2));
  colonna->addWidget(TitoloGruppo(QStringLiteral("Derivazioni della proposta"), this));
  auto* derivazioni = new QListWidget(this);
  derivazioni->setObjectName(QStringLiteral("List3"));
  derivazioni->setUniformItemSizes(true);
  for (const std::string& linea : modello_.List3) derivazioni->addItem(AQString(linea));
  colonna->addWidget(derivazioni, 1);
  return dentro;
}

QLayout* FinestraEdm::CreaParticella() {
  auto* griglia = new QGridLayout;
  griglia->setVerticalSpacing(4);
  const QString mq = QStringLiteral("mq");
  const QString euro = QStringLiteral("€");
  AggiungiCasella(*griglia, QStringLiteral("Text1"), QStringLiteral("Comune"), &KR_EDM::Text1, nullptr);
  AggiungiCasella(*griglia, QStringLiteral("Text2"), QStringLiteral("Foglio"), &KR_EDM::Text2, &KR_EDM::LasciaText2);
  AggiungiCasella(*griglia, QStringLiteral("Text3"), QStringLiteral("Mappale"), &KR_EDM::Text3, nullptr);
  AggiungiCasella(*griglia, QStringLiteral("Text5"), QStringLiteral("Qualità"), &KR_EDM::Text5, &KR_EDM::LasciaText5);
  codice_->setObjectName(QStringLiteral("Text11"));
  codice_->setTextFormat(Qt::PlainText);
  griglia->addWidget(new QLabel(QStringLiteral("Codice qualità"), this), griglia->rowCount(), 0);
  griglia->addWidget(codice_, griglia->rowCount() - 1, 1);
  AggiungiCasella(*griglia, QStringLiteral("Text6"), QStringLiteral("Classe"), &KR_EDM::Text6, &KR_EDM::LasciaText6);
  AggiungiCasella(*griglia, QStringLiteral("Text7"), QStringLiteral("Sup. Catastale"), &KR_EDM::Text7, nullptr, mq);
  AggiungiCasella(*griglia, QStringLiteral("Text8"), QStringLiteral("Sup.Grafica"), &KR_EDM::Text8, nullptr, mq);
  AggiungiCasella(*griglia, QStringLiteral("Text9"), QStringLiteral("Redd. Dominicale"), &KR_EDM::Text9, nullptr, euro);
  AggiungiCasella(*griglia, QStringLiteral("Text10"), QStringLiteral("Redd. Agrario"), &KR_EDM::Text10, nullptr, euro);
  AggiungiCasella(*griglia, QStringLiteral("Text4"), QStringLiteral("SN / SR"), &KR_EDM::Text4, nullptr);
  return griglia;
}

void FinestraEdm::AggiungiCasella(QGridLayout& griglia, const QString& nome, const QString& etichetta,
                                  std::string KR_EDM::*testo, void (KR_EDM::*lascia)(), const QString& unita) {
  auto* linea = new QLineEdit(this);
  linea->setObjectName(nome);
  auto* davanti = new QLabel(etichetta, this);
  davanti->setBuddy(linea);
  const int riga = griglia.rowCount();
  griglia.addWidget(davanti, riga, 0);
  griglia.addWidget(linea, riga, 1);
  if (!unita.isEmpty()) griglia.addWidget(Tenue(unita, this), riga, 2);
  connect(linea, &QLineEdit::textEdited, this,
          [this, testo](const QString& scritto) { modello_.*testo = DaQString(scritto); });
  if (lascia != nullptr)
    connect(linea, &QLineEdit::editingFinished, this, [this, lascia, linea] {
      if (!linea->isModified()) return;
      (modello_.*lascia)();
      Mostra();
    });
  caselle_.emplace_back(linea, testo);
}

QWidget* FinestraEdm::CreaDisegno() {
  auto* dentro = new QWidget(this);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(0, 0, 0, 0);
  label1_->setObjectName(QStringLiteral("EstrattoAssociato"));
  label2_->setObjectName(QStringLiteral("RigaParticella"));
  for (QLabel* etichetta : {label1_, label2_}) {
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  }
  label2_->setFont(FontMonospazio(9)); // NOLINT(readability-magic-numbers)
  colonna->addWidget(label1_);
  colonna->addWidget(disegno_, 1);
  colonna->addWidget(label2_);
  errori_->setObjectName(QStringLiteral("ErroriCensuario"));
  colonna->addWidget(errori_);
  return dentro;
}

void FinestraEdm::Premi(int indice) {
  modello_.Premi(indice);
  Mostra();
  if (modello_.Chiusa) accept();
}

// --- what it shows

void FinestraEdm::Mostra() {
  setWindowTitle(AQString(modello_.Titolo));
  MostraElenchi();
  for (const auto& [linea, testo] : caselle_)
    if (DaQString(linea->text()) != modello_.*testo) linea->setText(AQString(modello_.*testo));
  codice_->setText(AQString(modello_.Text11));
  label1_->setText(modello_.Label1.empty() ? QStringLiteral("Nessun estratto associato")
                                           : QStringLiteral("Estratto: ") + AQString(modello_.Label1));
  label2_->setText(AQString(modello_.Label2));
  errori_->setText(AQString(modello_.AvvisoErrori()));
  for (const auto& [bottone, indice] : bottoni_) bottone->setEnabled(modello_.Attivo(indice));
  evidenza_->Illumina(ContornoParticella(modello_.Grafica1(), modello_.Text3));
}

void FinestraEdm::MostraElenchi() {
  const QSignalBlocker fermi[] = {QSignalBlocker(file1_->selectionModel()), QSignalBlocker(list1_)};
  nomi_.Ricarica();
  if (modello_.File1Indice >= 0) file1_->setCurrentIndex(nomi_.index(static_cast<int>(modello_.File1Indice)));
  const int scelta = list1_->currentRow();
  list1_->clear();
  for (const std::string& particella : modello_.List1)
    list1_->addItem(AQString(particella) +
                    (modello_.InArchivio(particella) ? QString() : QStringLiteral("   (non in archivio)")));
  list1_->setCurrentRow(scelta);
}

bool FinestraEdm::event(QEvent* evento) {
  if (evento->type() == QEvent::WindowActivate) {
    modello_.AllAttivazione();
    Mostra();
  }
  return QDialog::event(evento);
}

void FinestraEdm::done(int esito) {
  ScriviPosizione(modello_.Dintorni().impostazioni, NomeForm, {x(), y(), width(), height()});
  QDialog::done(esito);
}

} // namespace lirmeto::ui
