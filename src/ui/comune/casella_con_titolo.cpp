#include <ui/comune/casella_con_titolo.h>

#include <ui/comune/testo_qt.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace lirmeto::ui {

QLabel* TitoloGruppo(const QString& testo, QWidget* padre) {
  auto* titolo = new QLabel(testo, padre);
  titolo->setObjectName(QStringLiteral("TitoloGruppo"));
  return titolo;
}

QLabel* Tenue(const QString& testo, QWidget* padre) {
  auto* etichetta = new QLabel(testo, padre);
  etichetta->setObjectName(QStringLiteral("Posto"));
  return etichetta;
}

QLineEdit* AggiungiCasella(QGridLayout& griglia, const QString& titolo, const QString& nome, std::string& valore,
                           QWidget* padre) {
  const int riga = griglia.rowCount();
  auto* casella = new QLineEdit(padre);
  casella->setObjectName(nome);
  casella->setAccessibleName(titolo);
  QObject::connect(casella, &QLineEdit::textEdited, casella,
                   [&valore](const QString& testo) { valore = DaQString(testo); });
  griglia.addWidget(new QLabel(titolo, padre), riga, 0);
  griglia.addWidget(casella, riga, 1);
  return casella;
}

void MettiTesto(QLineEdit& casella, const std::string& testo) {
  const QString nuovo = AQString(testo);
  if (casella.text() == nuovo) return;
  const int posto = casella.cursorPosition();
  casella.setText(nuovo);
  casella.setCursorPosition(posto);
}

} // namespace lirmeto::ui
