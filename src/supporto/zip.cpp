#include <supporto/zip.h>

#include <base/errore.h>
#include <base/testo.h>

#include <utility>

namespace lirmeto {

bool ZipClass::AddFile(std::string_view percorso, std::string_view nome, std::string_view commento) {
  if (!disco_.Esiste(percorso)) return false;
  const std::string chiave = Maiuscolo(percorso);
  if (chiavi_.contains(chiave)) throw Errore(errore::ChiaveEsistente);
  ZipFile file = LeggiZipFile(disco_, percorso);
  if (!nome.empty()) file.nome = nome;
  file.commento = commento;
  file_.push_back(std::move(file));
  chiavi_.insert(chiave);
  return true;
}

// The whole archive is made before the disk is touched.
bool ZipClass::WriteZip(std::string_view percorso, bool sovrascrivi) {
  if (!sovrascrivi && disco_.Esiste(percorso)) return false;
  std::string archivio;
  for (ZipFile& file : file_) ScriviLocale(file, archivio);
  const std::size_t inizioElenco = archivio.size();
  for (const ZipFile& file : file_) ScriviCentrale(file, archivio);
  ScriviFine(file_.size(), inizioElenco, archivio);
  disco_.Scrivi(percorso, archivio);
  return true;
}

} // namespace lirmeto
