#include <supporto/segnalazione.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
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

std::string Testo(const Segnalazione& segnalazione, std::size_t primaRiga) {
  std::string testo;
  const std::string_view frase = segnalazione.regola->frase;
  for (std::size_t da = 0; da < frase.size();) {
    const std::size_t aperta = std::min(frase.find('{', da), frase.size());
    testo += frase.substr(da, aperta - da);
    const std::size_t chiusa = frase.find('}', aperta);
    if (chiusa == std::string_view::npos) break;
    const bool riga = frase[aperta + 1] == '#';
    const std::string_view valore = Parte(segnalazione.valori, '\t', static_cast<std::size_t>(frase[chiusa - 1] - '1'));
    testo += riga ? Formatta(Valore(valore) + static_cast<double>(primaRiga), "0") : std::string(valore);
    da = chiusa + 1;
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
