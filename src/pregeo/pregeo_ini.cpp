#include <pregeo/pregeo_ini.h>

#include <base/testo.h>
#include <core/riga.h>
#include <core/servizi.h>
#include <core/tabelle.h>

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

std::string SiglaDaNome(const Sessione& sessione, std::string_view nome) {
  std::string sigla;
  for (const auto& provincia : sessione.Province)
    if (sigla.empty() && provincia.nome == nome) sigla = provincia.codice;
  return sigla;
}

// The line with its part 1 replaced; the line as it is when it has no "=".
std::string ConValore(std::string_view riga, std::string_view valore) {
  auto parti = Dividi(riga, "=");
  if (parti.size() < 2) return std::string(riga);
  parti[1] = valore;
  return Unisci(parti, "=");
}

void ScriviRiga(const Sessione& sessione, std::string& testo, const std::string& prima) {
  const std::string alto = Maiuscolo(testo);
  const auto scrivi = [&testo](const std::string& valore) { testo = ConValore(testo, valore); };
  const auto ha = [&alto](std::string_view chiave) { return Contiene(alto, chiave); };
  const std::string altoPrima = Maiuscolo(prima);
  if (ha("NUMERO=")) scrivi(sessione.NumeroIscrizione);
  if (Contiene(Minuscolo(testo), "codc=")) scrivi(sessione.CodiceFiscale);
  if (ha("COGNOME="))
    scrivi(sessione.Cognome);
  else if (ha("NOME="))
    scrivi(altoPrima == SezioneTecnico ? sessione.Cognome + " " + sessione.Nome : sessione.Nome);
  if (ha("QUALIFICA=")) scrivi(sessione.Qualifica);
  if (ha("PROVINCIA=")) scrivi(altoPrima == SezioneProvincia ? sessione.SiglaProvincia : sessione.Provincia);
  if (ha("SIGLA PROV."))
    if (const std::string sigla = SiglaDaNome(sessione, sessione.Provincia); !sigla.empty()) scrivi(sigla);
  if (ha("FILE_DISTANZETAF")) scrivi(sessione.MisurateAssociate);
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

} // namespace

void SistemaDatiPregeoIni(Sessione& sessione) {
  const auto& righe = sessione.RighePregeoIni;
  for (std::size_t i = 1; i < righe.size(); ++i) LeggiRiga({righe[i], righe[i - 1]}, sessione);
  sessione.Tecnico = sessione.Cognome + " " + sessione.Nome;
}

void LeggiPregeoIni(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.RadiceDati = sessione.RadicePregeo = "C:";
  const std::string percorso = sessione.CartellaWindows + "\\PREGEO.INI";
  if (!ambiente.disco.Esiste(percorso)) {
    ambiente.dialoghi.Messaggio("PREGEO.INI NON trovato - Verificare installazione Pregeo!", "Pregeo Non Installato");
    return;
  }
  const std::string testo = CaricaFileIntero(ambiente, percorso);
  const auto righe = Dividi(testo, FineRiga);
  sessione.RighePregeoIni.assign(righe.begin(), righe.end());
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
  auto& righe = sessione.RighePregeoIni;
  for (std::size_t i = 0; i + 1 < righe.size(); ++i)
    ScriviRiga(sessione, righe[i], i > 0 ? righe[i - 1] : std::string{});
}

void SalvaPregeoIni(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  if (sessione.RighePregeoIni.empty()) return; // no installation was found: nothing to write back
  ScriviDatiPregeoIni(sessione);
  const auto& righe = sessione.RighePregeoIni;
  ambiente.disco.Scrivi(sessione.CartellaWindows + "\\PREGEO.INI", Unisci({righe.begin(), righe.end()}, FineRiga));
}

} // namespace lirmeto
