#include <piattaforma/file_ospite.h>
#include <piattaforma/linux/errori_ospite.h>
#include <piattaforma/linux/posix_ospite.h>
#include <piattaforma/orologi.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// Small enough for the cache of the processor: bytes go from there to their place, so that memory is touched once only.
constexpr std::size_t Pezzo = 256UL * 1024;

// A pipe or a device is refused before it is opened: opening alone could wait for ever.
void PretendiRegolare(const fs::path& file) {
  const auto stato = Stato(file);
  if (!stato) LanciaErrno(errno, errore::FileNonTrovato);
  if (!S_ISREG(stato->st_mode)) throw Errore(errore::AccessoAlFile);
}

std::size_t LeggiPezzo(int file, char* dove, std::size_t quanti) {
  for (;;) {
    const ssize_t letti = ::read(file, dove, quanti);
    if (letti >= 0) return static_cast<std::size_t>(letti);
    if (errno != EINTR) LanciaErrno(errno, errore::FileNonTrovato);
  }
}

} // namespace

std::string LeggiFileOspite(const fs::path& file, std::size_t massimo) {
  PretendiRegolare(file);
  const Descrittore aperto(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (aperto.Numero() < 0) LanciaErrno(errno, errore::FileNonTrovato);
  std::string testo;
  if (const auto stato = Stato(file)) testo.reserve(std::min(massimo, static_cast<std::size_t>(stato->st_size)));
  std::array<char, Pezzo> pezzo; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the read
  while (testo.size() < massimo) {
    const std::size_t letti = LeggiPezzo(aperto.Numero(), pezzo.data(), std::min(Pezzo, massimo - testo.size()));
    if (letti == 0) break;
    testo.append(pezzo.data(), letti);
  }
  return testo;
}

GenereFile GenereOspite(const fs::path& file) {
  const auto stato = Stato(file);
  if (!stato) return GenereFile::Niente;
  if (S_ISREG(stato->st_mode)) return GenereFile::Regolare;
  return S_ISDIR(stato->st_mode) ? GenereFile::Cartella : GenereFile::Altro;
}

bool EsisteVoce(const fs::path& voce) {
  struct stat stato {};
  return ::lstat(voce.c_str(), &stato) == 0;
}

Istante ModificatoOspite(const fs::path& file) {
  const auto stato = Stato(file);
  if (!stato) LanciaErrno(errno, errore::FileNonTrovato);
  return IstanteLocale(stato->st_mtime);
}

void CreaCartellaOspite(const fs::path& cartella) {
  if (::mkdir(cartella.c_str(), 0777) != 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
}

void EliminaOspite(const fs::path& file) {
  if (const auto stato = Stato(file)) {
    const bool protetto = (stato->st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    if (S_ISDIR(stato->st_mode) || protetto) throw Errore(errore::AccessoAlFile);
  }
  if (::unlink(file.c_str()) != 0) LanciaErrno(errno, errore::FileNonTrovato);
}

std::vector<std::string> FileDellaCartella(const fs::path& cartella) {
  std::vector<std::string> nomi;
  std::error_code guasto;
  fs::directory_iterator voce(cartella, guasto);
  if (guasto == std::errc::permission_denied) throw Errore(errore::AutorizzazioneNegata);
  for (const fs::directory_iterator fine; !guasto && voce != fine; voce.increment(guasto)) {
    std::error_code ignorato; // an entry that goes away meanwhile is no file
    if (voce->is_regular_file(ignorato)) nomi.push_back(voce->path().filename().string());
  }
  return nomi;
}

} // namespace lirmeto
