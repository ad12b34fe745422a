#include <proposte/rilievi_censuari.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga_censuaria.h>

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace lirmeto {

namespace {

constexpr std::array<std::size_t, 13> Barre = {2, 4, 10, 14, 17, 23, 33, 36, 39, 45, 49, 52, 70}; // columns, from 1

std::string Intero(double numero) {
  return Formatta(numero, "##########0");
}

// Walks a block once; what a section or a group of rows lacks is known when it ends.
class Controllo {
public:
  Controllo(const ListaRighe& righe, const std::vector<std::string>& tabella) : righe_(righe) {
    for (const std::string& voce : tabella) codici_.insert(std::string_view(voce).substr(0, censuario::Qualita.quante));
  }

  std::vector<RilievoCensuario> Esegui() {
    if (righe_.empty()) return {};
    if (righe_[0] != censuario::Intestazione)
      Di(GravitaRilievo::Errore, 0, "Manca la riga d'intestazione del Modello Censuario");
    for (std::size_t i = 0; i < righe_.size(); ++i) Riga(i);
    ChiudiSezione();
    std::ranges::stable_sort(rilievi_, {}, &RilievoCensuario::riga);
    return std::move(rilievi_);
  }

private:
  struct Sezione {
    std::size_t riga = 0; // of its count
    std::size_t dati = 0; // rows behind it
  };
  // Originals and what became of them.
  struct Gruppo {
    std::size_t riga = 0; // of its first original
    double originali = 0; // m2
    double nuove = 0;
    bool conNuove = false;
    bool reale = false; // an original "SR"
    bool fusione = false;
  };

  void Di(GravitaRilievo gravita, std::size_t riga, std::string testo) {
    rilievi_.push_back({gravita, riga, std::move(testo)});
  }

  void Riga(std::size_t i) {
    const std::string_view riga = righe_[i];
    if (riga.size() != LunghezzaCensuaria) {
      Di(GravitaRilievo::Errore, i,
         "La riga ha " + Intero(static_cast<double>(riga.size())) + " caratteri e non 70: nessuno la riconosce");
    } else if (riga == censuario::Intestazione) {
      if (i > 0) Di(GravitaRilievo::Avviso, i, "L'intestazione si ripete: una sola basta per tutte le sezioni");
    } else if (ApreSezione(riga)) {
      ChiudiSezione();
      sezione_ = Sezione{i, 0};
    } else {
      Dati(i);
    }
  }

  void Dati(std::size_t i) {
    if (sezione_)
      ++sezione_->dati;
    else
      Di(GravitaRilievo::Errore, i, "La riga non sta in nessuna sezione");
    const std::string_view riga = righe_[i];
    if (!std::ranges::all_of(Barre, [riga](std::size_t colonna) { return riga[colonna - 1] == '|'; }))
      return Di(GravitaRilievo::Errore, i, "Le barre della riga non sono alle loro colonne");
    const std::string_view operazione = LeggiCampo(riga, censuario::Operazione);
    if (operazione == "O") Originale(i);
    if (operazione == "S" || operazione == "V") Risposta(i);
    if (operazione == "C" || operazione == "V") Nuova(i);
    if (operazione == "C") Temporaneo(i);
    QualitaEClasse(i);
  }

  void Originale(std::size_t i) {
    if (gruppo_ && gruppo_->conNuove) ChiudiGruppo();
    if (!gruppo_) gruppo_ = Gruppo{.riga = i};
    gruppo_->originali += Valore(LeggiCampo(righe_[i], censuario::Area));
    gruppo_->reale = gruppo_->reale || LeggiCampo(righe_[i], censuario::SrSn) == "SR";
    const std::string_view nome = Taglia(LeggiCampo(righe_[i], censuario::Particella));
    if (!aperti_.try_emplace(nome, i).second)
      Di(GravitaRilievo::Errore, i, "La particella " + std::string(nome) + " compare due volte come originale");
  }

  void Risposta(std::size_t i) {
    risposti_.insert(Taglia(LeggiCampo(righe_[i], censuario::Particella)));
    if (gruppo_ && !Taglia(LeggiCampo(righe_[i], censuario::LetteraDestinazione)).empty()) gruppo_->fusione = true;
  }

  void Nuova(std::size_t i) {
    if (!gruppo_) return;
    gruppo_->conNuove = true;
    gruppo_->nuove += Valore(LeggiCampo(righe_[i], censuario::Area));
  }

  void Temporaneo(std::size_t i) {
    const std::string_view nome = Taglia(LeggiCampo(righe_[i], censuario::Temporaneo));
    if (nome.empty()) return Di(GravitaRilievo::Errore, i, "La particella costituita non ha nome temporaneo");
    const auto [prima, nuovo] = temporanei_.try_emplace(nome, i);
    if (!nuovo)
      Di(GravitaRilievo::Errore, i,
         "Il nome temporaneo " + std::string(nome) + std::string(" è già usato alla riga "_w) +
             Intero(static_cast<double>(prima->second + 1)));
  }

  void QualitaEClasse(std::size_t i) {
    const std::string_view codice = LeggiCampo(righe_[i], censuario::Qualita);
    if (codice == "000") return;
    if (!codici_.empty() && !codici_.contains(codice))
      Di(GravitaRilievo::Errore, i,
         std::string("La qualità "_w) + std::string(codice) + std::string(" non è nella tabella delle qualità"_w));
    else if (Valore(codice) >= censuario::PrimaNonAgraria && !Taglia(LeggiCampo(righe_[i], censuario::Classe)).empty())
      Di(GravitaRilievo::Errore, i,
         std::string("La qualità "_w) + std::string(codice) + " non ha classe, e la riga ne porta una");
  }

  void ChiudiGruppo() {
    const Gruppo gruppo = *gruppo_;
    gruppo_.reset();
    const double differenza = gruppo.nuove - gruppo.originali;
    if (!gruppo.conNuove || differenza == 0) return;
    const std::string somme = "aree nuove " + Intero(gruppo.nuove) + " mq, originali " + Intero(gruppo.originali) +
                              " mq, differenza " + Intero(differenza) + " mq";
    if (gruppo.fusione)
      Di(GravitaRilievo::Avviso, gruppo.riga, "La fusione porta l'area dell'ultima particella: " + somme);
    else
      Di(gruppo.reale ? GravitaRilievo::Errore : GravitaRilievo::Avviso, gruppo.riga, "Le aree non tornano: " + somme);
  }

  // A section ends where the next begins: the letters go on, the originals have had their answer by then.
  void ChiudiSezione() {
    if (gruppo_) ChiudiGruppo();
    for (const auto& [nome, riga] : aperti_)
      if (!risposti_.contains(nome))
        Di(GravitaRilievo::Errore, riga,
           "La particella originale " + std::string(nome) + std::string(" non è né soppressa né variata"_w));
    aperti_.clear();
    risposti_.clear();
    if (!sezione_) return;
    ControllaConteggio(*sezione_);
    sezione_.reset();
  }

  void ControllaConteggio(const Sezione& sezione) {
    const std::string_view riga = righe_[sezione.riga];
    if (LeggiCampo(riga, censuario::Conteggio) != TreCifre(sezione.dati))
      Di(GravitaRilievo::Errore, sezione.riga,
         "La sezione " + std::string(Taglia(LeggiCampo(riga, censuario::Sezione))) + " dichiara " +
             std::string(LeggiCampo(riga, censuario::Conteggio)) + " righe e ne ha " +
             Intero(static_cast<double>(sezione.dati)));
    if (ApreSezione(riga, censuario::Fusione))
      Di(GravitaRilievo::Nota, sezione.riga,
         std::string("Il riordino non conta le righe M31FU e darà il suo avviso"_w));
  }

  const ListaRighe& righe_;
  std::unordered_set<std::string_view> codici_;
  std::vector<RilievoCensuario> rilievi_;
  std::optional<Sezione> sezione_;
  std::optional<Gruppo> gruppo_;
  std::unordered_map<std::string_view, std::size_t> aperti_; // originals of the section, by their number
  std::unordered_set<std::string_view> risposti_;
  std::unordered_map<std::string_view, std::size_t> temporanei_;
};

} // namespace

std::vector<RilievoCensuario> ControllaCensuario(const ListaRighe& righe,
                                                 const std::vector<std::string>& tabellaQualita) {
  return Controllo(righe, tabellaQualita).Esegui();
}

} // namespace lirmeto
