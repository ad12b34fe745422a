#include <intestazione/catasto1_righe.h>

#include <base/estremi.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

// How the rows are taken, where it could be done in more than one way:
//
//   the fields of a row 8 for its east      all, the kind too, so that four reach the east: "8|1%|-2552.575|-2702.138|"
//   the fields of a row 8 for its height    those behind the kind, so that a height has four and the first row of a
//                                           fiducial point five: "8|PF01/0010/G224|14.930|02|SPIGOLO|"
//   field 3 "01" to "09"                    is the kind of a height and no coordinate
//   field 3 with decimals                   is a coordinate: the row is of no height
//   the row that a comment takes the        a comment or a DettaglioTipoAgg; what belongs to another block (GPS, notes,
//   place of                                Relazione, census, proposal) stays, and the comment goes before it

namespace {

constexpr std::size_t TerzaRiga = 2;

// Without the empty part behind a closing bar.
std::size_t QuantiCampi(std::string_view riga) {
  return QuanteParti(riga, '|') - (riga.ends_with('|') ? 1 : 0);
}

bool GenereQuota(std::string_view campo) {
  return campo.size() == 2 && campo[0] == '0' && campo[1] >= '1' && campo[1] <= '9';
}

bool HaEst(std::string_view riga) {
  const std::size_t minimo = Parte(riga, '|', 1).starts_with("PF") ? 5 : 4;
  return QuantiCampi(riga) >= minimo && !GenereQuota(Taglia(Parte(riga, '|', 3)));
}

bool HaQuota(std::string_view riga) {
  constexpr std::size_t minimo = 3;      // kind, name, height
  constexpr std::size_t campiConEst = 5; // behind the kind
  const std::size_t campi = QuantiCampi(riga);
  return campi >= minimo && campi - 1 < campiConEst && !Contiene(Parte(riga, '|', 3), ".");
}

// Mean of the extremes of a field over the rows 8 that have it.
std::optional<double> MediaEstremi(const ListaRighe& righe, bool (*ha)(std::string_view), std::size_t campo) {
  Estremi estremi;
  for (const auto riga : righe) {
    if (GenereDi(riga) != Genere::Coordinate || !ha(riga)) continue;
    estremi.Vedi(Valore(Parte(riga, '|', campo)));
  }
  return estremi.Vuoti() ? std::nullopt : std::optional(estremi.Media());
}

bool Dettaglio(std::string_view riga) {
  return Contiene(riga, "DettaglioTipoAgg");
}

} // namespace

std::optional<double> EstMedioDelleRighe(const ListaRighe& righe) {
  return MediaEstremi(righe, &HaEst, 3);
}

std::optional<double> QuotaMediaDelleRighe(const ListaRighe& righe) {
  return MediaEstremi(righe, &HaQuota, 2);
}

std::size_t PostoCommento(const ListaRighe& righe) {
  const bool vecchiaNove = righe.size() > TerzaRiga + 1 && GenereDi(righe[TerzaRiga]) == Genere::Chiusura;
  return vecchiaNove && CedeIlPosto(righe[TerzaRiga + 1]) ? TerzaRiga + 1 : TerzaRiga;
}

std::string CommentoDelleRighe(const ListaRighe& righe) {
  const std::size_t posto = PostoCommento(righe);
  if (posto >= righe.size() || !CedeIlPosto(righe[posto])) return {};
  const std::string_view riga = righe[posto];
  if (Dettaglio(riga)) return Sostituisci(riga.substr(riga.find('|') + 1), "|", "");
  return PuoEssereCommento(riga) ? std::string(Parte(riga, '|', 1)) : std::string{};
}

bool CedeIlPosto(std::string_view riga) {
  if (GenereDi(riga) != Genere::Libera || MarcaRelazioneOCensuario(riga) || riga == RigaProposta || Riga6Gps(riga))
    return false;
  return !riga.starts_with("6| -");
}

Catasto1 DatiDelleRighe(std::string_view libretto) {
  const auto righe = RigheDi(libretto);
  Catasto1 dati;
  for (std::size_t i = 0; i < dati.zero.size() && !righe.empty(); ++i) dati.zero[i] = Parte(righe[0], '|', i + 1);
  for (std::size_t i = 0; i < dati.nove.size() && righe.size() > 1; ++i) dati.nove[i] = Parte(righe[1], '|', i + 1);
  constexpr std::size_t primeRighe = 4; // 0, 9, an old 9, the comment
  ListaRighe prime;
  for (std::size_t i = 0; i < std::min(primeRighe, righe.size()); ++i) prime.Aggiungi(righe[i]);
  dati.commento = CommentoDelleRighe(prime);
  return dati;
}

} // namespace lirmeto
