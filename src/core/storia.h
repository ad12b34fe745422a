#pragma once
// Undo and redo of the commands that change the rows or the owners.

#include <core/sessione.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lirmeto {

// Holds for each command only the rows that it changed, so that a step costs what it did and not the size of the
// libretto; for the comparison it keeps the list as it last was, whose texts the list itself shares. A step goes both
// ways: taking it back and doing it again each swap its side with the session's.
class Storia {
public:
  // Forgets every step: the session as it stands is the beginning.
  void Ricomincia(const Sessione& sessione);

  // Before a command: what was typed into the boxes since the last one is none of its changes.
  void Prepara(const Sessione& sessione);
  // After a command: keeps what it changed as a step of this name. Whether it changed anything.
  bool Registra(const Sessione& sessione, std::string_view nome);

  // What the last step did to the rows: where, how many rows stand there now, and how many stood there before.
  struct Differenza {
    std::size_t inizio = 0;
    std::size_t nuove = 0;
    std::size_t vecchie = 0;
    std::size_t diverse = 0; // where as many stand as before
  };
  [[nodiscard]] Differenza Ultima(const Sessione& sessione) const;

  [[nodiscard]] bool PuoAnnullare() const { return !fatti_.empty(); }
  [[nodiscard]] bool PuoRipetere() const { return !annullati_.empty(); }
  // Name of the step that would be taken back or done again; empty when there is none.
  [[nodiscard]] std::string_view DaAnnullare() const;
  [[nodiscard]] std::string_view DaRipetere() const;

  // Rows, Libretto, owners and the values read from the rows as they were. The first changed row becomes the current
  // one. Without a step nothing happens.
  void Annulla(Sessione& sessione) { Torna(fatti_, annullati_, sessione); }
  void Ripeti(Sessione& sessione) { Torna(annullati_, fatti_, sessione); }

private:
  struct Tratto { // rows in a text of their own
    TestoCondiviso testo;
    std::vector<std::string_view> righe;
  };
  struct Passo {
    std::string nome;
    std::size_t inizio = 0;                                  // first row that differs
    std::size_t quante = 0;                                  // rows that stand there on the session's side
    Tratto altre;                                            // rows that stand there on the other side
    TestoCondiviso libretto;                                 // Libretto of the other side; none: its rows joined
    std::vector<std::pair<std::size_t, std::string>> valori; // index of a value that differs, its other side
    ListaRighe scartate;                                     // RigheScartate of the other side
  };

  static Tratto Copia(const ListaRighe& righe, std::size_t inizio, std::size_t quante);
  static void Scambia(Passo& passo, Sessione& sessione);
  void Torna(std::vector<Passo>& da, std::vector<Passo>& a, Sessione& sessione);
  [[nodiscard]] Passo Confronta(const Sessione& sessione) const;

  std::vector<Passo> fatti_;
  std::vector<Passo> annullati_;
  // The session after the last step.
  ListaRighe righe_;
  unsigned long versione_ = 0;
  TestoCondiviso libretto_; // none: the rows joined
  std::vector<std::string> valori_;
  ListaRighe scartate_;
};

} // namespace lirmeto
