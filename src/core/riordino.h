#pragma once
// The reorder of the rows: split into classes, shown, joined in Pregeo's order.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/classi_righe.h>

#include <array>
#include <string>
#include <string_view>

namespace lirmeto {

class FormRiordinoRighe : public Modello {
public:
  explicit FormRiordinoRighe(Ambiente& ambiente) : ambiente_(ambiente) {}

  RigheInClassi Righe; // a list per class

  std::string EtichettaIscrizione;    // "Numero Iscrizione Albo ..."
  std::string EtichettaCodiceFiscale; // "Codice Fiscale ..."
  bool Chiusa = false;                // a button closed the form

  // What the window does on load and on activation: Libretto goes into the lists.
  void AlCaricamento();
  void AllAttivazione();

  // Buttons: confirm puts the lists into Libretto, close.
  void Conferma();
  void Chiudi();

  // A class of rows as the dialog shows it.
  struct Classe {
    std::string_view nome; // caption of the list
    ClasseRighe classe = ClasseRighe::Nessuna;
    std::string_view titolo;  // of the delete question; empty: the list has no delete button
    std::string_view domanda; // the question
  };
  // In the canonical order.
  [[nodiscard]] static const std::array<Classe, 13>& Classi();

  // Delete button of a class: asks and empties the list. Double click on a row:
  // asks and removes it; on rows 0, 9 and comments it opens the header form, and
  // what that confirmed is in the lists afterwards. The Delete key asks and removes
  // the row wherever the list has a delete button. An index that is not there does nothing.
  void EliminaClasse(std::size_t classe);
  void DoppioClick(std::size_t classe, std::size_t riga);
  void TastoCancella(std::size_t classe, std::size_t riga);

private:
  [[nodiscard]] bool Domanda(const Classe& classe, std::string_view cosa);
  void MostraTecnico();
  void ApriIntestazione();
  void RiprendiDalLibretto();

  Ambiente& ambiente_;
  RigheInClassi divise_; // the lists as Libretto gave them last, nothing deleted yet
};

// The main window's command: reorder without showing the form, then list.
void subRiordinoRighe(Ambiente& ambiente);

} // namespace lirmeto
