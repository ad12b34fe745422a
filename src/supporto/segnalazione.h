#pragma once
// What a check says: findings as values, the same for list, window and command line.

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lirmeto {

enum class Severita : std::uint8_t { Errore, Avviso, Nota };

// "errore", "avviso", "nota".
[[nodiscard]] std::string_view NomeSeverita(Severita severita);

// One check of the table: what it says, and why it is made.
struct Regola {
  std::string_view codice; // "L012": stable, so that a finding can be looked up and talked about
  Severita severita = Severita::Errore;
  std::string_view frase; // with {1}, {2}, ... where the values of a finding go; {#1}: a row
  std::string_view motivo;
};

struct Segnalazione {
  const Regola* regola = nullptr;
  std::optional<std::size_t> riga; // index in the row list, row 0 being 0; none: the whole act
  std::size_t campo = 0;           // of the row, counted from its kind as 0; 0: the whole row
  std::string valori;              // of the sentence, a tab between
  std::string rimedio;             // a row that mends it and can do no harm; empty: there is none
  bool operator==(const Segnalazione&) const = default;
};

// The sentence of a finding with its values. Rows are counted from `primaRiga`: the windows call the first row 1.
[[nodiscard]] std::string Testo(const Segnalazione& segnalazione, std::size_t primaRiga = 0);

// The findings as they are made.
class Raccolta {
public:
  using Valori = std::initializer_list<std::string_view>;

  // About a field of a row.
  void Riga(const Regola& regola, std::size_t riga, std::size_t campo, Valori valori = {}, std::string rimedio = {});
  // About the whole act.
  void Atto(const Regola& regola, Valori valori = {});

  // One made before, now about this row.
  void Aggiungi(Segnalazione segnalazione, std::size_t riga);

  [[nodiscard]] std::vector<Segnalazione> Prendi() { return std::move(fatte_); }

private:
  std::vector<Segnalazione> fatte_;
};

struct Conteggio {
  std::size_t errori = 0;
  std::size_t avvisi = 0;
  std::size_t note = 0;
  [[nodiscard]] std::size_t Tutte() const { return errori + avvisi + note; }
};

[[nodiscard]] Conteggio Conta(const std::vector<Segnalazione>& segnalazioni);

} // namespace lirmeto
