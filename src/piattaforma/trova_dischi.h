#pragma once
// Where the drives lie on this machine.

#include <filesystem>
#include <optional>

namespace lirmeto {

// The folder of the drives: the one given, else LIRMETO_DISCHI, else the machine's usual one. That is on Linux the
// "dosdevices" of the Wine prefix (WINEPREFIX or ~/.wine) whose C: holds windows\PREGEO.INI, else lirmeto/dischi in the
// user's data folder, where drive c is made if it can be; on Windows none, the drives as they are.
//
// On Windows one that is given becomes the LIRMETO_DISCHI of this process, for those that it starts.
[[nodiscard]] std::filesystem::path TrovaDischi(const std::optional<std::filesystem::path>& opzione);

} // namespace lirmeto
