#include "sostituti/banco.h"

#include <base/testo.h>
#include <core/riordino.h>
#include <core/salvataggio.h>
#include <core/storia.h>

#include <gtest/gtest.h>

#include <random>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;

struct Fotografia {
  std::vector<std::string> righe;
  std::string libretto;
  std::string ditta; // and the fiscal code
  std::string file;
  bool operator==(const Fotografia&) const = default;
};

Fotografia Foto(const Banco& banco) {
  return {banco.Righe(), banco.sessione.Libretto, banco.sessione.Ditta + banco.sessione.CodiceFiscale,
          banco.sessione.NomeFileLibretto};
}

// One change of any kind, as commands make them.
void Cambia(Banco& banco, std::mt19937& caso) {
  ElencoRighe& elenco = banco.sessione.List1;
  const std::size_t riga = caso() % elenco.Quante();
  const std::string nuova = "8|" + std::to_string(caso() % 5) + "|1|2|";
  switch (caso() % 6) {
  case 0:
    elenco.Inserisci(riga, nuova);
    return AggiornaLibrettoMisure(banco.ambiente);
  case 1:
    elenco.Cambia(riga, nuova);
    return AggiornaLibrettoMisure(banco.ambiente);
  case 2:
    for (std::size_t i = 0; i < elenco.Quante(); ++i) elenco.Seleziona(i, caso() % 3 == 0);
    elenco.TogliSelezionate(2);
    return AggiornaLibrettoMisure(banco.ambiente);
  case 3:
    banco.sessione.Libretto += nuova + "\r\n2|" + nuova; // the last one has no line end
    return banco.Apri(banco.sessione.Libretto, "C:\\" + nuova.substr(2, 1) + ".DAT");
  case 4:
    banco.sessione.Ditta += "X";
    banco.sessione.CodiceFiscale = "Y" + nuova;
    return;
  default:
    return subRiordinoRighe(banco.ambiente);
  }
}

TEST(Storia, IndietroEAvantiDopoOgniCambiamento) {
  Banco banco;
  banco.Apri(Testo({prova::Zero, prova::Nove, "1|1|2|", "8|9|1|2|", "2|5|6|7|"}));
  Storia storia;
  storia.Ricomincia(banco.sessione);
  std::mt19937 caso(20);
  std::vector<Fotografia> foto = {Foto(banco)};
  for (int i = 0; i < 300; ++i) {
    storia.Prepara(banco.sessione);
    Cambia(banco, caso);
    if (storia.Registra(banco.sessione, "passo"))
      foto.push_back(Foto(banco));
    else
      foto.back().libretto = banco.sessione.Libretto;
  }
  ASSERT_GT(foto.size(), 150U);
  for (std::size_t giro = 0; giro < 2; ++giro) {
    for (std::size_t i = foto.size() - 1; i-- > 0;) {
      storia.Annulla(banco.sessione);
      ASSERT_EQ(Foto(banco).righe, foto[i].righe) << i;
      ASSERT_EQ(Foto(banco).ditta + Foto(banco).file, foto[i].ditta + foto[i].file) << i;
    }
    EXPECT_FALSE(storia.PuoAnnullare());
    for (std::size_t i = 1; i < foto.size(); ++i) {
      storia.Ripeti(banco.sessione);
      ASSERT_TRUE(Foto(banco) == foto[i]) << i;
    }
    EXPECT_FALSE(storia.PuoRipetere());
  }
}

TEST(Storia, CioCheSiScriveFraDueComandiNonSiPerde) {
  Banco banco;
  banco.Apri(Testo({prova::Zero, prova::Nove}));
  Storia storia;
  storia.Ricomincia(banco.sessione);
  banco.sessione.Ditta = "SCRITTA";
  storia.Prepara(banco.sessione);
  EXPECT_FALSE(storia.Registra(banco.sessione, "niente"));
  banco.sessione.List1.Aggiungi("8|1|2|3|");
  EXPECT_TRUE(storia.Registra(banco.sessione, "riga"));
  EXPECT_EQ(storia.DaAnnullare(), "riga");
  banco.sessione.List1.Aggiungi("8|9|2|3|"); // by nobody's command
  storia.Prepara(banco.sessione);
  storia.Annulla(banco.sessione);
  EXPECT_EQ(banco.Righe().size(), 3U);
  EXPECT_EQ(banco.sessione.List1.Indice(), 2);
  storia.Annulla(banco.sessione);
  EXPECT_EQ(banco.Righe().size(), 2U);
  EXPECT_EQ(banco.sessione.Ditta, "SCRITTA");
  storia.Annulla(banco.sessione);
  EXPECT_EQ(banco.Righe().size(), 2U);
  storia.Ripeti(banco.sessione);
  banco.sessione.Ditta = "ALTRA";
  EXPECT_TRUE(storia.Registra(banco.sessione, "ditta"));
  EXPECT_FALSE(storia.PuoRipetere());
}

} // namespace
} // namespace lirmeto
