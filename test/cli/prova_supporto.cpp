#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>

namespace lirmeto::prova {

TEST_F(ProvaCli, CodiceFiscaleCorrettoOErrato) {
  EXPECT_EQ(Lancia({"codice-fiscale", "mrtmtt91d08f205j"}).uscita, "CORRETTO\n");
  const auto errato = Lancia({"codice-fiscale", "MRTMTT91D08F205\xC3\xA0"});
  EXPECT_EQ(errato.uscita + errato.errori, "ERRATO\n");
  EXPECT_EQ(errato.codice, 0);
}

// What goes well is compared with the programs of others in archivi.py.
TEST_F(ProvaCli, ZipCheNonRiesceLasciaTuttoComEra) {
  const std::string archivio = Metti("a.zip", "vecchio");
  const std::string uno = Metti("uno.dat", "1");
  const std::string dove = (cartella.Radice() / "fuori/dove").string();
  const struct {
    std::vector<std::string> parole;
    int codice;
    std::string errore;
  } casi[] = {
      {{"zip", "crea", archivio, uno, uno}, 1, "errore : 457"},
      {{"zip", "crea", archivio, uno, Metti("altra/UNO.dat", "2")}, 1, "stesso nome: UNO.dat"},
      {{"zip", "crea", archivio, uno, uno + "manca"}, 3, "non esiste"},
      {{"zip", "crea", archivio}, 2, "ARCHIVIO FILE"},
      {{"zip", "estrai", archivio, dove}, 1, "incompleto"},
  };
  for (const auto& [parole, codice, errore] : casi) {
    const auto esito = Lancia(parole);
    EXPECT_EQ(esito.codice, codice) << errore;
    EXPECT_NE(esito.errori.find(errore), std::string::npos) << esito.errori;
  }
  EXPECT_EQ(CartellaProvvisoria::Prendi(archivio), "vecchio");
  EXPECT_FALSE(std::filesystem::exists(dove));
}

} // namespace lirmeto::prova
