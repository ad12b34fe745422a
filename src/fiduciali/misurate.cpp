#include <fiduciali/misurate.h>

#include <base/avanzamento.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <fiduciali/taf.h>
#include <pregeo/gondella.h>

#include <algorithm>

namespace lirmeto {

// What could be done in more than one way:
//
//   a name in small letters              is looked for in capitals, as the archives have them
//   a comune with sections alone         takes the province of the first of them: a point's name has no room for a section
//   the archive that is found            is the report's own: the session keeps the one that the user selected
//   \Gondella\temp is not there          it is made: the report is wanted also where the suite is not installed

namespace {

constexpr std::size_t LungoProvincia = 2; // the code in front of an archive's name
constexpr std::size_t CampoComune = 2;    // of a point's name, at "/"
constexpr std::size_t DopoIlDrive = 3;    // "C:\"

std::string ProvinciaDelComune(Ambiente& ambiente, std::string_view codice) {
  CaricaProvinceComuni(ambiente);
  const auto& comuni = ambiente.sessione.Comuni;
  if (const Comune* comune = TrovaComune(comuni, codice)) return comune->provincia;
  const auto sezione = std::find_if(comuni.begin(), comuni.end(),
                                    [&](const Comune& comune) { return comune.codice.starts_with(codice); });
  return sezione == comuni.end() || codice.empty() ? std::string{} : sezione->provincia;
}

void CreaCartelleDi(Ambiente& ambiente, const std::string& percorso) {
  for (std::size_t fine = percorso.find('\\', DopoIlDrive); fine != std::string::npos;
       fine = percorso.find('\\', fine + 1))
    CreaCartella(ambiente, percorso.substr(0, fine));
}

void ProponiArchivio(Ambiente& ambiente, const std::string& archivio) {
  const std::string domanda = "File " + archivio + " non trovato!!" + std::string(FineRiga) + "Vuoi scaricarlo ora?";
  if (ambiente.dialoghi.Chiedi(domanda, "Misurate non Trovate", Bottoni::SiNo) == Risposta::Si)
    ImportaTafMisurate(ambiente);
}

std::string RelazioniDelPunto(Ambiente& ambiente, const std::string& percorso, std::string_view punto) {
  const std::string testo = CaricaFileIntero(ambiente, percorso);
  const auto righe = RigheDi(testo);
  Avanzamento avanzamento(ambiente.dialoghi, "Ricerca delle distanze misurate", righe.size());
  std::string trovate;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    if (Contiene(righe[i], punto)) trovate.append(righe[i]).append(FineRiga);
  }
  return trovate;
}

} // namespace

void ImportaTafMisurate(Ambiente& ambiente) {
  AvviaGondella(ambiente, "Vordana.exe");
}

std::vector<std::string> ElencoArchiviMisurate(const Ambiente& ambiente) {
  return ambiente.disco.Elenca(CartellaArchivi(ambiente.sessione), ".DDD");
}

bool StessaProvincia(std::string_view unArchivio, std::string_view altro) {
  return UgualiSenzaCaso(unArchivio.substr(0, LungoProvincia), altro.substr(0, LungoProvincia));
}

std::string TrovaArchivioMisurate(Ambiente& ambiente, std::string_view comune) {
  std::string provincia = ProvinciaDelComune(ambiente, Taglia(comune));
  if (provincia.size() < LungoProvincia) return provincia;
  const auto archivi = ElencoArchiviMisurate(ambiente);
  const auto trovato = std::find_if(archivi.rbegin(), archivi.rend(),
                                    [&](const std::string& nome) { return StessaProvincia(nome, provincia); });
  return trovato == archivi.rend() ? provincia : *trovato;
}

bool ArchivioInstallato(const Ambiente& ambiente, const std::string& nome) {
  const std::string percorso = CartellaArchivi(ambiente.sessione) + nome;
  return !nome.empty() && ambiente.disco.Esiste(percorso) && !ambiente.disco.EsisteCartella(percorso);
}

void ApriListaMisurate(Ambiente& ambiente, std::string_view testo) {
  const std::string percorso = ambiente.sessione.CartellaProgrammi + "\\Gondella\\temp\\Misurate.TXT";
  CreaCartelleDi(ambiente, percorso);
  ambiente.sessione.PuntoErrore = "Misurate.TXT";
  ambiente.disco.Scrivi(percorso, testo);
  ambiente.processi.ApriDocumento(percorso);
}

void InfoMisurate(Ambiente& ambiente, std::string_view nome) {
  ambiente.sessione.PuntoErrore = "InfoMisurate";
  const std::string punto = Maiuscolo(Taglia(nome));
  const std::string archivio = TrovaArchivioMisurate(ambiente, Parte(punto, '/', CampoComune));
  if (!ArchivioInstallato(ambiente, archivio)) return ProponiArchivio(ambiente, archivio);
  const std::string percorso = CartellaArchivi(ambiente.sessione) + archivio;
  const std::string fine(FineRiga);
  std::string trovate = RelazioniDelPunto(ambiente, percorso, punto);
  if (trovate.empty()) trovate = "Nessuna relazione con altri PF trovata!" + fine;
  ApriListaMisurate(ambiente, "Provincia di : " + archivio + fine + trovate);
}

} // namespace lirmeto
