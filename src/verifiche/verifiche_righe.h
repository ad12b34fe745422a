#pragma once
// The checks of a row by itself.

#include <supporto/segnalazione.h>
#include <verifiche/riga_letta.h>

#include <string_view>

namespace lirmeto {

struct RigaDaVerificare {
  std::string_view riga;
  const Campi& campi;
  const RigaLetta& letta;
};

// Findings about "row 0": the caller knows where the row stands.
void VerificaRiga(const RigaDaVerificare& riga, Raccolta& raccolta);

} // namespace lirmeto
