#include <estratti/copia_estratto.h>

#include <base/percorsi.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <estratti/kr_estratto.h>
#include <supporto/zip.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   a twin that is not there           only what was given is copied
//   a .PNG                             the extract associated is its .EMP, when there is one: the name of an extract
//                                      always ends so
//   an archive that holds no .EMP      nothing is copied, a .PNG neither, and the extract associated stays as it was
//   an archive in the folder emptied   it is read before
//   an archive that is damaged         what came out of it is copied; with no .EMP among it the message that says so
//                                      is the only one
//   the first .EMP                     by its name, among those that lie in no folder of the archive
//
// The manager's import differs: the twin must be there, else the error comes when the first of the two is copied
// already; of an archive every .EMP and .PNG is copied under its own name, and the first .EMP becomes the extract
// associated; one that holds neither is told so.

namespace {

constexpr std::string_view Emp = ".EMP";
constexpr std::string_view Png = ".PNG";
constexpr std::string_view Zip = ".ZIP";
constexpr std::array<std::string_view, 4> Estensioni = {Emp, Png, ".DXF", Zip};
constexpr std::string_view TitoloCopia = "Copia Estratto in Pregeo";

// The extract's name, without extension.
std::string NomeEstratto(std::string_view percorso) {
  return Maiuscolo(NomeDaPercorso(SenzaEstensione(percorso)));
}

// Path in the extract folder of a file with this name.
std::string InEstratti(const Sessione& sessione, std::string_view nome) {
  return PercorsoEstratto(sessione, Maiuscolo(nome));
}

void Copia(Ambiente& ambiente, const std::string& percorso) {
  ambiente.disco.Copia(percorso, InEstratti(ambiente.sessione, NomeDaPercorso(percorso)));
}

void CopiaConGemello(Ambiente& ambiente, const std::string& percorso, std::string_view estensioneGemello) {
  const std::string gemello = ConEstensione(percorso, estensioneGemello);
  const bool conGemello = ambiente.disco.Esiste(gemello);
  Copia(ambiente, percorso);
  if (conGemello) Copia(ambiente, gemello);
  if (conGemello || estensioneGemello == Png)
    ambiente.sessione.EstrattoAssociato = NomeEstratto(percorso) + std::string(Emp);
  ambiente.dialoghi.Messaggio("Copiato nella cartella Estratti!", TitoloCopia);
}

// Pregeo's working folder, `cartella` with its closing backslash, with the archive alone in it; the answer is its path
// there.
std::string PreparaArchivio(Ambiente& ambiente, const std::string& percorso, const std::string& cartella) {
  const std::string byte = ambiente.disco.Leggi(percorso);
  CreaCartella(ambiente, cartella);
  ambiente.sessione.PuntoErrore = "CopiaEstrattoInPregeo_ZIP";
  for (const std::string& vecchio : ambiente.disco.Elenca(cartella, {})) ambiente.disco.Elimina(cartella + vecchio);
  std::string archivio = cartella + ComponenteFile(Maiuscolo(NomeDaPercorso(percorso)));
  ambiente.disco.Scrivi(archivio, byte);
  return archivio;
}

// Copies the first file of the folder with this extension under the archive's name. Whether there was one.
bool CopiaPrimo(Ambiente& ambiente, const std::string& cartella, const std::string& nome, std::string_view estensione) {
  const auto trovati = ambiente.disco.Elenca(cartella, estensione);
  if (trovati.empty()) return false;
  ambiente.disco.Copia(cartella + trovati.front(), InEstratti(ambiente.sessione, nome + std::string(estensione)));
  return true;
}

std::string CartellaDiLavoro(const Sessione& sessione) {
  return sessione.RadicePregeo + "\\pregeo\\tmp\\";
}

void EsplodiECopia(Ambiente& ambiente, const std::string& percorso) {
  const std::string cartella = CartellaDiLavoro(ambiente.sessione);
  const std::string nome = NomeEstratto(percorso);
  const bool tutto = Esplodi_ZIP(ambiente, PreparaArchivio(ambiente, percorso, cartella), cartella);
  const bool copiato = CopiaPrimo(ambiente, cartella, nome, Emp);
  if (copiato) {
    (void)CopiaPrimo(ambiente, cartella, nome, Png);
    ambiente.sessione.EstrattoAssociato = nome + std::string(Emp);
  }
  if (copiato || tutto) ambiente.dialoghi.Messaggio("Esploso e Copiato nella cartella Estratti!", TitoloCopia);
}

// --- the import of the extract manager

// An extract, or its raster, and the other of the two, which must be there.
void ImportaConGemello(Ambiente& ambiente, const std::string& percorso, std::string_view estensioneGemello) {
  Copia(ambiente, percorso);
  Copia(ambiente, std::string(SenzaEstensione(percorso)) + std::string(estensioneGemello));
  ambiente.sessione.EstrattoAssociato = NomeEstratto(percorso) + std::string(Emp);
  ambiente.dialoghi.Messaggio(std::string(NomeDaPercorso(percorso)) + "\r\nCopiato nella cartella Estratti!",
                              TitoloCopia);
}

void ImportaArchivio(Ambiente& ambiente, const std::string& percorso) {
  const std::string cartella = CartellaDiLavoro(ambiente.sessione);
  const std::string nome(NomeDaPercorso(percorso));
  (void)Esplodi_ZIP(ambiente, PreparaArchivio(ambiente, percorso, cartella), cartella);
  const auto estratti = ambiente.disco.Elenca(cartella, Emp);
  const auto raster = ambiente.disco.Elenca(cartella, Png);
  for (const auto* trovati : {&estratti, &raster})
    for (const std::string& file : *trovati) Copia(ambiente, cartella + file);
  if (!estratti.empty()) ambiente.sessione.EstrattoAssociato = Maiuscolo(estratti.front());
  const bool niente = estratti.empty() && raster.empty();
  ambiente.dialoghi.Messaggio(
      nome + (niente ? "\r\nNon contiene Estratti di Mappa!" : "\r\nEsploso e Copiato nella cartella Estratti!"),
      TitoloCopia);
}

} // namespace

bool EstensioneEstratto(std::string_view percorso) {
  return std::any_of(Estensioni.begin(), Estensioni.end(),
                     [percorso](std::string_view estensione) { return FinisceConSenzaCaso(percorso, estensione); });
}

void CopiaEstrattoInPregeo(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "CopiaEstrattoInPregeo";
  const std::string file = PercorsoInCapitali(ambiente.disco, Sostituisci(percorso, "\"", ""));
  if (FinisceConSenzaCaso(file, Zip)) return EsplodiECopia(ambiente, file);
  for (const auto& [dato, gemello] : {std::pair(Emp, Png), std::pair(Png, Emp)})
    if (FinisceConSenzaCaso(file, dato)) CopiaConGemello(ambiente, file, gemello);
}

void ImportaFileInEstratti(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "Importa_Estrattodimappa";
  const std::string file = PercorsoInCapitali(ambiente.disco, percorso);
  if (FinisceConSenzaCaso(file, Emp)) return ImportaConGemello(ambiente, file, Png);
  if (FinisceConSenzaCaso(file, Png)) return ImportaConGemello(ambiente, file, Emp);
  if (FinisceConSenzaCaso(file, Zip)) return ImportaArchivio(ambiente, file);
  ambiente.dialoghi.Messaggio("Ammessi file di Estratti: .EMP, .PNG, .ZIP");
}

} // namespace lirmeto
