// Any bytes as comunt.dat, prosigle, collegi.txt and qualita.txt.

#include "pretendi.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/tabelle.h>

#include <cstdint>

using namespace lirmeto;

namespace {

// The table of a reader that may refuse a text that is too long.
template <class Lettore>
auto LeggiOppureVuota(Lettore lettore, std::string_view testo) -> decltype(lettore(testo)) {
  try {
    return lettore(testo);
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::IndiceFuoriIntervallo, "a table refuses only what is too long");
    return {};
  }
}

bool Tagliato(std::string_view testo) {
  return Taglia(testo) == testo;
}

void ProvaComuni(std::string_view byte) {
  const auto comuni = LeggiComuni(byte);
  Pretendi(comuni.size() + 1 == std::max<std::size_t>(1, Dividi(byte, "@B").size()), "a record for each mark");
  for (const Comune& comune : comuni) {
    Pretendi(comune.codice.size() <= 5 && comune.nome.size() <= 34, "columns hold what they hold");
    Pretendi(comune.provincia.size() <= 2 && comune.campo.size() <= 4, "narrow columns hold what they hold");
    Pretendi(Tagliato(comune.codice) && Tagliato(comune.nome), "codes and names are trimmed");
    const Comune* trovato = TrovaComune(comuni, comune.codice);
    Pretendi(trovato != nullptr && trovato <= &comune, "the first of a code is found");
  }
}

void ProvaCoppie(const std::vector<CodiceENome>& coppie, std::size_t massimo) {
  Pretendi(coppie.size() <= massimo, "a table has its limit");
  for (const auto& [codice, nome] : coppie)
    Pretendi(!Contiene(codice + nome, ",") && Tagliato(codice) && Tagliato(nome), "values end at commas, trimmed");
}

void ProvaQualita(std::string_view testo) {
  const auto tabella = LeggiOppureVuota(LeggiQualita, testo);
  Pretendi(tabella.size() <= MassimoQualita, "the quality table has its limit");
  for (const auto& voce : tabella) {
    Pretendi(voce.size() == 18 && voce.substr(3, 3) == "   ", "a quality is code, blanks, name");
    Pretendi(QualitaDaNome(tabella, voce).size() <= 5, "a quality's code is short");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string_view byte(reinterpret_cast<const char*>(dati), quanti);
  ProvaComuni(byte);
  const std::string testo = ConFineRiga(byte);
  ProvaCoppie(LeggiOppureVuota(LeggiProvince, testo), MassimoProvince);
  ProvaCoppie(LeggiOppureVuota(LeggiCollegi, testo), MassimoCollegi);
  ProvaQualita(testo);
  return 0;
}
