#include <fiduciali/importa_fiduciali.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/salvataggio.h>
#include <fiduciali/misurate.h>
#include <fiduciali/righe_pf.h>
#include <fiduciali/taf.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   a name in small letters       counts, and is kept in capitals
//   blanks round a name           are no part of its length
//   several records of a name     the first of the TAF counts
//   "<quota>" in small letters    is the mark as well

namespace {

constexpr std::size_t LungoNome = 14; // "PF01/0010/G693"

bool Riga8(std::string_view riga) {
  return GenereDi(riga) == Genere::Coordinate;
}

// The rows of the list, with these in place of all rows 8 behind the first row.
ListaRighe ConRighe8(ListaRighe righe, const std::vector<std::string>& nuove) {
  const auto inizio = righe.begin() + (righe.empty() ? 0 : 1);
  const auto posto = static_cast<std::size_t>(std::find_if(inizio, righe.end(), Riga8) - righe.begin());
  bool prima = true; // the first row stays, whatever it is
  righe.TogliSe([&](std::string_view riga) { return !std::exchange(prima, false) && Riga8(riga); });
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
    TrovaInTaf();
  });
}

void FormImportaFiduciali::TrovaNelLibretto() {
  List1.clear();
  for (const auto riga : ambiente_.sessione.List1.Righe()) {
    if (!Riga8(riga)) continue;
    const std::string nome = Maiuscolo(Taglia(Parte(riga, '|', 1)));
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

void FormImportaFiduciali::SostituisciRighe8() {
  ambiente_.sessione.PuntoErrore = "FormImportaFiduciali";
  Chiusa = Intrappola(ambiente_, [this] {
    ElencoRighe& elenco = ambiente_.sessione.List1;
    elenco.Riempi(ConRighe8(elenco.Righe(), List2));
    AggiornaLibrettoMisure(ambiente_);
    ambiente_.sessione.EsitoForm = EsitoConfermato;
  });
}

void FormImportaFiduciali::Importa() {
  (void)Intrappola(ambiente_, [this] { ImportaTafMisurate(ambiente_); });
  CaricaPieffe8();
}

} // namespace lirmeto
