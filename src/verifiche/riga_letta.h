#pragma once
// A row as the checks over the whole act want it: its numbers read, its names as small numbers.

#include <estratti/campi.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// The number of a point's name.
using Punto = std::uint32_t;
inline constexpr Punto SenzaPunto = 0xFFFFFFFF;

// The names of points, each with a number of its own that it keeps.
class NomiPunti {
public:
  Punto Numero(std::string_view nome);
  [[nodiscard]] std::string_view Nome(Punto punto) const { return *nomi_[punto]; }
  [[nodiscard]] std::size_t Quanti() const { return nomi_.size(); }
  // Whether it is a fiducial point by its name: "PF" in front, in either case.
  [[nodiscard]] bool Fiduciale(Punto punto) const { return fiduciali_[punto]; }

private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view nome) const { return std::hash<std::string_view>{}(nome); }
  };
  std::unordered_map<std::string, Punto, Hash, std::equal_to<>> numeri_;
  std::vector<const std::string*> nomi_;
  std::vector<bool> fiduciali_;
};

enum class FormaRiga : std::uint8_t {
  Altra,
  Stazione,     // row 1; numeri: height
  BaseGps,      // row 1; numeri: X, Y, Z geocentric, height of the antenna
  Battuta,      // row 2; numeri: x, y from the station by the reading as azimuth, reading in grads, plane distance
  VettoreGps,   // row 2; numeri: dX, dY, dZ geocentric
  Poligonale,   // row 3; punti: its vertices; conteggio: field 1
  Squadro,      // row 4 with 0 as its measure; punti: the two of the base
  BaseAltra,    // row 4 of a base with anything else there: rows 5 are distances or told from elsewhere
  Livellazione, // row 4
  Offset,       // row 5 of four numbers; numeri: abscissa, offset
  Dislivello,   // row 5
  Coordinate,   // row 8; numeri: north, east
  Quota,        // row 8
  Contorno,     // row 7; punti: its vertices; conteggio: field 1
  Sessione,     // row 6 of the GPS block
  Censuario,    // row 6 of 70 characters, or one that should have so many
};

enum class Segno : std::uint8_t { Nessuno, ApreRelazione, ChiudeRelazione, Proposta };

// Where in the act a row stands, which decides what it may hold.
enum class SezioneAtto : std::uint8_t { Misure, Relazione, Proposta };

// Metres and grads throughout.
struct RigaLetta {
  std::int8_t genere = -1; // 0 to 9; -1: none of them
  FormaRiga forma = FormaRiga::Altra;
  Segno segno = Segno::Nessuno;
  SezioneAtto sezione = SezioneAtto::Misure;
  bool haDistanza = false; // of a sighting
  bool haZenit = false;    // of a sighting; of a station: it has a height
  bool senzaNota = false;  // of a sighting
  std::uint8_t lungoCodice = 0;
  std::array<char, 2> codice{}; // line code of a contour
  std::int32_t conteggio = 0;
  Punto nome = SenzaPunto; // field 1 of the rows that have a name there
  std::size_t impronta = 0;
  std::array<double, 4> numeri{};
  std::vector<Punto> punti;

  [[nodiscard]] std::string_view Codice() const { return {codice.data(), lungoCodice}; }
};

// Fields of a row without the empty one behind its closing bar.
[[nodiscard]] std::size_t QuantiCampi(const Campi& campi);

// A field of a row; empty where it has not so many.
[[nodiscard]] inline std::string_view CampoSe(const Campi& campi, std::size_t indice) {
  return indice < campi.Quanti() ? campi[indice] : std::string_view{};
}

// The value of a text, no farther from 0 than any measure or area can be: what is computed with it stays a number.
[[nodiscard]] double Misura(std::string_view testo);

// The values between commas; those that are missing are 0, those beyond the sixth are left out. `quanti` is how many
// there are.
struct Terna {
  std::array<double, 6> valori{};
  std::size_t quanti = 0;
};
[[nodiscard]] Terna LeggiTerna(std::string_view campo);

// Whether a row 1 or 2 is one of GNSS: two commas in its field 2. A single one is a decimal comma.
[[nodiscard]] bool CampoGnss(std::string_view campo2);

// What stands before the first field that is no vertex, from field 2 on.
[[nodiscard]] std::size_t FineVertici(const Campi& campi);

[[nodiscard]] bool NomePuntoFiduciale(std::string_view nome); // "PF01/0010/G224", or the same with PA
[[nodiscard]] bool CodiceDiLinea(std::string_view codice);    // "NC", "RT", "PV", ...

// Never fails: what cannot be read is 0.
[[nodiscard]] RigaLetta LeggiRiga(std::string_view riga, const Campi& campi, NomiPunti& nomi);

} // namespace lirmeto
