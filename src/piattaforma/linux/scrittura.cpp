#include <piattaforma/scrittura.h>

#include <piattaforma/linux/errori_ospite.h>
#include <piattaforma/linux/posix_ospite.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <string>
#include <sys/statvfs.h>
#include <sys/xattr.h>
#include <vector>

namespace lirmeto {

namespace {

namespace fs = std::filesystem;

std::uintmax_t SpazioLibero(const fs::path& cartella) {
  struct statvfs spazio {};
  // A file system that does not count its blocks says nothing about its room.
  if (::statvfs(cartella.c_str(), &spazio) != 0 || spazio.f_blocks == 0) return UINTMAX_MAX;
  return std::uintmax_t{::geteuid() == 0 ? spazio.f_bfree : spazio.f_bavail} * spazio.f_frsize;
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
fs::path CartellaDi(const fs::path& file) {
  const auto madre = file.parent_path();
  fs::path cartella = madre.empty() ? "." : madre;
  const auto stato = Stato(cartella);
  if (!stato) LanciaErrno(errno, errore::PercorsoNonTrovato);
  if (!S_ISDIR(stato->st_mode)) throw Errore(errore::PercorsoNonTrovato);
  return cartella;
}

// Permissions of any new file.
mode_t PermessiNuovi() {
  const mode_t maschera = ::umask(0);
  ::umask(maschera);
  return 0666U & ~maschera;
}

// A new file that goes away again unless it is given its place. Where the host can it has no name before that, so that
// nothing stays behind when the program is killed.
class FileProvvisorio {
public:
  explicit FileProvvisorio(const fs::path& cartella)
      : percorso_((cartella / (".lirmeto." + TestoIntero(::getpid()))).string()),
        aperto_(::open(cartella.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600)) {
    if (aperto_.Numero() >= 0) return;
    percorso_ += ".XXXXXX";
    aperto_.Prendi(::mkostemp(percorso_.data(), O_CLOEXEC));
    nominato_ = aperto_.Numero() >= 0;
  }
  FileProvvisorio(const FileProvvisorio&) = delete;
  FileProvvisorio& operator=(const FileProvvisorio&) = delete;
  ~FileProvvisorio() {
    if (nominato_) ::unlink(percorso_.c_str());
  }

  [[nodiscard]] int Numero() const { return aperto_.Numero(); }

  void Riempi(std::string_view contenuto, bool sicuro) {
    ScriviTutto(Numero(), contenuto);
    if (sicuro && ::fsync(Numero()) != 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
  }

  // Whether the host let it.
  [[nodiscard]] bool MettiAlPostoDi(const fs::path& file) {
    if (!nominato_ && !Nomina()) return false;
    if (::rename(percorso_.c_str(), file.c_str()) != 0) return false;
    nominato_ = false;
    aperto_.Chiudi();
    return true;
  }

private:
  bool Nomina() {
    ::unlink(percorso_.c_str()); // left by a program of this number that was killed at the wrong moment
    const std::string voce = "/proc/self/fd/" + TestoIntero(Numero());
    nominato_ = ::linkat(AT_FDCWD, voce.c_str(), AT_FDCWD, percorso_.c_str(), AT_SYMLINK_FOLLOW) == 0;
    return nominato_;
  }

  std::string percorso_;
  Descrittore aperto_;
  bool nominato_ = false;
};

std::vector<std::string> Attributi(const fs::path& file) {
  std::array<char, 65536> nomi; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the host
  const ssize_t lunghi = ::listxattr(file.c_str(), nomi.data(), nomi.size());
  std::vector<std::string> attributi;
  for (std::string_view resto(nomi.data(), lunghi > 0 ? static_cast<std::size_t>(lunghi) : 0); !resto.empty();) {
    attributi.emplace_back(resto.substr(0, resto.find('\0')));
    resto.remove_prefix(attributi.back().size() + 1);
  }
  return attributi;
}

// Whether an attribute of a file, such as a list of who may read it, was given on.
bool CopiaAttributo(const fs::path& da, int a, const std::string& nome) {
  std::array<char, 65536> valore; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the host
  const ssize_t lungo = ::getxattr(da.c_str(), nome.c_str(), valore.data(), valore.size());
  return lungo >= 0 && ::fsetxattr(a, nome.c_str(), valore.data(), static_cast<std::size_t>(lungo), 0) == 0;
}

// Whether a new file has what the old one had but its content.
bool CopiaDiritti(const fs::path& da, const struct stat& vecchio, int a) {
  struct stat nuovo {};
  if (::fstat(a, &nuovo) != 0) return false;
  const bool stesso = nuovo.st_uid == vecchio.st_uid && nuovo.st_gid == vecchio.st_gid;
  if (!stesso && ::fchown(a, vecchio.st_uid, vecchio.st_gid) != 0) return false;
  for (const std::string& nome : Attributi(da))
    if (!CopiaAttributo(da, a, nome)) return false;
  return ::fchmod(a, vecchio.st_mode & 07777U) == 0;
}

} // namespace

fs::path SeguiCollegamenti(const fs::path& file) {
  constexpr int massimo = 40; // as the host itself
  fs::path seguito = file;
  std::error_code guasto;
  for (int passi = 0; fs::is_symlink(fs::symlink_status(seguito, guasto)); ++passi) {
    if (passi == massimo) throw Errore(errore::AccessoAlFile);
    seguito = seguito.parent_path() / fs::read_symlink(seguito, guasto);
  }
  return seguito;
}

void ControllaScrittura(const fs::path& file, std::size_t byte) {
  const fs::path cartella = CartellaDi(file);
  std::uintmax_t occupati = 0;
  if (const auto vecchio = Stato(file)) {
    if (S_ISDIR(vecchio->st_mode)) throw Errore(errore::AccessoAlFile);
    if ((vecchio->st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) throw Errore(errore::AccessoAlFile);
    if (!S_ISREG(vecchio->st_mode)) return;
    if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
    occupati = static_cast<std::uintmax_t>(vecchio->st_blocks) * 512;
  }
  const auto liberi = SpazioLibero(cartella);
  if (liberi < byte && liberi + occupati < byte) throw Errore(errore::DiscoPieno);
}

bool ScriviAccanto(const fs::path& file, std::string_view contenuto, bool sicuro) {
  const auto vecchio = Stato(file);
  if (vecchio && (!S_ISREG(vecchio->st_mode) || vecchio->st_nlink > 1)) return false;
  const fs::path cartella = CartellaDi(file);
  if (SpazioLibero(cartella) < contenuto.size()) return false;
  FileProvvisorio nuovo(cartella);
  if (nuovo.Numero() < 0) return false;
  if (vecchio ? !CopiaDiritti(file, *vecchio, nuovo.Numero()) : ::fchmod(nuovo.Numero(), PermessiNuovi()) != 0)
    return false;
  nuovo.Riempi(contenuto, sicuro || vecchio);
  return nuovo.MettiAlPostoDi(file);
}

void Riscrivi(const fs::path& file, std::string_view contenuto) {
  Descrittore aperto(::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
  if (aperto.Numero() < 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
  ScriviTutto(aperto.Numero(), contenuto);
  struct stat stato {};
  if (::fstat(aperto.Numero(), &stato) == 0 && S_ISREG(stato.st_mode) &&
      (::ftruncate(aperto.Numero(), static_cast<off_t>(contenuto.size())) != 0 || ::fsync(aperto.Numero()) != 0))
    LanciaErrno(errno, errore::PercorsoNonTrovato);
  aperto.Chiudi();
}

std::optional<fs::path> CopiaIn(const fs::path& cartella, const fs::path& nome, std::string_view contenuto) {
  std::string percorso = (cartella / nome).string() + ".copia-XXXXXX";
  const Descrittore aperto(::mkostemp(percorso.data(), O_CLOEXEC));
  if (aperto.Numero() < 0) return std::nullopt;
  try {
    ScriviTutto(aperto.Numero(), contenuto);
    if (::fsync(aperto.Numero()) == 0) return percorso;
  } catch (const Errore&) { // the next place may have room
  }
  ::unlink(percorso.c_str());
  return std::nullopt;
}

void Togli(const fs::path& file) {
  ::unlink(file.c_str());
}

} // namespace lirmeto
