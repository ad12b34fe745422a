#pragma once
// The commands of the main window as tables: what stands on it, under which
// caption, and what each entry does.

#include <core/servizi.h> // NonAncoraDisponibile: what a disabled entry says when the pointer stands on it

#include <span>
#include <string_view>

namespace lirmeto {

enum class Comando {
  NessunaAzione,  // present in the window and does nothing: meant so
  NonDisponibile, // its work is still to come: shown disabled
  NuovoLibretto,  // needs the header form
  SalvaLibretto,
  EsportaLibretto,
  SelezionaFont,
  KillPregeo,
  Chiudi,
  ModificaDiretta,
  MostraRiordino, // the dialog
  RiordinoRighe,  // without the dialog
  IncollaDaAppunti,
  MostraDesktop,
  GondellaLibretti,
  AttivaPregeo,
  UtilitaCatastali, // shows the tools panel
  InformazioniGenerali,
};

struct Pulsante {
  int indice; // in the button array
  std::string_view didascalia;
  std::string_view gruppo; // "Libretto", "Righe", ...: buttons of a group stand together
  Comando comando;
};

// Caption of a menu entry that is only a line between others.
inline constexpr std::string_view Separatore = "-";

struct VoceMenu {
  std::string_view menu;      // "File"
  std::string_view sottomenu; // "Cambia"; empty: directly in the menu
  std::string_view didascalia;
  Comando comando;
};

struct Strumento { // of the tools panel
  std::string_view didascalia;
  std::string_view tag; // the tag command it gives
  Comando comando;
};

[[nodiscard]] std::span<const Pulsante> Pulsanti();
[[nodiscard]] std::span<const VoceMenu> VociMenu();
[[nodiscard]] std::span<const Strumento> Strumenti();

inline constexpr int PulsanteProvincia = 7; // shows SiglaProvincia beside its caption
inline constexpr int PulsanteUtilita = 25;  // the pointer over it shows the tools panel, over any other hides it

} // namespace lirmeto
