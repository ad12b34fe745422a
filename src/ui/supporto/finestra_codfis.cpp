#include <ui/supporto/finestra_codfis.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/riquadro_comuni.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraCodFis::FinestraCodFis(KR_CodFis& modello, QWidget* padre) : QDialog(padre), modello_(modello) {
  setWindowTitle(QStringLiteral("Ricerca Comune"));
  auto* riquadro = new RiquadroComuni(modello_, this);
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Copia Codice"), *this);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(riquadro, 1);
  colonna->addLayout(piede.riga);
  connect(riquadro, &RiquadroComuni::Scelto, this, &FinestraCodFis::ChiudiSeChiusa);
  connect(piede.conferma, &QPushButton::clicked, this, [this] {
    modello_.CopiaCodiceFiscale();
    ChiudiSeChiusa();
  });
  AdattaAlloSchermo(*this, 620, 560);
}

void FinestraCodFis::ChiudiSeChiusa() {
  if (modello_.Chiusa) accept();
}

} // namespace lirmeto::ui
