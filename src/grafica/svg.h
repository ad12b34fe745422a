#pragma once
// A drawing as a page of scalable vector graphics.

#include <grafica/operazioni.h>

#include <string>

namespace lirmeto {

// SVG 1.1 in UTF-8, `larga` by `alta` pixels of 1/96 inch, text kept as text. What lies wholly outside is left out.
[[nodiscard]] std::string DisegnoSvg(const Operazioni& lista, int larga, int alta);

} // namespace lirmeto
