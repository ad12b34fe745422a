#include <supporto/archivio_possessori.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::string_view Cartella = "\\FIDUCIAL\\VISURE";

} // namespace

std::string ArchivioPossessori::Percorso(const std::string& nome) const {
  return ambiente_.sessione.RadiceDati + std::string(Cartella) + "\\" + nome;
}

void ArchivioPossessori::Ricarica() {
  File1.clear();
  List1.clear();
  IndiceFile = IndiceRiga = -1;
  ambiente_.sessione.PuntoErrore = "ArchivioPossessori";
  File1 = ambiente_.disco.Elenca(ambiente_.sessione.RadiceDati + std::string(Cartella), "");
}

void ArchivioPossessori::AlCaricamento() {
  ambiente_.sessione.EsitoSelezione = EsitoAnnullato;
  if (!Intrappola(ambiente_, [this] { Ricarica(); })) return;
  const std::string dellAtto = ambiente_.sessione.NomeFascicolo + ".VIS";
  const auto trovato = std::find_if(File1.begin(), File1.end(),
                                    [&](const std::string& nome) { return UgualiSenzaCaso(nome, dellAtto); });
  if (trovato != File1.end()) ScegliFile(static_cast<std::size_t>(trovato - File1.begin()));
}

void ArchivioPossessori::ScegliFile(std::size_t indice) {
  if (indice >= File1.size()) throw Errore(errore::IndiceFuoriIntervallo);
  IndiceFile = static_cast<long>(indice);
  IndiceRiga = -1;
  List1.clear();
  (void)Intrappola(ambiente_, [&] {
    const std::string testo = CaricaFileIntero(ambiente_, Percorso(File1[indice]));
    for (const auto riga : RigheDi(testo))
      if (!Taglia(riga).empty()) List1.emplace_back(riga);
  });
}

void ArchivioPossessori::ScegliRiga(std::size_t indice) {
  if (indice >= List1.size()) throw Errore(errore::IndiceFuoriIntervallo);
  IndiceRiga = static_cast<long>(indice);
}

void ArchivioPossessori::Esegui(int indice) {
  if (indice == IndiceChiudi) Chiusa = true;
  if (indice == IndiceAssocia) Associapossessori();
  if (indice == IndiceElimina) Elimina();
}

void ArchivioPossessori::Associapossessori() {
  if (IndiceRiga < 0) return ambiente_.dialoghi.Messaggio("Selezionare un possessore!");
  const std::string& riga = List1.at(static_cast<std::size_t>(IndiceRiga));
  const std::string possessore =
      Contiene(riga, "|") ? std::string(Parte(riga, '|', 3)) + " " + std::string(Parte(riga, '|', 4)) : riga;
  Sessione& sessione = ambiente_.sessione;
  sessione.ElencoPossessori = possessore + std::string(FineRiga) + sessione.ElencoPossessori;
  sessione.EsitoSelezione = EsitoConfermato;
  Chiusa = true;
}

void ArchivioPossessori::Elimina() {
  if (IndiceFile < 0) return ambiente_.dialoghi.Messaggio("Selezionare un file!");
  (void)Intrappola(ambiente_, [this] {
    ambiente_.sessione.PuntoErrore = "ArchivioPossessori";
    ambiente_.disco.Elimina(Percorso(File1.at(static_cast<std::size_t>(IndiceFile))));
    Ricarica();
  });
}

} // namespace lirmeto
