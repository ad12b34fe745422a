#include <ui/libretto/finestra_scartate.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/modello_classe.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraScartate::FinestraScartate(FormRigheScartate& modello, QWidget* padre) : QDialog(padre), modello_(modello) {
  setWindowTitle(QStringLiteral("Righe scartate dal riordino"));
  auto* spiega =
      new QLabel(QStringLiteral("Queste righe non appartengono a nessuna classe e non sono più nel libretto. "
                                "«Annulla» del menu Modifica Libretto le rimette al loro posto."),
                 this);
  spiega->setWordWrap(true);
  auto* lista = new QListView(this);
  auto* righe = new ModelloClasse(modello_.Righe(), FontMonospazio(10), lista);
  lista->setModel(righe);
  lista->setUniformItemSizes(true);
  lista->setFont(FontMonospazio(10));
  lista->setAccessibleName(windowTitle());
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  righe->Ricarica();
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(spiega);
  colonna->addWidget(lista, 1);
  colonna->addWidget(CreaPiede());
  AdattaAlloSchermo(*this, 760, 420);
}

QWidget* FinestraScartate::CreaPiede() {
  auto* piede = new QWidget(this);
  auto* riga = new QHBoxLayout(piede);
  riga->setContentsMargins(0, 0, 0, 0);
  auto* copia = new QPushButton(Icona(QStringLiteral("copia")), QStringLiteral("Copia negli Appunti"), this);
  auto* chiudi = new QPushButton(QStringLiteral("Chiudi"), this);
  copia->setObjectName(QStringLiteral("Copia"));
  copia->setAutoDefault(false);
  chiudi->setObjectName(QStringLiteral("Chiudi"));
  chiudi->setDefault(true);
  connect(copia, &QPushButton::clicked, this, [this] { modello_.Copia(); });
  connect(chiudi, &QPushButton::clicked, this, [this] {
    modello_.Chiudi();
    accept();
  });
  riga->addWidget(copia);
  riga->addStretch(1);
  riga->addWidget(chiudi);
  return piede;
}

} // namespace lirmeto::ui
