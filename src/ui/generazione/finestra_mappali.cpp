#include <ui/generazione/finestra_mappali.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr int LarghezzaCasella = 130;

void Riempi(QListWidget& elenco, const std::vector<std::string>& righe) {
  elenco.clear();
  for (const std::string& riga : righe) elenco.addItem(AQString(riga));
}

QLabel* Scritta(std::string_view testo, QWidget* padre) {
  auto* scritta = new QLabel(AQString(testo), padre);
  scritta->setWordWrap(true);
  return scritta;
}

QVBoxLayout* Colonna(QWidget* finestra) {
  auto* colonna = new QVBoxLayout(finestra);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  return colonna;
}

} // namespace

FinestraSelezionaMappali::FinestraSelezionaMappali(SelezionaMappali& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), elenco_(new QListWidget(this)) {
  setObjectName(QStringLiteral("SelezionaMappali"));
  setWindowTitle(AQString(modello_.Titolo));
  elenco_->setFont(FontMonospazio(10));
  elenco_->setSelectionMode(QAbstractItemView::MultiSelection);
  Riempi(*elenco_, modello_.List1);
  auto* colonna = Colonna(this);
  colonna->addWidget(Scritta(SelezionaMappali::Etichetta, this));
  colonna->addWidget(ColonnaElenco(QStringLiteral("Mappali ammessi dalla Tipologia"), *elenco_), 1);
  if (modello_.List1.empty())
    colonna->addWidget(Scritta("L'Estratto non contiene mappali ammessi dalla Tipologia.", this));
  colonna->addLayout(CreaCaselle());
  colonna->addLayout(CreaPiede());
  connect(elenco_, &QListWidget::itemSelectionChanged, this, [this] {
    for (int i = 0; i < elenco_->count(); ++i)
      modello_.Seleziona(static_cast<std::size_t>(i), elenco_->item(i)->isSelected());
  });
  Mostra();
  AdattaAlloSchermo(*this, 720, 460);
}

QLayout* FinestraSelezionaMappali::CreaCaselle() {
  auto* tutti = new QCheckBox(QStringLiteral("Considera tutti i mappali"), this);
  tutti->setObjectName(QStringLiteral("Check1"));
  connect(tutti, &QCheckBox::toggled, this, [this](bool si) { modello_.Check1 = si; });
  auto* media = new QLineEdit(AQString(modello_.Text1), this);
  media->setObjectName(QStringLiteral("Text1"));
  connect(media, &QLineEdit::editingFinished, this, [this, media] {
    const std::string testo = DaQString(media->text());
    if (testo != modello_.Text1) modello_.CambiaText1(testo);
  });
  auto* estratto = new QLineEdit(AQString(modello_.Text2), this);
  estratto->setReadOnly(true);
  auto* riga = new QHBoxLayout;
  riga->addWidget(tutti);
  riga->addStretch(1);
  for (const auto& [testo, casella] : {std::pair{"Est media del Libretto", media}, {"dell'Estratto", estratto}}) {
    casella->setFixedWidth(LarghezzaCasella);
    riga->addWidget(new QLabel(QString::fromLatin1(testo), this));
    riga->addWidget(casella);
    riga->addWidget(Tenue(QStringLiteral("m"), this));
  }
  return riga;
}

QLayout* FinestraSelezionaMappali::CreaPiede() {
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Conferma"), *this);
  connect(piede.conferma, &QPushButton::clicked, this, [this] { Fa(&SelezionaMappali::Conferma); });
  struct Voce {
    const char* testo;
    void (SelezionaMappali::*comando)();
  };
  int posto = 0;
  for (const Voce& voce :
       {Voce{"Seleziona Tutti", &SelezionaMappali::SelezionaTutti},
        Voce{"Nessuno", &SelezionaMappali::SelezionaNessuno}, Voce{"Inverti", &SelezionaMappali::Inverti}}) {
    auto* bottone = new QPushButton(QString::fromLatin1(voce.testo), this);
    bottone->setAutoDefault(false);
    piede.riga->insertWidget(posto++, bottone);
    connect(bottone, &QPushButton::clicked, this, [this, voce] { Fa(voce.comando); });
  }
  return piede.riga;
}

void FinestraSelezionaMappali::Fa(void (SelezionaMappali::*comando)()) {
  (modello_.*comando)();
  if (modello_.Chiusa) return accept();
  Mostra();
}

void FinestraSelezionaMappali::Mostra() {
  const QSignalBlocker blocco(elenco_);
  for (int i = 0; i < elenco_->count(); ++i)
    elenco_->item(i)->setSelected(modello_.Selezionati[static_cast<std::size_t>(i)]);
}

FinestraMappaleDaMantenere::FinestraMappaleDaMantenere(MappaleDaMantenere& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), mappali_(new QListWidget(this)), urbani_(new QListWidget(this)) {
  setObjectName(QStringLiteral("MappaleDaMantenere"));
  setWindowTitle(AQString(MappaleDaMantenere::Titolo));
  for (QListWidget* elenco : {mappali_, urbani_}) elenco->setFont(FontMonospazio(10));
  auto* piano = new QHBoxLayout;
  piano->setSpacing(12);
  piano->addWidget(ColonnaElenco(QStringLiteral("Mappali scelti"), *mappali_), 1);
  piano->addWidget(ColonnaElenco(QStringLiteral("Un clic toglie il mappale dalla scelta"), *urbani_), 3);
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Conferma"), *this);
  auto* colonna = Colonna(this);
  colonna->addWidget(Scritta(modello_.Etichetta, this));
  colonna->addLayout(piano, 1);
  colonna->addLayout(piede.riga);
  connect(mappali_, &QListWidget::currentRowChanged, this, [this](int riga) {
    modello_.Indice = riga < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(riga));
  });
  connect(urbani_, &QListWidget::itemClicked, this, [this] {
    modello_.ClickList2(static_cast<std::size_t>(urbani_->currentRow()));
    Mostra();
  });
  connect(piede.conferma, &QPushButton::clicked, this, [this] {
    modello_.ConfermaMappali();
    if (modello_.Chiusa) accept();
  });
  Riempi(*urbani_, modello_.List2);
  Mostra();
  AdattaAlloSchermo(*this, 720, 380);
}

void FinestraMappaleDaMantenere::Mostra() {
  const QSignalBlocker blocco(mappali_);
  Riempi(*mappali_, modello_.List1);
}

} // namespace lirmeto::ui
