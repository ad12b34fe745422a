#pragma once
// The split of a parcel into its derived parcels: section "51FTP".

#include <grafica/grafica.h>
#include <proposte/proposta_derivate.h>

namespace lirmeto {

class KR_Fraziona final : public PropostaDerivate {
public:
  // ModoEditor tells whether the first derived parcel keeps the number.
  KR_Fraziona(Ambiente& ambiente, ParticellaScelta scelta)
      : PropostaDerivate(ambiente, std::move(scelta)), grafica_(ambiente, disegno_) {}

  void Form_Load() override;
  void Apri(const Ingressi& ingressi) override;

  [[nodiscard]] std::string_view NomeForm() const override { return "KR_Fraziona"; }
  [[nodiscard]] std::vector<Segnalazione> Rilievi() const override;

  // The proposal, drawn.
  [[nodiscard]] Grafica& Grafica1() { return grafica_; }

protected:
  [[nodiscard]] std::string_view FileMemo() const override { return "51FTP.CEN"; }
  [[nodiscard]] std::string_view Sezione() const override;
  [[nodiscard]] std::string_view DomandaNuova() const override { return "Frazionare un nuovo Mappale ?"; }
  [[nodiscard]] std::string_view TitoloDomanda() const override { return "Frazionamento"; }
  [[nodiscard]] std::string_view Marcatore() const override { return "ComponiFrazionamento"; }
  [[nodiscard]] bool ConClasse(std::string_view qualita) const override;
  void PrendiNomi() override;
  [[nodiscard]] std::string NomeDellaNuova(std::size_t riga) const override;
  void Concludi() override;

private:
  DisegnoCondiviso disegno_;
  Grafica grafica_;
};

} // namespace lirmeto
