#pragma once
// Fields of an extract's row, with every index checked.

#include <base/errore.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace lirmeto {

// A row split at its bars: positions from 0, the last being the empty field behind the closing bar. A position that the
// row has not is error 9. The fields are views into the row. One object serves many rows.
class Campi {
public:
  Campi() = default;
  explicit Campi(std::string_view riga) { Dividi(riga); }

  void Dividi(std::string_view riga) {
    campi_.clear();
    if (riga.empty()) return;
    std::size_t inizio = 0;
    for (std::size_t i = 0; i < riga.size(); ++i) {
      if (riga[i] != '|') continue;
      campi_.push_back(riga.substr(inizio, i - inizio));
      inizio = i + 1;
    }
    campi_.push_back(riga.substr(inizio));
  }

  [[nodiscard]] std::size_t Quanti() const { return campi_.size(); }

  [[nodiscard]] std::string_view operator[](std::size_t posizione) const {
    if (posizione >= campi_.size()) throw Errore(errore::IndiceFuoriIntervallo);
    return campi_[posizione];
  }

  // The position so many before the last.
  [[nodiscard]] std::string_view DaUltimo(std::size_t indietro) const {
    if (indietro >= campi_.size()) throw Errore(errore::IndiceFuoriIntervallo);
    return campi_[campi_.size() - 1 - indietro];
  }

private:
  std::vector<std::string_view> campi_;
};

// Place where the position begins, counted from the row's beginning. Fields are a few characters long: a loop is
// quicker than a search. Errore 9 when the row has not so many.
[[nodiscard]] inline std::size_t InizioCampo(std::string_view riga, std::size_t posizione) {
  std::size_t i = 0;
  for (; posizione > 0 && i < riga.size(); ++i)
    if (riga[i] == '|') --posizione;
  if (posizione > 0 || riga.empty()) throw Errore(errore::IndiceFuoriIntervallo);
  return i;
}

// Place where the field begins that is so many before the last.
[[nodiscard]] inline std::size_t InizioCampoDaUltimo(std::string_view riga, std::size_t indietro) {
  if (riga.empty()) throw Errore(errore::IndiceFuoriIntervallo);
  std::size_t i = riga.size();
  for (++indietro; i > 0; --i)
    if (riga[i - 1] == '|' && --indietro == 0) return i;
  if (indietro > 1) throw Errore(errore::IndiceFuoriIntervallo);
  return 0;
}

// The field that begins at a place, up to the next bar.
[[nodiscard]] inline std::string_view CampoDa(std::string_view riga, std::size_t inizio) {
  std::size_t fine = inizio;
  while (fine < riga.size() && riga[fine] != '|') ++fine;
  return riga.substr(inizio, fine - inizio);
}

// One position of a row, without splitting the others.
[[nodiscard]] inline std::string_view Campo(std::string_view riga, std::size_t posizione) {
  return CampoDa(riga, InizioCampo(riga, posizione));
}
[[nodiscard]] inline std::string_view CampoDaUltimo(std::string_view riga, std::size_t indietro) {
  return CampoDa(riga, InizioCampoDaUltimo(riga, indietro));
}

// A row 8 in three: what stands before its identifier, the identifier (position 1), and the rest from the next bar on.
struct RigaPunto {
  std::string_view genere;
  std::string_view identificativo;
  std::string_view resto;
};

// Throws Errore 9 for a row without a position 1.
[[nodiscard]] inline RigaPunto SpezzaPunto(std::string_view riga) {
  const std::size_t inizio = InizioCampo(riga, 1);
  const std::string_view identificativo = CampoDa(riga, inizio);
  return {riga.substr(0, inizio - 1), identificativo, riga.substr(inizio + identificativo.size())};
}

} // namespace lirmeto
