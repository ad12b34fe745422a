#pragma once
// The points of a drawing by their names.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lirmeto {

struct PuntoGrafica;

// The first point of each name. The names stay in the points: the index holds numbers of points only, and names that
// differ in their last digit alone stand beside one another in it, as they do in the files. A drawing of a million
// points is so gone through in step with the memory, and what chains of equal hashes cost has a limit.
class IndiceNomi {
public:
  // Takes in the last of the points, unless its name is there.
  void Aggiungi(const std::vector<PuntoGrafica>& punti);
  [[nodiscard]] std::optional<std::size_t> Primo(const std::vector<PuntoGrafica>& punti, std::string_view nome) const;
  void Svuota();
  void Riserva(const std::vector<PuntoGrafica>& punti, std::size_t quanti);

private:
  // A point of a chain, with its name's hash, so that most other names are told apart without a look at them.
  struct Maglia {
    std::uint32_t impronta = 0;
    std::uint32_t numero = 0; // of the point, from 1; 0 ends the chain
  };
  // Where a name's chain begins.
  struct Posto {
    std::uint32_t impronta = 0;
    std::size_t indice = 0;
  };

  [[nodiscard]] Posto PostoDi(std::string_view nome) const;
  [[nodiscard]] std::uint32_t Cerca(const std::vector<PuntoGrafica>& punti, std::string_view nome,
                                    const Posto& posto) const;
  void Prendi(const std::vector<PuntoGrafica>& punti, std::uint32_t numero);
  void Allarga(const std::vector<PuntoGrafica>& punti, std::size_t posti);

  std::vector<Maglia> prima_; // by place; as many as a power of two, or none yet
  std::vector<Maglia> poi_;   // by point: what comes behind it in its chain
};

} // namespace lirmeto
