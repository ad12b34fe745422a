#pragma once
// Rows of an extract, and records of comma separated values, as points and lines of the store.

#include <core/lista_righe.h>
#include <grafica/archivio_grafica.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A point for each row 8, then lines and a label for each ring of the rows 7. The original extract is blue beneath a
// proposal. `punto` is told where an error happens. Fewer than two rows are no extract.
void DisegnaRighe(const ListaRighe& righe, bool sottoProposta, ArchivioGrafica& archivio, std::string& punto);

// Where the points stand that a row names: of a row 8 the one, of a row 7 its vertices.
[[nodiscard]] std::vector<PuntoPiano> PostiDellaRiga(std::string_view riga, const ArchivioGrafica& archivio);

// The label of a parcel at the mean of its vertices. A ring none of whose vertices is a point is error 11.
void DisegnaNomeParticella(std::string_view riga7, std::int16_t colore, ArchivioGrafica& archivio);

// Records "P,…" and "L,…".
void DisegnaCsv(const ListaRighe& punti, const ListaRighe& linee, ArchivioGrafica& archivio);

} // namespace lirmeto
