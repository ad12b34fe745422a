#include <core/riga.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <cmath>

namespace lirmeto {

namespace {

bool CampoVertice(std::string_view campo) {
  return !campo.empty() && campo.find_first_of("VRNTCP") == std::string_view::npos && Valore(campo) != 0;
}

int UltimoVerticeDi(const RigaDivisa& divisa) {
  if (divisa.UltimoCampo < 2) return 0;
  int indice = 2;
  while (indice <= divisa.UltimoCampo && CampoVertice(divisa.CampiRiga[static_cast<std::size_t>(indice)])) ++indice;
  return indice - 1;
}

int UltimoCampoDi(const RigaDivisa& divisa) {
  std::size_t indice = 1;
  while (indice < MassimoCampi && !divisa.CampiRiga[indice].empty()) ++indice;
  return static_cast<int>(indice) - 1;
}

void DividiAiBarre(std::string_view riga, RigaDivisa& divisa) {
  for (std::size_t indice = 0; !riga.empty(); ++indice) {
    if (indice == MassimoCampi) throw Errore(errore::IndiceFuoriIntervallo);
    const std::size_t barra = riga.find('|');
    divisa.CampiRiga[indice] = riga.substr(0, barra);
    riga.remove_prefix(barra == std::string_view::npos ? riga.size() : barra + 1);
  }
}

} // namespace

double GenereRiga(std::string_view riga) {
  // Nearly every row begins with one digit and a bar.
  if (riga.size() > 1 && riga[1] == '|' && riga[0] >= '0' && riga[0] <= '9') return riga[0] - '0';
  return Valore(riga);
}

Genere GenereDi(std::string_view riga) {
  constexpr double ultimo = 9;
  const double genere = GenereRiga(riga);
  const bool noto = genere >= 0 && genere <= ultimo && genere == std::floor(genere);
  return noto ? static_cast<Genere>(genere) : Genere::Altro;
}

RigaDivisa SplitRiga(std::string_view riga) {
  RigaDivisa divisa;
  if (Taglia(riga).empty()) return divisa;
  const Genere genere = GenereDi(riga);
  if (genere == Genere::Libera && riga.size() >= LunghezzaRiga6Intera) {
    divisa.CampiRiga[0] = "6";
    divisa.CampiRiga[1] = riga.substr(2);
    return divisa;
  }
  DividiAiBarre(riga, divisa);
  divisa.UltimoCampo = UltimoCampoDi(divisa);
  if (genere == Genere::Contorno) divisa.UltimoVertice = UltimoVerticeDi(divisa);
  return divisa;
}

bool CodiceLinea(std::string_view campo) {
  return campo.size() == 2 && Contiene("NRV", campo.substr(0, 1)) && Contiene("CTP", campo.substr(1));
}

bool RigaGps(std::string_view riga) {
  return Parte(riga, '|', 2).find(',') != std::string_view::npos;
}

bool Riga6Gps(std::string_view riga) {
  return Contiene(riga, "|BAS|") || Contiene(riga, "|RTK|") || riga.starts_with("6|L1|") || riga.starts_with("6|L2|") ||
         Contiene(riga, "|PDOP=") || Contiene(riga, "|GDOP=");
}

// The marks hold five stars: most rows are passed over by that character.
bool MarcaRelazioneOCensuario(std::string_view riga) {
  if (Contiene(riga, "6|Dati per aggiornare il D.B. Censuario")) return true;
  return riga.find('*') != std::string_view::npos && (Contiene(riga, InizioRelazione) || Contiene(riga, FineRelazione));
}

bool PuoEssereCommento(std::string_view riga) {
  constexpr std::size_t lunghezzaMassima = 76;
  return riga.size() < lunghezzaMassima && QuanteParti(riga, '|') == 3 && !MarcaRelazioneOCensuario(riga);
}

std::vector<std::string_view> RigheDi(std::string_view libretto) {
  auto righe = Dividi(libretto, FineRiga);
  if (!righe.empty() && righe.back().empty()) righe.pop_back();
  return righe;
}

std::string InUnCampo(std::string_view testo) {
  std::string campo(testo);
  std::replace_if(
      campo.begin(), campo.end(),
      [](char lettera) { return lettera == '|' || static_cast<unsigned char>(lettera) < ' '; }, ' ');
  return campo;
}

std::string TogliMarcatoriNota(std::string_view nota) {
  std::string pulita(nota);
  for (const std::string_view marca : {"<PD>", "<PV>", "<P!>", "<00>", "<EL>", "<8P>", "<8=>", "<8Q>"})
    pulita = Sostituisci(pulita, marca, "");
  return std::string(Taglia(pulita));
}

} // namespace lirmeto
