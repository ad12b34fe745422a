#pragma once
// The one exception that the logic throws: a classic error number and its
// description in Italian.

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

  [[nodiscard]] int Numero() const { return numero_; }
  [[nodiscard]] const std::string& Descrizione() const { return descrizione_; }
  [[nodiscard]] const char* what() const noexcept override { return descrizione_.c_str(); }

private:
  int numero_;
  std::string descrizione_;
};

} // namespace lirmeto
