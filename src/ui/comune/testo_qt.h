#pragma once
// The border between Windows-1252, the logic's text, and Qt's Unicode.

#include <QString>

#include <string>
#include <string_view>

class QTextDocument;

namespace lirmeto::ui {

[[nodiscard]] QString AQString(std::string_view testo);

// A character that Windows-1252 has not becomes "?".
[[nodiscard]] std::string DaQString(const QString& testo);

// All of a document's text with its lines parted by CR LF. Unlike
// QTextDocument's own plain text it keeps the byte A0, the blank that does not
// break.
[[nodiscard]] std::string TestoDocumento(const QTextDocument& documento);

// The same text in upper or lower case, letter by letter and of the same
// length.
[[nodiscard]] QString InMaiuscolo(const QString& testo);
[[nodiscard]] QString InMinuscolo(const QString& testo);

// Text for a painted row: one glyph a byte, control characters shown as a dot.
[[nodiscard]] QString PerDisegno(std::string_view testo);

// Text for a message box: line ends as Qt wants them, a part too long for a
// screen cut with "...".
[[nodiscard]] QString PerMessaggio(std::string_view testo);

} // namespace lirmeto::ui
