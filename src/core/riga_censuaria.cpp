#include <core/riga_censuaria.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

static_assert(censuario::Intestazione.size() == LunghezzaCensuaria);
static_assert(censuario::ModelloVuoto.size() == LunghezzaCensuaria);

namespace {

constexpr std::string_view InizioRiga = "6|";

} // namespace

bool RigaCensuaria(std::string_view riga) {
  return riga.size() == LunghezzaCensuaria && GenereDi(riga) == Genere::Libera;
}

std::string_view LeggiCampo(std::string_view riga, const CampoCensuario& campo) {
  return Parte(riga, '|', campo.indice);
}

void SovrascriviCampo(std::string& riga, const CampoCensuario& campo, std::string_view testo) {
  if (riga.size() < campo.prima - 1 + campo.quante) throw Errore(errore::IndiceFuoriIntervallo);
  const auto posto = riga.begin() + static_cast<std::ptrdiff_t>(campo.prima - 1);
  std::ranges::replace_copy(testo.substr(0, campo.quante), posto, '|', ' ');
}

void ScriviCampo(std::string& riga, const CampoCensuario& campo, std::string_view testo) {
  SovrascriviCampo(riga, campo, RiempiECorta(testo, campo.quante));
}

void ScriviArea(std::string& riga, std::string_view area) {
  const std::string zeri = std::string(censuario::Area.quante, '0') + std::string(area);
  SovrascriviCampo(riga, censuario::Area, std::string_view(zeri).substr(zeri.size() - censuario::Area.quante));
}

std::string TreCifre(std::size_t numero) {
  const std::string zeri = "000" + TestoIntero(static_cast<long long>(numero));
  return zeri.substr(zeri.size() - censuario::Conteggio.quante);
}

std::string RigaConteggio(std::string_view sezione, std::size_t righe) {
  std::string riga(LunghezzaCensuaria, ' ');
  for (const std::size_t barra : {2U, 8U, 12U, 70U}) riga[barra - 1] = '|';
  riga[0] = '6';
  ScriviCampo(riga, censuario::Sezione, sezione);
  ScriviCampo(riga, censuario::Conteggio, TreCifre(righe));
  return riga;
}

bool ApreSezione(std::string_view riga, std::string_view sezione) {
  return riga.starts_with(InizioRiga) && riga.substr(InizioRiga.size()).starts_with(sezione);
}

bool ApreSezione(std::string_view riga) {
  using namespace censuario;
  return ApreSezione(riga, Frazionamento) || ApreSezione(riga, Stralcio) || ApreSezione(riga, Fusione);
}

bool BloccoCensuario::Prende(std::string_view riga) {
  dentro_ = riga == censuario::Intestazione || (dentro_ && RigaCensuaria(riga));
  return dentro_;
}

double RigheIndicate(const ListaRighe& censuario) {
  double indicate = 1;
  for (const auto riga : censuario)
    if (riga.starts_with("6|3SPC |") || riga.starts_with("6|51FTP|"))
      indicate += Valore(riga.substr(censuario::Conteggio.prima - 1)) + 1;
  return indicate;
}

std::string RigaCensuariaGo(std::string_view riga) {
  constexpr std::size_t colonne = 10;
  std::vector<std::string_view> campi = Dividi(riga, "|");
  if (campi.size() <= censuario::Coda.indice) return std::string(riga);
  constexpr std::array allargati = {censuario::Particella.indice, censuario::Temporaneo.indice,
                                    censuario::TemporaneoDestinazione.indice};
  std::array<std::string, allargati.size()> larghi;
  for (std::size_t i = 0; i < allargati.size(); ++i) {
    larghi[i] = RiempiECorta(campi[allargati[i]], colonne);
    campi[allargati[i]] = larghi[i];
  }
  campi[censuario::Coda.indice] = "  ";
  return Unisci(campi, "|");
}

} // namespace lirmeto
