#include <sostituti/banco.h>

#include <supporto/assegna_descrizione.h>

#include <base/errore.h>
#include <core/campi_riga.h>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

TEST(CampiRiga, LaNotaDiOgniGenere) {
  struct Caso {
    const char* riga;
    const char* attesa; // with the note "A|B"; null: it has none
  };
  const std::vector<Caso> casi = {
      {"1|100|1.5|CHIODO|", "1|100|1.5|A B|"},
      {"1|100|CHIODO|", "1|100|A B|"},
      {"1|B|4410603.1,653928.4,4545947.0|0.0|BASE|", "1|B|4410603.1,653928.4,4545947.0|0.0|A B|"},
      {"2|101|323.57|100.2|38.9|3.6|SPIG|", "2|101|323.57|100.2|38.9|3.6|A B|"},
      {"2|101|323.57|38.9|SPIG|", "2|101|323.57|38.9|A B|"},
      {"5|7|1.0|2.0||", "5|7|1.0|2.0|A B|"},
      {"8|PF01/0010/G224|1.0|2.0|05|SPIGOLO|", "8|PF01/0010/G224|1.0|2.0|05|A B|"},
      {"8|7|1.0|2.0|X|", "8|7|1.0|2.0|A B|"},
      {"7|2|1|2|RC|", nullptr},
      {"6|NOTA|", nullptr},
      {"4|100|12.500|", nullptr},
      {"", nullptr},
  };
  for (const auto& caso : casi) {
    const auto campo = CampoNota(caso.riga);
    ASSERT_EQ(campo.has_value(), caso.attesa != nullptr) << caso.riga;
    if (campo) {
      EXPECT_EQ(ConCampo(caso.riga, *campo, "A|B"), caso.attesa);
    }
  }
  EXPECT_THROW((void)ConCampo("1|2|", 5, "X"), Errore);
}

TEST(AssegnaDescrizione, SoloLeRigheSelezionateConUnaNota) {
  Banco banco;
  banco.Apri(Testo({"0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|", "9|20|10|20|1|V|TM|X|", "1|100|1.5|UNO|",
                    "2|101|1|2|3|4|DUE|", "7|2|100|101|RC|"}),
             "C:\\A.DAT");
  ElencoRighe& elenco = banco.sessione.List1;
  AssegnaDescrizione vuota(banco.ambiente);
  vuota.AlCaricamento();
  vuota.Conferma();
  EXPECT_FALSE(vuota.Chiusa);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Nessuna delle righe selezionate ha una nota.");
  for (const std::size_t riga : {3U, 4U}) elenco.Seleziona(riga, true);
  AssegnaDescrizione form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.Text1 + "/" + std::to_string(form.Selezionate) + std::to_string(form.ConNota), "DUE/21");
  form.Text1 = "SPIGOLO";
  form.Conferma();
  EXPECT_TRUE(form.Chiusa);
  EXPECT_EQ(elenco.Riga(2), "1|100|1.5|UNO|");
  EXPECT_EQ(elenco.Riga(3), "2|101|1|2|3|4|SPIGOLO|");
  EXPECT_NE(banco.sessione.Libretto.find("|SPIGOLO|\r\n"), std::string::npos);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Descrizione cambiata in 1 riga.");
}

} // namespace
} // namespace lirmeto::prova
