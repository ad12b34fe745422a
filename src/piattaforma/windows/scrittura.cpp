#include <piattaforma/scrittura.h>

#include <piattaforma/file_ospite.h>
#include <piattaforma/windows/win32.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

constexpr DWORD Tutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct FileDiPrima {
  DWORD attributi = 0;
  DWORD nomi = 1; // how many lead to it
  std::uintmax_t byte = 0;
};

// What a file is before it is written; none when nothing is there.
std::optional<FileDiPrima> Prima(const fs::path& file) {
  const Maniglia aperto = ApriFile(file, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION dati{};
  if (!aperto || ::GetFileInformationByHandle(aperto.Dentro(), &dati) == 0) return std::nullopt;
  return FileDiPrima{dati.dwFileAttributes, dati.nNumberOfLinks,
                     std::uintmax_t{dati.nFileSizeHigh} << 32U | dati.nFileSizeLow};
}

// The folder of a file to write, which must be there.
fs::path CartellaDi(const fs::path& file) {
  const auto madre = file.parent_path();
  fs::path cartella = madre.empty() ? L"." : madre;
  if (GenereOspite(cartella) != GenereFile::Cartella) throw Errore(errore::PercorsoNonTrovato);
  return cartella;
}

std::uintmax_t SpazioLibero(const fs::path& cartella) {
  ULARGE_INTEGER liberi{};
  const std::wstring percorso = PercorsoLungo(cartella) + L"\\"; // which a share must end with
  return ::GetDiskFreeSpaceExW(percorso.c_str(), &liberi, nullptr, nullptr) != 0 ? liberi.QuadPart : UINTMAX_MAX;
}

void ScriviTutto(HANDLE file, std::string_view contenuto) {
  constexpr std::size_t pezzo = std::size_t{1} << 24U;
  while (!contenuto.empty()) {
    DWORD scritti = 0;
    const auto quanti = static_cast<DWORD>(std::min(pezzo, contenuto.size()));
    if (::WriteFile(file, contenuto.data(), quanti, &scritti, nullptr) == 0) LanciaUltimo(errore::PercorsoNonTrovato);
    if (scritti == 0) throw Errore(errore::DiscoPieno);
    contenuto.remove_prefix(scritti);
  }
}

// A new file that goes away again unless it is given its place.
class FileProvvisorio {
public:
  explicit FileProvvisorio(fs::path percorso)
      : percorso_(std::move(percorso)), aperto_(ApriFile(percorso_, GENERIC_WRITE, 0, CREATE_NEW)),
        nostro_(static_cast<bool>(aperto_)) {}
  FileProvvisorio(const FileProvvisorio&) = delete;
  FileProvvisorio& operator=(const FileProvvisorio&) = delete;
  ~FileProvvisorio() {
    aperto_.Chiudi();
    if (nostro_) Togli(percorso_);
  }

  [[nodiscard]] bool CE() const { return nostro_; }
  [[nodiscard]] const fs::path& Percorso() const { return percorso_; }

  void Riempi(std::string_view contenuto) {
    ScriviTutto(aperto_.Dentro(), contenuto);
    if (::FlushFileBuffers(aperto_.Dentro()) == 0) LanciaUltimo(errore::PercorsoNonTrovato);
    aperto_.Chiudi();
  }

  void Lascia() { nostro_ = false; }

private:
  fs::path percorso_;
  Maniglia aperto_;
  bool nostro_;
};

// A name in a folder that nothing has, almost surely; who makes the file finds out.
fs::path NomeLibero(const fs::path& cartella, std::wstring inizio) {
  constexpr std::wstring_view lettere = L"abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device caso;
  for (int i = 0; i < 6; ++i) inizio += lettere[caso() % lettere.size()];
  return cartella / inizio;
}

// Who may do what with a file; empty where the system keeps no such list.
std::vector<BYTE> Diritti(const std::wstring& percorso) {
  DWORD lungo = 0;
  ::GetFileSecurityW(percorso.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &lungo);
  std::vector<BYTE> diritti(lungo);
  if (lungo == 0 || ::GetFileSecurityW(percorso.c_str(), DACL_SECURITY_INFORMATION, diritti.data(), lungo, &lungo) == 0)
    return {};
  return diritti;
}

// Whether a new file has what the old one had but its content: who may read it, its attributes, when it was made.
bool CopiaDiritti(const std::wstring& da, const std::wstring& a) {
  std::vector<BYTE> diritti = Diritti(da);
  if (diritti != Diritti(a) &&
      (diritti.empty() || ::SetFileSecurityW(a.c_str(), DACL_SECURITY_INFORMATION, diritti.data()) == 0))
    return false;
  WIN32_FILE_ATTRIBUTE_DATA dati{};
  if (::GetFileAttributesExW(da.c_str(), GetFileExInfoStandard, &dati) == 0) return false;
  const Maniglia nuovo = ApriFile(a, FILE_WRITE_ATTRIBUTES, Tutti, OPEN_EXISTING);
  if (!nuovo || ::SetFileTime(nuovo.Dentro(), &dati.ftCreationTime, nullptr, nullptr) == 0) return false;
  return ::SetFileAttributesW(a.c_str(), dati.dwFileAttributes) != 0;
}

// In one step, also for one that is killed meanwhile; ReplaceFile takes the old one away first.
bool MettiAlPosto(FileProvvisorio& nuovo, const fs::path& file) {
  const std::wstring da = PercorsoLungo(nuovo.Percorso());
  const std::wstring a = PercorsoLungo(file);
  if (EsisteVoce(file) && !CopiaDiritti(a, da)) return false;
  constexpr DWORD come = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (!ConPazienza([&] { return ::MoveFileExW(da.c_str(), a.c_str(), come) != 0; })) return false;
  nuovo.Lascia();
  return true;
}

// The same file under the name that its folder has for it: the new one must not change the spelling.
fs::path ConLaSuaGrafia(const fs::path& file) {
  WIN32_FIND_DATAW voce{};
  const HANDLE ricerca = ::FindFirstFileW(PercorsoLungo(file).c_str(), &voce);
  if (ricerca == INVALID_HANDLE_VALUE) return file;
  ::FindClose(ricerca);
  return file.parent_path() / voce.cFileName;
}

} // namespace

fs::path SeguiCollegamenti(const fs::path& file) {
  const DWORD attributi = ::GetFileAttributesW(PercorsoLungo(file).c_str());
  if (attributi == INVALID_FILE_ATTRIBUTES) return file;
  if ((attributi & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return ConLaSuaGrafia(file);
  const Maniglia aperto = ApriFile(file, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  if (!aperto) {
    if (::GetLastError() == ERROR_CANT_RESOLVE_FILENAME) throw Errore(errore::AccessoAlFile);
    return file; // it leads nowhere yet, and is written through
  }
  std::wstring vero(32768, L'\0');
  vero.resize(::GetFinalPathNameByHandleW(aperto.Dentro(), vero.data(), static_cast<DWORD>(vero.size()), 0));
  return vero.empty() ? file : PercorsoPieno(vero);
}

void ControllaScrittura(const fs::path& file, std::size_t byte) {
  const fs::path cartella = CartellaDi(file);
  const GenereFile genere = GenereOspite(file);
  if (genere == GenereFile::Altro) return;
  std::uintmax_t occupati = 0;
  if (const auto prima = Prima(file)) {
    if ((prima->attributi & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
      throw Errore(errore::AccessoAlFile);
    // Whether this user may, and no other program holds it.
    if (!ApriFile(file, GENERIC_WRITE, Tutti, OPEN_EXISTING)) LanciaUltimo(errore::PercorsoNonTrovato);
    occupati = prima->byte;
  }
  const auto liberi = SpazioLibero(cartella);
  if (liberi < byte && liberi + occupati < byte) throw Errore(errore::DiscoPieno);
}

bool ScriviAccanto(const fs::path& file, std::string_view contenuto, bool /*sicuro*/) {
  const DWORD attributi = ::GetFileAttributesW(PercorsoLungo(file).c_str());
  const bool collegamento = attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (collegamento || GenereOspite(file) == GenereFile::Altro) return false;
  const auto prima = Prima(file);
  if (prima && prima->nomi > 1) return false;
  const fs::path cartella = CartellaDi(file);
  if (SpazioLibero(cartella) < contenuto.size()) return false;
  FileProvvisorio nuovo(NomeLibero(cartella, L".lirmeto."));
  if (!nuovo.CE()) return false;
  nuovo.Riempi(contenuto);
  return MettiAlPosto(nuovo, file);
}

void Riscrivi(const fs::path& file, std::string_view contenuto) {
  const Maniglia aperto = ApriFile(file, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  if (!aperto) LanciaUltimo(errore::PercorsoNonTrovato);
  ScriviTutto(aperto.Dentro(), contenuto);
  if (::GetFileType(aperto.Dentro()) != FILE_TYPE_DISK) return;
  if (::SetEndOfFile(aperto.Dentro()) == 0 || ::FlushFileBuffers(aperto.Dentro()) == 0)
    LanciaUltimo(errore::PercorsoNonTrovato);
}

std::optional<fs::path> CopiaIn(const fs::path& cartella, const fs::path& nome, std::string_view contenuto) {
  FileProvvisorio copia(NomeLibero(cartella, nome.native() + L".copia-"));
  if (!copia.CE()) return std::nullopt;
  try {
    copia.Riempi(contenuto);
  } catch (const Errore&) { // the next place may have room
    return std::nullopt;
  }
  copia.Lascia();
  return copia.Percorso();
}

void Togli(const fs::path& file) {
  ::DeleteFileW(PercorsoLungo(file).c_str());
}

} // namespace lirmeto
