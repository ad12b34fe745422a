#pragma once
// The commands of lirmeto-cli, each a function from the open session to the bytes of its result. Commands of one matter
// stand together as a family: "estratto salva FILE".

#include <core/ambiente.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

enum class GenereArgomento {
  File,             // a file of the host that must be readable; given to the command as a path with a drive
  FileFacoltativo,  // the same as an option, "--libretto"; empty when it is not given
  AltriFile,        // one or more of them, as the last argument
  Testo,            // Windows-1252
  TestoFacoltativo, // empty when it is not given; as the last argument
  AltriTesti,       // an option that may be given more than once or not at all, as the last argument
  Bandiera,         // an option without a value, "--disegno"; empty when it is not given
  Percorso,         // of the host, whatever stands there; given as a path with a drive
};

struct ArgomentoCli {
  std::string_view nome; // "FILE"; of an option "--libretto"
  GenereArgomento genere = GenereArgomento::File;
  std::string_view spiegazione; // for the help, UTF-8
};

// The one argument that most commands take.
inline constexpr ArgomentoCli UnFile[] = {{"FILE", GenereArgomento::File, "file da aprire"}};

struct ComandoCli {
  std::string_view nome;
  std::string_view descrizione; // for the help, UTF-8
  std::span<const ArgomentoCli> argomenti;
  // Takes the arguments in order.
  std::string (*esegui)(Ambiente& ambiente, const std::vector<std::string>& argomenti);
  // Exit code that goes with a result; none: 0.
  int (*codice)(std::string_view risultato) = nullptr;
};

struct FamigliaCli {
  std::string_view nome; // empty: its commands stand by themselves
  std::string_view descrizione;
  std::span<const ComandoCli> comandi;
  const ComandoCli* daSola = nullptr; // what the name does by itself; it takes one argument: "pf NOME"
};

// All families, in the order of the help.
[[nodiscard]] std::span<const FamigliaCli> FamiglieCli();

// Rows, header, save, reorder, comuni.
[[nodiscard]] FamigliaCli ComandiLibretto();
// The checks of libretti and extracts, and their table.
[[nodiscard]] FamigliaCli ComandiVerifiche();
// Map extracts.
[[nodiscard]] FamigliaCli ComandiEstratto();
// Whole cadastral sheets.
[[nodiscard]] FamigliaCli ComandiFoglio();
// Rows of the Modello Censuario.
[[nodiscard]] FamigliaCli ComandiCensuario();

// The check of a fiscal code; archives.
[[nodiscard]] FamigliaCli ComandiSupporto();
[[nodiscard]] FamigliaCli ComandiZip();
// A libretto from a drawing.
[[nodiscard]] FamigliaCli ComandiGenerazione();
// Fiducial points: the report of distances, and one point or all of a comune.
[[nodiscard]] FamigliaCli ComandiMisurate();
[[nodiscard]] FamigliaCli ComandiPf();
// Listings and polylines of CAD programs; the rows of an update proposal.
[[nodiscard]] FamigliaCli ComandiPolilinee();
[[nodiscard]] FamigliaCli ComandiProposta();
// A drawing as the texts of other programs.
[[nodiscard]] FamigliaCli ComandiDisegno();
// Print models.
[[nodiscard]] FamigliaCli ComandiModello();

} // namespace lirmeto
