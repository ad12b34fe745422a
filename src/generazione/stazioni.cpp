// Which points are stations, and what each of them sights. Nothing in the drawing marks a station: the surveyor's habit
// of numbering does (station 100 sees 101, 102, ...; station 1000 sees 1001, ...).

#include <generazione/stazioni.h>

#include <generazione/generazione.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <set>
#include <unordered_map>

namespace lirmeto {

namespace {

constexpr std::size_t ColonneNome = 15;

bool FinisceConCento(std::string_view nome) {
  return nome.ends_with("00");
}

bool FinisceConMille(std::string_view nome) {
  return nome.ends_with("000");
}

// Only the first of the two options is read: the other one is its contrary.
bool NomeDiStazione(std::string_view nome, const OpzioniLibretto& opzioni) {
  if (opzioni.IncrementoCentesimale) return FinisceConCento(nome) && nome.substr(0, 2) != "PF";
  return NomeMillesimale(nome);
}

// Right-aligned in fifteen columns the names are sorted as numbers are.
std::vector<std::string> Stazioni(const Generazione& g) {
  std::set<std::string> allineati;
  for (const std::string_view linea : g.linee) {
    allineati.insert(AllineaDestra(Taglia(linea.substr(0, linea.find(' '))), ColonneNome));
    const std::size_t trattino = linea.find('-');
    allineati.insert(
        AllineaDestra(trattino == std::string_view::npos ? linea : Taglia(linea.substr(trattino + 1)), ColonneNome));
  }
  std::vector<std::string> stazioni;
  for (const std::string& nome : allineati)
    if (NomeDiStazione(Taglia(nome), g.opzioni)) stazioni.emplace_back(Taglia(nome));
  return stazioni;
}

// The other ends of the lines at each name, in the order of the list.
class Vicini {
public:
  explicit Vicini(const std::vector<std::string>& linee) {
    for (const std::string& linea : linee) {
      const auto lati = Dividi(linea, "-");
      if (lati.size() < 2) continue;
      const std::string_view a = Taglia(lati[0]);
      const std::string_view b = Taglia(lati[1]);
      altri_[a].push_back(b);
      if (a != b) altri_[b].push_back(a);
    }
  }

  [[nodiscard]] const std::vector<std::string_view>& Di(std::string_view nome) const {
    static const std::vector<std::string_view> nessuno;
    const auto trovati = altri_.find(nome);
    return trovati == altri_.end() ? nessuno : trovati->second;
  }

private:
  std::unordered_map<std::string_view, std::vector<std::string_view>> altri_;
};

// Names of one length that begin alike.
std::string Gruppo(std::string_view nome, std::size_t comuni) {
  return TestoIntero(static_cast<long long>(nome.size())) + ":" + std::string(nome.substr(0, comuni));
}

std::string RigaBattuta(std::string_view nome) {
  return "2|" + std::string(nome) + "|";
}

// Other stations first, then the other ends of lines, then the points by their names. The first row is what the
// orientation hangs on.
void MettiBattute(Generazione& g, std::string_view stazione, const Vicini& vicini, const PuntiPerNome& punti) {
  const auto& altri = vicini.Di(stazione);
  for (const bool stazioni : {true, false})
    for (const auto altro : altri)
      if (FinisceConCento(altro) == stazioni) g.righe.push_back(RigaBattuta(altro));
  for (const auto nome : punti.Di(stazione))
    if (nome != stazione && (altri.empty() || nome != altri.back())) g.righe.push_back(RigaBattuta(nome));
}

} // namespace

PuntiPerNome::PuntiPerNome(const TabelleDisegno& tabelle) {
  for (const PuntoDisegno& punto : tabelle.Punti()) {
    const std::string_view nome = punto.Nome;
    if (nome.size() < 3 || HaMarca(punto.Nota, "<EL>")) continue;
    gruppi_[Gruppo(nome, nome.size() == 3 ? 1 : nome.size() - 3)].push_back(nome);
    if (nome.size() == 4) gruppi_[Gruppo(nome, 2)].push_back(nome);
  }
}

const std::vector<std::string_view>& PuntiPerNome::Di(std::string_view stazione) const {
  static const std::vector<std::string_view> nessuno;
  const std::size_t lunga = stazione.size();
  if (lunga < 3) return nessuno;
  const std::size_t comuni = lunga == 3 ? 1 : lunga == 4 && !FinisceConMille(stazione) ? 2 : lunga - 3;
  const auto trovati = gruppi_.find(Gruppo(stazione, comuni));
  return trovati == gruppi_.end() ? nessuno : trovati->second;
}

bool NomeMillesimale(std::string_view nome) {
  return nome.size() == 3 ? FinisceConCento(nome) : nome.size() >= 4 && FinisceConMille(nome);
}

void MettiStazioni(Generazione& g) {
  const Vicini vicini(g.linee);
  const PuntiPerNome punti(g.tabelle);
  for (const std::string& stazione : Stazioni(g)) {
    g.rapporto.push_back("Stazione : " + stazione);
    g.righe.push_back("1|" + stazione + "|");
    MettiBattute(g, stazione, vicini, punti);
  }
}

} // namespace lirmeto
