#pragma once
// The header form: everything that rows 0 and 9 say of the act, the surveyor and the survey.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/posizione_form.h>
#include <intestazione/catasto1_caselle.h>
#include <intestazione/catasto1_elenchi.h>
#include <intestazione/catasto1_tecnici.h>

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class FormCatasto1TXT : public Modello {
public:
  explicit FormCatasto1TXT(Ambiente& ambiente) : ambiente_(ambiente), elenchi_(ambiente), tecnici_(ambiente) {}

  // Shown by the window as they stand.
  std::string EtichettaEstratto; // file name of the associated extract
  std::string NomeBackupArch2;   // "Nome x Backup Arch2": folder of another archive
  bool AggiornaPregeoIni = true; // "Aggiorna su Pregeo.INI [Default di Pregeo ]"
  bool AggiornaData = true;      // "Aggiorna alla Data di Oggi in Automatico alla Conferma"
  bool Chiusa = false;           // a button closed the form

  std::optional<PosizioneForm> PostoSalvato; // where the form stood last

  [[nodiscard]] const CaselleCatasto1& Caselle() const { return caselle_; }
  [[nodiscard]] const ElenchiCatasto1& Elenchi() const { return elenchi_; }
  [[nodiscard]] const TecniciCatasto1& Tecnici() const { return tecnici_; }
  [[nodiscard]] const Sessione& DatiSessione() const { return ambiente_.sessione; }
  [[nodiscard]] bool Disponibile(std::string_view form) const { return ambiente_.finestre.Disponibile(form); }

  // Place of the entry that the list's box holds; npos when no entry says the same.
  [[nodiscard]] std::size_t VoceInCasella(Elenco elenco) const { return elenchi_.Trova(elenco, TestoPer(elenco)); }

  // Name and province of the comune whose code stands in its box: "PADOVA (PD)"; empty when no table has it.
  [[nodiscard]] std::string ComuneInCasella() const;

  // What is wrong with a box, empty where nothing is; the box that the last confirm stopped at.
  [[nodiscard]] std::string Difetto(std::size_t indice) const;
  std::optional<std::size_t> DaCorreggere;

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

  // Text typed into a box, a box that is left, an entry chosen from a list, a surveyor's file marked, and one marked
  // and loaded.
  void Cambia(std::size_t indice, std::string_view testo) { caselle_.Cambia(indice, testo); }
  void Lascia(std::size_t indice);
  void Scegli(Elenco elenco, std::size_t voce);
  void SegnaTecnico(std::size_t indice) { tecnici_.Scegli(indice); }
  void ScegliTecnico(std::size_t indice);

  // A click on the extract label: the extracts' window, then the label again.
  void ApriEstratti();

  void SalvaPosto(const PosizioneForm& posto);

private:
  void Prova(const std::function<void()>& comando);
  [[nodiscard]] std::string_view TestoPer(Elenco elenco) const; // of the list's box, trimmed

  // What the form may do to the session before it is confirmed.
  struct Fuori {
    std::vector<std::string> valori;
    int modoEditor = 0;
  };
  [[nodiscard]] Fuori DaSessione() const;
  void Chiudi();
  [[nodiscard]] bool Modificata() const;

  void Normalizza(std::size_t indice);
  void LeggiOpzioni();
  void ScriviOpzioni();
  void CFDaPregeoINI();
  void CaricaCatasto1TXT();
  void CaricaDalLibretto();
  void Completa();

  void SalvaCatasto1();
  void EliminaCatasto1();
  void QuotaMediaDaRighe8();
  void QuotaMediaDelComune();
  void CercaComune();
  void EstMedio();
  void ImportaEstratto();
  void UsaLibrettoSingolo();
  void CaricaTecnicoScelto();

  // Rows 0 and 9, the comment, the surveyor's file and PREGEO.INI from the boxes.
  void ConfermaConfigurazione0();
  void AvvisaProtocollo();
  void ControllaData();
  [[nodiscard]] bool CaselleGiuste();
  void ScriviZeroNove();
  void ScriviCommento();
  void AggiornaPregeo();
  [[nodiscard]] bool AccettaCodiceFiscale();

  Ambiente& ambiente_;
  CaselleCatasto1 caselle_;
  ElenchiCatasto1 elenchi_;
  TecniciCatasto1 tecnici_;
  Fuori prima_;            // the session as the form found it
  CaselleCatasto1 aperte_; // the boxes as they were filled
  std::string aperto_;     // and the extract
};

} // namespace lirmeto
