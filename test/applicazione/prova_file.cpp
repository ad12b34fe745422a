#include "sala.h"

#include <applicazione/consegna.h>
#include <base/testo.h>
#include <grafica/form_disegno.h>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Testi = std::vector<std::string>;

const std::string Altro = Testo({Zero, Nove, "8|9|9|9|"});

// --- files chosen, and the last ones

struct CasoApri {
  Comando comando;
  std::string cartella; // where the dialog opens
};

class ApriDaFile : public testing::TestWithParam<CasoApri> {};

TEST_P(ApriDaFile, PrendeLaViaDelFileTrascinato) {
  Sala sala;
  sala.disco.Metti("C:\\ALTRO.DAT", Altro);
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.dialoghi.fileScelto = "*";
  sala.finestra.Esegui(GetParam().comando);
  ASSERT_EQ(sala.dialoghi.detti.size(), 1U) << "a cancel is silent";
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), GetParam().cartella);
  sala.dialoghi.fileScelto = "C:\\ALTRO.DAT";
  sala.finestra.Esegui(GetParam().comando);
  EXPECT_EQ(sala.Domanda(), std::string(DidascaliaDi(GetParam().comando)) + "/Sostituire il Libretto Esistente?");
  EXPECT_EQ(sala.Righe().size(), 6U) << "the answer was no";
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.Esegui(GetParam().comando);
  EXPECT_EQ(sala.Righe(), (Testi{Zero, Nove, "8|9|9|9|"}));
  EXPECT_EQ(sala.finestra.Esito, "Aperto ALTRO.DAT: 3 righe");
  EXPECT_EQ(sala.finestra.Recenti, (Testi{"C:\\ALTRO.DAT", "C:\\ACT.DAT"}));
}

TEST(Trascina, LEstrattoDiUnAltroAttoNonResta) {
  const struct {
    std::string file;
    std::string estratto;
  } casi[] = {
      {"C:\\ALTRO.DAT", ""},      {"c:\\act.dat", "MIO.EMP"},
      {"C:\\ACT.LXB", "MIO.EMP"}, {"C:\\ZERI.DAT", "MIO.EMP"}, // refused
      {"C:\\SUO.DAT", "SUO.EMP"},
  };
  for (const auto& [file, estratto] : casi) {
    Sala sala;
    sala.disco.Metti("C:\\ALTRO.DAT", Altro);
    sala.disco.Metti("C:\\ACT.LXB", Testo({"1|1|9|x|"}));
    sala.disco.Metti("C:\\ZERI.DAT", "Cara Anna,\r\n");
    sala.disco.Metti("C:\\SUO.DAT", Testo({Zero, Nove, "6|<EST>SUO.EMP|"}));
    sala.finestra.Avvia("C:\\ACT.DAT");
    sala.sessione.EstrattoAssociato = "MIO.EMP";
    sala.dialoghi.risposte = {Risposta::Si};
    sala.finestra.Trascina(file);
    EXPECT_EQ(sala.sessione.EstrattoAssociato, estratto) << file;
  }
}

INSTANTIATE_TEST_SUITE_P(Comandi, ApriDaFile,
                         testing::Values(CasoApri{Comando::ApriDaFile, "C:\\"},
                                         CasoApri{Comando::RipristinaDaArchivio, Programma + "\\Backup_Libretti\\"},
                                         CasoApri{Comando::RicaricaDaStorico, Programma + "\\Storico_Libretti\\"}));

TEST(Recenti, SonoDieciEQuelloCheMancaEsceDallElenco) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.dialoghi.risposte = {Risposta::Si};
  for (int i = 0; i < 12; ++i) {
    const std::string percorso = "C:\\L" + std::to_string(i) + ".DAT";
    sala.disco.Metti(percorso, Altro);
    sala.finestra.Trascina(percorso);
  }
  sala.finestra.Trascina("c:\\l11.dat");
  ASSERT_EQ(sala.finestra.Recenti.size(), 10U);
  EXPECT_EQ(sala.finestra.Recenti.front(), "c:\\l11.dat") << "a file stands once, in any case";
  EXPECT_EQ(sala.finestra.Recenti.back(), "C:\\L2.DAT");
  sala.disco.file.erase("C:\\L2.DAT");
  sala.finestra.ApriRecente(9);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "C:\\L2.DAT\r\nNON trovato!");
  EXPECT_EQ(sala.finestra.Recenti.size(), 9U);
  KR_LibrettoOriginale altra(sala.ambiente);
  altra.Avvia("");
  EXPECT_EQ(altra.Recenti, sala.finestra.Recenti);
  altra.ApriRecente(8);
  EXPECT_EQ(altra.EtichettaFile, "C:\\L3.DAT");
}

// --- what is no libretto

struct CasoRifiuto {
  std::string nome;
  std::string contenuto;
  std::string detto; // part of the message; empty: it is a libretto
};

class Rifiuto : public testing::TestWithParam<CasoRifiuto> {};

TEST_P(Rifiuto, NonDiventaUnLibretto) {
  for (const bool trascinato : {false, true}) {
    Sala sala;
    sala.disco.Metti("C:\\FILE.TXT", GetParam().contenuto);
    sala.dialoghi.risposte = {Risposta::Si};
    ASSERT_TRUE(sala.finestra.Avvia(trascinato ? "C:\\ACT.DAT" : "C:\\FILE.TXT"));
    if (trascinato) sala.finestra.Trascina("C:\\FILE.TXT");
    const bool libretto = GetParam().detto.empty();
    EXPECT_EQ(sala.sessione.NomeFileLibretto, libretto ? "C:\\FILE.TXT" : trascinato ? "C:\\ACT.DAT" : "");
    EXPECT_EQ(libretto, !Contiene(sala.dialoghi.UltimoTesto(), "non è un libretto"_w)) << sala.dialoghi.UltimoTesto();
    EXPECT_TRUE(Contiene(sala.dialoghi.UltimoTesto(), GetParam().detto)) << sala.dialoghi.UltimoTesto();
  }
}

INSTANTIATE_TEST_SUITE_P(File, Rifiuto,
                         testing::Values(CasoRifiuto{"vuoto", "", "Nessuna riga"},
                                         CasoRifiuto{"lettera", "Cara Anna,\r\n1 | 2\r\n", ""},
                                         CasoRifiuto{"testo", "Cara Anna,\r\n12|3|\r\n", "Nessuna riga"},
                                         CasoRifiuto{"zeri", std::string("8|1|2|3|\r\n\0", 11), "byte a zero"},
                                         CasoRifiuto{"riga", "testo\r\n 8|1|2|3|\r\n", ""}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(Apertura, DiceCioCheSistemaECioCheIlFileSaDelTecnico) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "8|1||", "8|1||", "8|2||<P!>|", "6|<COD>DELFILE|", "6|<ISC>|"}));
  sala.disco.Metti(Programma + "\\TECNICI\\ROSSI MARIO.PFS", "\"R\",,\r\n,,\r\n\"55\",\"DELTECNICO\"\r\n,\r\n,\r\n");
  sala.finestra.Avvia("C:\\ACT.DAT");
  EXPECT_EQ(sala.finestra.Esito, "Aperto ACT.DAT: 5 righe; al salvataggio tolta 1 riga uguale alla precedente, "
                                 "sistemate 2 righe con note da completare");
  EXPECT_EQ(sala.finestra.CasellaCodiceFiscale, "DELFILE");
  EXPECT_EQ(sala.finestra.CasellaIscrizione, "55") << "an empty one is none";
}

// --- a second start

struct CasoSecondo {
  std::string nome;
  bool presa;        // the window that runs takes what is handed over
  Risposta risposta; // to the question whether to end it
  bool prosegue;
  std::vector<long> terminati;
  std::string detto;
};

class SecondoAvvio : public testing::TestWithParam<CasoSecondo> {};

TEST_P(SecondoAvvio, ConsegnaEFinisceDaSolo) {
  Sala sala;
  sala.processi.vivi["Lirmeto.exe"] = {5, 1};
  sala.dialoghi.risposte = {GetParam().risposta};
  Testi presi;
  sala.processi.quandoAspetta = [&] {
    if (!GetParam().presa) return;
    for (const std::string& comando : PrendiConsegne(sala.ambiente)) presi.push_back(comando);
  };
  EXPECT_EQ(sala.finestra.Avvia("C:\\ACT.DAT"), GetParam().prosegue);
  EXPECT_EQ(sala.processi.terminati, GetParam().terminati);
  EXPECT_EQ(presi, GetParam().presa ? Testi{"C:\\ACT.DAT"} : Testi{});
  EXPECT_TRUE(Contiene(sala.dialoghi.detti.front().testo, GetParam().detto)) << sala.dialoghi.detti.front().testo;
  EXPECT_TRUE(PrendiConsegne(sala.ambiente).empty()) << "what nobody took is withdrawn";
}

INSTANTIATE_TEST_SUITE_P(
    Casi, SecondoAvvio,
    testing::Values(CasoSecondo{"presa", true, Risposta::No, false, {}, std::string("Modulo già attivo!"_w)},
                    CasoSecondo{"bloccata", false, Risposta::No, false, {}, "occupato o bloccato"},
                    CasoSecondo{"terminata", false, Risposta::Si, true, {5}, "occupato o bloccato"}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Consegne, LaFinestraLeEsegueComeUnFileTrascinato) {
  Sala sala;
  sala.disco.Metti("C:\\ALTRO.DAT", Altro);
  sala.disco.Metti(Programma + "\\TEMP\\9.consegna", "C:\\VECCHIA.DAT");
  sala.finestra.Avvia("C:\\ACT.DAT");
  EXPECT_FALSE(sala.finestra.ArrivateConsegne()) << "what lay there before this start is nobody's";
  sala.disco.Metti(Programma + "\\TEMP\\4.consegna", "\"C:\\altro.dat\"");
  EXPECT_TRUE(sala.finestra.ArrivateConsegne());
  EXPECT_TRUE(sala.finestra.ArrivateConsegne()) << "until it is done";
  sala.finestra.EseguiConsegne();
  EXPECT_EQ(sala.Domanda(), "Apri Libretto da File/Sostituire il Libretto Esistente?");
  EXPECT_EQ(sala.Righe().size(), 6U);
  sala.finestre.disponibili = {"KR_SelezionaMisurate"};
  for (const bool si : {false, true}) {
    sala.dialoghi.risposte = {si ? Risposta::Si : Risposta::No};
    sala.disco.Metti(Programma + "\\TEMP\\4.consegna", "C:\\ALTRO.DAT|seleziona_misurate|");
    EXPECT_TRUE(sala.finestra.ArrivateConsegne());
    sala.finestra.EseguiConsegne();
    EXPECT_EQ(sala.Righe().size(), si ? 3U : 6U);
    EXPECT_EQ(sala.finestre.aperte.size(), si ? 1U : 0U);
  }
  EXPECT_FALSE(sala.finestra.ArrivateConsegne());
}

// No save of the window may go over a drawing that was handed to it.
TEST(Consegne, UnDisegnoAbbandonatoLasciaIlLibrettoCheCEra) {
  for (const bool intestazione : {false, true}) { // confirmed, and the drawing's form given up after it
    Sala sala;
    sala.finestra.Avvia("C:\\ACT.DAT");
    sala.sessione.EstrattoAssociato = "MIO.EMP";
    const auto prima = sala.Foto();
    sala.disco.Metti("C:\\R.LXC", "P,1,10,20,3\r\n");
    sala.disco.Metti(Programma + "\\TEMP\\4.consegna", intestazione ? "C:\\R.LXC|libretto_da_disegno|" : "C:\\R.LXC");
    sala.finestre.disponibili = {"FormCatasto1TXT", "LibrettoDaDisegno"};
    sala.sessione.EsitoForm = intestazione ? EsitoConfermato : EsitoAnnullato;
    sala.dialoghi.risposte = {Risposta::Si};
    EXPECT_TRUE(sala.finestra.ArrivateConsegne());
    sala.finestra.EseguiConsegne();
    EXPECT_EQ(sala.finestre.aperte.size(), intestazione ? 2U : 1U);
    EXPECT_EQ(sala.Foto(), prima);
    EXPECT_FALSE(sala.finestra.Attivo(Comando::Annulla));
  }
}

TEST(Consegne, IModuliBloccatiSiTerminanoDopoUnaDomanda) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.Esegui(Comando::TerminaBloccati);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "Nessun altro modulo attivo.");
  sala.processi.vivi["Lirmeto.exe"] = {1, 8};
  sala.finestra.Esegui(Comando::TerminaBloccati);
  EXPECT_TRUE(sala.processi.terminati.empty());
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.Esegui(Comando::TerminaBloccati);
  EXPECT_EQ(sala.processi.terminati, std::vector<long>{8});
}

// --- tools

struct CasoStrumento {
  std::string tag;
  std::function<void(Sala&)> prima;
  std::string detto;
  std::function<bool(Sala&)> fatto;
};

class Strumento : public testing::TestWithParam<CasoStrumento> {};

TEST_P(Strumento, FaCioCheDice) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  GetParam().prima(sala);
  sala.finestra.EseguiStrumento(GetParam().tag);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), GetParam().detto);
  EXPECT_TRUE(GetParam().fatto(sala));
}

INSTANTIATE_TEST_SUITE_P(
    Strumenti, Strumento,
    testing::Values(
        CasoStrumento{"GESTIONE_MISURATE",
                      [](Sala& sala) {
                        sala.finestre.disponibili = {"KR_SelezionaMisurate"};
                        sala.sessione.EsitoForm = EsitoConfermato;
                        sala.sessione.MisurateAssociate = "L736.DDD";
                        sala.sessione.Cognome = "ALTRO";
                      },
                      "Misurate associate : L736.DDD\r\nScritto in C:\\WINDOWS\\PREGEO.INI",
                      [](Sala& sala) {
                        const std::string ini = sala.disco.Contenuto("C:\\WINDOWS\\PREGEO.INI");
                        return Contiene(ini, "L736.DDD") && !Contiene(ini, "ALTRO");
                      }},
        CasoStrumento{"ANTEPRIMA_PROPOSTA", [](Sala&) {}, "Il Libretto non ha una Proposta di Aggiornamento!",
                      [](Sala&) { return true; }},
        CasoStrumento{"tecnici",
                      [](Sala& sala) {
                        sala.disco.Metti(Programma + "\\TECNICI\\BIANCHI.PFS",
                                         "\"B\",,\r\n,,\r\n\"77\",\"CFB\"\r\n,\r\n,\r\n");
                        sala.dialoghi.fileScelto = Programma + "\\TECNICI\\BIANCHI.PFS";
                      },
                      Programma + "\\TECNICI\\", [](Sala& sala) { return sala.finestra.CasellaIscrizione == "77"; }},
        CasoStrumento{"Modulistica", [](Sala&) {}, "",
                      [](Sala& sala) { return sala.processi.aperti == Testi{"C:\\fiducial\\MODULISTICA"}; }}),
    [](const auto& caso) { return caso.param.tag; });

TEST(Strumento, LaPropostaDellAttoSiVedeEdIlLibrettoSiArchivia) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "6|ESTRATTO DI MAPPA|", "8|1|0|0|", "8|2|0|9|", "7|2|1|2|NC|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  std::string titolo;
  sala.finestre.utente = [&](Modello& modello) { titolo = dynamic_cast<FormDisegno&>(modello).Titolo; };
  sala.finestra.EseguiStrumento("ANTEPRIMA_PROPOSTA");
  EXPECT_EQ(titolo, "Disegno : " + Programma + "\\temp\\PROPOSTA.DAT");
  sala.finestra.Esegui(Comando::ArchiviaLibretti);
  EXPECT_TRUE(sala.disco.Contenuto(Programma + "\\Backup_Libretti\\ACT_2026-11-21_09-05-07.DAT")
                  .starts_with(sala.sessione.Libretto));
  sala.finestra.Esegui(Comando::ProgrammaPregeo);
  EXPECT_EQ(sala.processi.avviati, Testi{"lascia C:\\pregeo\\exe\\Pregeo.EXE"});
  sala.disco.file.erase("C:\\PREGEO\\EXE\\PREGEO.EXE");
  sala.finestra.Esegui(Comando::ProgrammaPregeo);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "C:\\pregeo\\exe\\Pregeo.EXE\r\nNon Trovato!");
}

// A start that only hands the drawing over ends behind the copy and leaves every file as it was.
TEST(Scambio, ChiConsegnaSoloIlDisegnoNonScriveAltro) {
  for (const bool solo : {false, true}) {
    Sala sala;
    sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "6|ESTRATTO DI MAPPA|", "8|1|0|0|", "8|2|0|9|", "7|2|1|2|NC|"}));
    if (solo) sala.disco.Metti(Programma + "\\temp\\IncollaDaFileSiNo.TXT", "");
    sala.finestra.Avvia("C:\\ACT.DAT");
    sala.finestra.CambiaDitta("rossi");
    sala.finestre.utente = [](Modello& modello) { dynamic_cast<FormDisegno&>(modello).Grafica1().mnuZoom1(4); };
    sala.finestra.EseguiStrumento("ANTEPRIMA_PROPOSTA");
    EXPECT_EQ(sala.finestra.Finita, solo);
    EXPECT_EQ(sala.dialoghi.UltimoTesto(), solo ? "" : "Salvato il file \r\n" + Programma + "\\temp\\CopiaInFile.TXT");
    sala.finestra.Chiusura({});
    EXPECT_TRUE(sala.finestra.Finita);
    EXPECT_EQ(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "<DIT>ROSSI"), !solo);
  }
}

// --- what the status line says, and what stays chosen

TEST(Esito, DiceAQuanteRigheETieneLaScelta) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  ElencoRighe& elenco = sala.sessione.List1;
  const auto scegli = [&](std::size_t riga) {
    elenco.SelezionaSe([](std::string_view) { return false; });
    elenco.Seleziona(riga, true);
    elenco.Indice(static_cast<long>(riga));
  };
  scegli(4);
  sala.appunti.testo = "A\t1\t2\r\nB\t3\t4\r\n";
  sala.finestra.Esegui(Comando::RigheCompleteDaExcel);
  EXPECT_EQ(sala.finestra.Esito, "Righe Complete: aggiunte 2 righe");
  EXPECT_EQ(sala.finestra.PrimaNuova, 6U);
  EXPECT_TRUE(elenco.Indice() == 4 && elenco.Selezionata(4));
  sala.finestra.Esegui(Comando::SalvaLibretto);
  EXPECT_EQ(sala.finestra.Esito, "Salvate 8 righe in C:\\ACT.DAT");
  sala.finestre.disponibili = {"KR_EstrattiDiMappa1"};
  sala.finestra.Esegui(Comando::EstrattiDiMappa);
  EXPECT_TRUE(elenco.Indice() == 4 && elenco.Selezionata(4)) << "the list was only filled again";
  EXPECT_EQ(sala.finestra.Esito, "");
  sala.finestra.Esegui(Comando::CopiaRighe);
  EXPECT_EQ(sala.finestra.Esito, "Copia Righe: copiata 1 riga");
  sala.finestra.Esegui(Comando::EliminaVrs);
  EXPECT_EQ(sala.finestra.Esito, "ELIMINA [VRS]: nessuna riga cambiata");
  sala.finestra.Esegui(Comando::SelezionaStazioni);
  EXPECT_EQ(sala.finestra.Esito, "Seleziona Stazioni: selezionata 1 riga");
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.finestra.Esito, "Elimina Righe: tolta 1 riga");
  EXPECT_TRUE(sala.finestra.DaSalvare());
  sala.finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.finestra.Esito, "Annullato: Elimina Righe");
  EXPECT_FALSE(sala.finestra.DaSalvare());
  sala.finestra.Esegui(Comando::Ripeti);
  EXPECT_EQ(sala.finestra.Esito, "Ripetuto: Elimina Righe");
  sala.dialoghi.fileScelto = "C:\\X.DAT";
  sala.finestra.Esegui(Comando::EsportaLibretto);
  EXPECT_EQ(sala.finestra.Esito, "Esportate 7 righe in C:\\X.DAT");
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "C:\\ACT.DAT") << "the folder and the name proposed";
  sala.dialoghi.risposte = {Risposta::No};
  sala.finestra.Esegui(Comando::IncollaDaAppunti);
  EXPECT_EQ(sala.Domanda(), "Incolla da Appunti/Sostituire il Libretto Esistente?");
  EXPECT_EQ(sala.Righe().size(), 7U);
}

// Rows that a command mends on its way are told beside what it did.
TEST(Esito, LeRigheSistematePerStradaSiDiconoAParte) {
  const struct {
    std::string nota; // typed into the first row
    bool dellaSecondaRipetuta;
    std::string detto;
  } casi[] = {
      {"ALTRA", true, "Modifica Campo: cambiata 1 riga; tolta 1 riga uguale alla precedente"},
      {"ALTRA", false, "Modifica Campo: cambiata 1 riga"},
  };
  for (const auto& [nota, ripetuta, detto] : casi) {
    Sala sala;
    sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "1|1|1.5|N|", "8|1|2|3|", ripetuta ? "8|1|2|3|" : "8|9|2|3|"}));
    sala.finestra.Avvia("C:\\ACT.DAT");
    sala.finestra.CambiaCampo(2, 3, nota);
    EXPECT_EQ(sala.finestra.Esito, detto);
    EXPECT_EQ(sala.Righe().size(), ripetuta ? 4U : 5U);
  }
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "8|1|2|3|", "8|1|2|3|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.TastoInvio(2); // an editor that is closed again
  EXPECT_EQ(sala.finestra.Esito, "Modifica: tolta 1 riga uguale alla precedente");
  EXPECT_FALSE(sala.finestra.DaSalvare());
}

// --- the table of the entries

TEST(Tabelle, DiOgniVoceSiSaCheCosaFa) {
  for (const auto& pulsante : Pulsanti()) EXPECT_NE(EffettoDi(pulsante.comando), "") << pulsante.didascalia;
  for (const auto& voce : VociMenu()) EXPECT_NE(EffettoDi(voce.comando), "") << voce.didascalia;
  for (const auto& strumento : Strumenti()) EXPECT_NE(EffettoDi(strumento.comando), "") << strumento.didascalia;
}

} // namespace
} // namespace lirmeto::prova
