#pragma once
// The sides of a parcel in a drawn proposal.

#include <grafica/grafica.h>

#include <string_view>
#include <vector>

namespace lirmeto {

// Of all rings that bear the name, or the name and a plus: those of the updated extract, or of the original one where
// that has none. Empty for a parcel that is in neither.
[[nodiscard]] std::vector<LineaGrafica> ContornoParticella(const Grafica& grafica, std::string_view nome);

} // namespace lirmeto
