#include <cli/lancio.h>

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lirmeto::prova {

namespace {

// One record of the municipal table, as wide as the real ones.
std::string Comune(std::string_view sezione, std::string_view codice, std::string_view provincia, std::string nome,
                   std::string_view campo) {
  nome.resize(34, ' ');
  return "@B" + std::string(sezione) + std::string(codice) + std::string(21, ' ') + std::string(provincia) + nome +
         std::string(campo);
}

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

ProvaCli::ProvaCli() {
  cartella.Metti("dischi/c/WINDOWS/Pregeo.ini",
                 "[PREGEO]\r\nDskAPPLexe=C:\r\nDskAPPLada=C:\r\n[DATI "
                 "TECNICO]\r\nnome=ROSSI ADA\r\n"
                 "cognome=ROSSI\r\nnome=ADA\r\nqualifica=GEOMETRA\r\nprovincia=PADOVA\r\n"
                 "numero=3127\r\ncodc=RSSDAA80A41G224X\r\n");
  cartella.Metti("dischi/c/pregeo/exe/pregeo.exe", "");
  cartella.Metti("dischi/c/pregeo/exe/prosigle", "PD,PADOVA\r\nFC,FORL\xCC-CESENA\r\n");
  cartella.Metti("dischi/c/pregeo/arch/comunt.dat", "testata" + Comune(" ", "G224", "PD", "PADOVA", "D3AA") +
                                                        Comune("B", "A001", "PD", "ABANO TERME", "D3AB") +
                                                        Comune(" ", "D704", "FC", "FORL\xCC", "E1AA"));
  cartella.Metti("casa/x", "");
  cartella.Metti("fuori/x", "");
}

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
