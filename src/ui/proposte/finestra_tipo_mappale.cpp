#include <ui/proposte/finestra_tipo_mappale.h>

#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/testo_qt.h>
#include <ui/proposte/parti_censuario.h>

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1120;

QLabel* Spiegazione(const QString& testo, QWidget* padre) {
  auto* etichetta = Tenue(testo, padre);
  etichetta->setContentsMargins(0, 8, 0, 0); // NOLINT(readability-magic-numbers)
  etichetta->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return etichetta;
}

} // namespace

FinestraTipoMappale::FinestraTipoMappale(KR_NuovaCostruzione& modello, QWidget* padre)
    : FinestraCensuario(modello, padre) {
  auto* corpo = new QWidget(this);
  auto* colonna = new QVBoxLayout(corpo);
  colonna->setContentsMargins(0, 4, 0, 0);
  auto* nomi = new QListWidget(this);
  nomi->setObjectName(QStringLiteral("List3"));
  nomi->setFlow(QListView::LeftToRight);
  nomi->setWrapping(true);
  nomi->setResizeMode(QListView::Adjust);
  constexpr int spazio = 8;
  nomi->setSpacing(spazio);
  nomi->setAccessibleName(QStringLiteral("Nome temporaneo della nuova particella"));
  for (const std::string& nome : modello.List3) nomi->addItem(AQString(nome));
  connect(nomi, &QListWidget::itemClicked, this, [this, &modello, nomi](const QListWidgetItem* voce) {
    modello.ScegliNome(static_cast<std::size_t>(nomi->row(voce)));
    Mostra();
  });
  colonna->addWidget(TitoloGruppo(QStringLiteral("Nome temporaneo della nuova particella"), this));
  constexpr int altezzaNomi = 96;
  nomi->setFixedHeight(altezzaNomi);
  colonna->addWidget(nomi);
  corpo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  connect(&Memo(), &ElencoCensuario::DoppioClic, this, [this, &modello](std::size_t riga) {
    modello.DoppioClickMemo(riga);
    Mostra();
  });
  Memo().setToolTip(QStringLiteral("Doppio clic: toglie la riga dal memo"));
  constexpr int altezza = 560;
  Completa(corpo, Larghezza, altezza);
}

FinestraTipoMappale::FinestraTipoMappale(KR_TMVariazione& modello, QWidget* padre) : FinestraCensuario(modello, padre) {
  constexpr int altezza = 460;
  Completa(Spiegazione(QStringLiteral("La particella varia e mantiene il numero: diventa ente urbano, senza classe, "
                                      "qualunque fosse la sua qualità."),
                       this),
           Larghezza, altezza);
}

} // namespace lirmeto::ui
