#pragma once
// What stands around an act, read from the session's tables and the archives on the disk.

#include <core/ambiente.h>
#include <verifiche/atto.h>

#include <string>
#include <vector>

namespace lirmeto {

// `fiduciali` are the names of the act's fiducial points in capitals, sorted. A file that is not there or cannot be
// read is as one that is not there; nothing is told to the user and the session stays as it is, but for its tables,
// which are loaded if they were not.
[[nodiscard]] Intorno LeggiIntorno(Ambiente& ambiente, const std::vector<std::string>& fiduciali);

} // namespace lirmeto
