#pragma once
// The update proposal at the end of the open libretto, and the place before it.

#include <core/sessione.h>

#include <string_view>

namespace lirmeto {

// Rows, each with its CR LF, at the end of Libretto; before the proposal when there is one, of which they would
// otherwise be a part.
void AggiungiRigheLibretto(Sessione& sessione, std::string_view righe);

// A proposal, from its heading on, in place of the one that Libretto has; then it is taken in, as any that is read.
void MettiPropostaInLibretto(Sessione& sessione, std::string_view proposta);

} // namespace lirmeto
