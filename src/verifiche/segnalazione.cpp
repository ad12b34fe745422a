#include <verifiche/segnalazione.h>

#include <base/testo.h>

#include <array>

namespace lirmeto {

namespace {

std::string Unite(Raccolta::Valori valori) {
  std::string unite;
  bool prima = true;
  for (const auto valore : valori) {
    if (!std::exchange(prima, false)) unite += '\t';
    // A tab inside a row would shift the values behind it.
    for (const char c : valore) unite += c == '\t' ? ' ' : c;
  }
  return unite;
}

} // namespace

std::string_view NomeSeverita(Severita severita) {
  constexpr std::array<std::string_view, 3> nomi = {"errore", "avviso", "nota"};
  return nomi.at(static_cast<std::size_t>(severita));
}

std::string Testo(const Segnalazione& segnalazione) {
  std::string testo;
  const std::string_view frase = segnalazione.regola->frase;
  for (std::size_t i = 0; i < frase.size(); ++i) {
    if (frase[i] != '{' || i + 2 >= frase.size() || frase[i + 2] != '}') {
      testo += frase[i];
      continue;
    }
    testo += Parte(segnalazione.valori, '\t', static_cast<std::size_t>(frase[i + 1] - '1'));
    i += 2;
  }
  return testo;
}

void Raccolta::Riga(const Regola& regola, std::size_t riga, std::size_t campo, Valori valori, std::string rimedio) {
  fatte_.push_back({&regola, riga, campo, Unite(valori), std::move(rimedio)});
}

void Raccolta::Atto(const Regola& regola, Valori valori) {
  fatte_.push_back({&regola, std::nullopt, 0, Unite(valori), {}});
}

void Raccolta::Aggiungi(Segnalazione segnalazione, std::size_t riga) {
  segnalazione.riga = riga;
  fatte_.push_back(std::move(segnalazione));
}

Conteggio Conta(const std::vector<Segnalazione>& segnalazioni) {
  Conteggio conteggio;
  for (const Segnalazione& s : segnalazioni) {
    if (s.regola->severita == Severita::Errore) ++conteggio.errori;
    if (s.regola->severita == Severita::Avviso) ++conteggio.avvisi;
    if (s.regola->severita == Severita::Nota) ++conteggio.note;
  }
  return conteggio;
}

} // namespace lirmeto
