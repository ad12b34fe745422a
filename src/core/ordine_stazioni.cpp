#include <core/ordine_stazioni.h>

#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <string>
#include <vector>

namespace lirmeto {

namespace {

constexpr std::size_t ColonneNome = 20;

// A row cut around its field 1. A row without a bar is all `testa`.
struct RigaTagliata {
  std::string_view testa; // up to the first bar
  std::string_view nome;  // field 1, its last twenty characters at most
  std::string_view coda;  // from the second bar on
  std::string_view intera;
};

RigaTagliata TagliaInTre(std::string_view riga) {
  const std::size_t barra = riga.find('|');
  if (barra == std::string_view::npos) return {riga, {}, {}, riga};
  const std::size_t fine = std::min(riga.find('|', barra + 1), riga.size());
  const std::size_t lungo = std::min(fine - barra - 1, ColonneNome);
  return {riga.substr(0, barra + 1), riga.substr(fine - lungo, lungo), riga.substr(fine), riga};
}

bool SenzaBarra(const RigaTagliata& riga) {
  return riga.testa.size() == riga.intera.size() && !riga.testa.ends_with('|');
}

// The text that the sort compares.
std::string Allineata(const RigaTagliata& riga) {
  if (SenzaBarra(riga)) return std::string(riga.intera);
  return std::string(riga.testa) + AllineaDestra(riga.nome, ColonneNome) + std::string(riga.coda);
}

// Names compared as if blanks filled them to the same length on the left.
int ConfrontaNomi(std::string_view a, std::string_view b) {
  if (a.size() > b.size()) return -ConfrontaNomi(b, a);
  const std::size_t prima = b.size() - a.size();
  for (std::size_t i = 0; i < prima; ++i)
    if (b[i] != ' ') return static_cast<unsigned char>(b[i]) > ' ' ? -1 : 1;
  return a.compare(b.substr(prima));
}

// Whether Allineata(a) stands before Allineata(b), without making the texts where their beginnings are equally long.
bool Precede(const RigaTagliata& a, const RigaTagliata& b) {
  if (a.testa.size() != b.testa.size() || SenzaBarra(a) || SenzaBarra(b)) return Allineata(a) < Allineata(b);
  if (const int testa = a.testa.compare(b.testa); testa != 0) return testa < 0;
  if (const int nome = ConfrontaNomi(a.nome, b.nome); nome != 0) return nome < 0;
  return a.coda < b.coda;
}

bool ApreGruppo(Genere genere, Ordine ordine) {
  return genere == Genere::Stazione || (ordine == Ordine::Gps && genere == Genere::Libera);
}

// Whether a row stays where it is for the row before it.
bool Ferma(Genere genere, Genere prima, Ordine ordine) {
  return (genere == Genere::Battuta && prima == Genere::Stazione) || (ordine == Ordine::Gps && prima == Genere::Libera);
}

// The rows of a group that wait to be sorted, and where they stand in the list.
class Attesa {
public:
  explicit Attesa(ListaRighe& righe) : righe_(righe) {}

  void Aggiungi(std::string_view riga) { gruppo_.push_back(TagliaInTre(riga)); }

  // Sorts what waits right before the row `fine`.
  void Ordina(std::size_t fine) {
    std::stable_sort(gruppo_.begin(), gruppo_.end(), Precede);
    std::size_t posto = fine - gruppo_.size();
    for (const auto& riga : gruppo_) Metti(posto++, riga, riga.nome);
    gruppo_.clear();
  }

  // A row that stays in place.
  void Lascia(std::size_t posto, std::string_view riga) {
    const RigaTagliata tagliata = TagliaInTre(riga);
    const std::size_t inizio = tagliata.testa.size();
    Metti(posto, tagliata, riga.substr(inizio, riga.size() - inizio - tagliata.coda.size()));
  }

private:
  // The row with its name trimmed; the same text where nothing changes.
  void Metti(std::size_t posto, const RigaTagliata& riga, std::string_view nome) {
    const std::string_view pulito = Taglia(nome);
    if (riga.testa.size() + pulito.size() + riga.coda.size() == riga.intera.size())
      righe_.CambiaVista(posto, riga.intera);
    else
      righe_.Cambia(posto, std::string(riga.testa) + std::string(pulito) + std::string(riga.coda));
  }

  ListaRighe& righe_;
  std::vector<RigaTagliata> gruppo_;
};

} // namespace

void OrdinaStazioni(ListaRighe& righe, Ordine ordine) {
  Attesa attesa(righe);
  Genere prima = Genere::Altro;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const std::string_view riga = righe[i];
    const Genere genere = GenereDi(riga);
    const bool apre = ApreGruppo(genere, ordine);
    if (apre) attesa.Ordina(i);
    if (apre || Ferma(genere, prima, ordine))
      attesa.Lascia(i, riga);
    else
      attesa.Aggiungi(riga);
    prima = genere;
  }
  attesa.Ordina(righe.size());
}

} // namespace lirmeto
