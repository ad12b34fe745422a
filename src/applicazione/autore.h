#pragma once
// What the program says of itself: the dialog of its author and the report of its configuration.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

inline constexpr std::string_view IndirizzoWeb = "https://www.lirmeto.example/";

// Title, version, author, trademark.
[[nodiscard]] std::vector<std::string> DatiProgramma();

// The same, and the folders that the program works in, each with its drive.
[[nodiscard]] ListaRighe RigheConfigurazione(const Sessione& sessione);

class autore : public Modello {
public:
  std::string Titolo = "Autore";
  std::vector<std::string> Righe = DatiProgramma();
  std::string Pagina{IndirizzoWeb};
};

void MostraAutore(Ambiente& ambiente);

} // namespace lirmeto
