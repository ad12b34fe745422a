#pragma once
// What a split and a separation share: a parcel's census area and its two incomes apportioned over the derived parcels,
// and the census rows that come of it.

#include <proposte/file_particella.h>
#include <proposte/form_censuario.h>
#include <proposte/griglia_proposta.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// ModoEditor: the split takes the number of the original away, or its first derived parcel keeps it.
inline constexpr int ModoSopprime = 341;
inline constexpr int ModoMantiene = 342;

class PropostaDerivate : public FormCensuario {
public:
  // What the form opens on: the texts of the proposal's files and of the memo.
  struct Ingressi {
    std::string aree;     // "Aree Per Censuario.txt"
    std::string modello;  // "Modello Censuario.TXT"
    std::string memo;     // the .CEN file
    std::string proposta; // "TempProposta"
  };

  bool Check1 = false; // "Mantieni Numero Particella Frazionata"
  std::string Text1;   // number of derived parcels
  std::string Text2;   // the edit field over the current row: its area
  std::string Label2;  // Label2(3): names the current row
  GrigliaProposta MSFlexGrid1;
  std::size_t RigaCorrente = GrigliaProposta::Originale;
  ElencoRighe List2;               // the memo
  std::vector<std::string> List3;  // the proposal's derivation lines of this parcel
  std::vector<std::string> Combo1; // the areas of the proposal

  [[nodiscard]] std::span<const PulsanteForm> Pulsanti() const override;
  [[nodiscard]] ElencoRighe& Memo() override { return List2; }
  [[nodiscard]] std::vector<Segnalazione> Rilievi() const override;

  // Opens on the files of the machine; the memo goes to its .CEN file from then on.
  virtual void Form_Load() = 0;
  // Opens on these texts, and no file is written.
  virtual void Apri(const Ingressi& ingressi);

  // Boxes. In Text2 the keys R, N and F act on the current row and become blanks.
  void CambiaText1(std::string_view testo);
  void LasciaText1();
  void CambiaText2(std::string_view testo);
  void Invio(); // to the next row, from the last one back to the first derived
  void ScegliArea(std::size_t voce);
  void CambiaCheck1(bool si);

  // The grid.
  void VaiARiga(std::size_t riga);
  void DoppioClick(std::size_t riga, std::size_t colonna);
  // The memo as a text; the button writes its file first.
  void DoppioClickMemo();

  void GeneraParticelleDerivate();
  void PropostaAutomatica();
  void CaricaMappaleDiPartenza();
  void Carica51FTPCen();
  // The current parcel's rows into the memo: command 2 without its question.
  void AggiungiAlMemo();

  // Sum of the derived areas as the census rows have them, and what it differs from the catastal area, m2.
  [[nodiscard]] double SommaAree() const;
  [[nodiscard]] double DifferenzaAree() const;
  // The name that the current row's parcel bears in the proposal or in its census row; empty above the derived rows.
  [[nodiscard]] std::string ParticellaCorrente() const;

  [[nodiscard]] const std::string& Particella() const { return scelta_.dati.nome; }
  // What stopped the last composition, whose rows stay as they were; empty when nothing did.
  [[nodiscard]] const std::string& Assorbito() const { return assorbito_; }

protected:
  PropostaDerivate(Ambiente& ambiente, ParticellaScelta scelta);

  // What the two forms do in their own ways.
  [[nodiscard]] virtual std::string_view FileMemo() const = 0; // name of the .CEN file
  [[nodiscard]] virtual std::string_view Sezione() const = 0;
  [[nodiscard]] virtual std::string_view DomandaNuova() const = 0; // of command 2
  [[nodiscard]] virtual std::string_view TitoloDomanda() const = 0;
  [[nodiscard]] virtual std::string_view Marcatore() const = 0; // of the composition
  [[nodiscard]] virtual bool ConClasse(std::string_view qualita) const = 0;
  virtual void PrendiNomi() {} // of the proposal, into the grid's last column
  [[nodiscard]] virtual std::string NomeDellaNuova(std::size_t riga) const = 0;
  virtual void Concludi() = 0; // compares the areas; what remains to be done on List1

  void Esegui(int indice) override;
  [[nodiscard]] Ingressi LeggiIngressi();
  // A change of an area: recomposes List1. What stops it is kept for the findings.
  void Ricomponi();
  void MemoSuDisco() { fileMemo_ = FileMemo(); }

  [[nodiscard]] bool Mantiene() const { return modo_ == ModoMantiene; }
  [[nodiscard]] const ParticellaScelta& Scelta() const { return scelta_; }
  // What the areas of the grid differ from the catastal one.
  [[nodiscard]] double DifferenzaGriglia() const;
  // "AAA" and so on, by the row's place and the letters used before.
  [[nodiscard]] std::string NomeInSerie(std::size_t riga) const;

private:
  void RiempiGriglia();
  void ContaLettere(std::string_view memo);
  void CaricaMemo(std::string_view testo);
  void MemorizzaParticella();
  [[nodiscard]] bool MemoPronto();
  void VuotaMemo();
  void TogliSelezionate();
  void CaricaDalLibretto();

  void MostraCasella();
  [[nodiscard]] bool Tasto(char lettera);
  [[nodiscard]] std::size_t PostoInSerie(std::size_t riga) const;
  void CambiaSegno(std::size_t riga);
  void CambiaFissa(std::size_t riga);

  void Assorbi(const std::string& marcatore, const std::function<void()>& opera);
  void Componi();
  void Ripartisci();
  void DipingiRedditi();
  void ComponiRighe();
  [[nodiscard]] std::string RigaOriginale() const;
  [[nodiscard]] std::string RigaSoppressa() const;
  [[nodiscard]] std::string RigaDerivata(std::size_t indice) const;

  ParticellaScelta scelta_;
  int modo_ = ModoSopprime;
  std::size_t ultimaLettera_ = 0; // temporary names already used
  std::string fileMemo_;          // empty: the memo is not written
  std::string assorbito_;
};

} // namespace lirmeto
