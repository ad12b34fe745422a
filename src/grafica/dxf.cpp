#include <grafica/esportazioni.h>
#include <grafica/scrittore_dxf.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

constexpr std::array<std::string_view, 12> Strati = {"LINEE_SCHEMA", "LINEE_TRIANGOLO", "LINEE_ESTRATTO", "LINEE_RC",
                                                     "LINEE_RT",     "LINEE_RP",        "LINEE_NC",       "LINEE_NP",
                                                     "LINEE_NT",     "PUNTI_Q",         "PUNTI_D",        "PUNTI_HPS"};

void ScriviStrati(ScrittoreDxf& dxf, const PuntoGrafica& primo) {
  for (const auto strato : Strati) {
    dxf.Entita("POINT", strato);
    dxf.Posto(primo.X, primo.Y);
  }
}

void ScriviPunto(ScrittoreDxf& dxf, const PuntoGrafica& punto) {
  dxf.Entita("POINT", "PUNTI_S");
  dxf.Colore(punto.Colore);
  dxf.Posto(punto.X, punto.Y);
  dxf.Entita("TEXT", "PUNTI_N");
  dxf.Posto(punto.X, punto.Y);
  dxf.Colore(punto.Colore);
  dxf.Nome(punto.Nome);
}

void ScriviLinea(ScrittoreDxf& dxf, const LineaGrafica& linea, std::string_view strato) {
  dxf.Entita("LINE", strato);
  dxf.Colore(linea.Colore);
  dxf.Posto(linea.X1, linea.Y1);
  dxf.Fine(linea.X2, linea.Y2);
}

} // namespace

std::string StratoLinee::Di(const LineaGrafica& linea) {
  const auto diColore = [&](std::string_view lettera) { (nome_ = prefisso_) += lettera; };
  if (linea.Colore == colore::Nero) diColore("N");
  if (linea.Colore == colore::BluChiaro) diColore("B");
  if (linea.Colore == colore::RossoChiaro) diColore("R");
  std::string strato = nome_;
  if (linea.Stile == stile::Continuo) strato += 'C';
  if (linea.Stile == stile::Tratteggiato) strato += 'T';
  if (linea.Stile == stile::Punteggiato) strato += 'P';
  return strato;
}

std::string TestoDXF(const ArchivioGrafica& archivio, bool nomiSpenti) {
  if (archivio.Punti().empty()) throw Errore(errore::IndiceFuoriIntervallo);
  constexpr std::size_t bytePunto = 200;
  constexpr std::size_t byteLinea = 140;
  ScrittoreDxf dxf((archivio.Punti().size() + Strati.size()) * bytePunto + archivio.Linee().size() * byteLinea);
  dxf.ApriEntita();
  ScriviStrati(dxf, archivio.Punti().front());
  for (const PuntoGrafica& punto : archivio.Punti())
    if (nomiSpenti || punto.Nome.starts_with(' ')) ScriviPunto(dxf, punto);
  StratoLinee strato("LINEE_");
  for (const LineaGrafica& linea : archivio.Linee()) ScriviLinea(dxf, linea, strato.Di(linea));
  dxf.Gruppo("  0", "ENDSEC");
  dxf.Gruppo("  0", "EOF");
  return dxf.Prendi();
}

} // namespace lirmeto
