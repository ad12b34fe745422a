#include <fiduciali/relazioni_pf.h>

#include <base/avanzamento.h>
#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::string_view Sigla = "PF";
constexpr std::size_t LungheIniziali = 4;     // "PF" and the two bytes behind it
constexpr std::size_t MassimoRighe = 500'000; // of a report that somebody reads

std::size_t Iniziali(std::string_view nome) {
  const auto byte = [nome](std::size_t indice) {
    return static_cast<std::size_t>(static_cast<unsigned char>(nome[indice]));
  };
  return byte(2) * 256 + byte(3);
}

} // namespace

double DistanzaMisurata(std::string_view riga) {
  constexpr std::size_t primaDellaDistanza = 33;
  return riga.size() > primaDellaDistanza ? Valore(riga.substr(primaDellaDistanza)) : 0;
}

RelazioniPF::RelazioniPF(Dialoghi& dialoghi, std::span<const std::string> nomi, std::string_view testo) : nomi_(nomi) {
  DividiPerIniziali();
  const auto righe = RigheDi(testo);
  Avanzamento avanzamento(dialoghi, "Ricerca delle distanze misurate", righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    Distribuisci(righe[i]);
  }
}

// Sorted names that begin alike stand together. One too short to have two bytes behind its "PF" may be the beginning of
// anything: it is tried by itself everywhere.
void RelazioniPF::DividiPerIniziali() {
  perIniziali_.resize(std::size_t{256} * 256);
  for (std::size_t i = 0; i < nomi_.size(); ++i) {
    if (nomi_[i].size() < LungheIniziali) {
      corti_.push_back(i);
      continue;
    }
    Tratto& tratto = perIniziali_[Iniziali(nomi_[i])];
    if (tratto.ultimo == 0) tratto.primo = i;
    tratto.ultimo = i + 1;
  }
}

void RelazioniPF::Distribuisci(std::string_view riga) {
  TrovaNomi(riga);
  std::sort(trovati_.begin(), trovati_.end());
  for (std::size_t i = 0; i < trovati_.size(); ++i)
    for (std::size_t j = i + 1; j < trovati_.size(); ++j) {
      if (++quante_ > MassimoRighe)
        throw Errore(errore::MemoriaEsaurita, "L'archivio ripete troppe volte le coppie dei punti");
      righe_[trovati_[i] * nomi_.size() + trovati_[j]].push_back(riga);
    }
}

void RelazioniPF::TrovaNomi(std::string_view riga) {
  trovati_.clear();
  for (std::size_t posto = riga.find(Sigla); posto != std::string_view::npos; posto = riga.find(Sigla, posto + 1)) {
    const std::string_view coda = riga.substr(posto);
    for (const std::size_t corto : corti_) Prova(coda, {corto, corto + 1});
    if (coda.size() >= LungheIniziali) Prova(coda, perIniziali_[Iniziali(coda)]);
  }
}

void RelazioniPF::Prova(std::string_view coda, const Tratto& tratto) {
  for (std::size_t i = tratto.primo; i < tratto.ultimo; ++i)
    if (coda.starts_with(nomi_[i]) && std::find(trovati_.begin(), trovati_.end(), i) == trovati_.end())
      trovati_.push_back(i);
}

const std::vector<std::string_view>& RelazioniPF::Righe(std::size_t primo, std::size_t secondo) const {
  static const std::vector<std::string_view> nessuna;
  const auto trovate = righe_.find(primo * nomi_.size() + secondo);
  return trovate == righe_.end() ? nessuna : trovate->second;
}

} // namespace lirmeto
