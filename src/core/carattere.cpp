#include <core/carattere.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>

namespace lirmeto {

namespace {

// Whether a value says yes: 0 and False do not.
bool Vero(std::string_view testo) {
  return Valore(testo) != 0 || Contiene(Maiuscolo(testo), "TRUE");
}

std::string TestoVero(bool si) {
  return si ? "-1" : "0";
}

} // namespace

std::optional<Carattere> LeggiCarattere(Ambiente& ambiente, std::string_view percorso) {
  if (!ambiente.disco.Esiste(percorso)) return std::nullopt;
  const std::string testo = Sostituisci(CaricaFileIntero(ambiente, percorso), "\"", "");
  const auto valori = Dividi(Parte(testo, '\r', 0), ",");
  constexpr double minima = 4;
  constexpr double massima = 72;
  if (valori.size() < 4 || Valore(valori[0]) < minima || Valore(valori[0]) > massima) return std::nullopt;
  return Carattere{Valore(valori[0]), std::string(Taglia(valori[1])), Vero(valori[2]), Vero(valori[3])};
}

void ScriviCarattere(Ambiente& ambiente, std::string_view percorso, const Carattere& carattere) {
  ambiente.disco.Scrivi(percorso, TestoPieno(carattere.dimensione) + ",\"" + carattere.nome + "\"," +
                                      TestoVero(carattere.grassetto) + "," + TestoVero(carattere.corsivo) + "\r\n");
}

} // namespace lirmeto
