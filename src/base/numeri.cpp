#include <base/numeri.h>

#include <base/errore.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

namespace lirmeto {

namespace {

bool Bianco(char c) {
  return c == ' ' || c == '\t';
}

// Reads the number grammar from left to right and keeps its characters without
// blanks. `fatte` marks what the longest prefix took of the text.
class LettoreNumero {
public:
  explicit LettoreNumero(std::string_view testo) : testo_(testo) {}

  // The longest prefix that is a number, blanks removed, with "e" as exponent
  // mark; empty when there is none.
  std::string Prefisso() {
    Segno();
    std::size_t cifre = Cifre();
    if (Guarda() == '.') {
      Prendi('.');
      cifre += Cifre();
    }
    if (cifre == 0) return {};
    fatte_ = qui_;
    std::string mantissa = presi_;
    return Esponente() ? presi_ : mantissa;
  }

  // Whether nothing but blanks stands behind the number that Prefisso read.
  [[nodiscard]] bool Tutto() const {
    for (std::size_t i = fatte_; i < testo_.size(); ++i)
      if (!Bianco(testo_[i])) return false;
    return true;
  }

private:
  // The next character that is no blank; 0 at the end.
  char Guarda() {
    while (qui_ < testo_.size() && Bianco(testo_[qui_])) ++qui_;
    return qui_ < testo_.size() ? testo_[qui_] : '\0';
  }
  void Prendi(char come) {
    presi_ += come;
    ++qui_;
  }
  void Segno() {
    if (const char c = Guarda(); c == '+' || c == '-') Prendi(c);
  }
  std::size_t Cifre() {
    std::size_t quante = 0;
    for (char c = Guarda(); Cifra(c); c = Guarda(), ++quante) Prendi(c);
    return quante;
  }
  bool Esponente() {
    if (const char c = Minuscolo(Guarda()); c != 'e' && c != 'd') return false;
    Prendi('e');
    Segno();
    if (Cifre() == 0) return false;
    fatte_ = qui_;
    return true;
  }

  std::string_view testo_;
  std::string presi_;
  std::size_t qui_ = 0;
  std::size_t fatte_ = 0;
};

// Whether a number that is none of those a double holds lies below 1: the place of its first digit and its exponent
// together tell, since either alone may be the large one.
bool MinoreDiUno(std::string_view numero) {
  const std::size_t e = std::min(numero.find('e'), numero.size());
  const std::string_view mantissa = numero.substr(0, e);
  const auto punto = static_cast<long long>(std::min(mantissa.find('.'), e));
  const auto prima = static_cast<long long>(mantissa.find_first_of("123456789"));
  std::string_view potenza = numero.substr(std::min(e + 1, numero.size()));
  if (potenza.starts_with('+')) potenza.remove_prefix(1);
  long long esponente = 0;
  const auto esito = std::from_chars(potenza.data(), potenza.data() + potenza.size(), esponente);
  if (esito.ec == std::errc::result_out_of_range) return potenza.starts_with('-');
  return esponente < prima - punto;
}

// Value of a text that is a number; from_chars takes no plus sign in front of
// the mantissa.
double ValoreDiNumero(std::string_view numero) {
  if (numero.front() == '+') numero.remove_prefix(1);
  double valore = 0;
  const auto esito = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
  if (esito.ec == std::errc::result_out_of_range) {
    const double limite = MinoreDiUno(numero) ? 0.0 : std::numeric_limits<double>::max();
    return numero.front() == '-' ? -limite : limite;
  }
  return valore;
}

// The value of a text as nearly all rows have it: a minus or none, digits, perhaps a point and digits, and then nothing
// that could still belong to the number. None for any other text, a number too large or too small among them.
std::optional<double> ValoreSemplice(std::string_view testo) {
  const char* const inizio = testo.data();
  const char* const fine = inizio + testo.size();
  const char* qui = inizio;
  if (qui != fine && *qui == '-') ++qui;
  const char* const primaCifra = qui;
  while (qui != fine && Cifra(*qui)) ++qui;
  if (qui == primaCifra) return std::nullopt;
  if (qui != fine && *qui == '.')
    for (++qui; qui != fine && Cifra(*qui);) ++qui;
  if (qui != fine && std::string_view(" \teEdD").find(*qui) != std::string_view::npos) return std::nullopt;
  double valore = 0;
  if (std::from_chars(inizio, qui, valore).ec != std::errc{}) return std::nullopt;
  return valore;
}

// A number as a decimal: 0.d1d2d3... times ten to the power `punto`, at most
// fifteen significant digits.
struct Decimale {
  std::string cifre; // no zeros at the end; empty for 0
  int punto = 0;
  bool negativo = false;
};

constexpr int CifreSignificative = 15;

Decimale DecimaleDa(double valore) {
  if (!std::isfinite(valore)) throw Errore(errore::Overflow);
  Decimale decimale;
  if (valore == 0) return decimale;
  decimale.negativo = valore < 0;
  std::array<char, 32> testo{};
  const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), std::fabs(valore),
                                  std::chars_format::scientific, CifreSignificative - 1);
  const std::string_view scritto(testo.data(), static_cast<std::size_t>(fine.ptr - testo.data()));
  const std::size_t e = scritto.find('e');
  decimale.cifre = std::string(scritto.substr(0, 1)) + std::string(scritto.substr(2, e - 2));
  decimale.cifre.erase(decimale.cifre.find_last_not_of('0') + 1);
  int esponente = 0;
  const std::size_t inizio = e + (scritto[e + 1] == '+' ? 2 : 1);
  std::from_chars(scritto.data() + inizio, scritto.data() + scritto.size(), esponente);
  decimale.punto = esponente + 1;
  return decimale;
}

// Digit at the place `posto` (0 the units, -1 the first decimal, 1 the tens).
char CifraAlPosto(const Decimale& decimale, int posto) {
  const int indice = decimale.punto - 1 - posto;
  const bool dentro = indice >= 0 && indice < static_cast<int>(decimale.cifre.size());
  return dentro ? decimale.cifre[static_cast<std::size_t>(indice)] : '0';
}

// Adds one to the last digit of a text of digits, which may grow by one in
// front.
void AggiungiUno(std::string& cifre) {
  auto i = cifre.size();
  while (i > 0 && cifre[i - 1] == '9') cifre[--i] = '0';
  if (i == 0)
    cifre.insert(cifre.begin(), '1');
  else
    ++cifre[i - 1];
}

struct ParteFormato {
  std::size_t posti = 0;     // places the picture has
  std::size_t richieste = 0; // places required, counted from the point
};

struct Formato {
  ParteFormato interi;
  ParteFormato decimali;
  bool punto = false;
};

Formato LeggiFormato(std::string_view testo) {
  if (testo.find_first_not_of("#0.") != std::string_view::npos) throw Errore(errore::ArgomentoNonValido);
  const std::size_t punto = testo.find('.');
  if (punto != testo.rfind('.')) throw Errore(errore::ArgomentoNonValido);
  const std::string_view interi = testo.substr(0, punto);
  Formato formato;
  formato.interi.posti = interi.size();
  if (const auto primo = interi.find('0'); primo != std::string_view::npos)
    formato.interi.richieste = interi.size() - primo;
  if (punto == std::string_view::npos) return formato;
  const std::string_view decimali = testo.substr(punto + 1);
  formato.punto = true;
  formato.decimali.posti = decimali.size();
  if (const auto ultimo = decimali.rfind('0'); ultimo != std::string_view::npos)
    formato.decimali.richieste = ultimo + 1;
  return formato;
}

// Digits of the whole part, one at least, and of exactly `decimali` places
// behind it, rounded half away from zero.
std::string CifreArrotondate(const Decimale& decimale, std::size_t decimali) {
  std::string cifre;
  const int ultimo = -static_cast<int>(decimali);
  for (int posto = std::max(decimale.punto - 1, 0); posto >= ultimo; --posto) cifre += CifraAlPosto(decimale, posto);
  if (CifraAlPosto(decimale, ultimo - 1) >= '5') AggiungiUno(cifre);
  return cifre;
}

// The full text of a number that the exponent form is not for and that fifteen digits hold exactly: then the shortest
// text that gives the number back is the one. Empty for any other.
std::string TestoBreve(double valore) {
  constexpr double daQui = 1E-4;
  constexpr double aQui = 1E15;
  if (!(std::fabs(valore) >= daQui && std::fabs(valore) < aQui)) return {};
  std::array<char, 40> testo{};
  const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), valore, std::chars_format::fixed);
  const std::string_view scritto(testo.data(), static_cast<std::size_t>(fine.ptr - testo.data()));
  const std::size_t prima = scritto.find_first_of("123456789");
  const bool conPunto = scritto.find('.', prima) != std::string_view::npos;
  const std::size_t cifre = scritto.size() - prima - (conPunto ? 1 : 0);
  return cifre <= CifreSignificative ? std::string(scritto) : std::string{};
}

} // namespace

double Valore(std::string_view testo) {
  if (const auto semplice = ValoreSemplice(testo)) return *semplice;
  const std::string numero = LettoreNumero(testo).Prefisso();
  return numero.empty() ? 0.0 : ValoreDiNumero(numero);
}

bool ENumero(std::string_view testo) {
  LettoreNumero lettore(Taglia(testo));
  return !lettore.Prefisso().empty() && lettore.Tutto();
}

std::string Formatta(double valore, std::string_view formato) {
  const Formato posti = LeggiFormato(formato);
  const Decimale decimale = DecimaleDa(valore);
  const std::string cifre = CifreArrotondate(decimale, posti.decimali.posti);
  std::string interi = cifre.substr(0, cifre.size() - posti.decimali.posti);
  std::string decimali = cifre.substr(interi.size());
  interi.erase(0, interi.find_first_not_of('0'));
  if (interi.size() < posti.interi.richieste) interi.insert(0, posti.interi.richieste - interi.size(), '0');
  while (decimali.size() > posti.decimali.richieste && decimali.back() == '0') decimali.pop_back();
  const bool zero = cifre.find_first_not_of('0') == std::string::npos;
  return (decimale.negativo && !zero ? "-" : "") + interi + (posti.punto ? "." : "") + decimali;
}

std::string TestoPieno(double valore) {
  if (std::string breve = TestoBreve(valore); !breve.empty()) return breve;
  const Decimale decimale = DecimaleDa(valore);
  if (decimale.cifre.empty()) return "0";
  const std::string segno = decimale.negativo ? "-" : "";
  const auto quante = static_cast<int>(decimale.cifre.size());
  const bool oltre = decimale.punto > 16 || (decimale.punto == 16 && decimale.cifre != "1");
  if (oltre || decimale.punto < -4) {
    const int esponente = decimale.punto - 1;
    const std::string mantissa = decimale.cifre.substr(0, 1) + (quante > 1 ? "." + decimale.cifre.substr(1) : "");
    const std::string potenza = TestoIntero(std::abs(esponente));
    return segno + mantissa + (esponente < 0 ? "E-" : "E+") + (potenza.size() < 2 ? "0" : "") + potenza;
  }
  if (decimale.punto <= 0)
    return segno + "0." + std::string(static_cast<std::size_t>(-decimale.punto), '0') + decimale.cifre;
  if (decimale.punto >= quante)
    return segno + decimale.cifre + std::string(static_cast<std::size_t>(decimale.punto - quante), '0');
  const auto interi = static_cast<std::size_t>(decimale.punto);
  return segno + decimale.cifre.substr(0, interi) + "." + decimale.cifre.substr(interi);
}

std::string TestoIntero(long long valore) {
  std::array<char, 24> testo{};
  const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), valore);
  return {testo.data(), fine.ptr};
}

} // namespace lirmeto
