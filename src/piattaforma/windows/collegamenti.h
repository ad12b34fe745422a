#pragma once
// Shortcuts and other services of the Windows shell.

#include <base/macchina.h>

#include <filesystem>
#include <string>

namespace lirmeto {

// The folder of the user where such shortcuts lie. Error 76: there is none.
[[nodiscard]] std::filesystem::path CartellaDelPosto(PostoCollegamento posto);

// Writes a shortcut to a program, which starts in its own folder. Errors: 70, 75, 76.
void ScriviCollegamento(const std::filesystem::path& file, const std::filesystem::path& programma);

// Opens a file, a folder or a page of the web with what the user has for it; `nome` is what the user knows it by. Error 75.
void ApriConLaShell(const std::filesystem::path& cosa, const std::string& nome);

// Clears the desktop of windows.
void SgombraDesktop();

} // namespace lirmeto
