#include <piattaforma/errori_ospite.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/posix_ospite.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lirmeto {

namespace {

// Small enough for the cache of the processor: bytes go from there to their place, so that memory is touched once only.
constexpr std::size_t Pezzo = 256UL * 1024;

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

} // namespace lirmeto
