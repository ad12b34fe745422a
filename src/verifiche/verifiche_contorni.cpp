#include <verifiche/atto.h>
#include <verifiche/contorni_letti.h>
#include <verifiche/incroci.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/campi_riga.h>

#include <algorithm>
#include <unordered_map>

namespace lirmeto {

namespace {

constexpr std::size_t MassimoNomi = 10; // of a row 7

void VerificaRigheContorno(const Atto& atto, Raccolta& raccolta) {
  for (std::size_t i = 0; i < atto.righe.InizioProposta(); ++i) {
    const RigaLetta& letta = atto.righe[i];
    if (letta.forma != FormaRiga::Contorno) continue;
    if (letta.punti.size() > MassimoNomi)
      raccolta.Riga(RegolaDi("C005"), i, 0, {TestoIntero(static_cast<long long>(letta.punti.size()))});
    if (letta.conteggio == 0 && (i == 0 || atto.righe[i - 1].forma != FormaRiga::Contorno))
      raccolta.Riga(RegolaDi("C008"), i, 1);
    if (CodiceDiLinea(letta.Codice())) continue;
    const Campi campi(atto.righe.Testo(i));
    const std::size_t fine = FineVertici(campi);
    raccolta.Riga(RegolaDi("C007"), i, fine, {Taglia(CampoSe(campi, fine))});
  }
}

void VerificaConteggio(const Atto& atto, const ContornoLetto& contorno, Raccolta& raccolta) {
  const auto quanti = static_cast<std::int32_t>(contorno.vertici.size());
  if (contorno.conteggio == 0 || contorno.conteggio == quanti || contorno.Vertici()) return;
  // With a code that is not known some names may have been taken for it.
  std::string rimedio;
  if (!contorno.codice.empty()) rimedio = ConCampo(atto.righe.Testo(contorno.riga), 1, TestoIntero(quanti));
  raccolta.Riga(RegolaDi("C001"), contorno.riga, 1, {TestoIntero(contorno.conteggio), TestoIntero(quanti)},
                std::move(rimedio));
}

void VerificaNomi(const Atto& atto, const ContornoLetto& contorno, const std::vector<bool>& definiti,
                  Raccolta& raccolta) {
  Punto prima = SenzaPunto;
  for (const VerticeContorno& v : contorno.vertici) {
    const std::string_view nome = atto.righe.Nomi().Nome(v.punto);
    if (!definiti[v.punto]) raccolta.Riga(RegolaDi("C002"), v.riga, v.campo, {nome});
    if (v.punto == prima) raccolta.Riga(RegolaDi("C009"), v.riga, v.campo, {nome});
    prima = v.punto;
  }
}

std::uint64_t Chiave(Punto a, Punto b) {
  constexpr unsigned meta = 32;
  return (std::uint64_t{std::min(a, b)} << meta) | std::max(a, b);
}

// Stretches of the red contours, each with its row.
std::unordered_map<std::uint64_t, std::size_t> TrattiRossi(const std::vector<ContornoLetto>& contorni) {
  std::unordered_map<std::uint64_t, std::size_t> rossi;
  for (const ContornoLetto& contorno : contorni)
    for (std::size_t i = 1; contorno.Rosso() && i < contorno.vertici.size(); ++i)
      rossi.try_emplace(Chiave(contorno.vertici[i - 1].punto, contorno.vertici[i].punto), contorno.vertici[i].riga);
  return rossi;
}

void VerificaRossoENero(const Atto& atto, const std::vector<ContornoLetto>& contorni, Raccolta& raccolta) {
  const auto rossi = TrattiRossi(contorni);
  if (rossi.empty()) return;
  for (const ContornoLetto& contorno : contorni)
    for (std::size_t i = 1; contorno.Nero() && i < contorno.vertici.size(); ++i) {
      const VerticeContorno& da = contorno.vertici[i - 1];
      const VerticeContorno& a = contorno.vertici[i];
      const auto rosso = rossi.find(Chiave(da.punto, a.punto));
      if (rosso == rossi.end()) continue;
      const NomiPunti& nomi = atto.righe.Nomi();
      raccolta.Riga(RegolaDi("C003"), a.riga, a.campo,
                    {nomi.Nome(da.punto), nomi.Nome(a.punto), TestoRiga(rosso->second)});
    }
}

void VerificaIncrocio(const Atto& atto, const ContornoLetto& contorno, Raccolta& raccolta) {
  if (contorno.Vertici() || contorno.vertici.size() < 4) return;
  std::vector<Tratto> tratti;
  for (std::size_t i = 1; i < contorno.vertici.size(); ++i) {
    const Punto da = contorno.vertici[i - 1].punto;
    const Punto a = contorno.vertici[i].punto;
    if (atto.rete.Nota(da) && atto.rete.Nota(a)) tratti.push_back({atto.rete.Dove(da), atto.rete.Dove(a), da, a});
  }
  const auto incrocio = PrimoIncrocio(tratti);
  if (!incrocio) return;
  const Tratto& s = tratti[incrocio->first];
  const Tratto& t = tratti[incrocio->second];
  const auto nome = [&](std::size_t punto) { return atto.righe.Nomi().Nome(static_cast<Punto>(punto)); };
  raccolta.Riga(RegolaDi("C004"), contorno.riga, 0, {nome(s.primo), nome(s.secondo), nome(t.primo), nome(t.secondo)});
}

// Both ends of an open red contour stand on another contour. Those of a closed one are one point, used twice.
void VerificaEstremi(const Atto& atto, const std::vector<ContornoLetto>& contorni, Raccolta& raccolta) {
  std::vector<std::size_t> usi(atto.righe.Nomi().Quanti()); // how often contours pass through a point
  for (const ContornoLetto& contorno : contorni)
    for (const VerticeContorno& v : contorno.vertici) ++usi[v.punto];
  for (const ContornoLetto& contorno : contorni) {
    if (!contorno.Rosso() || contorno.vertici.empty()) continue;
    for (const VerticeContorno& v : {contorno.vertici.front(), contorno.vertici.back()})
      if (usi[v.punto] < 2) raccolta.Riga(RegolaDi("C006"), v.riga, v.campo, {atto.righe.Nomi().Nome(v.punto)});
  }
}

} // namespace

void VerificaContorni(const Atto& atto, Raccolta& raccolta) {
  const auto contorni = LeggiContorni(atto.righe);
  if (contorni.empty()) return;
  const auto definiti = Definiti(atto.righe);
  VerificaRigheContorno(atto, raccolta);
  for (const ContornoLetto& contorno : contorni) {
    VerificaConteggio(atto, contorno, raccolta);
    VerificaNomi(atto, contorno, definiti, raccolta);
    VerificaIncrocio(atto, contorno, raccolta);
  }
  VerificaRossoENero(atto, contorni, raccolta);
  VerificaEstremi(atto, contorni, raccolta);
}

} // namespace lirmeto
