#include <supporto/zip_file.h>

#include <base/errore.h>
#include <base/percorsi.h>

#include <algorithm>
#include <memory>
#include <zlib.h>

namespace lirmeto {

namespace {

constexpr std::size_t Versione = 20; // of the format: folders and deflate
constexpr std::size_t Opzioni = 2;   // of the compression, as the headers tell it
constexpr std::size_t Deflate = 8;
constexpr std::size_t AttributiEsterni = 32; // the archive bit of a file
constexpr std::size_t Massimo32 = 0xFFFFFFFF;

constexpr std::size_t FirmaLocale = 0x04034B50;
constexpr std::size_t FirmaCentrale = 0x02014B50;
constexpr std::size_t FirmaFine = 0x06054B50;

// What surrounds the raw stream in what compress gives.
constexpr std::size_t TestaZlib = 2;
constexpr std::size_t CodaZlib = 4;

void Campo(std::string& archivio, std::size_t valore, int byte) {
  if (valore >> (8 * byte) != 0) throw Errore(errore::Overflow);
  for (int i = 0; i < byte; ++i) archivio += static_cast<char>((valore >> (8 * i)) & 0xFFU);
}

void Campo16(std::string& archivio, std::size_t valore) {
  Campo(archivio, valore, 2);
}

void Campo32(std::string& archivio, std::size_t valore) {
  Campo(archivio, valore, 4);
}

// The fields that both headers tell in the same order: from the version needed to the length of the (empty) extra
// field.
void CampiComuni(const ZipFile& file, std::string& archivio) {
  Campo16(archivio, Versione);
  Campo16(archivio, Opzioni);
  Campo16(archivio, Deflate);
  Campo16(archivio, file.ora);
  Campo16(archivio, file.data);
  Campo32(archivio, file.crc);
  Campo32(archivio, file.dati.size());
  Campo32(archivio, file.dimensione);
  Campo16(archivio, file.nome.size());
  Campo16(archivio, 0);
}

std::string Comprimi(const std::string& byte) {
  uLongf lungo = compressBound(static_cast<uLong>(byte.size()));
  const auto spazio = std::make_unique_for_overwrite<Bytef[]>(lungo);
  const int esito =
      compress(spazio.get(), &lungo, reinterpret_cast<const Bytef*>(byte.data()), static_cast<uLong>(byte.size()));
  if (esito != Z_OK) throw Errore(errore::MemoriaEsaurita); // the room is enough: nothing else can fail
  return {reinterpret_cast<const char*>(spazio.get()) + TestaZlib, lungo - TestaZlib - CodaZlib};
}

std::size_t Compreso(int valore, int minimo, int massimo) {
  return static_cast<std::size_t>(std::clamp(valore, minimo, massimo));
}

} // namespace

std::uint16_t DataDos(const Data& data) {
  constexpr int primo = 1980;
  constexpr int ultimo = primo + 127;
  if (data.anno < primo) return DataDos({primo, 1, 1});
  if (data.anno > ultimo) return DataDos({ultimo, 12, 31});
  return static_cast<std::uint16_t>(Compreso(data.giorno, 1, 31) | Compreso(data.mese, 1, 12) << 5U |
                                    Compreso(data.anno - primo, 0, 127) << 9U);
}

std::uint16_t OraDos(const Ora& ora) {
  return static_cast<std::uint16_t>(Compreso(ora.secondi / 2, 0, 29) | Compreso(ora.minuti, 0, 59) << 5U |
                                    Compreso(ora.ore, 0, 23) << 11U);
}

ZipFile LeggiZipFile(const Disco& disco, std::string_view percorso) {
  const Istante modificato = disco.Modificato(percorso);
  const std::string byte = disco.Leggi(percorso);
  if (byte.size() > Massimo32) throw Errore(errore::Overflow);
  ZipFile file;
  file.nome = NomeDaPercorso(percorso);
  file.data = DataDos(modificato.data);
  file.ora = OraDos(modificato.ora);
  file.crc =
      static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const Bytef*>(byte.data()), static_cast<uInt>(byte.size())));
  file.dimensione = byte.size();
  file.dati = Comprimi(byte);
  return file;
}

void ScriviLocale(ZipFile& file, std::string& archivio) {
  file.posizioneLocale = archivio.size();
  Campo32(archivio, FirmaLocale);
  CampiComuni(file, archivio);
  archivio += file.nome;
  archivio += file.dati;
}

void ScriviCentrale(const ZipFile& file, std::string& archivio) {
  Campo32(archivio, FirmaCentrale);
  Campo16(archivio, Versione); // made by
  CampiComuni(file, archivio);
  Campo16(archivio, file.commento.size());
  Campo16(archivio, 0); // disk
  Campo16(archivio, 0); // internal attributes
  Campo32(archivio, AttributiEsterni);
  Campo32(archivio, file.posizioneLocale);
  archivio += file.nome;
  archivio += file.commento;
}

void ScriviFine(std::size_t quanti, std::size_t inizioElenco, std::string& archivio) {
  const std::size_t lungo = archivio.size() - inizioElenco;
  Campo32(archivio, FirmaFine);
  Campo16(archivio, 0); // this disk, and the one where the directory begins
  Campo16(archivio, 0);
  Campo16(archivio, quanti);
  Campo16(archivio, quanti);
  Campo32(archivio, lungo);
  Campo32(archivio, inizioElenco);
  Campo16(archivio, 0); // letters of a comment
}

} // namespace lirmeto
