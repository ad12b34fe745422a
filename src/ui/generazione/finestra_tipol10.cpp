#include <ui/generazione/finestra_tipol10.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/modello_classe.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>

#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1220;
constexpr int Altezza = 690;
constexpr int LarghezzaRighe = 400;
constexpr int AltezzaTesto = 90;
constexpr int LarghezzaNumero = 70;

// A drawing tool; one that stays chosen can be pressed down.
struct Strumento {
  int indice;
  const char* icona;
  const char* testo;
  const char* spiegazione;
  bool resta;
};

constexpr std::array<Strumento, 7> Strumenti = {{
    {0, "nuovo_punto", "Nuovo Punto", "Un punto nuovo dov'è il punto più vicino", true},
    {5, "punto_medio", "Punto Medio", "Un punto a metà fra due punti", true},
    {6, "bilatera", "Bilatera", "Un punto fra due punti", true},
    {3, "contorno_nuovo", "Inizia Contorno", "Dimentica il contorno disegnato finora", false},
    {1, "contorno_rosso", "Contorno Rosso", "Un contorno nuovo (RC), punto dopo punto", true},
    {2, "contorno_nero", "Contorno Nero", "Un contorno della mappa (NC), punto dopo punto", true},
    {4, "contorno_righe", "Contorno in Righe", "Il contorno disegnato diventa righe della proposta", false},
}};

} // namespace

FinestraTipol10::FinestraTipol10(Tipol10& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello),
      disegno_(new GraficaPannello(modello.Dintorni(), modello.Grafica1, host::Tipol10, this)),
      righe_(new ModelloClasse(modello.List1, FontMonospazio(9), this)),
      testo_(new QPlainTextEdit(AQString(modello.Text1), this)), ultimo_(new QLineEdit(this)),
      passo_(new QLineEdit(AQString(modello.Text3), this)), strumenti_(new QButtonGroup(this)) {
  setObjectName(QStringLiteral("Tipol10"));
  setWindowTitle(AQString(modello_.Titolo));
  auto* piano = new QSplitter(this);
  piano->setChildrenCollapsible(false);
  piano->addWidget(CreaDisegno());
  piano->addWidget(CreaProposta());
  piano->setStretchFactor(0, 1);
  piano->setSizes({Larghezza - LarghezzaRighe, LarghezzaRighe});
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 10, 10, 10);
  colonna->addWidget(piano, 1);
  colonna->addLayout(CreaPiede());
  disegno_->Superficie().MettiInvito(
      QStringLiteral("Nessun estratto associato: la proposta si compone da polilinee, coi due bottoni in basso"));
  disegno_->Superficie().installEventFilter(this);
  connect(disegno_, &GraficaPannello::RicaricaRichiesta, this, [this] { modello_.Ricarica(); });
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  RimettiAlPosto(*this, modello_.PostoSalvato);
  Mostra();
}

QWidget* FinestraTipol10::CreaDisegno() {
  auto* riquadro = new QWidget(this);
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(6);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Disegno Proposta"), riquadro));
  colonna->addWidget(CreaStrumenti());
  colonna->addWidget(disegno_, 1);
  return riquadro;
}

// A tool pressed down is let go by a press on it again.
QWidget* FinestraTipol10::CreaStrumenti() {
  auto* barra = new BarraACapo(this);
  strumenti_->setExclusive(false);
  for (const Strumento& strumento : Strumenti) {
    auto* bottone = new QToolButton(barra);
    bottone->setIcon(Icona(QString::fromLatin1(strumento.icona)));
    bottone->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bottone->setAutoRaise(true);
    bottone->setText(QString::fromUtf8(strumento.testo));
    bottone->setToolTip(QString::fromUtf8(strumento.spiegazione));
    bottone->setCheckable(strumento.resta);
    strumenti_->addButton(bottone, strumento.indice);
    barra->Aggiungi(bottone);
  }
  connect(strumenti_, &QButtonGroup::idClicked, this, &FinestraTipol10::Scegli);
  return barra;
}

QWidget* FinestraTipol10::CreaProposta() {
  auto* elenco = new QListView(this);
  elenco->setObjectName(QStringLiteral("List1"));
  elenco->setModel(righe_);
  elenco->setUniformItemSizes(true);
  elenco->setFont(FontMonospazio(9));
  elenco->setEditTriggers(QAbstractItemView::NoEditTriggers);
  testo_->setObjectName(QStringLiteral("Text1"));
  testo_->setFixedHeight(AltezzaTesto);
  testo_->setTabChangesFocus(true);
  connect(testo_, &QPlainTextEdit::textChanged, this, [this] { modello_.Text1 = DaQString(testo_->toPlainText()); });
  auto* riquadro = new QWidget(this);
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(6, 0, 0, 0);
  colonna->setSpacing(6);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Righe della Proposta"), riquadro));
  colonna->addWidget(elenco, 1);
  colonna->addLayout(CreaNumeri());
  colonna->addWidget(TitoloGruppo(QStringLiteral("Annotazioni per questa Tipologia"), riquadro));
  colonna->addWidget(testo_);
  return riquadro;
}

QLayout* FinestraTipol10::CreaNumeri() {
  auto* riga = new QHBoxLayout;
  ultimo_->setObjectName(QStringLiteral("Text2"));
  passo_->setObjectName(QStringLiteral("Text3"));
  connect(ultimo_, &QLineEdit::textEdited, this, [this](const QString& testo) { modello_.Text2 = DaQString(testo); });
  connect(passo_, &QLineEdit::textEdited, this, [this](const QString& testo) { modello_.Text3 = DaQString(testo); });
  riga->addWidget(new QLabel(QStringLiteral("Ultimo punto nuovo"), this));
  riga->addWidget(ultimo_);
  riga->addWidget(new QLabel(QStringLiteral("passo"), this));
  riga->addWidget(passo_);
  riga->addStretch(1);
  for (QLineEdit* casella : {ultimo_, passo_}) casella->setFixedWidth(LarghezzaNumero);
  return riga;
}

QLayout* FinestraTipol10::CreaPiede() {
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Conferma"), *this);
  connect(piede.conferma, &QPushButton::clicked, this, [this] { Premi(0); });
  piede.conferma->setAutoDefault(false);
  piede.conferma->setDefault(false);
  auto* elenco = new QPushButton(Icona(QStringLiteral("incolla")), QStringLiteral("Polilinee dagli Appunti"), this);
  auto* dxf = new QPushButton(Icona(QStringLiteral("dxf")), QStringLiteral("Polilinee da DXF"), this);
  elenco->setObjectName(QStringLiteral("ButtonPlus1_2"));
  dxf->setObjectName(QStringLiteral("ButtonPlus1_3"));
  int posto = 0;
  for (QPushButton* bottone : {elenco, dxf}) {
    bottone->setAutoDefault(false);
    piede.riga->insertWidget(posto++, bottone);
  }
  connect(elenco, &QPushButton::clicked, this, [this] { Premi(2); });
  connect(dxf, &QPushButton::clicked, this, [this] { Premi(3); });
  return piede.riga;
}

void FinestraTipol10::Premi(int indice) {
  modello_.ButtonPlus1(indice);
  if (modello_.Chiusa) return accept();
  Mostra();
}

void FinestraTipol10::Scegli(int indice) {
  const bool giu = strumenti_->button(indice)->isChecked();
  for (QAbstractButton* altro : strumenti_->buttons())
    if (altro != strumenti_->button(indice)) altro->setChecked(false);
  const bool lascia = strumenti_->button(indice)->isCheckable() && !giu;
  lascia ? modello_.NessunoStrumento() : modello_.ButtonPlus2(indice);
  Mostra();
}

// The surface has handed the click on by the time the button is let go.
bool FinestraTipol10::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonRelease) {
    modello_.DopoIlClick();
    Mostra();
  }
  return QDialog::eventFilter(oggetto, evento);
}

void FinestraTipol10::Mostra() {
  righe_->Ricarica();
  if (DaQString(ultimo_->text()) != modello_.Text2) ultimo_->setText(AQString(modello_.Text2));
}

// Closed without a confirm, nothing is taken over.
void FinestraTipol10::done(int esito) {
  if (!modello_.Chiusa) modello_.ButtonPlus1(1);
  modello_.SalvaPosto({x(), y(), width(), height()});
  QDialog::done(esito);
}

} // namespace lirmeto::ui
