#include <ui/verifiche/elenco_verifiche.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>
#include <ui/verifiche/segni.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace lirmeto::ui {

namespace {

constexpr std::array Severe = {Severita::Errore, Severita::Avviso, Severita::Nota};

OrdineVerifiche OrdineDi(int colonna) {
  switch (colonna) {
  case TabellaVerifiche::Gravita:
    return OrdineVerifiche::Gravita;
  case TabellaVerifiche::Codice:
    return OrdineVerifiche::Codice;
  case TabellaVerifiche::Frase:
    return OrdineVerifiche::Testo;
  default:
    return OrdineVerifiche::Riga;
  }
}

std::size_t QuanteDi(const Conteggio& quante, Severita severita) {
  const std::array tutte = {quante.errori, quante.avvisi, quante.note};
  return tutte.at(static_cast<std::size_t>(severita));
}

} // namespace

TabellaVerifiche::TabellaVerifiche(const PannelloVerifiche& modello, QObject* padre)
    : QAbstractTableModel(padre), modello_(modello) {}

void TabellaVerifiche::Rifai() {
  beginResetModel();
  endResetModel();
}

int TabellaVerifiche::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(modello_.Quante());
}

int TabellaVerifiche::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : Colonne;
}

QVariant TabellaVerifiche::data(const QModelIndex& indice, int ruolo) const {
  const auto posto = static_cast<std::size_t>(indice.row());
  if (!indice.isValid() || posto >= modello_.Quante()) return {};
  const Segnalazione& s = modello_.Voce(posto);
  if (ruolo == Qt::DecorationRole && indice.column() == Gravita) return IconaSegno(s.regola->severita);
  if (ruolo == Qt::ToolTipRole) return AQString(s.regola->motivo);
  if (ruolo != Qt::DisplayRole) return {};
  switch (indice.column()) {
  case Gravita:
    return AQString(NomeSeverita(s.regola->severita));
  case Riga:
    return AQString(PannelloVerifiche::NumeroRiga(s));
  case Codice:
    return AQString(s.regola->codice);
  case Frase:
    return AQString(Testo(s, PannelloVerifiche::PrimaRiga));
  default:
    return s.rimedio.empty() ? QString() : QStringLiteral("Alt+Invio");
  }
}

QVariant TabellaVerifiche::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  static const std::array titoli = {QStringLiteral("Gravità"), QStringLiteral("Riga"), QStringLiteral("Codice"),
                                    QStringLiteral("Segnalazione"), QStringLiteral("Rimedio")};
  if (verso != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  return titoli.at(static_cast<std::size_t>(sezione));
}

ElencoVerifiche::ElencoVerifiche(PannelloVerifiche& modello, QWidget* padre)
    : QWidget(padre), modello_(modello), dati_(new TabellaVerifiche(modello, this)), vista_(new QTreeView(this)),
      cerca_(new QLineEdit(this)) {
  setObjectName(QStringLiteral("ElencoVerifiche"));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaBarra());
  colonna->addWidget(vista_, 1);
  CreaTabella();
  connect(cerca_, &QLineEdit::textChanged, this, [this](const QString& testo) {
    modello_.Cerca(DaQString(testo));
    Mostra();
  });
}

QToolButton* ElencoVerifiche::Bottone(const QString& testo, const QString& spiegazione, const char* nome) {
  auto* bottone = new QToolButton(this);
  bottone->setObjectName(QString::fromLatin1(nome));
  bottone->setText(testo);
  bottone->setToolTip(spiegazione);
  bottone->setAutoRaise(true);
  bottone->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bottone->setFocusPolicy(Qt::TabFocus);
  return bottone;
}

void ElencoVerifiche::AggiungiFiltri(QBoxLayout& riga) {
  for (const Severita severita : Severe) {
    QToolButton*& filtro = filtri_.at(static_cast<std::size_t>(severita));
    filtro = Bottone({}, QStringLiteral("Mostra o nasconde queste segnalazioni"), "Filtro");
    filtro->setIcon(IconaSegno(severita));
    filtro->setCheckable(true);
    filtro->setChecked(true);
    connect(filtro, &QToolButton::toggled, this, [this, severita](bool si) {
      modello_.Mostra(severita, si);
      Mostra();
    });
    riga.addWidget(filtro);
  }
}

QWidget* ElencoVerifiche::CreaBarra() {
  auto* barra = new QWidget(this);
  auto* riga = new QHBoxLayout(barra);
  riga->setContentsMargins(6, 2, 6, 2);
  AggiungiFiltri(*riga);
  cerca_->setProperty("cerca", true);
  cerca_->setPlaceholderText(QStringLiteral("Cerca nelle segnalazioni"));
  cerca_->setClearButtonEnabled(true);
  riga->addWidget(cerca_, 1);
  rimedio_ = Bottone(QStringLiteral("Rimedio"),
                     QStringLiteral("Mette la riga proposta (Alt+Invio); si annulla con Ctrl+Z"), "Rimedio");
  rimedio_->setIcon(Icona(QStringLiteral("modifica")));
  connect(rimedio_, &QToolButton::clicked, this, &ElencoVerifiche::RimedioRichiesto);
  auto* copia =
      Bottone(QStringLiteral("Copia"), QStringLiteral("Copia negli appunti le segnalazioni mostrate"), "Copia");
  copia->setIcon(Icona(QStringLiteral("copia")));
  connect(copia, &QToolButton::clicked, this, &ElencoVerifiche::CopiaRichiesta);
  auto* stampa =
      Bottone(QStringLiteral("Stampa"), QStringLiteral("Le segnalazioni mostrate come rapporto da stampare"), "Stampa");
  stampa->setIcon(Icona(QStringLiteral("stampa")));
  connect(stampa, &QToolButton::clicked, this, &ElencoVerifiche::StampaRichiesta);
  auto* chiudi = Bottone({}, QStringLiteral("Chiude l'elenco (Ctrl+F8)"), "Chiudi");
  chiudi->setIcon(Icona(QStringLiteral("chiudi")));
  connect(chiudi, &QToolButton::clicked, this, &ElencoVerifiche::ChiusuraRichiesta);
  for (QWidget* bottone : {rimedio_, copia, stampa, chiudi}) riga->addWidget(bottone);
  return barra;
}

void ElencoVerifiche::CreaTabella() {
  vista_->setObjectName(QStringLiteral("Segnalazioni"));
  vista_->setModel(dati_);
  vista_->setRootIsDecorated(false);
  vista_->setUniformRowHeights(true);
  vista_->setAlternatingRowColors(true);
  vista_->setFrameShape(QFrame::NoFrame);
  vista_->header()->setSectionsClickable(true);
  vista_->header()->setStretchLastSection(false);
  constexpr std::array larghe = {86, 56, 64, 400, 84};
  for (int i = 0; i < TabellaVerifiche::Colonne; ++i)
    vista_->header()->resizeSection(i, larghe.at(static_cast<std::size_t>(i)));
  vista_->header()->setSectionResizeMode(TabellaVerifiche::Frase, QHeaderView::Stretch);
  connect(vista_->header(), &QHeaderView::sectionClicked, this, [this](int colonna) {
    if (colonna == TabellaVerifiche::Rimedio) return;
    modello_.Ordina(OrdineDi(colonna));
    Mostra();
  });
  connect(vista_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& adesso) {
    if (!mostra_ && adesso.isValid()) emit Scelta(static_cast<std::size_t>(adesso.row()));
  });
  connect(vista_, &QTreeView::clicked, this, [this](const QModelIndex& indice) {
    if (modello_.Scelta() != static_cast<std::size_t>(indice.row()))
      emit Scelta(static_cast<std::size_t>(indice.row()));
  });
}

void ElencoVerifiche::Mostra() {
  const QScopedValueRollback mostra(mostra_, true);
  // The place where the user has scrolled to stays while the list is the same.
  if (std::exchange(versione_, modello_.Versione()) != modello_.Versione()) dati_->Rifai();
  for (const Severita severita : Severe)
    filtri_.at(static_cast<std::size_t>(severita))
        ->setText(QString::number(QuanteDi(modello_.Esito().Quante(), severita)));
  MostraScelta();
}

void ElencoVerifiche::MostraScelta() {
  const auto scelta = modello_.Scelta();
  if (scelta) {
    const QModelIndex indice = dati_->index(static_cast<int>(*scelta), 0);
    vista_->setCurrentIndex(indice);
    vista_->scrollTo(indice);
  }
  rimedio_->setEnabled(scelta && !modello_.Voce(*scelta).rimedio.empty());
}

} // namespace lirmeto::ui
