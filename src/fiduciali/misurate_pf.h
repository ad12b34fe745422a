#pragma once
// The distances between the fiducial points of a survey, beside those from the TAF and those that earlier acts measured:
// a report of all pairs.
//
//   Elenco Distanze Misurate Trovate
//
//   PF1              PF2                  Distanza     SQM     Anno Prot.       Diff.
//   PF01/1230/G224 - PF02/1230/G224       207.958               (REALE)
//   PF01/1230/G224 - PF02/1230/G224       207.957               ( TAF )         0.001
//   PF01/1230/G224 - PF02/1230/G224       207.976    0.015     2022 134942     -0.018
//                                         207.976               ( Media )

#include <core/ambiente.h>

#include <optional>
#include <span>
#include <string>

namespace lirmeto {

struct PuntoMisurato { // of a drawing, metres
  std::string Nome;
  double X = 0;
  double Y = 0;
};

// The report of the points of a drawing, lines with their ends. None: a message has told the user why. Errors: 9 when
// the first name in order has no comune behind its second slash, 6 for a distance that is not finite, 7 when the archive
// repeats the pairs so often that the report could not be read.
[[nodiscard]] std::optional<std::string> MisurateDelDisegno(Ambiente& ambiente, std::span<const PuntoMisurato> punti);

// The same of the points of rows 8 of Libretto. Their distance counts as 0: the differences are those of the archives
// with the sign turned, and the user sets them against the libretto's own value.
[[nodiscard]] std::optional<std::string> MisurateDelLibretto(Ambiente& ambiente);

// Writes the report of the libretto and opens it.
void CalcolaMisuratePF_DaLibretto(Ambiente& ambiente);

} // namespace lirmeto
