#include <proposte/archivio_particelle.h>

#include <base/avanzamento.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/tabelle.h>
#include <estratti/campi.h>
#include <estratti/kr_estratto.h>
#include <proposte/file_particella.h>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace lirmeto {

namespace {

constexpr std::string_view EstensioneMaiuscola = ".MAP";
constexpr std::string_view EstensioneMista = ".Map";

// Each name once, where it came first, with what came last.
class Raccolta {
public:
  void Metti(std::string nome, std::string riga) {
    const auto [posto, nuovo] = posti_.try_emplace(Maiuscolo(nome), particelle_.size());
    if (nuovo) particelle_.push_back({std::move(nome), {}});
    particelle_[posto->second].riga = std::move(riga);
  }

  [[nodiscard]] std::vector<FileParticella> Prendi() { return std::move(particelle_); }

private:
  std::vector<FileParticella> particelle_;
  std::unordered_map<std::string, std::size_t> posti_;
};

// The rows of the split sections, their count rows too.
std::vector<std::string_view> RigheDiFrazionamento(std::string_view libretto) {
  std::vector<std::string_view> righe;
  bool dentro = false;
  for (const auto riga : Dividi(libretto, FineRiga)) {
    if (!RigaCensuaria(riga)) continue;
    if (ApreSezione(riga)) dentro = ApreSezione(riga, censuario::Frazionamento);
    if (dentro) righe.push_back(riga);
  }
  return righe;
}

std::string SenzaZeriDavanti(std::string_view area) {
  return std::string(area.substr(std::min(area.find_first_not_of('0'), area.size())));
}

// Whether a ring is a parcel's outer one, and no line.
bool Anello(std::string_view riga) {
  constexpr std::array<std::string_view, 4> esclusi = {"-|", "+|", "NP", "NT"};
  return GenereDi(riga) == Genere::Contorno && !riga.starts_with("7|0|") &&
         std::ranges::none_of(esclusi, [riga](std::string_view testo) { return Contiene(riga, testo); });
}

// Texts that the rows of an extract are sorted into.
struct TestiEstratto {
  std::string mappa; // rows 0, 7 and 8, and the owners
  std::string particelle;
  std::string altri;
  std::string inquadramento;
};

void AggiungiRiga(std::string& testo, std::string_view riga) {
  testo.append(riga).append(FineRiga);
}

std::string_view Chiave(std::string_view riga) {
  constexpr std::size_t campi = 3;
  std::size_t fine = 0;
  for (std::size_t i = 0; i < campi && fine != std::string_view::npos; ++i)
    fine = riga.find('|', fine + (i == 0 ? 0 : 1));
  return riga.substr(0, fine);
}

bool Altra(std::string_view riga) {
  constexpr std::array<std::string_view, 4> tenute = {"6|DISTANZA|", "6|PFCART|", "6|DISTORSIONE|",
                                                      "6|SCALAORIGINARIA|"};
  return std::ranges::any_of(tenute, [riga](std::string_view testo) { return Contiene(riga, testo); });
}

void Smista(TestiEstratto& testi, std::string_view riga, std::string_view chiaveNuova) {
  const Genere genere = GenereDi(riga);
  const bool diDitta = Contiene(riga, "6|DITTA|") && !riga.starts_with(InizioParticella);
  if (genere == Genere::Intestazione || genere == Genere::Contorno || genere == Genere::Coordinate || diDitta)
    AggiungiRiga(testi.mappa, riga);
  else if (Contiene(riga, InizioParticella)) {
    if (Chiave(riga) != chiaveNuova) AggiungiRiga(testi.particelle, riga);
  } else if (Altra(riga))
    AggiungiRiga(testi.altri, riga);
  else if (Contiene(riga, "6|INQUADRAMENTO|"))
    testi.inquadramento = riga;
}

} // namespace

std::vector<FileParticella> ParticelleDelLibretto(const Sessione& sessione) {
  Raccolta raccolta;
  std::string qualita;
  std::string classe;
  for (const auto riga : RigheDiFrazionamento(sessione.Libretto)) {
    if (riga.starts_with("6|O|")) {
      qualita = QualitaDaNome(sessione.TabellaQualita, Taglia(LeggiCampo(riga, censuario::Qualita)));
      classe = Taglia(LeggiCampo(riga, censuario::Classe));
    }
    if (!riga.starts_with("6|C|")) continue;
    const std::string_view nome = Taglia(LeggiCampo(riga, censuario::Temporaneo));
    const std::string area = SenzaZeriDavanti(LeggiCampo(riga, censuario::Area));
    raccolta.Metti(NomeFileParticella(sessione.CodiceComune, "0" + sessione.Foglio, nome, EstensioneMaiuscola),
                   RigaParticellaNuova(nome, ClasseInDueCifre(classe), qualita, area));
  }
  return raccolta.Prendi();
}

std::vector<FileParticella> ParticelleDellEstratto(const Sessione& sessione, std::string_view testo) {
  Raccolta raccolta;
  const auto righe = RigheDi(testo);
  const bool censite =
      std::ranges::any_of(righe, [](std::string_view riga) { return Contiene(riga, InizioParticella); });
  for (const auto riga : righe) {
    if (censite && Contiene(riga, InizioParticella))
      raccolta.Metti(NomeFileParticella(Campo(righe[0], 3), Campo(righe[0], 4), Campo(riga, 2), EstensioneMista),
                     std::string(riga));
    if (!censite && Anello(riga))
      raccolta.Metti(
          NomeFileParticella(sessione.CodiceComune, "0" + sessione.Foglio, CampoDaUltimo(riga, 2), EstensioneMista),
          RigaParticellaNuova(CampoDaUltimo(riga, 2), "  ", "", CampoDaUltimo(riga, 1)));
  }
  return raccolta.Prendi();
}

std::string EstrattoConParticella(std::string_view testo, const std::string& nuova) {
  TestiEstratto testi;
  for (const auto riga : RigheDi(testo)) Smista(testi, riga, Chiave(nuova));
  if (!Contiene(testi.particelle, nuova)) AggiungiRiga(testi.particelle, nuova);
  std::string esito = testi.mappa + testi.particelle + testi.altri;
  if (!testi.inquadramento.empty()) AggiungiRiga(esito, testi.inquadramento);
  return esito;
}

void ArchiviaParticelle(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.PuntoErrore = "ArchiviaParticelle";
  KR_Estratto estratto;
  if (sessione.EstrattoAssociato.empty() || !EsplodiEstratto(ambiente, estratto, sessione.EstrattoAssociato))
    return ambiente.dialoghi.Messaggio("Estratto non trovato!");
  Raccolta raccolta;
  for (const auto riga : estratto.PARTICELLA)
    raccolta.Metti(
        NomeFileParticella(sessione.EstrattoComune, sessione.EstrattoFoglio, Campo(riga, 2), EstensioneMista),
        std::string(riga));
  ScriviParticelle(ambiente, raccolta.Prendi());
}

void ScriviParticelle(Ambiente& ambiente, const std::vector<FileParticella>& particelle) {
  Avanzamento avanzamento(ambiente.dialoghi, "Archivio Particelle", particelle.size());
  std::size_t fatte = 0;
  for (const auto& [nome, riga] : particelle) {
    avanzamento.Fatto(fatte++);
    ScriviFileParticella(ambiente, nome, riga);
  }
}

} // namespace lirmeto
