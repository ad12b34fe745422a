#pragma once
// The Tipo Mappale of one parcel: a new construction on it, or the variation of a building. Both start from template rows
// and overwrite columns.

#include <proposte/file_particella.h>
#include <proposte/form_censuario.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class TipoMappale : public FormCensuario {
public:
  ElencoRighe List2; // the memo

  [[nodiscard]] std::span<const PulsanteForm> Pulsanti() const override;
  [[nodiscard]] ElencoRighe& Memo() override { return List2; }
  [[nodiscard]] const std::string& Particella() const { return scelta_.dati.nome; }

  void Form_Load();

  // "SN" to "SR", and whatever else to "SN", in the original and in the last row.
  void ScambiaSrSn();
  // List1 into the memo.
  virtual void AggiungiAlMemo() = 0;
  // The memo in place of the census rows of the Libretto, and the form closes. A memo of fewer than three rows is told.
  void Salva();

protected:
  TipoMappale(Ambiente& ambiente, ParticellaScelta scelta) : FormCensuario(ambiente), scelta_(std::move(scelta)) {}

  // Buttons that stand at other indices in the two forms.
  struct Indici {
    int memo;
    int scambia;
  };
  [[nodiscard]] virtual Indici IndiciPropri() const = 0;
  // The section on its templates, with the parcel's data.
  virtual void ComponiSezione() = 0;
  [[nodiscard]] virtual std::string TitoloForm() const = 0;

  void Esegui(int indice) override;

  // A template row with the parcel's number, with its area, with its quality and class.
  [[nodiscard]] std::string ConNome(std::string_view modello) const;
  [[nodiscard]] std::string ConArea(std::string riga) const;
  [[nodiscard]] std::string ConQualita(std::string riga) const;

private:
  ParticellaScelta scelta_;
};

// Section "3SPC " of an original, a suppressed and a new parcel.
class KR_NuovaCostruzione final : public TipoMappale {
public:
  KR_NuovaCostruzione(Ambiente& ambiente, ParticellaScelta scelta) : TipoMappale(ambiente, std::move(scelta)) {}

  std::vector<std::string> List3; // temporary names
  long List3Indice = -1;

  [[nodiscard]] std::string_view NomeForm() const override { return "KR_NuovaCostruzione"; }
  [[nodiscard]] std::span<const PulsanteForm> Pulsanti() const override;

  // The new parcel's temporary name; an entry that is not there does nothing.
  void ScegliNome(std::size_t voce);
  void AggiungiAlMemo() override;
  // Takes a row out of the memo, heading and count row excepted.
  void DoppioClickMemo(std::size_t riga);

protected:
  [[nodiscard]] Indici IndiciPropri() const override { return {2, 4}; }
  void ComponiSezione() override;
  [[nodiscard]] std::string TitoloForm() const override { return "Nuova Costruzione - Particella " + Particella(); }
};

// Section "3SPC " of an original that is varied and keeps its number.
class KR_TMVariazione final : public TipoMappale {
public:
  KR_TMVariazione(Ambiente& ambiente, ParticellaScelta scelta) : TipoMappale(ambiente, std::move(scelta)) {}

  [[nodiscard]] std::string_view NomeForm() const override { return "KR_TMVariazione"; }
  void AggiungiAlMemo() override;

protected:
  [[nodiscard]] Indici IndiciPropri() const override { return {4, 2}; }
  void ComponiSezione() override;
  [[nodiscard]] std::string TitoloForm() const override { return "Variazione - Particella " + Particella(); }
};

} // namespace lirmeto
