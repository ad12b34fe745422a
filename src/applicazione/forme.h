#pragma once
// Forms that are opened by their name: by tag commands, and by layers below the one that the form lives in.

#include <core/ambiente.h>
#include <core/nomi_forme.h>

#include <span>
#include <string_view>

namespace lirmeto {

// Names; core/nomi_forme.h has those that lower layers open.
namespace forma {
inline constexpr std::string_view ConfiguraPregeo = "FormConfiguraPregeo";
inline constexpr std::string_view Intestazione = "FormCatasto1TXT";
inline constexpr std::string_view LibrettoDaDisegno = "LibrettoDaDisegno";
inline constexpr std::string_view DaPregeo = "KR_Dapregeo";
inline constexpr std::string_view ImportaFiduciali = "FormImportaFiduciali";
inline constexpr std::string_view AssegnaDescrizione = "AssegnaDescrizione";
inline constexpr std::string_view Disegno = "FormDisegno";
inline constexpr std::string_view CodFis = "KR_CodFis";
inline constexpr std::string_view Comuni8 = "KR_Comuni8";
inline constexpr std::string_view ArchivioPossessori = "ArchivioPossessori";
inline constexpr std::string_view ElcoPf = "KR_ElcoPf";
inline constexpr std::string_view ImportaFiducialiEstratto = "FormImportaFiduciali.Estratto";
inline constexpr std::string_view CercaInPregeo = "KR_Dapregeo.Cerca";
inline constexpr std::string_view QuoteMedie = "QuoteMedie";
inline constexpr std::string_view SelezionaMisurate = "KR_SelezionaMisurate";
} // namespace forma

struct Forma {
  std::string_view nome;
  void (*apri)(Ambiente& ambiente); // makes the model, loads it and shows it
};

// The forms that this program has.
[[nodiscard]] std::span<const Forma> Forme();

// The form of this name; null when there is none.
[[nodiscard]] const Forma* TrovaForma(std::string_view nome);

} // namespace lirmeto
