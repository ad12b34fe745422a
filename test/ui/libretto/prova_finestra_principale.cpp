#include <ui/tavolo.h>

#include <ui/comune/barra_ricerca.h>
#include <ui/libretto/pannello_pulsanti.h>
#include <ui/libretto/pannello_strumenti.h>
#include <ui/libretto/riga_di_stato.h>

#include <base/testo.h>

#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Indici = std::vector<std::size_t>;

// As a drag from another program: it enters, moves, is let go. The answer is whether the list took it.
bool Lascia(Tavolo& tavolo, const QList<QUrl>& indirizzi, QWidget* dove = nullptr) {
  QMimeData dati;
  dati.setUrls(indirizzi);
  QWidget* sotto = dove == nullptr ? tavolo.vista->viewport() : dove;
  QDragEnterEvent entra({100, 30}, Qt::CopyAction, &dati, Qt::LeftButton, {});
  QCoreApplication::sendEvent(sotto, &entra);
  QDragMoveEvent muove({100, 31}, Qt::CopyAction, &dati, Qt::LeftButton, {});
  QCoreApplication::sendEvent(sotto, &muove);
  QDropEvent lascia(QPointF(100, 31), Qt::CopyAction, &dati, Qt::LeftButton, {});
  QCoreApplication::sendEvent(sotto, &lascia);
  QTest::qWait(1);
  return lascia.isAccepted();
}

QList<QUrl> File(const QStringList& percorsi) {
  QList<QUrl> indirizzi;
  for (const QString& percorso : percorsi) indirizzi.append(QUrl::fromLocalFile(percorso));
  return indirizzi;
}

// --- what it shows

TEST(FinestraPrincipale, MostraIlLibrettoAperto) {
  Tavolo tavolo;
  EXPECT_EQ(tavolo.banco.Righe(), RigheDiProva());
  EXPECT_EQ(Figlio<QLabel>(tavolo, "EtichettaFile").text(), QStringLiteral("C:\\LIBRETTO.DAT"));
  EXPECT_EQ(Figlio<QLabel>(tavolo, "EtichettaFile").font().family(), QStringLiteral("Courier New"));
  EXPECT_EQ(Figlio<QLabel>(tavolo, "EtichettaMisurate").text(), QStringLiteral("Misurate associate : G224.DDD"));
  EXPECT_EQ(tavolo.finestra->windowTitle(), ui::AQString(tavolo.modello.Titolo));
  tavolo.Clicca(3);
  EXPECT_EQ(Figlio<QLabel>(tavolo, "EtichettaPosizione").text(), QStringLiteral("4/6"));
}

TEST(FinestraPrincipale, SpiegaLaRigaCorrente) {
  Tavolo tavolo;
  auto* spiegazione = tavolo.finestra->findChild<ui::RigaDiStato*>();
  EXPECT_TRUE(spiegazione->accessibleName().isEmpty());
  tavolo.Clicca(3);
  EXPECT_TRUE(spiegazione->accessibleName().contains(QStringLiteral("323.5725 gon")));
  EXPECT_TRUE(spiegazione->toolTip().contains(QStringLiteral("38.944")));
}

TEST(FinestraPrincipale, OgniPulsanteDellaTabellaHaFiguraEStato) {
  Tavolo tavolo;
  auto* pannello = tavolo.finestra->findChild<ui::PannelloPulsanti*>();
  for (const Pulsante& pulsante : Pulsanti()) {
    const QToolButton* bottone = pannello->Bottone(pulsante.indice);
    ASSERT_NE(bottone, nullptr) << pulsante.indice;
    const QString didascalia = ui::AQString(pulsante.didascalia);
    EXPECT_EQ(bottone->text().left(didascalia.size()), didascalia) << pulsante.indice;
    EXPECT_FALSE(bottone->icon().isNull()) << pulsante.indice;
    EXPECT_EQ(bottone->isEnabled(), tavolo.modello.Disponibile(pulsante.comando)) << pulsante.indice;
    EXPECT_EQ(bottone->toolTip() == ui::AQString(EffettoDi(Comando::NessunaAzione)), !bottone->isEnabled())
        << pulsante.indice;
  }
  EXPECT_TRUE(pannello->Bottone(PulsanteProvincia)->text().endsWith(QStringLiteral("[PD]")));
}

QStringList Titoli(const QMenu& menu) {
  QStringList titoli;
  for (const QAction* azione : menu.actions()) {
    if (azione->menu() != nullptr) titoli += Titoli(*azione->menu());
    if (!azione->isSeparator()) titoli += azione->text().remove(u'&');
  }
  return titoli;
}

TEST(FinestraPrincipale, OgniVoceDellaTabellaENelSuoMenu) {
  Tavolo tavolo;
  QMap<QString, QStringList> titoli;
  for (const QAction* azione : tavolo.finestra->menuBar()->actions())
    titoli[azione->text().remove(u'&')] = Titoli(*azione->menu());
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.didascalia == Separatore) continue;
    EXPECT_TRUE(titoli[ui::AQString(voce.menu)].contains(ui::AQString(voce.didascalia))) << voce.didascalia;
  }
}

TEST(FinestraPrincipale, IlPannelloDegliStrumentiSegueIlPuntatore) {
  Tavolo tavolo;
  auto* pulsanti = tavolo.finestra->findChild<ui::PannelloPulsanti*>();
  auto* strumenti = tavolo.finestra->findChild<ui::PannelloStrumenti*>();
  const auto entra = [&](int indice) {
    QEnterEvent evento({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(pulsanti->Bottone(indice), &evento);
    return strumenti->isVisible();
  };
  EXPECT_FALSE(strumenti->isVisible());
  EXPECT_TRUE(entra(PulsanteUtilita));
  EXPECT_TRUE(tavolo.finestra->rect().contains(strumenti->geometry()));
  EXPECT_EQ(strumenti->findChildren<QPushButton*>().size(), static_cast<qsizetype>(Strumenti().size()));
  EXPECT_FALSE(entra(4));
  EXPECT_TRUE(entra(PulsanteUtilita));
  tavolo.Clicca(2);
  EXPECT_FALSE(strumenti->isVisible());
}

TEST(FinestraPrincipale, GliStrumentiCoiTasti) {
  Tavolo tavolo;
  QApplication::setActiveWindow(&*tavolo.finestra);
  auto* utilita = tavolo.finestra->findChild<ui::PannelloPulsanti*>()->Bottone(PulsanteUtilita);
  auto* strumenti = tavolo.finestra->findChild<ui::PannelloStrumenti*>();
  utilita->setFocus(Qt::TabFocusReason);
  QTest::keyClick(utilita, Qt::Key_Space);
  const auto bottoni = strumenti->findChildren<QPushButton*>();
  EXPECT_EQ(QApplication::focusWidget(), bottoni[0]);
  for (int i = 0; i < 2; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), bottoni[2]);
  EXPECT_TRUE(strumenti->isVisible());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(strumenti->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), tavolo.vista);
}

TEST(FinestraPrincipale, LeOpzioniSonoSpenteELoDicono) {
  Tavolo tavolo;
  auto& opzioni = Figlio<QListWidget>(tavolo, "Opzioni");
  ASSERT_EQ(opzioni.count(), 9);
  EXPECT_EQ(opzioni.item(0)->text(), QStringLiteral("Avvisa Protocollo NON Numerico"));
  EXPECT_FALSE(opzioni.isEnabled());
  EXPECT_EQ(opzioni.toolTip(), ui::AQString(EffettoDi(Comando::NessunaAzione)));
}

// --- boxes

TEST(FinestraPrincipale, LeCaselleScrivonoNellaSessione) {
  Tavolo tavolo;
  auto& fiscale = Figlio<QLineEdit>(tavolo, "CasellaCodiceFiscale");
  fiscale.setText({});
  QTest::keyClicks(&fiscale, QStringLiteral("rssmra70a01"));
  EXPECT_EQ(fiscale.text(), QStringLiteral("RSSMRA70A01"));
  EXPECT_EQ(tavolo.banco.sessione.CodiceFiscale, "RSSMRA70A01");
  auto& iscrizione = Figlio<QLineEdit>(tavolo, "CasellaIscrizione");
  iscrizione.setText({});
  QTest::keyClicks(&iscrizione, QStringLiteral("77/b"));
  EXPECT_EQ(tavolo.banco.sessione.NumeroIscrizione, "77/b");
}

TEST(FinestraPrincipale, LaDittaEInMaiuscoloMentreSiScrive) {
  Tavolo tavolo;
  auto& ditta = Figlio<QPlainTextEdit>(tavolo, "CasellaDitta");
  const QString intatto = tavolo.finestra->windowTitle();
  QTest::keyClicks(&ditta, QStringLiteral("rossi"));
  EXPECT_EQ(tavolo.finestra->windowTitle(), intatto + QStringLiteral(" *"));
  QTest::keyClick(&ditta, Qt::Key_Return);
  QTest::keyClicks(&ditta, QStringLiteral("bianchi"));
  for (int i = 0; i < 7; ++i) QTest::keyClick(&ditta, Qt::Key_Left);
  QTest::keyClicks(&ditta, QStringLiteral("de "));
  EXPECT_EQ(tavolo.banco.sessione.Ditta, "ROSSI\r\nDE BIANCHI");
  EXPECT_EQ(ditta.toPlainText(), QStringLiteral("ROSSI\nDE BIANCHI"));
}

// --- events of the list

TEST(FinestraPrincipale, CancChiedeETogliele) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  tavolo.Clicca(1);
  tavolo.Clicca(3, Qt::ShiftModifier);
  QTest::keyClick(tavolo.vista, Qt::Key_Delete);
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Eliminare le Righe selezionate?\r\n2 righe");
  EXPECT_EQ(tavolo.banco.dialoghi.detti.back().titolo, "Elimina righe dal Libretto");
  EXPECT_EQ(tavolo.Elenco().Quante(), 6U);
  QTest::keyClick(tavolo.vista, Qt::Key_Delete);
  const auto& righe = RigheDiProva();
  EXPECT_EQ(tavolo.banco.Righe(), (std::vector<std::string>{righe[0], righe[1], righe[4], righe[5]}));
  EXPECT_TRUE(Figlio<QLabel>(tavolo, "EtichettaPosizione").text().endsWith(QStringLiteral("/4")));
}

TEST(FinestraPrincipale, IlPrimoFileLasciatoSostituisceIlLibretto) {
  Tavolo tavolo;
  const std::vector<std::string> altre = {RigheDiProva()[0], RigheDiProva()[1], "1|900|1.5|ALTRO|"};
  tavolo.banco.disco.Metti("Z:\\altri\\A.TXT", Testo(altre));
  tavolo.banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  EXPECT_TRUE(Lascia(tavolo, File({QStringLiteral("/altri/A.TXT"), QStringLiteral("/altri/B.TXT")})));
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Sostituire il Libretto Esistente?");
  EXPECT_EQ(tavolo.Elenco().Quante(), 6U);
  EXPECT_TRUE(Lascia(tavolo, File({QStringLiteral("/altri/A.TXT"), QStringLiteral("/altri/B.TXT")})));
  EXPECT_EQ(tavolo.banco.Righe(), altre);
  EXPECT_EQ(Figlio<QLabel>(tavolo, "EtichettaFile").text(), QStringLiteral("Z:\\altri\\A.TXT"));
}

struct FileLasciato {
  const char* percorso;
  const char* messaggio;
};

class FileNonAmmessi : public testing::TestWithParam<FileLasciato> {};

TEST_P(FileNonAmmessi, DannoUnMessaggio) {
  Tavolo tavolo;
  Lascia(tavolo, File({QString::fromLatin1(GetParam().percorso)}));
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), GetParam().messaggio);
  EXPECT_EQ(tavolo.banco.Righe(), RigheDiProva());
}

INSTANTIATE_TEST_SUITE_P(Estensioni, FileNonAmmessi,
                         testing::Values(FileLasciato{"/a/b.dxf", "Processo non attivo!"},
                                         FileLasciato{"/a/b.doc", "Ammessi file di Testo: .TXT, .DAT, .LXB, .PDF"}));

// Beside the rows an extract is imported and a libretto opened; the boxes do not take the path as a text.
TEST(FinestraPrincipale, AccantoAlleRighe) {
  Tavolo tavolo;
  QWidget* ditta = Figlio<QPlainTextEdit>(tavolo, "CasellaDitta").viewport();
  EXPECT_FALSE(ditta->acceptDrops());
  for (const char* nome : {"A.EMP", "A.PNG"}) tavolo.banco.disco.Metti("Z:\\ALTRI\\" + std::string(nome), "8|1|");
  EXPECT_TRUE(Lascia(tavolo, File({QStringLiteral("/altri/A.EMP")}), &*tavolo.finestra));
  EXPECT_EQ(tavolo.banco.sessione.EstrattoAssociato, "A.EMP");
  EXPECT_TRUE(Lascia(tavolo, File({QStringLiteral("/altri/A.TXT")}), &*tavolo.finestra));
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Sostituire il Libretto Esistente?");
}

// What a second start hands over is taken while the window waits for its user, and the menu has the file afterwards.
TEST(FinestraPrincipale, UnSecondoAvvioConsegnaAllaPrima) {
  Tavolo tavolo;
  tavolo.banco.disco.Metti("C:\\ALTRO.DAT", Testo({RigheDiProva()[0], RigheDiProva()[1], "8|1|1|1|"}));
  tavolo.banco.disco.Metti(tavolo.banco.sessione.CartellaProgramma + "\\TEMP\\9.consegna", "C:\\ALTRO.DAT");
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  EXPECT_TRUE(QTest::qWaitFor([&] { return tavolo.Elenco().Quante() == 3; }, 3000));
  const auto* recenti = tavolo.finestra->menuBar()->findChild<QMenu*>(QStringLiteral("LibrettiRecenti"));
  ASSERT_EQ(recenti->actions().size(), 2);
  EXPECT_EQ(recenti->actions().first()->text(), QStringLiteral("&1 C:\\ALTRO.DAT"));
  EXPECT_EQ(Figlio<QLabel>(tavolo, "Esito").text(), QStringLiteral("Aperto ALTRO.DAT: 3 righe"));
}

TEST(FinestraPrincipale, UnIndirizzoDellaReteNonEUnFile) {
  Tavolo tavolo;
  EXPECT_FALSE(Lascia(tavolo, {QUrl(QStringLiteral("https://esempio.invalid/a.dat"))}));
  EXPECT_TRUE(tavolo.banco.dialoghi.detti.empty());
}

enum class Modo { DoppioClick, Invio };

struct Apertura {
  Modo modo;
  std::size_t riga;
  bool editor;
};

class ApreLEditor : public testing::TestWithParam<Apertura> {};

TEST_P(ApreLEditor, SecondoLaRiga) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {Risposta::No};
  bool aperto = false;
  tavolo.Clicca(GetParam().riga);
  Dopo(0, [&] {
    QWidget* editor = QApplication::activeModalWidget();
    aperto = editor != nullptr && editor->windowTitle().startsWith(QStringLiteral("Edit Libretto Misure : ["));
    if (editor != nullptr) editor->close();
  });
  if (GetParam().modo == Modo::Invio)
    QTest::keyClick(tavolo.vista, Qt::Key_Return);
  else
    QTest::mouseDClick(tavolo.vista->viewport(), Qt::LeftButton, {}, tavolo.Punto(GetParam().riga));
  QCoreApplication::processEvents();
  EXPECT_EQ(aperto, GetParam().editor);
}

INSTANTIATE_TEST_SUITE_P(Righe, ApreLEditor,
                         testing::Values(Apertura{Modo::DoppioClick, 0, false}, Apertura{Modo::DoppioClick, 2, true},
                                         Apertura{Modo::DoppioClick, 5, false}, Apertura{Modo::Invio, 1, false},
                                         Apertura{Modo::Invio, 3, true}, Apertura{Modo::Invio, 5, true}));

// --- commands

void Voce(Tavolo& tavolo, const QString& titolo) {
  for (QAction* azione : tavolo.finestra->findChildren<QAction*>())
    if (azione->text().remove(u'&') == titolo) return azione->trigger();
  qFatal("no such menu entry");
}

TEST(FinestraPrincipale, IncollaPrendeIlTestoDegliAppunti) {
  Tavolo tavolo;
  tavolo.banco.appunti.testo = Testo({RigheDiProva()[0], RigheDiProva()[1], "6|INCOLLATA|"});
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  Voce(tavolo, QStringLiteral("Incolla da Appunti"));
  ASSERT_EQ(tavolo.Elenco().Quante(), 3U);
  EXPECT_EQ(tavolo.Elenco().Riga(2), "6|INCOLLATA|");
}

TEST(FinestraPrincipale, CtrlSSalvaIlTestoAttuale) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  tavolo.Clicca(2);
  QTest::keyClick(tavolo.vista, Qt::Key_Delete);
  QTest::keyClick(&*tavolo.finestra, Qt::Key_S, Qt::ControlModifier);
  const std::string scritto = tavolo.banco.disco.Contenuto("C:\\LIBRETTO.DAT");
  EXPECT_FALSE(Contiene(scritto, "CHIODO"));
  EXPECT_TRUE(Contiene(scritto, "2|205|"));
  EXPECT_TRUE(Contiene(scritto, "6|<ISC>1234|"));
}

TEST(FinestraPrincipale, UnPulsanteEsegueIlSuoComando) {
  Tavolo tavolo;
  tavolo.finestra->findChild<ui::PannelloPulsanti*>()->Bottone(15)->click();
  EXPECT_EQ(tavolo.banco.processi.avviati, std::vector<std::string>{"desktop"});
}

TEST(FinestraPrincipale, IlCarattereSceltoVaAllElenco) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.carattereScelto = {14, "Liberation Mono", true, false};
  const int prima = tavolo.vista->RettangoloRiga(0).height();
  Voce(tavolo, QStringLiteral("Seleziona Font"));
  EXPECT_EQ(tavolo.vista->font().pointSizeF(), 14);
  EXPECT_TRUE(tavolo.vista->font().bold());
  EXPECT_GT(tavolo.vista->RettangoloRiga(0).height(), prima);
}

TEST(FinestraPrincipale, ChiudereScriveFileEPosizione) {
  Tavolo tavolo;
  QTest::keyClicks(&Figlio<QPlainTextEdit>(tavolo, "CasellaDitta"), QStringLiteral("verdi"));
  tavolo.banco.disco.Metti("C:\\LIBRETTO.DAT", "vecchio");
  tavolo.finestra->close();
  const std::string scritto = tavolo.banco.disco.Contenuto("C:\\LIBRETTO.DAT");
  EXPECT_TRUE(scritto.starts_with(Testo(RigheDiProva())));
  EXPECT_TRUE(Contiene(scritto, "6|<DIT>VERDI|"));
  EXPECT_EQ(tavolo.banco.impostazioni.valori["FORMx/KR_LibrettoOriginale"], "1300");
  EXPECT_EQ(tavolo.banco.impostazioni.valori["FORMy/KR_LibrettoOriginale"], "800");
}

TEST(FinestraPrincipale, RestaApertaSeNonSiSalvaESiChiudeAllaVoltaDopo) {
  Tavolo tavolo;
  QTest::keyClicks(&Figlio<QPlainTextEdit>(tavolo, "CasellaDitta"), QStringLiteral("verdi"));
  tavolo.banco.disco.rotti["C:\\LIBRETTO.DAT"] = errore::AccessoAlFile;
  Voce(tavolo, QStringLiteral("Chiudi"));
  EXPECT_TRUE(tavolo.finestra->isVisible());
  EXPECT_EQ(Figlio<QPlainTextEdit>(tavolo, "CasellaDitta").toPlainText(), QStringLiteral("VERDI"));
  tavolo.banco.dialoghi.scelte = {2};
  tavolo.finestra->close();
  EXPECT_FALSE(tavolo.finestra->isVisible());
}

TEST(FinestraPrincipale, LaVoceChiudiScriveUnaVoltaSola) {
  Tavolo tavolo;
  Voce(tavolo, QStringLiteral("Chiudi"));
  EXPECT_FALSE(tavolo.finestra->isVisible());
  EXPECT_TRUE(tavolo.modello.Finita);
  tavolo.banco.disco.Metti("C:\\LIBRETTO.DAT", "altro");
  tavolo.finestra->close();
  EXPECT_EQ(tavolo.banco.disco.Contenuto("C:\\LIBRETTO.DAT"), "altro");
}

// --- find bar

TEST(FinestraPrincipale, LaRicercaGiraEConta) {
  Tavolo tavolo;
  auto* barra = tavolo.finestra->findChild<ui::BarraRicerca*>();
  QTest::keyClick(&*tavolo.finestra, Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(barra->isVisible());
  auto* casella = barra->findChild<QLineEdit*>();
  QTest::keyClicks(casella, QStringLiteral("pf01"));
  EXPECT_EQ(barra->Esito(), QStringLiteral("2 righe"));
  const auto premi = [&](Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}) {
    QTest::keyClick(&*tavolo.finestra, tasto, modificatori);
    return tavolo.Elenco().Indice();
  };
  EXPECT_EQ(premi(Qt::Key_F3), 4);
  EXPECT_EQ(barra->Esito(), QStringLiteral("1 di 2 righe"));
  EXPECT_EQ(premi(Qt::Key_F3), 5);
  EXPECT_EQ(premi(Qt::Key_F3), 4);
  EXPECT_EQ(premi(Qt::Key_F3, Qt::ShiftModifier), 5);
  EXPECT_EQ(tavolo.Selezionate(), Indici{5});
  QTest::keyClicks(casella, QStringLiteral("zz"));
  EXPECT_EQ(barra->Esito(), QStringLiteral("Nessuna riga"));
  EXPECT_EQ(premi(Qt::Key_F3), 5);
  QTest::keyClick(casella, Qt::Key_Escape);
  EXPECT_FALSE(barra->isVisible());
}

TEST(FinestraPrincipale, LaRicercaSegueLeRigheCheCambiano) {
  Tavolo tavolo;
  auto* barra = tavolo.finestra->findChild<ui::BarraRicerca*>();
  barra->Apri();
  barra->findChild<QLineEdit*>()->setText(QStringLiteral("spigolo"));
  EXPECT_EQ(barra->Esito(), QStringLiteral("1 riga"));
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  tavolo.Clicca(3);
  QTest::keyClick(tavolo.vista, Qt::Key_Delete);
  EXPECT_EQ(barra->Esito(), QStringLiteral("Nessuna riga"));
}

} // namespace
} // namespace lirmeto::prova
