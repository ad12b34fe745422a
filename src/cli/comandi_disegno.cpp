#include <cli/comandi.h>
#include <cli/disegno_png.h>

#include <grafica/esportazioni.h>
#include <grafica/grafica.h>
#include <grafica/scambio.h>

#include <array>

namespace lirmeto {

namespace {

// The drawing of a file in a store of its own, all display flags off, the view fitted to it. What goes wrong from there on
// happened in the export.
struct DisegnoLetto {
  DisegnoLetto(Ambiente& ambiente, const std::string& percorso, std::string_view esportazione) {
    Grafica(ambiente, disegno).CaricaDisegno(percorso);
    ambiente.sessione.PuntoErrore = esportazione;
  }
  DisegnoCondiviso disegno;
};

// An ENTITIES section of lines and of what the screen hides of the names.
std::string ComandoDxf(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return TestoDXF(DisegnoLetto(ambiente, argomenti[0], "KR_SalvaDXF").disegno.archivio, false);
}

// The page that draws on a canvas.
std::string ComandoHtml(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  const DisegnoLetto letto(ambiente, argomenti[0], "GeneraHTML5_CANVAS");
  return TestoPagina(letto.disegno.archivio, letto.disegno.vista);
}

// The orders for print.exe.
std::string ComandoStampa(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  const DisegnoLetto letto(ambiente, argomenti[0], "GeneraStampa");
  return TestoOrdiniStampa(letto.disegno.archivio, letto.disegno.vista);
}

// The exchange file.
std::string ComandoScambio(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return TestoScambio(DisegnoLetto(ambiente, argomenti[0], "KR_CopiaInFile").disegno.archivio);
}

// A picture of the whole drawing, as the window shows it.
std::string ComandoPng(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  constexpr int larga = 1600; // pixels
  constexpr int alta = 1200;
  DisegnoLetto letto(ambiente, argomenti[0], "Dipingi");
  letto.disegno.vista.Rapporto = static_cast<double>(larga) / alta;
  return DisegnoPng(ComponiOperazioni(letto.disegno.archivio, letto.disegno.vista), larga, alta);
}

constexpr std::array<ComandoCli, 5> Comandi = {{
    {"dxf", "linee ed etichette come DXF", UnFile, ComandoDxf},
    {"html", "una pagina che disegna su una tela", UnFile, ComandoHtml},
    {"stampa", "gli ordini di disegno per print.exe", UnFile, ComandoStampa},
    {"scambio", "il file di scambio con il programma di disegno", UnFile, ComandoScambio},
    {"png", "un'immagine di 1600 per 1200 pixel", UnFile, ComandoPng},
}};

} // namespace

FamigliaCli ComandiDisegno() {
  return {"disegno", "esporta il disegno di un .EMP, .SUR, .CSV, .PDF o di un libretto con proposta", Comandi};
}

} // namespace lirmeto
