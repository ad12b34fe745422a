// A program killed at any moment while it writes leaves the old content or the new one, whole.

#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/disco_dischi.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

// LIRMETO_UCCISIONI=200 for a longer trial.
int Quante() {
  const char* detto = std::getenv("LIRMETO_UCCISIONI");
  return detto != nullptr ? std::max(1, std::atoi(detto)) : 20;
}

const std::array<std::string, 2> Contenuti = {std::string(4'000'000, 'a'), std::string(1'500'000, 'b')};

bool Intero(const fs::path& file) {
  const std::string letto = CartellaProvvisoria::Prendi(file);
  return std::find(Contenuti.begin(), Contenuti.end(), letto) != Contenuti.end();
}

// Another process that writes one content after the other until it is killed.
void UccidiMentreScrive(DiscoDischi& disco, int microsecondi) {
  const pid_t figlio = ::fork();
  if (figlio == 0)
    for (std::size_t volta = 1;; ++volta) disco.Scrivi("C:\\x.dat", Contenuti[volta % 2]);
  ASSERT_GT(figlio, 0);
  ::usleep(static_cast<useconds_t>(microsecondi));
  ::kill(figlio, SIGKILL);
  ASSERT_EQ(::waitpid(figlio, nullptr, 0), figlio);
}

class Uccisioni : public testing::TestWithParam<bool> {};

TEST_P(Uccisioni, IlVecchioOIlNuovoCEIntero) {
  const bool dueNomi = GetParam(); // a file of two names is written in place: then the copy beside it counts too
  const CartellaProvvisoria cartella;
  DiscoDischi disco(cartella.Radice());
  const fs::path file = cartella.Metti("c/x.dat", Contenuti[0]);
  if (dueNomi) fs::create_hard_link(file, cartella.Radice() / "altro.dat");
  std::mt19937 caso(20261121);
  std::uniform_int_distribution<int> attesa(0, 30'000);
  int aMeta = 0;
  for (int volta = 0; volta < Quante(); ++volta) {
    UccidiMentreScrive(disco, attesa(caso));
    bool ceIntero = Intero(file);
    if (!ceIntero) ++aMeta;
    for (const fs::path& altro : fs::directory_iterator(file.parent_path())) {
      if (altro == file) continue;
      ceIntero = ceIntero || (dueNomi && altro.filename().string().starts_with("x.dat.copia-") && Intero(altro));
      fs::remove(altro);
    }
    ASSERT_TRUE(ceIntero) << "kill number " << volta;
    if (dueNomi) cartella.Metti("c/x.dat", Contenuti[0]);
  }
  if (!dueNomi) {
    EXPECT_EQ(aMeta, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(AccantoESulPosto, Uccisioni, testing::Bool());

} // namespace
} // namespace lirmeto::prova
