#include <fiduciali/segmenti_pf.h>

#include <base/avanzamento.h>
#include <base/testo.h>
#include <core/riga.h>
#include <fiduciali/taf.h>

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace lirmeto {

namespace {

constexpr std::size_t LungoCodice = 4;
constexpr std::size_t ColonneUguali = 30; // by which a distance is known again while lines are gathered
constexpr std::size_t ColonneNomi = 32;   // and once they are sorted

// The comuni of a view by their codes, in the order met.
class ComuniInVista {
public:
  explicit ComuniInVista(std::span<const std::string_view> nomi) {
    for (const auto nome : nomi) {
      const auto codice = nome.substr(nome.size() - std::min(nome.size(), LungoCodice));
      if (codice.size() < LungoCodice || !ordine_.try_emplace(codice, ordine_.size()).second) continue;
    }
  }

  [[nodiscard]] std::size_t Quanti() const { return ordine_.size(); }

  // The first of the comuni that the line holds; none when it holds no one.
  [[nodiscard]] std::optional<std::size_t> Primo(std::string_view riga) const {
    std::optional<std::size_t> primo;
    for (std::size_t i = 0; i + LungoCodice <= riga.size(); ++i) {
      const auto trovato = ordine_.find(riga.substr(i, LungoCodice));
      if (trovato != ordine_.end() && (!primo || trovato->second < *primo)) primo = trovato->second;
    }
    return primo;
  }

private:
  std::unordered_map<std::string_view, std::size_t> ordine_;
};

} // namespace

std::vector<std::string_view> RigheDeiComuni(Dialoghi& dialoghi, std::span<const std::string_view> nomi,
                                             std::string_view archivio) {
  const ComuniInVista comuni(nomi);
  std::vector<std::vector<std::string_view>> perComune(comuni.Quanti());
  const auto tutte = RigheDi(archivio);
  Avanzamento avanzamento(dialoghi, "Ricerca delle distanze misurate", tutte.size());
  for (std::size_t i = 0; i < tutte.size(); ++i) {
    avanzamento.Fatto(i);
    if (const auto comune = comuni.Primo(tutte[i])) perComune[*comune].push_back(tutte[i]);
  }
  std::unordered_set<std::string_view> gia;
  std::vector<std::string_view> righe;
  for (const auto& sue : perComune)
    for (const auto riga : sue)
      if (gia.insert(riga.substr(0, ColonneUguali)).second) righe.push_back(riga);
  std::sort(righe.begin(), righe.end());
  const auto stessi = [](std::string_view a, std::string_view b) {
    return a.substr(0, ColonneNomi) == b.substr(0, ColonneNomi);
  };
  righe.erase(std::unique(righe.begin(), righe.end(), stessi), righe.end());
  return righe;
}

std::vector<SegmentoPF> SegmentiDi(std::span<const std::string_view> nomi, std::span<const std::string_view> righe) {
  std::unordered_map<std::string_view, std::size_t> primi;
  for (std::size_t i = 0; i < nomi.size(); ++i) primi.try_emplace(nomi[i], i);
  std::vector<SegmentoPF> segmenti;
  for (const auto riga : righe) {
    const auto uno = primi.find(Colonne(riga, 1, 15));
    const auto altro = primi.find(Colonne(riga, 18, ColonneNomi));
    if (uno == primi.end() || altro == primi.end() || uno == altro) continue;
    segmenti.push_back({std::min(uno->second, altro->second), std::max(uno->second, altro->second)});
  }
  return segmenti;
}

} // namespace lirmeto
