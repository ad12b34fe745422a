#include <piattaforma/file_ospite.h>

#include <piattaforma/orologi.h>
#include <piattaforma/windows/win32.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// Bytes go from the cache of the processor to their place, so that memory is touched once only.
constexpr std::size_t Pezzo = 256UL * 1024;

constexpr DWORD Tutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

DWORD Attributi(const fs::path& file) {
  return ::GetFileAttributesW(PercorsoLungo(file).c_str());
}

// A file or folder opened only to be asked about, links followed.
Maniglia ApriPerSapere(const fs::path& file) {
  return ApriFile(file, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
}

std::size_t LeggiPezzo(HANDLE file, char* dove, std::size_t quanti) {
  DWORD letti = 0;
  if (::ReadFile(file, dove, static_cast<DWORD>(quanti), &letti, nullptr) == 0) LanciaUltimo(errore::FileNonTrovato);
  return letti;
}

// Links of the system, and files that a cloud keeps, are what they stand for.
DWORD AttributiSeguiti(const fs::path& file) {
  const DWORD propri = Attributi(file);
  if (propri == INVALID_FILE_ATTRIBUTES || (propri & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return propri;
  BY_HANDLE_FILE_INFORMATION dati{};
  const Maniglia aperto = ApriPerSapere(file);
  if (!aperto || ::GetFileInformationByHandle(aperto.Dentro(), &dati) == 0) return INVALID_FILE_ATTRIBUTES;
  return dati.dwFileAttributes;
}

} // namespace

GenereFile GenereOspite(const fs::path& file) {
  if (NomeDiDispositivo(file.filename().native())) return GenereFile::Altro;
  const DWORD attributi = AttributiSeguiti(file);
  if (attributi == INVALID_FILE_ATTRIBUTES) return GenereFile::Niente;
  return (attributi & FILE_ATTRIBUTE_DIRECTORY) != 0 ? GenereFile::Cartella : GenereFile::Regolare;
}

bool EsisteVoce(const fs::path& voce) {
  return Attributi(voce) != INVALID_FILE_ATTRIBUTES;
}

std::string LeggiFileOspite(const fs::path& file, std::size_t massimo) {
  const GenereFile genere = GenereOspite(file);
  if (genere == GenereFile::Cartella || genere == GenereFile::Altro) throw Errore(errore::AccessoAlFile);
  const Maniglia aperto = ApriFile(file, GENERIC_READ, Tutti, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
  if (!aperto) LanciaUltimo(errore::FileNonTrovato);
  LARGE_INTEGER lungo{};
  std::string testo;
  if (::GetFileSizeEx(aperto.Dentro(), &lungo) != 0)
    testo.reserve(std::min(massimo, static_cast<std::size_t>(lungo.QuadPart)));
  std::array<char, Pezzo> pezzo; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the read
  while (testo.size() < massimo) {
    const std::size_t letti = LeggiPezzo(aperto.Dentro(), pezzo.data(), std::min(Pezzo, massimo - testo.size()));
    if (letti == 0) break;
    testo.append(pezzo.data(), letti);
  }
  return testo;
}

Istante ModificatoOspite(const fs::path& file) {
  constexpr std::uint64_t alSecondo = 10'000'000;        // steps of the system's clock
  constexpr std::uint64_t primaDel1970 = 11'644'473'600; // seconds since its beginning
  FILETIME scritto{};
  const Maniglia aperto = ApriPerSapere(file);
  if (!aperto || ::GetFileTime(aperto.Dentro(), nullptr, nullptr, &scritto) == 0) LanciaUltimo(errore::FileNonTrovato);
  const std::uint64_t passi = std::uint64_t{scritto.dwHighDateTime} << 32U | scritto.dwLowDateTime;
  return IstanteLocale(static_cast<std::time_t>(passi / alSecondo - primaDel1970));
}

void CreaCartellaOspite(const fs::path& cartella) {
  if (::CreateDirectoryW(PercorsoLungo(cartella).c_str(), nullptr) == 0) LanciaUltimo(errore::PercorsoNonTrovato);
}

void EliminaOspite(const fs::path& file) {
  const DWORD attributi = Attributi(file);
  if (attributi != INVALID_FILE_ATTRIBUTES && (attributi & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
    throw Errore(errore::AccessoAlFile);
  const std::wstring percorso = PercorsoLungo(file);
  if (!ConPazienza([&] { return ::DeleteFileW(percorso.c_str()) != 0; })) LanciaUltimo(errore::FileNonTrovato);
}

std::vector<std::string> FileDellaCartella(const fs::path& cartella) {
  std::vector<std::string> nomi;
  WIN32_FIND_DATAW voce{};
  const HANDLE ricerca = ::FindFirstFileExW(PercorsoLungo(cartella / L"*").c_str(), FindExInfoBasic, &voce,
                                            FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (ricerca == INVALID_HANDLE_VALUE && ::GetLastError() == ERROR_ACCESS_DENIED)
    throw Errore(errore::AutorizzazioneNegata);
  if (ricerca == INVALID_HANDLE_VALUE) return nomi;
  do {
    const bool collegamento = (voce.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    const bool regolare = collegamento ? GenereOspite(cartella / voce.cFileName) == GenereFile::Regolare
                                       : (voce.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    if (regolare) nomi.push_back(Stretto(voce.cFileName));
  } while (::FindNextFileW(ricerca, &voce) != 0);
  ::FindClose(ricerca);
  return nomi;
}

} // namespace lirmeto
