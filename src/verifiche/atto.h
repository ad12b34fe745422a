#pragma once
// What the checks look at: the rows as read, the coordinates computed from them, and what stands around the act.

#include <base/data.h>
#include <core/tabelle.h>
#include <supporto/tabella_verifiche.h>
#include <verifiche/estratto_letto.h>
#include <verifiche/rete.h>
#include <verifiche/righe_lette.h>

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A distance between two fiducial points that earlier acts measured: the mean of the archive.
struct Misurata {
  std::string primo; // the lower of the two names
  std::string secondo;
  double media = 0; // metres
};

// What is not there is empty, and its checks say so once.
struct Intorno {
  Data oggi;
  const std::vector<Comune>* comuni = nullptr; // none or empty: no table
  const std::vector<CodiceENome>* province = nullptr;
  const std::vector<std::string>* qualita = nullptr;  // "282   ENTE URBANO "
  std::optional<double> quotaComune;                  // mean height of the comune, metres
  std::set<std::string> senzaTaf;                     // comuni of fiducial points whose TAF is not there
  std::map<std::string, PuntoPiano, std::less<>> taf; // fiducial points of the act that the TAF has
  std::vector<Misurata> misurate;                     // of pairs of its fiducial points
  bool archivioMisurate = false;
  std::string nomeEstratto; // empty: none is associated
  std::optional<EstrattoLetto> estratto;
};

struct Atto {
  const RigheLette& righe;
  const Rete& rete;
  const Intorno& intorno;
};

// The checks by matter.
void VerificaTestata(const Atto& atto, Raccolta& raccolta);
void VerificaRete(const Atto& atto, Raccolta& raccolta);
void VerificaPoligonali(const Atto& atto, Raccolta& raccolta);
void VerificaSquadri(const Atto& atto, Raccolta& raccolta);
void VerificaGnss(const Atto& atto, Raccolta& raccolta);
void VerificaContorni(const Atto& atto, Raccolta& raccolta);
void VerificaFiduciali(const Atto& atto, Raccolta& raccolta);
void VerificaEstratto(const Atto& atto, Raccolta& raccolta);
void VerificaProposta(const Atto& atto, Raccolta& raccolta);
void VerificaCensuario(const Atto& atto, Raccolta& raccolta);

// "ddmmyyyy", or "ddmmyy" with the century of row 0; none for what is no date of the calendar.
[[nodiscard]] std::optional<Data> LeggiDataRiga(std::string_view testo);

// Points that a row of the measures gives: a station, a sighting, an offset, coordinates.
[[nodiscard]] std::vector<bool> Definiti(const RigheLette& righe);

// The three fiducial points that enclose the largest area, of those whose place is known.
using TriangoloFiduciale = std::array<PuntoPiano, 3>;
[[nodiscard]] std::optional<TriangoloFiduciale> TriangoloDi(const RigheLette& righe, const Rete& rete);

// Metres as they stand in a sentence: "0.52", and hundredths of a kilometre and the like in the same way.
[[nodiscard]] std::string Metri(double valore);
// A row as the user counts it in a sentence: its index in the list.
[[nodiscard]] std::string TestoRiga(std::size_t riga);

} // namespace lirmeto
