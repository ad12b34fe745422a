#include <cli/lancio.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lirmeto::prova {

namespace {

std::vector<char*> Puntatori(std::vector<std::string>& testi) {
  std::vector<char*> puntatori;
  puntatori.reserve(testi.size() + 1);
  for (std::string& testo : testi) puntatori.push_back(testo.data());
  puntatori.push_back(nullptr);
  return puntatori;
}

int Aspetta(pid_t figlio) {
  int stato = 0;
  EXPECT_EQ(::waitpid(figlio, &stato, 0), figlio);
  return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
}

} // namespace

Esito ProvaCli::Lancia(std::vector<std::string> parole) const {
  const auto uscita = cartella.Radice() / "uscita";
  const int canale = ::open(uscita.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  Esito esito = Lancia(std::move(parole), canale);
  ::close(canale);
  esito.uscita = CartellaProvvisoria::Prendi(uscita);
  return esito;
}

Esito ProvaCli::Lancia(std::vector<std::string> parole, std::optional<int> canaleUscita) const {
  const auto errori = cartella.Radice() / "errori";
  parole.insert(parole.begin(),
                {LIRMETO_CLI, "--dischi", (cartella.Radice() / "dischi").string(), "--oggi", "2024-11-21"});
  std::vector<std::string> ambiente = {"HOME=" + (cartella.Radice() / "casa").string(), "PATH=/usr/bin:/bin"};
  posix_spawn_file_actions_t azioni;
  ::posix_spawn_file_actions_init(&azioni);
  if (canaleUscita)
    ::posix_spawn_file_actions_adddup2(&azioni, *canaleUscita, STDOUT_FILENO);
  else
    ::posix_spawn_file_actions_addclose(&azioni, STDOUT_FILENO);
  ::posix_spawn_file_actions_addopen(&azioni, STDERR_FILENO, errori.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  pid_t figlio = 0;
  const int avvio =
      ::posix_spawn(&figlio, LIRMETO_CLI, &azioni, nullptr, Puntatori(parole).data(), Puntatori(ambiente).data());
  ::posix_spawn_file_actions_destroy(&azioni);
  EXPECT_EQ(avvio, 0) << LIRMETO_CLI;
  return {avvio == 0 ? Aspetta(figlio) : -1, "", CartellaProvvisoria::Prendi(errori)};
}

} // namespace lirmeto::prova
