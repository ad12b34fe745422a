#include <verifiche/verificatore.h>

#include <verifiche/intorno.h>

#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::array Verifiche = {&VerificaTestata,  &VerificaRete,     &VerificaPoligonali, &VerificaSquadri,
                                  &VerificaGnss,     &VerificaContorni, &VerificaFiduciali,  &VerificaEstratto,
                                  &VerificaProposta, &VerificaCensuario};

bool Prima(const Segnalazione& a, const Segnalazione& b) {
  constexpr auto tutto = static_cast<std::size_t>(-1);
  return a.riga.value_or(tutto) < b.riga.value_or(tutto);
}

} // namespace

// Of the names only those that rows have now: one that stood in a row before finds nothing.
Verificatore::Chiave Verificatore::ChiaveAdesso() const {
  Chiave chiave;
  if (righe_.Quante() > 0) chiave.zero = righe_.Testo(0);
  const NomiPunti& nomi = righe_.Nomi();
  std::vector<bool> preso(nomi.Quanti());
  for (std::size_t i = 0; i < righe_.Quante(); ++i) {
    const Punto punto = righe_[i].nome;
    if (punto == SenzaPunto || !nomi.Fiduciale(punto) || preso[punto]) continue;
    preso[punto] = true;
    std::string nome = Maiuscolo(nomi.Nome(punto));
    if (NomePuntoFiduciale(nome)) chiave.fiduciali.push_back(std::move(nome));
  }
  std::sort(chiave.fiduciali.begin(), chiave.fiduciali.end());
  chiave.estratto = ambiente_.sessione.EstrattoAssociato;
  return chiave;
}

bool Verificatore::AggiornaIntorno() {
  Chiave adesso = ChiaveAdesso();
  if (chiave_ == adesso) return false;
  chiave_ = std::move(adesso);
  intorno_ = LeggiIntorno(ambiente_, chiave_->fiduciali);
  return true;
}

void Verificatore::Dimentica() {
  chiave_.reset();
}

void Verificatore::Verifica() {
  rete_.Calcola(righe_);
  const Atto atto{righe_, rete_, intorno_};
  Raccolta raccolta;
  righe_.Riporta(raccolta);
  for (const auto verifica : Verifiche) verifica(atto, raccolta);
  segnalazioni_ = raccolta.Prendi();
  std::stable_sort(segnalazioni_.begin(), segnalazioni_.end(), Prima);
  quante_ = Conta(segnalazioni_);
  ++versione_;
}

void Verificatore::Aggiorna() {
  const ElencoRighe& elenco = ambiente_.sessione.List1;
  const bool stesse = versioneRighe_ == elenco.Versione();
  if (stesse && chiave_ && chiave_->estratto == ambiente_.sessione.EstrattoAssociato) return;
  const bool righe = righe_.Aggiorna(elenco.Righe());
  versioneRighe_ = elenco.Versione();
  const bool intorno = AggiornaIntorno();
  if (righe || intorno) Verifica();
}

std::span<const Segnalazione> Verificatore::Di(std::size_t riga) const {
  const Segnalazione cercata{nullptr, riga, 0, {}, {}};
  const auto [inizio, fine] = std::equal_range(segnalazioni_.begin(), segnalazioni_.end(), cercata, Prima);
  return {inizio, fine};
}

} // namespace lirmeto
