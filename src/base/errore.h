#pragma once
// The one exception that the logic throws: a classic error number and its
// description in Italian.

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace lirmeto {

namespace errore {
inline constexpr int ArgomentoNonValido = 5;
inline constexpr int Overflow = 6;
inline constexpr int MemoriaEsaurita = 7;
inline constexpr int IndiceFuoriIntervallo = 9;
inline constexpr int DivisionePerZero = 11;
inline constexpr int TipoNonCorrispondente = 13;
inline constexpr int ErroreInterno = 51;
inline constexpr int NomeFileNonValido = 52;
inline constexpr int FileNonTrovato = 53;
inline constexpr int FileGiaAperto = 55;
inline constexpr int FileEsistente = 58;
inline constexpr int DiscoPieno = 61;
inline constexpr int OltreLaFine = 62;
inline constexpr int AutorizzazioneNegata = 70;
inline constexpr int AccessoAlFile = 75;
inline constexpr int PercorsoNonTrovato = 76;
inline constexpr int ChiaveEsistente = 457;
inline constexpr int ErroreStampante = 482;
inline constexpr int DialogoAnnullato = 32755;
} // namespace errore

// The usual Italian description of an error number (Windows-1252).
[[nodiscard]] std::string DescrizioneErrore(int numero);

class Errore : public std::exception {
public:
  explicit Errore(int numero) : Errore(numero, DescrizioneErrore(numero)) {}

  // The description may name the value refused: "Nome di file non valido:
  // \"A/B\"".
  Errore(int numero, std::string descrizione) : numero_(numero), descrizione_(std::move(descrizione)) {}

  // The same error, raised for a row: its number, from 1, and its text. The row told first stays.
  [[nodiscard]] Errore DellaRiga(std::size_t numero, std::string_view riga) const;

  [[nodiscard]] int Numero() const { return numero_; }
  [[nodiscard]] const std::string& Descrizione() const { return descrizione_; }
  // "12: 7|3|1%|2%|"; empty for an error of no row.
  [[nodiscard]] const std::string& Riga() const { return riga_; }
  [[nodiscard]] const char* what() const noexcept override { return descrizione_.c_str(); }

private:
  int numero_;
  std::string descrizione_;
  std::string riga_;
};

// Runs what a row is read or made with; an error comes out with the row. `numero` is asked for then alone.
template <typename Numero, typename Comando>
auto AllaRiga(const Numero& numero, std::string_view riga, const Comando& comando) {
  try {
    return comando();
  } catch (const Errore& errore) {
    throw errore.DellaRiga(numero(), riga);
  }
}

} // namespace lirmeto
