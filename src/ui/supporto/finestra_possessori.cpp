#include <ui/supporto/finestra_possessori.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/invito_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraPossessori::FinestraPossessori(ArchivioPossessori& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), file_(new QListWidget(this)), righe_(new QListWidget(this)) {
  MettiInvito(*file_, QStringLiteral("Nessun archivio di possessori nella cartella dei dati."));
  setWindowTitle(QStringLiteral("Archivio Possessori"));
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Associa"), *this);
  auto* elimina = new QPushButton(Icona(QStringLiteral("elimina")), QStringLiteral("Elimina File"), this);
  elimina->setObjectName(QStringLiteral("Elimina"));
  elimina->setAutoDefault(false);
  piede.riga->insertWidget(0, elimina);
  connect(piede.conferma, &QPushButton::clicked, this, [this] { Esegui(ArchivioPossessori::IndiceAssocia); });
  connect(elimina, &QPushButton::clicked, this, [this] { Esegui(ArchivioPossessori::IndiceElimina); });
  auto* piano = new QHBoxLayout;
  piano->setSpacing(12);
  piano->addWidget(ColonnaElenco(QStringLiteral("File"), *file_), 2);
  piano->addWidget(ColonnaElenco(QStringLiteral("Possessori"), *righe_), 5);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addLayout(piano, 1);
  colonna->addLayout(piede.riga);
  Collega();
  MostraFile();
  AdattaAlloSchermo(*this, 860, 480);
}

void FinestraPossessori::Collega() {
  connect(file_, &QListWidget::currentRowChanged, this, [this](int riga) {
    if (riga < 0) return;
    modello_.ScegliFile(static_cast<std::size_t>(riga));
    MostraRighe();
  });
  connect(righe_, &QListWidget::currentRowChanged, this, [this](int riga) {
    if (riga >= 0) modello_.ScegliRiga(static_cast<std::size_t>(riga));
  });
  connect(righe_, &QListWidget::itemDoubleClicked, this, [this] { Esegui(ArchivioPossessori::IndiceAssocia); });
}

void FinestraPossessori::Esegui(int indice) {
  modello_.Esegui(indice);
  if (modello_.Chiusa) return accept();
  MostraFile();
}

void FinestraPossessori::MostraFile() {
  const QSignalBlocker blocco(file_);
  file_->clear();
  for (const std::string& nome : modello_.File1) file_->addItem(AQString(nome));
  file_->setCurrentRow(static_cast<int>(modello_.IndiceFile));
  MostraRighe();
}

void FinestraPossessori::MostraRighe() {
  const QSignalBlocker blocco(righe_);
  righe_->clear();
  for (const std::string& riga : modello_.List1) righe_->addItem(AQString(riga));
  righe_->setCurrentRow(static_cast<int>(modello_.IndiceRiga));
}

} // namespace lirmeto::ui
