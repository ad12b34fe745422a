#include <piattaforma/canali.h>

#include <piattaforma/windows/win32.h>

#include <fcntl.h>
#include <io.h>

#include <shellapi.h>

namespace lirmeto {

namespace {

// The console speaks UTF-8 as long as the program runs, and what it spoke before afterwards.
class LinguaConsole {
public:
  LinguaConsole() : prima_(::GetConsoleOutputCP()) { ::SetConsoleOutputCP(CP_UTF8); }
  LinguaConsole(const LinguaConsole&) = delete;
  LinguaConsole& operator=(const LinguaConsole&) = delete;
  ~LinguaConsole() {
    if (prima_ != 0) ::SetConsoleOutputCP(prima_);
  }

private:
  UINT prima_; // 0 without a console
};

// Lines are wiped by the usual control sequence.
void ChiediSequenze() {
  const HANDLE console = ::GetStdHandle(STD_ERROR_HANDLE);
  DWORD modo = 0;
  if (::GetConsoleMode(console, &modo) != 0) ::SetConsoleMode(console, modo | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

} // namespace

std::vector<std::string> ParoleRicevute(int /*quante*/, char** /*parole*/) {
  std::vector<std::string> utf8; // those given to main went through the old character set
  int quante = 0;
  wchar_t** parole = ::CommandLineToArgvW(::GetCommandLineW(), &quante);
  for (int i = 1; i < quante; ++i) utf8.push_back(Stretto(parole[i]));
  ::LocalFree(parole);
  return utf8;
}

void PreparaCanali() {
  static const LinguaConsole lingua;
  for (std::FILE* canale : {stdin, stdout, stderr})
    if (::_fileno(canale) >= 0) ::_setmode(::_fileno(canale), _O_BINARY);
  ChiediSequenze();
}

bool Terminale(std::FILE* canale) {
  DWORD modo = 0;
  const int numero = ::_fileno(canale);
  return numero >= 0 && ::GetConsoleMode(reinterpret_cast<HANDLE>(::_get_osfhandle(numero)), &modo) != 0;
}

} // namespace lirmeto
