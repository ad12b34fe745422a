#pragma once
// An issued extract made into one that the surveyor put together.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// The extract's text with the row 0 of an auto-assembled one, its vertices, its parcels and its framing. Lines,
// toponyms and fiducial points go, and so does any ring or point that holds one of the letters L, T, P, in either case:
// the ring of a parcel "P1" too, since classes are told by their letter alone. A ring goes or stays with its
// continuations. An empty text becomes row 0.
[[nodiscard]] std::string TrasformaInAutoallestito(std::string_view testo);

// The same to a file of the extracts folder. Errors as those of the disk; the file is then as it was.
void TrasformaInAutoallestito(Ambiente& ambiente, std::string_view nome);

} // namespace lirmeto
