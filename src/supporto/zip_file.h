#pragma once
// One entry of a ZIP archive and its records, written field by field.

#include <base/macchina.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace lirmeto {

// A whole file as an archive keeps it: a raw deflate stream with what its two headers tell. Names are Windows-1252.
struct ZipFile {
  std::string nome;
  std::string commento;
  std::string dati;                // the deflate stream
  std::uint16_t ora = 0;           // MS-DOS: seconds / 2 in bits 0-4, minutes in 5-10, hours in 11-15
  std::uint16_t data = 0;          // MS-DOS: day in bits 0-4, month in 5-8, years since 1980 in 9-15
  std::uint32_t crc = 0;           // CRC-32 of the file
  std::size_t dimensione = 0;      // of the file, bytes
  std::size_t posizioneLocale = 0; // of its local header in the archive, from 0
};

// Reads and compresses a file; its name is the last part of the path. Errors: those of Disco::Leggi, 6 for a file of
// 4 GB or more.
[[nodiscard]] ZipFile LeggiZipFile(const Disco& disco, std::string_view percorso);

// Local header, name and data at the end of an archive under way; remembers where they stand. Error 6 for a value that
// its field cannot hold.
void ScriviLocale(ZipFile& file, std::string& archivio);

// Central header, name and comment. Error 6 likewise.
void ScriviCentrale(const ZipFile& file, std::string& archivio);

// The record that ends an archive of so many entries, whose central directory begins at `inizioElenco` and ends here.
// Error 6 likewise.
void ScriviFine(std::size_t quanti, std::size_t inizioElenco, std::string& archivio);

// A moment in the MS-DOS packing, which knows the years 1980 to 2107: one before or behind them is told as its nearest.
[[nodiscard]] std::uint16_t DataDos(const Data& data);
[[nodiscard]] std::uint16_t OraDos(const Ora& ora);

} // namespace lirmeto
