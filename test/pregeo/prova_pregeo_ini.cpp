#include "sostituti/banco.h"

#include <base/testo.h>
#include <pregeo/pregeo_ini.h>
#include <pregeo/pregeo_ini_scrittura.h>
#include <pregeo/tecnico.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;

const std::string Percorso = "C:\\WINDOWS\\PREGEO.INI";
const std::string Pfs = "C:\\users\\prova\\Documents\\LIRMETO\\TECNICI\\ROSSI MARIO.PFS";

TEST(PregeoIni, ChiaviDoveStanno) {
  Banco banco;
  banco.disco.Metti("D:\\pregeo\\exe\\Pregeo.EXE", "MZ");
  banco.disco.Metti("D:\\pregeo\\exe\\qualita.txt", "x\r\nENTE URBANO  282\r\n");
  banco.disco.Metti(Percorso, "numero=mai: la riga 0 non "
                              "conta\r\nDskAPPLexe=d:\r\nDskAPPLada=E:\r\nnumero= 12 \r\nCoDc= RSS \r\n"
                              "[DATI TECNICO]\r\nnome=NON QUESTO\r\ncognome=ROSSI\r\nnome= MARIO "
                              "\r\nqualifica=GEOM=COLL\r\n"
                              "provincia=PADOVA\r\n[PROV_DI_COMP]\r\nprovincia= "
                              "PD\r\nultimoprot=2412\r\nFILE_DISTANZETAF = G.DDD\r\n");
  LeggiPregeoIni(banco.ambiente);
  const Sessione& s = banco.sessione;
  EXPECT_EQ(s.RadicePregeo + s.RadiceDati, "D:E:");
  EXPECT_EQ(s.NumeroIscrizione, "12");
  EXPECT_EQ(s.CodiceFiscale, " RSS "); // not trimmed
  EXPECT_EQ(s.Tecnico, "ROSSI MARIO");
  EXPECT_EQ(s.Qualifica, "GEOM"); // a value with "=" loses its tail
  EXPECT_EQ(s.Provincia + "/" + s.SiglaProvincia, "PADOVA/PD");
  EXPECT_EQ(s.ProtocolloPregeo, "2412");
  EXPECT_EQ(s.MisurateAssociate, "G.DDD");
  EXPECT_EQ(s.VersionePregeo, "PREGEO 10.00-G,APAG 2.12");
  EXPECT_EQ(s.Arch2Db, "D:\\pregeo\\arch\\arch2.db");
  EXPECT_EQ(s.TabellaQualita.size(), 1U);
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

TEST(PregeoIni, CognomePrendeAncheIlNomeFinoAlNome) {
  Banco banco;
  banco.sessione.RighePregeoIni = {"[x]", "cognome=ROSSI"};
  SistemaDatiPregeoIni(banco.sessione);
  EXPECT_EQ(banco.sessione.Tecnico, "ROSSI ROSSI");
}

struct CasoAssente {
  std::string nome;
  std::string contenuto; // "-": no file
  std::string titolo;
};

class Assente : public testing::TestWithParam<CasoAssente> {};

TEST_P(Assente, SiDiceESiVaAvantiConC) {
  Banco banco;
  banco.sessione.RadicePregeo = banco.sessione.RadiceDati = "Q:";
  banco.disco.file.erase("C:\\PREGEO\\EXE\\PREGEO.EXE");
  banco.disco.file.erase(Percorso);
  if (GetParam().contenuto != "-") banco.disco.Metti(Percorso, GetParam().contenuto);
  LeggiPregeoIni(banco.ambiente);
  EXPECT_EQ(banco.sessione.RadicePregeo + banco.sessione.RadiceDati, "C:C:");
  EXPECT_EQ(banco.sessione.VersionePregeo, "");
  EXPECT_EQ(banco.dialoghi.detti.empty() ? "" : banco.dialoghi.detti[0].titolo, GetParam().titolo);
}

INSTANTIATE_TEST_SUITE_P(Casi, Assente,
                         testing::Values(CasoAssente{"manca", "-", "Pregeo Non Installato"},
                                         CasoAssente{"vuoto", "", ""}, CasoAssente{"unaRiga", "[PREGEO]\r\n", ""},
                                         CasoAssente{"senzaUguale", "[x]\r\nnumero\r\nDskAPPLexe\r\n",
                                                     "Pregeo Assente"},
                                         CasoAssente{"soloUnita", "[x]\r\nDskAPPLexe=C:\r\n", "Pregeo Assente"}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(PregeoIni, RiscrittoUgualeTranneLeChiavi) {
  Banco banco;
  const std::string originale = "[A]\r\nIgnota = x=y\r\nNumero=1=2\r\n[DATI "
                                "TECNICO]\r\nnome=X\r\ncognome=X\r\nnome=X\r\n"
                                "[PROV_DI_COMP]\r\nprovincia=X\r\nprovincia=X\r\nSIGLA "
                                "PROV.=X\r\nultimoprot=5\r\ncodc=X\r\n";
  banco.disco.Metti(Percorso, originale);
  LeggiPregeoIni(banco.ambiente);
  Sessione& s = banco.sessione;
  s.NumeroIscrizione = "77";
  s.Cognome = "VERDI";
  s.Nome = "ANNA";
  s.Provincia = "VENEZIA";
  s.SiglaProvincia = "PD";
  s.CodiceFiscale = "CF";
  s.Province = {{"PD", "PADOVA"}, {"VE", "VENEZIA"}};
  SalvaPregeoIni(banco.ambiente);
  EXPECT_EQ(banco.disco.Contenuto(Percorso), "[A]\r\nIgnota = x=y\r\nNumero=77=2\r\n[DATI "
                                             "TECNICO]\r\nnome=VERDI ANNA\r\ncognome=VERDI\r\nnome=ANNA\r\n"
                                             "[PROV_DI_COMP]\r\nprovincia=PD\r\nprovincia=VENEZIA\r\nSIGLA "
                                             "PROV.=VE\r\nultimoprot=5\r\ncodc=CF\r\n");
}

class FiniRiga : public testing::TestWithParam<std::string> {};

TEST_P(FiniRiga, RestanoComeErano) {
  const std::string testo = Sostituisci(GetParam(), "@", std::string(1, '\0'));
  EXPECT_EQ(TestoIni(RigheIni(testo), testo), testo);
  Banco banco;
  banco.disco.Metti(Percorso, testo);
  LeggiPregeoIni(banco.ambiente);
  banco.sessione.NumeroIscrizione = "7\r\nx=1"; // a value stays one line
  SalvaPregeoIni(banco.ambiente);
  EXPECT_EQ(banco.disco.Contenuto(Percorso), Sostituisci(testo, "numero=1", "numero=7  x=1"));
}

INSTANTIATE_TEST_SUITE_P(Casi, FiniRiga,
                         testing::Values("[x]\r\nnumero=1\r\n", "[x]\nnumero=1\n", "[x]\rnumero=1\ry=\"a\"\r",
                                         "[x]\r\nnumero=1=2", "numero=1\n[x]\n", "[x]\n\n\nnumero=1\r\n\r\n\r\n",
                                         "\r\n@@\r\r\nnumero=1\n", "", "[x]"));

TEST(PregeoIni, RigheCheIlFileNonHaFinisconoConCrLf) {
  EXPECT_EQ(TestoIni({"a", "b", "c", ""}, "a\nb"), "a\nb\r\nc\r\n");
  EXPECT_EQ(TestoIni({"a", "coda"}, "a\n"), "a\ncoda");
  EXPECT_EQ(TestoIni({}, "a\n"), "");
}

TEST(PregeoIni, AggiornaPrendeIDatiDelLibretto) {
  Banco banco;
  LeggiPregeoIni(banco.ambiente);
  banco.disco.Metti(Percorso, "[DATI TECNICO]\nnome=X\nqualifica=X\nSIGLA PROV.=X\n[PROV_DI_COMP]\nprovincia=X");
  Sessione& s = banco.sessione;
  s.RighePregeoIni = RigheIni(banco.disco.Contenuto(Percorso));
  banco.Apri(Testo({"0|01022024|7|E098|0010|1|VERDI ANNA MARIA|ARCHITETTO|VENEZIA|", "9|1|2|3|4|v|FR|s|"}));
  s.Nome.clear();
  s.Comuni.push_back({"E098", "", "VE", "GORIZIA BIS"}); // the last row of a code stands
  AggiornaConfigurazionePregeo(banco.ambiente);
  EXPECT_EQ(banco.disco.Contenuto(Percorso),
            "[DATI TECNICO]\nnome=VERDI ANNA MARIA\nqualifica=ARCHITETTO\nSIGLA PROV.=VE\n"
            "[PROV_DI_COMP]\nprovincia=VE");
}

TEST(Tecnico, ScrittoERiletto) {
  Banco banco;
  Sessione& s = banco.sessione;
  s.Cognome = " rossi ";
  s.Nome = "mario";
  s.Qualifica = "GEOMETRA";
  s.Provincia = "PADOVA";
  s.Strumentazione = "STAZIONE TOTALE";
  s.NumeroIscrizione = "12";
  s.CodiceFiscale = "CF";
  s.Recapito = "VIA ROMA 1";
  s.IncludiDatiTecnico = 1;
  s.RighePregeoIni = {"numero=1", ""};
  SalvaTecnico(banco.ambiente);
  EXPECT_TRUE(banco.disco.Contenuto(Percorso).starts_with("numero=12"));
  EXPECT_EQ(banco.disco.Contenuto(Pfs),
            Testo({"\"ROSSI MARIO\",\"GEOMETRA\",\"PADOVA\"", "\"10\",\"20\",\"STAZIONE TOTALE\"", "\"12\",\"CF\"",
                   "\" rossi \"", "\"mario\"", "\"VIA ROMA 1\""}));
  EXPECT_EQ(banco.impostazioni.valori["RELAZIONE_TECNICA/INCLUDIDATITECNICO"], "1");
  const Sessione scritta = s;
  s.Cognome = s.Nome = s.Recapito = s.CodiceFiscale = s.Provincia = "?";
  CaricaTecnico(banco.ambiente, "rossi mario.pfs");
  EXPECT_EQ(s.Cognome + s.Nome + s.Recapito + s.CodiceFiscale + s.Provincia,
            scritta.Cognome + scritta.Nome + scritta.Recapito + scritta.CodiceFiscale + scritta.Provincia);
}

TEST(Tecnico, CioCheIlFileNonTieneDiventaSpazioESiDice) {
  Banco banco;
  Sessione& s = banco.sessione;
  s.Cognome = "ROSSI";
  s.Nome = "MARIO";
  s.Strumentazione = "GPS, \"TOTALE\"";
  s.NumeroIscrizione = "12";
  s.Recapito = "VIA ROMA, 1";
  SalvaTecnico(banco.ambiente);
  ASSERT_EQ(banco.dialoghi.detti.size(), 1U);
  EXPECT_EQ(banco.dialoghi.detti[0].titolo, "Salva Tecnico");
  EXPECT_EQ(s.Recapito, "VIA ROMA, 1"); // row 9 and PREGEO.INI hold it
  s.Nome = s.NumeroIscrizione = s.Recapito = "?";
  CaricaTecnico(banco.ambiente, "rossi mario.pfs");
  EXPECT_EQ(s.Nome + "/" + s.NumeroIscrizione + "/" + s.Recapito, "MARIO/12/VIA ROMA  1");
}

TEST(Tecnico, CortoMancanteEConVirgola) {
  Banco banco;
  Sessione& s = banco.sessione;
  s.Tecnico = "PRIMA";
  CaricaTecnico(banco.ambiente, "NESSUNO.PFS");
  EXPECT_EQ(s.Tecnico, "PRIMA");
  banco.disco.Metti(Pfs, "\"A\"\n");
  CaricaTecnico(banco.ambiente, "ROSSI MARIO.PFS");
  EXPECT_EQ(s.Tecnico + "/" + s.Qualifica + "/" + s.Recapito, "A//");
  banco.disco.Metti(Pfs, "\"A,B\",\"Q\",\"P\"\r\n"); // one comma list: the rest shifts
  CaricaTecnico(banco.ambiente, "ROSSI MARIO.PFS");
  EXPECT_EQ(s.Qualifica + "/" + s.Provincia, "B/Q");
  s.Cognome = "A/B";
  EXPECT_THROW(SalvaTecnico(banco.ambiente), Errore);
}

TEST(Arch2, CopiaConDataEOra) {
  Banco banco;
  Sessione& s = banco.sessione;
  s.Arch2Db = "C:\\pregeo\\arch\\arch2.db";
  banco.disco.Metti(s.Arch2Db, "db");
  SalvaArch2(banco.ambiente);
  EXPECT_EQ(banco.disco.Contenuto("C:\\pregeo\\arch\\BackupDB\\_2026-11-21_09-05-07.db"), "db");
  s.NomeFileLibretto = "C:\\x.y\\ACT.1.DAT";
  SalvaArch2(banco.ambiente);
  EXPECT_EQ(banco.disco.Contenuto("C:\\pregeo\\arch\\BackupDB\\ACT_2026-11-21_09-05-07.db"), "db");
}

} // namespace
} // namespace lirmeto
