#pragma once
// ZIP archives read on the host.

#include <base/macchina.h>

#include <memory>
#include <string>

namespace lirmeto {

// A ZIP archive, given as its bytes. Names come out in Windows-1252: those that the archive tells in Unicode, or that
// are UTF-8, lose to "?" what has no byte; any others are Windows-1252 already. Error 62: cut short, or no ZIP archive.
[[nodiscard]] std::unique_ptr<ArchivioAperto> ApriArchivioZip(std::string byte);

} // namespace lirmeto
