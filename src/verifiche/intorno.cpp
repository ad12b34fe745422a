#include <verifiche/intorno.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <estratti/kr_estratto.h>
#include <fiduciali/misurate.h>
#include <fiduciali/quota_media.h>
#include <fiduciali/taf.h>

#include <algorithm>
#include <map>

namespace lirmeto {

namespace {

// The text of a file, each line with CR LF; none where there is no such file or it cannot be read.
std::optional<std::string> TestoDi(const Ambiente& ambiente, std::string_view percorso) {
  try {
    if (percorso.empty() || !ambiente.disco.Esiste(percorso)) return std::nullopt;
    return ConFineRiga(ambiente.disco.Leggi(percorso));
  } catch (const Errore&) {
    return std::nullopt;
  }
}

void LeggiTaf(const Ambiente& ambiente, const std::vector<std::string>& fiduciali, Intorno& intorno) {
  std::map<std::string, std::optional<std::string>> archivi; // by comune
  for (const std::string& nome : fiduciali) {
    const std::string comune(ComuneDelPunto(nome));
    if (comune.empty()) continue;
    const auto [posto, nuovo] = archivi.try_emplace(comune);
    if (nuovo) posto->second = TestoDi(ambiente, PercorsoTaf(ambiente.sessione, comune));
    if (!posto->second) intorno.senzaTaf.insert(comune);
  }
  for (const auto& [comune, testo] : archivi) {
    if (!testo) continue;
    for (const auto riga : RigheDi(*testo)) {
      const RecordTaf record = DecodificaRigaTAF(riga);
      if (std::binary_search(fiduciali.begin(), fiduciali.end(), record.nome))
        intorno.taf.try_emplace(record.nome, PuntoPiano{Misura(record.est), Misura(record.nord)});
    }
  }
}

// The archive of the province that the comune of the first point lies in.
std::optional<std::string> TestoMisurate(Ambiente& ambiente, const std::vector<std::string>& fiduciali) {
  try {
    if (fiduciali.empty()) return std::nullopt;
    const std::string nome = TrovaArchivioMisurate(ambiente, ComuneDelPunto(fiduciali.front()));
    if (nome.find('.') == std::string::npos) return std::nullopt; // the province alone: it has none
    return TestoDi(ambiente, CartellaArchivi(ambiente.sessione) + nome);
  } catch (const Errore&) {
    return std::nullopt;
  }
}

void LeggiMisurate(Ambiente& ambiente, const std::vector<std::string>& fiduciali, Intorno& intorno) {
  constexpr std::size_t finePrimo = 14;
  constexpr std::size_t inizioSecondo = 18; // behind the first name, a blank, "- "
  constexpr std::size_t fineNomi = 31;
  constexpr std::size_t inizioDistanza = 33; // from 0
  const auto testo = TestoMisurate(ambiente, fiduciali);
  intorno.archivioMisurate = testo.has_value();
  if (!testo) return;
  struct Somma {
    double totale = 0;
    double quante = 0;
  };
  std::map<std::pair<std::string, std::string>, Somma> somme;
  for (const auto riga : RigheDi(*testo)) {
    const std::string_view a = Colonne(riga, 1, finePrimo);
    const std::string_view b = Colonne(riga, inizioSecondo, fineNomi);
    const bool nostri = std::binary_search(fiduciali.begin(), fiduciali.end(), a) &&
                        std::binary_search(fiduciali.begin(), fiduciali.end(), b);
    if (!nostri || riga.size() <= inizioDistanza) continue;
    Somma& somma = somme[std::minmax(std::string(a), std::string(b))];
    somma.totale += Misura(
        riga.substr(inizioDistanza, riga.find(' ', riga.find_first_not_of(' ', inizioDistanza)) - inizioDistanza));
    ++somma.quante;
  }
  for (const auto& [nomi, somma] : somme)
    if (somma.totale > 0) intorno.misurate.push_back({nomi.first, nomi.second, somma.totale / somma.quante});
}

void LeggiQuota(const Ambiente& ambiente, Intorno& intorno) {
  const auto testo = TestoDi(ambiente, PercorsoQuotaMedia(ambiente.sessione));
  if (!testo) return;
  if (const auto quota = QuotaMediaCon(*testo, ambiente.sessione.CodiceComune)) intorno.quotaComune = Misura(*quota);
}

void LeggiEstrattoAssociato(const Ambiente& ambiente, Intorno& intorno) {
  intorno.nomeEstratto = Taglia(ambiente.sessione.EstrattoAssociato);
  if (intorno.nomeEstratto.empty()) return;
  try {
    if (const auto testo = TestoDi(ambiente, PercorsoEstratto(ambiente.sessione, intorno.nomeEstratto)))
      intorno.estratto = LeggiEstratto(*testo);
  } catch (const Errore&) { // a name that is no file's: there is no such extract
    intorno.estratto.reset();
  }
}

} // namespace

Intorno LeggiIntorno(Ambiente& ambiente, const std::vector<std::string>& fiduciali) {
  const Sessione& sessione = ambiente.sessione;
  Intorno intorno;
  intorno.oggi = ambiente.orologio.Oggi();
  intorno.comuni = &sessione.Comuni;
  intorno.province = &sessione.Province;
  intorno.qualita = &sessione.TabellaQualita;
  LeggiQuota(ambiente, intorno);
  LeggiTaf(ambiente, fiduciali, intorno);
  LeggiMisurate(ambiente, fiduciali, intorno);
  LeggiEstrattoAssociato(ambiente, intorno);
  return intorno;
}

} // namespace lirmeto
