#pragma once
// The form that composes the proposal of an automated typology: from a listing of polylines, from a DXF, or from a
// contour drawn on the extract.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/lista_righe.h>
#include <core/posizione_form.h>
#include <generazione/elenco_cad.h>
#include <generazione/tipologia.h>
#include <grafica/grafica.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class Tipol10 : public Modello {
public:
  Tipol10(Ambiente& ambiente, DisegnoCondiviso& disegno) : Grafica1(ambiente, disegno), ambiente_(ambiente) {}

  std::string Titolo;      // "Tipologia " and the code
  ListaRighe List1;        // rows of the proposal
  std::string Text1;       // free text, kept per typology
  std::string Text2 = "0"; // number of the last new point, as the drawing names it: "7*"
  std::string Text3 = "1"; // what is added to it for the next
  Grafica Grafica1;        // the extract and the proposal
  bool Chiusa = false;
  std::optional<PosizioneForm> PostoSalvato; // where the form stood last

  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }

  // Reads the text of the typology, empties the program's \temp, shows the extract.
  void AlCaricamento();
  // The form is going, and stood there.
  void SalvaPosto(const PosizioneForm& posto);

  // Confirm, close, listing in the clipboard, DXF. Errors are reported; List1 is then as it was.
  void ButtonPlus1(int indice);

  // Drawing tools: new point, red contour, black contour, contour begun anew, contour into rows, middle point, point by
  // two distances.
  void ButtonPlus2(int indice);
  // No tool: a click does nothing.
  void NessunoStrumento() { ScegliStrumento({}); }
  // The picture again, as the display flags now have it loaded.
  void Ricarica();
  // A tool that places points takes one name: called after a click, it gives the next.
  void DopoIlClick();

  // List1, the provisional extract and the picture from the listing in the clipboard. Without vertices it says so.
  void GeneraLibrettoDaList();
  // Asks for a DXF and puts its polylines on the clipboard as a listing.
  void GeneraLibrettoDaPoliLineeDXF();

private:
  void Prova(std::string_view punto, void (Tipol10::*comando)());
  void Carica();
  void Conferma();
  void ContornoDisegnato();
  void ScegliStrumento(std::string_view strumento);
  void AggiungiAlContorno(std::string_view riga);
  [[nodiscard]] std::string TestoDxf();
  void DaDxf();
  void DaElenco();
  [[nodiscard]] std::string ComponiProposta(const ElencoCad& elenco);
  void ScriviEstrattoProvvisorio(const ElencoCad& elenco);
  void DisegnaEstratto(std::string_view proposta);
  [[nodiscard]] bool ConEstratto() const;
  [[nodiscard]] std::string FileTesto() const;

  Ambiente& ambiente_;
};

} // namespace lirmeto
