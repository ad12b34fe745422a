#include <ui/proposte/finestra_fusione.h>

#include <ui/comune/colonna_elenco.h>
#include <ui/comune/testo_qt.h>
#include <ui/proposte/parti_censuario.h>

#include <base/percorsi.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

void Riempi(QListWidget& elenco, const std::vector<std::string>& voci) {
  const int riga = elenco.currentRow();
  elenco.clear();
  for (const std::string& voce : voci) elenco.addItem(AQString(NomeDaPercorso(voce)));
  elenco.setCurrentRow(std::min(riga, elenco.count() - 1));
}

} // namespace

FinestraFusione::FinestraFusione(KR_TMFusione& modello, QWidget* padre)
    : FinestraCensuario(modello, padre), modello_(modello), file_(new QListWidget(this)),
      scelte_(new QListWidget(this)) {
  auto* corpo = new QWidget(this);
  auto* piano = new QHBoxLayout(corpo);
  piano->setContentsMargins(0, 0, 0, 0);
  piano->setSpacing(10);
  piano->addWidget(CreaElenchi(), 1);
  piano->addWidget(CreaOpzioni());
  constexpr int larghezza = 1120;
  constexpr int altezza = 640;
  Completa(corpo, larghezza, altezza);
}

QWidget* FinestraFusione::CreaElenchi() {
  auto* dentro = new QWidget(this);
  auto* piano = new QHBoxLayout(dentro);
  piano->setContentsMargins(0, 0, 0, 0);
  file_->setObjectName(QStringLiteral("File1"));
  scelte_->setObjectName(QStringLiteral("List2"));
  piano->addWidget(ColonnaElenco(QStringLiteral("Particelle del foglio (doppio clic: si fonde)"), *file_));
  piano->addWidget(ColonnaElenco(QStringLiteral("Particelle che si fondono (doppio clic: si toglie)"), *scelte_));
  connect(file_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* voce) {
    modello_.Aggiungi(static_cast<std::size_t>(file_->row(voce)));
    Mostra();
  });
  connect(scelte_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* voce) {
    modello_.Togli(static_cast<std::size_t>(scelte_->row(voce)));
    Mostra();
  });
  return dentro;
}

QWidget* FinestraFusione::CreaOpzioni() {
  auto* dentro = new QWidget(this);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(0, 0, 0, 0);
  auto* conserva = new QCheckBox(QStringLiteral("Mantieni il numero dell'ultima"), this);
  conserva->setObjectName(QStringLiteral("Check1"));
  conserva->setChecked(modello_.Check1);
  connect(conserva, &QCheckBox::clicked, this, [this](bool si) {
    modello_.CambiaCheck1(si);
    Mostra();
  });
  colonna->addWidget(TitoloGruppo(QStringLiteral("Particella che nasce"), this));
  colonna->addWidget(conserva);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Sezione"), this));
  auto* sezioni = new QButtonGroup(this);
  for (const char* nome : {"3SPC", "M31FU"}) {
    auto* opzione = new QRadioButton(QString::fromLatin1(nome), this);
    opzione->setObjectName(QStringLiteral("Option1_%1").arg(sezioni->buttons().size()));
    sezioni->addButton(opzione, static_cast<int>(sezioni->buttons().size()));
    colonna->addWidget(opzione);
  }
  sezioni->button(modello_.Option1)->setChecked(true);
  connect(sezioni, &QButtonGroup::idClicked, this, [this](int opzione) {
    modello_.CambiaOption1(opzione);
    Mostra();
  });
  colonna->addStretch(1);
  return dentro;
}

void FinestraFusione::Mostra() {
  Riempi(*file_, modello_.File1);
  Riempi(*scelte_, modello_.List2);
  FinestraCensuario::Mostra();
}

// The files of the sheet may have changed meanwhile.
bool FinestraFusione::event(QEvent* evento) {
  if (evento->type() == QEvent::WindowActivate) {
    modello_.AllAttivazione();
    Riempi(*file_, modello_.File1);
  }
  return FinestraCensuario::event(evento);
}

} // namespace lirmeto::ui
