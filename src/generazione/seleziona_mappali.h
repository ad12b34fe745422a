#pragma once
// The choice of the parcels that an automated typology is about.

#include <base/dialoghi.h>
#include <base/testo.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class SelezionaMappali : public Modello {
public:
  static constexpr std::string_view Etichetta =
      "I mappali contenuti nell'Estratto sono più di uno: selezionare il o i mappali interessati."_w;

  explicit SelezionaMappali(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Titolo;             // "Seleziona Mappali - " and the extract's name
  std::vector<std::string> List1; // rows of the parcels that the typology admits, upper case
  std::vector<bool> Selezionati;  // by the row of List1
  bool Check1 = false;            // confirm takes all of them
  std::string Text1;              // the mean east of row 9
  std::string Text2;              // that of the extract
  bool Chiusa = false;

  // Errors are reported.
  void AlCaricamento();

  // Buttons: all, none, the others.
  void SelezionaTutti() { Selezionati.assign(List1.size(), true); }
  void SelezionaNessuno() { Selezionati.assign(List1.size(), false); }
  void Inverti() { Selezionati.flip(); }
  // A place that is not there does nothing.
  void Seleziona(std::size_t indice, bool si);

  // The mean east into field 4 of row 9, whole metres.
  void CambiaText1(std::string_view testo);

  // The chosen parcels into the session, and the form closes; without a choice, or with more than the code or the
  // version of Pregeo takes, it stays.
  void Conferma();
  void Chiudi() { Chiusa = true; }

private:
  void Carica();
  [[nodiscard]] bool TroppiMappali(std::size_t quanti) const;

  Ambiente& ambiente_;
};

} // namespace lirmeto
