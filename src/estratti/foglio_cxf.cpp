#include <estratti/foglio_cxf.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace lirmeto {

// How a sheet is read, where it could be done in more than one way:
//
//   a quoted token whose quotes do not close    ends with its line
//   what stands behind the closing quote        is passed over, up to the comma or the line's end
//   the name of a parcel                        the whole code, its blanks at the end too
//   a token "BORDO" of another record           opens a border, as records begin in no other way; what follows is then
//                                               seldom one, and an error
//   a surface that is missing or too short      is empty

namespace {

constexpr double MassimoIsola = 32767; // a count of an island is a number of 16 bits

class LettoreCxf {
public:
  explicit LettoreCxf(std::string_view testo) : testo_(testo) {}

  [[nodiscard]] bool Finito() const { return posto_ >= testo_.size(); }

  std::string_view Token() {
    ControllaFine();
    posto_ = std::min(testo_.find_first_not_of(' ', posto_), testo_.size());
    if (!Finito() && testo_[posto_] == '"') return TraVirgolette();
    return FinoA(testo_.find_first_of(",\r", posto_));
  }

  std::string_view Linea() {
    ControllaFine();
    return FinoA(testo_.find('\r', posto_));
  }

  void Salta(int token) {
    for (int i = 0; i < token; ++i) (void)Token();
  }

  // A whole number within bounds.
  std::size_t Conteggio(double minimo, double massimo) {
    const std::string_view testo = Token();
    const double valore = Valore(testo);
    if (!ENumero(testo) || valore != std::floor(valore) || valore < minimo || valore > massimo)
      Rifiuta(testo, "un conteggio valido");
    return static_cast<std::size_t>(valore);
  }

  std::string_view Coordinata() {
    const std::string_view linea = Linea();
    if (!ENumero(linea)) Rifiuta(linea, "una coordinata");
    return linea;
  }

  std::string_view Codice() {
    const std::string_view codice = Token();
    if (Taglia(codice).empty() || Contiene(codice, "|")) Rifiuta(codice, "il codice di un bordo");
    return codice;
  }

  // Of what was read last.
  [[noreturn]] void Rifiuta(std::string_view letto, std::string_view atteso) const {
    std::string frase = "Riga " + NumeroRiga() + " del foglio: \"" + std::string(letto.substr(0, 40));
    frase += "\" non è "_w;
    throw Errore(errore::TipoNonCorrispondente, frase + std::string(atteso));
  }

private:
  void ControllaFine() const {
    if (Finito()) throw Errore(errore::OltreLaFine, "Il foglio finisce troppo presto");
  }

  // From here to a place, behind whose separator the next read begins.
  std::string_view FinoA(std::size_t fine) {
    fine = std::min(fine, testo_.size());
    inizio_ = posto_;
    const std::string_view letto = testo_.substr(posto_, fine - posto_);
    posto_ = fine + (fine < testo_.size() && testo_[fine] == '\r' ? FineRiga.size() : 1);
    return letto;
  }

  std::string_view TraVirgolette() {
    ++posto_;
    const std::string_view letto = testo_.substr(posto_, testo_.find_first_of("\"\r", posto_) - posto_);
    posto_ += letto.size();
    (void)FinoA(testo_.find_first_of(",\r", posto_));
    return letto;
  }

  [[nodiscard]] std::string NumeroRiga() const {
    const std::string_view prima = testo_.substr(0, inizio_);
    return TestoIntero(std::count(prima.begin(), prima.end(), '\n') + 1);
  }

  std::string_view testo_;
  std::size_t posto_ = 0;
  std::size_t inizio_ = 0; // of what was read last
};

// The rings' counts: what the islands leave is the outer one's.
std::vector<std::size_t> LeggiConteggi(LettoreCxf& lettore) {
  constexpr double infiniti = 1e9;
  const std::size_t isole = lettore.Conteggio(0, infiniti);
  const std::size_t tutti = lettore.Conteggio(1, infiniti);
  std::vector<std::size_t> anelli = {tutti};
  for (std::size_t i = 0; i < isole; ++i) {
    anelli.push_back(lettore.Conteggio(1, MassimoIsola));
    if (anelli.back() >= anelli.front())
      lettore.Rifiuta(TestoIntero(static_cast<long long>(tutti)), "la somma dei vertici delle isole e del contorno");
    anelli.front() -= anelli.back();
  }
  return anelli;
}

void LeggiBordo(LettoreCxf& lettore, FoglioCxf& foglio) {
  constexpr int ignorati = 6;
  BordoCxf bordo;
  bordo.codice = lettore.Codice();
  lettore.Salta(ignorati);
  bordo.anelli = LeggiConteggi(lettore);
  for (const std::size_t vertici : bordo.anelli)
    for (std::size_t i = 0; i < vertici; ++i) {
      const std::string_view est = lettore.Coordinata();
      foglio.vertici.push_back({est, lettore.Coordinata()});
    }
  foglio.bordi.push_back(std::move(bordo));
}

} // namespace

FoglioCxf LeggiCxf(std::string_view testo) {
  constexpr int intestazione = 3;
  FoglioCxf foglio;
  LettoreCxf lettore(testo);
  lettore.Salta(intestazione);
  while (!lettore.Finito())
    if (lettore.Token() == "BORDO") LeggiBordo(lettore, foglio);
  if (foglio.bordi.empty()) throw Errore(errore::TipoNonCorrispondente, "Il foglio non ha alcun BORDO");
  return foglio;
}

SuperficiSup::SuperficiSup(std::string_view testo) : righe_(RigheDi(testo)) {
  if (!righe_.empty()) righe_.erase(righe_.begin()); // the title
}

std::optional<std::string_view> SuperficiSup::CaricaSuperficiParticelle(std::string_view nome) {
  constexpr std::size_t colonnaSuperficie = 9; // the tenth character
  const auto [inizi, nuovo] = perLunghezza_.try_emplace(nome.size());
  if (nuovo)
    for (std::size_t i = 0; i < righe_.size(); ++i)
      if (righe_[i].size() >= nome.size()) inizi->second.try_emplace(righe_[i].substr(0, nome.size()), i);
  const auto trovata = inizi->second.find(nome);
  if (trovata == inizi->second.end()) return std::nullopt;
  const std::string_view riga = righe_[trovata->second];
  return Taglia(riga.substr(std::min(colonnaSuperficie, riga.size())));
}

} // namespace lirmeto
