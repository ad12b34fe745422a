#pragma once
// The census workbench: the archive of parcels, one parcel's fields, and the proposal forms on the chosen parcel.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <grafica/grafica.h>
#include <proposte/file_particella.h>
#include <proposte/form_censuario.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class KR_EDM final : public Modello {
public:
  explicit KR_EDM(Ambiente& ambiente) : ambiente_(ambiente), grafica_(ambiente, disegno_) {}

  std::string Titolo; // window caption
  // Boxes.
  std::string Text1;              // Comune
  std::string Text2;              // Foglio
  std::string Text3;              // Mappale
  std::string Text4;              // "SN" or "SR"
  std::string Text5;              // Qualità, by name
  std::string Text6;              // Classe
  std::string Text7;              // Sup. Catastale
  std::string Text8;              // Sup. Grafica
  std::string Text9;              // Redd. Dominicale
  std::string Text10;             // Redd. Agrario
  std::string Text11;             // the quality's code
  std::string Label1;             // the extract
  std::string Label2;             // row of the current parcel
  std::vector<std::string> File1; // parcel files
  long File1Indice = -1;          // the one selected
  std::vector<std::string> List1; // parcels of the libretto
  std::vector<std::string> List3; // derivation lines of the proposal
  bool ConEstratto = false;       // an extract is associated: two buttons depend on it
  bool Chiusa = false;

  [[nodiscard]] Grafica& Grafica1() { return grafica_; }
  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }
  [[nodiscard]] static std::span<const PulsanteForm> Pulsanti();
  // Whether a button can be used now.
  [[nodiscard]] bool Attivo(int indice) const;

  // How many errors the census rows of the libretto have; empty when it has no such rows.
  [[nodiscard]] std::string AvvisoErrori() const;

  void AlCaricamento();
  // The window comes to the front.
  void AllAttivazione();

  // A parcel of the libretto, a parcel file; -1 selects none.
  void ClicList1(std::size_t voce);
  void ClicFile1(long voce);
  // Whether the archive has a file of this parcel of the libretto.
  [[nodiscard]] bool InArchivio(std::string_view particella) const;

  // A button; an index that is not there does nothing. Errors are reported here.
  void Premi(int indice);

  // Boxes that are left.
  void LasciaText2();
  void LasciaText6();
  void LasciaText5(); // the code follows the name

private:
  void Prova(void (KR_EDM::*comando)());
  void Esegui(int indice);
  [[nodiscard]] bool ConSelezione();
  void Filtra(std::string inizio);
  void Aggiorna();
  void CaricaProposta();
  void Salva();
  void SalvaNellEstratto(const std::string& riga);
  void Elimina();
  void EliminaTutte();
  void CercaComune();
  void ArchivioDalLibretto();
  void ArchivioDallEstratto();
  [[nodiscard]] std::string NomeDi(std::string_view particella) const;
  [[nodiscard]] DatiParticella Caselle() const;
  [[nodiscard]] ParticellaScelta Scelta() const;
  void ApriEstratti();
  void ApriFraziona(int modo);
  void ApriStralcio();
  void ApriNuovaCostruzione();
  void ApriVariazione();
  void ApriFusione();

  Ambiente& ambiente_;
  DisegnoCondiviso disegno_;
  Grafica grafica_;
  std::string inizio_; // of the names that File1 shows; empty: all
  bool tutte_ = false; // the files of every sheet are shown
};

} // namespace lirmeto
