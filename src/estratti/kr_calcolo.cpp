#include <estratti/kr_calcolo.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/campi.h>

#include <array>
#include <memory>

namespace lirmeto {

namespace {

constexpr std::array<std::string_view, Griglia::Colonne> Intestazioni = {
    "", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17", "18", "19"};

// The parcel of each row 7 as it comes: a continuation belongs to the parcel before it.
class NomeParticella {
public:
  std::string_view Di(std::string_view riga) {
    constexpr std::size_t primoNome = 3; // places from the name to the empty field behind the last bar
    campi_.Dividi(riga);
    if (Valore(campi_[1]) != 0) nome_ = campi_.DaUltimo(primoNome);
    return nome_;
  }

private:
  Campi campi_;
  std::string_view nome_;
};

void AggiungiRiga(KR_Calcolo& calcolo, std::string_view riga, NomeParticella& particella) {
  calcolo.Tutto.Aggiungi(riga);
  if (riga.starts_with('8')) (riga.substr(1).substr(0, 3).ends_with("PF") ? calcolo.PF : calcolo.Riga8).Aggiungi(riga);
  if (riga.starts_with('7')) {
    calcolo.List1.AggiungiVista(riga);
    calcolo.Riga7.Aggiungi(riga);
    calcolo.Riga7.UltimaColonna(particella.Di(riga));
  }
  if (!riga.starts_with('6')) return;
  if (Contiene(riga, "DISTANZA")) calcolo.Misurate.Aggiungi(riga);
  if (!Contiene(riga, "PARTICELLA")) return;
  calcolo.Particelle.Aggiungi(riga);
  calcolo.List2.AggiungiVista(riga);
}

} // namespace

void Griglia::UltimaColonna(std::string_view testo) {
  ultime_.resize(righe_.size());
  ultime_.at(righe_.size() - 1) = testo;
}

std::string_view Griglia::Cella(std::size_t riga, std::size_t colonna) const {
  if (colonna >= Colonne) throw Errore(errore::IndiceFuoriIntervallo);
  if (riga == 0) return Intestazioni.at(colonna);
  const std::string_view testo = righe_[riga - 1];
  const bool messa = colonna == Colonne - 1 && riga <= ultime_.size();
  return messa ? ultime_[riga - 1] : Parte(testo, '|', colonna);
}

std::string Griglia::RigaConTab(std::size_t riga) const {
  std::string uscita(Cella(riga, 0));
  for (std::size_t colonna = 1; colonna < Colonne; ++colonna) {
    uscita += '\t';
    uscita += Cella(riga, colonna);
  }
  return uscita;
}

void CaricaEstrattoSuKRCalcolo(Ambiente& ambiente, KR_Calcolo& calcolo, std::string_view cartella,
                               std::string_view nome) {
  const std::string percorso = std::string(cartella) + "\\" + ComponenteFile(nome);
  const auto file = std::make_shared<const std::string>(ConFineRiga(ambiente.disco.Leggi(percorso)));
  calcolo = {};
  for (Griglia* griglia :
       {&calcolo.Tutto, &calcolo.Riga8, &calcolo.Riga7, &calcolo.PF, &calcolo.Misurate, &calcolo.Particelle})
    griglia->Tieni(file);
  for (ListaRighe* lista : {&calcolo.TuttoList, &calcolo.List1, &calcolo.List2}) lista->Tieni(file);
  calcolo.TuttoList.AggiungiViste(RigheDi(*file));
  NomeParticella particella;
  for (const auto riga : calcolo.TuttoList) AggiungiRiga(calcolo, riga, particella);
}

} // namespace lirmeto
