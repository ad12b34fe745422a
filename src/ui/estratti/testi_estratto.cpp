#include <ui/estratti/testi_estratto.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_ricerca.h>
#include <ui/comune/casella_testo.h>

#include <QShortcut>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

TestiEstratto::TestiEstratto(QWidget* padre)
    : QWidget(padre), pagine_(new QTabWidget(this)), ricerca_(new BarraRicerca(this)),
      file_(AggiungiPagina(QStringLiteral("File"), QStringLiteral("TestoFile"))),
      particelle_(AggiungiPagina(QStringLiteral("Particelle"), QStringLiteral("TestoParticelle"))),
      ditte_(AggiungiPagina(QStringLiteral("Intestatari"), QStringLiteral("TestoDitte"))) {
  auto* cerca = new QToolButton(this);
  cerca->setIcon(Icona(QStringLiteral("cerca")));
  cerca->setToolTip(QStringLiteral("Cerca nel testo (Ctrl+F)"));
  cerca->setAutoRaise(true);
  pagine_->setCornerWidget(cerca);
  pagine_->setDocumentMode(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(ricerca_);
  colonna->addWidget(pagine_, 1);
  connect(cerca, &QToolButton::clicked, ricerca_, &BarraRicerca::Apri);
  connect(ricerca_, &BarraRicerca::TestoCambiato, this, &TestiEstratto::Cerca);
  connect(ricerca_, &BarraRicerca::Successiva, this, [this] { Trova(true); });
  connect(ricerca_, &BarraRicerca::Precedente, this, [this] { Trova(false); });
  connect(pagine_, &QTabWidget::currentChanged, this, &TestiEstratto::Cerca);
  const auto tasto = [this](const QKeySequence& tasti, auto&& azione) {
    connect(new QShortcut(tasti, window()), &QShortcut::activated, this, azione);
  };
  tasto(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { ricerca_->Apri(); });
  tasto(QKeySequence(Qt::Key_F3), [this] { Trova(true); });
  tasto(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { Trova(false); });
}

CasellaTesto* TestiEstratto::AggiungiPagina(const QString& titolo, const QString& nome) {
  auto* casella = new CasellaTesto(this);
  casella->setObjectName(nome);
  casella->setAccessibleName(titolo);
  casella->setReadOnly(true);
  casella->CambiaDimensione(9);
  pagine_->addTab(casella, titolo);
  return casella;
}

CasellaTesto& TestiEstratto::InVista() const {
  return *static_cast<CasellaTesto*>(pagine_->currentWidget());
}

// A text that is there already keeps the place where it is looked at.
void TestiEstratto::Mostra(std::string_view file, std::string_view particelle, std::string_view ditte) {
  for (const auto& [casella, testo] :
       {std::pair(file_, file), std::pair(particelle_, particelle), std::pair(ditte_, ditte)}) {
    std::string& mostrato = mostrati_[casella];
    if (mostrato == testo) continue;
    mostrato = testo;
    casella->MettiTesto(testo);
  }
  Cerca();
}

void TestiEstratto::Cerca() {
  if (ricerca_->isVisible()) ricerca_->MostraEsito(0, InVista().RigheCon(ricerca_->Testo()));
}

void TestiEstratto::Trova(bool avanti) {
  if (ricerca_->Testo().isEmpty()) return ricerca_->Apri();
  InVista().Trova(ricerca_->Testo(), avanti);
}

} // namespace lirmeto::ui
