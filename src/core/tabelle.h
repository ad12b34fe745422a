#pragma once
// The installation's tables, loaded once a session: comuni, province, colleges,
// qualities.

#include <base/macchina.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct Comune {
  std::string codice;    // cadastral code, with the section behind it where there
                         // is one: "G224", "A001B"
  std::string campo;     // four characters of unknown use, "D3AA"
  std::string provincia; // "PD"
  std::string nome;      // "PADOVA"
};

struct CodiceENome {
  std::string codice;
  std::string nome;
};

inline constexpr std::size_t MassimoProvince = 111;
inline constexpr std::size_t MassimoCollegi = 131;
inline constexpr std::size_t MassimoQualita = 501;

// Records of a comunt.dat: the bytes are cut at "@B" and the piece before the
// first marker is none. Columns, from 1: 1 section (behind the code), 2-5 code,
// 27-28 province, 29-62 name, 63-66 the four characters. A piece that is cut
// short reads as blanks where it ends.
//   " G224PADOVA             PDPDPADOVA                            D3AA"
[[nodiscard]] std::vector<Comune> LeggiComuni(std::string_view byte);

// Lines "code,name" of a prosigle. Throws Errore 9 above 111 lines.
[[nodiscard]] std::vector<CodiceENome> LeggiProvince(std::string_view testo);

// Lines of two values at a comma, both trimmed, of a collegi.txt. Throws Errore
// 9 above 131 lines.
[[nodiscard]] std::vector<CodiceENome> LeggiCollegi(std::string_view testo);

// Entries of a qualita.txt: the first line is skipped; each further one gives a
// three-character code, three blanks and its first twelve characters. Throws
// Errore 9 above 501 entries.
[[nodiscard]] std::vector<std::string> LeggiQualita(std::string_view testo);

// The code of a quality: the first entry that holds the name gives its first five characters, trimmed, or its first
// three. The name is searched as it stands, blanks and all: "PRATO       " is not in "PRATO IRRIG". A name that no entry
// holds stays as it was.
[[nodiscard]] std::string QualitaDaNome(const std::vector<std::string>& tabella, std::string_view nome);
[[nodiscard]] std::string CodiceQualita(const std::vector<std::string>& tabella, std::string_view nome);

[[nodiscard]] const Comune* TrovaComune(const std::vector<Comune>& tabella, std::string_view codice);
[[nodiscard]] const CodiceENome* TrovaPerCodice(const std::vector<CodiceENome>& tabella, std::string_view codice);

} // namespace lirmeto
