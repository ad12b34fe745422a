#include <ui/proposte/finestra_censuario.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/testo_qt.h>
#include <ui/libretto/riga_di_stato.h>
#include <ui/proposte/parti_censuario.h>

#include <core/posizione_form.h>

#include <QHBoxLayout>
#include <QListView>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraCensuario::FinestraCensuario(FormCensuario& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello),
      composizione_(new ElencoCensuario(QStringLiteral("Righe della particella"), modello.List1, this)),
      memo_(new ElencoCensuario(QStringLiteral("Memo"), modello.Memo(), this)), stato_(new RigaDiStato(this)),
      rilievi_(new ElencoRilievi(this)) {
  setObjectName(AQString(modello.NomeForm()));
  composizione_->Vista().setObjectName(QStringLiteral("List1"));
  memo_->Vista().setObjectName(QStringLiteral("Memo"));
  stato_->setObjectName(QStringLiteral("RigaSpiegata"));
  Collega();
}

void FinestraCensuario::Collega() {
  for (ElencoCensuario* elenco : {composizione_, memo_})
    connect(elenco, &ElencoCensuario::Corrente, this,
            [this](const QString& riga) { stato_->MostraRiga(DaQString(riga)); });
  connect(rilievi_, &ElencoRilievi::Scelto, this, [this](ElencoRilievi::Dove dove, std::size_t riga) {
    (dove == ElencoRilievi::Dove::Memo ? memo_ : composizione_)->VaiA(riga);
  });
}

void FinestraCensuario::Completa(QWidget* corpo, int larghezza, int altezza) {
  auto* righe = new QHBoxLayout;
  righe->addWidget(composizione_, 1);
  righe->addWidget(memo_, 1);
  auto* dentro = new QVBoxLayout;
  dentro->setContentsMargins(10, 4, 10, 8);
  dentro->setSpacing(4);
  dentro->addWidget(corpo, 3);
  dentro->addLayout(righe, 2);
  dentro->addWidget(stato_);
  dentro->addWidget(rilievi_);
  rilievi_->setFixedHeight(rilievi_->sizeHint().height());
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaPulsantiera(modello_.Pulsanti(), this, [this](int indice) { Premi(indice); }));
  colonna->addLayout(dentro, 1);
  AdattaAlloSchermo(*this, larghezza, altezza);
  RimettiAlPosto(*this, LeggiPosizione(modello_.Dintorni().impostazioni, modello_.NomeForm()));
  Mostra();
}

void FinestraCensuario::Premi(int indice) {
  modello_.Premi(indice);
  Mostra();
  if (modello_.Chiusa) accept();
}

void FinestraCensuario::Mostra() {
  setWindowTitle(AQString(modello_.Titolo));
  composizione_->Ricarica();
  memo_->Ricarica();
  MostraRilievi();
}

void FinestraCensuario::MostraRilievi() {
  rilievi_->Mostra(modello_.Rilievi(), modello_.RilieviList1(), modello_.RilieviMemo());
}

void FinestraCensuario::done(int esito) {
  ScriviPosizione(modello_.Dintorni().impostazioni, modello_.NomeForm(), {x(), y(), width(), height()});
  QDialog::done(esito);
}

} // namespace lirmeto::ui
