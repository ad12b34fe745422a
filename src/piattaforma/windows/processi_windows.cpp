#include <piattaforma/windows/processi_windows.h>

#include <piattaforma/cartelle_utente.h>
#include <piattaforma/windows/cartelle_note.h>
#include <piattaforma/windows/collegamenti.h>
#include <piattaforma/windows/win32.h>

#include <base/testo.h>

#include <algorithm>
#include <array>
#include <optional>

#include <lmcons.h>
#include <tlhelp32.h>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

std::string NomeUtente() {
  std::array<wchar_t, UNLEN + 1> nome{};
  auto lungo = static_cast<DWORD>(nome.size());
  return ::GetUserNameW(nome.data(), &lungo) != 0 ? Stretto(nome.data()) : std::string();
}

// A folder of the system as the logic says it: by its short name where the long one cannot be said.
std::string Detta(const fs::path& cartella) {
  try {
    return PercorsoDaOspite(cartella);
  } catch (const Errore&) {
    std::array<wchar_t, MAX_PATH> corta{};
    const DWORD lunga = ::GetShortPathNameW(cartella.c_str(), corta.data(), static_cast<DWORD>(corta.size()));
    if (lunga == 0 || lunga >= corta.size()) throw;
    return PercorsoDaOspite(corta.data());
  }
}

fs::path CartellaWindows() {
  std::array<wchar_t, MAX_PATH> cartella{};
  ::GetWindowsDirectoryW(cartella.data(), static_cast<UINT>(cartella.size()));
  return cartella.data();
}

fs::path Provvisoria() {
  if (const auto temp = VariabileAmbiente("temp")) return *temp;
  std::error_code guasto;
  return fs::temp_directory_path(guasto);
}

// A 32-bit system has but one folder of programs.
fs::path Programmi() {
  if (const auto programmi = VariabileAmbiente("ProgramFiles(x86)")) return *programmi;
  return CartellaNota(FOLDERID_ProgramFiles);
}

struct Avviato {
  Maniglia processo;
  DWORD numero;
};

// `cartella` is where it works.
Avviato Lancia(const fs::path& programma, const std::vector<std::string>& argomenti, const fs::path& cartella) {
  std::vector<std::wstring> parole{programma.native()};
  for (const std::string& argomento : argomenti) parole.push_back(Largo(argomento));
  std::wstring riga = RigaDiParole(parole);
  STARTUPINFOW inizio{};
  inizio.cb = sizeof(inizio);
  PROCESS_INFORMATION nato{};
  if (::CreateProcessW(programma.c_str(), riga.data(), nullptr, nullptr, FALSE, 0, nullptr, cartella.c_str(), &inizio,
                       &nato) == 0)
    LanciaUltimo(errore::FileNonTrovato);
  ::CloseHandle(nato.hThread);
  return {Maniglia(nato.hProcess), nato.dwProcessId};
}

// Asks the windows of a program to close and, when it does not end within a second, ends it.
void Interrompi(const Avviato& avviato) {
  constexpr DWORD unSecondo = 1000;
  ::EnumWindows(
      [](HWND finestra, LPARAM cercato) -> BOOL {
        DWORD numero = 0;
        ::GetWindowThreadProcessId(finestra, &numero);
        if (numero == static_cast<DWORD>(cercato)) ::PostMessageW(finestra, WM_CLOSE, 0, 0);
        return TRUE;
      },
      static_cast<LPARAM>(avviato.numero));
  if (::WaitForSingleObject(avviato.processo.Dentro(), unSecondo) == WAIT_OBJECT_0) return;
  ::TerminateProcess(avviato.processo.Dentro(), 1);
  ::WaitForSingleObject(avviato.processo.Dentro(), INFINITE);
}

// The exit code of a program, -1 when it did not come to its own end: then the system gives the fault as its code.
int AttendiFine(const Avviato& avviato, const std::function<bool()>& attende) {
  constexpr DWORD pausa = 10; // milliseconds
  constexpr DWORD guasti = 0xC0000000;
  try {
    while (::WaitForSingleObject(avviato.processo.Dentro(), pausa) != WAIT_OBJECT_0)
      if (!attende()) throw Errore(errore::DialogoAnnullato);
  } catch (...) {
    Interrompi(avviato);
    throw;
  }
  DWORD codice = 0;
  ::GetExitCodeProcess(avviato.processo.Dentro(), &codice);
  return codice >= guasti ? -1 : static_cast<int>(codice);
}

// Whose a process is, as bytes; none where this user may not ask.
std::optional<std::vector<BYTE>> Utente(HANDLE processo) {
  HANDLE preso = nullptr;
  if (::OpenProcessToken(processo, TOKEN_QUERY, &preso) == 0) return std::nullopt;
  const Maniglia gettone(preso);
  DWORD lungo = 0;
  ::GetTokenInformation(gettone.Dentro(), TokenUser, nullptr, 0, &lungo);
  std::vector<BYTE> dati(lungo);
  if (dati.empty() || ::GetTokenInformation(gettone.Dentro(), TokenUser, dati.data(), lungo, &lungo) == 0)
    return std::nullopt;
  return dati;
}

bool StessoUtente(DWORD numero) {
  const Maniglia processo(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, numero));
  if (!processo) return false;
  const auto suo = Utente(processo.Dentro());
  const auto mio = Utente(::GetCurrentProcess());
  if (!suo || !mio) return false;
  return ::EqualSid(reinterpret_cast<const TOKEN_USER*>(suo->data())->User.Sid,
                    reinterpret_cast<const TOKEN_USER*>(mio->data())->User.Sid) != 0;
}

// One word, quoted only where it must be: a backslash counts as one unless a quote follows.
std::wstring Parola(const std::wstring& parola) {
  if (!parola.empty() && parola.find_first_of(L" \t\n\v\"") == parola.npos) return parola;
  std::wstring protetta = L"\"";
  std::size_t barre = 0;
  for (const wchar_t lettera : parola) {
    if (lettera == L'"') protetta.append(barre + 1, L'\\');
    barre = lettera == L'\\' ? barre + 1 : 0;
    protetta += lettera;
  }
  return protetta.append(barre, L'\\') + L'"';
}

} // namespace

std::wstring RigaDiParole(const std::vector<std::wstring>& parole) {
  std::wstring riga;
  for (const std::wstring& parola : parole) {
    if (!riga.empty()) riga += L' ';
    riga += Parola(parola);
  }
  return riga;
}

std::unique_ptr<ProcessiOspite> ProcessiDellaMacchina(DiscoDischi& disco) {
  return std::make_unique<ProcessiWindows>(disco);
}

CartelleDiSistema ProcessiWindows::Cartelle() {
  if (!disco_.Dischi().empty()) return CartelleSottoC(NomeUtente());
  return {Detta(CartellaNota(FOLDERID_Documents)), Detta(CartellaWindows()), Detta(Provvisoria()), Detta(Programmi())};
}

void ProcessiWindows::CreaCartelleDiSistema() {
  if (!disco_.Dischi().empty()) CreaCartelleMancanti(disco_, Cartelle());
}

int ProcessiWindows::AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti,
                                   const std::function<bool()>& attende) {
  const fs::path ospite = TrovaProgramma(disco_, programma);
  return AttendiFine(Lancia(ospite, ParoleDelProgramma(argomenti), ospite.parent_path()), attende);
}

void ProcessiWindows::ApriDocumento(const std::string& percorso) {
  if (!disco_.Esiste(percorso)) throw Errore(errore::FileNonTrovato);
  ApriConLaShell(disco_.PercorsoOspite(percorso), percorso);
}

void ProcessiWindows::Avvia(const std::string& programma) {
  const fs::path eseguibile = TrovaProgramma(disco_, programma);
  (void)Lancia(eseguibile, {}, eseguibile.parent_path());
}

void ProcessiWindows::ApriPagina(const std::string& indirizzo) {
  ApriConLaShell(Largo(AUtf8(indirizzo)), indirizzo);
}

void ProcessiWindows::ApriDocumentoCon(const std::string& programma, const std::string& percorso) {
  const fs::path eseguibile = TrovaProgramma(disco_, programma);
  if (!disco_.Esiste(percorso)) throw Errore(errore::FileNonTrovato);
  const fs::path ospite = disco_.PercorsoOspite(percorso);
  (void)Lancia(eseguibile, {Stretto(ospite.filename().native())}, ospite.parent_path());
}

std::vector<long> ProcessiWindows::Elenca(std::string_view immagine) {
  std::vector<long> processi;
  const Maniglia fotografia(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  PROCESSENTRY32W voce{};
  voce.dwSize = sizeof(voce);
  for (BOOL altro = ::Process32FirstW(fotografia.Dentro(), &voce); altro != 0;
       altro = ::Process32NextW(fotografia.Dentro(), &voce)) {
    const auto nome = DaUtf8(Stretto(voce.szExeFile));
    if (UgualiSenzaCaso(nome, immagine) && StessoUtente(voce.th32ProcessID))
      processi.push_back(static_cast<long>(voce.th32ProcessID));
  }
  std::sort(processi.begin(), processi.end());
  return processi;
}

long ProcessiWindows::QuestoProcesso() const {
  return static_cast<long>(::GetCurrentProcessId());
}

int ProcessiWindows::Termina(long processo) {
  if (processo <= 0) return ERROR_INVALID_PARAMETER;
  const Maniglia aperto(::OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(processo)));
  if (aperto && ::TerminateProcess(aperto.Dentro(), 1) != 0) return 0;
  return static_cast<int>(::GetLastError());
}

void ProcessiWindows::MostraDesktop() {
  SgombraDesktop();
}

void ProcessiWindows::CreaCollegamento(const Collegamento& collegamento) {
  const fs::path programma = TrovaProgramma(disco_, collegamento.programma);
  const fs::path nome = Largo(AUtf8(ComponenteSicuro(AUtf8(collegamento.nome)))) + L".lnk";
  ScriviCollegamento(CartellaDelPosto(collegamento.posto) / nome, programma);
}

} // namespace lirmeto
