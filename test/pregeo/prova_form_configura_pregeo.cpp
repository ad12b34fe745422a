#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <pregeo/collegamenti.h>
#include <pregeo/form_configura_pregeo.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using Testi = std::vector<std::string>;

const std::string Percorso = "C:\\WINDOWS\\PREGEO.INI";

struct Sala : Banco {
  FormConfiguraPregeo form{ambiente};
  Sala() { form.AlCaricamento(); }
  [[nodiscard]] Testi Detti() const {
    Testi testi;
    for (const auto& detto : dialoghi.detti) testi.push_back(detto.testo);
    return testi;
  }
};

TEST(FormConfiguraPregeo, MostraIlFileELoRiscriveComeSta) {
  Sala sala;
  EXPECT_EQ(sala.form.Titolo, "Configurazione di Pregeo - " + Percorso);
  EXPECT_EQ(sala.form.Testo, sala.disco.Contenuto(Percorso));
  EXPECT_EQ(sala.form.EtichettaVersione, "PREGEO 10.00-G,APAG 2.12");
  for (const std::string byte : {"[A]\r\nx=1\r\n", "[A]\nx=1\ny=2", "[A]\rx=1\r\r\n", "solo", ""}) {
    sala.disco.Metti(Percorso, byte);
    sala.form.Ricarica();
    sala.form.Salva();
    EXPECT_EQ(sala.disco.Contenuto(Percorso), byte);
  }
  EXPECT_TRUE(sala.dialoghi.detti.empty() || sala.dialoghi.detti[0].titolo == "Pregeo Assente");
}

TEST(FormConfiguraPregeo, IlTestoSalvatoEQuelloDellaSessione) {
  Sala sala;
  sala.form.Testo = "[PREGEO]\r\nDskAPPLexe=C:\r\ncognome=VERDI\r\nnome=A=B|\"\xE0\"";
  sala.form.Salva();
  EXPECT_EQ(sala.disco.Contenuto(Percorso), sala.form.Testo + "\r\n");
  EXPECT_EQ(sala.sessione.RighePregeoIni,
            (Testi{"[PREGEO]", "DskAPPLexe=C:", "cognome=VERDI", "nome=A=B|\"\xE0\"", ""}));
  EXPECT_EQ(sala.sessione.Cognome, "ROSSI") << "the surveyor changes with a reload alone";
  sala.form.Ricarica();
  EXPECT_EQ(sala.sessione.Tecnico, "VERDI A");
  sala.form.Chiudi();
  EXPECT_TRUE(sala.form.Chiusa);
}

TEST(FormConfiguraPregeo, QuelloCheFallisceSiDiceELasciaTutto) {
  Sala sala;
  const Testi prima = sala.sessione.RighePregeoIni;
  sala.disco.rotti["C:\\WINDOWS\\PREGEO.INI"] = errore::AutorizzazioneNegata;
  sala.form.Testo = "x";
  sala.form.Salva();
  EXPECT_TRUE(Contiene(sala.dialoghi.UltimoTesto(), "Nella Routine FormConfiguraPregeo Salva"));
  EXPECT_EQ(sala.sessione.RighePregeoIni, prima);
  sala.form.Ricarica();
  EXPECT_EQ(sala.dialoghi.detti.size(), 2U);
  EXPECT_EQ(sala.form.Testo, "x");
}

TEST(FormConfiguraPregeo, LaVersioneDelProgramma) {
  Sala sala;
  sala.form.Carica_Versione_Pregeo();
  EXPECT_EQ(sala.form.Titolo, "Versione Pregeo.EXE = 10.6.0.3");
  sala.sessione.RadicePregeo = "Q:";
  sala.form.Carica_Versione_Pregeo();
  EXPECT_EQ(sala.form.Titolo, "Versione Pregeo.EXE = 10.6.0.3");
  EXPECT_TRUE(Contiene(sala.dialoghi.UltimoTesto(), "53"));
}

TEST(Collegamenti, TreConOgniEsito) {
  Sala sala;
  sala.form.CreaCollegamenti();
  EXPECT_EQ(sala.Detti(), (Testi{"Creato Collegamento sul DeskTop", "Creato Collegamento nel Menu Programmi",
                                 "Creato Collegamento sulla ToolBar"}));
  ASSERT_EQ(sala.processi.collegamenti.size(), 3U);
  EXPECT_EQ(sala.processi.collegamenti[0].nome, "Collegamento a PREGEO 10.00-G APAG 2.12");
  EXPECT_EQ(sala.processi.collegamenti[1].nome, "PREGEO 10.00-G APAG 2.12");
  EXPECT_EQ(sala.processi.collegamenti[2].nome, "PREGEO");
  EXPECT_EQ(sala.processi.collegamenti[2].programma, "C:\\PREGEO\\EXE\\PREGEO.EXE");
  sala.dialoghi.detti.clear();
  sala.processi.negati = {PostoCollegamento::Desktop, PostoCollegamento::MenuProgrammi, PostoCollegamento::AvvioRapido};
  CreaCollegamentiPregeo(sala.ambiente);
  ASSERT_EQ(sala.dialoghi.detti.size(), 3U);
  EXPECT_EQ(sala.dialoghi.detti[0].titolo, "Rilevato errore");
  EXPECT_EQ(sala.dialoghi.detti[1].testo, "Impossibile creare Collegamento nel Menu Programmi");
  EXPECT_EQ(sala.dialoghi.detti[2].testo, "Impossibile Creare Collegamento sulla ToolBar");
}

} // namespace
} // namespace lirmeto
