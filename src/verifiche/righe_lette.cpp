#include <verifiche/righe_lette.h>

#include <verifiche/verifiche_righe.h>

#include <algorithm>

namespace lirmeto {

namespace {

struct Cambiate {
  std::size_t inizio = 0; // rows before it are the same
  std::size_t coda = 0;   // rows behind that are the same
};

Cambiate Confronta(const ListaRighe& prima, const ListaRighe& dopo) {
  // The views are mostly the very same: the text is looked at only where they are not.
  const auto uguali = [](std::string_view a, std::string_view b) {
    return (a.data() == b.data() && a.size() == b.size()) || a == b;
  };
  const std::size_t comuni = std::min(prima.size(), dopo.size());
  Cambiate cambiate;
  while (cambiate.inizio < comuni && uguali(prima[cambiate.inizio], dopo[cambiate.inizio])) ++cambiate.inizio;
  while (cambiate.coda < comuni - cambiate.inizio &&
         uguali(prima[prima.size() - 1 - cambiate.coda], dopo[dopo.size() - 1 - cambiate.coda]))
    ++cambiate.coda;
  return cambiate;
}

// A vector as long as the rows now are, its new or changed places between the two ends that stay.
template <typename T>
void Adatta(std::vector<T>& valori, const Cambiate& cambiate, std::size_t quanti) {
  const std::size_t tratto = quanti - cambiate.inizio - cambiate.coda;
  const auto inizio = valori.begin() + static_cast<std::ptrdiff_t>(cambiate.inizio);
  const auto vecchi = static_cast<std::size_t>(valori.end() - inizio) - cambiate.coda;
  if (tratto > vecchi) {
    std::vector<T> nuovi(tratto - vecchi);
    valori.insert(inizio, std::make_move_iterator(nuovi.begin()), std::make_move_iterator(nuovi.end()));
  } else {
    valori.erase(inizio, inizio + static_cast<std::ptrdiff_t>(vecchi - tratto));
  }
}

} // namespace

bool RigheLette::Aggiorna(const ListaRighe& righe) {
  const Cambiate cambiate = Confronta(righe_, righe);
  if (righe_.size() == righe.size() && cambiate.inizio == righe.size()) return false;
  righe_ = righe;
  Adatta(lette_, cambiate, righe_.size());
  Adatta(dette_, cambiate, righe_.size());
  for (std::size_t i = cambiate.inizio; i < righe_.size() - cambiate.coda; ++i) Leggi(i, SezioneAtto::Misure);
  PonSezioni();
  return true;
}

void RigheLette::Leggi(std::size_t indice, SezioneAtto sezione) {
  campi_.Dividi(righe_[indice]);
  RigaLetta& letta = lette_[indice];
  letta = LeggiRiga(righe_[indice], campi_, nomi_);
  letta.sezione = sezione;
  Raccolta raccolta;
  VerificaRiga({righe_[indice], campi_, letta}, raccolta);
  dette_[indice] = raccolta.Prendi();
}

// A mark may put the rows behind it into another section than they were in.
void RigheLette::PonSezioni() {
  SezioneAtto sezione = SezioneAtto::Misure;
  proposta_ = lette_.size();
  for (std::size_t i = 0; i < lette_.size(); ++i) {
    if (lette_[i].segno == Segno::ApreRelazione && sezione == SezioneAtto::Misure) sezione = SezioneAtto::Relazione;
    if (lette_[i].segno == Segno::Proposta) {
      sezione = SezioneAtto::Proposta;
      proposta_ = std::min(proposta_, i);
    }
    if (lette_[i].sezione != sezione) Leggi(i, sezione);
    if (lette_[i].segno == Segno::ChiudeRelazione && sezione == SezioneAtto::Relazione) sezione = SezioneAtto::Misure;
  }
}

void RigheLette::Riporta(Raccolta& raccolta) const {
  for (std::size_t i = 0; i < dette_.size(); ++i)
    for (const Segnalazione& detta : dette_[i]) raccolta.Aggiungi(detta, i);
}

} // namespace lirmeto
