#include <piattaforma/elenco_zip.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::uint32_t FirmaLocale = 0x04034B50;
constexpr std::uint32_t FirmaCentrale = 0x02014B50;
constexpr std::string_view FirmaFine = "PK\5\6";
constexpr std::size_t LunghezzaLocale = 30; // of the records without what varies
constexpr std::size_t LunghezzaCentrale = 46;
constexpr std::size_t LunghezzaFine = 22;
constexpr std::size_t BitUnicode = 0x0800; // of the flags
constexpr std::size_t CampoUnicode = 0x7075;
constexpr std::size_t CampoIgnoto = 0xFFFF;

// Little-endian number; 0 where it does not lie within the archive.
std::size_t Numero(std::string_view archivio, std::size_t posto, std::size_t byte) {
  if (posto > archivio.size() || archivio.size() - posto < byte) return 0;
  std::size_t numero = 0;
  for (std::size_t i = byte; i > 0; --i) numero = numero << 8U | static_cast<unsigned char>(archivio[posto + i - 1]);
  return numero;
}

void Metti16(std::string& archivio, std::size_t posto, std::size_t numero) {
  if (posto + 2 > archivio.size()) return;
  archivio[posto] = static_cast<char>(numero & 0xFFU);
  archivio[posto + 1] = static_cast<char>(numero >> 8U);
}

std::string Pezzo(std::string_view archivio, std::size_t posto, std::size_t lungo) {
  return posto > archivio.size() ? std::string{} : std::string(archivio.substr(posto, lungo));
}

// Takes the mark off the flags; whether it was there.
bool TogliBitUnicode(std::string& archivio, std::size_t posto) {
  const std::size_t opzioni = Numero(archivio, posto, 2);
  Metti16(archivio, posto, opzioni & ~BitUnicode);
  return (opzioni & BitUnicode) != 0;
}

// Makes the extra field with the Unicode name, among those from `posto` to `fine`, one that nobody knows. The answer is
// that name: behind a version and the checksum of the plain one.
std::string TogliCampoUnicode(std::string& archivio, std::size_t posto, std::size_t fine) {
  constexpr std::size_t testa = 4;
  constexpr std::size_t primaDelNome = 5;
  std::string nome;
  fine = std::min(fine, archivio.size());
  while (posto + testa <= fine) {
    const std::size_t lungo = Numero(archivio, posto + 2, 2);
    if (Numero(archivio, posto, 2) == CampoUnicode) {
      if (lungo > primaDelNome && posto + testa + lungo <= fine)
        nome = Pezzo(archivio, posto + testa + primaDelNome, lungo - primaDelNome);
      Metti16(archivio, posto, CampoIgnoto);
    }
    posto += testa + lungo;
  }
  return nome;
}

// An entry by the places of its two headers.
void PreparaVoce(std::string& archivio, std::size_t centrale, std::size_t locale, ElencoZip& elenco) {
  const bool unicode = TogliBitUnicode(archivio, centrale + 8);
  const std::size_t lungo = Numero(archivio, centrale + 28, 2);
  TogliCampoUnicode(archivio, centrale + LunghezzaCentrale + lungo,
                    centrale + LunghezzaCentrale + lungo + Numero(archivio, centrale + 30, 2));
  if (Numero(archivio, locale, 4) != FirmaLocale) return;
  const bool unicodeLocale = TogliBitUnicode(archivio, locale + 6);
  const std::size_t fineNome = locale + LunghezzaLocale + Numero(archivio, locale + 26, 2);
  std::string nome = Pezzo(archivio, locale + LunghezzaLocale, fineNome - locale - LunghezzaLocale);
  std::string nomeUnicode = TogliCampoUnicode(archivio, fineNome, fineNome + Numero(archivio, locale + 28, 2));
  if (unicode || unicodeLocale) nomeUnicode = nome;
  std::replace(nome.begin(), nome.end(), '\\', '/'); // the library does so with some and not with others
  if (!nomeUnicode.empty()) elenco.nomiUnicode.insert_or_assign(std::move(nome), std::move(nomeUnicode));
}

// Where the last record stands; npos when there is none.
std::size_t PostoFine(std::string_view archivio) {
  if (archivio.size() < LunghezzaFine) return std::string_view::npos;
  return archivio.rfind(FirmaFine, archivio.size() - LunghezzaFine);
}

} // namespace

bool ZipSenzaVoci(std::string_view archivio) {
  const std::size_t fine = PostoFine(archivio);
  return fine == 0 && Numero(archivio, fine + 8, 4) == 0 && Numero(archivio, fine + 12, 4) == 0;
}

ElencoZip PreparaNomiZip(std::string& archivio) {
  ElencoZip elenco;
  const std::size_t fine = PostoFine(archivio);
  if (fine == std::string::npos) return elenco;
  elenco.quante = Numero(archivio, fine + 10, 2);
  const std::size_t lungo = Numero(archivio, fine + 12, 4);
  const std::size_t detto = Numero(archivio, fine + 16, 4);
  if (lungo > fine || detto > fine - lungo) return elenco;
  std::size_t centrale =
      fine - lungo; // something may stand before the archive: then places are told from its beginning
  const std::size_t prima = centrale - detto;
  while (Numero(archivio, centrale, 4) == FirmaCentrale) {
    PreparaVoce(archivio, centrale, Numero(archivio, centrale + 42, 4) + prima, elenco);
    centrale += LunghezzaCentrale + Numero(archivio, centrale + 28, 2) + Numero(archivio, centrale + 30, 2) +
                Numero(archivio, centrale + 32, 2);
  }
  return elenco;
}

} // namespace lirmeto
