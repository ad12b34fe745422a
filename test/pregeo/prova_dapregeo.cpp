#include "sostituti/banco.h"

#include <base/errore.h>
#include <core/apertura.h>
#include <core/riordino.h>
#include <pregeo/kr_dapregeo.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

// The dialog over an archive that answers with what `risposte` holds.
struct Archivio {
  Archivio() {
    banco.processi.quandoAvvia = [this](const std::string& programma, const Righe& argomenti) {
      std::string linea = programma.substr(programma.rfind('\\') + 1);
      for (const auto& argomento : argomenti) linea += " " + argomento;
      chiesto.push_back(linea);
    };
    Rispondi("..\\..\\TEMP\\ELENCO_LIBRETTI", "1|2017|974|Approvato|||||| G224|41||ROSSI ANNA|x\r\n");
  }

  void Rispondi(const std::string& nome, const std::string& byte) {
    banco.disco.Metti(nome.starts_with("..") ? banco.sessione.CartellaDocumenti + "\\TEMP\\ELENCO_LIBRETTI.txt"
                                             : banco.sessione.CartellaProgramma + "\\TEMP\\" + nome + ".txt",
                      byte);
  }

  Banco banco;
  Righe chiesto;
  DisegnoCondiviso disegno;
  KR_Dapregeo form{banco.ambiente, disegno};
};

TEST(DaPregeo, ElencaIlLibrettoEChiedeQuelloDellaPrimaRiga) {
  Archivio archivio;
  archivio.form.AlCaricamento();
  EXPECT_EQ(archivio.chiesto,
            (Righe{"Trasvea2.exe", "Trasvea.exe2 ELENCO_LIBRETTI", "Trasvea.exe ESPORTA_TUTTO 17974"}));
  const KR_Dapregeo::RigaArchivio attesa = {"1", "2017", "974", "ROSSI ANNA", " G224", "41", "Approvato", " ", "17974"};
  ASSERT_EQ(archivio.form.MSFlexGrid1.size(), 1U);
  EXPECT_EQ(archivio.form.MSFlexGrid1[0], attesa);
  ASSERT_EQ(archivio.banco.dialoghi.detti.size(), 1U);
  EXPECT_EQ(archivio.banco.dialoghi.detti[0].testo, "1|2017|974|Approvato|||||| G224|41||ROSSI ANNA|x\r\n");
  EXPECT_TRUE(archivio.form.MSFlexGrid2.empty()) << "no answer reads as an empty one";
}

struct CasoElencoArchivio {
  std::string byte;
  std::size_t righe;
};

class ElencoArchivio : public testing::TestWithParam<CasoElencoArchivio> {};

TEST_P(ElencoArchivio, ComunqueSia) {
  Archivio archivio;
  archivio.Rispondi("..\\", GetParam().byte);
  archivio.form.AlCaricamento();
  EXPECT_EQ(archivio.form.MSFlexGrid1.size(), GetParam().righe);
  EXPECT_EQ(archivio.chiesto.size(), GetParam().righe == 0 ? 2U : 3U);
  if (GetParam().righe == 0) {
    EXPECT_EQ(archivio.banco.dialoghi.UltimoTesto(), "Nessun Libretto nell'archivio di Pregeo!");
  }
}

std::string Molti() {
  std::string elenco;
  for (int i = 0; i < 10000; ++i)
    elenco += std::to_string(i) + "|2024|" + std::to_string(i) + "|x||||||G224|1||A, B|\n";
  return elenco;
}

INSTANTIATE_TEST_SUITE_P(Casi, ElencoArchivio,
                         testing::Values(CasoElencoArchivio{"", 0}, CasoElencoArchivio{"\r\n\r\n", 0},
                                         CasoElencoArchivio{"1|2017", 1}, CasoElencoArchivio{"7", 1},
                                         CasoElencoArchivio{Molti(), 10000}));

// --- one libretto

// A libretto of each kind of row that describes points, and their names with the notes that come of them.
const Righe Libretto = {"0|22062018|974|G224|0041|1|A|B|C|",
                        "1|100|1.5|CHIODO|",
                        "2|101|1|2|3|4|SPIG|",
                        "2|102|1|2|3|",
                        "1|200|44.1,6.5,4.9|0.0|",
                        "2|201|-2.1,1.3,1.9|0.02|nota|",
                        "4|301|5|6|",
                        "5|302|1|2|3|",
                        "1|400|1.5|",
                        "7|3|101|102|201|RC|",
                        "2|101|1|2|DOPO|"};
const std::string Punti = "100,1,2,,\r\n101,10.5,20.25,3,\r\n102,11,22,0\r\n200,5,6,7,\r\n201,1,1,1,\r\n301,2,2,2,\r\n"
                          "302,3,3,3,\r\n400,4,4,4,\r\n999,9,9,9,\r\n500,8,8,8,sua, con virgola\r\n";

TEST(DaPregeo, LeNoteVengonoDalleRighe) {
  Archivio archivio;
  archivio.Rispondi("ESPORTA_LIBRETTO", Testo(Libretto));
  archivio.Rispondi("ESPORTA_PUNTI_ELABORATI", Punti);
  archivio.form.AlCaricamento();
  Righe note;
  for (const auto& punto : archivio.form.MSFlexGrid2) note.push_back(punto[4]);
  EXPECT_EQ(note, (Righe{"CHIODO", "SPIG", "Note:<P!>", "Note:", "nota", "Note:", "Note:<P!>", "Note:<P!>", "",
                         "sua, con virgola"}));
  EXPECT_EQ(
      archivio.banco.disco.Contenuto(archivio.banco.sessione.CartellaProgramma + "\\temp\\elab.sur").substr(0, 26),
      "8|100|1|2|\r\n8|101|10.5|20.");
  EXPECT_EQ(archivio.form.Grafica1.Archivio().Punti().size(), 10U);
  EXPECT_EQ(archivio.form.Grafica1.Archivio().Linee().size(), 2U);
}

TEST(DaPregeo, ImportaPrimaDellaPropostaERiordina) {
  Archivio archivio;
  archivio.banco.Apri(
      Testo({"0|22062018|1|G224|0041|1|A|B|C|", "9|20|10|20|0|P|FR|N|", "6|ESTRATTO DI MAPPA|", "7|9|"}));
  archivio.Rispondi("ESPORTA_LIBRETTO", Testo(Libretto));
  archivio.Rispondi("ESPORTA_PUNTI_ELABORATI", "102,11,22.0005,0\r\n500,\"8\",-8,8,A,B\r\n");
  archivio.Rispondi("ASSOCIA_ESTRATTO", "\"X Y.EMP\"\r\n");
  bool riordinato = false;
  archivio.banco.finestre.utente = [&](Modello& modello) {
    riordinato = dynamic_cast<FormRiordinoRighe*>(&modello) != nullptr;
  };
  archivio.form.AlCaricamento();
  archivio.form.Pulsante(2);
  EXPECT_TRUE(riordinato && archivio.form.Chiusa);
  EXPECT_EQ(archivio.banco.sessione.EstrattoAssociato, "X Y.EMP");
  EXPECT_EQ(archivio.banco.Righe(),
            (Righe{"0|22062018|1|G224|0041|1|A|B|C|", "9|20|10|20|0|P|FR|N|", "8|102|11.000|22.001|Note:|",
                   "8|500|0.000|-8.000|A.B|", "7|3|101|102|201|RC|", "6|ESTRATTO DI MAPPA|", "7|9|"}));
}

// Whatever fails leaves the open libretto, and what is shown is never another libretto's.
TEST(DaPregeo, UnProgrammaCheMancaFallisceONonFinisce) {
  const std::string trasvea = "\\Trasvea.exe";
  for (const int guasto : {0, 1, 2}) {
    Archivio archivio;
    archivio.Rispondi("..\\", "1|2017|974\r\n2|2018|5\r\n");
    archivio.Rispondi("ESPORTA_PUNTI_ELABORATI", "102,11,22,0\r\n");
    archivio.Rispondi("ASSOCIA_ESTRATTO", "\"X.EMP\"");
    archivio.banco.sessione.EstrattoAssociato = "MIO.EMP";
    archivio.form.AlCaricamento();
    EXPECT_EQ(archivio.form.MSFlexGrid2.size(), 1U);
    if (guasto == 0) archivio.banco.processi.guasti[archivio.banco.sessione.CartellaProgramma + trasvea] = 53;
    if (guasto == 1) archivio.banco.processi.codiceUscita = 3;
    if (guasto == 2) archivio.banco.dialoghi.rinuncia = true;
    archivio.form.CambiaRiga(1);
    EXPECT_EQ(archivio.banco.sessione.NumeroErrore,
              std::vector<int>({53, 51, 32755})[static_cast<std::size_t>(guasto)]);
    EXPECT_TRUE(archivio.form.MSFlexGrid2.empty() && archivio.form.Grafica1.Archivio().Punti().empty());
    EXPECT_EQ(archivio.banco.dialoghi.atteso, "Attendo la fine di Trasvea.exe");
    archivio.form.Pulsante(0);
    EXPECT_EQ(archivio.banco.sessione.EstrattoAssociato, "MIO.EMP");
  }
}

} // namespace
} // namespace lirmeto
