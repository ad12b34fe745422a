#include <generazione/polilinee_dxf.h>

#include <base/avanzamento.h>
#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <optional>

namespace lirmeto {

// What could be done in more than one way:
//
//   the flag 70                     closed by its first bit; that of a vertex says something else and is not looked at
//                                   for that
//   the point of a POLYLINE itself  groups 10 and 20 of the head: no vertex
//   the last polyline               is written whether another entity follows or the section ends
//   a file that is cut              is refused whole: half a contour would pass for a contour

namespace {

struct StratoDxf {
  std::string_view nome;
  std::string_view riga;
};

constexpr std::array<StratoDxf, 6> StratiDxf = {{{"RT", "LAYER RT"},
                                                 {"RP", "LAYER RP"},
                                                 {"RC", "LAYER RC"},
                                                 {"NC", "LAYER NC"},
                                                 {"PARTICELLE", "LAYER NC"},
                                                 {"FABBRICATI", "LAYER RC"}}};

// Flags, group 70.
constexpr unsigned Chiusa = 1;         // of a polyline
constexpr unsigned Rete = 16 | 64;     // of a POLYLINE: a mesh
constexpr unsigned PuntoDiTelaio = 16; // of a VERTEX: it only steers a curve

struct Coppia {
  int codice = 0;
  std::string_view valore;
};

// Pairs of a text, whatever its line ends.
class LettoreCoppie {
public:
  explicit LettoreCoppie(std::string_view testo) : testo_(testo) {}

  // None at the end, and where a code has no value behind it.
  std::optional<Coppia> Prossima() {
    const auto codice = Riga();
    const auto valore = Riga();
    if (!codice || !valore) return std::nullopt;
    return Coppia{static_cast<int>(std::clamp(Valore(*codice), -1.0, 9999.0)), *valore};
  }

  [[nodiscard]] std::size_t Letti() const { return qui_; }

private:
  std::optional<std::string_view> Riga() {
    if (qui_ >= testo_.size()) return std::nullopt;
    const std::size_t fine = std::min(testo_.find_first_of("\r\n", qui_), testo_.size());
    std::string_view riga = testo_.substr(qui_, fine - qui_);
    qui_ = fine + (testo_.substr(fine, FineRiga.size()) == FineRiga ? FineRiga.size() : 1);
    while (!riga.empty() && (riga.front() == ' ' || riga.front() == '\t')) riga.remove_prefix(1);
    while (!riga.empty() && (riga.back() == ' ' || riga.back() == '\t')) riga.remove_suffix(1);
    return riga;
  }

  std::string_view testo_;
  std::size_t qui_ = 0;
};

unsigned Flag(std::string_view valore) {
  return static_cast<unsigned>(std::clamp(Valore(valore), 0.0, 65535.0));
}

enum class Entita { Nessuna, Leggera, Testa, Vertice };

class ScrittoreElenco {
public:
  void Prendi(const Coppia& coppia) {
    if (coppia.codice == 0) return Inizia(coppia.valore);
    switch (entita_) {
    case Entita::Leggera:
    case Entita::Testa:
      return Polilinea(coppia);
    case Entita::Vertice:
      return Vertice(coppia);
    case Entita::Nessuna:
      break;
    }
  }

  std::string Fine() {
    ChiudiPolilinea();
    return std::move(elenco_);
  }

private:
  void Inizia(std::string_view nome) {
    ScriviVertice();
    const bool vertice = nome == "VERTEX" && pesante_;
    if (!vertice) ChiudiPolilinea();
    if (vertice) entita_ = Entita::Vertice;
    if (nome == "LWPOLYLINE") entita_ = Entita::Leggera;
    if (nome == "POLYLINE") entita_ = Entita::Testa;
    pesante_ = vertice || nome == "POLYLINE";
  }

  void Polilinea(const Coppia& coppia) {
    if (coppia.codice == 8) return Strato(coppia.valore);
    if (coppia.codice == 70) {
      const unsigned flag = Flag(coppia.valore);
      chiusa_ = (flag & Chiusa) != 0;
      rete_ = entita_ == Entita::Testa && (flag & Rete) != 0;
    }
    if (entita_ == Entita::Leggera) Coordinata(coppia);
  }

  void Vertice(const Coppia& coppia) {
    if (coppia.codice == 70 && (Flag(coppia.valore) & PuntoDiTelaio) != 0) telaio_ = true;
    Coordinata(coppia);
  }

  void Strato(std::string_view nome) {
    const auto* trovato =
        std::find_if(StratiDxf.begin(), StratiDxf.end(), [&](const StratoDxf& strato) { return strato.nome == nome; });
    if (trovato == StratiDxf.end()) return;
    accettata_ = true;
    Riga(trovato->riga);
  }

  // A vertex of an LWPOLYLINE is whole once its north is read, wherever it stands.
  void Coordinata(const Coppia& coppia) {
    if (coppia.codice == 10) est_ = Valore(coppia.valore);
    if (coppia.codice == 20) nord_ = Valore(coppia.valore);
    if (entita_ == Entita::Leggera) ScriviVertice();
  }

  void ScriviVertice() {
    if (!est_ || !nord_) return;
    if (accettata_ && !rete_ && !telaio_) {
      const std::string riga = "al punto  X=" + Formatta(*est_, "###########.000") +
                               "  Y=" + Formatta(*nord_, "##########.000") + "  Z=   0";
      if (prima_.empty()) prima_ = riga;
      Riga(riga);
    }
    est_.reset();
    nord_.reset();
    telaio_ = false;
  }

  void ChiudiPolilinea() {
    ScriviVertice();
    if (chiusa_ && !prima_.empty()) Riga(prima_);
    if (accettata_) {
      Riga(" ");
      Riga(" ");
    }
    prima_.clear();
    est_.reset();
    nord_.reset();
    accettata_ = chiusa_ = rete_ = telaio_ = false;
    entita_ = Entita::Nessuna;
  }

  void Riga(std::string_view riga) { elenco_.append(riga).append(FineRiga); }

  std::string elenco_;
  Entita entita_ = Entita::Nessuna;
  bool pesante_ = false;   // inside a POLYLINE
  bool accettata_ = false; // its layer is one of those taken
  bool chiusa_ = false;
  bool rete_ = false;
  bool telaio_ = false; // of the vertex under way
  std::string prima_;   // row of its first vertex
  std::optional<double> est_;
  std::optional<double> nord_;
};

// Moves behind the heading of ENTITIES.
void TrovaEntita(LettoreCoppie& lettore) {
  bool sezione = false;
  while (const auto coppia = lettore.Prossima()) {
    if (sezione && coppia->codice == 2 && coppia->valore == "ENTITIES") return;
    sezione = coppia->codice == 0 && coppia->valore == "SECTION";
  }
  throw Errore(errore::ArgomentoNonValido, "Il file DXF non contiene la sezione ENTITIES");
}

} // namespace

std::string ElencoDaDxf(Dialoghi& dialoghi, std::string_view byte) {
  if (Contiene(byte, std::string_view("\0", 1)))
    throw Errore(errore::ArgomentoNonValido, std::string("Il file DXF è binario: salvarlo come DXF di testo"_w));
  LettoreCoppie lettore(byte);
  TrovaEntita(lettore);
  Avanzamento avanzamento(dialoghi, "Lettura del DXF", byte.size());
  ScrittoreElenco scrittore;
  while (const auto coppia = lettore.Prossima()) {
    avanzamento.Fatto(lettore.Letti());
    if (coppia->codice == 0 && coppia->valore == "ENDSEC") return scrittore.Fine();
    scrittore.Prendi(*coppia);
  }
  throw Errore(errore::OltreLaFine, std::string("Il file DXF è troncato: manca la fine della sezione ENTITIES"_w));
}

} // namespace lirmeto
