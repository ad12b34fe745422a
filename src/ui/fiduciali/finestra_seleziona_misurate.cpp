#include <ui/fiduciali/finestra_seleziona_misurate.h>

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

FinestraSelezionaMisurate::FinestraSelezionaMisurate(KR_SelezionaMisurate& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), file_(new QListWidget(this)) {
  MettiInvito(*file_, QStringLiteral("Nessun archivio di distanze: premere «Importa TAF e Misurate»."));
  setWindowTitle(QStringLiteral("Selezione Database Distanze Misurate"));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(ColonnaElenco(QStringLiteral("Archivi installati, uno per provincia"), *file_), 1);
  colonna->addLayout(CreaPiede());
  connect(file_, &QListWidget::currentRowChanged, this, [this](int riga) {
    if (riga >= 0) modello_.Scegli(static_cast<std::size_t>(riga));
  });
  connect(file_, &QListWidget::itemDoubleClicked, this, [this] { Esegui(&KR_SelezionaMisurate::SelezionaLeMisurate); });
  Mostra();
  AdattaAlloSchermo(*this, 620, 400);
}

QHBoxLayout* FinestraSelezionaMisurate::CreaPiede() {
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Seleziona"), *this);
  auto* importa = new QPushButton(Icona(QStringLiteral("importa")), QStringLiteral("Importa TAF e Misurate"), this);
  auto* elimina = new QPushButton(Icona(QStringLiteral("elimina")), QStringLiteral("Elimina"), this);
  importa->setObjectName(QStringLiteral("Importa"));
  importa->setAutoDefault(false);
  elimina->setObjectName(QStringLiteral("Elimina"));
  elimina->setAutoDefault(false);
  piede.riga->insertWidget(0, importa);
  piede.riga->insertWidget(1, elimina);
  connect(piede.conferma, &QPushButton::clicked, this, [this] { Esegui(&KR_SelezionaMisurate::SelezionaLeMisurate); });
  connect(importa, &QPushButton::clicked, this, [this] { Esegui(&KR_SelezionaMisurate::Importa); });
  connect(elimina, &QPushButton::clicked, this, [this] { Esegui(&KR_SelezionaMisurate::Elimina); });
  return piede.riga;
}

void FinestraSelezionaMisurate::Esegui(void (KR_SelezionaMisurate::*comando)()) {
  (modello_.*comando)();
  if (modello_.Chiusa) return accept();
  Mostra();
}

void FinestraSelezionaMisurate::Mostra() {
  const QSignalBlocker blocco(file_);
  file_->clear();
  for (const std::string& nome : modello_.File1) file_->addItem(AQString(nome));
  file_->setCurrentRow(static_cast<int>(modello_.Indice));
}

} // namespace lirmeto::ui
