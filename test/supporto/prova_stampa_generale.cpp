#include "sostituti/banco.h"

#include <supporto/editor_gen.h>
#include <supporto/modello_stampa.h>
#include <supporto/stampa_generale.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Copia;
using prova::Nove;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO";
const std::string Modelli = Programma + "\\MODELLI_STAMPA\\";
const std::string Zero = "0|12032024|7|G224|0010|1,2|ROSSI {M}|GEOMETRA|PADOVA|";

struct Compilato {
  std::string modello;
  std::string atteso;
};

class Segnaposti : public testing::TestWithParam<Compilato> {};

TEST_P(Segnaposti, DannoIValoriDellAtto) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove}), "C:\\A{1}.DAT");
  banco.sessione.ElencoPossessori = "BIANCHI\\ADA\r\nNERI\r\n";
  EXPECT_EQ(CompilaModello(GetParam().modello, banco.sessione, ListaRighe{"a\\b  ", "", " {c}"}), GetParam().atteso);
}

const std::string Righe3 = "a\\\\b\\cf1\\line \\cf1\\line  \\{c\\}\\cf1\\line ";

INSTANTIATE_TEST_SUITE_P(
    Tutti, Segnaposti,
    testing::Values(Compilato{"{\\rtf1\n\\par {x}\r\\'e8\r\n}", "{\\rtf1\n\\par {x}\r\\'e8\r\n}"},
                    Compilato{"<_nome_dos_libretto_>_anno_libretto__data_libretto_x_anno_libretto_",
                              "<C:\\\\A\\{1\\}.DAT>202412032024x2024"},
                    Compilato{"_protocollo_libretto_ _mappali_libretto_ _foglio_libretto_ _Foglio_libretto_",
                              "7 1,2 0010 _Foglio_libretto_"},
                    Compilato{"[_nome_comune_rilievo_]_codice_comune_rilievo_ _nome_provincia_rilievo_ "
                              "(_sigla_provincia_rilievo_)",
                              "[]G224 PADOVA (PD)"},
                    Compilato{"_titolo_tecnico_libretto_ _nome_tecnico_libretto_, _nome_provincia_tecnico_",
                              "GEOMETRA ROSSI \\{M\\}, PADOVA"},
                    Compilato{"_stampa_generale_|_stampa_generale_", Righe3 + "|" + Righe3},
                    Compilato{"_elenco_possessori_", "BIANCHI\\\\ADA\\cf1\\line NERI\\cf1\\line "}));

// A form over a report of three lines, with two models in their folder.
struct ConStampa : testing::Test {
  ConStampa() {
    banco.Apri(Testo({Zero, Nove}));
    banco.disco.Metti(Modelli + "A.RTF", "{\\rtf1 _stampa_generale_}");
    banco.disco.Metti(Modelli + "B.RTF", "_anno_libretto_");
    banco.disco.Metti(Modelli + ".~lock.B.RTF#", "x");
    banco.sessione.NomeBaseStampa = "C:\\dati\\Elenco";
    form.List1 = ListaRighe{"uno", "", " due"};
    form.AlCaricamento();
  }
  [[nodiscard]] bool Detto(const std::string& parte) const {
    return banco.dialoghi.UltimoTesto().find(parte) != std::string::npos;
  }
  Banco banco;
  KR_StampaGenerale form{banco.ambiente};
};

TEST_F(ConStampa, IComandiRifannoLeRighe) {
  const std::vector<std::pair<int, Righe>> passi = {{7, {" uno", " ", "  due"}},
                                                    {6, {"uno", "", " due"}},
                                                    {6, {"no", "", "due"}},
                                                    {8, {"", "due"}},
                                                    {9, {" ", "", "due"}}};
  for (const auto& [comando, attese] : passi) {
    form.Esegui(comando);
    EXPECT_EQ(Copia(form.List1), attese) << comando;
  }
  form.List1.clear();
  for (const int comando : {6, 7, 8}) form.Esegui(comando);
  EXPECT_TRUE(form.List1.empty() && banco.dialoghi.detti.empty());
}

TEST_F(ConStampa, StampaChiudeECopiaNo) {
  form.Option1 = Orientamento::Orizzontale;
  form.Esegui(2);
  form.Esegui(4);
  EXPECT_EQ(banco.appunti.testo, "uno\r\n\r\n due\r\n");
  EXPECT_EQ(banco.dialoghi.stampantiScelte, 1);
  EXPECT_FALSE(form.Chiusa);
  form.Esegui(1);
  EXPECT_EQ(banco.dialoghi.stampati, (Righe{"Elenco/O|uno|| due"}));
  EXPECT_TRUE(form.Chiusa);
  EXPECT_EQ(banco.sessione.NomeBaseStampa, "");
}

TEST_F(ConStampa, IlCarattereRestaNelSuoFile) {
  const std::string file = Programma + "\\CarattereStampa.ini";
  banco.dialoghi.carattereScelto = {7.5, "Liberation Mono", true, false};
  form.Esegui(3);
  EXPECT_EQ(banco.disco.Contenuto(file), "7.5,\"Liberation Mono\",-1,0\r\n");
  form.CarattereLista = {};
  for (const std::string& scritto : {banco.disco.Contenuto(file), std::string("12"), std::string("900,\"X\",0,0")}) {
    banco.disco.Metti(file, scritto);
    form.AllAttivazione();
    EXPECT_EQ(form.CarattereLista, banco.dialoghi.carattereScelto) << scritto;
  }
}

TEST_F(ConStampa, CompilaAccantoAlLibretto) {
  ASSERT_EQ(form.File1, (Righe{"A.RTF", "B.RTF"}));
  form.Esegui(10); // nothing is chosen
  form.ModelloScelto = 0;
  form.DoppioClickModello();
  form.Esegui(10);
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT_A.RTF"), "{\\rtf1 uno\\cf1\\line \\cf1\\line  due\\cf1\\line }");
  EXPECT_EQ(banco.processi.aperti, (Righe{Modelli + "A.RTF", "C:\\LIBRETTO.DAT_A.RTF"}));
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  form.ModelloScelto = 1; // no rich text: told of, and filled
  form.Esegui(10);
  EXPECT_TRUE(Detto("RTF"));
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT_B.RTF"), "2024");
}

TEST_F(ConStampa, UnModelloCheNonVaLoDiceENonScriveNulla) {
  form.ModelloScelto = 0;
  banco.disco.Metti(Modelli + "A.RTF", "");
  form.Esegui(10);
  EXPECT_TRUE(Detto("vuoto"));
  banco.disco.Elimina(Modelli + "A.RTF");
  form.Esegui(10);
  EXPECT_TRUE(Detto("errore : 53"));
  form.ModelloScelto = 1;
  form.Esegui(11); // the model chosen stays chosen in the fresh list
  EXPECT_EQ(form.ModelloScelto, 0);
  banco.sessione.NomeFileLibretto.clear();
  form.Esegui(10);
  EXPECT_TRUE(Detto("salvato prima"));
  EXPECT_TRUE(banco.processi.aperti.empty());
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT_A.RTF"), "(manca)");
}

TEST_F(ConStampa, IlVisualizzatoreSiSceglieESiDimentica) {
  EXPECT_EQ(form.Label3, "Default");
  banco.dialoghi.fileScelto = "*";
  form.Esegui(12);
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Seleziona Editor/Nessuna Editor selezionato!");
  banco.dialoghi.fileScelto = "C:\\p\\vista.exe";
  form.Esegui(12);
  EXPECT_EQ(form.Label3 + banco.impostazioni.valori["VisualizzatoreXLS/Visualizzatore"], "VISTA.EXEC:\\P\\VISTA.EXE");
  form.Esegui(13);
  EXPECT_EQ(form.Label3, "Default");
}

struct Csv {
  AperturaCsv chi;
  std::string visualizzatore;
  int guasto; // of the program
  std::string avviato;
  bool chiusa;
};

TEST_F(ConStampa, IlCsvSiApreColProgrammaGiusto) {
  const std::string pernico = "C:\\Program Files (x86)\\Gondella\\Pernico.exe";
  for (const Csv& caso : {Csv{AperturaCsv::Visualizzatore, "", 0, "apri C:\\dati\\Elenco.CSV", true},
                          Csv{AperturaCsv::Visualizzatore, "C:\\V.EXE", 0, "C:\\V.EXE < C:\\dati\\Elenco.CSV", true},
                          Csv{AperturaCsv::Visualizzatore, "C:\\V.EXE", 53, "", false},
                          Csv{AperturaCsv::Pernico, "C:\\V.EXE", 0, pernico, true},
                          Csv{AperturaCsv::Pernico, "", 53, "", true}, Csv{AperturaCsv::Pernico, "", 70, "", false}}) {
    KR_StampaGenerale altro(banco.ambiente);
    banco.sessione.NomeBaseStampa = "C:\\dati\\Elenco";
    banco.impostazioni.valori["VisualizzatoreXLS/Visualizzatore"] = caso.visualizzatore;
    banco.processi.guasti.clear();
    if (caso.guasto != 0) banco.processi.guasti = {{"C:\\V.EXE", caso.guasto}, {pernico, caso.guasto}};
    banco.processi.avviati.clear();
    banco.processi.aperti.clear();
    banco.dialoghi.detti.clear();
    altro.Option3 = caso.chi;
    altro.Esegui(14);
    for (const auto& aperto : banco.processi.aperti) banco.processi.avviati.push_back("apri " + aperto);
    EXPECT_EQ(banco.processi.avviati, caso.avviato.empty() ? Righe{} : Righe{caso.avviato});
    EXPECT_EQ(altro.Chiusa, caso.chiusa) << caso.visualizzatore << caso.guasto;
    EXPECT_EQ(banco.dialoghi.detti.empty(), caso.chiusa);
  }
}

TEST_F(ConStampa, ChiMostraUnReportLoTrovaNelForm) {
  banco.finestre.utente = [&](Modello& modello) {
    auto& mostrato = dynamic_cast<KR_StampaGenerale&>(modello);
    EXPECT_EQ(Copia(mostrato.List1), (Righe{"x"}));
    mostrato.ApriTesto();
    mostrato.Esegui(0);
    mostrato.ApriTesto(); // closing forgets the report's files
    mostrato.Esegui(14);
    mostrato.Esegui(99);
  };
  MostraStampaGenerale(banco.ambiente, ListaRighe{"x"}, "C:\\r");
  EXPECT_EQ(banco.processi.aperti, (Righe{"C:\\r.TXT"}));
  EXPECT_EQ(banco.sessione.NomeBaseStampa, "");
  EXPECT_TRUE(Detto("Nella Routine Stampa Generale Buttonplus1_Click"));
}

} // namespace
} // namespace lirmeto
