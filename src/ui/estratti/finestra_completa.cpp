#include <ui/estratti/finestra_completa.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <base/testo.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraCompleta::FinestraCompleta(CompletaAutoallestito& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), particelle_(new QListWidget(this)), righe_(new QStringListModel(this)),
      rigaZero_(new QLabel(this)), comune_(new QLabel(this)), codice_(new QLabel(this)) {
  setObjectName(QStringLiteral("CompletaAutoallestito"));
  setWindowTitle(AQString(modello_.Titolo));
  particelle_->setObjectName(QStringLiteral("List1"));
  particelle_->setFont(FontMonospazio(9));
  auto* sinistra = new QVBoxLayout;
  sinistra->addWidget(ColonnaElenco(QStringLiteral("Particelle"), *particelle_), 2);
  sinistra->addWidget(TitoloGruppo(QStringLiteral("Righe del file"), this));
  sinistra->addWidget(CreaRighe(), 3);
  auto* destra = new QVBoxLayout;
  destra->addWidget(CreaTestata());
  destra->addWidget(CreaParticella());
  destra->addStretch(1);
  auto* piano = new QHBoxLayout;
  piano->setSpacing(16);
  piano->addLayout(sinistra, 3);
  piano->addLayout(destra, 2);
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Salva"), *this);
  piede.conferma->setAutoDefault(false);
  piede.conferma->setDefault(false);
  connect(piede.conferma, &QPushButton::clicked, this, [this] { Fa([this] { modello_.Salva(); }); });
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 8, 12, 12);
  colonna->setSpacing(10);
  colonna->addLayout(piano, 1);
  colonna->addLayout(piede.riga);
  connect(particelle_, &QListWidget::currentRowChanged, this, [this](int riga) {
    if (riga >= 0) Fa([this, riga] { modello_.Seleziona(static_cast<std::size_t>(riga)); });
  });
  AdattaAlloSchermo(*this, 1000, 600);
  Mostra();
}

QWidget* FinestraCompleta::CreaRighe() {
  auto* file = new QListView(this);
  file->setObjectName(QStringLiteral("List2"));
  file->setAccessibleName(QStringLiteral("Righe del file"));
  file->setModel(righe_);
  file->setUniformItemSizes(true);
  file->setFont(FontMonospazio(9));
  file->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return file;
}

QWidget* FinestraCompleta::CreaTestata() {
  auto* gruppo = new QWidget(this);
  auto* griglia = new QGridLayout(gruppo);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setColumnStretch(1, 1);
  rigaZero_->setObjectName(QStringLiteral("Label2"));
  rigaZero_->setFont(FontMonospazio(9));
  rigaZero_->setWordWrap(true);
  rigaZero_->setTextFormat(Qt::PlainText);
  comune_->setObjectName(QStringLiteral("EtichettaComune"));
  griglia->addWidget(TitoloGruppo(QStringLiteral("Estratto"), gruppo), 0, 0, 1, 3);
  griglia->addWidget(rigaZero_, 1, 0, 1, 3);
  griglia->addWidget(new QLabel(QStringLiteral("Comune"), gruppo), 2, 0);
  griglia->addWidget(comune_, 2, 1);
  griglia->addWidget(
      CreaBottone(QStringLiteral("Scegli"), QStringLiteral("ScegliComune"), [this] { modello_.ScegliComune(); }), 2, 2);
  QLineEdit* foglio = AggiungiCasella(*griglia, QStringLiteral("Foglio"), QStringLiteral("Foglio"), modello_.Foglio);
  connect(foglio, &QLineEdit::editingFinished, this, [this] { Fa([this] { modello_.LasciaFoglio(); }); });
  griglia->addWidget(CreaBottone(QStringLiteral("Aggiorna Riga 0"), QStringLiteral("RicalcolaAutoAllestito"),
                                 [this] { modello_.RicalcolaAutoAllestito(); }),
                     griglia->rowCount(), 1, 1, 2, Qt::AlignRight);
  return gruppo;
}

QWidget* FinestraCompleta::CreaParticella() {
  auto* gruppo = new QWidget(this);
  auto* griglia = new QGridLayout(gruppo);
  griglia->setContentsMargins(0, 8, 0, 0);
  griglia->setColumnStretch(1, 1);
  griglia->addWidget(TitoloGruppo(QStringLiteral("Particella"), gruppo), 0, 0, 1, 3);
  griglia->addWidget(CreaQualita(), 1, 0, 1, 3);
  QLineEdit* descrizione = AggiungiCasella(*griglia, QStringLiteral("Descrizione"),
                                           QStringLiteral("DescrizioneParticella"), modello_.DescrizioneParticella);
  descrizione->setMaxLength(12);
  griglia->addWidget(codice_, griglia->rowCount() - 1, 2);
  codice_->setObjectName(QStringLiteral("CodiceParticella"));
  (void)AggiungiCasella(*griglia, QStringLiteral("Classe"), QStringLiteral("QualitaParticella"),
                        modello_.QualitaParticella);
  (void)AggiungiCasella(*griglia, QStringLiteral("Superficie"), QStringLiteral("Superficie"), modello_.Superficie);
  griglia->addWidget(Tenue(QStringLiteral("mq"), gruppo), griglia->rowCount() - 1, 2);
  griglia->addWidget(CreaBottone(QStringLiteral("Aggiorna Particella"), QStringLiteral("RicalcolaParticella"),
                                 [this] { modello_.RicalcolaParticella(); }),
                     griglia->rowCount(), 1, 1, 2, Qt::AlignRight);
  return gruppo;
}

QWidget* FinestraCompleta::CreaQualita() {
  auto* gruppo = new QWidget(this);
  auto* griglia = new QGridLayout(gruppo);
  griglia->setContentsMargins(0, 0, 0, 4);
  constexpr int perRiga = 2;
  int quante = 0;
  for (std::size_t i = 0; i < CompletaAutoallestito::Qualita.size(); ++i) {
    if (!modello_.Visibile(i)) continue;
    griglia->addWidget(CreaBottone(AQString(CompletaAutoallestito::Qualita.at(i).descrizione),
                                   QStringLiteral("Qualita_%1").arg(i), [this, i] { modello_.ScegliQualita(i); }),
                       quante / perRiga, quante % perRiga);
    ++quante;
  }
  return gruppo;
}

QLineEdit* FinestraCompleta::AggiungiCasella(QGridLayout& griglia, const QString& titolo, const QString& nome,
                                             std::string& valore) {
  QLineEdit* casella = ui::AggiungiCasella(griglia, titolo, nome, valore, this);
  caselle_.push_back({casella, &valore});
  return casella;
}

// Enter ends the typing of a box and presses no button.
QPushButton* FinestraCompleta::CreaBottone(const QString& testo, const QString& nome,
                                           const std::function<void()>& azione) {
  auto* bottone = new QPushButton(testo, this);
  bottone->setObjectName(nome);
  bottone->setAutoDefault(false);
  connect(bottone, &QPushButton::clicked, this, [this, azione] { Fa(azione); });
  return bottone;
}

void FinestraCompleta::Fa(const std::function<void()>& azione) {
  azione();
  Mostra();
}

void FinestraCompleta::Mostra() {
  MostraElenchi();
  // Bars break nowhere: blanks that have no width let the row go on in the next line.
  rigaZero_->setText(AQString(modello_.Label2).replace(u'|', QStringLiteral("|\u200B")));
  comune_->setText(AQString(modello_.EtichettaComune));
  codice_->setText(modello_.CodiceParticella.empty() ? QString()
                                                     : QStringLiteral("Codice ") + AQString(modello_.CodiceParticella));
  for (const auto& [riga, valore] : caselle_)
    if (DaQString(riga->text()) != *valore) riga->setText(AQString(*valore));
}

void FinestraCompleta::MostraElenchi() {
  const QSignalBlocker muto(particelle_);
  QStringList righe;
  for (const std::string& riga : modello_.List2) righe.append(PerDisegno(riga));
  if (righe_->stringList() != righe) righe_->setStringList(righe);
  particelle_->clear();
  for (const std::string& riga : modello_.List1) particelle_->addItem(PerDisegno(riga));
  particelle_->setCurrentRow(static_cast<int>(modello_.Indice));
}

} // namespace lirmeto::ui
