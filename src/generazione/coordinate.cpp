// Rows 8, and row 9 which follows from them.

#include <fiduciali/righe_pf.h>
#include <generazione/angoli.h>
#include <generazione/generazione.h>

#include <base/estremi.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::string_view PuntoAppoggio = "[P.A.]";

// The names of the fiducial points that rows sight, in capitals and in the order of their bytes.
std::set<std::string> Fiduciali(const Generazione& g) {
  std::set<std::string> nomi;
  for (const auto* righe : {&g.righe, &g.gps})
    for (const std::string& riga : *righe) {
      const std::string alta = Maiuscolo(riga);
      if (alta.find("|PF", 1) == std::string::npos) continue;
      const std::string_view resto = std::string_view(alta).substr(2);
      nomi.emplace(Taglia(resto.substr(0, resto.find('|'))));
    }
  return nomi;
}

void MettiFiduciale(Generazione& g, std::string_view riga) {
  RighePF righe = RighePFDelDisegno(DecodificaRigaTAF(riga), riga);
  g.righe.push_back(std::move(righe.posto));
  g.righe.push_back(std::move(righe.quota));
}

void MettiFiduciali(Generazione& g) {
  ArchivioTaf archivio(g.ambiente);
  for (const std::string& nome : Fiduciali(g))
    if (const auto riga = archivio.Riga(nome); !riga.empty()) MettiFiduciale(g, riga);
}

std::string Inizio(const PuntoDisegno& punto) {
  return "8|" + punto.Nome + "|" + Formatta(punto.Y, FormatoDistanza) + "|" + Formatta(punto.X, FormatoDistanza) + "|";
}

std::string NotaSenzaMarche(const PuntoDisegno& punto) {
  return NotaConBarra(TogliMarcatoriNota(punto.Nota), "Note:");
}

std::string RigaAppoggio(const PuntoDisegno& punto) {
  const std::string nota = Sostituisci(TogliMarcatoriNota(Maiuscolo(punto.Nota)), PuntoAppoggio, "");
  return Inizio(punto) + std::string(Taglia(nota)) + std::string(PuntoAppoggio) + "|";
}

std::string RigaPlanimetrica(const PuntoDisegno& punto) {
  return Inizio(punto) + NotaSenzaMarche(punto);
}

std::string RigaUguale(const PuntoDisegno& punto) {
  constexpr std::size_t cifre = 5;
  const std::size_t zeri = cifre - std::min(cifre, punto.Nome.size());
  return Inizio(punto) + "12|89000=" + std::string(zeri, '0') + punto.Nome + "|";
}

std::string RigaQuota(const PuntoDisegno& punto) {
  return "8|" + punto.Nome + "|" + Formatta(punto.Quota, FormatoDistanza) + "|04|" + NotaSenzaMarche(punto);
}

struct RigaPerMarca {
  std::string_view marca;
  std::string (*riga)(const PuntoDisegno&);
};

// A walk over the table for each, in this order.
constexpr std::array<RigaPerMarca, 4> RighePerMarca = {
    {{PuntoAppoggio, RigaAppoggio}, {"<8P>", RigaPlanimetrica}, {"<8=>", RigaUguale}, {"<8Q>", RigaQuota}}};

// The third value of a row 8 of five or more, its east; the second row of a fiducial point has only four.
std::optional<double> EstDi(std::string_view riga) {
  if (GenereDi(riga) != Genere::Coordinate) return std::nullopt;
  const RigaDivisa divisa = SplitRiga(riga);
  if (divisa.UltimoCampo <= 4) return std::nullopt;
  return Valore(divisa.CampiRiga[3]);
}

std::string RigaNoveCon(std::string_view riga, double est, const std::string& versione) {
  constexpr std::size_t ultimoCampo = 7;
  const std::array<std::string, ultimoCampo + 1> predefiniti = {
      "", "", "10", "20", Formatta(est, "#########0"), versione, "FR", "Geodimetro"};
  constexpr std::size_t campoEst = 4;
  const auto campi = Dividi(riga, "|");
  std::string nuova = "9|";
  for (std::size_t i = 1; i <= ultimoCampo; ++i) {
    const std::string_view campo = i < campi.size() ? campi[i] : std::string_view{};
    nuova += i == campoEst || campo.empty() ? std::string_view(predefiniti[i]) : campo;
    nuova += '|';
  }
  return nuova;
}

} // namespace

void MettiCoordinate(Generazione& g) {
  if (g.opzioni.Mantieni8) {
    g.rapporto.emplace_back("Mantiene Righe 8 del Libretto");
    for (std::size_t i = 2; i < g.vecchie.size(); ++i)
      if (GenereDi(g.vecchie[i]) == Genere::Coordinate) g.righe.emplace_back(g.vecchie[i]);
  } else {
    g.rapporto.emplace_back("Carica Righe 8 dal Disegno");
    if (!g.opzioni.PfDaEstratto) MettiFiduciali(g);
  }
  for (const auto& [marca, riga] : RighePerMarca)
    for (const PuntoDisegno& punto : g.tabelle.Punti())
      if (HaMarca(punto.Nota, marca)) g.righe.push_back(riga(punto));
}

void CompletaRigaNove(Generazione& g) {
  Estremi est;
  for (std::size_t i = 1; i < g.righe.size(); ++i)
    if (const auto questo = AllaRiga([i] { return i + 1; }, g.righe[i], [&] { return EstDi(g.righe[i]); }))
      est.Vedi(*questo);
  if (est.Vuoti()) return;
  g.righe[1] = RigaNoveCon(g.righe[1], est.Media(), g.ambiente.sessione.VersionePregeo);
}

} // namespace lirmeto
