#pragma once
// The checks that the rings of an extract and of a proposal share, and those of an extract by itself.

#include <base/data.h>
#include <supporto/segnalazione.h>
#include <verifiche/estratto_letto.h>

#include <string_view>
#include <vector>

namespace lirmeto {

// `punti` holds the vertices; findings are about the rows that the rings say.
void VerificaAnelli(const std::vector<AnelloLetto>& anelli, const PuntiEstratto& punti, Raccolta& raccolta);

// Its header and its age.
void VerificaScadenza(const EstrattoLetto& estratto, const Data& oggi, Raccolta& raccolta);

// An extract as a file of its own; the rows of the findings are those of the file, from 0.
[[nodiscard]] std::vector<Segnalazione> VerificaFileEstratto(std::string_view testo, const Data& oggi);

} // namespace lirmeto
