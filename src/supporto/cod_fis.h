#pragma once
// The choice of a comune from the municipal table.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Caption of a list of comuni. The two codes stand in the rows in the other order: the rows are what others read, and
// the caption is only looked at.
inline constexpr std::string_view TestataComuni = "Nome Comune                            C.Cat C.Fis Prov.";

// A list of comuni, searched while typing, of which one is taken. A row is the name in 40 columns, the table's four
// characters in 5, the cadastral code in 5, and the province, with bars between:
//   "PADOVA                                  |D3AA |G224 |PD"
class SceltaComune : public Modello {
public:
  std::string Text1;              // name looked for
  std::string Text2;              // code looked for
  std::vector<std::string> List1; // the rows
  long Indice = -1;               // of the row selected; -1 for none
  std::string Etichetta;          // cadastral code of the row selected
  bool Chiusa = false;

  // A change of the boxes: the text in capitals, and the first row that begins with it, or holds it anywhere, is
  // selected. None when there is no such row, and for an empty text, so that nothing is taken by mistake.
  void CambiaText1(std::string_view testo);
  void CambiaText2(std::string_view testo);

  // Selects a row and shows its name in Text1, without searching: comuni of one name exist. Error 9 for an index that
  // is not there.
  void Clic(std::size_t indice);

  // A double click, and the button: puts the cadastral code into the clipboard and CodiceComune, the province into
  // SiglaProvincia and NomeProvincia, and closes. Without a row selected it says so and stays.
  void DoppioClic(std::size_t indice);
  void CopiaCodiceFiscale();

  void Chiudi() { Chiusa = true; }

protected:
  explicit SceltaComune(Ambiente& ambiente) : ambiente_(ambiente) {}

  // The tables, and an answer that says that nothing was taken yet.
  void Prepara();
  void Seleziona(long indice);
  [[nodiscard]] static std::string Riga(const Comune& comune);

  [[nodiscard]] Ambiente& LAmbiente() const { return ambiente_; }

private:
  Ambiente& ambiente_;
};

// The search of a comune by name or code, among all.
class KR_CodFis final : public SceltaComune {
public:
  explicit KR_CodFis(Ambiente& ambiente) : SceltaComune(ambiente) {}

  void AlCaricamento();
};

} // namespace lirmeto
