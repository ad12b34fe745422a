#include <ui/fiduciali/finestra_importa_fiduciali.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

void Riempi(QListWidget& elenco, const std::vector<std::string>& righe) {
  elenco.clear();
  for (const std::string& riga : righe) elenco.addItem(AQString(riga));
}

} // namespace

FinestraImportaFiduciali::FinestraImportaFiduciali(FormImportaFiduciali& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), libretto_(new QListWidget(this)), taf_(new QListWidget(this)),
      quote_(new QCheckBox(QStringLiteral("Aggiungi Righe Quota"), this)), conto_(new QLabel(this)) {
  setWindowTitle(modello_.DaEstratto() ? QStringLiteral("Importa Fiduciali da Estratto")
                                       : QStringLiteral("Importa Fiduciali da TAF"));
  quote_->setVisible(!modello_.DaEstratto()); // an extract tells no heights
  quote_->setChecked(modello_.AggiungiRigheQuota);
  auto* sotto = new QHBoxLayout;
  sotto->addWidget(quote_);
  sotto->addStretch(1);
  sotto->addWidget(conto_);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addLayout(CreaElenchi(), 1);
  colonna->addLayout(sotto);
  colonna->addLayout(CreaPiede());
  connect(quote_, &QCheckBox::toggled, this, [this](bool si) {
    modello_.CambiaRigheQuota(si);
    Mostra();
  });
  Mostra();
  AdattaAlloSchermo(*this, 900, 480);
}

QHBoxLayout* FinestraImportaFiduciali::CreaElenchi() {
  for (QListWidget* elenco : {libretto_, taf_}) elenco->setFont(FontMonospazio(10));
  auto* elenchi = new QHBoxLayout;
  elenchi->setSpacing(12);
  elenchi->addWidget(ColonnaElenco(QStringLiteral("Pieffe Trovati nel Libretto"), *libretto_), 2);
  elenchi->addWidget(ColonnaElenco(modello_.DaEstratto() ? QStringLiteral("Pieffe dell'Estratto")
                                                         : QStringLiteral("Pieffe Trovati in Taf"),
                                   *taf_),
                     5);
  taf_->setUniformItemSizes(false); // rows of every length: the longest is what can be scrolled to
  taf_->setTextElideMode(Qt::ElideNone);
  return elenchi;
}

QHBoxLayout* FinestraImportaFiduciali::CreaPiede() {
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Sostituisci Righe 8"), *this);
  piede.conferma->setToolTip(
      QStringLiteral("Le righe 8 dei punti trovati lasciano il posto a quelle dell'elenco a destra; le altre restano. "
                     "«Annulla» del menu Modifica Libretto rimette quelle di prima."));
  auto* importa = new QPushButton(Icona(QStringLiteral("importa")), QStringLiteral("Importa TAF e Misurate"), this);
  importa->setObjectName(QStringLiteral("Importa"));
  importa->setVisible(!modello_.DaEstratto());
  importa->setAutoDefault(false);
  piede.riga->insertWidget(0, importa);
  connect(piede.conferma, &QPushButton::clicked, this, [this] {
    modello_.SostituisciRighe8();
    if (modello_.Chiusa) accept();
  });
  connect(importa, &QPushButton::clicked, this, [this] {
    modello_.Importa();
    Mostra();
  });
  return piede.riga;
}

void FinestraImportaFiduciali::Mostra() {
  Riempi(*libretto_, modello_.List1);
  Riempi(*taf_, modello_.List2);
  conto_->setText(QStringLiteral("In %1 %2 di %3")
                      .arg(modello_.DaEstratto() ? QStringLiteral("Estratto") : QStringLiteral("TAF"))
                      .arg(modello_.PuntiInTaf)
                      .arg(modello_.List1.size()));
}

} // namespace lirmeto::ui
