#include <proposte/derivazioni.h>

#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

std::vector<std::string> DerivazioniVere(std::string_view modello) {
  std::vector<std::string> vere;
  for (const auto linea : RigheDi(modello))
    if (Parte(linea, '_', 0) != ParteDerivata(linea)) vere.emplace_back(linea);
  return vere;
}

std::vector<std::string> DerivazioniDi(const std::vector<std::string>& linee, std::string_view particella) {
  std::vector<std::string> sue;
  std::ranges::copy_if(linee, std::back_inserter(sue),
                       [particella](const std::string& linea) { return Parte(linea, ' ', 0) == particella; });
  return sue;
}

std::string_view ParteDerivata(std::string_view linea) {
  return Parte(linea, '_', 1);
}

std::string_view NomeDerivata(std::string_view linea) {
  return Taglia(Parte(ParteDerivata(linea), '=', 0));
}

std::string_view DopoUguale(std::string_view linea) {
  const std::size_t uguale = linea.find('=');
  return uguale == std::string_view::npos ? std::string_view{} : Taglia(linea.substr(uguale + 1));
}

std::string_view DopoUltimoUguale(std::string_view linea) {
  const std::size_t uguale = linea.rfind('=');
  return uguale == std::string_view::npos ? std::string_view{} : Taglia(linea.substr(uguale + 1));
}

} // namespace lirmeto
