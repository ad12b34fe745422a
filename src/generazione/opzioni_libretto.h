#pragma once
// The options of the libretto from a drawing, under the keys that keep them in the user's settings.

#include <base/macchina.h>

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace lirmeto {

inline constexpr std::string_view SezioneLibrettoAutomatico = "LIBRETTO_AUTOMATICO";

// Captions of the steps to which angles are rounded, grads: the step is the number they begin with.
inline constexpr std::array<std::string_view, 6> PassiAngolari = {"0.0001 (1cc)", "0.0002 (2cc)", "0.0005 (5cc)",
                                                                  "0.001 (10cc)", "0.002 (20cc)", "0.005 (50cc)"};

struct OpzioniLibretto {
  bool MantieniRighe4 = false;
  bool Mantieni37 = false;
  bool Mantieni8 = false;
  bool PuntoPlanimetrico = false;
  std::string Dislivello = "2"; // millimetres
  bool MostraReport = false;
  bool CommentiDuplicati = true;
  // One group of option buttons.
  bool OrientaAzimut = false;
  bool OrientaPrecedente = true;
  bool OrientaLibretto = false;
  // Another one.
  bool IncrementoCentesimale = true;
  bool IncrementoMillesimale = false;
  bool MettiCs = false;
  bool EliminaPuntiNote = false;
  bool PfDaEstratto = false; // the points come with the extract: the look-up in the TAF runs while this is off
  bool MantieniGps = true;
  bool NoteMancanti = true;
  bool RiordinoFittizio = true; // kept, and of no effect: the reorder always runs
  int PrecisioneAngolare = 0;   // index of PassiAngolari

  [[nodiscard]] bool Orientata() const { return OrientaAzimut || OrientaPrecedente || OrientaLibretto; }
};

// An option as the form shows it: a check box, or a button of a group of which one is chosen.
struct VoceOpzione {
  std::string_view chiave;
  std::string_view didascalia;
  bool OpzioniLibretto::*valore;
  std::string_view gruppo; // empty: a check box
  bool logico;             // written "True" and "False" and not 1 and 0
};

[[nodiscard]] std::span<const VoceOpzione> VociOpzione();

// Sets an option by its key, without regard to case; choosing a button of a group clears the others. False: no such
// key, or a value that it cannot have.
bool ImpostaOpzione(OpzioniLibretto& opzioni, std::string_view chiave, std::string_view valore);

[[nodiscard]] OpzioniLibretto LeggiOpzioni(const Impostazioni& impostazioni);
void ScriviOpzioni(const OpzioniLibretto& opzioni, Impostazioni& impostazioni);

} // namespace lirmeto
