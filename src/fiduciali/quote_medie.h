#pragma once
// The mean heights of the comuni, looked through by name or code.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class QuoteMedie : public Modello {
public:
  struct Comune {
    std::string codice; // "G224"
    std::string nome;
    std::string quota; // metres, as the table has it
  };

  explicit QuoteMedie(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::vector<Comune> Righe; // those that hold the text looked for, in the order of the table
  std::string Testo;
  long Indice = -1; // of the row selected; -1 for none
  bool Chiusa = false;

  // All comuni; that of the libretto is selected. A table that is not there is told.
  void AlCaricamento();
  // The comuni whose code or name holds the text, in any case; the first one is selected.
  void Cerca(std::string_view testo);
  // Another row; one that is not there leaves none selected.
  void Scegli(long indice);
  // The height of the row selected becomes field 1 of row 9, and the form closes; without a row it says so and stays.
  void MettiInRigaNove();

private:
  Ambiente& ambiente_;
  std::vector<Comune> tutti_;
};

} // namespace lirmeto
