#include <supporto/codice_fiscale.h>

#include <base/testo.h>

#include <array>
#include <optional>

namespace lirmeto {

namespace {

constexpr std::size_t Lunghezza = 16;
constexpr std::size_t Lettere = 26;

// Value of each letter, or of the digit at its place, where it stands in an odd position counted from 1.
constexpr std::array<std::size_t, Lettere> ValoriDispari = {1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                                            20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};

// Place in the alphabet, from 0, of a capital letter or of the letter that a digit counts as.
std::optional<std::size_t> Posto(char carattere) {
  if (carattere >= '0' && carattere <= '9') return static_cast<std::size_t>(carattere - '0');
  if (carattere >= 'A' && carattere <= 'Z') return static_cast<std::size_t>(carattere - 'A');
  return std::nullopt;
}

// None when a character is neither letter nor digit.
std::optional<char> LetteraDiControllo(std::string_view codice) {
  std::size_t somma = 0;
  for (std::size_t i = 0; i + 1 < Lunghezza; ++i) {
    const auto posto = Posto(codice[i]);
    if (!posto) return std::nullopt;
    somma += i % 2 == 0 ? ValoriDispari[*posto] : *posto; // index 0 is position 1, an odd one
  }
  return static_cast<char>('A' + somma % Lettere);
}

} // namespace

std::string_view ControllaCodiceFiscale(std::string_view codice) {
  if (codice.size() != Lunghezza) return CodiceErrato;
  const std::string maiuscolo = Maiuscolo(codice);
  return LetteraDiControllo(maiuscolo) == maiuscolo.back() ? CodiceCorretto : CodiceErrato;
}

} // namespace lirmeto
