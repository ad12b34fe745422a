#pragma once
// The main window as a model: labels, boxes, options, commands and the events
// of the row list.

#include <applicazione/comandi.h>
#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/posizione_form.h>
#include <core/storia.h>
#include <verifiche/figura_rilievo.h>
#include <verifiche/pannello_verifiche.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct Opzione {
  std::string testo;
  bool spuntata = true;
};

class KR_LibrettoOriginale : public Modello {
public:
  explicit KR_LibrettoOriginale(Ambiente& ambiente);

  // Shown by the window as they stand.
  std::string Titolo;
  std::string EtichettaFile;
  std::string EtichettaEstratto;
  std::string EtichettaMisurate;
  std::string EtichettaVersione;
  std::string SiglaPulsanteProvincia;
  std::string CasellaDitta; // the owners box, upper case
  std::string CasellaIscrizione;
  std::string CasellaCodiceFiscale;
  [[nodiscard]] std::string DifettoCodiceFiscale() const; // what is wrong with it; empty where nothing is
  std::vector<Opzione> Opzioni;
  std::string Esito;                     // in the status line: what the last command did, and to how many rows
  std::vector<std::string> Recenti;      // paths of the files opened last
  std::optional<std::size_t> PrimaNuova; // first row that the last command added
  std::string AvvisoScartate;            // in the status line: rows that the last command dropped
  Carattere CarattereElenco;
  bool PannelloStrumenti = false; // the tools panel is visible
  PannelloVerifiche Verifiche;
  FiguraRilievo Rilievo;
  std::string AvvisoErrori;     // in the status line: errors that the rows still have when they leave the program
  bool ElencoVerifiche = false; // the list of findings stands below the rows
  bool RilievoVisibile = false; // the picture stands beside them
  int AltezzaVerifiche = 180;   // pixels
  int LarghezzaRilievo = 420;   // pixels
  bool Finita = false;          // the session has ended: the window closes

  [[nodiscard]] Sessione& DatiSessione() { return ambiente_.sessione; }

  // Window initialisation and load. `comandoAvvio` is the path given to the
  // program, a tag command, or empty. False: another instance was running, or a
  // tag command is over, and the process must end.
  bool Avvia(const std::string& comandoAvvio);

  // Whether a second start has handed something over; asked from time to time, while a command runs too.
  [[nodiscard]] bool ArrivateConsegne();
  // Does what was handed over.
  void EseguiConsegne();

  // The window comes back to the front.
  void Attivazione(bool minimizzata);
  // The window's frames were laid out again: refills boxes and labels.
  void Aggiornami();

  // Whether the entry of a command can be used; one whose work is still to come
  // is shown disabled.
  [[nodiscard]] bool Disponibile(Comando comando) const;
  // Whether it has something to do now, and the caption of its menu entry.
  [[nodiscard]] bool Attivo(Comando comando) const;
  [[nodiscard]] std::string Didascalia(Comando comando) const;

  // A button, menu entry or tool. Errors are reported here.
  void Esegui(Comando comando);
  // A tool of the panel, by its tag.
  void EseguiStrumento(std::string_view tag);
  // The pointer stands over a button of the array.
  void PuntatoreSuPulsante(int indice);

  // Events of the row list; `riga` counts from 0, one that is not there does
  // nothing.
  void Righe_Indice();
  void DoppioClick(std::size_t riga);
  void TastoInvio(std::size_t riga);
  void TastoCancella();
  // A text typed into a box of the row's fields.
  void CambiaCampo(std::size_t riga, std::size_t campo, std::string_view testo);
  void Trascina(const std::string& percorso);
  // A file dropped elsewhere on the window.
  void TrascinaAccanto(const std::string& percorso);
  // One of the files opened last, by its place among them.
  void ApriRecente(std::size_t indice);

  // Brings findings and picture up to the rows. Whether the findings are others than before.
  bool AggiornaVerifiche();
  // A finding of the list was chosen: its row becomes the current one and the only one selected.
  void ScegliSegnalazione(std::size_t indice);
  // A place of the picture was clicked: the row of the point there, within so many metres, becomes the current one.
  void CliccaRilievo(const PuntoPiano& posto, double entro);
  // The findings that are shown, into the clipboard, or as a report.
  void CopiaSegnalazioni();
  void StampaSegnalazioni();
  // The user has drawn the border of the list or of the picture.
  void DimensionaVerifiche(int altezzaVerifiche, int larghezzaRilievo);

  // Editing the boxes writes into the session.
  void CambiaIscrizione(std::string_view testo);
  void CambiaCodiceFiscale(std::string_view testo);
  void CambiaDitta(std::string_view testo);

  // Where the window stood last.
  [[nodiscard]] std::optional<PosizioneForm> PostoSalvato() const;
  // Whether the close would write something: the title says so.
  [[nodiscard]] bool DaSalvare() const;
  // The window is closing: position to the settings, list to text, and the text to its file when something in it changed.
  // A save that fails asks what to do; Finita is false when the window stays.
  void Chiusura(const PosizioneForm& posizione);

private:
  [[nodiscard]] bool Carica(const std::string& comandoAvvio);
  struct DatiTecnico { // what a libretto's file tells of him; empty: nothing
    std::string codiceFiscale;
    std::string iscrizione;
  };
  [[nodiscard]] bool ApriDaComando(const std::string& comandoAvvio, DatiTecnico& delFile);
  void CaricaElenco(const DatiTecnico& delFile);
  void MostraSessione();
  void LeggiDitta();
  void SelezionaCarattere();
  [[nodiscard]] bool EseguiConForm(Comando comando);
  [[nodiscard]] bool EseguiVerifiche(Comando comando);
  void PrendiRimedio();
  void LeggiPostiVerifiche();
  void ContaErrori();
  void VaiARiga(std::size_t riga);
  void SeguiRiga();
  void EseguiAltri(Comando comando);
  void NuovoLibretto(std::string_view marcatore);
  [[nodiscard]] std::uint64_t ImprontaAttuale() const;
  [[nodiscard]] bool LasciaIlLibretto();
  [[nodiscard]] bool SalvaOChiedi();
  void RicordaIntatto();
  void RicordaSalvato();
  void MostraScartate();
  void IncollaDaAppunti();
  void SpuntaOpzioni(bool si);
  void MostraRiordino();
  void ApriIntestazione();
  void ModificaRiga();
  [[nodiscard]] bool EseguiFile(Comando comando);
  [[nodiscard]] std::string CartellaLibretto() const;
  void ScegliEApri(std::string_view titolo, const std::string& cartella);
  void DiciAssente(const std::string& percorso);
  void RicordaRecente(const std::string& percorso);
  void PrendiFile(std::string_view comando, const std::string& percorso);
  [[nodiscard]] bool ConsenteDiSostituire(std::string_view titolo);
  void ApriSenzaEstrattoDAltri(const std::string& percorso);
  void PrendiLibretto(std::string_view comando, const std::string& percorso);
  void PrendiEstratto(const std::string& percorso);
  [[nodiscard]] std::string EsitoApertura(const std::string& percorso) const;
  [[nodiscard]] bool PrendeIlPosto(const std::string& comando);
  void EseguiConsegnata(const std::string& linea);
  void TerminaBloccati();
  void Salva();
  void Esporta();
  void Prova(const std::function<void()>& comando);
  void Comanda(std::string_view nome, const std::function<void()>& comando);
  struct Scelta { // the rows that the user has chosen, before a command
    std::vector<std::size_t> selezionate;
    long indice = -1;
    unsigned long versione = 0;
    std::string file; // whose rows they are
  };
  [[nodiscard]] Scelta SceltaAttuale() const;
  void RimettiScelta(const Scelta& prima, bool cambiate);
  void DiciCambiamento(std::string_view nome, const ElencoRighe& prima);
  void DiciSeNulla(Comando comando);
  void DiciCopia();
  void DiciSelezione(Comando comando);
  void Torna(void (Storia::*passo)(Sessione&));

  Ambiente& ambiente_;
  Storia storia_;
  std::optional<std::uint64_t> salvato_; // what stands on the disk, as its number; none when that is not known
  struct ImprontaLetta {
    unsigned long versione = 0; // of the list
    std::uint64_t righe = 0;
  };
  mutable std::optional<ImprontaLetta> impronta_;
  std::vector<std::string> consegne_; // command lines handed over and not yet run
  long rigaAccesa_ = -1;              // of the picture
};

} // namespace lirmeto
