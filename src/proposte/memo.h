#pragma once
// The memo of census rows that a form keeps, and its way to and from the Libretto.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

inline constexpr std::size_t RigheDiTesta = 2; // of a memo: heading and count row

// The census rows of a text.
[[nodiscard]] ListaRighe RigheCensuarie(std::string_view testo);

// Heading and an empty count row.
void IniziaMemo(ElencoRighe& memo, std::string_view sezione);

// Adds the rows from the third on: what stands behind heading and count row of a section.
void AggiungiDati(ElencoRighe& memo, const ListaRighe& sezione);

// The count of the second row becomes the number of rows behind it, whatever sections they are of: meant so.
void RinnovaConteggio(ElencoRighe& memo);

// A .CEN file in the program's \temp. Without a name nothing is read or written: the memo lives with its form alone.
[[nodiscard]] std::string PercorsoCen(const Sessione& sessione, std::string_view nome);
[[nodiscard]] std::string LeggiCen(Ambiente& ambiente, std::string_view nome);
void ScriviCen(Ambiente& ambiente, std::string_view nome, const ElencoRighe& memo);

// The Libretto without its census rows and without blank lines.
void TogliCensuarie(Sessione& sessione);

// The rows behind the Libretto, each ended by CR LF so that the next listing does not lose the last one.
void AccodaAlLibretto(Sessione& sessione, const ListaRighe& righe);

// Puts the memo behind what is there, or in place of the census rows that are there. Fewer than three rows leave the
// Libretto alone.
void SalvaPropostaFile(Ambiente& ambiente, const ElencoRighe& memo);
void SalvaPropostaFile1(Ambiente& ambiente, const ElencoRighe& memo);

} // namespace lirmeto
