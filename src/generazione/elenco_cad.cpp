#include <generazione/elenco_cad.h>

#include <base/avanzamento.h>
#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   a layer "PARTICELLE"          holds the letters of RT and is none: a code counts as a whole word alone
//   a vertex repeated             the same row twice in turn, as a CAD prints it across a page, is one vertex
//   a comma in a number           is a decimal sign
//   two vertices on one place     have one number, whatever their layers
//   a coordinate of 10^11 metres   refuses the listing: its millimetres are no longer what was drawn

namespace {

// In the order of the test.
constexpr std::array<StratoCad, 4> Strati = {{
    {"RT", "6|Portico|", "SF"},
    {"RP", "6|Cantina|", "SF"},
    {"RC", "6|Contorno fabbricato|", "SF"},
    {"NC", "6|Contorno Cartografico|", "Punto per inquadramento cartografico"},
}};
constexpr const StratoCad* StratoDisegnato = &Strati[2];

constexpr std::array<std::string_view, 3> ParoleVertice = {"al punto", "at point", "Locazione:"};

bool LetteraDiParola(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

bool HaParola(std::string_view testo, std::string_view parola) {
  for (std::size_t qui = testo.find(parola); qui != std::string_view::npos; qui = testo.find(parola, qui + 1)) {
    const std::size_t fine = qui + parola.size();
    const bool inizia = qui == 0 || !LetteraDiParola(testo[qui - 1]);
    if (inizia && (fine == testo.size() || !LetteraDiParola(testo[fine]))) return true;
  }
  return false;
}

// What stands behind "LAYER", upper case; none for a row that names no layer.
std::optional<std::string> NomeStrato(std::string_view riga) {
  constexpr std::string_view parola = "LAYER";
  const std::string alto = Maiuscolo(riga);
  const std::size_t qui = alto.find(parola);
  if (qui == std::string::npos) return std::nullopt;
  return alto.substr(qui + parola.size());
}

// Null for a layer that is none of the four.
const StratoCad* TrovaStrato(std::string_view nome) {
  const auto* trovato = std::find_if(Strati.begin(), Strati.end(),
                                     [&](const StratoCad& strato) { return HaParola(nome, strato.codice); });
  return trovato == Strati.end() ? nullptr : trovato;
}

bool RigaVertice(std::string_view riga) {
  return std::any_of(ParoleVertice.begin(), ParoleVertice.end(),
                     [&](std::string_view parola) { return Contiene(riga, parola); });
}

// The number behind "X=" or "Y="; none when there is no such sign.
std::optional<std::string> Coordinata(std::string_view riga, std::string_view segno) {
  const std::size_t qui = riga.find(segno);
  if (qui == std::string_view::npos) return std::nullopt;
  constexpr double massimo = 1e11; // metres: its millimetres are the last that a number holds
  const double valore = Valore(Sostituisci(riga.substr(qui + segno.size()), ",", "."));
  if (!(std::fabs(valore) < massimo))
    throw Errore(errore::Overflow, "Coordinata fuori misura: \"" + std::string(riga.substr(0, 60)) + "\"");
  return Formatta(valore, "###########.##0");
}

class LettoreElenco {
public:
  // Room for what so many rows may hold.
  explicit LettoreElenco(std::size_t righe) {
    numeri_.reserve(righe);
    elenco_.punti.reserve(righe);
  }

  void Riga(std::string_view riga) {
    if (RigaVertice(riga)) return Vertice(Taglia(riga));
    const auto nome = NomeStrato(riga);
    if (!nome) return;
    Chiudi();
    strato_ = TrovaStrato(*nome);
    ultima_ = {};
  }

  ElencoCad Fine() {
    Chiudi();
    return std::move(elenco_);
  }

private:
  void Vertice(std::string_view riga) {
    if (strato_ == nullptr || riga == std::exchange(ultima_, riga)) return;
    auto est = Coordinata(riga, "X=");
    auto nord = Coordinata(riga, "Y=");
    if (!est || !nord) return;
    const auto [posto, nuovo] = numeri_.try_emplace(*nord + "|" + *est, numeri_.size() + 1);
    elenco_.punti.push_back({posto->second, std::move(*nord), std::move(*est), strato_->descrizione});
    aperta_.push_back(posto->second);
  }

  void Chiudi() {
    if (!aperta_.empty()) elenco_.polilinee.push_back({strato_, std::move(aperta_)});
    aperta_.clear();
  }

  const StratoCad* strato_ = StratoDisegnato;
  std::string_view ultima_; // row of the vertex before
  std::vector<std::size_t> aperta_;
  std::unordered_map<std::string, std::size_t> numeri_; // by "north|east"
  ElencoCad elenco_;
};

} // namespace

ElencoCad LeggiElencoCad(Dialoghi& dialoghi, std::string_view testo) {
  const auto righe = RigheDi(testo);
  Avanzamento avanzamento(dialoghi, "Lettura delle polilinee", righe.size());
  LettoreElenco lettore(righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    lettore.Riga(righe[i]);
  }
  return lettore.Fine();
}

} // namespace lirmeto
