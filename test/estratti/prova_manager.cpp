// The extract manager: what each command says and leaves on disk.
#include "tavolo.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <estratti/kr_estratto.h>
#include <supporto/stampa_generale.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Cartella;
using prova::Estratto;
using prova::Scegli;
using prova::Tavolo;
using prova::Testo;
using prova::ZeroEstratto;
using Righe = std::vector<std::string>;

TEST(Manager, SelezionareMostraTestoEtichetteEDisegno) {
  Tavolo tavolo;
  tavolo.sessione.EstrattoAssociato = "A.PNG";
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.File1, (Righe{"A.EMP", "A.PNG", "B.EMP", "C.SMP"}));
  EXPECT_EQ(form.Indice, 0) << "that of the associated name";
  EXPECT_EQ(form.Titolo, "Gestione Estratti di Mappa - Estratto Associato = A.PNG - A.EMP");
  EXPECT_EQ(form.TestoFile, Testo(Estratto));
  EXPECT_EQ(form.Anteprima, AnteprimaEstratto::Nessuna) << "the rest comes when the window is there";
  form.AnteprimaEstratto3();
  EXPECT_EQ(form.Etichette.comune + "/" + form.Etichette.provincia, "G224 - PADOVA/PD - PADOVA");
  EXPECT_EQ(form.Etichette.foglio + "/" + form.Etichette.particelle, "00123/35,36");
  EXPECT_EQ(form.Etichette.rilascio + "/" + form.Etichette.scadenza,
            "Rilasciato il 12-06-2026/L'Estratto scade tra    -1 mesi");
  EXPECT_EQ(form.Etichette.versione + "/" + form.Etichette.estMedio + "/" + form.Etichette.tipo,
            "Pregeo 10/Est Med. 5/");
  EXPECT_EQ(form.TestoDitte + form.TestoParticelle, "1 ROSSI 2 X \r\n35/A    SEMINATIVO   1 1     \r\n");
  EXPECT_EQ(form.Anteprima, AnteprimaEstratto::Disegno);
  EXPECT_EQ(form.Grafica1().Archivio().Punti().size(), 6U) << "four vertices, two names";
  EXPECT_EQ(form.RasterScelto, "C:\\pregeo\\estratti\\A.PNG");

  form.Seleziona(1);
  EXPECT_TRUE(form.TestoFile.empty() && form.Etichette.comune.empty());
  std::vector<int> attivi;
  for (const auto& pulsante : KR_EstrattiDiMappa1::Pulsanti())
    if (form.Abilitato(pulsante)) attivi.push_back(pulsante.indice);
  EXPECT_EQ(attivi, (std::vector<int>{0, 2, 27, 8, 11, 12})) << "what a raster is good for";
  form.AnteprimaEstratto3();
  EXPECT_EQ(form.Anteprima, AnteprimaEstratto::Raster);
  form.CambiaFiltro(FiltroEstratti::Smp);
  EXPECT_EQ(form.File1, Righe{"C.SMP"});
  EXPECT_EQ(form.Indice, -1);
  EXPECT_THROW(form.Seleziona(1), Errore);
  EXPECT_EQ(tavolo.sessione.EstrattoAssociato, "A.PNG") << "looking ties nothing";
  form.Premi(0);
  EXPECT_TRUE(form.Chiusa);
}

TEST(Manager, UnaCartellaVuotaOCheMancaHaDueEsempi) {
  for (const bool manca : {false, true}) {
    Banco banco;
    if (manca) std::erase(banco.disco.cartelle, "C:\\PREGEO\\ESTRATTI");
    KR_EstrattiDiMappa1 form(banco.ambiente);
    form.AlCaricamento();
    EXPECT_EQ(form.File1, (Righe{"ESTRATTO.EMP", "ESTRATTO1.EMP"}));
    form.Seleziona(1);
    form.AnteprimaEstratto3();
    EXPECT_EQ(banco.dialoghi.UltimoTesto(), "");
    KR_Estratto estratto;
    ASSERT_TRUE(EsplodiEstratto(banco.ambiente, estratto, "ESTRATTO1.EMP"));
    const std::string prima = banco.sessione.EstrattoSette;
    ASSERT_TRUE(SalvaEstratto(banco.ambiente, estratto));
    const std::string dopo = banco.disco.Contenuto(Cartella + "ESTRATTO1.EMP");
    EXPECT_TRUE(Contiene(prima, "|257+|257+|3161.93") && Contiene(dopo, "|257+|257+|3162|")) << dopo;
    EXPECT_TRUE(Contiene(prima, "|257|257|15997.22") && Contiene(dopo, "|257|257|15997|")) << dopo;
  }
}

TEST(Manager, DiUnFileGrandeLeSoleRigheIntereDellInizio) {
  Tavolo tavolo;
  std::string grande = ZeroEstratto + "\n";
  while (grande.size() < 200'000) grande += "6|DISTANZA|0123456789|\n";
  tavolo.disco.Metti(Cartella + "G.EMP", grande);
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  Scegli(form, "G.EMP");
  EXPECT_LT(form.TestoFile.size(), 80'000U);
  EXPECT_GT(form.TestoFile.size(), 60'000U);
  EXPECT_TRUE(form.TestoFile.ends_with("6|DISTANZA|0123456789|\r\n"));
}

TEST(Manager, UnFileGuastoSiDiceENonMostraQuelloDiPrima) {
  Tavolo tavolo;
  tavolo.disco.Metti(Cartella + "R.EMP", "0|1|\r\n8|1%|1|1|\r\n");
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  for (const char* nome : {"A.EMP", "R.EMP"}) {
    Scegli(form, nome);
    form.AnteprimaEstratto3();
  }
  EXPECT_NE(tavolo.dialoghi.UltimoTesto().find("EsplodiEstratto"), std::string::npos);
  EXPECT_TRUE(form.Etichette.foglio.empty() && form.TestoDitte.empty());
}

using Caselle = std::array<std::string, 3>; // new name, parcel, its new name

void Compila(KR_EstrattiDiMappa1& form, const std::string& scelto, const Caselle& caselle) {
  Scegli(form, scelto);
  std::tie(form.NuovoNome, form.NomeParticella, form.NuovoNomeParticella) =
      std::tie(caselle[0], caselle[1], caselle[2]);
}

struct CasoComando {
  std::string nome;
  int indice;
  std::string scelto; // "": nothing selected
  Caselle caselle;
  Righe detti;                                           // title/text, questions too
  std::vector<std::pair<std::string, std::string>> file; // what they hold afterwards, "(manca)": not there
  std::string selezionato;
};

class Comandi : public testing::TestWithParam<CasoComando> {};

TEST_P(Comandi, DicoELasciano) {
  const CasoComando& caso = GetParam();
  Tavolo tavolo;
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  Compila(form, caso.scelto, caso.caselle);
  const auto prima = tavolo.disco.file;
  form.Premi(caso.indice);
  EXPECT_EQ(tavolo.Detti(), caso.detti);
  auto attesi = prima;
  for (const auto& [nome, contenuto] : caso.file) attesi[Cartella + nome] = contenuto;
  std::erase_if(attesi, [](const auto& voce) { return voce.second == "(manca)"; });
  EXPECT_EQ(tavolo.disco.file, attesi);
  EXPECT_EQ(form.Indice < 0 ? "" : form.File1[static_cast<std::size_t>(form.Indice)], caso.selezionato);
  KR_EstrattiDiMappa1 nuovo(tavolo.ambiente);
  nuovo.AlCaricamento();
  Scegli(nuovo, caso.selezionato);
  nuovo.AnteprimaEstratto3();
  EXPECT_EQ(form.TestoFile + form.TestoDitte + form.TestoParticelle + form.Etichette.particelle,
            nuovo.TestoFile + nuovo.TestoDitte + nuovo.TestoParticelle + nuovo.Etichette.particelle)
      << "what is shown is the file as it is now";
}

std::string Con(const std::string& da, const std::string& a) {
  return Sostituisci(Testo(Estratto), da, a);
}

const std::string FotoA = "foto";
const std::string Salvato =
    Testo({ZeroEstratto, "8|1%|0|0|", "8|2%|10|0|", "8|3%|10|10|", "7|4|1%|3%|2%|1%|NC|36|36|50|",
           "7|4|1%|2%|3%|1%|NC|35|35|50|", "6|DITTA|1|ROSSI|2|X|", "6|PARTICELLA|35/A|  |SEMINATIVO  |1|1| | |",
           "6|DISTORSIONE|1.5|"});

INSTANTIATE_TEST_SUITE_P(
    Casi, Comandi,
    testing::Values(
        CasoComando{"CopiaRapida",
                    6,
                    "A.EMP",
                    {},
                    {},
                    {{"A1.EMP", Testo(Estratto)}, {"A1.PNG", FotoA}, {"A1.JPG", "foto j"}},
                    "A.EMP"},
        CasoComando{"CopiaDiUnRaster", 6, "A.PNG", {}, {}, {}, "A.PNG"},
        CasoComando{"Elimina",
                    8,
                    "A.EMP",
                    {},
                    {"Elimina Estratto/Eliminare Estratto : \r\n\r\nA.* ?? "},
                    {{"A.EMP", "(manca)"}, {"A.PNG", "(manca)"}, {"A.JPG", "(manca)"}},
                    "B.EMP"},
        CasoComando{"Vuota",
                    9,
                    "A.EMP",
                    {},
                    {"Vuota Estratto/Vuotare Estratto?"},
                    {{"A.EMP", Testo({ZeroEstratto, "6|DISTORSIONE|1.5|"})}},
                    "A.EMP"},
        CasoComando{"VuotaUnaRiga", 9, "C.SMP", {}, {}, {}, "C.SMP"},
        CasoComando{"Autoallestito",
                    10,
                    "A.EMP",
                    {},
                    {"Autoallestito/Trasformare in Autoallestito?"},
                    {{"A.EMP", Testo({"0|AUTOALLESTITO|0|0|0|0|0|0|0|0|", "8|1%|0|0|", "8|2%|10|0|", "8|3%|10|10|",
                                      "8|9%|77|7|", "7|4|1%|2%|3%|1%|NC|35|35|50|", "7|4|1%|3%|2%|1%|NC|36|36|50|"})}},
                    "A.EMP"},
        CasoComando{"Duplica",
                    11,
                    "A.EMP",
                    {" nuovo.emp "},
                    {"Lirmeto/Duplicare Estratto :  da : A a : nuovo ?? "},
                    {{"NUOVO.EMP", Testo(Estratto)}, {"NUOVO.PNG", FotoA}},
                    "NUOVO.EMP"},
        CasoComando{"DuplicaSuUnAltro",
                    11,
                    "A.EMP",
                    {"B"},
                    {"Estratto da duplicare esistente/Estratto B esistente!\r\nSostituire??",
                     "Lirmeto/Duplicare Estratto :  da : A a : B ?? "},
                    {{"B.EMP", Testo(Estratto)}, {"B.PNG", FotoA}},
                    "B.EMP"},
        CasoComando{"DuplicaSuSeStesso", 11, "A.EMP", {"a"}, {}, {}, "A.EMP"},
        CasoComando{"Rinomina",
                    12,
                    "A.PNG",
                    {"Z"},
                    {"Lirmeto/Rinominare Estratto :  da : A a : Z ?? "},
                    {{"Z.EMP", Testo(Estratto)}, {"Z.PNG", FotoA}, {"A.EMP", "(manca)"}, {"A.PNG", "(manca)"}},
                    "Z.PNG"},
        CasoComando{"EliminaParticella",
                    13,
                    "A.EMP",
                    {"", "36"},
                    {"Elimina Particella/Eliminare definitivamente la particella 36  ?"},
                    {{"A.EMP", Sostituisci(Salvato, "7|4|1%|3%|2%|1%|NC|36|36|50|\r\n", "")}},
                    "A.EMP"},
        CasoComando{"RinominaParticella",
                    14,
                    "A.EMP",
                    {"", "35", "AAA"},
                    {"Rinomina Particella/Rinominare la Particella 35 in AAA ?"},
                    {{"A.EMP", Con("|NC|35|35|", "|NC|AAA|AAA|")}},
                    "A.EMP"},
        CasoComando{"RinominaParticellaCheNonCe",
                    14,
                    "B.EMP",
                    {"", "35", "AAA"},
                    {"Rinomina Particella/Rinominare la Particella 35 in AAA ?"},
                    {},
                    "B.EMP"},
        CasoComando{
            "PuntiIsolati", 19, "A.EMP", {}, {"Lirmeto/Eliminare i Punti Isolati?"}, {{"A.EMP", Salvato}}, "A.EMP"},
        CasoComando{"IndiceCheNonCe", 5, "A.EMP", {}, {}, {}, "A.EMP"}),
    [](const auto& caso) { return caso.param.nome; });

// What a command lacks is said, and nothing happens.
TEST(Manager, QuelloCheMancaSiDice) {
  const std::string nessuno = "Operazione Impossibile!/Indicare un Estratto di Mappa!";
  const struct {
    int indice;
    std::string scelto;
    Caselle caselle;
    std::string detto;
  } casi[] = {
      {6, "", {}, "Lirmeto/Selezionare un Estratto!"},
      {8, "", {}, "Lirmeto/Selezionare un estratto!"},
      {10, "", {}, "Lirmeto/Selezionare un Estratto!"},
      {11, "A.EMP", {" "}, "Lirmeto/Nuovo nome Estratto!"},
      {12, "", {"Z"}, "Lirmeto/Selezionare un Estratto!"},
      {13, "A.EMP", {}, "Impossibile continuare/Indicare il nome della particella da eliminare!"},
      {13, "", {"", "36"}, nessuno},
      {14, "A.EMP", {"", "", "AAA"}, "Rinomina Particella/Indicare il nome Attuale della particella!"},
      {14, "A.EMP", {"", "35"}, "Rinomina Particella/Indicare il nome Nuovo della particella!"},
      {14, "", {"", "35", "A"}, nessuno},
      {15, "", {}, nessuno},
  };
  for (const auto& caso : casi) {
    Tavolo tavolo;
    KR_EstrattiDiMappa1 form(tavolo.ambiente);
    form.AlCaricamento();
    Compila(form, caso.scelto, caso.caselle);
    const auto prima = tavolo.disco.file;
    form.Premi(caso.indice);
    EXPECT_EQ(tavolo.Detti(), Righe{caso.detto}) << caso.indice;
    EXPECT_EQ(tavolo.disco.file, prima);
  }
}

struct CasoNegato {
  int indice;
  std::string scelto;
  Caselle caselle;
  std::string rotto; // file that cannot be written
};

class Negati : public testing::TestWithParam<CasoNegato> {};

TEST_P(Negati, SiDiceETuttoRestaComEra) {
  const CasoNegato& caso = GetParam();
  Tavolo tavolo;
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  Compila(form, caso.scelto, caso.caselle);
  const auto prima = tavolo.disco.file;
  if (!caso.rotto.empty()) tavolo.disco.rotti[Cartella + caso.rotto] = errore::AccessoAlFile;
  form.Premi(caso.indice);
  EXPECT_NE(tavolo.sessione.NumeroErrore, 0);
  EXPECT_TRUE(tavolo.dialoghi.detti.back().gravita == Gravita::Critico) << tavolo.dialoghi.UltimoTesto();
  EXPECT_EQ(tavolo.disco.file, prima);
}

INSTANTIATE_TEST_SUITE_P(Casi, Negati,
                         testing::Values(CasoNegato{11, "A.EMP", {"..\\X"}, ""}, CasoNegato{12, "A.EMP", {"X:Y"}, ""},
                                         CasoNegato{12, "A.EMP", {".."}, ""},
                                         CasoNegato{14, "A.EMP", {"", "35", "A|B"}, ""},
                                         CasoNegato{12, "A.EMP", {"Z"}, "Z.EMP"}, CasoNegato{9, "A.EMP", {}, "A.EMP"},
                                         CasoNegato{10, "A.EMP", {}, "A.EMP"}, CasoNegato{19, "A.EMP", {}, "A.EMP"}));

TEST(Manager, AssociaTieneIDatiDelLibrettoEChiude) {
  Tavolo tavolo;
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  Scegli(form, "A.EMP");
  form.Premi(15);
  EXPECT_TRUE(form.Chiusa);
  const Sessione& s = tavolo.sessione;
  EXPECT_EQ(s.EstrattoAssociato + "/" + s.CodiceComune + "/" + s.NomeComune + "/" + s.SiglaProvincia + "/" +
                s.NomeProvincia + "/" + s.Foglio + "/" + s.Mappali + "/" + s.EstMedio,
            "A.EMP/G224/PADOVA/PD/PADOVA/0123/35,36/5");
}

TEST(Manager, FormDiAltriSoloSeCiSono) {
  Tavolo tavolo;
  for (const bool ci : {false, true}) {
    if (ci) tavolo.finestre.disponibili = {"KR_EDM", "TIPOL10_PROVVISORIO"};
    tavolo.finestre.utente = [&](Modello& modello) {
      auto& form = dynamic_cast<KR_EstrattiDiMappa1&>(modello);
      for (const auto& pulsante : KR_EstrattiDiMappa1::Pulsanti())
        EXPECT_EQ(form.Abilitato(pulsante), ci || (pulsante.indice != 16 && pulsante.indice != 23));
      if (!ci) return;
      tavolo.disco.Metti(Cartella + "ESTRATTOPROVVISORIO.EMP", Testo({ZeroEstratto}));
      form.Premi(23);
      EXPECT_EQ(form.File1.at(static_cast<std::size_t>(form.Indice)), "ESTRATTOPROVVISORIO.EMP");
      form.Premi(16);
      EXPECT_TRUE(form.Chiusa && tavolo.finestre.aperte.size() == 1) << "the archive once the manager is closed";
    };
    ApriEstrattiDiMappa(tavolo.ambiente);
  }
  EXPECT_EQ(tavolo.finestre.aperte, (Righe{"TIPOL10_PROVVISORIO", "KR_EDM"}));
  EXPECT_EQ(tavolo.sessione.TipologiaCorrente, "1000");
}

TEST(Manager, StampaIlTestoMostratoEEsporta) {
  Tavolo tavolo;
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  Scegli(form, "B.EMP");
  Righe stampate;
  tavolo.finestre.utente = [&](Modello& modello) {
    stampate = prova::Copia(dynamic_cast<KR_StampaGenerale&>(modello).List1);
  };
  form.Premi(18);
  EXPECT_EQ(Testo(stampate), tavolo.File("B.EMP"));
  tavolo.dialoghi.fileScelto = "C:\\DATI\\FUORI";
  form.Premi(21);
  EXPECT_EQ(tavolo.disco.Contenuto("C:\\DATI\\FUORI.EMP"), tavolo.File("B.EMP"));
}

TEST(Manager, IntestatariArchiviatiUnoPerFile) {
  Tavolo tavolo;
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  Scegli(form, "A.EMP");
  form.Premi(22);
  EXPECT_EQ(tavolo.disco.Contenuto("C:\\FIDUCIAL\\DITTA\\PD_G224_00123_1_2.DIT"), "6|DITTA|1|ROSSI|2|X|\r\n");
  EXPECT_EQ(tavolo.File("A.EMP"), Con("6|DITTA|1|ROSSI|2|X|\r\n", ""));
  EXPECT_EQ(tavolo.disco.Contenuto("C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\TEMP\\A.BAK"), Testo(Estratto));
  EXPECT_EQ(tavolo.dialoghi.UltimoTesto(), "Intestatari archiviati ed eliminati dall'Estratto!");

  tavolo.disco.Metti(Cartella + "A.EMP", Con("|ROSSI|2|", "|ROSSI|..\\2|"));
  form.Premi(22);
  EXPECT_EQ(tavolo.sessione.NumeroErrore, errore::NomeFileNonValido);
  EXPECT_TRUE(Contiene(tavolo.File("A.EMP"), "6|DITTA|"));
}

TEST(Manager, ImportareDicePortaEAssocia) {
  Tavolo tavolo;
  tavolo.disco.Metti("C:\\DATI\\N.EMP", Testo({ZeroEstratto}));
  KR_EstrattiDiMappa1 form(tavolo.ambiente);
  form.AlCaricamento();
  form.Lascia("C:\\dati\\n.emp");
  EXPECT_EQ(tavolo.sessione.NumeroErrore, errore::FileNonTrovato) << "no raster beside it";
  EXPECT_EQ(tavolo.File("N.EMP"), Testo({ZeroEstratto}));
  EXPECT_EQ(tavolo.sessione.EstrattoAssociato, "");
  tavolo.disco.Metti("C:\\DATI\\N.PNG", "foto n");
  for (const char* dato : {"C:\\DATI\\N.EMP", "C:\\DATI\\N.PNG"}) {
    tavolo.sessione.EstrattoAssociato.clear();
    tavolo.dialoghi.fileScelto = dato;
    form.Premi(2);
    EXPECT_EQ(tavolo.Detti().back(),
              "Copia Estratto in Pregeo/" + std::string(dato).substr(8) + "\r\nCopiato nella cartella Estratti!");
    EXPECT_EQ(tavolo.File("N.PNG"), "foto n");
    EXPECT_EQ(tavolo.sessione.EstrattoAssociato, "N.EMP");
    EXPECT_EQ(form.File1.at(static_cast<std::size_t>(form.Indice)), "N.EMP");
  }
  form.Lascia("C:\\DATI\\N.DXF");
  EXPECT_EQ(tavolo.dialoghi.UltimoTesto(), "Ammessi file di Estratti: .EMP, .PNG, .ZIP");
}

} // namespace
} // namespace lirmeto
