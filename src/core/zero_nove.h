#pragma once
// Rows 0 and 9 read into the session.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// Derives the session's header values from rows 0 and 9 of Libretto; a Libretto
// of fewer than ten characters gets the default rows and is listed.
void DecoZeroNove(Ambiente& ambiente);

// Gives RigaZero and RigaNove their defaults where they are empty: row 0 with
// today's date.
void AssicuraRigheZeroNove(Ambiente& ambiente);

// Writes a field of row 9 into the row list and Libretto, and derives the header values anew.
void CambiaCampoNove(Ambiente& ambiente, std::size_t campo, std::string_view testo);

// Loads the tables of comuni and province once; a missing comunt.dat is told.
void CaricaProvinceComuni(Ambiente& ambiente);

// A date with fewer than eight characters gets its century: its first four
// characters, "20" where the value of the last two is below 80 and "19"
// otherwise, its last two.
[[nodiscard]] std::string DataConSecolo(std::string_view data);

// Parcels at commas, sorted right-aligned in ten characters, each once:
// "12,3,12" becomes "3,12".
[[nodiscard]] std::string RiordinoMappali(std::string_view mappali);

} // namespace lirmeto
