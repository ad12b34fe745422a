#include <ui/supporto/finestra_comuni.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/riquadro_comuni.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraComuni::FinestraComuni(KR_Comuni8& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), province_(new QListWidget(this)),
      riquadro_(new RiquadroComuni(modello_, this)) {
  setWindowTitle(QStringLiteral("Comuni per Provincia"));
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Copia Codice"), *this);
  auto* piano = new QHBoxLayout;
  piano->setSpacing(12);
  piano->addWidget(CreaProvince());
  piano->addWidget(riquadro_, 1);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addLayout(piano, 1);
  colonna->addLayout(piede.riga);
  connect(riquadro_, &RiquadroComuni::Scelto, this, &FinestraComuni::ChiudiSeChiusa);
  connect(piede.conferma, &QPushButton::clicked, this, [this] {
    modello_.CopiaCodiceFiscale();
    ChiudiSeChiusa();
  });
  AdattaAlloSchermo(*this, 860, 560);
}

QWidget* FinestraComuni::CreaProvince() {
  for (const CodiceENome& provincia : modello_.Province)
    province_->addItem(AQString(provincia.codice + "  " + provincia.nome));
  province_->setCurrentRow(static_cast<int>(modello_.IndiceProvincia));
  province_->setAccessibleName(QStringLiteral("Province"));
  connect(province_, &QListWidget::currentRowChanged, this, [this](int riga) {
    if (riga < 0) return;
    modello_.ScegliProvincia(static_cast<std::size_t>(riga));
    riquadro_->Ricarica();
  });
  auto* riquadro = new QWidget(this);
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Province"), this));
  colonna->addWidget(province_, 1);
  riquadro->setMaximumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 20);
  return riquadro;
}

void FinestraComuni::ChiudiSeChiusa() {
  if (modello_.Chiusa) accept();
}

} // namespace lirmeto::ui
