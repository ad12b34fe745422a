#include <pregeo/pregeo_ini.h>

#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <core/tabelle.h>
#include <core/zero_nove.h>
#include <pregeo/pregeo_ini_scrittura.h>

#include <utility>

namespace lirmeto {

namespace {

constexpr std::string_view SezioneTecnico = "[DATI TECNICO]";
constexpr std::string_view SezioneProvincia = "[PROV_DI_COMP]";

// A line of the file with the one before it: sections matter only as the line
// just before a key.
struct Riga {
  std::string_view testo;
  std::string_view prima;

  [[nodiscard]] bool Ha(std::string_view chiave) const { return Contiene(testo, chiave); }
  // What stands between the first "=" and the next: a value with "=" inside
  // loses its tail.
  [[nodiscard]] std::string Valore() const { return std::string(Parte(testo, '=', 1)); }
  [[nodiscard]] std::string ValoreTagliato() const { return std::string(Taglia(Parte(testo, '=', 1))); }
};

// "nome=" fits "cognome=" too; a later nome= line gives the value.
void LeggiRiga(const Riga& riga, Sessione& sessione) {
  if (riga.Ha("numero=")) sessione.NumeroIscrizione = riga.ValoreTagliato();
  if (Contiene(Minuscolo(riga.testo), "codc=")) sessione.CodiceFiscale = riga.Valore();
  if (riga.Ha("cognome=")) sessione.Cognome = riga.ValoreTagliato();
  if (riga.Ha("nome=") && !Contiene(riga.prima, SezioneTecnico)) sessione.Nome = riga.ValoreTagliato();
  if (riga.Ha("qualifica=")) sessione.Qualifica = riga.ValoreTagliato();
  if (riga.Ha("provincia=")) {
    const bool competenza = Contiene(riga.prima, SezioneProvincia);
    (competenza ? sessione.SiglaProvincia : sessione.Provincia) = riga.ValoreTagliato();
  }
  if (riga.Ha("ultimoprot=")) sessione.ProtocolloPregeo = riga.ValoreTagliato();
  if (riga.Ha("FILE_DISTANZETAF")) sessione.MisurateAssociate = riga.ValoreTagliato();
}

// Drive at the end of a line that begins with the key: its last two characters, upper case. Two that are no drive leave
// it.
void LeggiUnita(std::string_view riga, std::string_view chiave, std::string& radice) {
  if (!riga.starts_with(chiave)) return;
  const std::string ultimi = Maiuscolo(riga.substr(riga.size() - 2));
  if (ultimi[0] >= 'A' && ultimi[0] <= 'Z' && ultimi[1] == ':') radice = ultimi;
}

void CaricaQualita(Ambiente& ambiente) {
  const std::string percorso = ambiente.sessione.RadicePregeo + "\\pregeo\\exe\\qualita.txt";
  if (ambiente.disco.Esiste(percorso))
    ambiente.sessione.TabellaQualita = LeggiQualita(CaricaFileIntero(ambiente, percorso));
}

void AvvisaPregeoAssente(Dialoghi& dialoghi) {
  const std::string fine(FineRiga);
  dialoghi.Messaggio("Informazione gratuita:" + fine + fine +
                         std::string("Pregeo non è installato correttamente nel PC."_w) + fine +
                         "    Trovato PREGEO.INI" + fine + "NON trovato Pregeo.EXE",
                     "Pregeo Assente", Gravita::Critico);
}

void ScriviRigheIni(Ambiente& ambiente) {
  const std::string percorso = PercorsoPregeoIni(ambiente.sessione);
  const std::string originale = ambiente.disco.Esiste(percorso) ? ambiente.disco.Leggi(percorso) : std::string{};
  ambiente.disco.Scrivi(percorso, TestoIni(ambiente.sessione.RighePregeoIni, originale));
}

} // namespace

void SistemaDatiPregeoIni(Sessione& sessione) {
  const auto& righe = sessione.RighePregeoIni;
  for (std::size_t i = 1; i < righe.size(); ++i) LeggiRiga({righe[i], righe[i - 1]}, sessione);
  sessione.Tecnico = sessione.Cognome + " " + sessione.Nome;
}

void LeggiPregeoIni(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.RadiceDati = sessione.RadicePregeo = "C:";
  const std::string percorso = PercorsoPregeoIni(sessione);
  if (!ambiente.disco.Esiste(percorso)) {
    ambiente.dialoghi.Messaggio("PREGEO.INI NON trovato - Verificare installazione Pregeo!", "Pregeo Non Installato");
    return;
  }
  const std::string testo = CaricaFileIntero(ambiente, percorso);
  sessione.RighePregeoIni = RigheIni(testo);
  const auto& righe = sessione.RighePregeoIni;
  if (RigheDi(testo).size() < 2) return;
  SistemaDatiPregeoIni(sessione);
  for (std::size_t i = 1; i < righe.size(); ++i) {
    LeggiUnita(righe[i], "DskAPPLexe", sessione.RadicePregeo);
    LeggiUnita(righe[i], "DskAPPLada", sessione.RadiceDati);
  }
  if (!ambiente.disco.Esiste(sessione.RadicePregeo + "\\pregeo\\exe\\Pregeo.EXE"))
    return AvvisaPregeoAssente(ambiente.dialoghi);
  sessione.VersionePregeo = "PREGEO 10.00-G,APAG 2.12";
  sessione.Arch2Db = sessione.RadicePregeo + "\\pregeo\\arch\\arch2.db";
  CaricaQualita(ambiente);
}

void ScriviDatiPregeoIni(Sessione& sessione) {
  sessione.RighePregeoIni = RigheIniConValori(std::move(sessione.RighePregeoIni), sessione);
}

void SalvaPregeoIni(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  if (sessione.RighePregeoIni.empty()) return; // no installation was found: nothing to write back
  ScriviDatiPregeoIni(sessione);
  ScriviRigheIni(ambiente);
}

bool SalvaMisurateInPregeoIni(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  bool trovata = false;
  for (std::string& riga : sessione.RighePregeoIni) {
    if (!Contiene(Maiuscolo(riga), "FILE_DISTANZETAF")) continue;
    riga = RigaIniConValore(riga, sessione.MisurateAssociate);
    trovata = true;
  }
  if (trovata) ScriviRigheIni(ambiente);
  return trovata;
}

void AggiornaConfigurazionePregeo(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.PuntoErrore = "AggiornaConfigurazionePregeo";
  CaricaProvinceComuni(ambiente);
  DecoZeroNove(ambiente);
  if (sessione.Nome.empty()) {
    // One word of surname; all that follows is the name.
    sessione.Cognome = Parte(sessione.Tecnico, ' ', 0);
    sessione.Nome = Taglia(std::string_view(sessione.Tecnico).substr(sessione.Cognome.size()));
  }
  for (const Comune& comune : sessione.Comuni) // the last row of the code stands
    if (comune.codice == sessione.CodiceComune) sessione.SiglaProvincia = comune.provincia;
  SalvaPregeoIni(ambiente);
}

} // namespace lirmeto
