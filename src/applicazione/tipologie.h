#pragma once
// The automated typologies: from a menu entry to the proposal in the libretto.

#include <applicazione/comandi.h>
#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

struct Tipologia {
  Comando comando;
  std::string_view codice;  // field 6 of row 9
  bool unaMantiene = false; // of more than one parcel, one keeps its identifier: the user says which
};

// Null for a command that is none.
[[nodiscard]] const Tipologia* TrovaTipologia(Comando comando);

// Code into row 9, parcels, the one that keeps its identifier, Tipol10, and what it made into the libretto: a proposal
// against the associated extract in place of the old one, or, under the typology 1000, rows by coordinates. Given up
// anywhere, or failed, the libretto is as it was.
void EseguiTipologia(Ambiente& ambiente, const Tipologia& tipologia);

// The form Tipol10 for TipologiaCorrente; EsitoForm tells how it ended.
void MostraTipol10(Ambiente& ambiente);

} // namespace lirmeto
