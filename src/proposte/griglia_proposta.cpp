#include <proposte/griglia_proposta.h>

#include <base/errore.h>
#include <base/numeri.h>

namespace lirmeto {

GrigliaProposta::GrigliaProposta() : righe_(PrimaDerivata) {
  righe_[0].celle = {"Operazione", "Particella", "Area Catast", "RA", "RD", "Prop.Aree", "SR/SN", "Area FISSA", ""};
}

const GrigliaProposta::Riga& GrigliaProposta::Controlla(std::size_t riga, std::size_t colonna) const {
  if (riga >= righe_.size() || colonna >= Colonne) throw Errore(errore::IndiceFuoriIntervallo);
  return righe_[riga];
}

const std::string& GrigliaProposta::Cella(std::size_t riga, Colonna colonna) const {
  return Controlla(riga, colonna).celle[colonna];
}

void GrigliaProposta::Metti(std::size_t riga, Colonna colonna, std::string_view testo) {
  static_cast<void>(Controlla(riga, colonna));
  righe_[riga].celle[colonna] = testo;
}

double GrigliaProposta::ValoreCella(std::size_t riga, Colonna colonna) const {
  return Valore(Cella(riga, colonna));
}

ColoreCella GrigliaProposta::Colore(std::size_t riga, Colonna colonna) const {
  return Controlla(riga, colonna).colori[colonna];
}

void GrigliaProposta::Dipingi(std::size_t riga, Colonna colonna, ColoreCella colore) {
  static_cast<void>(Controlla(riga, colonna));
  righe_[riga].colori[colonna] = colore;
}

double GrigliaProposta::Somma(Colonna colonna, bool soloFisse) const {
  double somma = 0;
  for (std::size_t i = PrimaDerivata; i < righe_.size(); ++i)
    if (!soloFisse || EFissa(i)) somma += ValoreCella(i, colonna);
  return somma;
}

} // namespace lirmeto
