#pragma once
// Document models in rich-text format, filled with the values of the act.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// A value as rich text needs it: "\", "{" and "}" behind a "\". Other bytes stay: a model tells its own code page.
[[nodiscard]] std::string PerRtf(std::string_view valore);

// Whether a text begins as a document in rich-text format does.
[[nodiscard]] bool EModelloRtf(std::string_view modello);

// A model's bytes. An empty file is error 62; one that is no rich text is told of, and taken as it stands.
[[nodiscard]] std::string LeggiModello(Ambiente& ambiente, const std::string& percorso);

// The model with every placeholder replaced, in a fixed order, by the session's value or, for "_stampa_generale_", by
// the lines of the report. All else stays byte for byte.
[[nodiscard]] std::string CompilaModello(std::string_view modello, const Sessione& sessione, const ListaRighe& righe);

} // namespace lirmeto
