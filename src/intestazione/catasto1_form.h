#pragma once
// The header form: everything that rows 0 and 9 say of the act, the surveyor and the survey.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/posizione_form.h>
#include <intestazione/catasto1_caselle.h>
#include <intestazione/catasto1_elenchi.h>

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class FormCatasto1TXT : public Modello {
public:
  explicit FormCatasto1TXT(Ambiente& ambiente) : ambiente_(ambiente) {}

  // Shown by the window as they stand.
  std::array<std::string, NumeroCaselle> Text1;                // the boxes, by the places of `casella`
  std::array<std::vector<std::string>, NumeroElenchi> Elenchi; // entries, by `Elenco`
  std::vector<std::string> File1;                              // the surveyors' .PFS files
  std::size_t File1Indice = std::string::npos;                 // the one chosen
  std::string EtichettaEstratto;                               // file name of the associated extract
  std::string NomeBackupArch2;                                 // "Nome x Backup Arch2": folder of another archive
  bool AggiornaPregeoIni = true;                               // "Aggiorna su Pregeo.INI [Default di Pregeo ]"
  bool AggiornaData = true; // "Aggiorna alla Data di Oggi in Automatico alla Conferma"
  bool Chiusa = false;      // a button closed the form

  std::optional<PosizioneForm> PostoSalvato; // where the form stood last

  [[nodiscard]] const Sessione& DatiSessione() const { return ambiente_.sessione; }
  [[nodiscard]] std::vector<std::string>& Voci(Elenco elenco) { return Elenchi.at(static_cast<std::size_t>(elenco)); }
  [[nodiscard]] bool Disponibile(std::string_view form) const { return ambiente_.finestre.Disponibile(form); }

  // Place of the entry that the list's box holds; npos when no entry says the same.
  [[nodiscard]] std::size_t VoceInCasella(Elenco elenco) const;

  // Name and province of the comune whose code stands in its box: "PADOVA (PD)"; empty when no table has it.
  [[nodiscard]] std::string ComuneInCasella() const;

  void AlCaricamento();

  struct Pulsante {
    int indice;
    std::string_view didascalia;
    std::string_view spiegazione;
    void (*azione)(FormCatasto1TXT& form);
  };
  [[nodiscard]] static std::span<const Pulsante> Pulsanti();
  // A button by its index; one that is not there does nothing. Errors are reported here.
  void Premi(int indice);

  // Text typed into a box, a box that is left, an entry chosen from a list or a surveyor's file.
  void Cambia(std::size_t indice, std::string_view testo);
  void Lascia(std::size_t indice);
  void Scegli(Elenco elenco, std::size_t voce);
  void ScegliTecnico(std::size_t indice);

  // A click on the extract label: the extracts' window, then the label again.
  void ApriEstratti();

  void SalvaPosto(const PosizioneForm& posto);

  // Rows 0 and 9, the comment, the surveyor's file and PREGEO.INI from the boxes.
  void ConfermaConfigurazione0();

  void CFDaPregeoINI();
  void CaricaCatasto1TXT();
  void CaricaStrumentazione() { CaricaElenco(Elenco::Strumentazione); }
  void SalvaStrumentazione() { SalvaElenco(Elenco::Strumentazione); }
  void CaricaCommento() { CaricaElenco(Elenco::Commento); }
  void SalvaCOMMENTO() { SalvaElenco(Elenco::Commento); }
  // False when there was nothing to import.
  bool ImportaDatiEstratto();
  // Text of the result, "0" without a row 8 that has an east.
  [[nodiscard]] std::string EstMedioDaRighe8() const;

private:
  void Prova(const std::function<void()>& comando);

  void LeggiOpzioni();
  void ScriviOpzioni();
  void CaricaElenchi();
  void CaricaElenco(Elenco elenco);
  void SalvaElenco(Elenco elenco);
  void AggiungiVoce(Elenco elenco);
  void EliminaVoce(Elenco elenco);
  void RipristinaVoci();

  void CaricaDalLibretto();
  void MettiTecnico(std::string_view tecnico);
  void CompletaCaselle();

  void SalvaCatasto1();
  void EliminaCatasto1();
  void QuotaMediaDaRighe8();
  void QuotaMediaDelComune();
  void CercaComune();
  void EstMedio();
  void ImportaEstratto();
  void UsaLibrettoSingolo();

  void ElencaTecnici();
  void CaricaTecnicoScelto();
  void EliminaTecnico();

  void AvvisaProtocollo();
  void ControllaData();
  void PrendiTecnico();
  [[nodiscard]] std::string Riga(std::string_view genere, std::size_t primo, std::size_t ultimo) const;
  void ScriviZeroNove();
  void ScriviCommento();
  void AggiornaPregeo();
  [[nodiscard]] bool AccettaCodiceFiscale();

  Ambiente& ambiente_;
  std::array<bool, NumeroElenchi> letti_{}; // lists whose entries are those of their file
};

} // namespace lirmeto
