#include <verifiche/pannello_verifiche.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <numeric>

namespace lirmeto {

namespace {

std::string Frase(const Segnalazione& s) {
  return Testo(s, PannelloVerifiche::PrimaRiga);
}

std::string Quanti(std::size_t quanti, std::string_view uno, std::string_view molti) {
  return TestoIntero(static_cast<long long>(quanti)) + " " + std::string(quanti == 1 ? uno : molti);
}

bool Minore(const Segnalazione& a, const Segnalazione& b, OrdineVerifiche ordine) {
  switch (ordine) {
  case OrdineVerifiche::Gravita:
    return a.regola->severita < b.regola->severita;
  case OrdineVerifiche::Codice:
    return a.regola->codice < b.regola->codice;
  case OrdineVerifiche::Testo:
    return Frase(a) < Frase(b);
  default:
    return false; // the findings are in the order of the rows
  }
}

} // namespace

std::string PannelloVerifiche::NumeroRiga(const Segnalazione& s) {
  if (!s.riga) return {};
  const std::size_t numero = *s.riga + PrimaRiga;
  return TestoIntero(static_cast<long long>(numero));
}

bool PannelloVerifiche::Aggiorna() {
  verificatore_.Aggiorna();
  if (verificatore_.Versione() == versione_) return false;
  versione_ = verificatore_.Versione();
  Filtra();
  return true;
}

void PannelloVerifiche::Mostra(Severita severita, bool si) {
  mostrate_.at(static_cast<std::size_t>(severita)) = si;
  Filtra();
}

void PannelloVerifiche::Cerca(std::string_view testo) {
  cercato_ = Maiuscolo(Taglia(testo));
  Filtra();
}

void PannelloVerifiche::Ordina(OrdineVerifiche ordine) {
  discendente_ = ordine == ordine_ && !discendente_;
  ordine_ = ordine;
  Filtra();
}

bool PannelloVerifiche::Passa(const Segnalazione& s) const {
  if (!Mostrata(s.regola->severita)) return false;
  return cercato_.empty() ||
         Contiene(Maiuscolo(std::string(s.regola->codice) + " " + NumeroRiga(s) + " " + Frase(s)), cercato_);
}

// What was chosen is no longer: the list is another one.
void PannelloVerifiche::Filtra() {
  const auto& tutte = verificatore_.Segnalazioni();
  ++versioneElenco_;
  scelta_.reset();
  voci_.clear();
  for (std::size_t i = 0; i < tutte.size(); ++i)
    if (Passa(tutte[i])) voci_.push_back(i);
  if (ordine_ != OrdineVerifiche::Riga)
    std::stable_sort(voci_.begin(), voci_.end(),
                     [&](std::size_t a, std::size_t b) { return Minore(tutte[a], tutte[b], ordine_); });
  if (discendente_) std::reverse(voci_.begin(), voci_.end());
}

void PannelloVerifiche::Scegli(std::size_t indice) {
  if (indice < voci_.size()) scelta_ = indice;
}

std::optional<std::size_t> PannelloVerifiche::Successiva(bool avanti, long rigaAttuale) const {
  if (voci_.empty()) return std::nullopt;
  const std::size_t quante = voci_.size();
  if (scelta_) return (*scelta_ + (avanti ? 1 : quante - 1)) % quante;
  const auto dopo = [&](std::size_t i) { return Voce(i).riga && static_cast<long>(*Voce(i).riga) > rigaAttuale; };
  for (std::size_t i = 0; avanti && i < quante; ++i)
    if (dopo(i)) return i;
  for (std::size_t i = quante; !avanti && i > 0; --i)
    if (Voce(i - 1).riga && static_cast<long>(*Voce(i - 1).riga) < rigaAttuale) return i - 1;
  return avanti ? 0 : quante - 1;
}

std::optional<Segnalazione> PannelloVerifiche::ConRimedio(long rigaAttuale) const {
  if (scelta_ && !Voce(*scelta_).rimedio.empty()) return Voce(*scelta_);
  if (rigaAttuale < 0) return std::nullopt;
  for (const Segnalazione& s : verificatore_.Di(static_cast<std::size_t>(rigaAttuale)))
    if (!s.rimedio.empty()) return s;
  return std::nullopt;
}

std::optional<Severita> PannelloVerifiche::SegnoDi(std::size_t riga) const {
  std::optional<Severita> peggiore;
  for (const Segnalazione& s : verificatore_.Di(riga))
    if (!peggiore || s.regola->severita < *peggiore) peggiore = s.regola->severita;
  return peggiore;
}

std::string PannelloVerifiche::SpiegazioneDi(std::size_t riga) const {
  std::string spiegazione;
  for (const Segnalazione& s : verificatore_.Di(riga)) {
    if (!spiegazione.empty()) spiegazione += "\n";
    spiegazione += std::string(s.regola->codice) + " " + Frase(s);
  }
  return spiegazione;
}

std::string PannelloVerifiche::Riepilogo() const {
  const Conteggio& quante = verificatore_.Quante();
  if (quante.Tutte() == 0) return "Nessuna segnalazione";
  std::string testo;
  const auto dici = [&](std::size_t quanti, std::string_view uno, std::string_view molti) {
    if (quanti > 0) testo += (testo.empty() ? "" : ", ") + Quanti(quanti, uno, molti);
  };
  dici(quante.errori, "errore", "errori");
  dici(quante.avvisi, "avviso", "avvisi");
  dici(quante.note, "nota", "note");
  return testo;
}

std::vector<std::string> PannelloVerifiche::Righe() const {
  std::vector<std::string> righe;
  for (std::size_t i = 0; i < voci_.size(); ++i) {
    const Segnalazione& s = Voce(i);
    righe.push_back(std::string(NomeSeverita(s.regola->severita)) + "\t" + NumeroRiga(s) + "\t" +
                    std::string(s.regola->codice) + "\t" + Frase(s));
  }
  return righe;
}

} // namespace lirmeto
