#pragma once
// Paints a drawing into a PNG without a display and without the windows' toolkit.

#include <grafica/operazioni.h>

#include <string>

namespace lirmeto {

// The bytes of a picture of that many pixels, with the colours, widths and text sizes of the window at 100%. Throws
// Errore 7 when there is no memory for it.
[[nodiscard]] std::string DisegnoPng(const Operazioni& lista, int larga, int alta);

} // namespace lirmeto
