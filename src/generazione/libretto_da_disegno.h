#pragma once
// The form that makes a whole libretto from a drawing.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <generazione/opzioni_libretto.h>
#include <generazione/tabelle_disegno.h>
#include <grafica/grafica.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lirmeto {

struct Generazione;

class LibrettoDaDisegno : public Modello {
public:
  LibrettoDaDisegno(Ambiente& ambiente, DisegnoCondiviso& disegno) : Grafica1(ambiente, disegno), ambiente_(ambiente) {}

  std::string Titolo;             // "Libretto Fittizio : " and the drawing's path
  OpzioniLibretto Opzioni;        // check boxes and option buttons
  ListaRighe List0;               // rows of the old libretto, only shown
  std::vector<std::string> List1; // the lines, "100 - 101"
  std::vector<std::string> List6; // the report
  Grafica Grafica1;               // points, lines, contours, and the rays of the stations
  bool GeneraAbilitato = true;
  bool OrientaLibrettoAbilitato = false; // the old libretto has four rows at least, and there are stations
  bool Chiusa = false;
  bool FineProgramma = false; // the libretto was made and written

  // The frame of the TAF can be used.
  [[nodiscard]] bool TafAbilitata() const { return !Opzioni.Mantieni8; }
  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }

  // Settings, old rows, drawing and list of lines. A drawing that is not there is told and loads nothing.
  void Form_Load();
  // Keeps the settings.
  void Form_Unload();

  // Sets an option as the user does; one that cannot be chosen stays as it is. False: no such option or value.
  bool Imposta(std::string_view chiave, std::string_view valore);

  // Button 0: generates, writes the session's file and ends the program. Errors are reported; the form then stays open
  // and the libretto is as it was.
  void ButtonPlus1_0();
  // Button 1.
  void ButtonPlus1_1() { Chiusa = true; }
  // Double click on a line: it takes no part. Of fewer than three lines none can be removed.
  void DoppioClickList1(std::size_t indice);
  // The line removed last comes back to its place, which is the answer; none when all are there.
  std::optional<std::size_t> RimettiLinea();

  // The line of the list that is lit in the picture; none, or one that is not there, puts the light out. What is
  // generated does not depend on it.
  void Accendi(std::optional<std::size_t> indice);
  // The line of the list nearest to a place of the picture, the first of equal ones, if it passes within so many
  // metres.
  [[nodiscard]] std::optional<std::size_t> LineaVicina(const PuntoPiano& posto, double entro) const;

  // All phases but the writing: Libretto, the row list and the report. False: no orientation was chosen, and nothing
  // has changed.
  bool GeneraLibrettoMisureAutomatico();

private:
  void Disegna();
  void DisegnaLinee();
  void DisegnaContorni();
  void DisegnaRaggi();
  void Fasi(Generazione& g);
  void RiordinaEdElenca();
  void MostraRapporto(const std::vector<std::string>& rapporto);

  Ambiente& ambiente_;
  std::vector<std::pair<std::size_t, std::string>> tolte_; // lines removed, and where they stood
  TabelleDisegno tabelle_;
  std::vector<std::optional<LineaGrafica>>
      tracciate_; // those of List1 as they are drawn; none where an end is no point
};

} // namespace lirmeto
