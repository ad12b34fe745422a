#include <proposte/contorno_particella.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

namespace lirmeto {

namespace {

using Vertici = std::vector<std::string_view>;

// The identifiers of a row, and the parcel's name behind them; a continuation has none.
struct RigaAnello {
  Vertici vertici;
  std::string_view nome;
  bool testa = false;
};

RigaAnello LeggiAnello(std::string_view riga) {
  const RigaDivisa divisa = SplitRiga(riga);
  const auto fine = static_cast<std::size_t>(divisa.UltimoVertice) + 1;
  RigaAnello anello{
      {}, fine + 1 < MassimoCampi ? divisa.CampiRiga[fine + 1] : std::string_view{}, Valore(divisa.CampiRiga[1]) > 0};
  if (fine > 2) anello.vertici.assign(divisa.CampiRiga.begin() + 2, divisa.CampiRiga.begin() + static_cast<long>(fine));
  return anello;
}

void AggiungiLati(std::vector<LineaGrafica>& lati, const Vertici& vertici, const ArchivioGrafica& archivio) {
  for (std::size_t i = 1; i < vertici.size(); ++i) {
    const auto da = archivio.PrimoDiNome(vertici[i - 1]);
    const auto a = archivio.PrimoDiNome(vertici[i]);
    if (!da || !a) continue;
    const PuntoGrafica& primo = archivio.Punti()[*da];
    const PuntoGrafica& secondo = archivio.Punti()[*a];
    lati.push_back({primo.X, primo.Y, 0, secondo.X, secondo.Y, 0});
  }
}

std::vector<LineaGrafica> LatiIn(const ListaRighe& righe, std::string_view nome, const ArchivioGrafica& archivio) {
  std::vector<LineaGrafica> lati;
  Vertici vertici;
  bool suo = false;
  for (const auto riga : righe) {
    if (GenereDi(riga) != Genere::Contorno) continue;
    RigaAnello anello = LeggiAnello(riga);
    if (anello.testa) {
      AggiungiLati(lati, vertici, archivio);
      vertici.clear();
      suo =
          anello.nome == nome || (anello.nome.ends_with('+') && anello.nome.substr(0, anello.nome.size() - 1) == nome);
    }
    if (suo) vertici.insert(vertici.end(), anello.vertici.begin(), anello.vertici.end());
  }
  AggiungiLati(lati, vertici, archivio);
  return lati;
}

} // namespace

std::vector<LineaGrafica> ContornoParticella(const Grafica& grafica, std::string_view nome) {
  if (nome.empty()) return {};
  auto lati = LatiIn(grafica.Liste().List2[1], nome, grafica.Archivio());
  return lati.empty() ? LatiIn(grafica.Liste().List2[0], nome, grafica.Archivio()) : lati;
}

} // namespace lirmeto
