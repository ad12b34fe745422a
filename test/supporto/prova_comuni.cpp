#include "sostituti/banco.h"

#include <supporto/archivio_possessori.h>
#include <supporto/codice_fiscale.h>
#include <supporto/comuni8.h>

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using Righe = std::vector<std::string>;

// The correct ones are invented persons whose codes stand in public explanations of the rule.
TEST(CodiceFiscale, Controllo) {
  for (const char* codice : {"MRTMTT91D08F205J", "MLLSNT82P65Z404U", "RSSMRA85T10A562S", "rssmra85t10a562s"})
    EXPECT_EQ(ControllaCodiceFiscale(codice), "CORRETTO") << codice;
  for (const char* codice : {"RSSMRA85T10A562T", "RSSMRA85T10A56S", "RSSMRA85T10A562SS", "", "RSSMRA85T10A56\xE0S",
                             "RSSMRA85T10A562\xE0", "                "})
    EXPECT_EQ(ControllaCodiceFiscale(codice), "ERRATO") << codice;
}

// Each value of an odd position, by the letter that must end a code of "A" in all the others: those add 1 in each of
// the seven further odd positions.
TEST(CodiceFiscale, TuttiIValoriDispari) {
  const std::string lettere = "IHMOQUWYACJLZBSKNPTVXRDGFE"; // 7 + the value, modulo 26
  for (std::size_t i = 0; i < lettere.size(); ++i) {
    std::string codice(16, 'A');
    codice[0] = static_cast<char>('A' + i);
    codice[15] = lettere[i];
    EXPECT_EQ(ControllaCodiceFiscale(codice), "CORRETTO") << codice;
  }
}

std::string Riga(const std::string& nome, const std::string& resto) {
  return RiempiECorta(nome, 40) + "|" + resto;
}

TEST(CodFis, CercaMentreSiScrive) {
  Banco banco;
  banco.sessione.Comuni = {{"G224", "D3AA", "PD", "PADOVA"},
                           {"C337", "B1AA", "BG", "CASTRO"},
                           {"C338", "B2AA", "LE", "CASTRO"},
                           {"A001B", "A9AA", "PD", "ABANO TERME"}};
  KR_CodFis form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.List1, (Righe{Riga("PADOVA", "D3AA |G224 |PD"), Riga("CASTRO", "B1AA |C337 |BG"),
                               Riga("CASTRO", "B2AA |C338 |LE"), Riga("ABANO TERME", "A9AA |A001B|PD")}));
  form.CambiaText1("cas");
  EXPECT_EQ(form.Text1 + "/" + form.Etichetta, "CAS/C337");
  form.CambiaText1("astro");
  EXPECT_EQ(form.Indice, -1);
  form.CambiaText2("a001b");
  EXPECT_EQ(form.Indice, 3);
  form.CambiaText2("");
  EXPECT_EQ(form.Indice, -1);
  EXPECT_THROW(form.Clic(4), Errore);
  form.Clic(2);
  EXPECT_EQ(form.Text1 + "/" + form.Etichetta, "CASTRO/C338") << "the second of that name";
  form.DoppioClic(0);
  const Sessione& s = banco.sessione;
  EXPECT_EQ(s.CodiceComune + s.SiglaProvincia + s.NomeProvincia + banco.appunti.testo, "G224PDPADOVAG224");
  EXPECT_TRUE(form.Chiusa);
}

TEST(Comuni8, PerProvincia) {
  Banco banco;
  banco.sessione.SiglaProvincia = "VE";
  KR_Comuni8 form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.IndiceProvincia, 1);
  EXPECT_EQ(form.List1, (Righe{Riga("VENEZIA", "D3AA |L736 |VE")}));
  form.CambiaText1("PADOVA");
  EXPECT_EQ(form.Indice, -1) << "not of this province";
  banco.sessione.Comuni = {{"X001", "", "ZZ", "ALTROVE"}, {"X002", "", "GO", "DOVE"}};
  KR_Comuni8 senzaNome(banco.ambiente);
  senzaNome.AlCaricamento();
  ASSERT_EQ(senzaNome.Province.size(), 2U);
  EXPECT_EQ(senzaNome.Province[1].codice, "ZZ") << "of a province that its table has not";
  EXPECT_THROW(senzaNome.ScegliProvincia(2), Errore);
}

TEST(Possessori, ScelgonoEdEliminano) {
  Banco banco;
  banco.disco.Metti("C:\\FIDUCIAL\\VISURE\\ALTRO.VIS", "UNO|2|3|BIANCHI|ADA|x|\r\n\r\nROSSI MARIO nato a Padova\n");
  banco.disco.Metti("C:\\FIDUCIAL\\VISURE\\ATTO.VIS", "VERDI ANNA\r\n");
  banco.sessione.NomeFascicolo = "Atto";
  ArchivioPossessori form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.IndiceFile, 1) << "the open act's";
  form.Esegui(ArchivioPossessori::IndiceAssocia);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Selezionare un possessore!");
  EXPECT_EQ(banco.sessione.EsitoSelezione, -1);
  form.ScegliFile(0);
  form.ScegliRiga(1);
  form.Esegui(ArchivioPossessori::IndiceAssocia);
  EXPECT_TRUE(form.Chiusa);
  form.ScegliRiga(0);
  form.Associapossessori();
  EXPECT_EQ(banco.sessione.ElencoPossessori, "BIANCHI ADA\r\nROSSI MARIO nato a Padova\r\n");
  form.Esegui(ArchivioPossessori::IndiceElimina);
  EXPECT_EQ(form.File1, (Righe{"ATTO.VIS"}));
  EXPECT_TRUE(form.List1.empty());
  form.Esegui(ArchivioPossessori::IndiceElimina);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Selezionare un file!");
  banco.disco.file.clear();
  form.ScegliFile(0);
  form.Esegui(ArchivioPossessori::IndiceElimina);
  EXPECT_TRUE(Contiene(banco.dialoghi.UltimoTesto(), "errore : 53")) << banco.dialoghi.UltimoTesto();
}

} // namespace
} // namespace lirmeto
