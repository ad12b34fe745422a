#pragma once
// The form that manages the archives of measured distances: one is selected for the session, or deleted, or more are
// fetched.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <vector>

namespace lirmeto {

class KR_SelezionaMisurate : public Modello {
public:
  explicit KR_SelezionaMisurate(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::vector<std::string> File1; // names of the archives
  long Indice = -1;               // of the one selected; -1 for none
  bool Chiusa = false;

  // Leaves one archive a province, the last, and deletes the others: those are older years. The archive of the session
  // is selected when it is there.
  void AlCaricamento();

  // Error 9 for an index that is not there.
  void Scegli(std::size_t indice);

  // The selected archive becomes the session's and the form closes; without one it says so and stays.
  void SelezionaLeMisurate();
  // Fetches archives, then lists what there is.
  void Importa();
  // Deletes the selected archive once the user has confirmed it.
  void Elimina();

private:
  void TogliSuperate();
  void Ricarica();
  [[nodiscard]] bool SenzaScelta();

  Ambiente& ambiente_;
};

} // namespace lirmeto
