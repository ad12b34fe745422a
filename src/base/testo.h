#pragma once
// Text of the logic: std::string and std::string_view holding Windows-1252, one byte a character.
//
// Columns, lengths and overwrites are byte counts. A byte that Windows-1252 leaves undefined (81 8D 8F 90 9D) is kept
// as it is and shown as the C1 control of the same number, so that every byte survives a trip through Unicode.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Line end of every text the system holds or writes.
inline constexpr std::string_view FineRiga = "\r\n";

// Unicode code point of a Windows-1252 byte.
[[nodiscard]] char32_t UnicodeDaByte(unsigned char byte);

// Windows-1252 as UTF-8. Never fails.
[[nodiscard]] std::string AUtf8(std::string_view testo);

// UTF-8 as Windows-1252. A character that has no byte, or a broken sequence, becomes "?".
[[nodiscard]] std::string DaUtf8(std::string_view utf8);

// Whether DaUtf8 loses nothing of this text.
[[nodiscard]] bool RappresentabileDaUtf8(std::string_view utf8);

// Without the blanks (0x20 only) at both ends; a view into the argument.
[[nodiscard]] std::string_view Taglia(std::string_view testo);

// Upper and lower case of the Windows-1252 letters, accented ones too.
[[nodiscard]] char Maiuscolo(char lettera);
[[nodiscard]] char Minuscolo(char lettera);
[[nodiscard]] std::string Maiuscolo(std::string_view testo);
[[nodiscard]] std::string Minuscolo(std::string_view testo);

// A digit; a digit or a letter without accents.
[[nodiscard]] constexpr bool Cifra(char c) {
  return c >= '0' && c <= '9';
}
[[nodiscard]] constexpr bool LetteraOCifra(char c) {
  return Cifra(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
// Digits and nothing else, one at least.
[[nodiscard]] bool TutteCifre(std::string_view testo);

// Whether two texts are equal once both are upper-cased.
[[nodiscard]] bool UgualiSenzaCaso(std::string_view a, std::string_view b);
[[nodiscard]] bool FinisceConSenzaCaso(std::string_view testo, std::string_view coda);

[[nodiscard]] bool Contiene(std::string_view testo, std::string_view parte);

// Parts between separators, as views: an empty text has none, otherwise separators + 1.
// An empty separator divides nothing.
[[nodiscard]] std::vector<std::string_view> Dividi(std::string_view testo, std::string_view separatore);

// The part number `indice` (from 0) of a split at one character; empty when there are fewer parts.
[[nodiscard]] std::string_view Parte(std::string_view testo, char separatore, std::size_t indice);

// Number of parts a split at one character would give.
[[nodiscard]] std::size_t QuanteParti(std::string_view testo, char separatore);

[[nodiscard]] std::string Unisci(const std::vector<std::string_view>& parti, std::string_view separatore);

// Rows as one text, each followed by CR LF.
template <typename Righe>
[[nodiscard]] std::string RigheUnite(const Righe& righe) {
  std::size_t lungo = 0;
  for (const auto& riga : righe) lungo += riga.size() + FineRiga.size();
  std::string testo;
  testo.reserve(lungo);
  for (const auto& riga : righe) testo.append(riga).append(FineRiga);
  return testo;
}

// Plain replacement in one pass from left to right: what a replacement brings in is not looked at again.
[[nodiscard]] std::string Sostituisci(std::string_view testo, std::string_view da, std::string_view a);

// The text with a blank for each of these characters, which what it is written into cannot hold.
[[nodiscard]] std::string InBianchi(std::string_view testo, std::string_view lettere);

// A text for one line of a file: line ends are blanks.
[[nodiscard]] inline std::string SuUnaRiga(std::string_view testo) {
  return InBianchi(testo, FineRiga);
}

// The last `colonne` characters of the text with as many blanks before it: a longer text loses its beginning.
[[nodiscard]] std::string AllineaDestra(std::string_view testo, std::size_t colonne);

// The text with blanks behind it, cut to `colonne` characters.
[[nodiscard]] std::string RiempiECorta(std::string_view testo, std::size_t colonne);

// Any text with its lines (ended by CR LF, LF or CR) each followed by CR LF, the last one too.
[[nodiscard]] std::string ConFineRiga(std::string_view testo);
// The same; a text that has its line ends already is handed back and not copied.
[[nodiscard]] std::string ConFineRiga(std::string&& testo);

namespace dettaglio {

// Code points of the bytes 80 to 9F.
inline constexpr std::array<char32_t, 32> BloccoAlto = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                        0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

consteval char ByteDaUnicode(char32_t punto) {
  if (punto < 0x80 || (punto >= 0xA0 && punto < 0x100)) return static_cast<char>(punto);
  for (std::size_t i = 0; i < BloccoAlto.size(); ++i)
    if (BloccoAlto[i] == punto) return static_cast<char>(0x80 + i);
  throw "the literal holds a character that Windows-1252 has not";
}

// A literal turned from UTF-8 into Windows-1252 at compile time.
template <std::size_t N>
struct Letterale {
  std::array<char, N> byte{};
  std::size_t lunghezza = 0;

  consteval Letterale(const char (&utf8)[N]) { // NOLINT(google-explicit-constructor)
    for (std::size_t i = 0; i + 1 < N;) {
      const auto primo = static_cast<unsigned char>(utf8[i]);
      const std::size_t lungo = primo < 0x80 ? 1 : primo < 0xE0 ? 2 : 3;
      char32_t punto = lungo == 1 ? primo : lungo == 2 ? primo & 0x1FU : primo & 0x0FU;
      for (std::size_t k = 1; k < lungo; ++k) punto = (punto << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
      byte[lunghezza++] = ByteDaUnicode(punto);
      i += lungo;
    }
  }
};

} // namespace dettaglio

// "è già"_w: an accented literal of the source as Windows-1252; does not compile when a character does not fit.
// Append it to a std::string that stands already: clang 14 can fall over where a variable's initialiser makes a
// std::string of it.
template <dettaglio::Letterale testo>
[[nodiscard]] consteval std::string_view operator""_w() {
  return {testo.byte.data(), testo.lunghezza};
}

} // namespace lirmeto
