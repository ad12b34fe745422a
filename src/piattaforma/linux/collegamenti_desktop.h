#pragma once
// Shortcuts of a Linux desktop, after the published Desktop Entry and XDG user directories conventions.

#include <base/macchina.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace lirmeto {

struct CollegamentoOspite {
  PostoCollegamento posto;
  std::string nome; // UTF-8
  std::filesystem::path programma;
  std::filesystem::path dischi; // told to the program as LIRMETO_DISCHI
};

// Writes NAME.desktop into the folder of its place, which is made when it is missing; a program of Windows is started
// through wine. Errors: 70, 75, 76 for the quick-launch bar, which no such desktop has.
void ScriviCollegamento(const CollegamentoOspite& collegamento);

// The user's desktop folder as a user-dirs.dirs tells it: XDG_DESKTOP_DIR="$HOME/Scrivania" or with an absolute path;
// anything else is passed over and gives HOME/Desktop.
[[nodiscard]] std::filesystem::path CartellaDesktop(std::string_view userDirs, const std::filesystem::path& casa);

} // namespace lirmeto
