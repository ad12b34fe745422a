#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <fiduciali/misurate.h>
#include <fiduciali/seleziona_misurate.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using Righe = std::vector<std::string>;

const std::string Dati = "C:\\fiducial\\DATI\\";
const std::string Lista = "C:\\Program Files (x86)\\Gondella\\temp\\Misurate.TXT";
const std::string Vordana = "C:\\Program Files (x86)\\Gondella\\Vordana.exe";
const std::string Prima = "PF01/0010/G224 - PF02/0010/G224       208.086    0.012     2019 12";
const std::string Altra = "XPF01/0010/G224Y- PF03/0010/G224"; // inside a longer name, and cut

TEST(InfoMisurate, LeRigheDelPuntoNellUltimoArchivioDellaProvincia) {
  Banco banco;
  banco.disco.Metti(Dati + "PD2019.DDD", "PF01/0010/G224 vecchia");
  banco.disco.Metti(Dati + "pd2024.ddd", Prima + "\r\nPF02/0010/G224 - PF03/0010/G224\n" + Altra);
  banco.disco.Metti(Dati + "VE2024.DDD", Prima);
  InfoMisurate(banco.ambiente, " pf01/0010/G224 ");
  EXPECT_EQ(banco.disco.Contenuto(Lista), "Provincia di : PD2024.DDD\r\n" + Prima + "\r\n" + Altra + "\r\n");
  EXPECT_EQ(banco.processi.aperti, (Righe{Lista}));
  InfoMisurate(banco.ambiente, "PF99/0010/G224");
  EXPECT_EQ(banco.disco.Contenuto(Lista), "Provincia di : PD2024.DDD\r\nNessuna relazione con altri PF trovata!\r\n");
  EXPECT_TRUE(banco.sessione.MisurateAssociate.empty() && banco.dialoghi.detti.empty());
}

struct CasoComune {
  std::string comune;
  std::string archivio;
};

class Comuni : public testing::TestWithParam<CasoComune> {};

TEST_P(Comuni, HannoLArchivioDellaProvincia) {
  Banco banco;
  for (const std::string nome : {"P.DDD", "PD1.DDD", "PD2.TXT", "PDX.DDD", "ve.ddd", "VE.TAF"})
    banco.disco.Metti(Dati + nome, "x");
  banco.disco.file["C:\\PREGEO\\ARCH\\COMUNT.DAT"] += "@BBA001" + std::string(21, ' ') + "VESEZIONE";
  EXPECT_EQ(TrovaArchivioMisurate(banco.ambiente, GetParam().comune), GetParam().archivio);
}

INSTANTIATE_TEST_SUITE_P(Casi, Comuni,
                         testing::Values(CasoComune{"G224", "PDX.DDD"}, CasoComune{" L736 ", "VE.DDD"},
                                         CasoComune{"A001", "VE.DDD"}, CasoComune{"E098", "GO"}, CasoComune{"Z999", ""},
                                         CasoComune{"", ""}));

TEST(InfoMisurate, SenzaArchivioSiChiedeSeScaricarlo) {
  Banco banco;
  banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  for (const std::string nome : {"PF01/0010/G224", "PF01/0010/Z999"}) InfoMisurate(banco.ambiente, nome);
  EXPECT_EQ(banco.dialoghi.detti[0].testo, "File PD non trovato!!\r\nVuoi scaricarlo ora?");
  EXPECT_EQ(banco.dialoghi.detti[1].titolo, "Misurate non Trovate");
  EXPECT_EQ(banco.processi.avviati, (Righe{Vordana}));
  EXPECT_TRUE(banco.processi.aperti.empty() && !banco.disco.Esiste(Lista));
}

TEST(SelezionaMisurate, RestaUnArchivioPerProvinciaESeNeSceglieUno) {
  Banco banco;
  for (const std::string nome : {"pd2019.ddd", "PD2023.DDD", "PD2024.DDD", "VE2020.DDD", "PD.TAF"})
    banco.disco.Metti(Dati + nome, "x");
  banco.sessione.MisurateAssociate = "ve2020.ddd";
  KR_SelezionaMisurate form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.File1, (Righe{"PD2024.DDD", "VE2020.DDD"}));
  EXPECT_EQ(form.Indice, 1);
  EXPECT_TRUE(banco.disco.Esiste(Dati + "PD.TAF"));
  EXPECT_THROW(form.Scegli(2), Errore);
  form.Elimina();
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Eliminazione Database/Eliminare definitivamente VE2020.DDD ??");
  EXPECT_EQ(form.File1.size(), 2U) << "the answer was No";
  banco.dialoghi.risposte = {Risposta::Si};
  form.Elimina();
  EXPECT_EQ(form.File1, (Righe{"PD2024.DDD"}));
  form.SelezionaLeMisurate();
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Seleziona archivio/Selezionare un Database!!");
  EXPECT_FALSE(form.Chiusa);
  banco.disco.Metti(Dati + "VI2021.DDD", "x");
  form.Importa();
  EXPECT_EQ(form.File1, (Righe{"PD2024.DDD", "VI2021.DDD"}));
  form.Scegli(0);
  form.SelezionaLeMisurate();
  EXPECT_TRUE(form.Chiusa);
  EXPECT_EQ(banco.sessione.MisurateAssociate, "PD2024.DDD");
}

TEST(SelezionaMisurate, CioCheNonSiCancellaSiDiceEResta) {
  Banco banco;
  banco.disco.Metti(Dati + "PD1.DDD", "x");
  banco.disco.Metti(Dati + "PD2.DDD", "x");
  banco.disco.rotti["C:\\FIDUCIAL\\DATI\\PD1.DDD"] = errore::AutorizzazioneNegata;
  banco.processi.guasti[Vordana] = errore::FileNonTrovato;
  KR_SelezionaMisurate form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_EQ(form.File1.size(), 2U);
  form.Importa();
  EXPECT_TRUE(Contiene(banco.dialoghi.UltimoTesto(), "Programma non installato: " + Vordana));
}

} // namespace
} // namespace lirmeto
