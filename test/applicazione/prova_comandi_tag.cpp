#include "forme_vere.h"

#include <applicazione/comandi_tag.h>
#include <applicazione/finestra_principale.h>
#include <applicazione/forme.h>
#include <base/errore.h>
#include <base/testo.h>
#include <estratti/estratti_di_mappa.h>
#include <fiduciali/elco_pf_grafica.h>
#include <generazione/libretto_da_disegno.h>
#include <intestazione/catasto1_form.h>
#include <pregeo/form_configura_pregeo.h>
#include <proposte/kr_edm.h>

#include <gtest/gtest.h>

#include <set>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::FormeVere;
using prova::Testo;

const std::string Nuovo = "C:\\users\\prova\\Documents\\LIRMETO\\Nuovo.DAT";
const std::string Atto = Testo({"0|01022024|7|G224|0010|12,3|ROSSI MARIO|GEOMETRA|PADOVA|", "9|12|10|20|0|VER|FR|T|"});

struct CasoRiga {
  std::string nome;
  std::string riga;
  DopoComando dopo;
  std::string file;     // NomeFileLibretto afterwards
  std::string comando;  // ComandoTag and UltimaTag afterwards
  std::string successo; // forms opened, programs started, messages, each with its "+"
};

class Riga : public testing::TestWithParam<CasoRiga> {};

TEST_P(Riga, FaUnaCosaSola) {
  const CasoRiga& caso = GetParam();
  Banco banco;
  banco.disco.Metti("C:\\ATTO.DAT", Atto);
  banco.disco.Metti("C:\\E.EMP", "8|x|");
  banco.disco.rotti["C:\\ROTTO.DAT"] = errore::AutorizzazioneNegata;
  banco.finestre.disponibili = {"FormConfiguraPregeo", "KR_SelezionaMisurate"};
  banco.sessione.ComandoTag = caso.riga;
  const auto prima = banco.disco.file;
  EXPECT_EQ(ComandoTag1(banco.ambiente), caso.dopo);
  EXPECT_EQ(banco.sessione.NomeFileLibretto, caso.file);
  EXPECT_EQ(banco.sessione.UltimaTag, caso.comando);
  std::string successo;
  for (const auto& form : banco.finestre.aperte) successo += "+" + form;
  for (const auto& programma : banco.processi.avviati) successo += "+" + programma;
  for (const auto& detto : banco.dialoghi.detti)
    successo += "+" + (detto.titolo == TitoloProgramma ? detto.testo : detto.titolo);
  EXPECT_EQ(successo, caso.successo);
  EXPECT_EQ(banco.disco.file == prima, caso.nome != "estratto") << "nothing else writes";
}

constexpr auto Finisce = DopoComando::Finisce;
constexpr auto Resta = DopoComando::FinestraPrincipale;
const std::string NonAncora = "+Non ancora disponibile";

INSTANTIATE_TEST_SUITE_P(
    Casi, Riga,
    testing::Values(
        CasoRiga{"percorso", "\"c:\\atto.dat\"", Resta, "C:\\ATTO.DAT", "", ""},
        CasoRiga{"soloVirgolette", "\"\"", Resta, "", "", ""},
        CasoRiga{"assente", "C:\\manca.dat", Resta, "", "", "+C:\\MANCA.DAT\r\nNON trovato!"},
        CasoRiga{"illeggibile", "C:\\rotto.dat", Resta, "", "", "+Rilevato errore"},
        CasoRiga{"estratto", "c:\\e.emp", Resta, "", "", "+Copia Estratto in Pregeo" + NonAncora},
        CasoRiga{"estrattoAssente", "c:\\manca.png", Resta, "", "", "+Rilevato errore" + NonAncora},
        CasoRiga{"disegno", "c:\\manca.dxf", Resta, "", "", NonAncora},
        CasoRiga{"configura", "c:\\atto.dat|configura_pregeo|x", Finisce, "C:\\ATTO.DAT", "CONFIGURA_PREGEO",
                 "+FormConfiguraPregeo"},
        CasoRiga{"senzaFile", "|CONFIGURA_PREGEO", Finisce, Nuovo, "CONFIGURA_PREGEO", "+FormConfiguraPregeo"},
        CasoRiga{"soloBarre", "|||||||", Finisce, Nuovo, "", ""}, CasoRiga{"unaBarra", "|", Finisce, Nuovo, "", ""},
        CasoRiga{"sconosciuto", "c:\\atto.dat|TECNICI|", Finisce, "C:\\ATTO.DAT", "TECNICI", ""},
        CasoRiga{"rotto", "C:\\rotto.dat|CONFIGURA_PREGEO|", Finisce, "", "", "+Rilevato errore"},
        CasoRiga{"estrattoConComando", "c:\\e.emp|CONFIGURA_PREGEO|.emp", Finisce, "C:\\E.EMP", "CONFIGURA_PREGEO",
                 "+FormConfiguraPregeo"},
        CasoRiga{"misurate", "|SELEZIONA_MISURATE|", Finisce, Nuovo, "SELEZIONA_MISURATE", "+KR_SelezionaMisurate"},
        CasoRiga{"unPf", "|misurate_da1_pf|pf01/0010/g224", Finisce, Nuovo, "MISURATE_DA1_PF", "+Misurate non Trovate"},
        CasoRiga{"info", "|INFO_MISURATE|", Finisce, Nuovo, "INFO_MISURATE",
                 "+" + Nuovo + ".LXC\r\nNon Trovato!+MISURATE PF"},
        CasoRiga{"daPregeo", "|DA_PREGEO|", Finisce, Nuovo, "DA_PREGEO", NonAncora},
        CasoRiga{"daPregeoDxf", "|DA_PREGEO_DXF|", Finisce, Nuovo, "DA_PREGEO_DXF", NonAncora},
        CasoRiga{"disegnoSenzaFile", "|LIBRETTO_DA_DISEGNO|", Finisce, Nuovo, "LIBRETTO_DA_DISEGNO", NonAncora},
        CasoRiga{"taf", "|IMPORT-INST_TAF-MISURATE|", Finisce, Nuovo, "IMPORT-INST_TAF-MISURATE",
                 "+C:\\Program Files (x86)\\Gondella\\Vordana.exe"}),
    [](const auto& caso) { return caso.param.nome; });

TEST(ComandoTag, IlParametroEIlModo) {
  Banco banco;
  banco.finestre.disponibili = {"KR_Dapregeo"};
  for (const std::string comando : {"DA_PREGEO_DXF", "DA_PREGEO"}) {
    banco.sessione.ComandoTag = "|" + comando + "|perch\xE9|altro";
    (void)ComandoTag1(banco.ambiente);
    EXPECT_EQ(banco.sessione.ParametroTag, "PERCH\xC9");
    EXPECT_EQ(banco.sessione.ModoDaPregeo, comando == "DA_PREGEO" ? 0 : 1);
  }
  EXPECT_EQ(banco.finestre.aperte.size(), 2U);
}

TEST(ComandoTag, IlProgrammaCheMancaSiDicePerNome) {
  Banco banco;
  banco.processi.guasti["C:\\Program Files (x86)\\Gondella\\Vordana.exe"] = errore::FileNonTrovato;
  banco.sessione.ComandoTag = "|IMPORT-INST_TAF-MISURATE";
  EXPECT_EQ(ComandoTag1(banco.ambiente), Finisce);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(),
            std::string("Si è verificato questo errore : 53\r\nProgramma non installato: "_w) +
                "C:\\Program Files (x86)\\Gondella\\Vordana.exe\r\nNella Routine 3105");
}

// A host with two folders that differ in case alone.
struct DiscoDiDue : prova::DiscoInMemoria {
  [[nodiscard]] bool StessoPosto(std::string_view percorso, std::string_view altro) const override {
    return percorso == altro;
  }
};

TEST(ComandoTag, DoveLeMaiuscoleNonPortanoValeIlPercorsoDato) {
  Banco banco;
  DiscoDiDue disco;
  disco.Metti("Z:\\docs\\a.dat", Atto);
  Ambiente due{banco.sessione,     disco,         banco.dialoghi, banco.finestre, banco.processi,
               banco.impostazioni, banco.appunti, banco.orologio};
  banco.sessione.ComandoTag = "Z:\\docs\\a.dat";
  EXPECT_EQ(ComandoTag1(due), Resta);
  EXPECT_EQ(banco.sessione.Libretto, Atto);
  EXPECT_EQ(banco.sessione.NomeFileLibretto, "Z:\\docs\\a.dat");
  disco.Metti("Z:\\docs\\p.pdf", "[TAG2000]|8|1|2|3|[/TAG]");
  disco.Metti("Z:\\docs\\s.lxb", "8|1|2|3|\r\n");
  disco.Metti("Z:\\docs\\s.DAT", Atto);
  for (const auto& [dato, aperto] :
       {std::pair("Z:\\docs\\p.pdf", "Z:\\docs\\p.TXT"), std::pair("Z:\\docs\\s.lxb", "Z:\\docs\\s.DAT")}) {
    banco.sessione.ComandoTag = dato;
    EXPECT_EQ(ComandoTag1(due), Resta);
    EXPECT_EQ(banco.sessione.NomeFileLibretto, aperto);
  }
  disco.cartelle = banco.disco.cartelle;
  disco.Metti("Z:\\docs\\e.emp", "x");
  banco.sessione.ComandoTag = "Z:\\docs\\e.emp";
  EXPECT_EQ(ComandoTag1(due), Resta);
  EXPECT_EQ(banco.sessione.EstrattoAssociato, "E.EMP");
  EXPECT_EQ(disco.Contenuto("C:\\PREGEO\\ESTRATTI\\E.EMP"), "x");
}

struct CasoDisegno {
  bool conTxt;
  std::int16_t esito;
  DopoComando dopo;
  std::size_t righe; // of the list
};

class Disegno : public testing::TestWithParam<CasoDisegno> {};

TEST_P(Disegno, PrimaLIntestazionePoiIlDisegno) {
  Banco banco;
  banco.finestre.disponibili = {"FormCatasto1TXT", "LibrettoDaDisegno"};
  banco.disco.Metti("C:\\R.LXC\\D.LXC", "P,1,10,20,3\r\n8|1|1|1|\r\n8|2|1|1|\r\n");
  if (GetParam().conTxt) banco.disco.Metti("C:\\R.LXC\\D.TXT", Atto + "1|1|1.5|N|\r\n");
  banco.sessione.EsitoForm = GetParam().esito;
  banco.sessione.ComandoTag = "c:\\r.lxc\\d.lxc|libretto_da_disegno";
  EXPECT_EQ(ComandoTag1(banco.ambiente), GetParam().dopo);
  EXPECT_EQ(banco.finestre.aperte.size(), GetParam().esito < 0 ? 1U : 2U);
  EXPECT_EQ(banco.finestre.aperte[0], "FormCatasto1TXT");
  EXPECT_EQ(banco.Righe().size(), GetParam().righe) << "rows of a drawing are none of a libretto";
  EXPECT_EQ(banco.sessione.NomeFileLibretto, GetParam().esito < 0 ? "C:\\R.LXC\\D.LXC" : "C:\\R.LXC\\D.TXT");
  EXPECT_EQ(banco.sessione.PuntoErrore, "Decozero_130");
}

INSTANTIATE_TEST_SUITE_P(Casi, Disegno,
                         testing::Values(CasoDisegno{true, 1, Resta, 3}, CasoDisegno{false, 1, Resta, 2},
                                         CasoDisegno{true, -1, Finisce, 3}));

struct CasoGenera {
  bool preme;
  bool siScrive;
  DopoComando dopo;
};

class DalDisegno : public testing::TestWithParam<CasoGenera> {};

// A libretto that was made and written ends the program; otherwise the main window follows, and on no account will its
// save go over the drawing.
TEST_P(DalDisegno, FinisceSoloSeIlLibrettoCE) {
  const std::string disegno = Testo({"P,100,0,0,1,N,1.5", "P,101,3,4,2,N,1.5", "L,0,0,1,3,4,2", "7,|100|101|RC|,PD,"});
  const CasoGenera& caso = GetParam();
  Banco banco;
  FormeVere vere(banco);
  vere.utente = [&](Modello& modello) {
    if (dynamic_cast<FormCatasto1TXT*>(&modello) != nullptr) banco.sessione.EsitoForm = EsitoConfermato;
    auto* form = dynamic_cast<LibrettoDaDisegno*>(&modello);
    if (form == nullptr || !caso.preme) return;
    if (!caso.siScrive) banco.disco.rotti["C:\\R.LXC\\D.TXT"] = errore::AutorizzazioneNegata;
    form->ButtonPlus1_0();
    EXPECT_EQ(form->Chiusa, caso.siScrive);
  };
  banco.disco.cartelle.emplace_back("C:\\R.LXC"); // the folder keeps its name
  banco.disco.Metti("C:\\R.LXC\\D.LXC", disegno);
  banco.sessione.ComandoTag = "c:\\r.lxc\\d.lxc|LIBRETTO_DA_DISEGNO|";
  EXPECT_EQ(ComandoTag1(vere.ambiente), caso.dopo);
  if (caso.preme && caso.siScrive) { // the drawing alone, without the command, shows what came of it
    banco.disco.Elimina("C:\\R.LXC\\D.TXT");
    banco.sessione.ComandoTag = "c:\\r.lxc\\d.lxc";
    EXPECT_EQ(ComandoTag1(vere.ambiente), DopoComando::FinestraPrincipale);
  }
  EXPECT_EQ(banco.sessione.NomeFileLibretto, "C:\\R.LXC\\D.TXT");
  EXPECT_EQ(banco.disco.Contenuto("C:\\R.LXC\\D.LXC"), disegno);
  EXPECT_EQ(Contiene(banco.sessione.Libretto, "\r\n2|101|"), caso.preme);
  EXPECT_EQ(banco.impostazioni.valori["LIBRETTO_AUTOMATICO/MANTIENI_GPS"], "1");
  banco.disco.rotti.clear();
  EXPECT_EQ(banco.disco.Esiste("C:\\R.LXC\\D.TXT"), caso.preme && caso.siScrive);
}

INSTANTIATE_TEST_SUITE_P(Casi, DalDisegno,
                         testing::Values(CasoGenera{true, true, Finisce}, CasoGenera{true, false, Resta},
                                         CasoGenera{false, true, Resta}));

TEST(Avvio, UnComandoNonPreparaLaFinestra) {
  Banco banco;
  banco.disco.Metti("C:\\ATTO.DAT", Atto);
  banco.finestre.disponibili = {"FormConfiguraPregeo"};
  banco.processi.vivi["pregeo.exe"] = {77};
  KR_LibrettoOriginale finestra(banco.ambiente);
  EXPECT_FALSE(finestra.Avvia("C:\\atto.dat|CONFIGURA_PREGEO|"));
  EXPECT_TRUE(banco.processi.terminati.empty()) << "Pregeo goes on";
  EXPECT_TRUE(finestra.Avvia("C:\\atto.dat"));
  EXPECT_EQ(banco.Righe().size(), 2U);
}

TEST(Strumenti, LaTagRestaELeCaselleSeguono) {
  Banco banco;
  banco.finestre.disponibili = {"FormConfiguraPregeo", "KR_ElcoPf", "KR_Dapregeo.Cerca", "KR_Dapregeo", "QuoteMedie"};
  banco.dialoghi.fileScelto = "*";
  KR_LibrettoOriginale finestra(banco.ambiente);
  finestra.Avvia("");
  for (const auto& strumento : Strumenti()) {
    banco.sessione.SiglaProvincia = strumento.tag;
    finestra.EseguiStrumento(strumento.tag);
    EXPECT_EQ(banco.sessione.ComandoTag, strumento.tag);
    EXPECT_EQ(finestra.SiglaPulsanteProvincia, banco.sessione.SiglaProvincia);
  }
  finestra.Esegui(Comando::ArchiviaLibretti);
  EXPECT_EQ(banco.sessione.ComandoTag, "Silvarca");
  EXPECT_EQ(banco.finestre.aperte, (std::vector<std::string>{"QuoteMedie", "FormConfiguraPregeo", "KR_Dapregeo",
                                                             "KR_ElcoPf", "KR_Dapregeo.Cerca"}));
}

// A wrong index is either that of a neighbour or one that no button had.
template <class Voci>
std::size_t Indici(const Voci& voci) {
  std::set<int> indici;
  for (const auto& voce : voci) indici.insert(voce.indice);
  EXPECT_EQ(indici.size(), voci.size());
  return voci.size();
}

TEST(Pulsanti, OgnunoHaIlSuoIndice) {
  EXPECT_EQ(Indici(Pulsanti()), 24U);
  EXPECT_EQ(Indici(FormCatasto1TXT::Pulsanti()), 24U);
  EXPECT_EQ(Indici(KR_EDM::Pulsanti()), 18U);
  EXPECT_EQ(Indici(KR_EstrattiDiMappa1::Pulsanti()), 19U);
  EXPECT_EQ(Indici(VociElcoPF()), 15U);
}

TEST(Forme, OgnunaSiApreColSuoModelloCaricato) {
  Banco banco;
  banco.sessione.EstrattoAssociato = "A.EMP";
  banco.disco.Metti("C:\\PREGEO\\ESTRATTI\\A.EMP", "0|1|\r\n");
  for (const Forma& form : Forme()) {
    bool mostrata = false;
    banco.finestre.utente = [&](Modello& modello) {
      mostrata = true;
      const auto* configura = dynamic_cast<FormConfiguraPregeo*>(&modello);
      EXPECT_TRUE(configura == nullptr || !configura->Testo.empty());
    };
    EXPECT_EQ(TrovaForma(form.nome), &form);
    form.apri(banco.ambiente);
    EXPECT_TRUE(mostrata) << form.nome;
  }
  EXPECT_EQ(TrovaForma("NESSUNA"), nullptr);
}

} // namespace
} // namespace lirmeto
