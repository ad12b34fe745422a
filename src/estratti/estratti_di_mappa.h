#pragma once
// The extract manager: every extract of the installation, seen and worked on.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <grafica/grafica.h>

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Which files are listed: all kinds, or those of one option.
enum class FiltroEstratti { Tutti, Smp, Emp, Png };

// What is shown of the selected file.
enum class AnteprimaEstratto { Nessuna, Disegno, Raster };

// Labels of the selected extract, as they are shown.
struct EtichetteEstratto {
  std::string comune;     // "G224 - PADOVA"
  std::string provincia;  // "PD - PADOVA"
  std::string foglio;     // "00042"
  std::string particelle; // commas between
  std::string rilascio;
  std::string scadenza;
  std::string estMedio;
  std::string versione; // "Pregeo 10"
  std::string tipo;     // "AUTOALLESTITO" or empty
};

class KR_EstrattiDiMappa1 : public Modello {
public:
  explicit KR_EstrattiDiMappa1(Ambiente& ambiente) : grafica_(ambiente, disegno_), ambiente_(ambiente) {}

  // Shown by the window as they stand.
  std::string Titolo;
  std::vector<std::string> File1; // names of the files, in order
  long Indice = -1;               // of the file selected; -1 for none
  FiltroEstratti Filtro = FiltroEstratti::Tutti;
  std::string TestoFile; // the file's start, lines at CR LF
  EtichetteEstratto Etichette;
  std::string TestoParticelle; // lines at CR LF, blanks in place of bars
  std::string TestoDitte;
  AnteprimaEstratto Anteprima = AnteprimaEstratto::Nessuna;
  std::string RasterScelto; // path of the raster of the selected stem; empty for none
  bool Chiusa = false;

  // Boxes that the user fills.
  std::string NuovoNome;           // of an extract
  std::string NomeParticella;      // as it is
  std::string NuovoNomeParticella; // as it shall be

  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }
  [[nodiscard]] Grafica& Grafica1() { return grafica_; }

  // The list; the extract associated with the libretto is selected when it is there. An empty folder gets two samples.
  void AlCaricamento();

  // Lists the files again, the selection staying where its file is still there.
  void Aggiorna();
  void CambiaFiltro(FiltroEstratti filtro);

  // Selects a file, -1 for none: title and start of the text at once, the rest with AnteprimaEstratto3, which every
  // command begins with. Error 9 for an index that is not there.
  void Seleziona(long indice);
  // Drawing, labels and texts of the selected file, unless they are there already. Errors are reported here.
  void AnteprimaEstratto3();
  // The same file again, as the display flags now have it loaded.
  void Ricarica();

  struct Pulsante {
    int indice;
    std::string_view didascalia;
    std::string_view spiegazione;
    bool soloEmp; // of no use for a raster
    void (KR_EstrattiDiMappa1::*azione)();
  };
  [[nodiscard]] static std::span<const Pulsante> Pulsanti();
  // False for a command whose window this program has not, and for one that the selected file is none for.
  [[nodiscard]] bool Abilitato(const Pulsante& pulsante) const;
  // A button by its index; one that is not there does nothing. Errors are reported here.
  void Premi(int indice);

  // A file dropped on the window.
  void Lascia(const std::string& percorso);
  // Comune, sheet and parcels of the selected extract, filled in where it is an auto-assembled one.
  void Completa();

  // The form to open once this one is closed; empty for none.
  [[nodiscard]] const std::string& DopoLaChiusura() const { return dopo_; }

private:
  void Chiudi() { Chiusa = true; }
  void ImportaEstrattoDiMappa();
  void Somma();
  void CopiaRapida();
  void EliminaEstrattoDiMappa();
  void Vuota();
  void Autoallestisci();
  void Duplica() { CopiaConNome(false); }
  void Rinomina() { CopiaConNome(true); }
  void EliminaParticella();
  void RinominaLaParticella();
  void AssociaEstratto();
  void ApriArchivioParticelle();
  void Stampa();
  void TogliPuntiIsolati();
  void Esporta();
  void ArchiviaIntestatari();
  void EstrattoProvvisorio();
  void ConvertiCxf();

  void Prova(std::string_view punto, const std::function<void()>& comando);
  void CaricaEstratto(const std::string& percorso);
  void MostraEtichette();
  void Pulisci();
  void Importa(const std::string& percorso);
  void SelezionaNome(std::string_view nome);
  void RileggiSelezionato();
  void CopiaConNome(bool togliVecchio);
  [[nodiscard]] bool Conferma(const std::string& domanda, std::string_view titolo = TitoloProgramma);
  [[nodiscard]] bool SceltoEmp(std::string_view avviso, std::string_view titolo = TitoloProgramma);
  [[nodiscard]] std::string Selezionato() const;
  [[nodiscard]] std::string Percorso(std::string_view nome) const;

  DisegnoCondiviso disegno_;
  Grafica grafica_;
  Ambiente& ambiente_;
  bool daCaricare_ = false; // the selected file's drawing and labels
  std::string dopo_;
};

// The window, and behind it the form that a command of it asks for.
void ApriEstrattiDiMappa(Ambiente& ambiente);

// First and last row of an extract's text.
[[nodiscard]] std::string VuotaEstratto(std::string_view testo);

} // namespace lirmeto
