#include <core/servizi.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace lirmeto {

namespace {

enum class Base { Dati, Pregeo, Documenti };

struct CartellaPrevista {
  Base base;
  std::string_view nome;
};

// The order matters: parents come before what lies in them. The one folder
// under FIDUCIAL that hangs on the drive of the programs is meant so.
constexpr std::array<CartellaPrevista, 21> CartellePreviste = {{
    {Base::Dati, "\\FIDUCIAL"},
    {Base::Dati, "\\fiducial\\DITTA"},
    {Base::Dati, "\\fiducial\\VISURE"},
    {Base::Dati, "\\fiducial\\DATI"},
    {Base::Dati, "\\fiducial\\COMUNI"},
    {Base::Pregeo, "\\fiducial\\Silvarca"},
    {Base::Dati, "\\fiducial\\PARTICELLE"},
    {Base::Dati, "\\fiducial\\MODULISTICA"},
    {Base::Pregeo, "\\PREGEO"},
    {Base::Pregeo, "\\PREGEO\\ESTRATTI"},
    {Base::Pregeo, "\\pregeo\\arch\\BackupDB"},
    {Base::Documenti, "\\LIRMETO"},
    {Base::Documenti, "\\LIRMETO\\TEMP"},
    {Base::Documenti, "\\LIRMETO\\GUIDA"},
    {Base::Documenti, "\\LIRMETO\\TECNICI"},
    {Base::Documenti, "\\LIRMETO\\Backup_Libretti"},
    {Base::Documenti, "\\LIRMETO\\Storico_Libretti"},
    {Base::Documenti, "\\LIRMETO\\MODELLI_STAMPA"},
    {Base::Documenti, "\\LIRMETO\\RISORSE"},
    {Base::Documenti, "\\Forvale"},
    {Base::Documenti, "\\Forvale\\TEMP"},
}};

const std::string& Radice(const Sessione& sessione, Base base) {
  switch (base) {
  case Base::Dati:
    return sessione.RadiceDati;
  case Base::Pregeo:
    return sessione.RadicePregeo;
  case Base::Documenti:
    break;
  }
  return sessione.CartellaDocumenti;
}

} // namespace

void CreaCartella(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "NuovaCartella";
  if (!ambiente.disco.EsisteCartella(percorso)) ambiente.disco.CreaCartella(percorso);
}

void CreaPercorso(Ambiente& ambiente, std::string_view percorso) {
  for (std::size_t fine = percorso.find('\\'); fine != std::string_view::npos;) {
    fine = percorso.find('\\', fine + 1);
    CreaCartella(ambiente, percorso.substr(0, fine));
  }
}

void CreaCartelle(Ambiente& ambiente) {
  for (const auto& cartella : CartelleDiLavoro(ambiente.sessione))
    (void)Intrappola(ambiente, [&] { CreaCartella(ambiente, cartella); });
}

std::vector<std::string> CartelleDiLavoro(const Sessione& sessione) {
  std::vector<std::string> cartelle;
  cartelle.reserve(CartellePreviste.size());
  for (const auto& prevista : CartellePreviste)
    cartelle.push_back(Radice(sessione, prevista.base) + std::string(prevista.nome));
  return cartelle;
}

void CartelleSpeciali(Ambiente& ambiente) {
  const CartelleDiSistema cartelle = ambiente.processi.Cartelle();
  Sessione& sessione = ambiente.sessione;
  sessione.CartellaDocumenti = cartelle.documenti;
  sessione.CartellaProgramma = cartelle.documenti + "\\LIRMETO";
  sessione.CartellaWindows = cartelle.windows;
  sessione.CartellaTemp = cartelle.temporanea;
  sessione.CartellaProgrammi = cartelle.programmi;
}

void AttendiProgramma(Ambiente& ambiente, const std::string& programma, const std::vector<std::string>& argomenti) {
  ambiente.sessione.PuntoErrore = "3105";
  ambiente.processi.AvviaEAttendi(programma, argomenti);
}

void TerminaProcesso(Ambiente& ambiente, std::string_view immagine) {
  std::vector<long> processi = ambiente.processi.Elenca(immagine);
  // This process goes last, so that the others are gone by then.
  std::stable_partition(processi.begin(), processi.end(),
                        [&](long processo) { return processo != ambiente.processi.QuestoProcesso(); });
  int ultimo = 0;
  for (const long processo : processi) ultimo = ambiente.processi.Termina(processo);
  // The message says that the program was ended and is shown when the last end
  // failed: that sense is meant so.
  if (ultimo != 0)
    ambiente.dialoghi.Messaggio("Il programma " + std::string(immagine) + std::string(" è stato terminato!"_w));
}

void TerminaPregeo(Ambiente& ambiente) {
  for (const std::string_view immagine : {"pregeo.exe", "fire.exe", "elab.exe", "moduli.exe"})
    TerminaProcesso(ambiente, immagine);
}

std::string CaricaFileIntero(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "cARICA fILE iNTERO";
  return ambiente.disco.Esiste(percorso) ? ConFineRiga(ambiente.disco.Leggi(percorso)) : std::string{};
}

std::string CaricaFileBinario(Ambiente& ambiente, std::string_view percorso) {
  return ambiente.disco.Leggi(percorso);
}

void AggiungiRigaLibretto(Sessione& sessione, std::string_view riga) {
  sessione.Libretto += Taglia(riga);
  sessione.Libretto += FineRiga;
}

double DistanzaPiana(double x1, double y1, double x2, double y2) {
  return DistanzaPiana(PuntoPiano{x1, y1}, PuntoPiano{x2, y2});
}

bool ApriForm(Ambiente& ambiente, std::string_view nome) {
  const bool disponibile = ambiente.finestre.Disponibile(nome);
  if (disponibile)
    ambiente.finestre.Apri(nome);
  else
    ambiente.dialoghi.Messaggio(NonAncoraDisponibile);
  return disponibile;
}

std::string ComponenteFile(std::string_view nome) {
  if (nome == ".." || nome.find_first_of("\\/:") != std::string_view::npos)
    throw Errore(errore::NomeFileNonValido, "Nome di file non valido: \"" + std::string(nome) + "\"");
  return std::string(nome);
}

std::string PercorsoInCapitali(const Disco& disco, std::string_view percorso) {
  std::string alto = Maiuscolo(percorso);
  return disco.StessoPosto(alto, percorso) ? alto : std::string(percorso);
}

std::string_view NomeDaPercorso(std::string_view percorso) {
  const std::size_t barra = percorso.find_last_of("\\/");
  return barra == std::string_view::npos ? percorso : percorso.substr(barra + 1);
}

} // namespace lirmeto
