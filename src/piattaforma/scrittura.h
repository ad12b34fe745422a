#pragma once
// The steps of writing a whole file, each as the system does it.

#include <filesystem>
#include <optional>
#include <string_view>

namespace lirmeto {

// The file that a chain of links leads to, there or not. Error 75: a chain without an end.
[[nodiscard]] std::filesystem::path SeguiCollegamenti(const std::filesystem::path& file);

// What can be told before anything is touched. Errors as ScriviFileOspite.
void ControllaScrittura(const std::filesystem::path& file, std::size_t byte);

// Whether the file was written beside and put in its place; false where that is not possible, and then nothing happened.
// `sicuro` as in ScriviFileOspite.
[[nodiscard]] bool ScriviAccanto(const std::filesystem::path& file, std::string_view contenuto, bool sicuro);

// In its place, from the first byte to the last; what the file had more of goes at the end.
void Riscrivi(const std::filesystem::path& file, std::string_view contenuto);

// A whole copy, beginning with this name, under one that nothing has; none where it cannot be made.
[[nodiscard]] std::optional<std::filesystem::path>
CopiaIn(const std::filesystem::path& cartella, const std::filesystem::path& nome, std::string_view contenuto);

// A file that nobody misses when it stays.
void Togli(const std::filesystem::path& file);

} // namespace lirmeto
