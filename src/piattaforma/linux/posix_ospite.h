#pragma once
// What reading and writing files of the host share.

#include <piattaforma/linux/errori_ospite.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace lirmeto {

// An open file, closed with the object.
class Descrittore {
public:
  explicit Descrittore(int numero) : numero_(numero) {}
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  ~Descrittore() {
    if (numero_ >= 0) ::close(numero_);
  }

  [[nodiscard]] int Numero() const { return numero_; }

  // Another file in its place; the one so far must be none.
  void Prendi(int numero) { numero_ = numero; }

  // Some file systems tell of a full disk only here.
  void Chiudi() {
    const int esito = ::close(numero_);
    numero_ = -1;
    if (esito != 0 && errno != EINTR) LanciaErrno(errno, errore::PercorsoNonTrovato);
  }

private:
  int numero_;
};

// What the host says of a file, links followed; none when nothing is there (errno says why).
inline std::optional<struct stat> Stato(const std::filesystem::path& file) {
  struct stat stato {};
  if (::stat(file.c_str(), &stato) != 0) return std::nullopt;
  return stato;
}

} // namespace lirmeto
