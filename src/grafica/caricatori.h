#pragma once
// What the loaders of a drawing read: the rows of a file, sorted into lists.

#include <core/ambiente.h>
#include <core/lista_righe.h>
#include <grafica/vista_grafica.h>

#include <array>
#include <string_view>

namespace lirmeto {

struct ListeGrafica {
  std::array<ListaRighe, 2> List2; // rows of the extract; rows of the updated extract
  ListaRighe List1;                // of a .PDF the header, of a .CSV the points
  ListaRighe List3;                // of a .PDF the fields of the request, of a .CSV the lines
  ListaRighe List4;                // of a .PDF the owners
  ListaRighe LibrettoOriginale;    // the rows in use
};

// A file's text, or its bytes as they are, that lists of rows can share. `punto` is the place where it happens. A file
// that is not there is error 53.
[[nodiscard]] TestoCondiviso LeggiTestoDisegno(Ambiente& ambiente, std::string_view percorso, std::string_view punto);
[[nodiscard]] TestoCondiviso LeggiByteDisegno(Ambiente& ambiente, std::string_view percorso, std::string_view punto);

// The rows of an extract; the display flags say which are left out.
[[nodiscard]] ListeGrafica RigheEstratto(const TestoCondiviso& testo, const VistaGrafica& vista);
// The two sections of a libretto with a proposal; what stands before the first one is no drawing.
[[nodiscard]] ListeGrafica RigheSezioni(const TestoCondiviso& testo);
[[nodiscard]] bool HaSezioni(std::string_view testo);
// Every row.
[[nodiscard]] ListeGrafica RigheIntere(const TestoCondiviso& testo);
// The sections of an act as .PDF, of its bytes as they are.
[[nodiscard]] ListeGrafica RighePdf(const TestoCondiviso& byte);
// Comma separated values: points and lines.
[[nodiscard]] ListeGrafica RigheCsv(const TestoCondiviso& testo);

} // namespace lirmeto
