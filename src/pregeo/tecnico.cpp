#include <pregeo/tecnico.h>

#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <pregeo/pregeo_ini.h>

#include <algorithm>
#include <initializer_list>

namespace lirmeto {

namespace {

// What a value cannot hold, since the file is one comma list without any escape: it becomes a blank.
constexpr std::string_view Separatori = ",\"\r\n";

// One line of values in double quotes at commas.
std::string Linea(std::initializer_list<std::string_view> valori) {
  std::string linea;
  for (const auto valore : valori) {
    linea += linea.empty() ? "\"" : ",\"";
    linea += InBianchi(valore, Separatori) + '"';
  }
  return linea + std::string(FineRiga);
}

// The mark of seconds in the instruments ("Stazione 1\"") is no loss: that value is not read back.
bool PerdeSegni(const Sessione& sessione) {
  const auto valori = {sessione.Tecnico,          sessione.Qualifica,
                       sessione.Provincia,        Sostituisci(sessione.Strumentazione, "\"", ""),
                       sessione.NumeroIscrizione, sessione.CodiceFiscale,
                       sessione.Cognome,          sessione.Nome,
                       sessione.Recapito};
  return std::any_of(valori.begin(), valori.end(),
                     [](const std::string& valore) { return valore.find_first_of(Separatori) != std::string::npos; });
}

// The two precisions are constants here, not those of row 9.
std::string TestoPfs(const Sessione& sessione) {
  return Linea({sessione.Tecnico, sessione.Qualifica, sessione.Provincia}) +
         Linea({"10", "20", sessione.Strumentazione}) + Linea({sessione.NumeroIscrizione, sessione.CodiceFiscale}) +
         Linea({sessione.Cognome}) + Linea({sessione.Nome}) + Linea({sessione.Recapito});
}

} // namespace

std::string DataEOra(const Orologio& orologio) {
  const Data oggi = orologio.Oggi();
  const Ora adesso = orologio.Adesso();
  return Formatta(oggi.anno, "0000") + "-" + Formatta(oggi.mese, "00") + "-" + Formatta(oggi.giorno, "00") + "_" +
         Formatta(adesso.ore, "00") + "-" + Formatta(adesso.minuti, "00") + "-" + Formatta(adesso.secondi, "00");
}

void SalvaTecnico(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.Tecnico =
      Taglia(std::string(Taglia(Maiuscolo(sessione.Cognome))) + " " + std::string(Taglia(Maiuscolo(sessione.Nome))));
  ambiente.disco.Scrivi(sessione.CartellaProgramma + "\\tecnici\\" + ComponenteFile(sessione.Tecnico + ".PFS"),
                        TestoPfs(sessione));
  if (PerdeSegni(sessione))
    ambiente.dialoghi.Messaggio("Il file del tecnico non tiene virgole e virgolette: sono diventate spazi.",
                                "Salva Tecnico");
  ambiente.impostazioni.Scrivi("RELAZIONE_TECNICA", "INCLUDIDATITECNICO", TestoIntero(sessione.IncludiDatiTecnico));
  SalvaPregeoIni(ambiente);
}

void CaricaTecnico(Ambiente& ambiente, std::string_view nomeFile) {
  Sessione& sessione = ambiente.sessione;
  const std::string percorso = sessione.CartellaProgramma + "\\TECNICI\\" + ComponenteFile(nomeFile);
  if (!ambiente.disco.Esiste(percorso)) return;
  const std::string lista =
      Sostituisci(Sostituisci(CaricaFileIntero(ambiente, percorso), FineRiga, ","), "\"", "") + ",,,,,,,,,,,";
  const auto valori = Dividi(lista, ",");
  sessione.Tecnico = valori[0];
  sessione.Qualifica = valori[1];
  sessione.Provincia = valori[2];
  sessione.NumeroIscrizione = valori[6];
  sessione.CodiceFiscale = valori[7];
  sessione.Cognome = valori[8];
  sessione.Nome = valori[9];
  sessione.Recapito = valori[10];
}

void SalvaArch2(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  sessione.PuntoErrore = "salvarch2.db";
  const std::string_view nome = NomeDaPercorso(sessione.NomeFileLibretto);
  const std::string base(nome.substr(0, nome.find('.')));
  ambiente.disco.Copia(sessione.Arch2Db, sessione.RadicePregeo + "\\pregeo\\arch\\BackupDB\\" + base + "_" +
                                             DataEOra(ambiente.orologio) + ".db");
}

} // namespace lirmeto
