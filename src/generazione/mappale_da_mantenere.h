#pragma once
// Which of the chosen parcels keeps its identifier.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <optional>
#include <string>
#include <vector>

namespace lirmeto {

class MappaleDaMantenere : public Modello {
public:
  static constexpr std::string_view Titolo = "Particella da Mantenere";

  explicit MappaleDaMantenere(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Etichetta = "Indica la particella che mantiene l'identificativo";
  std::vector<std::string> List1;    // numbers of the chosen parcels
  std::vector<std::string> List2;    // rows of the urban ones; under "06" of the rural ones when there are none
  std::optional<std::size_t> Indice; // of List1, the one that keeps
  bool Chiusa = false;

  void AlCaricamento();

  // The parcels of a clicked row of List2 leave List1.
  void ClickList2(std::size_t indice);
  // The selected parcel first, the others behind it, and the form closes. Without a selection it stays.
  void ConfermaMappali();
  void Chiudi() { Chiusa = true; }

private:
  Ambiente& ambiente_;
};

} // namespace lirmeto
