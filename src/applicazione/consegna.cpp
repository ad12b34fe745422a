#include <applicazione/consegna.h>

#include <base/errore.h>
#include <base/numeri.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::string_view Estensione = ".consegna";
constexpr int Attese = 40;
constexpr int MillisecondiAttesa = 100;

std::string Cartella(const Ambiente& ambiente) {
  return ambiente.sessione.CartellaProgramma + "\\temp\\";
}

// Whether the file was there to be taken away: of two that want it one alone gets it.
bool Togli(Ambiente& ambiente, const std::string& percorso) {
  try {
    ambiente.disco.Elimina(percorso);
    return true;
  } catch (const Errore&) {
    return false;
  }
}

// Its content, and away with it; none for one that is still being written, or that another process had first.
std::optional<std::string> Prendi(Ambiente& ambiente, const std::string& percorso) {
  try {
    std::string comando = ambiente.disco.Leggi(percorso);
    if (Togli(ambiente, percorso)) return comando;
  } catch (const Errore&) { // it is looked for again soon
  }
  return std::nullopt;
}

// A folder that cannot be read has nothing to hand over: the question comes too often to be told of each time.
std::vector<std::string> Consegnate(const Ambiente& ambiente) {
  try {
    return ambiente.disco.Elenca(Cartella(ambiente), Estensione);
  } catch (const Errore&) {
    return {};
  }
}

} // namespace

std::vector<long> AltriModuli(Ambiente& ambiente) {
  std::vector<long> processi = ambiente.processi.Elenca(ImmagineProgramma);
  std::erase(processi, ambiente.processi.QuestoProcesso());
  return processi;
}

void TerminaAltriModuli(Ambiente& ambiente) {
  for (const long processo : AltriModuli(ambiente)) (void)ambiente.processi.Termina(processo);
}

bool ConsegnaComando(Ambiente& ambiente, std::string_view comando) {
  ambiente.sessione.PuntoErrore = "ConsegnaComando";
  const std::string percorso =
      Cartella(ambiente) + TestoIntero(ambiente.processi.QuestoProcesso()) + std::string(Estensione);
  ambiente.disco.Scrivi(percorso, comando);
  for (int i = 0; i < Attese && ambiente.disco.Esiste(percorso); ++i) ambiente.processi.Pausa(MillisecondiAttesa);
  return !Togli(ambiente, percorso);
}

std::vector<std::string> PrendiConsegne(Ambiente& ambiente) {
  std::vector<std::string> comandi;
  for (const std::string& nome : Consegnate(ambiente))
    if (auto comando = Prendi(ambiente, Cartella(ambiente) + nome)) comandi.push_back(*std::move(comando));
  return comandi;
}

} // namespace lirmeto
