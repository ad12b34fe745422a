#pragma once
// A survey that exists only as a drawing: its points, lines and contours, as a .LXC file holds them.

#include <base/piano.h>
#include <core/ambiente.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

struct PuntoDisegno {
  std::string Nome;
  double X = 0;     // east-like, metres: azimuths go clockwise from +Y
  double Y = 0;     // north-like, metres
  double Quota = 0; // metres
  std::string Nota; // with its marks: "<PV>", "<P!>", "[P.A.]", ...
  // Metres: of the instrument at a station, of the prism at a sighted point. Below zero: a direction without distance.
  double Altezza = 0;
  [[nodiscard]] PuntoPiano Posto() const { return {X, Y}; }
};

struct LineaDisegno { // metres
  double X1 = 0;
  double Y1 = 0;
  double Z1 = 0;
  double X2 = 0;
  double Y2 = 0;
  double Z2 = 0;
};

struct ContornoDisegno {
  std::string Punti; // "|a|b|RC|": names, and codes of lines between them
  std::string Tipo;  // "SQUADRO", "PV", ..., or what becomes a comment row
  std::string Commento;
};

class TabelleDisegno {
public:
  std::vector<ContornoDisegno> Contorni;
  std::vector<std::string> Scartate; // lines that are no record

  [[nodiscard]] const std::vector<PuntoDisegno>& Punti() const { return punti_; }
  [[nodiscard]] const std::vector<LineaDisegno>& Linee() const { return linee_; }

  void Aggiungi(PuntoDisegno punto);
  void Aggiungi(const LineaDisegno& linea) { linee_.push_back(linea); }
  void Riserva(std::size_t punti);

  // The first point of this very name; nullptr when there is none.
  [[nodiscard]] const PuntoDisegno* Trova(std::string_view nome) const;

private:
  struct HashNome {
    using is_transparent = void;
    std::size_t operator()(std::string_view nome) const { return std::hash<std::string_view>{}(nome); }
  };
  std::vector<PuntoDisegno> punti_;
  std::vector<LineaDisegno> linee_;
  std::unordered_map<std::string, std::size_t, HashNome, std::equal_to<>> primi_; // by name
};

// The text of a .LXC: a record a line, fields at commas, a missing one empty; a line without a comma and a record of
// another kind go to Scartate, blank lines nowhere.
//   P,name,X,Y,Z,note,h       L,x1,y1,z1,x2,y2,z2       7,|a|b|RC|,type,comment
[[nodiscard]] TabelleDisegno LeggiDisegno(std::string_view testo);

inline constexpr std::string_view EstensioneDisegno = ".LXC";

// Path of the session's drawing: that of its libretto's file, with the extension behind it where it lacks it.
[[nodiscard]] std::string PercorsoDisegno(const Sessione& sessione);

// The tables of the session's drawing; a file that is not there is told and has none.
[[nodiscard]] TabelleDisegno CaricaGrafica(Ambiente& ambiente);

// Where the points lie: the first point in table order nearer than five millimetres in plan.
class PuntiPerPosto {
public:
  explicit PuntiPerPosto(const TabelleDisegno& tabelle);
  [[nodiscard]] const PuntoDisegno* Trova(const PuntoPiano& posto) const;

private:
  struct Cella {
    double colonna = 0;
    double riga = 0;
    bool operator==(const Cella&) const = default;
  };
  struct HashCella {
    std::size_t operator()(const Cella& cella) const;
  };
  struct Catena { // of the points of a cell, in table order
    std::size_t primo = 0;
    std::size_t ultimo = 0;
  };
  [[nodiscard]] std::size_t PrimoVicino(const Cella& cella, const PuntoPiano& posto) const;

  const std::vector<PuntoDisegno>& punti_;
  std::unordered_map<Cella, Catena, HashCella> celle_;
  std::vector<std::size_t> seguenti_; // by point: the next one of its cell; their number when there is none
};

// The list of lines, "100 - 101": the two names of each line whose both ends are points, each pair once, in the order
// of the names right-aligned in fifteen columns.
[[nodiscard]] std::vector<std::string> ElencoLinee(const TabelleDisegno& tabelle);

} // namespace lirmeto
