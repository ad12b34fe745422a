#include <generazione/tipologia.h>

#include <base/testo.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

constexpr std::string_view Urbano = "|ENTE URBANO |";
constexpr std::string_view Rurale = "|FABB RURALE |";

struct Regola {
  std::string_view codici; // blanks around each
  bool (*ammette)(std::string_view riga);
};

constexpr std::array<Regola, 6> Regole = {{
    {" 01 02 06 27 43 44 45 91 ", [](std::string_view) { return true; }},
    {" 03 04 05 09 10 15 24 42 46 ", [](std::string_view riga) { return Contiene(riga, Urbano); }},
    {" 07 08 ", [](std::string_view riga) { return !Contiene(riga, Rurale) && !Contiene(riga, Urbano); }},
    {" 22 ", [](std::string_view riga) { return Contiene(riga, "|FR DIV SUB  |"); }},
    {" 41 ", [](std::string_view riga) { return Contiene(riga, Rurale); }},
    {" 48 ", [](std::string_view riga) { return !Contiene(riga, Urbano); }},
}};

} // namespace

bool MappaleAmmesso(std::string_view tipologia, std::string_view riga) {
  const std::string codice = " " + std::string(tipologia) + " ";
  const auto* regola =
      std::find_if(Regole.begin(), Regole.end(), [&](const Regola& una) { return Contiene(una.codici, codice); });
  return regola != Regole.end() && !tipologia.empty() && regola->ammette(riga);
}

} // namespace lirmeto
