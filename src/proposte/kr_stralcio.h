#pragma once
// The separation of a piece from a parcel: section "3SPC ". The form of the split with its own rules for names, class
// and what the derived parcels inherit.

#include <proposte/proposta_derivate.h>

namespace lirmeto {

class KR_Stralcio final : public PropostaDerivate {
public:
  KR_Stralcio(Ambiente& ambiente, ParticellaScelta scelta) : PropostaDerivate(ambiente, std::move(scelta)) {}

  std::string TestoProposta; // "TempProposta"
  ElencoRighe List4;         // derivation lines of this parcel; those selected become urban entities

  void Form_Load() override;
  void Apri(const Ingressi& ingressi) override;

  [[nodiscard]] std::string_view NomeForm() const override { return "KR_Stralcio"; }
  [[nodiscard]] std::vector<Segnalazione> Rilievi() const override;

  // A change of the selection of List4.
  void CambiaUrbani() { Ricomponi(); }

protected:
  [[nodiscard]] std::string_view FileMemo() const override { return "3SPC.CEN"; }
  [[nodiscard]] std::string_view Sezione() const override;
  [[nodiscard]] std::string_view DomandaNuova() const override { return "Stralciare un nuovo Mappale ?"; }
  [[nodiscard]] std::string_view TitoloDomanda() const override { return "Stralcio"; }
  [[nodiscard]] std::string_view Marcatore() const override { return "ComponiStralcio"; }
  [[nodiscard]] bool ConClasse(std::string_view qualita) const override;
  [[nodiscard]] std::string NomeDellaNuova(std::size_t riga) const override { return NomeInSerie(riga); }
  void Concludi() override;

private:
  void SegnaUrbani();
};

} // namespace lirmeto
