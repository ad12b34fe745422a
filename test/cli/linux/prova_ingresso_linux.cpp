// What is not as it should be, where the system has pipes, devices and rights.

#include <cli/lancio.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lirmeto::prova {

namespace {

constexpr std::string_view Minimo = "0|22062018|18|G224|0010|12|ADA|G|PD|\r\n9|0|10|20|0|V|TM|S|\r\n";

} // namespace

TEST_F(ProvaCli, TubiEDispositiviNonSiLeggonoE3) {
  const std::string tubo = (cartella.Radice() / "fuori/tubo").string();
  ASSERT_EQ(::mkfifo(tubo.c_str(), 0666), 0);
  for (const std::string& file : {std::string("/dev/zero"), tubo})
    for (const char* comando : {"righe", "intestazione", "salva", "riordina"}) {
      const auto esito = Lancia({comando, file});
      EXPECT_EQ(esito.codice, 3) << file;
      EXPECT_EQ(esito.errori, "[Lirmeto] " + file + " non \xC3\xA8 un file che si possa leggere.\n");
    }
  if (::geteuid() == 0) return; // nothing is forbidden to root
  const std::string chiuso = Metti("chiuso.dat", Minimo);
  ::chmod(chiuso.c_str(), 0);
  EXPECT_EQ(Lancia({"righe", chiuso}).codice, 3);
}

TEST_F(ProvaCli, UnDispositivoPienoE1) {
  const auto esito = Lancia({"salva", Metti("a.dat", Minimo), "-o", "/dev/full"});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_EQ(esito.errori.find("[Rilevato errore] Si \xC3\xA8 verificato questo errore : 61\n"), 0U) << esito.errori;
}

TEST_F(ProvaCli, UscitaStandardPienaChiusaOSenzaLettore) {
  // More than a pipe holds, so that a reader that went away is noticed in the middle too.
  const std::string file = Metti("a.dat", std::string(Minimo) + "2|" + std::string(300000, 'x') + "|\r\n");
  const std::string messaggio = "[Lirmeto] Impossibile scrivere sull'uscita standard.\n";
  int tubo[2];
  ASSERT_EQ(::pipe2(tubo, O_CLOEXEC), 0);
  ::close(tubo[0]);
  const int pieno = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
  for (const auto canale : {std::optional<int>(tubo[1]), std::optional<int>(pieno), std::optional<int>()}) {
    const auto esito = Lancia({"salva", file}, canale);
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, messaggio);
  }
  ::close(tubo[1]);
  ::close(pieno);
}

} // namespace lirmeto::prova
