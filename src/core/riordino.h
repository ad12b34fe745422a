#pragma once
// The reorder of the rows: split into classes, shown, joined in Pregeo's order.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/lista_righe.h>

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class FormRiordinoRighe : public Modello {
public:
  explicit FormRiordinoRighe(Ambiente& ambiente) : ambiente_(ambiente) {}

  // One list per class of rows.
  ListaRighe List0;         // rows 0
  ListaRighe List9;         // rows 9
  ListaRighe List12;        // comment block
  ListaRighe List15;        // notes, "6| -"
  ListaRighe List3;         // traverses
  ListaRighe List13;        // GPS block
  ListaRighe List1;         // stations and sightings
  ListaRighe List4;         // rows 4 and 5
  ListaRighe List7;         // contours and the comments before them
  ListaRighe List5;         // Relazione Tecnica
  ListaRighe List8;         // coordinates and fiducial points
  ListaRighe List6;         // Modello Censuario
  ListaRighe List14;        // update proposal
  ListaRighe RigheScartate; // rows 6 of no class, which the reorder drops

  std::string EtichettaIscrizione;    // "Numero Iscrizione Albo ..."
  std::string EtichettaCodiceFiscale; // "Codice Fiscale ..."
  bool Chiusa = false;                // a button closed the form

  // Libretto into the lists and PropostaLibretto; warns when the census rows
  // are not as many as they say.
  void EsplodiLibretto();

  // The lists into Libretto.
  void RicomponiLibretto();

  // What the window does on load and on activation.
  void AlCaricamento();
  void AllAttivazione();

  // Buttons: confirm, close.
  void Conferma();
  void Chiudi();

  // A class of rows as the dialog shows it.
  struct Classe {
    std::string_view nome; // caption of the list
    ListaRighe FormRiordinoRighe::*lista;
    std::string_view titolo;  // of the delete question; empty: the list has no delete button
    std::string_view domanda; // the question
  };
  // In the canonical order.
  [[nodiscard]] static const std::array<Classe, 13>& Classi();

  // Delete button of a class: asks and empties the list. Double click on a row:
  // asks and removes it; on rows 0, 9 and comments it opens the header form. An
  // index that is not there does nothing.
  void EliminaClasse(std::size_t classe);
  void DoppioClick(std::size_t classe, std::size_t riga);

  // Rows from `inizio` to `fine`, both included.
  struct Blocco {
    std::size_t inizio = std::string_view::npos;
    std::size_t fine = std::string_view::npos;
    [[nodiscard]] bool Vale() const { return inizio < fine && fine != std::string_view::npos; }
    [[nodiscard]] bool Contiene(std::size_t indice) const { return Vale() && indice >= inizio && indice <= fine; }
  };

private:
  void Svuota(const TestoCondiviso& testo);
  void Distribuisci(std::span<const std::string_view> righe, const Blocco& relazione);
  void ControllaCensuario();
  [[nodiscard]] bool Domanda(const Classe& classe);

  Ambiente& ambiente_;
};

// The main window's command: reorder without showing the form, then list.
void subRiordinoRighe(Ambiente& ambiente);

} // namespace lirmeto
