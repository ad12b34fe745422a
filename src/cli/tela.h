#pragma once
// A picture that is painted on and handed over as a PNG file, by what each system has for it. Places in pixels, y downwards.

#include <grafica/pittura.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace lirmeto {

struct Penna {
  TintaClassica tinta;
  double larga = 1;
  std::array<double, 2> tratti{}; // pixels of a dash and of the gap behind it; zeros: a line without gaps
  double saltati = 0;             // pixels of the first dash, and what follows it, that are not painted

  [[nodiscard]] bool Continua() const { return tratti[0] == 0; }
};

struct Segmento {
  double x1, y1, x2, y2;
};

// Upper left corner of a text, and its turn around it: radians, clockwise.
struct PostoTesto {
  double x, y, giro;
};

struct CarattereTela {
  std::string famiglia; // UTF-8; one that is not there is replaced
  double pixel;
  TintaClassica tinta;
};

class Tela {
public:
  // Error 7: no room for it.
  Tela(int larga, int alta, const TintaClassica& fondo);
  Tela(const Tela&) = delete;
  Tela& operator=(const Tela&) = delete;
  ~Tela();

  // Ends of lines without gaps stand over by half their width.
  void Linea(const Segmento& segmento, const Penna& penna);
  void Cerchio(double x, double y, double raggio, const Penna& penna);
  void Testo(const std::string& utf8, const PostoTesto& posto, const CarattereTela& carattere);

  [[nodiscard]] std::string Png();

private:
  struct Dentro;
  std::unique_ptr<Dentro> dentro_;
};

} // namespace lirmeto
