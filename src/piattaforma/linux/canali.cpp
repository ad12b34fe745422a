#include <piattaforma/canali.h>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace lirmeto {

std::vector<std::string> ParoleRicevute(int quante, char** parole) {
  return {parole + (quante > 0 ? 1 : 0), parole + quante};
}

// A standard stream that came closed would lend its number to the next file opened, and messages would go into that
// file. Each is opened the wrong way round, so that using it fails as it should.
void PreparaCanali() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  for (const int canale : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(canale, F_GETFD) == -1)
      static_cast<void>(::open("/dev/null", canale == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

bool Terminale(std::FILE* canale) {
  return ::isatty(::fileno(canale)) != 0;
}

} // namespace lirmeto
