#pragma once
// The working table of a split or a separation.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

enum class ColoreCella { Bianco, Giallo, Rosso };

// Row 0 is the header, row 1 the original parcel, row 2 the suppressed one, the derived ones follow. A row or column that
// does not exist is error 9.
class GrigliaProposta {
public:
  enum Colonna : std::size_t { Operazione, Particella, Area, RA, RD, PropAree, SrSn, Fissa, NomeProposta };
  static constexpr std::size_t Colonne = 9;
  static constexpr std::size_t Originale = 1;
  static constexpr std::size_t Soppressa = 2;
  static constexpr std::size_t PrimaDerivata = 3;

  GrigliaProposta();

  [[nodiscard]] std::size_t Righe() const { return righe_.size(); }
  // Drops the rows behind these, or adds blank ones.
  void Righe(std::size_t quante) { righe_.resize(quante); }

  [[nodiscard]] const std::string& Cella(std::size_t riga, Colonna colonna) const;
  void Metti(std::size_t riga, Colonna colonna, std::string_view testo);
  [[nodiscard]] double ValoreCella(std::size_t riga, Colonna colonna) const;

  [[nodiscard]] ColoreCella Colore(std::size_t riga, Colonna colonna) const;
  void Dipingi(std::size_t riga, Colonna colonna, ColoreCella colore);

  // Sum of a column over the derived rows; with `soloFisse` over those marked "FISSA".
  [[nodiscard]] double Somma(Colonna colonna, bool soloFisse = false) const;
  [[nodiscard]] bool EFissa(std::size_t riga) const { return Cella(riga, Fissa) == TestoFissa; }

  static constexpr std::string_view TestoFissa = "FISSA";

private:
  struct Riga {
    std::array<std::string, Colonne> celle;
    std::array<ColoreCella, Colonne> colori{};
  };

  [[nodiscard]] const Riga& Controlla(std::size_t riga, std::size_t colonna) const;

  std::vector<Riga> righe_;
};

} // namespace lirmeto
