// Any bytes as an act in .PDF: its sections.

#include "pretendi.h"

#include <base/testo.h>
#include <core/apertura.h>

#include <cstdint>

using namespace lirmeto;

namespace {

std::string Sezione(std::string_view numero, const std::vector<std::string>& righe) {
  std::string testo = "[TAG" + std::string(numero) + "]|";
  for (const auto& riga : righe) testo += riga + "<nr>";
  return testo + "[/TAG" + std::string(numero) + "]";
}

std::size_t Lunghezza(const std::vector<std::string>& righe) {
  std::size_t somma = 0;
  for (const auto& riga : righe) somma += riga.size();
  return somma;
}

void ProvaContenuto(const ContenutoPdf& pdf, std::size_t quanti) {
  Pretendi(Lunghezza(pdf.righe1000) + Lunghezza(pdf.righe2000) + Lunghezza(pdf.dati3000) <= quanti,
           "no section gives more than there is");
  for (const auto* righe : {&pdf.righe1000, &pdf.righe2000})
    for (const auto& riga : *righe)
      Pretendi(!Contiene(riga, "<nr>") && !Contiene(riga, "[TAG"), "rows end at their marks");
  Pretendi(pdf.ditta.find_first_of("|\\") == std::string::npos, "bars and backslashes are taken off the owners");
  if (pdf.estratto) Pretendi(*pdf.estratto == Maiuscolo(*pdf.estratto), "the extract is upper case");
}

// The sections written again hold the same rows.
void ProvaRitorno(const ContenutoPdf& pdf) {
  const ContenutoPdf ancora =
      LeggiSezioniPdf("%PDF-1.4\n" + Sezione("1000", pdf.righe1000) + "\n" + Sezione("2000", pdf.righe2000));
  Pretendi(ancora.righe1000 == pdf.righe1000 && ancora.righe2000 == pdf.righe2000, "rows survive a round trip");
  Pretendi(!ancora.estratto, "no extract without its section");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const ContenutoPdf pdf = LeggiSezioniPdf({reinterpret_cast<const char*>(dati), quanti});
  ProvaContenuto(pdf, quanti);
  ProvaRitorno(pdf);
  return 0;
}
