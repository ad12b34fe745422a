#pragma once
// The dialog over PREGEO.INI as a text.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>

namespace lirmeto {

class FormConfiguraPregeo : public Modello {
public:
  explicit FormConfiguraPregeo(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Titolo;            // window caption
  std::string Testo;             // the box: lines at CR LF
  std::string EtichettaVersione; // VersionePregeo
  bool Chiusa = false;

  // Reads PREGEO.INI and fills caption, box and label.
  void AlCaricamento();

  // Button 0. Asks where the box holds what is not saved.
  void Chiudi();

  // Button 6: the box becomes RighePregeoIni and the file, which keeps the line ends it had. After a failure
  // RighePregeoIni is as it was.
  void Salva();

  // Button 7: the file is read again, into the session too.
  void Ricarica();

  // Button 13: the shortcuts to Pregeo.
  void CreaCollegamenti();

  // Caption "Versione Pregeo.EXE = " with the file version of the installed program.
  void Carica_Versione_Pregeo();

private:
  void Prova(std::string_view passo, void (FormConfiguraPregeo::*comando)());
  void Leggi();
  void Scrivi();
  void LeggiVersione();

  Ambiente& ambiente_;
  std::string salvato_; // the box as the file has it
};

} // namespace lirmeto
