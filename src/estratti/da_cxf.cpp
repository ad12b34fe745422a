#include <estratti/da_cxf.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <estratti/campi.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <optional>
#include <unordered_map>
#include <utility>

namespace lirmeto {

// How a sheet is made into an extract, where it could be done in more than one way:
//
//   a parcel whose surface is not known    has 20 square metres, whatever the parcel before it had
//   the count of an island                 stands right behind the identifier before it, with no bar: the vertices
//                                          are then of one ring, and the hole is left open to it
//   a sheet that is not called .CXF        gives the extract the same name with .EMP behind it
//   a raster that lies there already       stays

namespace {

// The header of every sheet, whichever it is: the form that made it asks for the true one afterwards.
constexpr std::string_view TestataFoglio =
    "0|12032018|PD0012345/2018|G224|00042|101,102,103|PD|PUB|ROSMRA|10000000000017|\r\n";
constexpr std::string_view CodaFoglio = "6|DISTORSIONE|1.5|\r\n6|SCALAORIGINARIA|2000|\r\n";
// A scan of 300 dots an inch at 1:2000, not turned.
constexpr std::string_view CodaInquadramento = "|0.1693333333|0|0|0|\r\n";
constexpr std::string_view SuperficieIgnota = "20";

struct ImprontaVertice {
  std::size_t operator()(const VerticeCxf& vertice) const {
    constexpr std::size_t dispari = 0x9E3779B97F4A7C15U;
    return std::hash<std::string_view>{}(vertice.est) * dispari + std::hash<std::string_view>{}(vertice.nord);
  }
};

// The vertices by their text: each once, in the order of the texts "|east|north|", and the place in that order of each
// vertex of the sheet.
class VerticiOrdinati {
public:
  explicit VerticiOrdinati(const std::vector<VerticeCxf>& vertici) {
    const std::vector<std::uint32_t> ordine = Ordina(Raccogli(vertici));
    for (std::uint32_t& posto : posti_) posto = ordine[posto];
  }

  std::vector<VerticeCxf> Diversi;

  [[nodiscard]] std::size_t Posto(std::size_t vertice) const { return posti_[vertice]; }

private:
  // Each vertex once, in the order of the sheet; posti_ says which one each vertex is.
  std::vector<VerticeCxf> Raccogli(const std::vector<VerticeCxf>& vertici) {
    std::vector<VerticeCxf> raccolti;
    std::unordered_map<VerticeCxf, std::uint32_t, ImprontaVertice> primi;
    posti_.reserve(vertici.size());
    for (const VerticeCxf& vertice : vertici) {
      const auto [primo, nuovo] = primi.try_emplace(vertice, static_cast<std::uint32_t>(raccolti.size()));
      if (nuovo) raccolti.push_back(vertice);
      posti_.push_back(primo->second);
    }
    return raccolti;
  }

  // Their order into Diversi; the answer is the place that each has in it.
  std::vector<std::uint32_t> Ordina(const std::vector<VerticeCxf>& raccolti) {
    std::vector<std::pair<std::string, std::uint32_t>> testi;
    testi.reserve(raccolti.size());
    for (const auto& [est, nord] : raccolti)
      testi.emplace_back(std::string(est).append("|").append(nord).append("|"),
                         static_cast<std::uint32_t>(testi.size()));
    std::sort(testi.begin(), testi.end());
    std::vector<std::uint32_t> ordine(raccolti.size());
    Diversi.reserve(raccolti.size());
    for (const auto& [testo, quale] : testi) {
      ordine[quale] = static_cast<std::uint32_t>(Diversi.size());
      Diversi.push_back(raccolti[quale]);
    }
    return ordine;
  }

  std::vector<std::uint32_t> posti_;
};

void AggiungiIdentificativo(std::string& testo, std::size_t posto) {
  testo += TestoIntero(static_cast<long long>(posto) + 1);
  testo += '%';
}

// What stands behind "NC|" in a ring's first row.
std::string Chiusura(std::string_view nome, SuperficiSup& superfici) {
  std::string_view superficie = superfici.CaricaSuperficiParticelle(nome).value_or(SuperficieIgnota);
  if (Contiene(superficie, "|"))
    throw Errore(errore::TipoNonCorrispondente, "Superficie non valida della particella " + std::string(nome));
  if (Valore(superficie) == 0) superficie = SuperficieIgnota;
  std::string coda;
  for (const std::string_view campo : {nome, nome, superficie}) coda.append(campo).append("|");
  return coda;
}

std::string RigheBordo(const BordoCxf& bordo, const VerticiOrdinati& vertici, std::size_t primo,
                       SuperficiSup& superfici) {
  std::string riga = "7|";
  for (const std::size_t quanti : bordo.anelli) {
    riga += TestoIntero(static_cast<long long>(quanti));
    for (std::size_t i = 0; i < quanti; ++i) {
      riga += '|';
      AggiungiIdentificativo(riga, vertici.Posto(primo++));
    }
  }
  return SplittaSette(riga, Chiusura(bordo.codice, superfici));
}

std::string PercorsoAccanto(std::string_view foglio, std::string_view estensione) {
  constexpr std::string_view cxf = ".CXF";
  if (FinisceConSenzaCaso(foglio, cxf)) foglio.remove_suffix(cxf.size());
  return std::string(foglio) + std::string(estensione);
}

// The lines of the .SUP beside a sheet; empty, and told, when there is none.
std::string TestoSuperfici(Ambiente& ambiente, std::string_view foglio) {
  const std::string percorso = PercorsoAccanto(foglio, ".SUP");
  if (ambiente.disco.Esiste(percorso)) return ConFineRiga(ambiente.disco.Leggi(percorso));
  std::string avviso = "FILE " + percorso + "\r\n\r\nNON TROVATO!\r\n\r\n";
  avviso += " Sarà impossibile attribuire le superfici alle particelle!"_w;
  ambiente.dialoghi.Messaggio(avviso);
  return {};
}

void Converti(Ambiente& ambiente) {
  const std::string scelto = ambiente.dialoghi.ScegliFileDaAprire(
      {"", ambiente.sessione.RadicePregeo + "\\pregeo\\estratti\\", "", "File CXF mappa (*.CXF *.cxf)"});
  const std::string foglio = PercorsoInCapitali(ambiente.disco, scelto);
  const std::string estratto = PercorsoAccanto(foglio, ".EMP");
  const std::string raster = PercorsoAccanto(foglio, ".PNG");
  const std::string testo = EmpDaCxf(ambiente, foglio);
  ambiente.disco.Scrivi(estratto, testo);
  if (!ambiente.disco.Esiste(raster)) ambiente.disco.Scrivi(raster, "filevuoto");
  ambiente.dialoghi.Messaggio("Creato!\r\n" + estratto);
}

} // namespace

std::string SplittaSette(std::string_view riga, std::string_view coda) {
  constexpr std::size_t perRiga = 10;
  const Campi campi(riga);
  std::string righe = "7|" + std::string(campi[1]);
  std::string_view chiusura = coda; // behind the first row alone
  std::size_t presi = 0;
  for (std::size_t i = 2; i < campi.Quanti(); ++i) {
    if (presi == perRiga) {
      righe.append("|NC|").append(chiusura).append(FineRiga).append("7|0");
      chiusura = {};
      presi = 0;
    }
    righe.append("|").append(campi[i]);
    ++presi;
  }
  return righe.append("|NC|").append(chiusura);
}

std::string EmpDaFoglio(const FoglioCxf& foglio, SuperficiSup& superfici) {
  const VerticiOrdinati vertici(foglio.vertici);
  std::string testo;
  testo.reserve(64 * vertici.Diversi.size() + 8 * foglio.vertici.size() + 64 * foglio.bordi.size());
  testo += TestataFoglio;
  for (std::size_t i = 0; i < vertici.Diversi.size(); ++i) {
    testo += "8|";
    AggiungiIdentificativo(testo, i);
    testo.append("|").append(vertici.Diversi[i].nord).append("|").append(vertici.Diversi[i].est).append("|\r\n");
  }
  std::size_t primo = 0;
  for (const BordoCxf& bordo : foglio.bordi) {
    testo.append(RigheBordo(bordo, vertici, primo, superfici)).append(FineRiga);
    primo = std::accumulate(bordo.anelli.begin(), bordo.anelli.end(), primo);
  }
  const VerticeCxf& ultimo = vertici.Diversi.back();
  testo.append(CodaFoglio).append("6|INQUADRAMENTO|").append(ultimo.est).append("|").append(ultimo.nord);
  return testo.append(CodaInquadramento);
}

std::string EmpDaCxf(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "dacxfadxf1";
  const std::string testo = ConFineRiga(ambiente.disco.Leggi(percorso));
  const std::string sup = TestoSuperfici(ambiente, percorso);
  ambiente.sessione.PuntoErrore = "dacxfadxf2";
  const FoglioCxf foglio = LeggiCxf(testo);
  SuperficiSup superfici(sup);
  ambiente.sessione.PuntoErrore = "dacxfadxf3";
  return EmpDaFoglio(foglio, superfici);
}

void DaCXFaEMP(Ambiente& ambiente) {
  ambiente.sessione.PuntoErrore = "dacxfadxf1";
  (void)Intrappola(ambiente, [&] { Converti(ambiente); });
}

} // namespace lirmeto
