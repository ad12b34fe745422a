#include <estratti/somma_estratti.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <estratti/file_estratto.h>
#include <estratti/kr_estratto.h>
#include <estratti/unione_estratti.h>

#include <algorithm>
#include <array>

namespace lirmeto {

// How the sum is made, where it could be done in more than one way:
//
//   the extracts chosen            are added in the order of the list
//   the first extract among them   may be chosen too: its own points and rings come out once
//   a name that ends in ".EMP"     is taken without it
//   a name that is there already   is asked about, as the manager does

namespace {

constexpr std::array<std::string_view, 3> EstensioniRaster = {".PNG", ".TIF", ".JPG"};

} // namespace

void KR_SommaEstratti::AlCaricamento() {
  File1 = ambiente_.disco.Elenca(CartellaEstratti(ambiente_.sessione), ".EMP");
  Scelti.assign(File1.size(), false);
  MostraSomma();
}

void KR_SommaEstratti::Scegli(std::size_t indice, bool scelto) {
  if (indice >= Scelti.size()) throw Errore(errore::IndiceFuoriIntervallo);
  Scelti[indice] = scelto;
}

std::string KR_SommaEstratti::FileTemporaneo() const {
  return ambiente_.sessione.CartellaProgramma + "\\temp\\Tempestratto.emp";
}

// Everything is joined before anything is written.
void KR_SommaEstratti::SommaDiLista() {
  std::string somma = ambiente_.disco.Leggi(EstrattoSomma);
  for (std::size_t i = 0; i < File1.size(); ++i) {
    if (!Scelti[i]) continue;
    EstrattoDaSommare = PercorsoEstratto(ambiente_.sessione, File1[i]);
    somma = UnisciEstratti(std::move(somma), ambiente_.disco.Leggi(EstrattoDaSommare));
  }
  ambiente_.disco.Scrivi(FileTemporaneo(), somma);
}

void KR_SommaEstratti::MostraSomma() {
  ambiente_.sessione.PuntoErrore = "UnisciEstratti";
  (void)Intrappola(ambiente_, [&] {
    const bool scelti = std::find(Scelti.begin(), Scelti.end(), true) != Scelti.end();
    if (scelti) SommaDiLista();
    grafica_.KR_CaricaEstratto_EMP(scelti ? FileTemporaneo() : EstrattoSomma);
  });
}

void KR_SommaEstratti::Somma() {
  if (std::find(Scelti.begin(), Scelti.end(), true) == Scelti.end())
    return ambiente_.dialoghi.Messaggio("Selezionare l'Estratto da Aggiungere");
  ambiente_.sessione.PuntoErrore = "UnisciEstratti";
  (void)Intrappola(ambiente_, [&] {
    const std::string nome = GamboScritto(NomeSomma);
    if (nome.empty()) return ambiente_.dialoghi.Messaggio("Inserire il Nome dell'Estratto Risultante");
    if (!ConfermaSostituzione(ambiente_, nome)) return;
    SommaDiLista();
    GeneraSommaEstratti(nome);
    Chiusa = true;
  });
}

void KR_SommaEstratti::GeneraSommaEstratti(const std::string& nome) {
  const auto in = [&](std::string_view estensione) {
    return PercorsoEstratto(ambiente_.sessione, nome + std::string(estensione));
  };
  const std::string gambo(Gambo(EstrattoSomma));
  ambiente_.disco.Copia(FileTemporaneo(), in(".emp"));
  Creato = nome + ".emp";
  for (const std::string_view estensione : EstensioniRaster) {
    const std::string raster = gambo + std::string(estensione);
    const bool suo = UgualiSenzaCaso(raster, in(estensione));
    if (!suo && ambiente_.disco.Esiste(raster)) ambiente_.disco.Copia(raster, in(estensione));
  }
}

} // namespace lirmeto
