#include <grafica/esportazioni.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <array>
#include <cmath>

namespace lirmeto {

namespace {

constexpr std::array<std::string_view, 8> Testa = {
    "<!DOCTYPE HTML>",
    "<html>",
    "  <body>",
    "  <canvas id=\"myCanvas\" width=\"1000\" height=\"1000\"style=\"border:2px solid #c3c3c3;\"></canvas>",
    "    <script>",
    "      var canvas = document.getElementById('myCanvas');",
    "      var context = canvas.getContext('2d');",
    "    context.strokeStyle = \"red\";"};
constexpr std::array<std::string_view, 3> Coda = {"   </script>", " </body>", "</html>"};

// Map to canvas, pixels.
class Tela {
public:
  explicit Tela(const VistaGrafica& vista)
      : xc_(vista.Xc), yc_(vista.Yc), scala_(std::trunc(Lato / (vista.Zoom > 0 ? vista.Zoom : ZoomSenzaVista))) {}

  [[nodiscard]] std::string X(double x) const { return Testo((x - xc_) * scala_ + Lato / 2); }
  [[nodiscard]] std::string Y(double y) const { return Testo((y - yc_) * scala_ * -1 + Lato / 2); }

private:
  static std::string Testo(double pixel) { return Formatta(pixel, "##########0.000"); }

  static constexpr double Lato = 1000;
  static constexpr double ZoomSenzaVista = 640; // what a view without height gets at its first paint
  double xc_;
  double yc_;
  double scala_;
};

// A text inside '…' of a script: what would end the text, or the script, is escaped.
std::string PerScript(std::string_view testo) {
  std::string uscita;
  for (const char c : testo)
    if (c == '\'' || c == '\\')
      (uscita += '\\') += c;
    else if (c == '<')
      uscita += "\\x3c";
    else if (c == '\r' || c == '\n')
      uscita += c == '\r' ? "\\r" : "\\n";
    else
      uscita += c;
  return uscita;
}

template <class... Parti>
void Riga(std::string& pagina, const Parti&... parti) {
  (pagina.append(parti), ...);
  pagina += FineRiga;
}

void ScriviSegno(std::string& pagina, const PuntoGrafica& punto, const Tela& tela) {
  if (punto.Nome.ends_with('T') || punto.Nome.starts_with(' ')) return;
  Riga(pagina, "context.beginPath();");
  Riga(pagina, "context.arc(", tela.X(punto.X), ",", tela.Y(punto.Y), ",2, 0, 2*Math.PI, false);");
  Riga(pagina, "context.fillStyle = '#333';");
  Riga(pagina, "context.fill();");
}

void ScriviLinea(std::string& pagina, const LineaGrafica& linea, const Tela& tela) {
  Riga(pagina, "      context.moveTo(", tela.X(linea.X1), ", ", tela.Y(linea.Y1), ");");
  Riga(pagina, "      context.lineTo(", tela.X(linea.X2), ", ", tela.Y(linea.Y2), ");");
  Riga(pagina, " context.lineWidth  = ", TestoIntero(linea.Spessore), ";");
  Riga(pagina, "    context.strokeStyle = \"", linea.Colore == colore::RossoChiaro ? "red" : "black", "\";");
  if (linea.Stile == stile::Tratteggiato) Riga(pagina, "context.setLineDash([5]);");
  if (linea.Stile == stile::Punteggiato) Riga(pagina, "context.setLineDash([2]);");
  Riga(pagina, "     context.stroke();");
  Riga(pagina, "     context.beginPath();");
}

void ScriviNome(std::string& pagina, const PuntoGrafica& punto, const Tela& tela) {
  if (Taglia(punto.Nome).empty()) return;
  Riga(pagina, "context.fillText('", PerScript(punto.Nome), "',", tela.X(punto.X), ",", tela.Y(punto.Y), ");");
}

} // namespace

std::string TestoPagina(const ArchivioGrafica& archivio, const VistaGrafica& vista) {
  constexpr std::size_t bytePunto = 250;
  constexpr std::size_t byteLinea = 280;
  const Tela tela(vista);
  std::string pagina;
  pagina.reserve(archivio.Punti().size() * bytePunto + archivio.Linee().size() * byteLinea);
  for (const auto riga : Testa) Riga(pagina, riga);
  Riga(pagina, "    context.strokeStyle = \"green\";");
  for (const PuntoGrafica& punto : archivio.Punti()) ScriviSegno(pagina, punto, tela);
  for (const LineaGrafica& linea : archivio.Linee()) ScriviLinea(pagina, linea, tela);
  Riga(pagina, "context.font = '14px Courier New';");
  Riga(pagina, "context.fillStyle = 'red';");
  for (const PuntoGrafica& punto : archivio.Punti()) ScriviNome(pagina, punto, tela);
  for (const auto riga : Coda) Riga(pagina, riga);
  return pagina;
}

} // namespace lirmeto
