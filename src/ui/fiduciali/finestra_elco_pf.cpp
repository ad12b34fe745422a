#include <ui/fiduciali/finestra_elco_pf.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/frecce_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <base/testo.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

// "G224   PD   PADOVA"
QString RigaVista(std::string_view riga) {
  const std::string codice = std::string(Parte(riga, '|', 1)) + std::string(Parte(riga, '|', 2));
  return AQString(RiempiECorta(codice, 8) + RiempiECorta(Parte(riga, '|', 0), 5) + std::string(Parte(riga, '|', 4)));
}

} // namespace

FinestraElcoPf::FinestraElcoPf(KR_ElcoPf& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), nome_(new QLineEdit(this)),
      installati_(new QCheckBox(QStringLiteral("Solo i comuni con la TAF &installata"), this)),
      elenco_(new QListView(this)), invito_(new QLabel(this)) {
  setWindowTitle(QStringLiteral("Punti Fiduciali: scelta del Comune"));
  elenco_->setModel(&righe_);
  elenco_->setUniformItemSizes(true);
  elenco_->setFont(FontMonospazio(10));
  elenco_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  elenco_->setAccessibleName(QStringLiteral("Comuni"));
  invito_->setObjectName(QStringLiteral("Posto"));
  installati_->setChecked(modello_.Check1);
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Mostra i Punti"), *this);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(CreaRicerca());
  colonna->addWidget(elenco_, 1);
  colonna->addWidget(invito_);
  colonna->addLayout(piede.riga);
  connect(piede.conferma, &QPushButton::clicked, this, &FinestraElcoPf::Seleziona);
  connect(elenco_, &QListView::doubleClicked, this, &FinestraElcoPf::Seleziona);
  connect(elenco_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& posto) {
    if (posto.isValid()) modello_.Scegli(static_cast<std::size_t>(posto.row()));
  });
  Mostra();
  AdattaAlloSchermo(*this, 560, 480);
}

QWidget* FinestraElcoPf::CreaRicerca() {
  auto* ricerca = new QWidget(this);
  auto* riga = new QHBoxLayout(ricerca);
  riga->setContentsMargins(0, 0, 0, 0);
  auto* titolo = new QLabel(QStringLiteral("&Nome o codice"), this);
  titolo->setBuddy(nome_);
  nome_->setObjectName(QStringLiteral("Text1"));
  nome_->setPlaceholderText(QStringLiteral("inizio del nome o del codice"));
  FrecceAllElenco(*nome_, *elenco_);
  riga->addWidget(titolo);
  riga->addWidget(nome_, 1);
  riga->addWidget(installati_);
  connect(nome_, &QLineEdit::textEdited, this, [this](const QString& testo) {
    modello_.CambiaText1(DaQString(testo));
    Mostra();
  });
  connect(installati_, &QCheckBox::toggled, this, [this](bool si) {
    modello_.CambiaCheck1(si);
    Mostra();
  });
  return ricerca;
}

void FinestraElcoPf::Seleziona() {
  modello_.SelezionaComune();
  if (modello_.Chiusa) accept();
}

void FinestraElcoPf::Mostra() {
  const long indice = modello_.Indice;
  QStringList righe;
  for (const std::string& riga : modello_.List1) righe.append(RigaVista(riga));
  righe_.setStringList(righe);
  elenco_->setCurrentIndex(righe_.index(static_cast<int>(indice)));
  invito_->setText(righe.isEmpty() ? QStringLiteral("Nessun comune trovato: togliere la spunta mostra anche quelli "
                                                    "senza TAF.")
                                   : QStringLiteral("Comuni %L1").arg(righe.size()));
}

} // namespace lirmeto::ui
