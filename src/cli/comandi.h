#pragma once
// The commands of lirmeto-cli, each a function from the open session to the bytes of its result.

#include <core/ambiente.h>

#include <span>
#include <string>
#include <string_view>

namespace lirmeto {

enum class ArgomentoCli { File, TestoFacoltativo };

struct ComandoCli {
  std::string_view nome;
  std::string_view descrizione; // for the help, UTF-8
  ArgomentoCli genere;
  // Takes the path of the file, or the text, in Windows-1252.
  std::string (*esegui)(Ambiente& ambiente, const std::string& argomento);
};

[[nodiscard]] std::span<const ComandoCli> ComandiCli();

// Rows of the list: index TAB kind TAB row, UTF-8.
[[nodiscard]] std::string ComandoRighe(Ambiente& ambiente, const std::string& percorso);
// What rows 0 and 9 say: Name=value, UTF-8.
[[nodiscard]] std::string ComandoIntestazione(Ambiente& ambiente, const std::string& percorso);
// The bytes of the libretto saved as it stands, and saved in Pregeo's order.
[[nodiscard]] std::string ComandoSalva(Ambiente& ambiente, const std::string& percorso);
[[nodiscard]] std::string ComandoRiordina(Ambiente& ambiente, const std::string& percorso);
// Rows of the municipal table whose name begins with the text or whose code it is, without regard to case; all for an
// empty text. Code TAB province TAB name TAB the four characters, UTF-8.
[[nodiscard]] std::string ComandoComuni(Ambiente& ambiente, const std::string& testo);

} // namespace lirmeto
