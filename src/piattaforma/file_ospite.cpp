#include <piattaforma/errori_ospite.h>
#include <piattaforma/file_ospite.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace lirmeto {

namespace {

// Small enough for the cache of the processor: bytes go from there to their place, so that memory is touched once only.
constexpr std::size_t Pezzo = 256UL * 1024;

class Descrittore {
public:
  explicit Descrittore(int numero) : numero_(numero) {}
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  ~Descrittore() {
    if (numero_ >= 0) ::close(numero_);
  }

  [[nodiscard]] int Numero() const { return numero_; }

  // Some file systems tell of a full disk only here.
  void Chiudi() {
    const int esito = ::close(numero_);
    numero_ = -1;
    if (esito != 0 && errno != EINTR) LanciaErrno(errno, errore::PercorsoNonTrovato);
  }

private:
  int numero_;
};

std::optional<struct stat> Stato(const std::filesystem::path& file) {
  struct stat stato {};
  if (::stat(file.c_str(), &stato) != 0) return std::nullopt;
  return stato;
}

// A pipe or a device is refused before it is opened: opening alone could wait for ever.
void PretendiRegolare(const std::filesystem::path& file) {
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

std::uintmax_t SpazioLibero(const std::filesystem::path& cartella) {
  struct statvfs spazio {};
  // A file system that does not count its blocks says nothing about its room.
  if (::statvfs(cartella.c_str(), &spazio) != 0 || spazio.f_blocks == 0) return UINTMAX_MAX;
  return std::uintmax_t{::geteuid() == 0 ? spazio.f_bfree : spazio.f_bavail} * spazio.f_frsize;
}

std::uintmax_t LimiteFile() {
  struct rlimit limite {};
  if (::getrlimit(RLIMIT_FSIZE, &limite) != 0 || limite.rlim_cur == RLIM_INFINITY) return UINTMAX_MAX;
  return limite.rlim_cur;
}

// What can be told before the old content is lost.
void ControllaScrittura(const std::filesystem::path& file, const std::filesystem::path& cartella, std::size_t byte) {
  std::uintmax_t occupati = 0;
  if (const auto vecchio = Stato(file)) {
    if (S_ISDIR(vecchio->st_mode)) throw Errore(errore::AccessoAlFile);
    if ((vecchio->st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) throw Errore(errore::AccessoAlFile);
    if (!S_ISREG(vecchio->st_mode)) return;
    occupati = static_cast<std::uintmax_t>(vecchio->st_blocks) * 512;
  }
  if (byte > LimiteFile()) throw Errore(errore::DiscoPieno);
  const auto liberi = SpazioLibero(cartella);
  if (liberi < byte && liberi + occupati < byte) throw Errore(errore::DiscoPieno);
}

void ScriviTutto(int file, std::string_view contenuto) {
  while (!contenuto.empty()) {
    const ssize_t scritti = ::write(file, contenuto.data(), contenuto.size());
    if (scritti > 0)
      contenuto.remove_prefix(static_cast<std::size_t>(scritti));
    else if (scritti == 0)
      throw Errore(errore::DiscoPieno);
    else if (errno != EINTR)
      LanciaErrno(errno, errore::PercorsoNonTrovato);
  }
}

// The folder of a file to write, which must be there.
std::filesystem::path CartellaDi(const std::filesystem::path& file) {
  const auto madre = file.parent_path();
  std::filesystem::path cartella = madre.empty() ? "." : madre;
  const auto stato = Stato(cartella);
  if (!stato) LanciaErrno(errno, errore::PercorsoNonTrovato);
  if (!S_ISDIR(stato->st_mode)) throw Errore(errore::PercorsoNonTrovato);
  return cartella;
}

// A new file that goes away again unless it is given its place.
class FileProvvisorio {
public:
  explicit FileProvvisorio(const std::filesystem::path& cartella)
      : percorso_((cartella / ".lirmeto.XXXXXX").string()), aperto_(::mkostemp(percorso_.data(), O_CLOEXEC)) {
    if (aperto_.Numero() < 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
  }
  FileProvvisorio(const FileProvvisorio&) = delete;
  FileProvvisorio& operator=(const FileProvvisorio&) = delete;
  ~FileProvvisorio() {
    if (!percorso_.empty()) ::unlink(percorso_.c_str());
  }

  void Riempi(std::string_view contenuto, mode_t permessi) {
    ScriviTutto(aperto_.Numero(), contenuto);
    if (::fchmod(aperto_.Numero(), permessi) != 0 || ::fsync(aperto_.Numero()) != 0)
      LanciaErrno(errno, errore::PercorsoNonTrovato);
    aperto_.Chiudi();
  }

  void MettiAlPostoDi(const std::filesystem::path& file) {
    if (::rename(percorso_.c_str(), file.c_str()) != 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
    percorso_.clear();
  }

private:
  std::string percorso_;
  Descrittore aperto_;
};

// Permissions of a file that takes the place of this one: its own, else those of any new file.
mode_t PermessiPer(const std::filesystem::path& file) {
  if (const auto vecchio = Stato(file)) return vecchio->st_mode & 07777U;
  const mode_t maschera = ::umask(0);
  ::umask(maschera);
  return 0666U & ~maschera;
}

} // namespace

std::string LeggiFileOspite(const std::filesystem::path& file, std::size_t massimo) {
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

void ScriviFileOspite(const std::filesystem::path& file, std::string_view contenuto) {
  ControllaScrittura(file, CartellaDi(file), contenuto.size());
  Descrittore aperto(::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (aperto.Numero() < 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
  ScriviTutto(aperto.Numero(), contenuto);
  aperto.Chiudi();
}

void RimpiazzaFileOspite(const std::filesystem::path& file, std::string_view contenuto) {
  const auto cartella = CartellaDi(file);
  ControllaScrittura(file, cartella, contenuto.size());
  FileProvvisorio nuovo(cartella);
  nuovo.Riempi(contenuto, PermessiPer(file));
  nuovo.MettiAlPostoDi(file);
}

} // namespace lirmeto
