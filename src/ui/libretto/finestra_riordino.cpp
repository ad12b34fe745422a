#include <ui/libretto/finestra_riordino.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/modello_classe.h>
#include <ui/comune/testo_qt.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace lirmeto::ui {

namespace {

// Index of the class shown first: the one with the most rows.
std::size_t PiuNumerosa(const FormRiordinoRighe& modello) {
  const auto& classi = FormRiordinoRighe::Classi();
  const auto meno = [&](const auto& a, const auto& b) {
    return modello.Righe[a.classe].size() < modello.Righe[b.classe].size();
  };
  return static_cast<std::size_t>(std::max_element(classi.begin(), classi.end(), meno) - classi.begin());
}

} // namespace

FinestraRiordino::FinestraRiordino(FormRiordinoRighe& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), pila_(new QStackedWidget(this)), titolo_(new QLabel(this)),
      iscrizione_(new QLabel(this)), codiceFiscale_(new QLabel(this)) {
  setWindowTitle(QStringLiteral("Riordino Righe"));
  auto* piano = new QHBoxLayout;
  piano->setSpacing(12);
  piano->addWidget(CreaColonna());
  auto* testata = new QHBoxLayout;
  testata->addWidget(titolo_, 1);
  testata->addWidget(Tenue(QStringLiteral("Canc o doppio clic su una riga per eliminarla"), this), 0, Qt::AlignBottom);
  titolo_->setObjectName(QStringLiteral("TitoloGruppo"));
  auto* destra = new QVBoxLayout;
  destra->addLayout(testata);
  destra->addWidget(pila_, 1);
  piano->addLayout(destra, 1);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addLayout(piano, 1);
  colonna->addWidget(CreaPiede());
  AdattaAlloSchermo(*this, 1080, 640);
  connect(this, &FinestraRiordino::Mostrata, this, &FinestraRiordino::Attiva, Qt::QueuedConnection);
  Mostra();
}

QWidget* FinestraRiordino::CreaColonna() {
  auto* colonna = new QWidget(this);
  auto* griglia = new QGridLayout(colonna);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setHorizontalSpacing(2);
  griglia->setVerticalSpacing(2);
  const auto& classi = FormRiordinoRighe::Classi();
  for (std::size_t i = 0; i < classi.size(); ++i) {
    AggiungiElenco(*griglia, AQString(classi[i].nome), modello_.Righe[classi[i].classe]);
    CollegaClasse(*griglia, i);
  }
  AggiungiElenco(*griglia, QStringLiteral("Senza classe (si perdono)"), modello_.Righe[ClasseRighe::Nessuna]);
  for (const VistaClasse& vista : classi_) scelta_.addButton(vista.bottone);
  griglia->setRowStretch(static_cast<int>(classi_.size()), 1);
  return colonna;
}

void FinestraRiordino::AggiungiElenco(QGridLayout& griglia, const QString& titolo, const ListaRighe& righe) {
  const std::size_t indice = classi_.size();
  auto* bottone = new QPushButton(titolo, this);
  bottone->setObjectName(QStringLiteral("Classe"));
  bottone->setCheckable(true);
  bottone->setAutoDefault(false);
  bottone->setMinimumWidth(230);
  connect(bottone, &QPushButton::clicked, this, [this, indice] { Scegli(indice); });
  auto* quante = new QLabel(this);
  quante->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  quante->setMinimumWidth(56);
  auto* lista = new QListView(this);
  auto* modello = new ModelloClasse(righe, FontMonospazio(10), lista);
  lista->setModel(modello);
  lista->setUniformItemSizes(true);
  lista->setFont(FontMonospazio(10));
  lista->setAccessibleName(titolo);
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  pila_->addWidget(lista);
  griglia.addWidget(bottone, static_cast<int>(indice), 0);
  griglia.addWidget(quante, static_cast<int>(indice), 1);
  classi_.push_back({bottone, quante, nullptr, lista, modello});
}

// The cursor stays where it was, on the row that came up from below.
void FinestraRiordino::SullaRiga(std::size_t indice, int riga,
                                 void (FormRiordinoRighe::*azione)(std::size_t, std::size_t)) {
  if (riga < 0) return;
  (modello_.*azione)(indice, static_cast<std::size_t>(riga));
  Mostra();
  const VistaClasse& vista = classi_[indice];
  vista.lista->setCurrentIndex(vista.righe->index(std::min(riga, vista.righe->rowCount() - 1)));
}

// Delete button, double click and Delete key of the class added last.
void FinestraRiordino::CollegaClasse(QGridLayout& griglia, std::size_t indice) {
  QListView* lista = classi_[indice].lista;
  connect(lista, &QListView::doubleClicked, this, [this, indice](const QModelIndex& posto) {
    SullaRiga(indice, posto.row(), &FormRiordinoRighe::DoppioClick);
  });
  auto* canc = new QShortcut(QKeySequence(Qt::Key_Delete), lista, nullptr, nullptr, Qt::WidgetShortcut);
  connect(canc, &QShortcut::activated, this,
          [this, indice, lista] { SullaRiga(indice, lista->currentIndex().row(), &FormRiordinoRighe::TastoCancella); });
  const FormRiordinoRighe::Classe& classe = FormRiordinoRighe::Classi()[indice];
  if (classe.titolo.empty()) return;
  auto* elimina = new QToolButton(this);
  elimina->setIcon(Icona(QStringLiteral("elimina")));
  elimina->setToolTip(AQString(classe.domanda));
  elimina->setAccessibleName(AQString(classe.titolo));
  elimina->setAutoRaise(true);
  connect(elimina, &QToolButton::clicked, this, [this, indice] {
    Scegli(indice);
    modello_.EliminaClasse(indice);
    Mostra();
  });
  griglia.addWidget(elimina, static_cast<int>(indice), 2);
  classi_[indice].elimina = elimina;
}

QWidget* FinestraRiordino::CreaPiede() {
  auto* piede = new QWidget(this);
  auto* riga = new QHBoxLayout(piede);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->setSpacing(24);
  iscrizione_->setTextFormat(Qt::PlainText);
  codiceFiscale_->setTextFormat(Qt::PlainText);
  auto* conferma = new QPushButton(QStringLiteral("Conferma"), this);
  auto* chiudi = new QPushButton(QStringLiteral("Chiudi"), this);
  conferma->setObjectName(QStringLiteral("Conferma"));
  chiudi->setObjectName(QStringLiteral("Chiudi"));
  conferma->setDefault(true);
  chiudi->setAutoDefault(false);
  connect(conferma, &QPushButton::clicked, this, [this] {
    modello_.Conferma();
    ChiudiSeChiusa();
  });
  connect(chiudi, &QPushButton::clicked, this, &FinestraRiordino::reject);
  riga->addWidget(iscrizione_);
  riga->addWidget(codiceFiscale_);
  riga->addStretch(1);
  riga->addWidget(conferma);
  riga->addWidget(chiudi);
  return piede;
}

// The rows are split when the window first comes up. A message box that goes away makes it active again, which must not
// split them once more: what was deleted would come back.
void FinestraRiordino::showEvent(QShowEvent* evento) {
  QDialog::showEvent(evento);
  if (attivata_) return;
  attivata_ = true;
  emit Mostrata();
}

void FinestraRiordino::Attiva() {
  modello_.AllAttivazione();
  Mostra();
  Scegli(PiuNumerosa(modello_));
}

void FinestraRiordino::Scegli(std::size_t indice) {
  classi_.at(indice).bottone->setChecked(true);
  pila_->setCurrentIndex(static_cast<int>(indice));
  titolo_->setText(classi_[indice].bottone->text().remove(u'&')); // without its letter
}

void FinestraRiordino::Mostra() {
  const QLocale italiano(QLocale::Italian);
  for (const VistaClasse& vista : classi_) {
    vista.righe->Ricarica();
    const int quante = vista.righe->rowCount();
    vista.quante->setText(italiano.toString(quante));
    vista.quante->setEnabled(quante > 0);
    if (vista.elimina != nullptr) vista.elimina->setEnabled(quante > 0);
  }
  const bool scartate = !modello_.Righe[ClasseRighe::Nessuna].empty();
  classi_.back().bottone->setVisible(scartate);
  classi_.back().quante->setVisible(scartate);
  iscrizione_->setText(AQString(modello_.EtichettaIscrizione));
  codiceFiscale_->setText(AQString(modello_.EtichettaCodiceFiscale));
}

void FinestraRiordino::reject() {
  modello_.Chiudi();
  ChiudiSeChiusa();
}

void FinestraRiordino::ChiudiSeChiusa() {
  if (modello_.Chiusa) accept();
}

} // namespace lirmeto::ui
