#include <ui/comune/selezione_estesa.h>

#include <algorithm>

namespace lirmeto::ui {

void SelezioneEstesa::Semplice(std::size_t riga) {
  if (elenco_.Vuoto()) return;
  Nessuna();
  ancora_ = Entro(riga);
  elenco_.Seleziona(ancora_, true);
  elenco_.Indice(static_cast<long>(ancora_));
}

void SelezioneEstesa::Alterna(std::size_t riga) {
  if (elenco_.Vuoto()) return;
  ancora_ = Entro(riga);
  elenco_.Seleziona(ancora_, !elenco_.Selezionata(ancora_));
  elenco_.Indice(static_cast<long>(ancora_));
}

void SelezioneEstesa::Estendi(std::size_t riga, bool mantieni) {
  if (elenco_.Vuoto()) return;
  if (!mantieni) Nessuna();
  const std::size_t fine = Entro(riga);
  ancora_ = Entro(ancora_);
  elenco_.SelezionaIntervallo(std::min(ancora_, fine), std::max(ancora_, fine), true);
  elenco_.Indice(static_cast<long>(fine));
}

void SelezioneEstesa::Sposta(std::size_t riga) {
  if (!elenco_.Vuoto()) elenco_.Indice(static_cast<long>(Entro(riga)));
}

void SelezioneEstesa::Tutte() {
  if (!elenco_.Vuoto()) elenco_.SelezionaIntervallo(0, elenco_.Quante() - 1, true);
}

std::size_t SelezioneEstesa::Entro(std::size_t riga) const {
  return std::min(riga, elenco_.Quante() - 1);
}

void SelezioneEstesa::Nessuna() {
  elenco_.SelezionaIntervallo(0, elenco_.Quante() - 1, false);
}

} // namespace lirmeto::ui
