#include <verifiche/estratto_letto.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <verifiche/riga_letta.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t PrimoVertice = 2;
constexpr std::size_t CampiChiusura = 4; // code, name, name, area

std::string SenzaSegno(std::string_view nome) {
  while (!nome.empty() && (nome.back() == '+' || nome.back() == '-')) nome.remove_suffix(1);
  return std::string(nome);
}

bool ELinea(const Campi& campi) {
  return campi.Quanti() > PrimoVertice && campi[PrimoVertice].ends_with('L');
}

// An identifier of a vertex: "12%", "12T", "12L"; anything else is the line code or what stands behind it.
bool EVertice(std::string_view campo) {
  return campo.size() > 1 && Valore(campo) != 0 && std::string_view("%TL").find(campo.back()) != std::string_view::npos;
}

void PrendiVertici(const Campi& campi, std::vector<std::string>& vertici) {
  for (std::size_t i = PrimoVertice; i < campi.Quanti() && EVertice(campi[i]); ++i) vertici.emplace_back(campi[i]);
}

void PrendiTestata(std::string_view riga, EstrattoLetto& letto) {
  constexpr std::size_t campi = 7;
  constexpr std::size_t cifreFoglio = 4;
  letto.intestato = riga.starts_with("0|") && QuanteParti(riga, '|') >= campi;
  letto.data = Parte(riga, '|', 1);
  letto.comune = Parte(riga, '|', 3);
  const std::string_view foglio = Parte(riga, '|', 4);
  letto.foglio = foglio.size() > cifreFoglio ? foglio.substr(foglio.size() - cifreFoglio) : foglio;
  for (const auto nome : Dividi(Parte(riga, '|', 5), ",")) letto.particelle.emplace_back(Taglia(nome));
}

void PrendiRighe(std::string_view testo, EstrattoLetto& letto) {
  LettoreAnelli lettore;
  std::size_t indice = 0;
  for (const auto riga : RigheDi(testo)) {
    if (indice == 0) PrendiTestata(riga, letto);
    lettore.Riga(riga, indice++);
  }
  for (const auto& linea : lettore.linee) letto.linee.push_back(lettore.punti.Di({0, linea, {}, {}}));
  letto.punti = std::move(lettore.punti);
  letto.anelli = std::move(lettore.anelli);
}

} // namespace

std::vector<PuntoPiano> PuntiEstratto::Di(const AnelloLetto& anello) const {
  std::vector<PuntoPiano> trovati;
  for (const std::string& vertice : anello.vertici)
    if (const auto posto = posti.find(vertice); posto != posti.end()) trovati.push_back(posto->second);
  return trovati;
}

bool EstrattoLetto::HaParticella(std::string_view nome) const {
  return std::binary_search(particelle.begin(), particelle.end(), nome);
}

void LettoreAnelli::Riga(std::string_view riga, std::size_t indice) {
  const Genere genere = GenereDi(riga);
  if (genere != Genere::Contorno && genere != Genere::Coordinate) return;
  const Campi campi(riga);
  if (genere == Genere::Coordinate && campi.Quanti() > 3) {
    punti.posti.insert_or_assign(std::string(campi[1]), PuntoPiano{Misura(campi[3]), Misura(campi[2])});
    return;
  }
  if (genere != Genere::Contorno || campi.Quanti() < 3) return;
  const bool testa = Valore(campi[1]) != 0;
  if (ELinea(campi)) {
    if (testa || linee.empty()) linee.emplace_back();
    return PrendiVertici(campi, linee.back());
  }
  if (testa || anelli.empty()) {
    anelli.push_back({indice, {}, {}, {}});
    if (campi.Quanti() > CampiChiusura + 2) {
      anelli.back().nome = campi.DaUltimo(2);
      anelli.back().superficie = campi.DaUltimo(1);
    }
  }
  PrendiVertici(campi, anelli.back().vertici);
}

EstrattoLetto LeggiEstratto(std::string_view testo) {
  EstrattoLetto letto;
  PrendiRighe(testo, letto);
  for (const AnelloLetto& anello : letto.anelli) letto.particelle.push_back(SenzaSegno(anello.nome));
  std::sort(letto.particelle.begin(), letto.particelle.end());
  return letto;
}

} // namespace lirmeto
