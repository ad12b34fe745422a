#include <grafica/scambio.h>

#include <grafica/grafica.h>

#include <base/numeri.h>
#include <base/testo.h>

namespace lirmeto {

namespace {

std::string FraVirgolette(std::string_view testo) {
  return "\"" + Sostituisci(SuUnaRiga(testo), "\"", "\"\"") + "\"";
}

// Where the exchange file lies: in the sibling program's folder when that program is installed beside this one.
std::string PercorsoScambio(const Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  const bool conForvale = ambiente.disco.Esiste(sessione.CartellaProgramma + "\\Forvale.EXE");
  return conForvale ? sessione.CartellaDocumenti + "\\Forvale\\temp\\CopiaInFile.TXT"
                    : sessione.CartellaProgramma + "\\temp\\CopiaInFile.TXT";
}

} // namespace

void ScrittoreScambio::Punto(const PuntoGrafica& punto) {
  testo_ += "\"P\"," + FraVirgolette(punto.Nome);
  for (const double numero : {punto.X, punto.Y, punto.Z}) (testo_ += ',') += TestoPieno(numero);
  testo_ += ",\"PUNTI\",-1.5," + FraVirgolette(punto.Testo);
  testo_ += FineRiga;
}

void ScrittoreScambio::Linea(const LineaGrafica& linea) {
  testo_ += "\"L\"";
  for (const double numero : {linea.X1, linea.Y1, linea.Z1, linea.X2, linea.Y2, linea.Z2})
    (testo_ += ',') += TestoPieno(numero);
  testo_ += "," + TestoIntero(linea.Colore) + "," + TestoIntero(linea.Stile + 1) + ",";
  testo_ += FraVirgolette(strato_.Di(linea));
  testo_ += FineRiga;
}

std::string TestoScambio(const ArchivioGrafica& archivio) {
  ScrittoreScambio scambio;
  for (const PuntoGrafica& punto : archivio.Punti()) scambio.Punto(punto);
  for (const LineaGrafica& linea : archivio.Linee()) scambio.Linea(linea);
  return scambio.Testo();
}

void Grafica::ApriCopiaInfile() {
  copia_ = {};
}

std::string Grafica::ChiudiCopiaInFile() {
  ambiente_.sessione.PuntoErrore = "ChiudiCopiaInFile";
  std::string percorso = PercorsoScambio(ambiente_);
  ambiente_.disco.Scrivi(percorso, copia_.Testo());
  copia_ = {};
  FineProgramma = ambiente_.disco.Esiste(ambiente_.sessione.CartellaProgramma + "\\temp\\IncollaDaFileSiNo.TXT");
  return percorso;
}

std::string Grafica::KR_CopiaInFile() {
  ApriCopiaInfile();
  for (const PuntoGrafica& punto : Archivio().Punti()) SalvaPuntoCopiaInFile(punto);
  for (const LineaGrafica& linea : Archivio().Linee()) SalvaLineaCopiaInFile(linea);
  return ChiudiCopiaInFile();
}

void Grafica::AggiungiPuntoAFile(double x, double y) {
  constexpr std::string_view formato = "###############0.000";
  ambiente_.sessione.PuntoErrore = "AggiungiPuntoAFile";
  std::string testo = ambiente_.disco.Esiste(Percorso) ? ambiente_.disco.Leggi(Percorso) : std::string{};
  if (!testo.empty() && !testo.ends_with('\n')) testo += FineRiga; // the last row may have no end of its own
  const std::string riga = "8|" + NomeNuovoPunto + "|" + Formatta(x, formato) + "|" + Formatta(y, formato) + "|";
  testo += Sostituisci(riga, ",", ".");
  testo += FineRiga;
  ambiente_.disco.Scrivi(Percorso, testo);
}

} // namespace lirmeto
