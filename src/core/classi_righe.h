#pragma once
// The rows of a libretto told apart by class, and joined again in Pregeo's order.

#include <base/dialoghi.h>
#include <core/lista_righe.h>

#include <array>
#include <cstdint>
#include <string>

namespace lirmeto {

// In the order in which they are joined.
enum class ClasseRighe : std::uint8_t {
  Zero,       // rows 0
  Nove,       // rows 9
  Commento,   // comment block
  Appunti,    // notes, "6| -"
  Poligonali, // traverses
  Gps,        // GPS block
  Stazioni,   // stations and sightings
  Allineate,  // rows 4 and 5
  Contorni,   // contours and the comments before them
  Relazione,  // Relazione Tecnica
  Coordinate, // coordinates and fiducial points
  Censuario,  // Modello Censuario
  Proposta,   // update proposal
  Nessuna     // rows 6 of no class, which are not joined
};

class RigheInClassi {
public:
  [[nodiscard]] ListaRighe& operator[](ClasseRighe classe) { return liste_[static_cast<std::size_t>(classe)]; }
  [[nodiscard]] const ListaRighe& operator[](ClasseRighe classe) const {
    return liste_[static_cast<std::size_t>(classe)];
  }

private:
  std::array<ListaRighe, static_cast<std::size_t>(ClasseRighe::Nessuna) + 1> liste_;
};

// The rows of a libretto, stations and GPS block sorted. Long work tells how far it is.
[[nodiscard]] RigheInClassi DividiInClassi(const std::string& libretto, Dialoghi& dialoghi);

// Whether the census rows are as many as their count rows tell.
[[nodiscard]] bool CensuarioIntero(const RigheInClassi& righe);

// The census rows as the province of Gorizia wants them.
void AdattaCensuarioGo(RigheInClassi& righe);

// The classes one behind the other, rows at CR LF; of equal rows behind one another the first stays.
[[nodiscard]] std::string UnisciClassi(const RigheInClassi& righe);

} // namespace lirmeto
