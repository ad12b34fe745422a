#pragma once
// Numbers as the rows write and read them: always a point as decimal sign, no
// locale, no error for a bad text.

#include <string>
#include <string_view>

namespace lirmeto {

// Numeric value of a text: the longest prefix that is a number, else 0. Never
// an error, never infinite (a number too large becomes the largest finite one).
//
//   number   = [sign] (digits ["." [digits]] | "." digits) [exponent]
//   exponent = ("E" | "e" | "D" | "d") [sign] digits
//
// Blanks (space and tab) are skipped before and inside: "1 2.5|x" is 12.5,
// "12E+" is 12, "1D3" is 1000, "-.5" is -0.5;
// "", ".", "-", "E5", "x8" are 0.
[[nodiscard]] double Valore(std::string_view testo);

// Whether the whole text, trimmed, is one number by the grammar above. The
// empty text is not.
[[nodiscard]] bool ENumero(std::string_view testo);

// A number in a picture format such as "#########0.##0".
//
// The number is read as a decimal with fifteen significant digits, then rounded
// to the picture's places, halves away from zero. "#" is an optional digit, "0"
// a required one, and a required digit makes those between it and the point
// required. No digit stands before the point unless the picture requires one or
// the value has one; the point itself stands whenever the picture has it. A
// result that rounds to zero has no minus sign.
//   0.5 in "####.00" is ".50"; 1.5 in "##0.#0#" is "1.50"; 0 in "####" is "";
//   -0.001 in "0.00" is "0.00"
// Throws Errore 5 for a picture with any other character, 6 for a value that is
// not finite.
[[nodiscard]] std::string Formatta(double valore, std::string_view formato);

// A double as full text: at most fifteen significant digits, no trailing zeros,
// "0.5" and not ".5"; exponent form
// ("1.5E+16", "2E-06") only below 1E-5 and above 1E15. Throws Errore 6 for a
// value that is not finite.
[[nodiscard]] std::string TestoPieno(double valore);

// A whole number as text.
[[nodiscard]] std::string TestoIntero(long long valore);

} // namespace lirmeto
