#pragma once
// The store of a map extract: the rows of an .EMP file in one list per class, and the two routines that turn a file
// into lists and back.
//
// An .EMP is text, a row a line, fields between bars, numbers with a point. Its first row is row 0, whatever it holds;
// each other is told by its leading number.
//
//   0|12032018|PD0012345/2018|G224|00042|101,102|PD|PUB|ROSMRA|10000000000017|
//       release ddmmyyyy or AUTOALLESTITO, protocol, comune, sheet, parcels, province
//   8|1%|-5558.7901700704|-3805.0654129576|         vertex of a ring: identifier, north, east (metres)
//   8|12T|-5500.1|-3800.2|1.57|VIA ROMA|            toponym: angle in radians, text
//   8|13L|-5510.0|-3801.0|                          vertex of a free line
//   8|PF07/1230/G224|-5179.204|-4351.118|           fiducial point
//   7|4|1%|2%|3%|1%|NC|272|272|1376.65|             ring: identifiers, "NC", the parcel's name twice, m2
//   7|0|11%|1%|NC|                                  its eleventh identifier and those behind it
//   7|3|1L|2L|3L|NT|                                free line
//   6|PARTICELLA|…  6|DITTA|…  6|DISTANZA|…  6|PFCART|…  6|DISTORSIONE|1.5|  6|SCALAORIGINARIA|2000|
//   6|INQUADRAMENTO|north|east|metres a pixel|north|east|radians|
//
// A name that ends in "+" is a further ring of its parcel, one that ends in "-" a hole in it.

#include <core/ambiente.h>
#include <core/lista_righe.h>

#include <array>
#include <string>
#include <string_view>

namespace lirmeto {

// The lists of an extract. A caller makes one, reads or edits, saves, and lets it go.
struct KR_Estratto {
  ListaRighe ZERO;       // row 0
  ListaRighe Punti;      // rows 8 by the form of their identifier: anything that is none of the next three
  ListaRighe Toponimi;   // ends in "T"
  ListaRighe PLinee;     // ends in "L"
  ListaRighe PF;         // begins "PF"
  ListaRighe List1;      // rows 7 that are no lines, as read; made again by the save
  ListaRighe SETTE;      // a row a ring, its continuations joined, in the reverse order of the file
  ListaRighe Linee;      // rows 7 of free lines, their continuations joined
  ListaRighe List2;      // scratch
  ListaRighe PARTICELLA; // rows 6
  ListaRighe DITTA;
  ListaRighe DISTANZA; // the "6|DISTORSIONE|" rows too
  ListaRighe PFCART;
  ListaRighe ALTRO;         // "6|SCALAORIGINARIA|"
  ListaRighe INQUADRAMENTO; // the row, then its fields from position 2 to the last
  ListaRighe Scartate;      // rows of no list, which a save leaves out and tells

  // Vertices of the ring whose surface was computed last, from 1; the place behind the last one repeats the first. What
  // a ring leaves stays for the next.
  static constexpr std::size_t MassimoVertici = 500;
  std::array<double, MassimoVertici + 2> Nord{};
  std::array<double, MassimoVertici + 2> Est{};

  // What the last ring of three vertices or more gave.
  double SuperficieCalcolata = 0; // square metres

  // Empties every list and starts again.
  void Scarica() { *this = KR_Estratto{}; }
};

// Folder of Pregeo's extracts, without a closing backslash.
[[nodiscard]] std::string CartellaEstratti(const Sessione& sessione);

// Path of an extract: a name without "\" lies in Pregeo's folder. Throws Errore 52 for a name that is none.
[[nodiscard]] std::string PercorsoEstratto(const Sessione& sessione, std::string_view nome);

// Whether the libretto's extract is there; what is missing is told.
[[nodiscard]] bool EstrattoAssociatoPresente(Ambiente& ambiente);

// Reads an extract into its lists, behind what they hold, and into the session's strings. An error ends it with the
// report: 9 for a row 0 of fewer than seven fields, an empty file, a row 7 or 8 that lacks a field that is read, a
// continuation of a free line with nothing before it. A file that is not there is no error and leaves the lists empty.
// Whether it was read.
bool EsplodiEstratto(Ambiente& ambiente, KR_Estratto& estratto, std::string_view nome);

// The text that a save writes: points renumbered, surfaces computed again, rings in the order of SETTE. Throws Errore 9
// for a ring of more than 500 fields, 6 for a surface that is no number.
[[nodiscard]] std::string TestoEstratto(Ambiente& ambiente, KR_Estratto& estratto);

// Writes the lists to EstrattoFile and empties them; the rows left out become the session's RigheScartate. An error ends it with the report and leaves the file as it was.
// Whether it was written.
bool SalvaEstratto(Ambiente& ambiente, KR_Estratto& estratto);

} // namespace lirmeto
