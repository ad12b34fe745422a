#include "sostituti/banco.h"

#include <applicazione/autore.h>
#include <applicazione/finestra_principale.h>
#include <applicazione/forme.h>
#include <base/errore.h>
#include <base/testo.h>
#include <core/righe_scartate.h>
#include <core/riordino.h>
#include <intestazione/catasto1_form.h>
#include <supporto/editor_gen.h>
#include <supporto/stampa_generale.h>

#include <gtest/gtest.h>

#include <deque>
#include <set>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Zero = "0|01022024|7|G224|0010|12,3|ROSSI MARIO|GEOMETRA|PADOVA|";
const std::string Nove = "9|12|10|20|0|VER|FR|TOTALE|";
const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO";

struct Sala : Banco {
  KR_LibrettoOriginale finestra{ambiente};
  Sala() {
    disco.Metti("C:\\ACT.DAT",
                Testo({Zero, Nove, "6|commento|", "1|1|1.5|N|", "2|2|1|2|3|1|N|", "8|PF01/0010/G224|1|2|3|x|"}));
  }
  // Everything that undo must give back.
  [[nodiscard]] std::vector<std::string> Foto() const {
    std::vector<std::string> foto = Righe();
    for (const auto& valore : {sessione.Libretto, sessione.Ditta, finestra.CasellaDitta, sessione.NomeFileLibretto,
                               sessione.EstrattoAssociato, sessione.RigaZero, sessione.Protocollo})
      foto.push_back(valore);
    return foto;
  }
  [[nodiscard]] std::string Domanda() const { return dialoghi.detti.back().titolo + "/" + dialoghi.UltimoTesto(); }
};

TEST(Avvio, ApreIlLibrettoEPreparaLaSessione) {
  Sala sala;
  sala.disco.cartelle.insert(sala.disco.cartelle.end(), {"C:\\FIDUCIAL", "C:\\FIDUCIAL\\VISURE"});
  sala.disco.Metti("C:\\FIDUCIAL\\VISURE\\2024_ROSSI MARIO_S_FR_7_G224_0010_12_3.VIS",
                   "\r\n\r\nRossi  Mario\r\nvia Po\r\n\r\n");
  sala.disco.Metti(Programma + "\\TECNICI\\ROSSI MARIO.PFS",
                   "\"ROSSI "
                   "MARIO\",\"INGEGNERE\",\r\n,,\r\n\"55\",\"CFX\"\r\nROSSI\r\nMARIO\r\n");
  ASSERT_TRUE(sala.finestra.Avvia("C:\\ACT.DAT"));
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
  EXPECT_EQ(sala.finestra.Titolo, "Lirmeto V 5.00 - L'Evoluzione - Libretto Misure : [7 01022024] "
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

TEST(Avvio, UnSecondoAvvioLiTerminaTutti) {
  Sala sala;
  sala.processi.vivi["Lirmeto.exe"] = {5, 1};
  EXPECT_FALSE(sala.finestra.Avvia(""));
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "Modulo già attivo!"_w);
  EXPECT_EQ(sala.processi.terminati, (std::vector<long>{5, 1}));
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
  EXPECT_EQ(sala.Domanda(), "Elimina righe dal Libretto/Eliminare le Righe selezionate?");
  EXPECT_EQ(sala.Righe().size(), 6U);
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.Righe(), (Righe{Zero, Nove, "8|PF01/0010/G224|1|2|3|x|"}));
  EXPECT_EQ(sala.sessione.Libretto, Testo(sala.Righe()));
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
  sala.finestra.PuntatoreSuPulsante(PulsanteUtilita);
  EXPECT_TRUE(sala.finestra.PannelloStrumenti);
  sala.finestra.PuntatoreSuPulsante(4);
  EXPECT_FALSE(sala.finestra.PannelloStrumenti);
  sala.finestra.Esegui(Comando::UtilitaCatastali);
  sala.finestra.Righe_Indice();
  EXPECT_FALSE(sala.finestra.PannelloStrumenti);
  EXPECT_FALSE(sala.finestra.Disponibile(Comando::NuovoLibretto));
  sala.finestre.disponibili = {"FormCatasto1TXT"};
  EXPECT_TRUE(sala.finestra.Disponibile(Comando::NuovoLibretto));
}

// --- undo and redo

struct CasoAnnulla {
  std::string nome;
  std::function<void(Sala&)> comando;
};

class Annulla : public testing::TestWithParam<CasoAnnulla> {};

TEST_P(Annulla, RidaEsatteLeRigheERipeteRida) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "6|commento|", "8|1|1|1|", "2|1|1,2,3|x|y|z|N [VRS]|",
                                         "1|1|1.5||<P!>|", "2|2|1,2,3|x|y|z|N|", "6|una|due|tre|quattro|"}));
  sala.disco.Metti("C:\\ALTRO.DAT", Testo({Zero, Nove, "8|9|9|9|", "6|<DIT>NERI|", "6|<EST>ALTRO.EMP|"}));
  sala.disco.Metti("C:\\ACT.LXB", Testo({"1|1|9|x|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.finestre.disponibili = {"FormCatasto1TXT", "KR_EDM"};
  sala.dialoghi.risposte = {Risposta::Si};
  sala.appunti.testo = "5\t1,5\t2\r\n";
  const auto prima = sala.Foto();
  GetParam().comando(sala);
  const auto dopo = sala.Foto();
  EXPECT_NE(prima, dopo);
  ASSERT_TRUE(sala.finestra.Attivo(Comando::Annulla)) << sala.dialoghi.UltimoTesto();
  for (int giro = 0; giro < 2; ++giro) {
    sala.finestra.Esegui(Comando::Annulla);
    EXPECT_EQ(sala.Foto(), prima);
    EXPECT_FALSE(sala.finestra.Attivo(Comando::Annulla)) << "one command is one step";
    sala.finestra.Esegui(Comando::Ripeti);
    EXPECT_EQ(sala.Foto(), dopo);
  }
}

CasoAnnulla Dal(Comando comando, long indice = -1) {
  return {"Comando" + std::to_string(static_cast<int>(comando)), [=](Sala& sala) {
            sala.sessione.List1.Indice(indice);
            sala.finestra.Esegui(comando);
          }};
}

// The editor, as a user who takes a row away.
CasoAnnulla Dall(const std::string& nome, void (KR_LibrettoOriginale::*evento)(std::size_t)) {
  return {nome, [=](Sala& sala) {
            sala.finestre.utente = [](Modello& modello) {
              auto& editor = dynamic_cast<KR_EditorGen&>(modello);
              editor.Testo = Sostituisci(editor.Testo, "8|1|1|1|\r\n", "");
              editor.Chiudi();
            };
            (sala.finestra.*evento)(3);
          }};
}

INSTANTIATE_TEST_SUITE_P(
    OgniComando, Annulla,
    testing::Values(Dal(Comando::EliminaVrs), Dal(Comando::AssegnaVrs, 6), Dal(Comando::Righe8DaExcel),
                    Dal(Comando::Righe8NomeAutoDaExcel), Dal(Comando::RigheCompleteDaExcel),
                    Dal(Comando::DaElaborazionePregeo), Dal(Comando::ModelloCensuario), Dal(Comando::RiordinoRighe),
                    Dal(Comando::IncollaDaAppunti), Dal(Comando::NuovoLibretto), Dal(Comando::NuovoLibrettoVuoto),
                    Dall("DoppioClick", &KR_LibrettoOriginale::DoppioClick),
                    Dall("Invio", &KR_LibrettoOriginale::TastoInvio),
                    CasoAnnulla{"Cancella",
                                [](Sala& sala) {
                                  sala.sessione.List1.SelezionaIntervallo(2, 4, true);
                                  sala.finestra.TastoCancella();
                                }},
                    CasoAnnulla{"Trascina", [](Sala& sala) { sala.finestra.Trascina("C:\\altro.dat"); }},
                    CasoAnnulla{"TrascinaLxb", [](Sala& sala) { sala.finestra.Trascina("C:\\act.lxb"); }},
                    CasoAnnulla{"DialogoRiordino",
                                [](Sala& sala) {
                                  sala.finestre.utente = [](Modello& modello) {
                                    auto& form = dynamic_cast<FormRiordinoRighe&>(modello);
                                    form.AllAttivazione();
                                    form.Righe[ClasseRighe::Coordinate].clear();
                                    form.Conferma();
                                  };
                                  sala.finestra.Esegui(Comando::MostraRiordino);
                                }}),
    [](const auto& caso) { return caso.param.nome; });

// Forms opened by name are the real ones.
struct FinestreVere : prova::FinestreDiProva {
  Ambiente* ambiente = nullptr;
  [[nodiscard]] bool Disponibile(std::string_view nome) const override { return TrovaForma(nome) != nullptr; }
  void Apri(std::string_view nome) override { TrovaForma(nome)->apri(*ambiente); }
};

TEST(Annulla, LIntestazioneConfermata) {
  Sala sala;
  FinestreVere finestre;
  Ambiente vero{sala.sessione, sala.disco,        sala.dialoghi, finestre,
                sala.processi, sala.impostazioni, sala.appunti,  sala.orologio};
  finestre.ambiente = &vero;
  finestre.utente = [](Modello& modello) {
    auto& form = dynamic_cast<FormCatasto1TXT&>(modello);
    form.Cambia(1, "99");
    form.Premi(0);
  };
  sala.dialoghi.risposte = {Risposta::Si}; // a fiscal code that is none
  KR_LibrettoOriginale finestra(vero);
  finestra.Avvia("C:\\ACT.DAT");
  const auto prima = sala.Foto();
  finestra.DoppioClick(0);
  EXPECT_EQ(Parte(sala.Righe()[0], '|', 2), "99");
  finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.Foto(), prima);
  finestra.Esegui(Comando::Ripeti);
  EXPECT_EQ(sala.sessione.Protocollo, "99");
}

TEST(Annulla, NonPerCioCheNonCambiaLeRighe) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  for (const Comando comando : {Comando::SalvaLibretto, Comando::CopiaNegliAppunti, Comando::SelezionaStazioni,
                                Comando::InvertiSelezione, Comando::MostraRigheScartate, Comando::EliminaVrs}) {
    sala.finestra.Esegui(comando);
    EXPECT_FALSE(sala.finestra.Attivo(Comando::Annulla)) << static_cast<int>(comando);
  }
  sala.finestra.Esegui(Comando::RiordinoRighe);
  EXPECT_EQ(sala.finestra.Didascalia(Comando::Annulla), "Annulla");
  sala.sessione.List1.Aggiungi("8|nuova|1|2|");
  sala.sessione.List1.Seleziona(2, true);
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.finestra.Didascalia(Comando::Annulla), "Annulla Elimina Righe");
  sala.finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.finestra.Didascalia(Comando::Ripeti), "Ripeti Elimina Righe");
}

TEST(Scartate, LAvvisoRestaFinoAlProssimoCambiamento) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "8|1|1|1|", "6|una|due|tre|", "6|x|y|z|w|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.Esegui(Comando::RiordinoRighe);
  EXPECT_EQ(sala.finestra.AvvisoScartate, "Scartate 2 righe senza classe");
  sala.finestra.Esegui(Comando::SelezionaStazioni);
  sala.finestre.utente = [&](Modello& modello) {
    auto& form = dynamic_cast<FormRigheScartate&>(modello);
    EXPECT_EQ(form.Righe(), (ListaRighe{"6|una|due|tre|", "6|x|y|z|w|"}));
    form.Copia();
  };
  sala.finestra.Esegui(Comando::MostraRigheScartate);
  EXPECT_EQ(sala.appunti.testo, Testo({"6|una|due|tre|", "6|x|y|z|w|"}));
  sala.finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.finestra.AvvisoScartate, "");
  sala.finestra.Esegui(Comando::Ripeti);
  EXPECT_EQ(sala.sessione.RigheScartate.size(), 2U);
  sala.finestra.Esegui(Comando::IncollaDaAppunti);
  EXPECT_EQ(sala.finestra.AvvisoScartate, "");
}

TEST(Comandi, OpzioniFormEConfigurazione) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.Esegui(Comando::NessunaOpzione);
  EXPECT_FALSE(sala.finestra.Opzioni[4].spuntata);
  EXPECT_TRUE(sala.impostazioni.valori.empty());
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
}

TEST(Chiusura, ScriveIlFileELaPosizione) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.finestra.CambiaCodiceFiscale("abc");
  sala.finestra.CambiaIscrizione("9");
  sala.finestra.Chiusura({1, 2, 300, 400});
  const std::string scritto = sala.disco.Contenuto("C:\\ACT.DAT");
  EXPECT_TRUE(scritto.ends_with("6|<EST>|\r\n6|<COD>ABC|\r\n6|<ISC>9|\r\n6|<DIT>ROSSI|\r\n\r\n")) << scritto;
  EXPECT_EQ(sala.impostazioni.valori["POSIZIONE_FORMx/KR_LibrettoOriginale"], "1");
  EXPECT_EQ(sala.impostazioni.valori["FORMy/KR_LibrettoOriginale"], "400");
  EXPECT_TRUE(sala.finestra.Finita);
}

TEST(Chiusura, SenzaCambiamentiNonScriveNulla) {
  const std::string ripetute = Testo({Zero, Nove, "8|1||", "8|1||"}); // what opening mends is no change
  for (const char* file : {"C:\\ACT.DAT", "C:\\MANCA.DAT", ""}) {
    Sala sala;
    sala.disco.Metti("C:\\ACT.DAT", ripetute + "6|<DIT>Rossi|\r\n");
    sala.finestra.Avvia(file);
    sala.finestra.Esegui(Comando::InvertiSelezione);
    sala.finestra.Chiusura({});
    EXPECT_EQ(sala.disco.Contenuto("C:\\ACT.DAT"), ripetute + "6|<DIT>Rossi|\r\n");
    EXPECT_FALSE(sala.disco.Esiste("C:\\MANCA.DAT"));
    EXPECT_TRUE(sala.finestra.Finita);
    EXPECT_EQ(sala.dialoghi.detti.size(), 0U) << sala.dialoghi.UltimoTesto();
  }
}

TEST(Chiusura, CioCheUnLxbPortaSiScrive) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.LXB", "1|9|1.5|NUOVA|\r\n");
  sala.finestra.Avvia("C:\\ACT.LXB");
  sala.finestra.Chiusura({});
  EXPECT_TRUE(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "1|9|1.5|NUOVA|"));
}

struct CasoChiusura {
  std::string nome;
  std::deque<std::size_t> scelte; // 0 again, 1 elsewhere, 2 without saving; none: the window stays
  bool finita;
  std::string dove; // where the edit is in the end; empty for nowhere
};

class ChiusuraFallita : public testing::TestWithParam<CasoChiusura> {};

TEST_P(ChiusuraFallita, NonPerdeLeModifiche) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.disco.rotti["C:\\ACT.DAT"] = errore::AccessoAlFile;
  sala.dialoghi.scelte = GetParam().scelte;
  sala.dialoghi.fileScelto = "C:\\COPIA.DAT";
  sala.finestra.Chiusura({});
  EXPECT_EQ(sala.finestra.Finita, GetParam().finita);
  EXPECT_EQ(sala.finestra.CasellaDitta, "ROSSI");
  for (const std::string file : {"C:\\ACT.DAT", "C:\\COPIA.DAT"})
    EXPECT_EQ(Contiene(sala.disco.Contenuto(file), "6|<DIT>ROSSI|"), file == GetParam().dove) << file;
  sala.disco.rotti.clear();
  if (GetParam().finita) return;
  sala.finestra.Chiusura({});
  EXPECT_TRUE(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "6|<DIT>ROSSI|"));
}

INSTANTIATE_TEST_SUITE_P(Scelte, ChiusuraFallita,
                         testing::Values(CasoChiusura{"resta", {}, false, ""},
                                         CasoChiusura{"riprova", {0, 0}, false, ""},
                                         CasoChiusura{"altrove", {0, 1}, true, "C:\\COPIA.DAT"},
                                         CasoChiusura{"senzaSalvare", {2}, true, ""}),
                         [](const auto& caso) { return caso.param.nome; });

// The header form as the user leaves it.
struct FinestraIntestazione : prova::FinestreDiProva {
  Sessione* sessione = nullptr;
  std::int16_t esito = EsitoAnnullato;
  [[nodiscard]] bool Disponibile(std::string_view) const override { return true; }
  void Apri(std::string_view) override {
    sessione->EsitoForm = esito;
    if (esito > 0) sessione->Libretto = Testo({"0|01012026|9|G224|0010|5|NUOVO ATTO|GEOMETRA|PADOVA|", Nove});
  }
};

struct CasoNuovo {
  std::string nome;
  std::string ditta;  // typed before
  Risposta risposta;  // to the question whether to save
  bool siScrive;      // the file can be written
  std::int16_t esito; // of the header form
  bool chiede;
  bool nuovo;   // the new libretto stands in the end
  bool salvata; // the edit is on the disk
};

class Nuovo : public testing::TestWithParam<CasoNuovo> {};

TEST_P(Nuovo, NonSiPortaViaQuelloDiPrima) {
  const CasoNuovo& caso = GetParam();
  Sala sala;
  FinestraIntestazione finestre;
  finestre.sessione = &sala.sessione;
  finestre.esito = caso.esito;
  Ambiente vero{sala.sessione, sala.disco,        sala.dialoghi, finestre,
                sala.processi, sala.impostazioni, sala.appunti,  sala.orologio};
  KR_LibrettoOriginale finestra(vero);
  finestra.Avvia("C:\\ACT.DAT");
  if (!caso.ditta.empty()) finestra.CambiaDitta(caso.ditta);
  if (!caso.siScrive) sala.disco.rotti["C:\\ACT.DAT"] = errore::AccessoAlFile;
  sala.dialoghi.risposte = {caso.risposta};
  const auto prima = sala.Foto();
  finestra.Esegui(Comando::NuovoLibretto);
  EXPECT_EQ(!sala.dialoghi.detti.empty() && sala.dialoghi.detti[0].titolo == "Nuovo Libretto", caso.chiede);
  EXPECT_EQ(finestra.EtichettaFile, caso.nuovo ? "" : "C:\\ACT.DAT");
  EXPECT_EQ(sala.sessione.NomeFileLibretto, finestra.EtichettaFile);
  EXPECT_EQ(finestra.CasellaDitta, caso.nuovo ? "" : Maiuscolo(caso.ditta));
  if (!caso.nuovo) {
    EXPECT_EQ(sala.Foto(), prima);
  }
  EXPECT_EQ(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "6|<DIT>ROSSI|"), caso.salvata);
  finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.sessione.NomeFileLibretto, "C:\\ACT.DAT");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Nuovo,
    testing::Values(CasoNuovo{"intatto", "", Risposta::No, true, EsitoConfermato, false, true, false},
                    CasoNuovo{"intatto_esc", "", Risposta::No, true, EsitoAnnullato, false, false, false},
                    CasoNuovo{"si", "rossi", Risposta::Si, true, EsitoConfermato, true, true, true},
                    CasoNuovo{"si_fallito", "rossi", Risposta::Si, false, EsitoConfermato, true, false, false},
                    CasoNuovo{"si_esc", "rossi", Risposta::Si, true, EsitoAnnullato, true, false, true},
                    CasoNuovo{"no", "rossi", Risposta::No, true, EsitoConfermato, true, true, false},
                    CasoNuovo{"annulla", "rossi", Risposta::Annulla, true, EsitoConfermato, true, false, false}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Tabelle, OgniPulsanteUnaVolta) {
  std::set<int> indici;
  for (const auto& pulsante : Pulsanti()) EXPECT_TRUE(indici.insert(pulsante.indice).second) << pulsante.indice;
  EXPECT_EQ(indici,
            (std::set<int>{1, 3, 4, 5, 6, 7, 9, 10, 11, 14, 15, 16, 17, 18, 20, 21, 22, 23, 24, 25, 27, 28, 30, 31}));
  EXPECT_EQ(Strumenti().size(), 10U);
}

} // namespace
} // namespace lirmeto
