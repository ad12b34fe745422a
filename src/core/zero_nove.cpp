#include <core/zero_nove.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/campi_riga.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <core/salvataggio.h>

#include <algorithm>
#include <array>

namespace lirmeto {

// How rows 0 and 9 are taken, where it could be done in more than one way:
//
//   a first or second row of another kind, or blank   RigaZero and RigaNove keep what they had
//   a Libretto that is still short once it has its    derived as it is, not rebuilt again
//   default rows
//   a code that no table holds                        the names stay as they were
//   Cognome and Nome                                  stay as PREGEO.INI or the surveyor's file gave them
//   a date of fewer than eight characters             first four, century, last two

namespace {

constexpr std::size_t LunghezzaMinimaLibretto = 10;
constexpr std::string_view BarreInFondo = "|||||||||||||"; // so that the fields a short row lacks read as empty

using Campi = std::vector<std::string_view>;

std::string_view UltimiDue(std::string_view testo) {
  return testo.substr(testo.size() - std::min<std::size_t>(2, testo.size()));
}

void PrendiRigheZeroNove(Sessione& sessione) {
  const std::string_view libretto = sessione.Libretto;
  const std::size_t fine = libretto.find(FineRiga);
  if (fine == std::string_view::npos) return;
  const std::string_view prima = libretto.substr(0, fine);
  if (!Taglia(prima).empty() && GenereDi(prima) == Genere::Intestazione) sessione.RigaZero = prima;
  const std::string_view resto = libretto.substr(fine + FineRiga.size());
  const std::size_t fineSeconda = resto.find(FineRiga);
  if (fineSeconda == std::string_view::npos) return;
  const std::string_view seconda = resto.substr(0, fineSeconda);
  if (GenereDi(seconda) == Genere::Chiusura) sessione.RigaNove = seconda;
}

void DecodificaZero(Sessione& sessione) {
  const std::string riga = sessione.RigaZero + std::string(BarreInFondo);
  const Campi campi = Dividi(riga, "|");
  sessione.DataLibretto = DataConSecolo(campi[1]);
  sessione.Protocollo = campi[2];
  sessione.CodiceComune = campi[3];
  sessione.Foglio = campi[4];
  sessione.Mappali = campi[5];
  sessione.Tecnico = campi[6];
  sessione.Qualifica = campi[7];
  sessione.Provincia = campi[8];
  const std::string& data = sessione.DataLibretto;
  sessione.ProtocolloPregeo = std::string(UltimiDue(data)) + sessione.Protocollo;
  sessione.AnnoLibretto = data.substr(data.size() - std::min<std::size_t>(4, data.size()));
}

void TrovaNomi(Sessione& sessione) {
  if (const Comune* comune = TrovaComune(sessione.Comuni, sessione.CodiceComune)) {
    sessione.NomeComune = comune->nome;
    sessione.SiglaProvincia = comune->provincia;
  }
  if (const CodiceENome* provincia = TrovaPerCodice(sessione.Province, sessione.SiglaProvincia))
    sessione.NomeProvincia = provincia->nome;
}

std::string ClasseDi(std::string_view tipologia) {
  constexpr std::array<std::string_view, 10> tipiMappale = {"TM", "08", "09", "10", "24", "25", "26", "28", "29", "30"};
  const bool mappale = std::find(tipiMappale.begin(), tipiMappale.end(), UltimiDue(tipologia)) != tipiMappale.end();
  return mappale ? "M" : "S";
}

void DecodificaNove(Sessione& sessione) {
  const std::string riga = sessione.RigaNove + std::string(BarreInFondo);
  const Campi campi = Dividi(riga, "|");
  sessione.QuotaMedia = campi[1];
  sessione.PrecisioneLineare = campi[2];
  sessione.PrecisioneAngolare = campi[3];
  sessione.EstMedio = campi[4];
  sessione.TipologiaRilievo = campi[6];
  sessione.TipologiaCorrente = sessione.TipologiaRilievo;
  sessione.Strumentazione = campi[7];
  sessione.ClasseAtto = ClasseDi(sessione.TipologiaRilievo);
}

std::string ComponiNomeFascicolo(const Sessione& sessione) {
  return sessione.AnnoLibretto + "_" + sessione.Cognome + " " + sessione.Nome + "_" + sessione.ClasseAtto + "_" +
         sessione.TipologiaRilievo + "_" + sessione.Protocollo + "_" + sessione.CodiceComune + "_" + sessione.Foglio +
         "_" + Sostituisci(sessione.Mappali, ",", "_");
}

void CaricaComuni(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.PuntoErrore = "CaricaComuni";
  if (!sessione.Comuni.empty()) {
    sessione.PuntoErrore = "CaricaComuni_" + TestoIntero(static_cast<long long>(sessione.Comuni.size()));
    return;
  }
  const std::string percorso = sessione.RadicePregeo + "\\pregeo\\arch\\comunt.dat";
  if (!ambiente.disco.Esiste(percorso)) {
    if (!sessione.AssenzaComuniDetta) ambiente.dialoghi.Messaggio(percorso + std::string(FineRiga) + "Non Trovato!");
    sessione.AssenzaComuniDetta = true;
    return;
  }
  sessione.PuntoErrore = "CaricaComuni_000";
  sessione.Comuni = LeggiComuni(CaricaFileBinario(ambiente, percorso));
  sessione.PuntoErrore = "CaricaComuni_Fine";
}

void CaricaProvince(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  if (sessione.Province.empty())
    sessione.Province = LeggiProvince(CaricaFileIntero(ambiente, sessione.RadicePregeo + "\\pregeo\\exe\\prosigle"));
}

} // namespace

std::string DataConSecolo(std::string_view data) {
  if (data.size() >= 8) return std::string(data);
  const std::string_view anno = UltimiDue(data);
  return std::string(data.substr(0, 4)) + (Valore(anno) < 80 ? "20" : "19") + std::string(anno);
}

void CaricaProvinceComuni(Ambiente& ambiente) {
  CaricaComuni(ambiente);
  CaricaProvince(ambiente);
}

void AssicuraRigheZeroNove(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  if (sessione.RigaZero.empty())
    sessione.RigaZero = "0|" + TestoData(ambiente.orologio.Oggi()) + std::string(CodaRigaZeroPredefinita);
  if (sessione.RigaNove.empty()) sessione.RigaNove = RigaNovePredefinita;
}

void DecoZeroNove(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.PuntoErrore = "DecoZeroNove";
  AssicuraRigheZeroNove(ambiente);
  CaricaProvinceComuni(ambiente);
  if (sessione.Libretto.size() < LunghezzaMinimaLibretto) {
    sessione.Libretto = sessione.RigaZero + std::string(FineRiga) + sessione.RigaNove + std::string(FineRiga);
    RiempiList1(ambiente);
    sessione.PuntoErrore = "Decozero_123";
  }
  PrendiRigheZeroNove(sessione);
  sessione.PuntoErrore = "DecoZeroNove_01";
  DecodificaZero(sessione);
  TrovaNomi(sessione);
  DecodificaNove(sessione);
  sessione.PuntoErrore = "DecoZeroNove_02";
  sessione.NomeFascicolo = ComponiNomeFascicolo(sessione);
}

void CambiaCampoNove(Ambiente& ambiente, std::size_t campo, std::string_view testo) {
  constexpr std::size_t posto = 1; // of row 9 in the list
  Sessione& sessione = ambiente.sessione;
  AssicuraZeroNoveInList1(ambiente);
  std::string riga(sessione.List1.Riga(posto));
  while (QuanteParti(riga, '|') < campo + 2) riga += '|'; // a short row lacks fields
  sessione.List1.Cambia(posto, ConCampo(riga, campo, testo));
  AggiornaLibrettoMisure(ambiente);
  DecoZeroNove(ambiente);
}

std::string RiordinoMappali(std::string_view mappali) {
  constexpr std::size_t colonneMappale = 10;
  std::vector<std::string> allineati;
  for (const auto mappale : Dividi(mappali, ",")) allineati.push_back(AllineaDestra(mappale, colonneMappale));
  std::sort(allineati.begin(), allineati.end());
  allineati.erase(std::unique(allineati.begin(), allineati.end()), allineati.end());
  std::vector<std::string_view> tagliati;
  tagliati.reserve(allineati.size());
  for (const auto& mappale : allineati) tagliati.push_back(Taglia(mappale));
  return Unisci(tagliati, ",");
}

} // namespace lirmeto
