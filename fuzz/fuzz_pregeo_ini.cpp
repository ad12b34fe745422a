// Any bytes as PREGEO.INI and as Catasto1.txt: read, written back, read again.

#include "pretendi.h"

#include <base/testo.h>
#include <core/sessione.h>
#include <pregeo/catasto1_file.h>
#include <pregeo/pregeo_ini.h>
#include <pregeo/pregeo_ini_scrittura.h>

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

void ProvaByte(std::string_view byte) {
  Pretendi(TestoIni(RigheIni(byte), byte) == byte, "lines that did not change give the same bytes");
  const Catasto1 letto = LeggiCatasto1(byte);
  const Catasto1 riletto = LeggiCatasto1(TestoCatasto1(letto, byte));
  Pretendi(letto.zero == riletto.zero && letto.nove == riletto.nove && letto.commento == riletto.commento,
           "the default header is read as it was written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string_view byte(reinterpret_cast<const char*>(dati), quanti);
  ProvaByte(byte);
  const std::string testo = ConFineRiga(byte);
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
