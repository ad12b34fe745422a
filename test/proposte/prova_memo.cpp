// The memo of splits and separations, on its way into the libretto.
#include "censuario.h"

#include <base/testo.h>
#include <core/riga.h>
#include <core/riordino.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>
#include <proposte/lettere.h>
#include <supporto/editor_gen.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::BancoCensuario;
using prova::Batti;
using prova::Cento;
using prova::Conteggio;
using prova::Copia;
using prova::TestataCensuaria;
using prova::Testo;
using Righe = std::vector<std::string>;

// From the memo to the libretto, by the two saves; the second parcel of the act goes on with the letters.
TEST(Frazionamento, MemoELibretto) {
  BancoCensuario banco;
  const std::string altra =
      std::string("6|") + std::string(67, 'x') + "|"; // seventy characters: taken for a census row
  banco.Apri(Testo({"0|01022024|7|G224|0010|35|ROSSI|G|PD|", "9|12|10|20|0|V|FR|T|", altra, "8|1|2|3|"}));
  banco.sessione.ModoEditor = ModoSopprime;
  banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  {
    KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
    form.Form_Load();
    Batti(form, {"50", "50"});
    form.Premi(2);
    EXPECT_FALSE(form.Chiusa);
    form.Premi(2); // by mistake, and taken away again
    EXPECT_TRUE(form.Chiusa);
    EXPECT_EQ(form.RilieviMemo().size(), 3U); // original and both names twice
    form.List2.SelezionaIntervallo(6, 9, true);
    form.Premi(5);
  }
  KR_Fraziona form(banco.ambiente, banco.Particella("6|PARTICELLA|36|01|SEMINATIVO  |9|9|1|1|SN|"));
  form.Form_Load();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "004"));
  Batti(form, {"9"});
  EXPECT_EQ(form.List1[4].substr(17, 5), "AAC  ");
  form.AggiungiAlMemo();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "007"));
  EXPECT_EQ(form.RilieviMemo(), std::vector<Segnalazione>{});
  EXPECT_EQ(banco.disco.Contenuto(prova::Temp + "51FTP.CEN"), Testo(Copia(form.List2.Righe())));
  form.Premi(10);
  EXPECT_EQ(banco.appunti.testo, Testo(Copia(form.List2.Righe())));
  const std::string prima = banco.sessione.Libretto;
  form.Premi(1);
  EXPECT_EQ(banco.sessione.Libretto, prima + Testo(Copia(form.List2.Righe())));
  form.Premi(8);
  EXPECT_EQ(banco.sessione.Libretto, Sostituisci(prima, altra + "\r\n", "") + Testo(Copia(form.List2.Righe())));
  const std::size_t detti = banco.dialoghi.detti.size();
  subRiordinoRighe(banco.ambiente);
  EXPECT_EQ(banco.dialoghi.detti.size(), detti) << "the count of the block is right";
  form.Premi(3);
  EXPECT_EQ(Copia(form.List2.Righe()), (Righe{prova::TestataCensuaria, Conteggio("51FTP", "000")}));
  EXPECT_FALSE(banco.disco.Esiste(prova::Temp + "51FTP.CEN"));
  const std::string salvato = banco.sessione.Libretto;
  banco.dialoghi.risposte = {Risposta::No};
  form.Premi(8); // nothing but a heading
  EXPECT_EQ(banco.sessione.Libretto, salvato);
  form.Premi(6);
  EXPECT_EQ(form.List2.Quante(), 9U);
}

// Before there is a libretto the proposal makes one, with its first two rows.
TEST(Frazionamento, UnLibrettoVuotoPrendeLeDueRighe) {
  for (const int salva : {1, 8}) {
    BancoCensuario banco;
    KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
    form.Form_Load();
    Batti(form, {"100"});
    form.AggiungiAlMemo();
    form.Premi(salva);
    const auto righe = RigheDi(banco.sessione.Libretto);
    ASSERT_GT(righe.size(), 5U);
    EXPECT_TRUE(righe[0].starts_with("0|") && righe[1].starts_with("9|")) << banco.sessione.Libretto;
    EXPECT_EQ(righe[2], TestataCensuaria);
  }
}

TEST(Fraziona, CioCheSiEComposto) {
  const struct {
    Risposta risposta;
    bool scritte;
    bool chiusa;
  } casi[] = {{Risposta::Si, true, true}, {Risposta::No, false, true}, {Risposta::Annulla, false, false}};
  for (const auto& [risposta, scritte, chiusa] : casi) {
    for (const int bottone : {1, 8}) {
      BancoCensuario banco;
      banco.sessione.ModoEditor = ModoSopprime;
      KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
      form.Form_Load();
      Batti(form, {"60", "40"});
      banco.dialoghi.risposte = {risposta};
      form.Premi(bottone);
      EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Il memo \xE8 vuoto: mettervi le righe di questa particella?");
      EXPECT_EQ(Contiene(banco.sessione.Libretto, "6|51FTP|004|"), scritte);
      EXPECT_EQ(form.Chiusa, chiusa);
    }
  }
}

TEST(Stralcio, UrbaniEMemo) {
  BancoCensuario banco;
  const std::string modello = "35 = 100_AAA = 60\r\n35 = 100_AAB = 30\r\n35 = 100_AAC = 10\r\n36 = 1_AAD = 1\r\n";
  KR_Stralcio form(banco.ambiente, banco.Particella(Cento, modello));
  form.Apri({{}, modello, {}, "7|3|1%|2%|3%|NC|AAC+|AAC+|10|\r\n"});
  EXPECT_EQ(form.List4.Quante(), 3U);
  EXPECT_TRUE(form.List4.Selezionata(2)) << "the proposal marks it with a plus";
  form.List4.Seleziona(0, true);
  form.PropostaAutomatica();
  const std::string qualita[] = {"001|1 ", "282|  ", "001|1 ", "282|  "};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(form.List1[i == 0 ? 2 : i + 3].substr(45, 6), qualita[i]) << i;
  // The memo of a separation begins as one of splits, and says so; started again it does not.
  form.AggiungiAlMemo();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "005"));
  EXPECT_EQ(form.Rilievi().size(), 1U);
  form.Premi(3);
  EXPECT_EQ(form.List2.Riga(1), Conteggio("3SPC ", "000"));
  EXPECT_EQ(form.Rilievi().size(), 0U);
}

TEST(Stralcio, LEditorApreIlSuoMemo) {
  BancoCensuario banco;
  KR_Stralcio form(banco.ambiente, banco.Particella(Cento));
  form.Form_Load();
  banco.finestre.utente = [](Modello& modello) {
    auto& editor = dynamic_cast<KR_EditorGen&>(modello);
    editor.Testo += std::string(69, '6') + "\r\n" + std::string(71, '6') + "\r\n6|S|" + std::string(65, ' ') + "|\r\n";
    EXPECT_TRUE(editor.Salva());
  };
  form.Premi(7);
  EXPECT_EQ(form.List2.Quante(), 3U); // rows of another length are passed over
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "001"));
}

TEST(Lettere, SerieDeiNomiTemporanei) {
  const std::pair<std::size_t, std::string> casi[] = {{0, ""},      {1, "AAA"},     {26, "AAZ"}, {27, "ABA"},
                                                      {677, "BAA"}, {17576, "ZZZ"}, {17577, ""}};
  for (const auto& [numero, nome] : casi) EXPECT_EQ(NomeTemporaneo(numero), nome);
  const std::pair<std::string, std::size_t> letti[] = {{"AAC  ", 3}, {"101  ", 0}, {"BBB  ", 2}, {"ABA", 27}, {"A", 0}};
  for (const auto& [nome, numero] : letti) EXPECT_EQ(NumeroTemporaneo(nome), numero) << nome;
  EXPECT_EQ(LetteraDerivata(28), "ab");
}

} // namespace
} // namespace lirmeto
