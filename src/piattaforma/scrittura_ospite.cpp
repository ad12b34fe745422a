// Writing whole files of the host so that the old content or the new one is there at any moment.

#include <piattaforma/cartelle_utente.h>
#include <piattaforma/errori_ospite.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/posix_ospite.h>

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

// How a file is written:
//
//   beside                         a new file in the same folder, which takes the old one's place when it is whole; it
//                                  takes its owner, rights and attributes first
//   in place, with a copy kept     where that is not possible: a file with several names, a folder where nothing may be
//                                  made, an owner or rights that cannot be given on, no room for both, a file that is a
//                                  mount of its own. The copy lies beside the file, else in the user's data folder
//                                  (lirmeto/copie), and goes when the new content is known good; after a fault the old
//                                  content is put back, and if that fails too the error names the copy.
//   straight                       a pipe or a device
//   a link                         is followed; what it leads to is written, there or not
//   a file that may not be written is refused, though another could be put in its place

namespace {

namespace fs = std::filesystem;

std::uintmax_t SpazioLibero(const fs::path& cartella) {
  struct statvfs spazio {};
  // A file system that does not count its blocks says nothing about its room.
  if (::statvfs(cartella.c_str(), &spazio) != 0 || spazio.f_blocks == 0) return UINTMAX_MAX;
  return std::uintmax_t{::geteuid() == 0 ? spazio.f_bfree : spazio.f_bavail} * spazio.f_frsize;
}

// What can be told before anything is touched.
void ControllaScrittura(const fs::path& file, const fs::path& cartella, std::size_t byte) {
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

  void Riempi(std::string_view contenuto) {
    ScriviTutto(Numero(), contenuto);
    if (::fsync(Numero()) != 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
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

// Whether the file was written beside and put in its place; false where that is not possible, and then nothing happened.
bool ScriviAccanto(const fs::path& file, const fs::path& cartella, std::string_view contenuto) {
  const auto vecchio = Stato(file);
  if (vecchio && (!S_ISREG(vecchio->st_mode) || vecchio->st_nlink > 1)) return false;
  if (SpazioLibero(cartella) < contenuto.size()) return false;
  FileProvvisorio nuovo(cartella);
  if (nuovo.Numero() < 0) return false;
  if (vecchio ? !CopiaDiritti(file, *vecchio, nuovo.Numero()) : ::fchmod(nuovo.Numero(), PermessiNuovi()) != 0)
    return false;
  nuovo.Riempi(contenuto);
  return nuovo.MettiAlPostoDi(file);
}

// From the first byte to the last; what the file had more of goes at the end.
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

// A whole copy under a name that nothing has; none where it cannot be made.
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

fs::path TieniCopia(const fs::path& file, const fs::path& cartella, std::string_view contenuto) {
  if (const auto accanto = CopiaIn(cartella, file.filename(), contenuto)) return *accanto;
  const fs::path copie = CartellaDati() / "lirmeto" / "copie";
  std::error_code guasto;
  fs::create_directories(copie, guasto);
  if (const auto altrove = CopiaIn(copie, file.filename(), contenuto)) return *altrove;
  std::string perche = "Nessun posto per la copia del vecchio contenuto: il file ";
  perche += "non è stato toccato"_w;
  throw Errore(errore::DiscoPieno, perche);
}

bool Rimesso(const fs::path& file, std::string_view contenuto) {
  try {
    Riscrivi(file, contenuto);
    return true;
  } catch (const Errore&) {
    return false;
  }
}

Errore ConCopia(const Errore& errore, const fs::path& copia) {
  std::string perche = errore.Descrizione();
  perche += "; il vecchio contenuto è conservato in "_w;
  return {errore.Numero(), perche + DaUtf8(copia.string())};
}

void ScriviSulPosto(const fs::path& file, const fs::path& cartella, std::string_view contenuto) {
  const auto vecchio = Stato(file);
  if (!vecchio || !S_ISREG(vecchio->st_mode)) return Riscrivi(file, contenuto);
  const std::string prima = LeggiFileOspite(file);
  const fs::path copia = TieniCopia(file, cartella, prima);
  try {
    Riscrivi(file, contenuto);
  } catch (const Errore& errore) {
    if (!Rimesso(file, prima)) throw ConCopia(errore, copia);
    ::unlink(copia.c_str());
    throw;
  }
  ::unlink(copia.c_str());
}

// The file that a chain of links leads to, there or not.
fs::path Seguito(fs::path file) {
  constexpr int massimo = 40; // as the host itself
  std::error_code guasto;
  for (int passi = 0; fs::is_symlink(fs::symlink_status(file, guasto)); ++passi) {
    if (passi == massimo) throw Errore(errore::AccessoAlFile);
    file = file.parent_path() / fs::read_symlink(file, guasto);
  }
  return file;
}

} // namespace

void ScriviFileOspite(const fs::path& file, std::string_view contenuto) {
  // The links of a pipe or a device lead to no path.
  const auto stato = Stato(file);
  const fs::path vero = stato && !S_ISREG(stato->st_mode) ? file : Seguito(file);
  const fs::path cartella = CartellaDi(vero);
  ControllaScrittura(vero, cartella, contenuto.size());
  if (!ScriviAccanto(vero, cartella, contenuto)) ScriviSulPosto(vero, cartella, contenuto);
}

} // namespace lirmeto
