#include <grafica/operazioni.h>

#include <cmath>

namespace lirmeto {

namespace {

// The class that a name gives its point. A name that begins with a blank and ends in "T" is both.
bool Libero(const PuntoGrafica& punto) {
  return punto.Nome.starts_with(' ');
}
bool Toponimo(const PuntoGrafica& punto) {
  return punto.Nome.ends_with('T');
}

// Whole tenths of a degree, toward zero; turns of a circle are the same, so that any angle fits.
int DecimiDiGrado(double gradi) {
  constexpr double giro = 360;
  constexpr double decimi = 10;
  return std::isfinite(gradi) ? static_cast<int>(std::fmod(gradi, giro) * decimi) : 0;
}

class Compositore {
public:
  Compositore(const ArchivioGrafica& archivio, const VistaGrafica& vista) : archivio_(archivio), vista_(vista) {}

  [[nodiscard]] Operazioni Componi() && {
    const double mezza = vista_.Zoom / 2;
    lista_.scala = {-mezza * vista_.Rapporto, mezza, mezza * vista_.Rapporto, -mezza};
    Linee();
    Cerchi();
    Testi();
    return std::move(lista_);
  }

private:
  void Linee() {
    lista_.linee.reserve(archivio_.Linee().size());
    for (const LineaGrafica& linea : archivio_.Linee())
      lista_.linee.push_back({linea.X1 - vista_.Xc, linea.Y1 - vista_.Yc, linea.X2 - vista_.Xc, linea.Y2 - vista_.Yc,
                              linea.Spessore, linea.Colore, linea.Stile});
  }

  [[nodiscard]] bool Dentro(const PuntoGrafica& punto) const {
    return punto.X >= vista_.Xmin && punto.X <= vista_.Xmax && punto.Y >= vista_.Ymin && punto.Y <= vista_.Ymax;
  }

  void Cerchi() {
    constexpr double partiDellaVista = 400; // the radius is this part of the view's height, or of its width
    const double raggio = (vista_.PerLarghezza ? vista_.Larghezza() : vista_.Zoom) / partiDellaVista;
    lista_.cerchi.reserve(archivio_.Punti().size());
    for (const PuntoGrafica& punto : archivio_.Punti())
      if (Dentro(punto) && !Libero(punto) && !Toponimo(punto))
        lista_.cerchi.push_back({punto.X - vista_.Xc, punto.Y - vista_.Yc, raggio, punto.Colore});
  }

  void Testi() {
    lista_.testi.reserve(archivio_.Punti().size());
    if (!vista_.Check3)
      for (const PuntoGrafica& punto : archivio_.Punti())
        if (Toponimo(punto)) Testo(punto, punto.Testo);
    if (!vista_.Check2)
      for (const PuntoGrafica& punto : archivio_.Punti())
        if (!Toponimo(punto) && !Libero(punto)) Testo(punto, punto.Nome);
    for (const PuntoGrafica& punto : archivio_.Punti())
      if (Libero(punto)) Testo(punto, punto.Nome);
  }

  void Testo(const PuntoGrafica& punto, std::string_view testo) {
    lista_.testi.push_back({punto.X - vista_.Xc, punto.Y - vista_.Yc, testo, punto.Font, punto.Dimensione,
                            DecimiDiGrado(punto.Angolo), punto.ColoreNome < 0 ? punto.Colore : punto.ColoreNome});
  }

  const ArchivioGrafica& archivio_;
  const VistaGrafica& vista_;
  Operazioni lista_;
};

} // namespace

Operazioni ComponiOperazioni(const ArchivioGrafica& archivio, const VistaGrafica& vista) {
  return Compositore(archivio, vista).Componi();
}

} // namespace lirmeto
