// The rows that Tipol10 makes of a listing: the proposal and the provisional extract.

#include <generazione/tipol10.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <estratti/kr_estratto.h>
#include <generazione/completa7.h>
#include <generazione/proposta.h>
#include <generazione/ripara_proposta.h>

namespace lirmeto {

// What could be done in more than one way:
//
//   the points at the end          those with "*" alone: no row 7 names the others any more
//   a contour of NC                is no new line: its rows stay as they are, its names with the "*" of its points
//   lines of RP and RT             are no rings: they get no parcel and no area, and one "*" each
//   a point met again              its row stands again where another vertex came between

namespace {

std::string Numero(std::size_t numero) {
  return TestoIntero(static_cast<long long>(numero));
}

void AggiungiRiga(std::string& testo, std::string_view riga) {
  testo.append(riga).append(FineRiga);
}

// Names of a polyline's points, with a mark behind each.
std::vector<std::string> Nomi(const PolilineaCad& polilinea, std::string_view segno) {
  std::vector<std::string> nomi;
  nomi.reserve(polilinea.punti.size());
  for (const std::size_t punto : polilinea.punti) nomi.push_back(Numero(punto).append(segno));
  return nomi;
}

std::string RigaIntera(const PolilineaCad& polilinea) {
  const auto nomi = Nomi(polilinea, "");
  return "7|" + Numero(nomi.size()) + "|" + Unisci({nomi.begin(), nomi.end()}, "|") + "|" +
         std::string(polilinea.strato->codice) + "|";
}

// Rows of ten names, all with "*".
std::string RigheSegnate(const PolilineaCad& polilinea) {
  const auto nomi = Nomi(polilinea, "*");
  std::string testo;
  AggiungiRiga(testo, polilinea.strato->commento);
  return testo += RigheUnite(ComponiRighe7({nomi.begin(), nomi.end()}, polilinea.strato->codice, {}));
}

// Rows 8 of the vertices, each unlike the one before it.
template <typename Componi>
void AggiungiPunti(std::string& testo, const ElencoCad& elenco, const Componi& componi) {
  const PuntoCad* prima = nullptr;
  for (const PuntoCad& punto : elenco.punti) {
    const bool uguale = prima != nullptr && prima->numero == punto.numero && prima->descrizione == punto.descrizione;
    if (!uguale) AggiungiRiga(testo, componi(punto));
    prima = &punto;
  }
}

// Numbers and coordinates of all points.
struct PuntiNumerati {
  std::vector<std::string> nomi; // what the map's keys look at
  PuntiPerNome perNome;
};

PuntiNumerati Numera(const ElencoCad& elenco) {
  PuntiNumerati punti;
  punti.nomi.reserve(elenco.punti.size());
  for (const PuntoCad& punto : elenco.punti) {
    if (punto.numero <= punti.nomi.size()) continue;
    punti.nomi.push_back(Numero(punto.numero));
    punti.perNome.emplace(punti.nomi.back(), PuntoPiano{Valore(punto.est), Valore(punto.nord)});
  }
  return punti;
}

// Rings of an extract: each polyline is a parcel X1, X2, ... of one square metre.
void AggiungiAnello(std::string& testo, const PolilineaCad& polilinea, std::size_t numero) {
  const auto nomi = Nomi(polilinea, "%");
  const std::string coda = "X" + Numero(numero) + "|X" + Numero(numero) + "|1|";
  testo += RigheUnite(ComponiRighe7({nomi.begin(), nomi.end()}, "NC", coda));
}

// A picture's name on a text that is none: the extract only has to have a file beside it.
constexpr std::string_view ImmagineFinta = "8|1|-12571.845|-5882.526|SF|\r\n"
                                           "8|2|-12581.580|-5880.237|SF|\r\n"
                                           "6|Contorno fabbricato|\r\n"
                                           "7|2|1|2|RC|\r\n";

} // namespace

std::string Tipol10::ComponiProposta(const ElencoCad& elenco) {
  const PuntiNumerati punti = Numera(elenco);
  const std::string particella = ConEstratto() ? ambiente_.sessione.ParticelleScelte : std::string();
  std::string testo;
  std::string altreLinee; // RP and RT
  AggiungiPunti(testo, elenco, [](const PuntoCad& punto) {
    return "8|" + Numero(punto.numero) + "*|" + punto.nord + "|" + punto.est + "|";
  });
  for (const PolilineaCad& polilinea : elenco.polilinee) {
    if (polilinea.strato->codice != "RC") {
      (polilinea.strato->codice == "NC" ? testo : altreLinee) += RigheSegnate(polilinea);
      continue;
    }
    testo += RigheUnite(Genera7Completa(ambiente_, RigaIntera(polilinea), punti.perNome, particella));
  }
  const ContornoMappale mappale = LeggiContornoMappale(ambiente_);
  return SistemaModestaEntita(SistemaProposta(testo, mappale, altreLinee), mappale);
}

void Tipol10::ScriviEstrattoProvvisorio(const ElencoCad& elenco) {
  const Sessione& sessione = ambiente_.sessione;
  std::string testo = "0|AUTOALLESTITO||||||||\r\n";
  AggiungiPunti(testo, elenco, [](const PuntoCad& punto) {
    return "8|" + Numero(punto.numero) + "%|" + punto.nord + "|" + punto.est + "|" + std::string(punto.descrizione) +
           "|";
  });
  std::size_t numero = 0;
  for (const PolilineaCad& polilinea : elenco.polilinee) AggiungiAnello(testo, polilinea, ++numero);
  const PuntoCad& primo = elenco.punti.front();
  AggiungiRiga(testo, "6|INQUADRAMENTO|" + primo.est + "|" + primo.nord + "|0|0|0|0|");

  CreaPercorso(ambiente_, sessione.CartellaProgramma + "\\TEMP");
  CreaPercorso(ambiente_, CartellaEstratti(sessione));
  ambiente_.disco.Scrivi(sessione.CartellaProgramma + "\\TEMP\\EstrattoProvvisorio.EMP", testo);
  ambiente_.disco.Scrivi(CartellaEstratti(sessione) + "\\ESTRATTOPROVVISORIO.EMP", testo);
  ambiente_.disco.Scrivi(CartellaEstratti(sessione) + "\\ESTRATTOPROVVISORIO.PNG", ImmagineFinta);
}

} // namespace lirmeto
