#pragma once
// The form that chooses the comune whose fiducial points are looked at.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class KR_ElcoPf : public Modello {
public:
  explicit KR_ElcoPf(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Text1;  // what the name or the code begins with
  bool Check1 = true; // only the comuni whose TAF is installed
  // The comuni: province, the four characters of the code, the section behind them, the table's four characters, name.
  //   PD|G224||D3AA|PADOVA
  std::vector<std::string> List1;
  long Indice = -1; // of the row selected; -1 for none
  bool Chiusa = false;

  // The session's comune is selected when it is there.
  void AlCaricamento();
  void CambiaText1(std::string_view testo);
  void CambiaCheck1(bool si);
  // Error 9 for an index that is not there.
  void Scegli(std::size_t indice);

  // Shows the points of the comune selected, which becomes the session's; nothing without one.
  void SelezionaComune();

private:
  void Riempi();
  void Aggiungi(const std::string& riga);

  Ambiente& ambiente_;
};

} // namespace lirmeto
