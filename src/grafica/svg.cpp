#include <grafica/svg.h>

#include <base/dialoghi.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <grafica/archivio_grafica.h>
#include <grafica/pittura.h>

namespace lirmeto {

namespace {

// A hundredth of a pixel is more than any printer shows.
std::string Pixel(double valore) {
  return Formatta(valore, "#########0.0#");
}

std::string Colore(const TintaClassica& tinta) {
  const auto numero = [](std::uint8_t parte) { return TestoIntero(parte); };
  return "rgb(" + numero(tinta.rosso) + "," + numero(tinta.verde) + "," + numero(tinta.blu) + ")";
}

// A text between tags or quotes; control characters, which XML cannot hold, become blanks.
std::string Protetto(std::string_view testo) {
  std::string protetto;
  for (const char lettera : testo) {
    if (lettera == '&')
      protetto += "&amp;";
    else if (lettera == '<')
      protetto += "&lt;";
    else if (lettera == '"')
      protetto += "&quot;";
    else
      protetto += static_cast<unsigned char>(lettera) < ' ' ? ' ' : lettera;
  }
  return AUtf8(protetto);
}

class Scrittore {
public:
  Scrittore(const OpScala& scala, int larga, int alta)
      : visibile_{0, 0, static_cast<double>(larga), static_cast<double>(alta)},
        pixelMetro_(alta / (scala.alto - scala.basso)) {
    const std::string misure = "\"" + TestoIntero(larga) + "\" height=\"" + TestoIntero(alta) + "\"";
    svg_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" "
           "width=" +
           misure + " viewBox=\"0 0 " + TestoIntero(larga) + " " + TestoIntero(alta) + "\">\n<title>" +
           Protetto(TitoloProgramma) + "</title>\n<rect width=" + misure + " fill=\"" + Colore(pittura::Fondo) +
           "\"/>\n<g fill=\"none\">\n";
  }

  void Linea(const OpLinea& linea) {
    constexpr double bordo = 64; // more than any width
    const auto tratto =
        pittura::Ritaglia({X(linea.x1), Y(linea.y1), X(linea.x2), Y(linea.y2), 0}, visibile_.Allargato(bordo));
    if (!tratto) return;
    svg_ += "<path d=\"M" + Pixel(tratto->x1) + " " + Pixel(tratto->y1) + "L" + Pixel(tratto->x2) + " " +
            Pixel(tratto->y2) + "\" stroke=\"" + Colore(Tinta(linea.colore)) + "\" stroke-width=\"" +
            Pixel(pittura::Larghezza(linea)) + "\"" + Tratteggio(linea, tratto->saltati) + "/>\n";
  }

  void Cerchio(const OpCerchio& cerchio) {
    const double raggio = cerchio.raggio * pixelMetro_;
    if (!visibile_.Allargato(raggio + 1).Contiene(X(cerchio.x), Y(cerchio.y))) return;
    svg_ += "<circle cx=\"" + Pixel(X(cerchio.x)) + "\" cy=\"" + Pixel(Y(cerchio.y)) + "\" r=\"" + Pixel(raggio) +
            "\" stroke=\"" + Colore(Tinta(cerchio.colore)) + "\"/>\n";
  }

  // The position is the upper left corner: the base line lies below it by what letters of such a face rise.
  void Testo(const OpTesto& testo) {
    constexpr double ascesa = 0.83; // of the height
    constexpr double decimiPerGrado = 10;
    const double pixel = pittura::PixelTesto(testo.dimensione, 1);
    if (!pittura::SiVede(testo, X(testo.x), Y(testo.y), pixel, visibile_)) return;
    const std::string giro =
        testo.decimi == 0 ? std::string() : " rotate(" + Pixel(-testo.decimi / decimiPerGrado) + ")";
    svg_ += "<text xml:space=\"preserve\" transform=\"translate(" + Pixel(X(testo.x)) + "," + Pixel(Y(testo.y)) + ")" +
            giro + "\" y=\"" + Pixel(ascesa * pixel) + "\" font-family=\"" +
            Protetto(testo.font.empty() ? FontPredefinito : testo.font) + ", monospace\" font-size=\"" + Pixel(pixel) +
            "\" fill=\"" + Colore(Tinta(testo.colore)) + "\">" + Protetto(testo.testo) + "</text>\n";
  }

  [[nodiscard]] std::string Chiuso() && { return std::move(svg_) + "</g>\n</svg>\n"; }

private:
  [[nodiscard]] double X(double metri) const { return visibile_.destra / 2 + metri * pixelMetro_; }
  [[nodiscard]] double Y(double metri) const { return visibile_.basso / 2 - metri * pixelMetro_; }

  // Dashes begin where the whole line does, though its beginning be out of sight.
  [[nodiscard]] static std::string Tratteggio(const OpLinea& linea, double saltati) {
    if (linea.stile != stile::Tratteggiato && linea.stile != stile::Punteggiato) return " stroke-linecap=\"square\"";
    const auto& parti = linea.stile == stile::Tratteggiato ? pittura::Tratteggio : pittura::Punteggio;
    const double larga = pittura::Larghezza(linea);
    return " stroke-dasharray=\"" + Pixel(parti[0] * larga) + " " + Pixel(parti[1] * larga) +
           "\" stroke-dashoffset=\"" + Pixel(saltati) + "\"";
  }

  pittura::Rettangolo visibile_;
  double pixelMetro_;
  std::string svg_;
};

} // namespace

std::string DisegnoSvg(const Operazioni& lista, int larga, int alta) {
  Scrittore scrittore(lista.scala, larga, alta);
  for (const OpLinea& linea : lista.linee) scrittore.Linea(linea);
  for (const OpCerchio& cerchio : lista.cerchi) scrittore.Cerchio(cerchio);
  for (const OpTesto& testo : lista.testi) scrittore.Testo(testo);
  return std::move(scrittore).Chiuso();
}

} // namespace lirmeto
