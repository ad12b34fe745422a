#pragma once
// The exchange programs through which Pregeo's archive is read. Each answers in text files and is waited for; the files
// of the last answer stay until the next one.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// Path of a file of the exchange, in the program's \TEMP.
[[nodiscard]] std::string FileDiScambio(const Sessione& sessione, std::string_view nome);

// What the archive holds of one libretto. The key is the last two digits of its year and its protocol: "17974" is 974 of
// 2017. Answers: ESPORTA_LIBRETTO.txt, ESPORTA_PROPOSTA.txt, ESPORTA_PUNTI_ELABORATI.txt, and ASSOCIA_ESTRATTO.txt when
// the libretto has an extract. Throws Errore 53, which names the program, when it is not installed; 51 when
// it ends with an error; 32755 when the user gives the wait up.
void EsportaTutto(Ambiente& ambiente, const std::string& chiave);

// All libretti of the archive. The answer is the text of ELENCO_LIBRETTI.txt, empty when there is none. Errors as
// above.
[[nodiscard]] std::string ElencoLibretti(Ambiente& ambiente);

} // namespace lirmeto
