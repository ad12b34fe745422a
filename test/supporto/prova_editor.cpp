#include "sostituti/banco.h"

#include <supporto/editor_gen.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Nove;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

// Plays the user: changes the box and closes with the answers given.
void Modifica(Banco& banco, const std::string& testo) {
  banco.finestre.utente = [&](Modello& modello) {
    auto& editor = dynamic_cast<KR_EditorGen&>(modello);
    EXPECT_EQ(banco.sessione.ModoEditor, 381);
    EXPECT_EQ(editor.Titolo, "Edit Libretto Misure : [247]");
    EXPECT_EQ(editor.Testo, Testo({Zero, Nove, "8|1|2|3|"}));
    editor.Testo = testo;
    while (!editor.Chiudi()) {
    }
    EXPECT_TRUE(editor.Chiusa);
  };
  subModificaDiretta(banco.ambiente);
  EXPECT_EQ(banco.sessione.ModoEditor, 0);
}

TEST(Editor, SiPrendeLeRigheDelRiquadro) {
  Banco banco;
  const std::string residuo = "C:\\users\\prova\\Documents\\LIRMETO\\libretto.lib";
  banco.Apri(Testo({Zero, Nove, "8|1|2|3|"}));
  banco.disco.Metti(residuo, "x");
  banco.dialoghi.risposte = {Risposta::Annulla, Risposta::Si}; // Cancel stays, then Yes
  Modifica(banco, "  8|9|9||  \n\n   \n8|A|\n8|a|\n");
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "8|9|9|NOTE:|", "8|A|"})); // rows 0 and 9 come back
  EXPECT_EQ(banco.dialoghi.detti.size(), 2U);
  EXPECT_EQ(banco.dialoghi.detti[0].titolo + "/" + banco.dialoghi.detti[0].testo,
            "Uscita da Editor/Salvare Libretto modificato?");
  EXPECT_FALSE(banco.disco.Esiste(residuo));
}

TEST(Editor, NoNonCambiaNulla) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "8|1|2|3|"}));
  banco.sessione.List1.Indice(2);
  banco.dialoghi.risposte = {Risposta::No};
  Modifica(banco, "8|altro|\r\n");
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "8|1|2|3|"}));
  EXPECT_EQ(banco.sessione.List1.Indice(), 2);
}

// The other two roles: what is shown, and what a changed box becomes.
struct Ruolo {
  int modo;
  std::string titolo;
  std::string domanda;
  std::string scritto; // in the box
  std::string salvato; // the lines, each behind a bar, or the file
};

class RuoliDellEditor : public testing::TestWithParam<Ruolo> {};

TEST_P(RuoliDellEditor, CaricaESalvaIlSuo) {
  const std::string memo = "C:\\users\\prova\\Documents\\LIRMETO\\temp\\51FTP.CEN";
  Banco banco;
  ListaRighe stampa{"uno", "", "due "};
  banco.disco.Metti(memo, "uno\n\ndue ");
  banco.dialoghi.risposte = {Risposta::Annulla, Risposta::Si};
  banco.finestre.utente = [&](Modello& modello) {
    auto& editor = dynamic_cast<KR_EditorGen&>(modello);
    EXPECT_EQ(banco.sessione.ModoEditor, GetParam().modo);
    EXPECT_EQ(editor.Titolo, GetParam().titolo);
    EXPECT_EQ(editor.Testo, GetParam().modo == 382 ? "uno\r\n\r\ndue " : "uno\r\n\r\ndue \r\n");
    editor.Testo = GetParam().scritto;
    EXPECT_FALSE(editor.Chiudi());
    EXPECT_EQ(banco.sessione.ModoEditor, GetParam().modo);
    EXPECT_TRUE(editor.Chiudi());
  };
  GetParam().modo == 382 ? subModificaStampa(banco.ambiente, stampa) : subModificaCensuario(banco.ambiente, memo);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), GetParam().domanda);
  EXPECT_EQ(banco.sessione.ModoEditor, 0);
  std::string righe;
  for (const auto riga : stampa) righe += "|" + std::string(riga);
  EXPECT_EQ(GetParam().modo == 382 ? righe : banco.disco.Contenuto(memo), GetParam().salvato);
}

INSTANTIATE_TEST_SUITE_P(Ruoli, RuoliDellEditor,
                         testing::Values(Ruolo{382, "Edit Stampe", "Salvare Stampa modificata?", " a \r\n\nb\r\n",
                                               "| a ||b|"},
                                         Ruolo{382, "Edit Stampe", "Salvare Stampa modificata?", "", ""},
                                         Ruolo{383, "Edit Modello Censuario", "Salvare il Modello modificato?",
                                               " a\n\nb", " a\r\n\r\nb\r\n"}));

TEST(Editor, SenzaCambiamentiNonChiede) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "8|1|2|3|"}));
  banco.sessione.List1.Indice(2);
  banco.finestre.utente = [](Modello& modello) {
    auto& editor = dynamic_cast<KR_EditorGen&>(modello);
    EXPECT_EQ(editor.RigaIniziale, 2U);
    EXPECT_TRUE(editor.Chiudi());
  };
  subModificaDiretta(banco.ambiente);
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

TEST(Editor, LaRelazioneHaIlSuoPosto) {
  const std::string inizio = "6|***** Relazione  Tecnica *****|";
  const std::string fine = "6|*****   Fine   Relazione *****|";
  struct Caso {
    Righe prima;
    Righe dopo; // when it is saved as it stands
    std::size_t riga;
  };
  const std::vector<Caso> casi = {
      {{Zero, Nove, "1|1|X|", "2|2|1|2|X|", "8|1|2|3|X|", "6|ESTRATTO DI MAPPA|", "7|2|1|2|RC|"},
       {Zero, Nove, "1|1|X|", "2|2|1|2|X|", inizio, "6| |", fine, "8|1|2|3|X|", "6|ESTRATTO DI MAPPA|", "7|2|1|2|RC|"},
       5},
      {{Zero, Nove}, {Zero, Nove, inizio, "6| |", fine}, 3},
      {{Zero, Nove, inizio, "6|TESTO|", fine, "8|1|2|3|X|"}, {Zero, Nove, inizio, "6|TESTO|", fine, "8|1|2|3|X|"}, 3},
  };
  for (const auto& caso : casi) {
    Banco banco;
    banco.Apri(Testo(caso.prima));
    banco.finestre.utente = [&](Modello& modello) {
      auto& editor = dynamic_cast<KR_EditorGen&>(modello);
      EXPECT_EQ(editor.RigaIniziale, caso.riga);
      EXPECT_TRUE(editor.Salva());
    };
    subModificaRelazione(banco.ambiente);
    EXPECT_EQ(banco.Righe(), caso.dopo);
  }
}

TEST(Editor, CioCheNonSiScriveNonSiPerde) {
  Banco banco;
  const std::string memo = "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\TEMP\\51FTP.CEN";
  banco.disco.rotti[memo] = 75;
  banco.dialoghi.risposte = {Risposta::Si};
  banco.finestre.utente = [&](Modello& modello) {
    auto& editor = dynamic_cast<KR_EditorGen&>(modello);
    editor.Testo = "altro";
    EXPECT_FALSE(editor.Chiudi());
  };
  subModificaCensuario(banco.ambiente, memo);
  EXPECT_TRUE(banco.dialoghi.UltimoTesto().ends_with("Nella Routine Edit Modello Censuario Buttonplus1_Click"));
}

} // namespace
} // namespace lirmeto
