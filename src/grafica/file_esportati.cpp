#include <grafica/file_esportati.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/programmi.h>
#include <grafica/esportazioni.h>
#include <grafica/scambio.h>

namespace lirmeto {

namespace {

std::string NelProgramma(const Ambiente& ambiente, std::string_view nome) {
  return ambiente.sessione.CartellaProgramma + "\\" + std::string(nome);
}

// Where the exchange file lies: in the sibling program's folder when that program is installed beside this one.
std::string PercorsoScambio(const Ambiente& ambiente) {
  const bool conForvale = ambiente.disco.Esiste(NelProgramma(ambiente, "Forvale.EXE"));
  return conForvale ? ambiente.sessione.CartellaDocumenti + "\\Forvale\\temp\\CopiaInFile.TXT"
                    : NelProgramma(ambiente, "temp\\CopiaInFile.TXT");
}

} // namespace

std::string ScriviDXF(Ambiente& ambiente, const DisegnoCondiviso& disegno) {
  ambiente.sessione.PuntoErrore = "KR_SalvaDXF";
  std::string percorso = NelProgramma(ambiente, "GraficaPF.DXF");
  ambiente.disco.Scrivi(percorso, TestoDXF(disegno.archivio, disegno.vista.Check2));
  return percorso;
}

std::string ScriviPagina(Ambiente& ambiente, const DisegnoCondiviso& disegno) {
  ambiente.sessione.PuntoErrore = "GeneraHTML5_CANVAS";
  std::string percorso = NelProgramma(ambiente, "Stampe.HTML");
  ambiente.disco.Scrivi(percorso, TestoPagina(disegno.archivio, disegno.vista));
  ApriDocumentoODillo(ambiente, percorso);
  return percorso;
}

std::string ScriviOrdiniStampa(Ambiente& ambiente, const DisegnoCondiviso& disegno) {
  ambiente.sessione.PuntoErrore = "GeneraStampa";
  std::string percorso = NelProgramma(ambiente, "Stampe.TXT");
  ambiente.disco.Scrivi(percorso, TestoOrdiniStampa(disegno.archivio, disegno.vista));
  return percorso;
}

std::string ScriviScambio(Ambiente& ambiente, const DisegnoCondiviso& disegno) {
  ambiente.sessione.PuntoErrore = "ChiudiCopiaInFile";
  std::string percorso = PercorsoScambio(ambiente);
  ambiente.disco.Scrivi(percorso, TestoScambio(disegno.archivio));
  return percorso;
}

bool SoloPerScambio(const Ambiente& ambiente) {
  return ambiente.disco.Esiste(NelProgramma(ambiente, "temp\\IncollaDaFileSiNo.TXT"));
}

} // namespace lirmeto
