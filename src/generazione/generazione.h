#pragma once
// The phases that turn a drawing into a libretto. Each works on the state of one generation; libretto_da_disegno.cpp
// calls them in their order.

#include <base/gon.h>
#include <core/ambiente.h>
#include <generazione/opzioni_libretto.h>
#include <generazione/tabelle_disegno.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct Generazione {
  Ambiente& ambiente;
  const OpzioniLibretto& opzioni;
  TabelleDisegno& tabelle;
  const std::vector<std::string>& linee;        // "100 - 101"
  const std::vector<std::string_view>& vecchie; // rows of the libretto as it was, the empty part behind the last too
  std::vector<std::string> gps;                 // rows of GPS stations and points
  std::vector<std::string> righe;               // what is being built
  std::vector<std::string> rapporto;            // lines of the report
};

// GPS rows of the old libretto, with the notes of the drawing; those of points that it has not are dropped if so
// wished. A row too short for its note is error 9.
void PrendiRigheGps(Generazione& g);

// Rows 0, 9 and comment; the report tells the orientation.
void MettiTestata(Generazione& g);

// Rows 3, of the drawing's contours "POLIGONALE" or of the old libretto.
void MettiPoligonali(Generazione& g);

// The stations, each with the points that it sights: "1|100|" "2|101|", still without numbers.
void MettiStazioni(Generazione& g);

// Rows 4 and 5, of the drawing's contours or of the old libretto. A levelling contour that names a point which is not
// there is error 9.
void MettiSquadri(Generazione& g);

// Rows 7 with their comments, and the rows of vertex points; or those of the old libretto.
void MettiContorni(Generazione& g);

void TogliUgualiVicine(Generazione& g);

// Rows 6 of more than fifty characters of the old libretto.
void MantieniCensuario(Generazione& g);

// Rows 1 and 2 get angles, distances, heights and notes, `passo` being the rounding of angles.
void CalcolaMisure(Generazione& g, Gon passo);

// Rows 8: fiducial points by the TAF and points by their marks, or the old ones.
void MettiCoordinate(Generazione& g);

// Row 9: mean east of the rows 8, and the fields that stand empty.
void CompletaRigaNove(Generazione& g);

void TogliPuntiDalleNote(Generazione& g);

// The GPS rows go behind the rows 0, 9 and 6 at the top.
void InserisciGps(Generazione& g);

// Of two neighbouring rows 2 with the same note the later one says "CS".
void MettiCs(Generazione& g);

// Asks and warns about what the libretto lacks.
void ControlliFinali(Generazione& g);

// "__|" goes, and a "_" becomes a bar.
[[nodiscard]] std::string SciogliSegni(std::string_view testo);

// What several phases need.
[[nodiscard]] bool HaMarca(std::string_view nota, std::string_view marca); // without regard to case
[[nodiscard]] bool NomeFiduciale(std::string_view nome);                   // begins "PF", in either case
// The trimmed note and a bar, or what stands for an empty one.
[[nodiscard]] std::string NotaConBarra(std::string_view nota, std::string_view vuota);
// Tokens of "|a|b|c|".
[[nodiscard]] std::vector<std::string_view> Elementi(std::string_view punti);

} // namespace lirmeto
