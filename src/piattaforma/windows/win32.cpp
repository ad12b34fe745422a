#include <piattaforma/windows/win32.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

constexpr std::wstring_view Lungo = L"\\\\?\\";
constexpr std::wstring_view LungoCondiviso = L"\\\\?\\UNC\\";
// Codes of the system that the compiler's headers lack.
constexpr DWORD ElevazioneRichiesta = 740;
constexpr DWORD QuotaSuperata = 1295;

constexpr std::wstring_view Dispositivo = L"\\\\.\\";

wchar_t MaiuscoloAscii(wchar_t lettera) {
  return lettera >= L'a' && lettera <= L'z' ? static_cast<wchar_t>(lettera - L'a' + L'A') : lettera;
}

} // namespace

std::wstring Largo(std::string_view utf8) {
  const int lungo = static_cast<int>(utf8.size());
  std::wstring largo(utf8.size(), L'\0'); // never more units than bytes
  largo.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), lungo, largo.data(), static_cast<int>(largo.size()))));
  return largo;
}

std::string Stretto(std::wstring_view utf16) {
  constexpr std::size_t perUnita = 3; // bytes at most
  std::string stretto(utf16.size() * perUnita, '\0');
  stretto.resize(static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, utf16.data(),
                                                                static_cast<int>(utf16.size()), stretto.data(),
                                                                static_cast<int>(stretto.size()), nullptr, nullptr)));
  return stretto;
}

fs::path PercorsoPieno(const fs::path& percorso) {
  std::wstring pieno(MAX_PATH, L'\0');
  for (;;) {
    const DWORD lungo = ::GetFullPathNameW(percorso.c_str(), static_cast<DWORD>(pieno.size()), pieno.data(), nullptr);
    if (lungo == 0) LanciaUltimo(errore::PercorsoNonTrovato);
    const bool bastava = lungo < pieno.size();
    pieno.resize(lungo);
    if (bastava) break;
  }
  if (pieno.starts_with(LungoCondiviso)) return L"\\\\" + pieno.substr(LungoCondiviso.size());
  return pieno.starts_with(Lungo) ? pieno.substr(Lungo.size()) : pieno;
}

std::wstring PercorsoLungo(const fs::path& percorso) {
  constexpr std::size_t limite = 248; // that of folders: their names leave room for a short one
  const std::wstring& detto = percorso.native();
  if (detto.size() < limite || detto.starts_with(Lungo) || detto.starts_with(Dispositivo)) return detto;
  const std::wstring pieno = PercorsoPieno(percorso).native();
  return pieno.starts_with(L"\\\\") ? std::wstring(LungoCondiviso) + pieno.substr(2) : std::wstring(Lungo) + pieno;
}

bool NomeDiDispositivo(std::wstring_view nome) {
  constexpr std::array<std::wstring_view, 6> soli = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
  std::wstring base(nome.substr(0, nome.find(L'.')));
  while (base.ends_with(L' ')) base.pop_back();
  std::transform(base.begin(), base.end(), base.begin(), MaiuscoloAscii);
  if (std::find(soli.begin(), soli.end(), base) != soli.end()) return true;
  const bool porta = base.starts_with(L"COM") || base.starts_with(L"LPT");
  return porta && base.size() == 4 && std::wstring_view(L"123456789\u00B9\u00B2\u00B3").find(base[3]) != base.npos;
}

int NumeroDaWin32(DWORD codice, int assente) {
  switch (codice) {
  case ERROR_FILE_NOT_FOUND:
  case ERROR_PATH_NOT_FOUND:
  case ERROR_INVALID_DRIVE:
  case ERROR_BAD_NETPATH:
  case ERROR_BAD_NET_NAME:
  case ERROR_NOT_READY:
    return assente;
  case ERROR_ACCESS_DENIED:
  case ERROR_SHARING_VIOLATION:
  case ERROR_LOCK_VIOLATION:
  case ERROR_WRITE_PROTECT:
  case ERROR_BAD_EXE_FORMAT: // a program, but not one of this system
  case ElevazioneRichiesta:
    return errore::AutorizzazioneNegata;
  case ERROR_DISK_FULL:
  case ERROR_HANDLE_DISK_FULL:
  case ERROR_FILE_TOO_LARGE:
  case QuotaSuperata:
    return errore::DiscoPieno;
  case ERROR_FILENAME_EXCED_RANGE:
  case ERROR_INVALID_NAME:
  case ERROR_BAD_PATHNAME:
    return errore::NomeFileNonValido;
  case ERROR_NOT_ENOUGH_MEMORY:
  case ERROR_OUTOFMEMORY:
    return errore::MemoriaEsaurita;
  default:
    return errore::AccessoAlFile;
  }
}

void LanciaWin32(DWORD codice, int assente) {
  throw Errore(NumeroDaWin32(codice, assente));
}

void LanciaUltimo(int assente) {
  LanciaWin32(::GetLastError(), assente);
}

Maniglia ApriFile(const fs::path& file, DWORD accesso, DWORD condiviso, DWORD come, DWORD opzioni) {
  const std::wstring percorso = PercorsoLungo(file);
  HANDLE aperto = INVALID_HANDLE_VALUE;
  (void)ConPazienza([&] {
    aperto = ::CreateFileW(percorso.c_str(), accesso, condiviso, nullptr, come, opzioni, nullptr);
    return aperto != INVALID_HANDLE_VALUE;
  });
  return Maniglia(aperto);
}

} // namespace lirmeto
