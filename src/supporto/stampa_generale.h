#pragma once
// The report list: where every text report is shown, reworked and sent out, to the printer, to the clipboard, into a
// document model or to the viewer of its .CSV file.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// What the first option group says about the paper, and the second about who opens the .CSV file.
enum class AperturaCsv { Visualizzatore, Pernico };

class KR_StampaGenerale : public Modello {
public:
  explicit KR_StampaGenerale(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Titolo = "Stampa Generale"; // window caption
  ListaRighe List1;                       // the report, a line an entry; filled by the caller
  std::vector<std::string> File1;         // names of the models
  long ModelloScelto = -1;                // in File1, -1 for none
  std::string Label3;                     // the viewer of .CSV files
  Carattere CarattereLista;
  Orientamento Option1 = Orientamento::Verticale;
  AperturaCsv Option3 = AperturaCsv::Visualizzatore;
  bool NumeriDiPagina = false; // at the foot of the printed pages
  bool Chiusa = false;

  void AlCaricamento();
  // The window comes to the front: the font's file is read again. One that cannot be read is told of once.
  void AllAttivazione();

  // Whether the report has files of its own.
  [[nodiscard]] bool ConFile() const { return !ambiente_.sessione.NomeBaseStampa.empty(); }

  // A button of the indexed row. Errors are reported here.
  void Esegui(int indice);
  void DoppioClickModello();
  // The menu entry for a text editor: the report's .TXT file.
  void ApriTesto();
  // Button 0, Escape and the window's close.
  void Chiudi();

  // Indices of the buttons.
  static constexpr int ChiudiForm = 0;
  static constexpr int StampaLista = 1;
  static constexpr int CopiaLista = 2;
  static constexpr int ScegliCarattere = 3;
  static constexpr int ScegliStampante = 4;
  static constexpr int ModificaLista = 5;
  static constexpr int TogliCarattere = 6;
  static constexpr int AggiungiBianco = 7;
  static constexpr int TogliPrimaRiga = 8;
  static constexpr int AggiungiRiga = 9;
  static constexpr int CompilaIlModello = 10;
  static constexpr int AggiornaModelli = 11;
  static constexpr int ScegliVisualizzatore = 12;
  static constexpr int DimenticaVisualizzatore = 13;
  static constexpr int ApriCsv = 14;

private:
  void EseguiComando(int indice);
  void CambiaStampante();
  void Modifica();
  void TogliLaPrima();
  void MettiRigaDavanti();
  void LasciaVisualizzatore();
  void Prova(std::string_view posto, void (KR_StampaGenerale::*comando)());
  void Stampa();
  void CopiaNegliAppunti();
  void CambiaCarattere();
  void TogliPrimoCarattere();
  void MettiBiancoDavanti();
  void Compila();
  void ElencaModelli();
  void CambiaVisualizzatore();
  void ApriReportCsv();
  void ApriConPernico(const std::string& file);
  void ApriModello();
  void ApriReportTesto();
  void MostraVisualizzatore();
  [[nodiscard]] std::string Visualizzatore() const;
  [[nodiscard]] std::string CartellaModelli() const;

  Ambiente& ambiente_;
  bool carattereLeggibile_ = true;
};

// Shows a report. `nomeBase` is the path, without extension, of its .TXT and .CSV files, empty where it has none.
void MostraStampaGenerale(Ambiente& ambiente, ListaRighe righe, const std::string& nomeBase = {});

// Writes a report's .TXT file, its lines, and the .CSV file that goes with it, and shows it.
void StampaConFile(Ambiente& ambiente, ListaRighe righe, std::string_view csv, const std::string& nomeBase);

} // namespace lirmeto
