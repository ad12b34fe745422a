#pragma once
// The data that Pregeo wants of an extract that no office issued: comune, sheet, and a census row for each parcel.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A button that says what a parcel is.
struct QualitaAutoallestito {
  std::string_view descrizione;
  std::string_view codice;
};

class CompletaAutoallestito : public Modello {
public:
  // `nome` is that of the extract in Pregeo's folder: the associated one, or the one selected in the manager.
  CompletaAutoallestito(Ambiente& ambiente, std::string nome) : ambiente_(ambiente), nome_(std::move(nome)) {}

  // Shown by the window as they stand.
  std::string Titolo;
  std::string Label2;             // row 0
  std::vector<std::string> List1; // a census row for each parcel
  std::vector<std::string> List2; // the rows of the file
  long Indice = -1;               // of the parcel selected, -1 for none
  std::string EtichettaComune;    // "G224 - PADOVA"
  std::string CodiceParticella;   // of the quality chosen
  bool Chiusa = false;

  // Boxes that the user fills.
  std::string Foglio;
  std::string DescrizioneParticella; // 12 characters at most
  std::string QualitaParticella;
  std::string Superficie; // square metres

  static constexpr std::array<QualitaAutoallestito, 4> Qualita = {
      {{"FABB RURALE", "279"}, {"ENTE URBANO", "282"}, {"FU D ACCERT", "283"}, {"FR DIV SUB", "281"}}};

  // The parcels of row 0, each with the file's own row where there is one; the first is selected.
  void AlCaricamento();

  // Whether the typology of the act leaves a quality to choose.
  [[nodiscard]] bool Visibile(std::size_t qualita) const;
  // A button of the qualities. Error 9 for one that is not there.
  void ScegliQualita(std::size_t qualita);

  // Error 9 for an index that is not there.
  void Seleziona(std::size_t indice);
  // The boxes into the row of the parcel selected, and that row into the file's rows: at the third place when the parcel
  // had none.
  void RicalcolaParticella();

  // The sheet's box is left: five characters, zeros in front.
  void LasciaFoglio();
  // The comune is chosen among all.
  void ScegliComune();
  // Comune, sheet and parcels into row 0.
  void RicalcolaAutoAllestito();

  // Writes the rows to the file.
  void Salva();
  void Chiudi() { Chiusa = true; }

private:
  void Prova(const std::function<void()>& comando);
  void CaricaEstratto();
  void CaricaParticella();
  void ElencaParticelle();
  void MostraComune();
  [[nodiscard]] std::size_t RigaDellaParticella(std::string_view nome) const;

  Ambiente& ambiente_;
  std::string nome_;
  std::string comune_; // code
  std::string provincia_;
};

} // namespace lirmeto
