#pragma once
// The command line, read.

#include <base/data.h>
#include <base/dialoghi.h>
#include <cli/comandi.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lirmeto {

struct Opzioni {
  std::optional<std::filesystem::path> dischi;
  std::optional<Data> oggi;
  std::vector<Risposta> risposte;              // in the order of the questions
  std::optional<std::filesystem::path> uscita; // standard output when there is none
  const ComandoCli* comando = nullptr;
  std::vector<std::string> argomenti; // of the command, as they were typed (UTF-8)
};

// A command line that asks for no work: the help, or a mistake.
struct NienteDaFare {
  int codice = 0;     // of exit
  std::string uscita; // for standard output
  std::string errore; // for standard error
};

// The words behind the program's name. The exit code of a wrong usage is 2.
[[nodiscard]] std::variant<Opzioni, NienteDaFare> LeggiOpzioni(const std::vector<std::string>& parole);

// "AAAA-MM-GG", a day of the calendar; none for anything else.
[[nodiscard]] std::optional<Data> LeggiData(std::string_view testo);

} // namespace lirmeto
