#pragma once
// The fusion of several parcels into one: section "3SPC " or "M31FU".

#include <proposte/form_censuario.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct DatiParticella;

class KR_TMFusione final : public FormCensuario {
public:
  explicit KR_TMFusione(Ambiente& ambiente) : FormCensuario(ambiente) { Titolo = "Fusione di Particelle"; }

  std::vector<std::string> File1; // the parcel files of the sheet
  std::vector<std::string> List2; // the parcels chosen: names of File1, or paths
  ElencoRighe List4;              // the memo
  bool Check1 = false;            // the fused parcel keeps the number of the last one chosen
  int Option1 = 0;                // 0 "3SPC ", 1 "M31FU"

  [[nodiscard]] std::string_view NomeForm() const override { return "KR_TMFusione"; }
  [[nodiscard]] std::span<const PulsanteForm> Pulsanti() const override;
  [[nodiscard]] ElencoRighe& Memo() override { return List4; }

  // Opens on the machine's memo, which is made when it is not there.
  void Form_Load();
  // The rows of a memo, and no file is written.
  void Apri(std::string_view memo);
  // The window comes to the front: the files of the sheet.
  void AllAttivazione();

  // A double click on a file chooses it, one on a parcel chosen takes it away; check box and options. Each recomposes.
  void Aggiungi(std::size_t file);
  void AggiungiFile(std::string nome);
  void Togli(std::size_t scelta);
  void CambiaCheck1(bool si);
  void CambiaOption1(int opzione);

  // Recomposes List1. An error ends it at the point reached and is reported.
  void AnteprimaTMFusione();

  // List1 into the memo.
  void AggiungiAlMemo();
  // The memo behind the census rows that the Libretto has, under one heading; or in their place.
  void SalvaConEsistenti();
  void Sostituisci();

protected:
  void Esegui(int indice) override;

private:
  void Componi();
  [[nodiscard]] std::string Lettera() const;
  [[nodiscard]] DatiParticella Leggi(const std::string& nome) const;
  [[nodiscard]] std::string RigaOriginale(const DatiParticella& dati) const;
  void AggiungiUltima(const std::string& lettera, const std::string& temporaneo);
  void AllargaPerGorizia();
  void AzzeraMemo();
  void Svuota();

  std::string fileMemo_; // empty: the memo is not written
};

} // namespace lirmeto
