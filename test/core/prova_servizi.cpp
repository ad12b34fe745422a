#include "sostituti/banco.h"

#include <base/avanzamento.h>
#include <base/errore.h>
#include <base/percorsi.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <core/elenco_righe.h>
#include <core/mostra_errore.h>
#include <core/programmi.h>

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace lirmeto {
namespace {

using prova::Banco;
using Righe = std::vector<std::string>;

TEST(MostraErrore, OgniGuastoHaIlSuoRapporto) {
  Banco banco;
  const auto rapporto = [&](const std::function<void()>& comando) {
    banco.dialoghi.detti.clear();
    EXPECT_FALSE(Intrappola(banco.ambiente, [&] {
      banco.sessione.PuntoErrore = "qui";
      comando();
    }));
    EXPECT_EQ(banco.sessione.PuntoErrore, "");
    return banco.dialoghi.UltimoTesto();
  };
  EXPECT_EQ(rapporto([] { throw Errore(53); }),
            "Si è verificato questo errore : 53\r\nImpossibile trovare il file\r\nNella Routine qui"_w);
  EXPECT_TRUE(
      Contiene(rapporto([] { AllaRiga([] { return 3U; }, "7|x|", [] { throw Errore(9).DellaRiga(2, "7|y|"); }); }),
               "intervallo\r\nRiga 2: 7|y|\r\nNella"));
  EXPECT_EQ(rapporto([] { throw Errore(32755); }), "");
  EXPECT_EQ(banco.sessione.NumeroErrore, 32755);
  EXPECT_TRUE(Contiene(rapporto([] { throw std::bad_alloc(); }), " : 7\r\n"));
  EXPECT_TRUE(Contiene(rapporto([] { throw std::out_of_range("difetto"); }), " : 51\r\nErrore interno: difetto"));
  EXPECT_TRUE(Intrappola(banco.ambiente, [] {}));
}

TEST(Avanzamento, SiDiceSoloDiGiriLunghiECentoVolteAlPiu) {
  const auto detti = [](std::size_t totale) {
    Banco banco;
    {
      Avanzamento avanzamento(banco.dialoghi, "giro", totale);
      for (std::size_t i = 0; i < totale; ++i) avanzamento.Fatto(i);
    }
    return banco.dialoghi.avanzamenti;
  };
  EXPECT_EQ(detti(32768), Righe{});
  EXPECT_EQ(detti(70000), (Righe{"giro 32768/70000", "giro 65536/70000", "giro 70000/70000"}));
  EXPECT_EQ(detti(10'000'000).size(), 100U);
}

TEST(Servizi, CartelleUnLivelloAllaVolta) {
  Banco banco;
  std::erase(banco.disco.cartelle, "C:\\PREGEO\\ARCH\\BACKUPDB");
  std::erase(banco.disco.cartelle,
             "C:\\PREGEO\\ARCH"); // Pregeo's own folder is missing: its call
                                  // fails, the others go on
  banco.sessione.RadiceDati = "D:";
  CreaCartelle(banco.ambiente);
  EXPECT_TRUE(banco.disco.EsisteCartella("D:\\fiducial\\MODULISTICA"));
  EXPECT_TRUE(banco.disco.EsisteCartella("C:\\users\\prova\\Documents\\Forvale\\TEMP"));
  EXPECT_FALSE(banco.disco.EsisteCartella("D:\\fiducial\\Silvarca"));
  // the parents that are missing on C: are reported, one call each
  EXPECT_EQ(banco.dialoghi.detti.size(), 2U);
  EXPECT_TRUE(Contiene(banco.dialoghi.UltimoTesto(), " : 76\r\n"));
  EXPECT_TRUE(Contiene(banco.dialoghi.UltimoTesto(), "NuovaCartella"));
}

TEST(Servizi, TerminaDiceSoloSeLUltimoNonVa) {
  Banco banco;
  banco.processi.vivi["Lirmeto.exe"] = {1, 7, 8};
  TerminaProcesso(banco.ambiente, "Lirmeto.exe");
  EXPECT_EQ(banco.processi.terminati, (std::vector<long>{7, 8, 1})); // this process goes last
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  banco.processi.esitoTermina = 2;
  TerminaProcesso(banco.ambiente, "altro.exe");
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  banco.processi.vivi["elab.exe"] = {9};
  TerminaPregeo(banco.ambiente);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Il programma elab.exe è stato terminato!"_w);
}

TEST(Servizi, NomiDaiDatiNonEsconoDallaCartella) {
  EXPECT_EQ(ComponenteFile("2024_A B.VIS"), "2024_A B.VIS");
  for (const char* nome : {"..", "a/b", "a\\b", "C:x"}) EXPECT_THROW((void)ComponenteFile(nome), Errore) << nome;
  EXPECT_EQ(NomeDaPercorso("C:\\a\\b.dat"), "b.dat");
  EXPECT_EQ(NomeDaPercorso("b.dat"), "b.dat");
  EXPECT_EQ(ConEstensione("C:\\A.LXC\\R.1.LXC", ".TXT") + ConEstensione("C:\\A.LXC\\R", ".TXT"),
            "C:\\A.LXC\\R.1.TXTC:\\A.LXC\\R.TXT");
  EXPECT_DOUBLE_EQ(DistanzaPiana({1, 1}, {4, 5}), 5);
}

TEST(ElencoRighe, IlCursoreRestaSullaSuaRiga) {
  const struct {
    long prima;
    long dopo;
  } casi[] = {{-1, -1}, {0, 0}, {3, 1}, {4, 2}, {5, 2}, {6, 3}, {7, 3}}; // the row itself gone: the one that follows
  for (const auto& [prima, dopo] : casi) {
    ElencoRighe elenco;
    elenco.Riempi({"a", "A", "a", "b", "B", "c", "d", "d"});
    elenco.Indice(prima);
    EXPECT_EQ(elenco.TogliRipetute(), 4U);
    EXPECT_EQ(elenco.Indice(), dopo) << prima;
  }
}

TEST(ElencoRighe, SelezioneEIndiceSeguonoLeRighe) {
  ElencoRighe elenco;
  elenco.Riempi({"0", "9", "a", "b", "c", "d"});
  elenco.SelezionaIntervallo(0, 3, true);
  elenco.Seleziona(5, true);
  elenco.Indice(5);
  EXPECT_EQ(elenco.QuanteSelezionate(), 5U);
  EXPECT_EQ(elenco.TogliSelezionate(2), 3U);
  EXPECT_EQ(elenco.Righe(), (ListaRighe{"0", "9", "c"}));
  EXPECT_TRUE(elenco.Selezionata(1));
  EXPECT_FALSE(elenco.Selezionata(2));
  EXPECT_EQ(elenco.Indice(), 2);
  elenco.Inserisci(0, "z");
  EXPECT_EQ(elenco.Indice(), 3);
  EXPECT_TRUE(elenco.Selezionata(2));
  elenco.Indice(2);
  elenco.Togli(0);
  EXPECT_EQ(elenco.Indice(), 1);
  EXPECT_THROW(elenco.Togli(3), Errore);
  EXPECT_THROW((void)elenco.Riga(3), Errore);
  EXPECT_THROW(elenco.SelezionaIntervallo(0, 3, true), Errore);
  const auto versione = elenco.Versione();
  EXPECT_EQ(elenco.TogliRipetute(), 0U);
  EXPECT_EQ(elenco.Versione(), versione);
  elenco.Svuota();
  EXPECT_EQ(elenco.Indice(), -1);
  EXPECT_EQ(elenco.TogliSelezionate(2), 0U);
}

} // namespace
} // namespace lirmeto
