// Any bytes as PREGEO.INI: read, written back, read again.

#include "pretendi.h"

#include <base/testo.h>
#include <core/sessione.h>
#include <pregeo/pregeo_ini.h>

#include <algorithm>
#include <array>
#include <cstdint>

using namespace lirmeto;

namespace {

// Keys that are written back, in lower case.
constexpr std::array<std::string_view, 7> ChiaviScritte = {
    "numero=", "codc=", "nome=", "qualifica=", "provincia=", "sigla prov.", "file_distanzetaf"};

bool HaChiave(const std::string& riga) {
  const std::string basso = Minuscolo(riga);
  return std::any_of(ChiaviScritte.begin(), ChiaviScritte.end(),
                     [&](std::string_view chiave) { return Contiene(basso, chiave); });
}

// Whether keys stand where keys belong: a value that holds one makes its line
// another at the next write.
bool Ordinate(const std::vector<std::string>& righe) {
  return std::all_of(righe.begin(), righe.end(), [](const std::string& riga) {
    return QuanteParti(riga, '=') <= 2 && !HaChiave("=" + std::string(Parte(riga, '=', 1)));
  });
}

Sessione Letta(std::vector<std::string> righe) {
  Sessione sessione;
  sessione.RighePregeoIni = std::move(righe);
  sessione.Province = {{"PD", "PADOVA"}, {"GO", "GORIZIA"}};
  SistemaDatiPregeoIni(sessione);
  return sessione;
}

void ProvaRigheCambiate(const std::vector<std::string>& prima, const std::vector<std::string>& dopo) {
  Pretendi(prima.size() == dopo.size(), "no line comes or goes");
  for (std::size_t i = 0; i < prima.size(); ++i) {
    Pretendi(prima[i] == dopo[i] || HaChiave(prima[i]), "lines of other keys pass unchanged");
    Pretendi(Parte(prima[i], '=', 0) == Parte(dopo[i], '=', 0), "a key is never changed");
    Pretendi(Contiene(prima[i], "=") || prima[i] == dopo[i], "a line without a value gets none");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string testo = ConFineRiga(std::string_view(reinterpret_cast<const char*>(dati), quanti));
  const auto righe = Dividi(testo, FineRiga);
  const std::vector<std::string> prima(righe.begin(), righe.end());
  Sessione sessione = Letta(prima);
  Pretendi(sessione.Tecnico == sessione.Cognome + " " + sessione.Nome, "the surveyor is surname and name");
  ScriviDatiPregeoIni(sessione);
  ProvaRigheCambiate(prima, sessione.RighePregeoIni);
  const auto scritte = sessione.RighePregeoIni;
  if (!Ordinate(prima) || !Ordinate(scritte)) return 0;
  ScriviDatiPregeoIni(sessione);
  Pretendi(sessione.RighePregeoIni == scritte, "writing the same values twice changes nothing");
  return 0;
}
