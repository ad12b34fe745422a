#pragma once
// What the toolbar and the context menu of the drawing offer, for the window to show.

#include <span>
#include <string_view>

namespace lirmeto {

struct VoceGrafica {
  int indice = 0;         // of Grafica::Toolbar or Grafica::mnuZoom1
  std::string_view icona; // name of its file, without extension
  std::string_view didascalia;
  std::string_view spiegazione;
};

[[nodiscard]] std::span<const VoceGrafica> VociToolbar();
[[nodiscard]] std::span<const VoceGrafica> VociMnuZoom1();

} // namespace lirmeto
