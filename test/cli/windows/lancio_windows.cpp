#include <cli/lancio.h>

#include <piattaforma/windows/processi_windows.h>
#include <piattaforma/windows/win32.h>

namespace lirmeto::prova {

namespace {

// A file that a program started from here can write.
Maniglia ApriUscita(const std::filesystem::path& file) {
  SECURITY_ATTRIBUTES ereditato{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  return Maniglia(::CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &ereditato, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
}

int Aspetta(HANDLE processo) {
  DWORD codice = 0;
  ::WaitForSingleObject(processo, INFINITE);
  ::GetExitCodeProcess(processo, &codice);
  return static_cast<int>(codice);
}

} // namespace

Esito ProvaCli::Lancia(std::vector<std::string> parole) const {
  parole.insert(parole.begin(),
                {LIRMETO_CLI, "--dischi", (cartella.Radice() / "dischi").string(), "--oggi", "2024-11-21"});
  std::vector<std::wstring> larghe;
  for (const std::string& parola : parole) larghe.push_back(Largo(parola));
  std::wstring riga = RigaDiParole(larghe);
  Maniglia uscita = ApriUscita(cartella.Radice() / "uscita");
  Maniglia errori = ApriUscita(cartella.Radice() / "errori");
  STARTUPINFOW inizio{};
  inizio.cb = sizeof(inizio);
  inizio.dwFlags = STARTF_USESTDHANDLES;
  inizio.hStdOutput = uscita.Dentro();
  inizio.hStdError = errori.Dentro();
  PROCESS_INFORMATION nato{};
  const BOOL avviato = ::CreateProcessW(larghe.front().c_str(), riga.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        nullptr, &inizio, &nato);
  EXPECT_NE(avviato, 0) << LIRMETO_CLI;
  if (avviato == 0) return {};
  const Maniglia filo(nato.hThread);
  const Maniglia processo(nato.hProcess);
  const int codice = Aspetta(processo.Dentro());
  uscita.Chiudi();
  errori.Chiudi();
  return {codice, CartellaProvvisoria::Prendi(cartella.Radice() / "uscita"),
          CartellaProvvisoria::Prendi(cartella.Radice() / "errori")};
}

} // namespace lirmeto::prova
