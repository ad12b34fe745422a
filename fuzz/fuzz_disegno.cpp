// Any bytes as a drawing; the first byte tells the kind: "E" an .EMP, "C" a .CSV, "S" a .SUR, "P" an act in .PDF,
// anything else a libretto. What loads goes out in every way.

#include "pretendi.h"

#include <base/errore.h>
#include <base/testo.h>
#include <grafica/esportazioni.h>
#include <grafica/grafica.h>
#include <sostituti/banco.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

using namespace lirmeto;
using lirmeto::prova::Banco;

namespace {

std::string NomeDi(char genere) {
  switch (genere) {
  case 'E':
    return "C:\\D.EMP";
  case 'C':
    return "C:\\D.CSV";
  case 'S':
    return "C:\\D.SUR";
  case 'P':
    return "C:\\D.PDF";
  default:
    return "C:\\D.DAT";
  }
}

bool Carica(Grafica& grafica, const std::string& percorso) {
  try {
    grafica.CaricaDisegno(percorso);
    return true;
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::DivisionePerZero || errore.Numero() == errore::IndiceFuoriIntervallo,
             "a drawing is refused for a parcel without points or without a name");
    return false;
  }
}

void ProvaArchivio(const ArchivioGrafica& archivio) {
  for (const LineaGrafica& linea : archivio.Linee())
    Pretendi(std::isfinite(linea.X1) && std::isfinite(linea.Y2), "what is read is finite");
  for (const PuntoGrafica& punto : archivio.Punti()) {
    const auto primo = archivio.PrimoDiNome(punto.Nome);
    Pretendi(primo && &archivio.Punti()[*primo] <= &punto, "the first point of a name is found");
  }
}

// The entities and nothing else: each begins with its " 0", a name cannot end a line.
void ProvaDxf(const ArchivioGrafica& archivio) {
  const std::string dxf = TestoDXF(archivio, true);
  const auto righe = Dividi(dxf, FineRiga);
  const auto quante = std::count(righe.begin(), righe.end(), "PUNTI_N");
  Pretendi(quante >= static_cast<std::ptrdiff_t>(archivio.Punti().size()), "every name goes out");
  Pretendi(righe.size() % 2 == 1 && dxf.ends_with("EOF\r\n"), "codes and values come in pairs");
}

void ProvaPagina(const DisegnoCondiviso& disegno) {
  const std::string pagina = TestoPagina(disegno.archivio, disegno.vista);
  Pretendi(pagina.find("</script") == pagina.rfind("</script") && !Contiene(pagina, "<!--"), "no name ends the script");
}

void ProvaOrdini(const DisegnoCondiviso& disegno) {
  const std::string ordini = TestoOrdiniStampa(disegno.archivio, disegno.vista);
  const auto righe = static_cast<std::size_t>(std::count(ordini.begin(), ordini.end(), '\n'));
  Pretendi(righe >= disegno.archivio.Linee().size() + 2 * disegno.archivio.Punti().size(), "every line and point goes");
}

// A number that is too large for its paper ends the export, and nothing else does.
template <class Prova>
void Oppure6(Prova prova) {
  try {
    prova();
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::Overflow, "an export ends only for a number that is not finite");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  if (quanti == 0) return 0;
  const std::string_view byte(reinterpret_cast<const char*>(dati), quanti);
  Banco banco;
  DisegnoCondiviso disegno;
  Grafica grafica(banco.ambiente, disegno);
  const std::string percorso = NomeDi(byte.front());
  banco.disco.Metti(percorso, std::string(byte.substr(1)));
  if (!Carica(grafica, percorso)) return 0;
  ProvaArchivio(disegno.archivio);
  grafica.Vista().Check1 = true;
  if (byte.front() != 'C' && !Carica(grafica, percorso)) return 0;
  if (!disegno.archivio.Punti().empty()) Oppure6([&] { ProvaDxf(disegno.archivio); });
  Oppure6([&] { ProvaPagina(disegno); });
  Oppure6([&] { ProvaOrdini(disegno); });
  Oppure6([&] { (void)grafica.KR_CopiaInFile(); });
  return 0;
}
