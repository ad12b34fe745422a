#pragma once
// The main window as a model: labels, boxes, options, commands and the events
// of the row list.

#include <applicazione/comandi.h>
#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct Opzione {
  std::string testo;
  bool spuntata = true;
};

// Place of a form on the screen, pixels.
struct PosizioneForm {
  int sinistra = 0;
  int alto = 0;
  int larghezza = 0;
  int altezza = 0;
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
  std::vector<Opzione> Opzioni;
  Carattere CarattereElenco;
  bool PannelloStrumenti = false; // the tools panel is visible
  bool Finita = false;            // the session has ended: the window closes

  [[nodiscard]] Sessione& DatiSessione() { return ambiente_.sessione; }

  // Window initialisation and load. `comandoAvvio` is the path given to the
  // program, or empty. False: another instance was running and the process must
  // end.
  bool Avvia(const std::string& comandoAvvio);

  // The window comes back to the front.
  void Attivazione(bool minimizzata);
  // The window's frames were laid out again: refills boxes and labels.
  void Aggiornami();

  // Whether the entry of a command can be used; one whose work is still to come
  // is shown disabled.
  [[nodiscard]] bool Disponibile(Comando comando) const;

  // A button, menu entry or tool. Errors are reported here.
  void Esegui(Comando comando);
  // The pointer stands over a button of the array.
  void PuntatoreSuPulsante(int indice);

  // Events of the row list; `riga` counts from 0, one that is not there does
  // nothing.
  void Righe_Indice();
  void DoppioClick(std::size_t riga);
  void TastoInvio(std::size_t riga);
  void TastoCancella();
  void Trascina(const std::string& percorso);

  // Editing the boxes writes into the session.
  void CambiaIscrizione(std::string_view testo);
  void CambiaCodiceFiscale(std::string_view testo);
  void CambiaDitta(std::string_view testo);

  // The window is closing: list to text, text to file, position to the
  // settings.
  void Chiusura(const PosizioneForm& posizione);

private:
  void Carica(const std::string& comandoAvvio);
  void MostraSessione();
  void LeggiDitta();
  void LeggiCarattere();
  void SelezionaCarattere();
  void NuovoLibretto();
  void IncollaDaAppunti();
  void MostraRiordino();
  void AvviaGondella(std::string_view programma);
  void ApriIntestazione();
  void ModificaRiga();
  void TrascinaLibretto(const std::string& percorso);
  void Prova(const std::function<void()>& comando);

  Ambiente& ambiente_;
};

} // namespace lirmeto
