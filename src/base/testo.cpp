#include <base/testo.h>

#include <algorithm>
#include <cstring>

namespace lirmeto {

namespace {

using dettaglio::BloccoAlto;

constexpr unsigned char NonRappresentabile = 0;

// Byte of a code point; NonRappresentabile when there is none (U+0000 itself is
// told apart by the caller).
unsigned char ByteDaPunto(char32_t punto) {
  if (punto < 0x80 || (punto >= 0xA0 && punto < 0x100)) return static_cast<unsigned char>(punto);
  const auto* trovato = std::find(BloccoAlto.begin(), BloccoAlto.end(), punto);
  return trovato == BloccoAlto.end() ? NonRappresentabile
                                     : static_cast<unsigned char>(0x80 + (trovato - BloccoAlto.begin()));
}

struct Punto {
  char32_t codice = 0;
  std::size_t lungo = 1; // bytes taken
  bool valido = false;
};

bool Continuazione(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The UTF-8 sequence at the beginning of a text that is not empty.
Punto PrimoPunto(std::string_view utf8) {
  const auto primo = static_cast<unsigned char>(utf8[0]);
  if (primo < 0x80) return {primo, 1, true};
  const std::size_t lungo = primo >= 0xF0 ? 4 : primo >= 0xE0 ? 3 : 2;
  if (primo < 0xC2 || primo > 0xF4 || utf8.size() < lungo) return {};
  char32_t codice = primo & (0xFFU >> (lungo + 1));
  for (std::size_t i = 1; i < lungo; ++i) {
    if (!Continuazione(utf8[i])) return {};
    codice = (codice << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
  }
  return {codice, lungo, true};
}

void AggiungiUtf8(std::string& uscita, char32_t punto) {
  if (punto < 0x80) {
    uscita += static_cast<char>(punto);
  } else if (punto < 0x800) {
    uscita += static_cast<char>(0xC0U | (punto >> 6));
    uscita += static_cast<char>(0x80U | (punto & 0x3FU));
  } else {
    uscita += static_cast<char>(0xE0U | (punto >> 12));
    uscita += static_cast<char>(0x80U | ((punto >> 6) & 0x3FU));
    uscita += static_cast<char>(0x80U | (punto & 0x3FU));
  }
}

using TabellaByte = std::array<char, 256>;

// Letters of the upper half stand 32 apart, but for the pairs of the block
// 80-9F and the y with diaeresis; the multiplication and division signs, the
// sharp s and the florin have no other case.
constexpr TabellaByte CreaMaiuscole() {
  TabellaByte tabella{};
  for (int i = 0; i < 256; ++i) {
    const bool lettera = (i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7);
    tabella[static_cast<std::size_t>(i)] = static_cast<char>(lettera ? i - 0x20 : i);
  }
  tabella[0x9A] = static_cast<char>(0x8A);
  tabella[0x9C] = static_cast<char>(0x8C);
  tabella[0x9E] = static_cast<char>(0x8E);
  tabella[0xFF] = static_cast<char>(0x9F);
  return tabella;
}

constexpr TabellaByte Maiuscole = CreaMaiuscole();

constexpr TabellaByte CreaMinuscole() {
  TabellaByte tabella{};
  for (std::size_t i = 0; i < 256; ++i) tabella[i] = static_cast<char>(i);
  for (std::size_t i = 0; i < 256; ++i)
    if (const auto alta = static_cast<unsigned char>(Maiuscole[i]); alta != i) tabella[alta] = static_cast<char>(i);
  return tabella;
}

constexpr TabellaByte Minuscole = CreaMinuscole();

std::string Tradotto(std::string_view testo, const TabellaByte& tabella) {
  std::string uscita(testo);
  for (char& c : uscita) c = tabella[static_cast<unsigned char>(c)];
  return uscita;
}

// Whether every line is closed by CR LF and neither stands anywhere else.
bool GiaConFineRiga(std::string_view testo) {
  while (!testo.empty()) {
    const std::size_t fine = testo.find('\r');
    if (fine == std::string_view::npos || fine + 1 == testo.size() || testo[fine + 1] != '\n') return false;
    if (testo.substr(0, fine).find('\n') != std::string_view::npos) return false;
    testo.remove_prefix(fine + FineRiga.size());
  }
  return true;
}

} // namespace

char32_t UnicodeDaByte(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? BloccoAlto[byte - 0x80U] : byte;
}

std::string AUtf8(std::string_view testo) {
  std::string uscita;
  uscita.reserve(testo.size() + testo.size() / 8);
  for (const char c : testo) AggiungiUtf8(uscita, UnicodeDaByte(static_cast<unsigned char>(c)));
  return uscita;
}

std::string DaUtf8(std::string_view utf8) {
  std::string uscita;
  uscita.reserve(utf8.size());
  while (!utf8.empty()) {
    const Punto punto = PrimoPunto(utf8);
    const unsigned char byte = punto.valido ? ByteDaPunto(punto.codice) : NonRappresentabile;
    const bool perso = byte == NonRappresentabile && !(punto.valido && punto.codice == 0);
    uscita += perso ? '?' : static_cast<char>(byte);
    utf8.remove_prefix(punto.lungo);
  }
  return uscita;
}

bool RappresentabileDaUtf8(std::string_view utf8) {
  return AUtf8(DaUtf8(utf8)) == utf8;
}

std::string_view Taglia(std::string_view testo) {
  while (!testo.empty() && testo.front() == ' ') testo.remove_prefix(1);
  while (!testo.empty() && testo.back() == ' ') testo.remove_suffix(1);
  return testo;
}

char Maiuscolo(char lettera) {
  return Maiuscole[static_cast<unsigned char>(lettera)];
}
char Minuscolo(char lettera) {
  return Minuscole[static_cast<unsigned char>(lettera)];
}
std::string Maiuscolo(std::string_view testo) {
  return Tradotto(testo, Maiuscole);
}
std::string Minuscolo(std::string_view testo) {
  return Tradotto(testo, Minuscole);
}

bool TutteCifre(std::string_view testo) {
  return !testo.empty() && std::all_of(testo.begin(), testo.end(), Cifra);
}

bool UgualiSenzaCaso(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Maiuscolo(x) == Maiuscolo(y); });
}

bool FinisceConSenzaCaso(std::string_view testo, std::string_view coda) {
  return testo.size() >= coda.size() && UgualiSenzaCaso(testo.substr(testo.size() - coda.size()), coda);
}

bool Contiene(std::string_view testo, std::string_view parte) {
  return testo.find(parte) != std::string_view::npos;
}

std::vector<std::string_view> Dividi(std::string_view testo, std::string_view separatore) {
  std::vector<std::string_view> parti;
  if (testo.empty()) return parti;
  if (separatore.empty()) return {testo};
  constexpr std::size_t moltiCampi = 12;
  parti.reserve(moltiCampi);
  std::size_t inizio = 0;
  for (std::size_t qui = testo.find(separatore); qui != std::string_view::npos; qui = testo.find(separatore, inizio)) {
    parti.push_back(testo.substr(inizio, qui - inizio));
    inizio = qui + separatore.size();
  }
  parti.push_back(testo.substr(inizio));
  return parti;
}

std::string_view Parte(std::string_view testo, char separatore, std::size_t indice) {
  for (; indice > 0; --indice) {
    const std::size_t qui = testo.find(separatore);
    if (qui == std::string_view::npos) return {};
    testo.remove_prefix(qui + 1);
  }
  return testo.substr(0, testo.find(separatore));
}

std::size_t QuanteParti(std::string_view testo, char separatore) {
  return testo.empty() ? 0 : static_cast<std::size_t>(std::count(testo.begin(), testo.end(), separatore)) + 1;
}

std::string Unisci(const std::vector<std::string_view>& parti, std::string_view separatore) {
  std::size_t lungo = parti.empty() ? 0 : separatore.size() * (parti.size() - 1);
  for (const auto parte : parti) lungo += parte.size();
  std::string uscita;
  uscita.reserve(lungo);
  for (std::size_t i = 0; i < parti.size(); ++i) {
    if (i > 0) uscita += separatore;
    uscita += parti[i];
  }
  return uscita;
}

std::string Sostituisci(std::string_view testo, std::string_view da, std::string_view a) {
  if (da.empty()) return std::string(testo);
  std::string uscita;
  uscita.reserve(testo.size());
  std::size_t inizio = 0;
  for (std::size_t qui = testo.find(da); qui != std::string_view::npos; qui = testo.find(da, inizio)) {
    uscita.append(testo, inizio, qui - inizio);
    uscita += a;
    inizio = qui + da.size();
  }
  uscita.append(testo, inizio);
  return uscita;
}

std::string InBianchi(std::string_view testo, std::string_view lettere) {
  std::string mutato(testo);
  for (std::size_t i = mutato.find_first_of(lettere); i != std::string::npos; i = mutato.find_first_of(lettere, i))
    mutato[i] = ' ';
  return mutato;
}

std::string AllineaDestra(std::string_view testo, std::size_t colonne) {
  if (testo.size() >= colonne) return std::string(testo.substr(testo.size() - colonne));
  std::string uscita(colonne - testo.size(), ' ');
  uscita += testo;
  return uscita;
}

std::string RiempiECorta(std::string_view testo, std::size_t colonne) {
  std::string uscita(testo.substr(0, colonne));
  uscita.resize(colonne, ' ');
  return uscita;
}

std::string ConFineRiga(std::string&& testo) {
  return GiaConFineRiga(testo) ? std::move(testo) : ConFineRiga(std::string_view(testo));
}

std::string ConFineRiga(std::string_view testo) {
  std::string uscita;
  uscita.reserve(testo.size() + testo.size() / 32 + 2);
  std::size_t inizio = 0;
  std::size_t cr = testo.find('\r'); // the next of each kind, looked for again only once it is passed
  std::size_t lf = testo.find('\n');
  while (inizio < testo.size()) {
    const std::size_t fine = std::min({cr, lf, testo.size()});
    uscita.append(testo, inizio, fine - inizio);
    uscita += FineRiga;
    inizio = fine + (fine == cr && lf == cr + 1 ? 2 : 1);
    if (cr < inizio) cr = testo.find('\r', inizio);
    if (lf < inizio) lf = testo.find('\n', inizio);
  }
  return uscita;
}

} // namespace lirmeto
