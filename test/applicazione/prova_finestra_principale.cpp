// Start, rows, drop, commands of the main window.
#include "sala.h"

#include <applicazione/autore.h>
#include <base/errore.h>
#include <base/testo.h>
#include <core/riordino.h>
#include <supporto/editor_gen.h>
#include <supporto/stampa_generale.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace lirmeto {
namespace {

using prova::Nove;
using prova::Programma;
using prova::Sala;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

TEST(Avvio, ApreIlLibrettoEPreparaLaSessione) {
  Sala sala;
  sala.disco.cartelle.insert(sala.disco.cartelle.end(), {"C:\\FIDUCIAL", "C:\\FIDUCIAL\\VISURE"});
  sala.disco.Metti("C:\\FIDUCIAL\\VISURE\\2024_ROSSI MARIO_S_FR_7_G224_0010_12_3.VIS",
                   "\r\n\r\nRossi  Mario\r\nvia Po\r\n\r\n");
  sala.disco.Metti(Programma + "\\TECNICI\\ROSSI MARIO.PFS",
                   "\"ROSSI "
                   "MARIO\",\"INGEGNERE\",\r\n,,\r\n\"55\",\"CFX\"\r\nROSSI\r\nMARIO\r\n");
  ASSERT_TRUE(sala.finestra.Avvia("C:\\ACT.DAT"));
  EXPECT_EQ(sala.sessione.PuntoErrore, "Decozero_141");
  EXPECT_EQ(sala.disco.Contenuto("C:\\users\\prova\\Temp\\CARTELLADOCUMENTI.TXT"), Programma + "\r\n");
  EXPECT_TRUE(sala.disco.Contenuto(Programma + "\\VersioneLirmeto.TXT").starts_with("Ver 6.00 6."));
  EXPECT_EQ(sala.Righe().size(), 6U);
  EXPECT_EQ(sala.sessione.NumeroIscrizione,
            "55"); // the surveyor's file comes after PREGEO.INI
  EXPECT_EQ(sala.sessione.Ditta, "Rossi  Mario\r\nvia Po");
  EXPECT_EQ(sala.finestra.CasellaDitta, "ROSSI  MARIO\r\nVIA PO");
  EXPECT_EQ(sala.finestra.EtichettaMisurate, "Misurate associate : G224.DDD");
  EXPECT_EQ(sala.finestra.SiglaPulsanteProvincia, "PD");
  EXPECT_EQ(sala.finestra.Opzioni.size(), 9U);
  EXPECT_TRUE(sala.disco.EsisteCartella(Programma + "\\MODELLI_STAMPA"));
  EXPECT_TRUE(sala.dialoghi.detti.empty()) << sala.dialoghi.UltimoTesto();
  sala.finestra.Attivazione(false);
  EXPECT_EQ(sala.finestra.Titolo, "Lirmeto V 6.1 - L'Evoluzione - Libretto Misure : [7 01022024] "
                                  "[CF Comune : G224 - PADOVA] "
                                  "[Provincia : PADOVA]");
  EXPECT_EQ(sala.sessione.EtichettaPosizione, "0/6");
}

TEST(Avvio, SenzaPregeoESenzaLibretto) {
  Sala sala;
  sala.disco.file.clear();
  ASSERT_TRUE(sala.finestra.Avvia(""));
  EXPECT_EQ(sala.dialoghi.detti[0].testo, "PREGEO.INI NON trovato - Verificare installazione Pregeo!");
  EXPECT_EQ(sala.sessione.NomeFileLibretto, "");
  EXPECT_EQ(sala.Righe(), (Righe{"0|21112026|1|G693|0010|1|COGNOME NOME|GEOMETRA|PADOVA|",
                                 "9|20|10|20|1070|10.00-G,STDA 2.08|18|TIPO SENZA GEOMETRIA|"}));
}

TEST(Avvio, UnFileIllegginileNonDiventaIlLibretto) {
  Sala sala;
  sala.disco.rotti["C:\\ACT.DAT"] = errore::AutorizzazioneNegata;
  ASSERT_TRUE(sala.finestra.Avvia("C:\\ACT.DAT"));
  EXPECT_EQ(sala.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_EQ(sala.sessione.NomeFileLibretto, "");
  EXPECT_EQ(sala.Righe().size(), 2U);
}

TEST(Elenco, CancellaSoloDopoLaDomandaEMaiLePrimeDue) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.sessione.List1.SelezionaIntervallo(0, 4, true);
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.Domanda(), "Elimina righe dal Libretto/Eliminare le Righe selezionate?\r\n3 righe");
  EXPECT_EQ(sala.Righe().size(), 6U);
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.Righe(), (Righe{Zero, Nove, "8|PF01/0010/G224|1|2|3|x|"}));
  EXPECT_EQ(sala.sessione.Libretto, Testo(sala.Righe()));
  const std::size_t detti = sala.dialoghi.detti.size();
  sala.sessione.List1.SelezionaIntervallo(0, 1, true); // nothing that could go: nothing to ask
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.dialoghi.detti.size(), detti);
  sala.sessione.List1.Seleziona(2, true);
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.Domanda(), "Elimina righe dal Libretto/Eliminare le Righe selezionate?\r\n8|PF01/0010/G224|1|2|3|x|");
}

struct CasoTrascina {
  std::string percorso;
  std::string detto; // title/text of what is said
};

class Trascina : public testing::TestWithParam<CasoTrascina> {};

TEST_P(Trascina, PerEstensione) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.Trascina(GetParam().percorso);
  EXPECT_EQ(sala.Domanda(), GetParam().detto);
  EXPECT_EQ(sala.sessione.NomeFileLibretto, "C:\\ACT.DAT");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Trascina,
    testing::Values(CasoTrascina{"C:\\a.Txt", "Trascina Libretto/Sostituire il Libretto Esistente?"},
                    CasoTrascina{"C:\\a.LXB", "Trascina Libretto/Sostituire il Libretto Esistente?"},
                    CasoTrascina{"C:\\a.pdf", "Trascina Libretto/Sostituire il Libretto Esistente?"},
                    CasoTrascina{"C:\\a.dxf", "Lirmeto/Processo non attivo!"},
                    CasoTrascina{"C:\\a.emp", "Lirmeto/Ammessi file di Testo: .TXT, .DAT, .LXB, .PDF"},
                    CasoTrascina{"C:\\a", "Lirmeto/Ammessi file di Testo: .TXT, .DAT, .LXB, .PDF"}));

TEST(Trascina, SiSostituisceEMostraLaDitta) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.disco.Metti("C:\\ALTRO.PDF",
                   "[TAG1000]|" + Zero + "<nr>" + Nove + "[/TAG][TAG2000]|8|1|1|1|[/TAG][TAG4000]|Neri[/TAG]");
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.Trascina("C:\\Altro.pdf");
  EXPECT_EQ(sala.Righe(), (Righe{Zero, Nove, "8|1|1|1|"}));
  EXPECT_EQ(sala.finestra.EtichettaFile, "C:\\ALTRO.TXT");
  EXPECT_EQ(sala.finestra.CasellaDitta, "NERI");
  EXPECT_FALSE(sala.disco.Esiste("C:\\ALTRO.TXT")) << "nothing is written before a save";
}

struct CasoApri {
  std::size_t riga;
  bool invio;
  std::string aperto; // "editor", "intestazione", title of a question
};

class ApriRiga : public testing::TestWithParam<CasoApri> {};

TEST_P(ApriRiga, DoppioClickEInvio) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "6|DettaglioTipoAgg=1|", "8|PF01/0010/G224|1|2|3|", "8|1|2|3|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestre.disponibili = {"FormCatasto1TXT"};
  std::string aperto;
  sala.finestre.utente = [&](Modello& modello) { aperto = dynamic_cast<KR_EditorGen*>(&modello) ? "editor" : "altro"; };
  if (GetParam().invio)
    sala.finestra.TastoInvio(GetParam().riga);
  else
    sala.finestra.DoppioClick(GetParam().riga);
  if (!sala.finestre.aperte.empty()) aperto = "intestazione";
  if (!sala.dialoghi.detti.empty()) aperto = sala.dialoghi.detti.back().titolo;
  EXPECT_EQ(aperto, GetParam().aperto);
}

INSTANTIATE_TEST_SUITE_P(Casi, ApriRiga,
                         testing::Values(CasoApri{0, false, "intestazione"}, CasoApri{1, false, "intestazione"},
                                         CasoApri{2, false, "intestazione"}, CasoApri{3, false, "Misurate non Trovate"},
                                         CasoApri{4, false, "editor"}, CasoApri{99, false, ""},
                                         CasoApri{0, true, "intestazione"}, CasoApri{2, true, "editor"},
                                         CasoApri{3, true, "editor"}, CasoApri{99, true, ""}));

TEST(Comandi, IncollaRiordinaESalva) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.appunti.testo = Testo({"8|2|2|2|", Zero, "6|a|b|", Nove, "1|1|1.5|N|"}) + "8|dopo l'ultima fine riga|";
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.Esegui(Comando::IncollaDaAppunti);
  EXPECT_EQ(sala.Righe().size(),
            7U); // rows 0 and 9 are put before what is not theirs
  sala.finestra.Esegui(Comando::RiordinoRighe);
  EXPECT_EQ(sala.sessione.PuntoErrore, "Decozero_116");
  EXPECT_EQ(sala.Righe().back(), "8|2|2|2|");
  sala.finestra.Esegui(Comando::SalvaLibretto);
  EXPECT_TRUE(sala.disco.Contenuto("C:\\ACT.DAT").starts_with(sala.sessione.Libretto));
}

TEST(Comandi, IlDialogoDiRiordinoVedeLeRigheDellElenco) {
  Sala sala;
  sala.finestra.Avvia("");
  sala.sessione.List1.Aggiungi("8|nuova|1|2|");
  sala.finestre.utente = [&](Modello& modello) {
    auto& form = dynamic_cast<FormRiordinoRighe&>(modello);
    form.AllAttivazione();
    EXPECT_EQ(form.Righe[ClasseRighe::Coordinate], (ListaRighe{"8|nuova|1|2|"}));
    form.Chiudi();
  };
  sala.finestra.Esegui(Comando::MostraRiordino);
  EXPECT_EQ(sala.sessione.EsitoForm, -1);
}

TEST(Comandi, ProgrammiCaratterePannello) {
  Sala sala;
  sala.finestra.Avvia("");
  EXPECT_FALSE(sala.finestra.PannelloStrumenti);
  sala.finestra.Esegui(Comando::GondellaLibretti);
  sala.finestra.Esegui(Comando::AttivaPregeo);
  EXPECT_EQ(sala.processi.avviati, (Righe{"C:\\Program Files (x86)\\Gondella\\GondellaLibretti.exe",
                                          "C:\\Program Files (x86)\\Gondella\\Dervola.exe"}));
  sala.dialoghi.carattereScelto = {12.5, "Liberation Mono", true, false};
  sala.finestra.Esegui(Comando::SelezionaFont);
  EXPECT_EQ(sala.disco.Contenuto(Programma + "\\CONFIGURACARATTERE.INI"), "12.5,\"Liberation Mono\",-1,0\r\n");
  KR_LibrettoOriginale altra(sala.ambiente);
  altra.Avvia("");
  EXPECT_EQ(altra.CarattereElenco, sala.dialoghi.carattereScelto);
  EXPECT_EQ(sala.finestra.CarattereElenco, altra.CarattereElenco);
  for (const auto& [punti, letto] : {std::pair{"3.9", false}, {"4", true}, {"72", true}, {"72.5", false}}) {
    sala.disco.Metti(Programma + "\\CONFIGURACARATTERE.INI", std::string(punti) + ",\"Provato\",0,0\r\n");
    KR_LibrettoOriginale riletta(sala.ambiente);
    riletta.Avvia("");
    EXPECT_EQ(riletta.CarattereElenco.nome == "Provato", letto) << punti;
  }
  sala.finestra.PuntatoreSuPulsante(PulsanteUtilita);
  EXPECT_TRUE(sala.finestra.PannelloStrumenti);
  sala.finestra.PuntatoreSuPulsante(4);
  EXPECT_FALSE(sala.finestra.PannelloStrumenti);
  const std::size_t detti = sala.dialoghi.detti.size();
  sala.finestra.Esegui(Comando::UtilitaCatastali);
  EXPECT_TRUE(sala.finestra.PannelloStrumenti && sala.dialoghi.detti.size() == detti);
  sala.finestra.Righe_Indice();
  EXPECT_FALSE(sala.finestra.PannelloStrumenti);
  EXPECT_EQ(sala.sessione.PuntoErrore, "1134");
  EXPECT_FALSE(sala.finestra.Disponibile(Comando::NuovoLibretto));
  sala.finestre.disponibili = {"FormCatasto1TXT"};
  EXPECT_TRUE(sala.finestra.Disponibile(Comando::NuovoLibretto));
}

// What stands around the act is read once, and again behind a form.
TEST(Verifiche, UnaFormPuoCambiareGliArchivi) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove}) + "6|<EST>X.EMP|\r\n");
  sala.finestra.Avvia("C:\\ACT.DAT");
  const auto manca = [&] {
    (void)sala.finestra.AggiornaVerifiche();
    const auto& trovate = sala.finestra.Verifiche.Esito().Segnalazioni();
    return std::ranges::any_of(trovate, [](const Segnalazione& s) { return s.regola->codice == "E002"; });
  };
  EXPECT_TRUE(manca());
  sala.disco.Metti("C:\\pregeo\\estratti\\X.EMP", "0|01102026|P|G224|00010|12,3|PD|PUB|X|1|\r\n");
  EXPECT_TRUE(manca());
  sala.finestre.disponibili = {"KR_EstrattiDiMappa1"};
  sala.finestra.Esegui(Comando::EstrattiDiMappa);
  EXPECT_FALSE(manca());
}

TEST(Comandi, OpzioniFormEConfigurazione) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.Esegui(Comando::NessunaOpzione);
  EXPECT_FALSE(sala.finestra.Opzioni[4].spuntata);
  EXPECT_FALSE(sala.impostazioni.valori.contains("LIBRETTO_AUTOMATICO/Riordino Righe"));
  sala.finestra.Esegui(Comando::TutteLeOpzioni);
  EXPECT_TRUE(sala.finestra.Opzioni[4].spuntata);
  EXPECT_EQ(sala.impostazioni.valori["LIBRETTO_AUTOMATICO/Riordino Righe"], "1");
  EXPECT_FALSE(sala.finestra.Disponibile(Comando::EstrattiDiMappa));
  sala.finestra.Esegui(Comando::EstrattiDiMappa);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), NonAncoraDisponibile);
  sala.finestre.disponibili = {"KR_EstrattiDiMappa1", "KR_Dapregeo"};
  EXPECT_TRUE(sala.finestra.Disponibile(Comando::EstrattiDiMappa));
  sala.finestra.Esegui(Comando::GraficaPregeo);
  EXPECT_EQ(sala.sessione.ModoDaPregeo, 1);
  sala.finestra.Esegui(Comando::EstrattiDiMappa);
  EXPECT_EQ(sala.finestre.aperte, (Righe{"KR_Dapregeo", "KR_EstrattiDiMappa1"}));
  EXPECT_EQ(sala.sessione.PuntoErrore, "Decozero_132");
  sala.finestre.utente = [&](Modello& modello) {
    const ListaRighe& righe = dynamic_cast<KR_StampaGenerale&>(modello).List1;
    EXPECT_EQ(righe[4], "Elenco Cartelle utilizzate da Lirmeto");
    EXPECT_EQ(righe[5], "C:\\FIDUCIAL");
    EXPECT_EQ(righe.back(), "C:\\users\\prova\\Documents\\Forvale\\TEMP");
    sala.finestre.aperte.clear();
  };
  sala.finestra.Esegui(Comando::Configurazione);
  EXPECT_TRUE(sala.finestre.aperte.empty()) << "the report was shown";
  sala.finestra.Esegui(Comando::Righe8NomeAutoDaExcel);
  EXPECT_EQ(sala.sessione.PuntoErrore, "Decozero_134");
  sala.finestra.Esegui(Comando::PaginaWeb);
  EXPECT_EQ(sala.processi.aperti, Righe{std::string(IndirizzoWeb)});
  sala.finestre.disponibili = {"KR_CodFis"};
  sala.sessione.CodiceComune = "X";
  sala.finestra.Esegui(Comando::CodiceFiscale);
  EXPECT_EQ(sala.sessione.CodiceComune, "G224");
  for (const Comando comando : {Comando::Disegno, Comando::CodiceFiscale, Comando::Comuni, Comando::ArchivioPossessori,
                                Comando::CompletaAutoallestito, Comando::GestionePf, Comando::ConfiguraPregeo}) {
    sala.finestre.disponibili = {std::string(FormDi(comando))};
    const auto versione = sala.sessione.List1.Versione();
    sala.finestra.Esegui(comando);
    EXPECT_EQ(sala.sessione.List1.Versione(), versione) << FormDi(comando) << " looks things up: no row is read anew";
  }
}

} // namespace
} // namespace lirmeto
