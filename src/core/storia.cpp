#include <core/storia.h>

#include <base/testo.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

// What belongs to the document beside its rows: the owners, where it is saved, and what its rows and tag rows tell.
// The owners come first.
constexpr std::array<std::string Sessione::*, 33> Valori = {
    &Sessione::Ditta,
    &Sessione::NomeFileLibretto,
    &Sessione::EstrattoAssociato,
    &Sessione::CodiceFiscale,
    &Sessione::NumeroIscrizione,
    &Sessione::RigaZero,
    &Sessione::RigaNove,
    &Sessione::RigaCommento,
    &Sessione::DataLibretto,
    &Sessione::Protocollo,
    &Sessione::ProtocolloPregeo,
    &Sessione::AnnoLibretto,
    &Sessione::CodiceComune,
    &Sessione::NomeComune,
    &Sessione::SiglaProvincia,
    &Sessione::NomeProvincia,
    &Sessione::Foglio,
    &Sessione::Mappali,
    &Sessione::Tecnico,
    &Sessione::Cognome,
    &Sessione::Nome,
    &Sessione::Qualifica,
    &Sessione::Provincia,
    &Sessione::QuotaMedia,
    &Sessione::PrecisioneLineare,
    &Sessione::PrecisioneAngolare,
    &Sessione::EstMedio,
    &Sessione::TipologiaRilievo,
    &Sessione::TipologiaCorrente,
    &Sessione::Strumentazione,
    &Sessione::ClasseAtto,
    &Sessione::NomeFascicolo,
    &Sessione::Recapito,
};

std::vector<std::string> ValoriDi(const Sessione& sessione) {
  std::vector<std::string> valori;
  valori.reserve(Valori.size());
  for (const auto campo : Valori) valori.push_back(sessione.*campo);
  return valori;
}

// Whether the text is the rows, each with its line end.
bool SonoLeRighe(std::string_view testo, const ListaRighe& righe) {
  for (const auto riga : righe) {
    if (!testo.starts_with(riga)) return false;
    testo.remove_prefix(riga.size());
    if (!testo.starts_with(FineRiga)) return false;
    testo.remove_prefix(FineRiga.size());
  }
  return testo.empty();
}

// Libretto where it is more or less than the rows of the list.
TestoCondiviso LibrettoDiverso(const Sessione& sessione) {
  if (SonoLeRighe(sessione.Libretto, sessione.List1.Righe())) return nullptr;
  return std::make_shared<const std::string>(sessione.Libretto);
}

} // namespace

void Storia::Ricomincia(const Sessione& sessione) {
  fatti_.clear();
  annullati_.clear();
  righe_ = sessione.List1.Righe();
  versione_ = sessione.List1.Versione();
  libretto_ = LibrettoDiverso(sessione);
  valori_ = ValoriDi(sessione);
  scartate_ = sessione.RigheScartate;
}

void Storia::Prepara(const Sessione& sessione) {
  if (versione_ != sessione.List1.Versione()) Registra(sessione, "Modifica");
  valori_ = ValoriDi(sessione);
  scartate_ = sessione.RigheScartate;
}

bool Storia::Registra(const Sessione& sessione, std::string_view nome) {
  const bool ditta = !valori_.empty() && valori_.front() != sessione.Ditta;
  const bool righe = versione_ != sessione.List1.Versione() && righe_ != sessione.List1.Righe();
  if (righe || ditta) {
    Passo passo = Confronta(sessione);
    passo.nome = nome;
    fatti_.push_back(std::move(passo));
    annullati_.clear();
    valori_ = ValoriDi(sessione);
    scartate_ = sessione.RigheScartate;
  }
  if (versione_ != sessione.List1.Versione()) righe_ = sessione.List1.Righe();
  versione_ = sessione.List1.Versione();
  libretto_ = LibrettoDiverso(sessione);
  return righe || ditta;
}

Storia::Differenza Storia::Ultima(const Sessione& sessione) const {
  if (fatti_.empty()) return {};
  const Passo& passo = fatti_.back();
  Differenza differenza{passo.inizio, passo.quante, passo.altre.righe.size(), 0};
  if (differenza.nuove != differenza.vecchie) return differenza;
  for (std::size_t i = 0; i < passo.quante; ++i)
    if (passo.altre.righe[i] != sessione.List1.Riga(passo.inizio + i)) ++differenza.diverse;
  return differenza;
}

Storia::Passo Storia::Confronta(const Sessione& sessione) const {
  const ListaRighe& ora = sessione.List1.Righe();
  const std::size_t comuni = std::min(righe_.size(), ora.size());
  const auto divergenza = std::mismatch(righe_.begin(), righe_.end(), ora.begin(), ora.end());
  const auto inizio = static_cast<std::size_t>(divergenza.first - righe_.begin());
  std::size_t coda = 0;
  while (coda < comuni - inizio && righe_[righe_.size() - 1 - coda] == ora[ora.size() - 1 - coda]) ++coda;
  Passo passo;
  passo.inizio = inizio;
  passo.quante = ora.size() - inizio - coda;
  passo.altre = Copia(righe_, inizio, righe_.size() - inizio - coda);
  passo.libretto = libretto_;
  for (std::size_t i = 0; i < valori_.size(); ++i)
    if (valori_[i] != sessione.*Valori.at(i)) passo.valori.emplace_back(i, valori_[i]);
  passo.scartate = scartate_;
  return passo;
}

Storia::Tratto Storia::Copia(const ListaRighe& righe, std::size_t inizio, std::size_t quante) {
  std::string testo;
  std::size_t lunghezza = 0;
  for (std::size_t i = inizio; i < inizio + quante; ++i) lunghezza += righe[i].size();
  testo.reserve(lunghezza);
  for (std::size_t i = inizio; i < inizio + quante; ++i) testo += righe[i];
  Tratto tratto{std::make_shared<const std::string>(std::move(testo)), {}};
  tratto.righe.reserve(quante);
  std::size_t posto = 0;
  for (std::size_t i = inizio; i < inizio + quante; ++i) {
    tratto.righe.push_back(std::string_view(*tratto.testo).substr(posto, righe[i].size()));
    posto += righe[i].size();
  }
  return tratto;
}

void Storia::Scambia(Passo& passo, Sessione& sessione) {
  TestoCondiviso libretto = LibrettoDiverso(sessione);
  ListaRighe righe = sessione.List1.Righe();
  Tratto tolte = Copia(righe, passo.inizio, passo.quante);
  righe.CambiaTratto(passo.inizio, passo.quante, passo.altre.righe);
  righe.Tieni(passo.altre.testo);
  sessione.Libretto = passo.libretto ? *passo.libretto : RigheUnite(righe);
  sessione.List1.Riempi(std::move(righe));
  sessione.List1.Indice(static_cast<long>(passo.inizio));
  passo.quante = passo.altre.righe.size();
  passo.altre = std::move(tolte);
  passo.libretto = std::move(libretto);
  for (auto& [indice, testo] : passo.valori) std::swap(sessione.*Valori.at(indice), testo);
  std::swap(sessione.RigheScartate, passo.scartate);
}

void Storia::Torna(std::vector<Passo>& da, std::vector<Passo>& a, Sessione& sessione) {
  if (da.empty()) return;
  a.push_back(std::move(da.back()));
  da.pop_back();
  Scambia(a.back(), sessione);
  righe_ = sessione.List1.Righe();
  versione_ = sessione.List1.Versione();
  libretto_ = LibrettoDiverso(sessione);
  valori_ = ValoriDi(sessione);
  scartate_ = sessione.RigheScartate;
}

std::string_view Storia::DaAnnullare() const {
  return fatti_.empty() ? std::string_view{} : std::string_view(fatti_.back().nome);
}

std::string_view Storia::DaRipetere() const {
  return annullati_.empty() ? std::string_view{} : std::string_view(annullati_.back().nome);
}

} // namespace lirmeto
