#include <cli/esegui.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// A standard stream that came closed would lend its number to the next file opened, and messages would go into that
// file. Each is opened the wrong way round, so that using it fails as it should.
void OccupaCanali() {
  for (const int canale : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(canale, F_GETFD) == -1)
      static_cast<void>(::open("/dev/null", canale == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

} // namespace

int main(int quanti, char** parole) {
  // A reader that goes away, or a file that may not grow, is an error to tell and not a death.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  OccupaCanali();
  try {
    return lirmeto::Esegui(std::vector<std::string>(parole + (quanti > 0 ? 1 : 0), parole + quanti), {stdout, stderr});
  } catch (const std::exception& difetto) {
    std::fprintf(stderr, "[Lirmeto] %s\n", difetto.what());
    return 1;
  }
}
