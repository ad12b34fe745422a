#pragma once
// The general text editor in its three roles, which ModoEditor tells: the whole libretto, a report, the census memo.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

class KR_EditorGen : public Modello {
public:
  // `stampa` is the report of role 382.
  explicit KR_EditorGen(Ambiente& ambiente, ListaRighe* stampa = nullptr) : ambiente_(ambiente), stampa_(stampa) {}
  // `memo` is the path of the file of role 383.
  KR_EditorGen(Ambiente& ambiente, std::string memo) : ambiente_(ambiente), memo_(std::move(memo)) {}

  std::string Titolo;           // window caption
  std::string Testo;            // the box: lines at CR LF
  std::size_t RigaIniziale = 0; // line of the box where the caret starts, from 0
  bool Chiusa = false;
  bool Salvato = false; // the rows were changed

  // Fills caption and box by ModoEditor; any other value is taken as the libretto's. In that role it deletes a stray
  // \libretto.lib of the program's folder.
  void AlCaricamento();

  // Whether the box holds rows of a libretto, and whether it is the whole libretto. That role hides two buttons: the
  // second one that closes, and the one that pastes, since the main window's own replaces the libretto.
  [[nodiscard]] bool DiRighe() const { return modo_ != ModoEditorStampa; }
  [[nodiscard]] bool DelLibretto() const { return modo_ == ModoEditorLibretto; }

  // Button 1. The box's non-blank lines, trimmed, become the rows of the main list, and Libretto is rebuilt from it;
  // or all its lines become the report's; or its text the memo's file. False: an
  // error was reported.
  bool Salva();

  // Role 381: the caret starts in the Relazione Tecnica. Where there is none, the box gets its two marks and a row
  // between them, behind the measures and contours; the libretto has them once they are saved.
  void VaiAllaRelazione();

  // Buttons 0 and 5, and the window's close: asks whether to save what has changed. False: the user stays in the editor.
  bool Chiudi();

private:
  void CaricaLibretto();
  void SalvaLibretto();
  void SalvaStampa();
  [[nodiscard]] std::string_view Domanda() const;

  Ambiente& ambiente_;
  ListaRighe* stampa_ = nullptr;
  std::string memo_;
  std::string aperto_; // the box as it was opened, or saved last
  int modo_ = ModoEditorLibretto;
};

// Opens the editor on the whole libretto, at the row under the cursor of the list, or at the Relazione Tecnica; the list
// is filled again when it was saved.
void subModificaDiretta(Ambiente& ambiente);
void subModificaRelazione(Ambiente& ambiente);

// Opens it on the lines of a report, or on a memo of census rows, by the path of its file.
void subModificaStampa(Ambiente& ambiente, ListaRighe& stampa);
void subModificaCensuario(Ambiente& ambiente, const std::string& memo);

} // namespace lirmeto
