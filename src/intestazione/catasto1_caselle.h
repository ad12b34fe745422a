#pragma once
// The boxes of the header form: what stands in each of them, and where it comes from.

#include <base/data.h>
#include <core/sessione.h>
#include <pregeo/catasto1_file.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lirmeto {

inline constexpr std::size_t NumeroCaselle = 20;

// Places in the array of boxes.
namespace casella {
inline constexpr std::size_t Data = 0;
inline constexpr std::size_t Protocollo = 1;
inline constexpr std::size_t Comune = 2;
inline constexpr std::size_t Foglio = 3;
inline constexpr std::size_t Mappali = 4;
inline constexpr std::size_t Cognome = 5;
inline constexpr std::size_t Qualifica = 6;
inline constexpr std::size_t Provincia = 7;
inline constexpr std::size_t QuotaMedia = 8; // the first of row 9
inline constexpr std::size_t PrecisioneLineare = 9;
inline constexpr std::size_t PrecisioneAngolare = 10;
inline constexpr std::size_t EstMedio = 11;
inline constexpr std::size_t Versione = 12;
inline constexpr std::size_t Tipologia = 13;
inline constexpr std::size_t Strumentazione = 14; // the last of row 9
inline constexpr std::size_t Commento = 15;
inline constexpr std::size_t Iscrizione = 16;
inline constexpr std::size_t CodiceFiscale = 17;
inline constexpr std::size_t Recapito = 18;
inline constexpr std::size_t Nome = 19;
} // namespace casella

// Captions by place.
[[nodiscard]] const std::array<std::string_view, NumeroCaselle>& EtichetteCaselle();

// The texts of the boxes.
class CaselleCatasto1 {
public:
  [[nodiscard]] const std::string& operator[](std::size_t indice) const { return testi_.at(indice); }
  [[nodiscard]] const std::array<std::string, NumeroCaselle>& Testi() const { return testi_; }

  // A text as it is, and one from elsewhere: what a field of a row cannot hold becomes a blank.
  void Metti(std::size_t indice, std::string testo) { testi_.at(indice) = std::move(testo); }
  void Cambia(std::size_t indice, std::string_view testo);

  // The fields of rows 0 and 9 and the comment. The surveyor's field is surname and name: both boxes stay where they
  // say the same, else they are its first word and what stands behind it.
  void MettiRighe(const Catasto1& dati);
  [[nodiscard]] Catasto1 PerCatasto1() const;

  // The boxes of the surveyor, from the session and back.
  void PrendiTecnico(const Sessione& sessione);
  void DaiTecnico(Sessione& sessione) const;

  void InCapitali(std::size_t primo, std::size_t ultimo);
  // Those of rows 0 and 9 as the rows have them: in capitals, trimmed.
  void Pulisci();
  // Empty boxes get what they are when nobody says otherwise.
  void Completa(const Sessione& sessione, const Data& oggi);

  // A row of boxes. Surname and name are one field of it.
  [[nodiscard]] std::string RigaZero() const { return Riga("0", casella::Data, casella::Provincia); }
  [[nodiscard]] std::string RigaNove() const { return Riga("9", casella::QuotaMedia, casella::Strumentazione); }

private:
  void MettiTecnico(std::string_view tecnico);
  [[nodiscard]] std::string Riga(std::string_view genere, std::size_t primo, std::size_t ultimo) const;

  std::array<std::string, NumeroCaselle> testi_;
};

// What an empty box gets; empty where it may stay empty.
[[nodiscard]] std::string ValorePredefinito(std::size_t indice, const Sessione& sessione, const Data& oggi);

// A date of six digits with its century, "20" where the value of the last two is below 88 and "19" otherwise; any other
// text as it is. No act is older than 1988; rows may carry any date and are read with another threshold, 80.
[[nodiscard]] std::string DataAOttoCifre(std::string_view data);

// "ddmmyyyy" as a date of the calendar; nothing for any other text.
[[nodiscard]] std::optional<Data> DataDaTesto(std::string_view testo);

// A sheet with zeros before it up to four digits, the annex letter behind: "12A" is "0012A".
[[nodiscard]] std::string FoglioAQuattroCifre(std::string_view foglio);

// A number in a picture format, whatever the text holds.
[[nodiscard]] std::string NumeroInFormato(std::string_view testo, std::string_view formato);

inline constexpr std::string_view FormatoEstMedio = "##########0";
inline constexpr std::string_view FormatoQuotaMedia = "#####0";

} // namespace lirmeto
