#include <proposte/verifica_censuario.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga_censuaria.h>
#include <proposte/lettere.h>
#include <supporto/tabella_verifiche.h>

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace lirmeto {

namespace {

std::string Intero(std::size_t numero) {
  return TestoIntero(static_cast<long long>(numero));
}

// Square metres; what no parcel can have stays a number.
double Area(std::string_view riga) {
  constexpr double limite = 1e12;
  return std::clamp(Valore(LeggiCampo(riga, censuario::Area)), -limite, limite);
}

// Areas before and after, square metres.
struct Aree {
  double originali = 0;
  double nuove = 0;
  bool conNuove = false;

  [[nodiscard]] bool Tornano() const { return !conNuove || nuove == originali; }
  void Aggiungi(double area) {
    nuove += area;
    conNuove = true;
  }
};

// Walks a block once; what a section or a group of rows lacks is known when it ends.
class Controllo {
public:
  Controllo(std::span<const RigaInLista> righe, const std::vector<std::string>& tabella, Raccolta& raccolta)
      : righe_(righe), raccolta_(raccolta) {
    for (const std::string& voce : tabella) codici_.insert(std::string_view(voce).substr(0, censuario::Qualita.quante));
  }

  void Esegui() {
    if (righe_.empty()) return;
    if (righe_[0].testo != censuario::Intestazione) Di(RegolaDi("M012"), righe_[0]);
    for (const RigaInLista& riga : righe_) Riga(riga);
    ChiudiSezione();
  }

private:
  struct Sezione {
    RigaInLista riga;     // its count
    std::size_t dati = 0; // rows behind it
    Aree aree;
    bool aDifetto = false; // a group of it has told so already
  };
  // Originals and what became of them.
  struct Gruppo {
    RigaInLista riga; // its first original
    Aree aree;
    bool reale = false; // an original "SR"
    bool fusione = false;
  };

  void Di(const Regola& regola, const RigaInLista& riga, Raccolta::Valori valori = {}) {
    raccolta_.Riga(regola, riga.indice, 0, valori);
  }
  void Di(const Regola& regola, const RigaInLista& riga, const CampoCensuario& campo, Raccolta::Valori valori) {
    raccolta_.Riga(regola, riga.indice, campo.indice, valori);
  }
  [[nodiscard]] static std::string_view Campo(const RigaInLista& riga, const CampoCensuario& campo) {
    return Taglia(LeggiCampo(riga.testo, campo));
  }

  void Riga(const RigaInLista& riga) {
    if (riga.testo.size() != LunghezzaCensuaria) {
      Di(RegolaDi("M001"), riga, {Intero(riga.testo.size())});
    } else if (riga.testo == censuario::Intestazione) {
      if (&riga != &righe_[0]) Di(RegolaDi("M013"), riga);
    } else if (ApreSezione(riga.testo)) {
      ChiudiSezione();
      sezione_ = Sezione{.riga = riga, .dati = 0, .aree = {}, .aDifetto = false};
    } else {
      Dati(riga);
    }
  }

  void Dati(const RigaInLista& riga) {
    if (sezione_)
      ++sezione_->dati;
    else
      Di(RegolaDi("M011"), riga);
    const auto storta = std::ranges::find_if(BarreCensuarie, [&](std::size_t c) { return riga.testo[c - 1] != '|'; });
    if (storta != BarreCensuarie.end()) return Di(RegolaDi("M002"), riga, {Intero(*storta)});
    const std::string_view operazione = LeggiCampo(riga.testo, censuario::Operazione);
    if (operazione == "O") Originale(riga);
    if (operazione == "S" || operazione == "V") Risposta(riga);
    if (operazione == "C" || operazione == "V") Nuova(riga);
    if (operazione == "C") Costituita(riga);
    QualitaEClasse(riga);
  }

  void Originale(const RigaInLista& riga) {
    if (gruppo_ && gruppo_->aree.conNuove) ChiudiGruppo();
    if (!gruppo_) gruppo_ = Gruppo{.riga = riga, .aree = {}, .reale = false, .fusione = false};
    const double area = Area(riga.testo);
    gruppo_->aree.originali += area;
    if (sezione_) sezione_->aree.originali += area;
    gruppo_->reale = gruppo_->reale || LeggiCampo(riga.testo, censuario::SrSn) == "SR";
    const std::string_view nome = Campo(riga, censuario::Particella);
    if (!aperti_.try_emplace(nome, riga).second) Di(RegolaDi("M014"), riga, censuario::Particella, {nome});
    daCapo_ = true;
  }

  void Risposta(const RigaInLista& riga) {
    risposti_.insert(Campo(riga, censuario::Particella));
    if (gruppo_ && !Campo(riga, censuario::LetteraDestinazione).empty()) gruppo_->fusione = true;
  }

  void Nuova(const RigaInLista& riga) {
    if (gruppo_) gruppo_->aree.Aggiungi(Area(riga.testo));
    if (sezione_) sezione_->aree.Aggiungi(Area(riga.testo));
  }

  void Costituita(const RigaInLista& riga) {
    Temporaneo(riga);
    const std::string_view lettera = Campo(riga, censuario::Lettera);
    if (lettera.empty()) return;
    if (daCapo_ && lettera == LetteraDerivata(1)) lettere_ = 0;
    daCapo_ = false;
    if (lettera != LetteraDerivata(++lettere_)) {
      Di(RegolaDi("M005"), riga, censuario::Lettera, {lettera});
      if (lettera.size() == 1 && lettera >= "a" && lettera <= "z")
        lettere_ = static_cast<std::size_t>(lettera.front() - 'a') + 1;
    }
  }

  void Temporaneo(const RigaInLista& riga) {
    const std::string_view nome = Campo(riga, censuario::Temporaneo);
    if (nome.empty()) return Di(RegolaDi("M015"), riga, censuario::Temporaneo, {});
    const auto [prima, nuovo] = temporanei_.try_emplace(nome, riga.indice);
    if (!nuovo) Di(RegolaDi("M010"), riga, censuario::Temporaneo, {nome, Intero(prima->second)});
  }

  void QualitaEClasse(const RigaInLista& riga) {
    const std::string_view codice = LeggiCampo(riga.testo, censuario::Qualita);
    if (codice == "000") return;
    if (!codici_.empty() && !codici_.contains(codice)) Di(RegolaDi("M007"), riga, censuario::Qualita, {codice});
    if (Valore(codice) >= censuario::PrimaNonAgraria && !Campo(riga, censuario::Classe).empty())
      Di(RegolaDi("M008"), riga, censuario::Classe, {codice});
  }

  void DiAree(const Regola& regola, const RigaInLista& riga, const Aree& aree) {
    const auto intero = [](double area) { return Formatta(area, "0"); };
    Di(regola, riga, censuario::Area,
       {intero(aree.nuove), intero(aree.originali), intero(aree.nuove - aree.originali)});
  }

  void ChiudiGruppo() {
    const Gruppo gruppo = *gruppo_;
    gruppo_.reset();
    if (gruppo.aree.Tornano()) return;
    if (sezione_) sezione_->aDifetto = true;
    if (gruppo.fusione) return DiAree(RegolaDi("M017"), gruppo.riga, gruppo.aree);
    DiAree(gruppo.reale ? RegolaDi("M016") : RegolaDi("M004"), gruppo.riga, gruppo.aree);
  }

  // A section ends where the next begins: the originals have had their answer by then.
  void ChiudiSezione() {
    if (gruppo_) ChiudiGruppo();
    for (const auto& [nome, riga] : aperti_)
      if (!risposti_.contains(nome)) Di(RegolaDi("M006"), riga, censuario::Particella, {nome});
    aperti_.clear();
    risposti_.clear();
    if (!sezione_) return;
    Conteggio(*sezione_);
    if (!sezione_->aDifetto && !sezione_->aree.Tornano()) DiAree(RegolaDi("M004"), sezione_->riga, sezione_->aree);
    sezione_.reset();
  }

  void Conteggio(const Sezione& sezione) {
    const std::string_view dichiarate = LeggiCampo(sezione.riga.testo, censuario::Conteggio);
    const bool diParticelle = ApreSezione(sezione.riga.testo, censuario::Fusione); // what it counts, as composed
    if (dichiarate != TreCifre(sezione.dati)) {
      std::string rimedio(diParticelle ? std::string_view{} : sezione.riga.testo);
      if (!diParticelle) SovrascriviCampo(rimedio, censuario::Conteggio, TreCifre(sezione.dati));
      raccolta_.Riga(RegolaDi("M003"), sezione.riga.indice, censuario::Conteggio.indice,
                     {Campo(sezione.riga, censuario::Sezione), dichiarate, Intero(sezione.dati)}, std::move(rimedio));
    }
    if (diParticelle) Di(RegolaDi("M018"), sezione.riga);
  }

  std::span<const RigaInLista> righe_;
  Raccolta& raccolta_;
  std::unordered_set<std::string_view> codici_;
  std::optional<Sezione> sezione_;
  std::optional<Gruppo> gruppo_;
  std::unordered_map<std::string_view, RigaInLista> aperti_; // originals of the section, by their number
  std::unordered_set<std::string_view> risposti_;
  std::unordered_map<std::string_view, std::size_t> temporanei_;
  // Letters go on from parcel to parcel and from section to section, or start again behind an original.
  std::size_t lettere_ = 0;
  bool daCapo_ = false;
};

} // namespace

void VerificaBloccoCensuario(std::span<const RigaInLista> righe, const std::vector<std::string>& tabellaQualita,
                             Raccolta& raccolta) {
  Controllo(righe, tabellaQualita, raccolta).Esegui();
}

std::vector<Segnalazione> VerificaElencoCensuario(const ListaRighe& righe,
                                                  const std::vector<std::string>& tabellaQualita) {
  std::vector<RigaInLista> tutte;
  tutte.reserve(righe.size());
  for (const auto riga : righe) tutte.push_back({tutte.size(), riga});
  Raccolta raccolta;
  VerificaBloccoCensuario(tutte, tabellaQualita, raccolta);
  auto segnalazioni = raccolta.Prendi();
  std::ranges::stable_sort(segnalazioni, {}, [](const Segnalazione& s) { return s.riga.value_or(0); });
  return segnalazioni;
}

} // namespace lirmeto
