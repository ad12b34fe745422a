#pragma once
// The dialog over Pregeo's archive: its libretti, one of them with its processed points, and those points into the open
// libretto.
//
// The answers of the exchange programs, a line each, ended in any way:
//
//   ELENCO_LIBRETTI.txt           1|2017|974|Approvato||||||G224|0041||ROSSI ANNA|   fields at bars: 0 progressive
//                                 number, 1 year, 2 protocol, 3 state, 9 comune, 10 sheet, 12 surveyor
//   ESPORTA_PUNTI_ELABORATI.txt   101,5029871.220,1724410.300,12.00,SPIGOLO          name, north, east, height, note
//   ASSOCIA_ESTRATTO.txt          "G224_004100_57.EMP"
//
// A field that a line lacks is empty. A note keeps its commas.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <core/lista_righe.h>
#include <core/posizione_form.h>
#include <grafica/grafica.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class KR_Dapregeo : public Modello {
public:
  static constexpr std::array<std::string_view, 9> TitoliArchivio = {
      "Progr", "Anno", "Protocollo", "Tecnico", "Comune", "Foglio", "Stato", "Nome File-Utente", "Nome Dat"};
  static constexpr std::array<std::string_view, 5> TitoliPunti = {"Nome", "Nord", "Est", "Quota", "Descrizione"};
  using RigaArchivio = std::array<std::string, TitoliArchivio.size()>;
  using RigaPunto = std::array<std::string, TitoliPunti.size()>;

  KR_Dapregeo(Ambiente& ambiente, DisegnoCondiviso& disegno) : Grafica1(ambiente, disegno), ambiente_(ambiente) {}

  std::string Titolo;
  std::vector<RigaArchivio> MSFlexGrid1; // the archive
  std::vector<RigaPunto> MSFlexGrid2;    // the points
  ListaRighe List1;                      // the proposal
  ListaRighe List2;                      // the libretto
  Grafica Grafica1;
  std::optional<std::size_t> Riga; // of the archive, the one that is shown
  bool ConRicerca = false;         // the form is there to look for a libretto: it has a box for a text
  std::string Cercato;             // the text
  bool Chiusa = false;
  std::optional<PosizioneForm> PostoSalvato; // where the form stood last

  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }

  void AlCaricamento();
  // The form is going, and stood there.
  void SalvaPosto(const PosizioneForm& posto);
  // Another row of the archive is shown; one that is not there changes nothing. Errors are reported, and what was shown
  // is taken away: it was another libretto.
  void CambiaRiga(std::size_t riga);

  // Whether a row of the archive has the text looked for in one of its cells, in any case.
  [[nodiscard]] bool Trovata(std::size_t riga) const;

  // The drawing again, as the display flags now have it loaded.
  void Ricarica() { Prova("Ricarica", &KR_Dapregeo::Disegna); }

  // Buttons: 0 closes, 2 imports and closes, 3 saves the drawing as DXF.
  void Pulsante(int indice);

private:
  void Prova(std::string_view punto, void (KR_Dapregeo::*comando)());
  void CaricaPregeo800();
  void MostraListaPregeo();
  void CaricaDescrizione();
  void Disegna();
  void ImportaRighe8InLibretto();
  void Svuota();
  void Chiudi();

  Ambiente& ambiente_;
  std::string estrattoPrima_; // EstrattoAssociato when the dialog came up
};

} // namespace lirmeto
