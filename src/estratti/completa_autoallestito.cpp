#include <estratti/completa_autoallestito.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/tabelle.h>
#include <estratti/campi.h>
#include <estratti/dati_estratto.h>
#include <estratti/file_estratto.h>
#include <estratti/kr_estratto.h>
#include <supporto/comuni8.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace lirmeto {

// How an extract is completed, where it could be done in more than one way:
//
//   a row 0 that names no parcels     "0" or nothing, as in one just made auto-assembled: its parcels are its base rings
//   a row with too few positions      gets the empty ones that it lacks
//   a bar typed into a box            becomes a blank
//   the comune of the libretto        stays as it was when one is chosen here

namespace {

constexpr std::string_view Inizio = "6|PARTICELLA|";
constexpr std::size_t CampiParticella = 11;
constexpr std::size_t CampiRigaZero = 7;
constexpr std::string_view TipologiaPromiscua = "22";

// The positions of a row, as many at least.
std::vector<std::string> Posizioni(std::string_view riga, std::size_t almeno) {
  std::vector<std::string> campi;
  for (const auto campo : Dividi(riga, "|")) campi.emplace_back(campo);
  if (campi.size() < almeno) campi.resize(almeno);
  return campi;
}

std::string ConBarre(const std::vector<std::string>& campi) {
  return Unisci({campi.begin(), campi.end()}, "|");
}

std::string UltimiCinque(const std::string& testo) {
  return testo.substr(testo.size() - std::min<std::size_t>(testo.size(), 5));
}

} // namespace

void CompletaAutoallestito::Prova(const std::function<void()>& comando) {
  ambiente_.sessione.PuntoErrore = "CompletaAutoallestito";
  (void)Intrappola(ambiente_, comando);
}

void CompletaAutoallestito::AlCaricamento() {
  Titolo = "Completa Autoallestito - " + std::string(Gambo(nome_));
  Prova([&] {
    CaricaEstratto();
    ElencaParticelle();
    if (!List1.empty()) Seleziona(0);
  });
}

void CompletaAutoallestito::CaricaEstratto() {
  const std::string testo = CaricaFileIntero(ambiente_, PercorsoEstratto(ambiente_.sessione, nome_));
  List2.clear();
  for (const auto riga : RigheDi(testo)) List2.emplace_back(riga);
  Label2 = List2.empty() ? std::string{} : List2.front();
  const auto zero = Posizioni(Label2, CampiRigaZero);
  comune_ = zero[3];
  Foglio = zero[4];
  ambiente_.sessione.EstrattoParticelle = zero[5];
  provincia_ = zero[6];
  MostraComune();
}

void CompletaAutoallestito::ElencaParticelle() {
  std::string& particelle = ambiente_.sessione.EstrattoParticelle;
  if (particelle.empty() || particelle == "0") {
    const std::string provincia = ambiente_.sessione.Provincia; // of the register, not the extract's
    const auto dati = List2.empty() ? std::nullopt : CopiaIDatiDellEstratto(ambiente_, nome_);
    ambiente_.sessione.Provincia = provincia;
    if (dati) particelle = dati->particelle;
  }
  List1.clear();
  for (const auto nome : Dividi(particelle, ",")) {
    const std::size_t riga = RigaDellaParticella(nome);
    List1.push_back(riga < List2.size() ? List2[riga] : std::string(Inizio).append(nome).append("||||||||"));
  }
}

// The place of the parcel's row in the file; behind the last when it has none.
std::size_t CompletaAutoallestito::RigaDellaParticella(std::string_view nome) const {
  const std::string inizio = std::string(Inizio).append(nome).append("|");
  const auto trovata =
      std::find_if(List2.begin(), List2.end(), [&inizio](const std::string& riga) { return riga.starts_with(inizio); });
  return static_cast<std::size_t>(trovata - List2.begin());
}

void CompletaAutoallestito::MostraComune() {
  const Comune* comune = TrovaComune(ambiente_.sessione.Comuni, comune_);
  EtichettaComune = comune_ + " - " + (comune == nullptr ? std::string{} : comune->nome);
}

bool CompletaAutoallestito::Visibile(std::size_t qualita) const {
  const std::string& tipologia = ambiente_.sessione.TipologiaCorrente;
  constexpr std::size_t enteUrbano = 1;
  constexpr std::size_t daAccertare = 2;
  constexpr std::size_t rurale = 3;
  if (tipologia == "20" || tipologia == "21" || tipologia == TipologiaPromiscua) return qualita == rurale;
  return qualita != (tipologia == "01" || tipologia == "02" ? enteUrbano : daAccertare);
}

void CompletaAutoallestito::ScegliQualita(std::size_t qualita) {
  DescrizioneParticella = Qualita.at(qualita).descrizione;
  CodiceParticella = Qualita.at(qualita).codice;
}

void CompletaAutoallestito::Seleziona(std::size_t indice) {
  if (indice >= List1.size()) throw Errore(errore::IndiceFuoriIntervallo);
  Indice = static_cast<long>(indice);
  CaricaParticella();
}

void CompletaAutoallestito::CaricaParticella() {
  const auto campi = Posizioni(List1.at(static_cast<std::size_t>(Indice)), CampiParticella);
  QualitaParticella = campi[3];
  DescrizioneParticella = Taglia(campi[4]);
  Superficie = Taglia(campi[5]);
  CodiceParticella.clear();
}

void CompletaAutoallestito::RicalcolaParticella() {
  if (Indice < 0) return ambiente_.dialoghi.Messaggio("Selezionare una particella!");
  if (ambiente_.sessione.TipologiaCorrente == TipologiaPromiscua) {
    DescrizioneParticella = "FABB PROMIS";
    CodiceParticella = "278";
    QualitaParticella = "00";
  }
  constexpr std::size_t lunghezzaDescrizione = 12;
  std::string& riga = List1.at(static_cast<std::size_t>(Indice));
  auto campi = Posizioni(riga, CampiParticella);
  campi[3] = InUnCampo(QualitaParticella);
  campi[4] = RiempiECorta(InUnCampo(DescrizioneParticella), lunghezzaDescrizione);
  campi[5] = campi[6] = Formatta(Valore(Superficie), "#############0");
  campi[9] = "SN";
  riga = ConBarre(campi);
  const std::size_t posto = RigaDellaParticella(campi[2]);
  constexpr std::size_t terza = 2;
  if (posto < List2.size())
    List2[posto] = riga;
  else
    List2.insert(List2.begin() + static_cast<std::ptrdiff_t>(std::min(terza, List2.size())), riga);
}

void CompletaAutoallestito::LasciaFoglio() {
  Foglio = UltimiCinque("0000" + InUnCampo(Foglio));
}

void CompletaAutoallestito::ScegliComune() {
  Prova([&] {
    Sessione& sessione = ambiente_.sessione;
    const auto prima = std::tuple(sessione.CodiceComune, sessione.SiglaProvincia, sessione.NomeProvincia);
    KR_Comuni8 scelta(ambiente_);
    scelta.AlCaricamento();
    ambiente_.finestre.MostraModale(scelta);
    if (sessione.EsitoSelezione == EsitoConfermato) {
      comune_ = sessione.CodiceComune;
      provincia_ = sessione.SiglaProvincia;
    }
    std::tie(sessione.CodiceComune, sessione.SiglaProvincia, sessione.NomeProvincia) = prima;
    MostraComune();
  });
}

void CompletaAutoallestito::RicalcolaAutoAllestito() {
  Sessione& sessione = ambiente_.sessione;
  auto campi = Posizioni(Label2, CampiRigaZero);
  campi[2] = campi[6] = provincia_;
  campi[3] = comune_;
  campi[4] = UltimiCinque("000" + InUnCampo(Foglio));
  campi[5] = sessione.EstrattoParticelle;
  sessione.EstrattoFoglio = campi[4].substr(campi[4].size() - std::min<std::size_t>(campi[4].size(), 4));
  Label2 = ConBarre(campi);
  if (List2.empty()) List2.emplace_back();
  List2.front() = Label2;
}

void CompletaAutoallestito::Salva() {
  Prova([&] {
    std::string testo;
    for (const std::string& riga : List2) testo.append(riga).append(FineRiga);
    ambiente_.disco.Scrivi(PercorsoEstratto(ambiente_.sessione, std::string(Gambo(nome_)) + ".EMP"), testo);
  });
}

} // namespace lirmeto
