#include <fiduciali/importa_fiduciali.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/salvataggio.h>
#include <estratti/kr_estratto.h>
#include <fiduciali/misurate.h>
#include <fiduciali/righe_pf.h>
#include <fiduciali/taf.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   a name in small letters       counts, and is kept in capitals
//   blanks round a name           are no part of its length
//   several records of a name     the first of the TAF counts
//   "<quota>" in small letters    is the mark as well
//   rows 8 that the source lacks  stay where they are, and are named: they may be all that is known of a point
//   height rows of a point        go with it when the TAF has it, which tells heights; an extract leaves them

namespace {

constexpr std::size_t LungoNome = 14; // "PF01/0010/G693"

bool Riga8(std::string_view riga) {
  return GenereDi(riga) == Genere::Coordinate;
}

std::string NomeDi(std::string_view riga) {
  return Maiuscolo(Taglia(Parte(riga, '|', 1)));
}

// "8|PF01/1230/G224|12.340|04|PIANO STRADALE|": a code of two figures where a place has its east.
bool RigaQuota(std::string_view riga) {
  constexpr std::size_t lungoCodice = 2;
  return Parte(riga, '|', 3).size() == lungoCodice;
}

// The rows of the list, with the new ones where the first row 8 behind the first row stood, and without those that give
// way to them.
ListaRighe ConRighe8(ListaRighe righe, const std::vector<std::string>& nuove,
                     const std::function<bool(std::string_view)>& via) {
  const auto inizio = righe.begin() + (righe.empty() ? 0 : 1);
  const auto posto = static_cast<std::size_t>(std::find_if(inizio, righe.end(), Riga8) - righe.begin());
  bool prima = true; // the first row stays, whatever it is
  righe.TogliSe([&](std::string_view riga) { return !std::exchange(prima, false) && via(riga); });
  const auto testo = std::make_shared<const std::string>(RigheUnite(nuove));
  righe.CambiaTratto(posto, 0, RigheDi(*testo));
  righe.Tieni(testo);
  return righe;
}

} // namespace

void FormImportaFiduciali::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  CaricaPieffe8();
}

void FormImportaFiduciali::CambiaRigheQuota(bool si) {
  AggiungiRigheQuota = si;
  CaricaPieffe8();
}

void FormImportaFiduciali::CaricaPieffe8() {
  ambiente_.sessione.PuntoErrore = "CaricaPieffe8";
  (void)Intrappola(ambiente_, [this] {
    TrovaNelLibretto();
    DaEstratto() ? TrovaNellEstratto() : TrovaInTaf();
  });
}

void FormImportaFiduciali::TrovaNelLibretto() {
  List1.clear();
  for (const auto riga : ambiente_.sessione.List1.Righe()) {
    if (!Riga8(riga)) continue;
    const std::string nome = NomeDi(riga);
    if (nome.starts_with("PF") && nome.size() == LungoNome) List1.push_back(nome);
  }
  std::sort(List1.begin(), List1.end());
  List1.erase(std::unique(List1.begin(), List1.end()), List1.end());
}

void FormImportaFiduciali::TrovaInTaf() {
  List2.clear();
  PuntiInTaf = 0;
  ArchivioTaf archivio(ambiente_);
  for (const std::string& nome : List1) {
    const auto riga = archivio.Riga(nome);
    if (riga.empty()) continue;
    RighePF righe = RighePFImportate(DecodificaRigaTAF(riga));
    List2.push_back(std::move(righe.posto));
    if (AggiungiRigheQuota) List2.push_back(std::move(righe.quota));
    ++PuntiInTaf;
  }
}

void FormImportaFiduciali::TrovaNellEstratto() {
  List2.clear();
  PuntiInTaf = 0;
  const Sessione& sessione = ambiente_.sessione;
  const std::string testo = CaricaFileIntero(ambiente_, PercorsoEstratto(sessione, sessione.EstrattoAssociato));
  const auto code = CodeNelLibretto();
  Nomi nomi;
  for (const auto riga : RigheDi(testo)) {
    if (!Riga8(riga)) continue;
    const std::string nome = NomeDi(riga);
    if (!nome.starts_with("PF") || !nomi.insert(nome).second) continue;
    const auto coda = code.find(nome);
    const auto metri = [&riga](std::size_t campo) { return Formatta(Valore(Parte(riga, '|', campo)), "0.000"); };
    List2.push_back("8|" + nome + "|" + metri(2) + "|" + metri(3) + "|" +
                    (coda == code.end() ? "NOTE:|" : coda->second));
    if (std::binary_search(List1.begin(), List1.end(), nome)) ++PuntiInTaf;
  }
}

// Reliability and description of each point that the libretto says some of, as the row of its place has them.
std::unordered_map<std::string, std::string> FormImportaFiduciali::CodeNelLibretto() const {
  constexpr std::size_t primo = 4;
  std::unordered_map<std::string, std::string> code;
  for (const auto riga : ambiente_.sessione.List1.Righe()) {
    if (!Riga8(riga) || RigaQuota(riga)) continue;
    std::string coda;
    for (std::size_t i = primo; !Parte(riga, '|', i).empty(); ++i) coda.append(Parte(riga, '|', i)).append("|");
    if (!coda.empty()) code.try_emplace(NomeDi(riga), std::move(coda));
  }
  return code;
}

// Whether a row gives way to the new ones, whose names are `nuovi`.
bool FormImportaFiduciali::DaSostituire(std::string_view riga, const Nomi& nuovi) const {
  return Riga8(riga) && !(DaEstratto() && RigaQuota(riga)) && nuovi.contains(NomeDi(riga));
}

void FormImportaFiduciali::NominaMantenute(const ListaRighe& righe, const Nomi& nuovi) const {
  constexpr std::size_t massimiNomi = 20;
  std::vector<std::string> nomi;
  for (std::size_t i = 1; i < righe.size(); ++i)
    if (Riga8(righe[i]) && !DaSostituire(righe[i], nuovi)) nomi.push_back(NomeDi(righe[i]));
  nomi.erase(std::unique(nomi.begin(), nomi.end()), nomi.end());
  if (nomi.empty()) return;
  const std::size_t nominati = std::min(nomi.size(), massimiNomi);
  constexpr std::string_view perche = "Righe 8 mantenute perché assenti in TAF:\r\n"_w;
  std::string testo(perche);
  testo += Unisci({nomi.begin(), nomi.begin() + static_cast<std::ptrdiff_t>(nominati)}, ", ");
  if (nominati < nomi.size()) testo += " e altre " + TestoIntero(static_cast<long long>(nomi.size() - nominati));
  ambiente_.dialoghi.Messaggio(testo, "Importa Fiduciali da TAF");
}

void FormImportaFiduciali::SostituisciRighe8() {
  ambiente_.sessione.PuntoErrore = "FormImportaFiduciali";
  Chiusa = Intrappola(ambiente_, [this] {
    ElencoRighe& elenco = ambiente_.sessione.List1;
    Nomi nuovi;
    for (const std::string& riga : List2) nuovi.insert(NomeDi(riga));
    if (!DaEstratto()) NominaMantenute(elenco.Righe(), nuovi);
    elenco.Riempi(ConRighe8(elenco.Righe(), List2, [&](std::string_view riga) { return DaSostituire(riga, nuovi); }));
    AggiornaLibrettoMisure(ambiente_);
    ambiente_.sessione.EsitoForm = EsitoConfermato;
  });
}

void FormImportaFiduciali::Importa() {
  (void)Intrappola(ambiente_, [this] { ImportaTafMisurate(ambiente_); });
  CaricaPieffe8();
}

} // namespace lirmeto
