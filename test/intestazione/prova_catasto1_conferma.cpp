// What the confirm of the header form writes, asks, refuses.
#include "sportello.h"

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

#include <tuple>

namespace lirmeto {
namespace {

using prova::CodiceGiusto;
using prova::Nove;
using prova::Programma;
using prova::Sportello;
using prova::Testo;
using prova::ZeroDiOggi;
using Testi = std::vector<std::string>;

struct CasoConferma {
  std::string nome;
  Testi righe; // behind rows 0 and 9
  std::string commento;
  std::string tipo;
  Testi dopo; // behind rows 0 and 9
};

class Conferma : public testing::TestWithParam<CasoConferma> {};

TEST_P(Conferma, RigheDelCommento) {
  Testi righe = {ZeroDiOggi, Nove};
  righe.insert(righe.end(), GetParam().righe.begin(), GetParam().righe.end());
  Sportello sala(righe);
  sala.Apri();
  sala.form.Cambia(casella::Commento, GetParam().commento);
  sala.form.Cambia(casella::Tipologia, GetParam().tipo);
  sala.form.Premi(0);
  Testi dopo = sala.Righe();
  EXPECT_EQ(dopo[0], ZeroDiOggi.substr(0, 18) + "0010|3,12|ROSSI MARIO|GEOMETRA|PADOVA|");
  EXPECT_EQ(dopo[1], "9|12|10|20|0|VER|" + GetParam().tipo + "|TOTALE|");
  EXPECT_EQ(sala.sessione.Libretto, Testo(dopo));
  EXPECT_EQ(Testi(dopo.begin() + 2, dopo.end()), GetParam().dopo);
  EXPECT_TRUE(sala.form.Chiusa);
  EXPECT_TRUE(sala.dialoghi.detti.empty()) << sala.dialoghi.UltimoTesto();
}

INSTANTIATE_TEST_SUITE_P(Casi, Conferma,
                         testing::Values(CasoConferma{"nessuno", {"8|a|1|2|"}, "", "FR", {"8|a|1|2|"}},
                                         CasoConferma{"nuovo", {"8|a|1|2|"}, " uno ", "FR", {"6|uno|", "8|a|1|2|"}},
                                         CasoConferma{"vecchio", {"6|due|"}, "uno", "FR", {"6|uno|"}},
                                         CasoConferma{"tolto", {"6|due|"}, "", "FR", {"6|due|"}},
                                         CasoConferma{"dettaglio", {"6|DettaglioTipoAgg=1|"}, "", "FR", {}},
                                         CasoConferma{
                                             "dopoUnaVecchiaNove", {"9|x|", "6|due|"}, "uno", "FR", {"9|x|", "6|uno|"}},
                                         CasoConferma{"relazione",
                                                      {"6|***** Relazione  Tecnica *****|"},
                                                      "uno",
                                                      "FR",
                                                      {"6|uno|", "6|***** Relazione  Tecnica *****|"}},
                                         CasoConferma{"censuario",
                                                      {"6|Dati per aggiornare il D.B. Censuario|"},
                                                      "uno",
                                                      "FR",
                                                      {"6|uno|", "6|Dati per aggiornare il D.B. Censuario|"}},
                                         CasoConferma{"gps", {"6|L1|a|RTK|"}, "uno", "FR", {"6|uno|", "6|L1|a|RTK|"}},
                                         CasoConferma{"cm", {"8|a|1|2|"}, "", "CM", {"6|CONFERMA|", "8|a|1|2|"}},
                                         CasoConferma{"cmCeGia", {"6|Conferma|"}, "", "CM", {"6|Conferma|"}},
                                         CasoConferma{"nonPiuCm", {"6|Conferma|", "8|a|1|2|"}, "", "FR", {"8|a|1|2|"}},
                                         CasoConferma{"senzaBarre", {}, "a|b", "FR", {"6|a b|"}}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(Catasto1, ConfermaScriveTecnicoIniESessione) {
  Sportello sala;
  sala.Apri();
  sala.form.Cambia(casella::Cognome, "verdi");
  sala.form.Cambia(casella::Nome, "");
  sala.form.Cambia(casella::Provincia, "rovigo");
  sala.form.Cambia(casella::Comune, "l736");
  sala.form.Cambia(casella::Iscrizione, "77=8");
  sala.form.Cambia(casella::Recapito, "via \"Po\", 1");
  sala.form.Cambia(casella::Strumentazione, "");
  sala.form.EtichettaEstratto = " X.EMP ";
  sala.form.AggiornaData = false;
  sala.form.Premi(0);
  const Sessione& s = sala.sessione;
  EXPECT_EQ(s.EsitoForm, EsitoConfermato);
  EXPECT_EQ(sala.Righe()[0], "0|21112026|7|L736|0010|3,12|VERDI NOME|GEOMETRA|ROVIGO|");
  EXPECT_EQ(s.CodiceComune + s.NomeComune + s.SiglaProvincia, "L736VENEZIAVE");
  EXPECT_EQ(s.EstrattoAssociato, "X.EMP");
  EXPECT_EQ(s.ModoEditor, 381);
  EXPECT_EQ(sala.disco.Contenuto(Programma + "\\tecnici\\VERDI NOME.PFS"),
            Testo({"\"VERDI NOME\",\"GEOMETRA\",\"ROVIGO\"", "\"10\",\"20\",\"GEODIMETRO INTEGRATO\"",
                   "\"77=8\",\"" + CodiceGiusto + "\"", "\"VERDI\"", "\"NOME\"", "\"via  Po   1\""}));
  const std::string ini = sala.disco.Contenuto("C:\\WINDOWS\\PREGEO.INI");
  EXPECT_TRUE(Contiene(ini, "\r\nnumero=77=8\r\ncodc=" + CodiceGiusto + "\r\n[PROV_DI_COMP]\r\nprovincia=VE\r\n"));
  EXPECT_TRUE(Contiene(ini, "[DATI TECNICO]\r\nnome=VERDI NOME\r\ncognome=VERDI\r\nnome=NOME\r\n"));
  EXPECT_EQ(sala.impostazioni.valori["RELAZIONE_TECNICA/Aggiorna_Default_Data"], "0");
  EXPECT_EQ(sala.impostazioni.valori["RELAZIONE_TECNICA/Aggiorna_Default_Pregeo"], "1");
  EXPECT_EQ(sala.Casella(casella::Cognome), "VERDI"); // another confirm does not double the name
}

struct CasoData {
  std::string nome;
  std::string data;
  bool oggi;         // "Aggiorna alla Data di Oggi"
  std::string detto; // title of what is said
  std::string dopo;  // with the answer No
};

class DataConfermata : public testing::TestWithParam<CasoData> {};

TEST_P(DataConfermata, Avvisa) {
  Sportello sala;
  sala.Apri();
  sala.form.AggiornaData = GetParam().oggi;
  sala.form.Cambia(casella::Data, GetParam().data);
  sala.form.Premi(0);
  EXPECT_EQ(sala.dialoghi.detti.empty() ? "" : sala.dialoghi.detti[0].titolo, GetParam().detto);
  EXPECT_TRUE(sala.Righe()[0].starts_with("0|" + GetParam().dopo + "|")) << sala.Righe()[0];
  EXPECT_TRUE(sala.form.Chiusa);
}

INSTANTIATE_TEST_SUITE_P(Casi, DataConfermata,
                         testing::Values(CasoData{"oggi", "21112026", false, "", "21112026"},
                                         CasoData{"domani", "22112026", false, "", "22112026"},
                                         CasoData{"ieri", "20112026", false, "Verifica data Libretto", "20112026"},
                                         CasoData{"automatica", "20112020", true, "", "21112026"},
                                         CasoData{"breve", "221126", false, "", "22112026"},
                                         CasoData{"vuota", "", false, "", "21112026"}),
                         [](const auto& caso) { return caso.param.nome; });

struct CasoDifetto {
  std::size_t casella;
  std::string testo;
  std::string difetto; // what the box shows
  bool ferma = true;   // the form stays open
  std::string detto = {};
};

class Difetti : public testing::TestWithParam<CasoDifetto> {};

// Nothing is written, and the text stays to be put right.
TEST_P(Difetti, SiVedonoAllaCasella) {
  Sportello sala;
  sala.Apri();
  sala.form.AggiornaData = false;
  sala.dialoghi.risposte = {Risposta::Si};
  const auto prima = sala.Righe();
  sala.form.Cambia(GetParam().casella, GetParam().testo);
  EXPECT_EQ(sala.form.Difetto(GetParam().casella), GetParam().difetto);
  sala.form.Premi(0);
  EXPECT_EQ(sala.form.Chiusa, !GetParam().ferma);
  EXPECT_EQ(sala.form.DaCorreggere, GetParam().ferma ? std::optional(GetParam().casella) : std::nullopt);
  if (!GetParam().ferma) return;
  EXPECT_EQ(sala.Righe(), prima);
  EXPECT_EQ(sala.Casella(GetParam().casella), GetParam().testo);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), GetParam().detto);
  EXPECT_EQ(sala.sessione.EsitoForm, EsitoAnnullato);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Difetti,
    testing::Values(CasoDifetto{casella::Data, "0102204", "Formato Data Errato!!", true, "Formato Data Errato!!"},
                    CasoDifetto{casella::Data, "30022027", "Formato Data Errato!!", true, "Formato Data Errato!!"},
                    CasoDifetto{casella::Data, "1e7.....", "Formato Data Errato!!", true, "Formato Data Errato!!"},
                    CasoDifetto{casella::Comune, "ZZZZ", "Comune non trovato!"},
                    CasoDifetto{casella::Comune, "G224AB", "Comune non trovato!"},
                    CasoDifetto{casella::Comune, "g224a", "", false}, CasoDifetto{casella::Comune, "", "", false},
                    CasoDifetto{casella::Foglio, "A7", "Foglio errato: quattro cifre e l'allegato"},
                    CasoDifetto{casella::Foglio, "12AB", "Foglio errato: quattro cifre e l'allegato"},
                    CasoDifetto{casella::Foglio, "12b", "", false}, CasoDifetto{casella::Foglio, "00041", "", false},
                    CasoDifetto{casella::Protocollo, "x", "Protocollo non numerico!", false},
                    CasoDifetto{casella::CodiceFiscale, "RSSMRA85T10A562T", "Probabile Codice Fiscale non Corretto!",
                                false}));

// What was looked up and chosen in the form is none of the session's once it is closed.
TEST(Catasto1, ChiudereNonCambiaNullaEChiedeSeQualcosaECambiato) {
  Sportello sala;
  sala.disco.Metti(Programma + "\\TECNICI\\BLU ADA.PFS",
                   "\"BLU ADA\",\"ARCHITETTO\",\"VENEZIA\"\r\n\"10\",\"20\",\"S\"\r\n\"9\",\"X\"\r\nBLU\r\nADA\r\n");
  Sessione& s = sala.sessione;
  s.MisurateAssociate = "X.DDD";
  const auto stato = [&] {
    return std::tuple(s.Tecnico, s.Cognome + s.NumeroIscrizione, s.Qualifica, s.DataLibretto, s.MisurateAssociate,
                      s.CodiceComune, s.ModoEditor);
  };
  const auto prima = stato();
  sala.form.AlCaricamento();
  sala.form.Lascia(casella::Foglio);
  sala.form.Premi(1);
  EXPECT_TRUE(sala.form.Chiusa);
  EXPECT_TRUE(sala.dialoghi.detti.empty()); // nothing was edited
  FormCatasto1TXT altra(sala.ambiente);
  altra.AlCaricamento();
  altra.ScegliTecnico(0);
  altra.Premi(23);
  altra.Cambia(casella::Data, "01012020");
  altra.Lascia(casella::Data);
  altra.ApriEstratti();
  altra.Premi(1); // the answer is No
  EXPECT_FALSE(altra.Chiusa);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "Chiudere senza confermare le modifiche?");
  sala.dialoghi.risposte = {Risposta::Si};
  altra.Premi(1);
  EXPECT_TRUE(altra.Chiusa);
  EXPECT_TRUE(stato() == prima);
}

TEST(Catasto1, CodiceFiscaleRifiutatoNonCambiaNulla) {
  Sportello sala({ZeroDiOggi, Nove, "8|a|1|2|"});
  sala.Apri();
  sala.form.Cambia(casella::Protocollo, "x");
  sala.form.Cambia(casella::Cognome, "VERDI");
  sala.form.Cambia(casella::Commento, "uno");
  sala.form.Cambia(casella::CodiceFiscale, "RSSMRA85T10A562T");
  const auto stato = [&] {
    const Sessione& s = sala.sessione;
    return std::tuple(sala.Righe(), s.Libretto, s.RigaZero + s.RigaCommento, s.Tecnico + s.CodiceFiscale, s.ModoEditor,
                      sala.disco.file, sala.impostazioni.valori);
  };
  const auto prima = stato();
  sala.form.Premi(0);
  ASSERT_EQ(sala.dialoghi.detti.size(), 2U);
  EXPECT_EQ(sala.dialoghi.detti[0].testo, "Protocollo non numerico!");
  EXPECT_EQ(sala.dialoghi.detti[1].testo, "Probabile Codice Fiscale non Corretto!\r\nContinuare?");
  EXPECT_TRUE(stato() == prima);
  EXPECT_FALSE(sala.form.Chiusa);
  EXPECT_EQ(sala.sessione.EsitoForm, EsitoAnnullato);
  sala.dialoghi.risposte = {Risposta::Si};
  sala.form.Premi(0);
  EXPECT_TRUE(sala.form.Chiusa);
  EXPECT_EQ(sala.sessione.EsitoForm, EsitoConfermato);
}

TEST(Catasto1, UnTecnicoOUnIniCheNonSiScrivonoNonPerdonoLeRighe) {
  Sportello sala;
  sala.Apri();
  sala.form.Cambia(casella::Cognome, "A/B");
  sala.form.Cambia(casella::Nome, " mario ");
  sala.disco.rotti["C:\\WINDOWS\\PREGEO.INI"] = errore::AccessoAlFile;
  sala.form.Premi(0);
  EXPECT_EQ(sala.dialoghi.detti.size(), 2U); // one report for the .PFS, one for PREGEO.INI
  EXPECT_TRUE(Contiene(sala.dialoghi.UltimoTesto(), "Nella Routine"));
  EXPECT_TRUE(Contiene(sala.Righe()[0], "|A/B MARIO|"));
  EXPECT_TRUE(sala.form.Chiusa);
}

} // namespace
} // namespace lirmeto
