#include <ui/tavolo.h>

#include <ui/comune/cursore_attesa.h>
#include <ui/comune/dialoghi_qt.h>
#include <ui/comune/menu_elenchi.h>
#include <ui/comune/tastiera.h>

#include <applicazione/forme.h>
#include <core/mostra_errore.h>

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <set>

namespace lirmeto::prova {
namespace {

struct Didascalia {
  const QWidget* widget;
  QString testo;
};

// Captions of boxes, and buttons that show one.
std::vector<Didascalia> Didascalie(const QWidget& finestra) {
  std::vector<Didascalia> didascalie;
  QSet<const QWidget*> chiamati;
  for (const QLabel* etichetta : finestra.findChildren<QLabel*>()) {
    if (etichetta->buddy() == nullptr || !etichetta->isVisible()) continue;
    didascalie.push_back({etichetta, etichetta->text()});
    chiamati.insert(etichetta->buddy());
  }
  for (const QAbstractButton* bottone : finestra.findChildren<QAbstractButton*>()) {
    const bool daTastiera = (bottone->focusPolicy() & Qt::TabFocus) != 0;
    const auto* strumento = qobject_cast<const QToolButton*>(bottone);
    const bool diBarra = strumento != nullptr && strumento->defaultAction() != nullptr;
    const bool soloFigura =
        strumento != nullptr && strumento->toolButtonStyle() == Qt::ToolButtonIconOnly && !strumento->icon().isNull();
    if (bottone->isVisible() && daTastiera && !diBarra && !soloFigura && !chiamati.contains(bottone))
      didascalie.push_back({bottone, bottone->text()});
  }
  return didascalie;
}

void ControllaLettere(const QWidget& finestra) {
  const auto didascalie = Didascalie(finestra);
  std::map<QChar, QString> lettere;
  for (const Didascalia& una : didascalie) {
    const qsizetype segno = una.testo.indexOf(u'&');
    if (segno < 0) continue;
    const QChar lettera = una.testo[segno + 1].toUpper();
    EXPECT_FALSE(lettere.contains(lettera))
        << lettere[lettera].toStdString() << " e " << una.testo.toStdString() << ": la stessa lettera";
    lettere[lettera] = una.testo;
  }
  for (const Didascalia& una : didascalie) {
    if (una.testo.contains(u'&')) continue;
    for (const QChar lettera : una.testo.toUpper())
      EXPECT_TRUE(lettera < u'A' || lettera > u'Z' || lettere.contains(lettera))
          << una.testo.toStdString() << " poteva avere una lettera";
  }
}

// The part of it that is seen.
QRect Posto(const QWidget& widget) {
  const QRect vista = widget.visibleRegion().boundingRect();
  return {widget.mapTo(widget.window(), vista.topLeft()), vista.size()};
}

// Whether the eye goes back from one to the other: neither to the right nor below, nor to the top of a column to the
// right.
bool TornaIndietro(const QRect& da, const QRect& a) {
  const bool insu = a.bottom() < da.top() && a.left() < da.right();
  const bool indietro = a.right() < da.left() && a.top() <= da.bottom() && a.bottom() >= da.top();
  return insu || indietro;
}

// Round the whole window the Tab key goes back once, from the last widget to the first.
void ControllaTab(QWidget& finestra) {
  std::vector<const QWidget*> giro;
  const QWidget* widget = &finestra;
  do {
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->window() == &finestra &&
        widget->focusProxy() == nullptr && !widget->visibleRegion().isEmpty())
      giro.push_back(widget);
    widget = widget->nextInFocusChain();
  } while (widget != &finestra);
  std::string indietro;
  int quante = 0;
  for (std::size_t i = 0; i < giro.size(); ++i) {
    const QWidget* da = giro[i];
    const QWidget* a = giro[(i + 1) % giro.size()];
    if (!TornaIndietro(Posto(*da), Posto(*a))) continue;
    ++quante;
    indietro += std::string(da->metaObject()->className()) + " " + da->objectName().toStdString() + " -> " +
                a->metaObject()->className() + " " + a->objectName().toStdString() + "\n";
  }
  EXPECT_LE(quante, 1) << indietro;
}

// Looks at each modal window that comes up, and closes it.
void GuardaFinestre(std::set<std::string>& viste) {
  Dopo(0, [&viste] {
    QWidget* finestra = QApplication::activeModalWidget();
    if (finestra == nullptr) return;
    const std::string classe = finestra->metaObject()->className();
    SCOPED_TRACE(classe + " " + finestra->windowTitle().toStdString());
    viste.insert(classe);
    QCoreApplication::processEvents();
    ControllaLettere(*finestra);
    ControllaTab(*finestra);
    GuardaFinestre(viste);
    finestra->close();
  });
}

TEST(Tastiera, OgniFormHaLettereDiverseETabSegueLOcchio) {
  std::set<std::string> viste;
  const auto apri = [&](const std::function<void(Tavolo&)>& cosa) {
    Tavolo tavolo;
    tavolo.banco.dialoghi.risposte = {Risposta::Si};
    tavolo.Clicca(2);
    GuardaFinestre(viste);
    cosa(tavolo);
    QCoreApplication::processEvents();
  };
  for (const Forma& form : Forme()) apri([&](Tavolo& tavolo) { tavolo.finestre.Apri(form.nome); });
  for (const Comando comando : {Comando::ModificaDiretta, Comando::MostraRiordino, Comando::StampaLibretto,
                                Comando::Autore, Comando::MostraRigheScartate})
    apri([&](Tavolo& tavolo) { tavolo.modello.Esegui(comando); });
  EXPECT_GE(viste.size(), 18U);
}

TEST(Tastiera, LaFinestraPrincipale) {
  Tavolo tavolo;
  tavolo.Clicca(3);
  ControllaTab(*tavolo.finestra);
  std::set<QChar> deiMenu;
  for (const QAction* menu : tavolo.finestra->menuBar()->actions())
    EXPECT_TRUE(deiMenu.insert(menu->text()[menu->text().indexOf(u'&') + 1].toUpper()).second);
  for (const QLabel* etichetta : tavolo.finestra->findChildren<QLabel*>()) {
    if (etichetta->buddy() == nullptr) continue;
    const qsizetype segno = etichetta->text().indexOf(u'&');
    ASSERT_GE(segno, 0) << etichetta->text().toStdString();
    EXPECT_FALSE(deiMenu.contains(etichetta->text()[segno + 1].toUpper())) << etichetta->text().toStdString();
  }
}

// A caption whose letters are all taken pushes another on to a free one; letters by hand stay.
TEST(Tastiera, QuanteDidascaliePossonoHannoUnaLettera) {
  QWidget finestra;
  auto* colonna = new QVBoxLayout(&finestra);
  QStringList dopo;
  for (const char* testo : {"Ab", "Bd", "A", "&Salva", "ss", "C|"})
    colonna->addWidget(new QPushButton(QString::fromLatin1(testo), &finestra));
  ui::AssegnaMnemoniche(finestra, {QChar(u'C')});
  for (const QPushButton* bottone : finestra.findChildren<QPushButton*>()) dopo.append(bottone->text());
  EXPECT_EQ(dopo.join(u' '), QStringLiteral("A&b B&d &A &Salva ss C|"));
}

TEST(MenuElenchi, CopianoLeRigheScelte) {
  QWidget finestra;
  QListWidget lista(&finestra);
  lista.addItems({QStringLiteral("uno"), QStringLiteral("due"), QStringLiteral("tre")});
  lista.setSelectionMode(QAbstractItemView::ExtendedSelection);
  ui::DaiMenuAgliElenchi(finestra);
  finestra.show();
  QApplication::setActiveWindow(&finestra);
  lista.setFocus();
  lista.setCurrentRow(1);
  EXPECT_EQ(lista.contextMenuPolicy(), Qt::ActionsContextMenu);
  QTest::keyClick(&lista, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("due"));
  QTest::keyClick(&lista, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&lista, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("uno\ndue\ntre"));
}

// The pointer waits while a command runs, and not while the user is asked something.
TEST(CursoreAttesa, SegueIlComando) {
  const auto aspetta = [] { return QGuiApplication::overrideCursor() != nullptr; };
  Banco banco;
  ui::DialoghiQt dialoghi({[](std::string_view) { return QString(); }, [](const QString&) { return std::string(); }});
  Ambiente ambiente{banco.sessione, banco.disco,        dialoghi,      banco.finestre,
                    banco.processi, banco.impostazioni, banco.appunti, banco.orologio};
  std::vector<bool> visto;
  EXPECT_FALSE(Intrappola(ambiente, [&] {
    visto.push_back(aspetta());
    (void)Intrappola(ambiente, [&] {
      Dopo(0, [&] {
        visto.push_back(aspetta());
        QApplication::activeModalWidget()->close();
      });
      (void)dialoghi.Chiedi("?", "Prova", Bottoni::SiNo);
    });
    visto.push_back(aspetta());
    throw Errore(errore::DialogoAnnullato);
  }));
  visto.push_back(aspetta());
  EXPECT_EQ(visto, (std::vector<bool>{true, false, true, false}));
}

} // namespace
} // namespace lirmeto::prova
