#pragma once
// Runs the real program on a machine of the test's own: its drives, its home, its installation.

#include <piattaforma/cartella_provvisoria.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto::prova {

struct Esito {
  int codice = -1; // of exit; -1 when a signal ended the program
  std::string uscita;
  std::string errori;
};

class ProvaCli : public testing::Test {
protected:
  ProvaCli();

  // With the test's drives and the date 21-11-2024. Where a system has them, `canaleUscita` stands in for standard output;
  // none closes it.
  [[nodiscard]] Esito Lancia(std::vector<std::string> parole) const;
  [[nodiscard]] Esito Lancia(std::vector<std::string> parole, std::optional<int> canaleUscita) const;

  // A file outside the drives; the answer is its path as a word of the command line.
  [[nodiscard]] std::string Metti(const std::string& nome, std::string_view byte) const {
    const std::u8string utf8 = cartella.Metti("fuori/" + nome, byte).u8string();
    return {utf8.begin(), utf8.end()};
  }

  CartellaProvvisoria cartella; // drives in dischi/, home in casa/, everything else in fuori/
};

} // namespace lirmeto::prova
