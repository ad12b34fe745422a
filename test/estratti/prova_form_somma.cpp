// The form of the sum of extracts.
#include "tavolo.h"

#include <base/errore.h>
#include <estratti/somma_estratti.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Cartella;
using prova::Scegli;
using prova::Tavolo;
using prova::Testo;
using Righe = std::vector<std::string>;

TEST(FormSomma, SommaISceltiSottoIlNomeNuovo) {
  Tavolo tavolo;
  KR_EstrattiDiMappa1 manager(tavolo.ambiente);
  manager.AlCaricamento();
  Scegli(manager, "A.EMP");
  tavolo.finestre.utente = [&](Modello& modello) {
    auto& form = dynamic_cast<KR_SommaEstratti&>(modello);
    EXPECT_EQ(form.File1, (Righe{"A.EMP", "B.EMP"}));
    EXPECT_EQ(form.Grafica1().Archivio().Punti().size(), 6U);
    form.Somma();
    EXPECT_EQ(tavolo.dialoghi.UltimoTesto(), "Selezionare l'Estratto da Aggiungere");
    form.Scegli(1, true);
    form.Somma();
    EXPECT_EQ(tavolo.dialoghi.UltimoTesto(), "Inserire il Nome dell'Estratto Risultante");
    form.MostraSomma();
    EXPECT_EQ(form.Grafica1().Archivio().Punti().size(), 7U) << "one more of B, the other is common";
    form.NomeSomma = "..\\x";
    form.Somma();
    EXPECT_TRUE(!form.Chiusa && form.Creato.empty());
    form.NomeSomma = "somma.emp";
    form.Somma();
    EXPECT_TRUE(form.Chiusa);
  };
  manager.Premi(3);
  EXPECT_EQ(tavolo.File("SOMMA.EMP"),
            Testo({"0|AUTOALLESTITO|0|0|0|0|0|0|0|0|", "8|1%|0|0|", "8|2%|10|0|", "8|3%|10|10|", "8|4%|77|7|",
                   "8|5%|50|50|", "7|4|1%|2%|3%|1%|NC|35|35|50|", "7|4|1%|3%|2%|1%|NC|36|36|50|"}));
  EXPECT_EQ(tavolo.File("SOMMA.PNG") + "/" + tavolo.File("SOMMA.JPG"), "foto/foto j");
  EXPECT_EQ(manager.File1.at(static_cast<std::size_t>(manager.Indice)), "SOMMA.EMP");
}

TEST(FormSomma, UnNomeEsistenteSiChiedeEUnGuastoNonLasciaNulla) {
  Tavolo tavolo;
  tavolo.disco.Metti(Cartella + "ROTTO.EMP", "8|1%\r\n");
  KR_SommaEstratti form(tavolo.ambiente, Cartella + "A.EMP");
  form.AlCaricamento();
  form.NomeSomma = "B";
  form.Scegli(1, true);
  tavolo.dialoghi.risposte = {Risposta::No};
  const auto prima = tavolo.disco.file;
  form.Somma();
  EXPECT_EQ(tavolo.dialoghi.UltimoTesto(), "Estratto B esistente!\r\nSostituire??");
  form.NomeSomma = "ALTRO";
  form.Scegli(2, true);
  form.Somma();
  EXPECT_EQ(tavolo.sessione.NumeroErrore, errore::IndiceFuoriIntervallo);
  EXPECT_EQ(tavolo.disco.file, prima);
  EXPECT_FALSE(form.Chiusa);
}

} // namespace
} // namespace lirmeto
