#include <cli/console.h>
#include <cli/opzioni.h>

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace lirmeto::prova {

namespace {

class ProvaConsole : public testing::Test {
protected:
  [[nodiscard]] std::string Detto() const {
    std::rewind(canale.get());
    std::string testo;
    for (int c = std::fgetc(canale.get()); c != EOF; c = std::fgetc(canale.get())) testo += static_cast<char>(c);
    return testo;
  }

  std::unique_ptr<std::FILE, int (*)(std::FILE*)> canale{std::tmpfile(), &std::fclose};
};

} // namespace

TEST_F(ProvaConsole, MessaggiComeTitoloETesto) {
  DialoghiConsole dialoghi(canale.get(), {});
  dialoghi.Messaggio("prima\r\nseconda");
  dialoghi.Messaggio("perch\xE9 \x80", "Citt\xE0", Gravita::Critico);
  EXPECT_EQ(Detto(), "[Lirmeto] prima\nseconda\n[Citt\xC3\xA0] perch\xC3\xA9 \xE2\x82\xAC\n");
}

TEST_F(ProvaConsole, RisposteInOrdineELUltimaResta) {
  DialoghiConsole dialoghi(canale.get(), {Risposta::Annulla, Risposta::Si, Risposta::Annulla});
  EXPECT_EQ(dialoghi.Chiedi("a", "T", Bottoni::SiNoAnnulla), Risposta::Annulla);
  EXPECT_EQ(dialoghi.Chiedi("b", "T", Bottoni::SiNo), Risposta::Si);
  EXPECT_EQ(dialoghi.Chiedi("c", "T", Bottoni::SiNoAnnulla), Risposta::Annulla);
  EXPECT_EQ(dialoghi.Chiedi("d", "T", Bottoni::SiNo), Risposta::No) << "two buttons cannot be cancelled";
  EXPECT_EQ(DialoghiConsole(canale.get(), {}).Chiedi("e", "T", Bottoni::SiNo), Risposta::No);
  EXPECT_EQ(Detto(), "[T] a\n[T] b\n[T] c\n[T] d\n[T] e\n");
}

TEST_F(ProvaConsole, NessunoScegliEUnAnnullamento) {
  DialoghiConsole dialoghi(canale.get(), {Risposta::Si});
  try {
    (void)dialoghi.ScegliFileDaSalvare({});
    FAIL();
  } catch (const Errore& errore) {
    EXPECT_EQ(errore.Numero(), 32755);
  }
  EXPECT_THROW((void)dialoghi.ScegliCarattere({}), Errore);
  dialoghi.Avanzamento("lavoro", 1, 2);
  dialoghi.Avanzamento("vuoto", 0, 0);
  EXPECT_EQ(Detto(), "") << "progress is for terminals only";
}

TEST(ProvaImpostazioniDiUnGiro, TengonoSezioneEChiave) {
  ImpostazioniDiUnGiro impostazioni;
  impostazioni.Scrivi("A", "B", "1");
  impostazioni.Scrivi("A", "B", "2");
  EXPECT_EQ(impostazioni.Leggi("A", "B", "x"), "2");
  EXPECT_EQ(impostazioni.Leggi("B", "A", "x"), "x");
}

TEST(ProvaLeggiData, SoloGiorniDelCalendario) {
  EXPECT_EQ(LeggiData("2024-02-29"), (Data{2024, 2, 29}));
  EXPECT_EQ(LeggiData("0001-12-31"), (Data{1, 12, 31}));
  for (const char* testo :
       {"", "2023-02-29", "2024-13-01", "2024-00-10", "2024-01-00", "2024-1-001", "24-01-01", "2024/01/01",
        "2024-01-1x", "2024-01--1", "-024-01-01", "0000-01-01", "2024-01-01 ", "+024-01-01"})
    EXPECT_FALSE(LeggiData(testo)) << testo;
}

} // namespace lirmeto::prova
