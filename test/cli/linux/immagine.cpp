#include <cli/immagine.h>

#include <cairo.h>

#include <cstring>
#include <memory>
#include <string_view>

namespace lirmeto::prova {

Immagine ImmagineDaPng(const std::string& png) {
  std::string_view resto = png;
  const auto leggi = [](void* da, unsigned char* dove, unsigned quanti) {
    auto& byte = *static_cast<std::string_view*>(da);
    if (byte.size() < quanti) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(dove, byte.data(), quanti);
    byte.remove_prefix(quanti);
    return CAIRO_STATUS_SUCCESS;
  };
  const std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> tela(
      cairo_image_surface_create_from_png_stream(leggi, &resto), cairo_surface_destroy);
  Immagine immagine{cairo_image_surface_get_width(tela.get()), {}};
  for (int y = 0; y < cairo_image_surface_get_height(tela.get()); ++y)
    for (int x = 0; x < immagine.larga; ++x) {
      std::uint32_t tinta = 0;
      const auto posto = static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(tela.get()) + x * 4L;
      std::memcpy(&tinta, cairo_image_surface_get_data(tela.get()) + posto, 4);
      immagine.tinte.push_back(tinta & 0xFFFFFF);
    }
  return immagine;
}

} // namespace lirmeto::prova
