#include <cli/comandi.h>

#include <applicazione/comandi.h>
#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <supporto/codice_fiscale.h>
#include <supporto/zip.h>

#include <array>
#include <unordered_set>

namespace lirmeto {

namespace {

std::string ComandoCodiceFiscale(Ambiente& /*ambiente*/, const std::vector<std::string>& argomenti) {
  return std::string(ControllaCodiceFiscale(argomenti[0])) + "\n";
}

// Every entry of the main window: where it stands TAB its caption TAB what it does, UTF-8.
std::string ComandoVoci(Ambiente& /*ambiente*/, const std::vector<std::string>& /*argomenti*/) {
  std::string uscita;
  const auto voce = [&uscita](std::string_view dove, std::string_view didascalia, Comando comando) {
    if (didascalia == Separatore) return;
    const std::string_view nome = didascalia.empty() ? std::string_view("(figura)") : didascalia;
    for (const std::string_view parte :
         {dove, std::string_view("\t"), nome, std::string_view("\t"), EffettoDi(comando)})
      uscita += AUtf8(parte);
    uscita += '\n';
  };
  for (const VoceMenu& una : VociMenu()) voce(una.menu, una.didascalia, una.comando);
  for (const Pulsante& uno : Pulsanti()) voce("pulsante", uno.didascalia, uno.comando);
  for (const Strumento& uno : Strumenti()) voce(DidascaliaDi(Comando::UtilitaCatastali), uno.didascalia, uno.comando);
  return uscita;
}

// An archive of the files given, each under its own name, in the place of one that is there. Two files of one name
// would write over each other when unpacked: error 58.
std::string ComandoZipCrea(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ZipClass archivio(ambiente.disco);
  std::unordered_set<std::string> nomi;
  for (std::size_t i = 1; i < argomenti.size(); ++i) {
    ambiente.sessione.PuntoErrore = "AddFile";
    if (!archivio.AddFile(argomenti[i])) throw Errore(errore::FileNonTrovato);
    const std::string nome(NomeDaPercorso(argomenti[i]));
    if (!nomi.insert(Maiuscolo(nome)).second)
      throw Errore(errore::FileEsistente, "Due file hanno lo stesso nome: " + nome);
  }
  ambiente.sessione.PuntoErrore = "WriteZip";
  (void)archivio.WriteZip(argomenti[0], true);
  return {};
}

// What did not come out was named; the exit code says that there was something.
std::string ComandoZipEstrai(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  if (!Esplodi_ZIP(ambiente, argomenti[0], argomenti[1])) throw Errore(errore::DialogoAnnullato);
  return {};
}

constexpr ArgomentoCli Codice[] = {{"CODICE", GenereArgomento::Testo, "codice fiscale di una persona"}};

constexpr ArgomentoCli DaCreare[] = {{"ARCHIVIO", GenereArgomento::Percorso, "archivio da scrivere"},
                                     {"FILE", GenereArgomento::AltriFile, "file da mettere nell'archivio"}};

constexpr ArgomentoCli DaEstrarre[] = {{"ARCHIVIO", GenereArgomento::File, "archivio da aprire"},
                                       {"CARTELLA", GenereArgomento::Percorso, "dove vanno i file; se manca si crea"}};

constexpr std::array<ComandoCli, 2> Comandi = {{
    {"codice-fiscale", "CORRETTO o ERRATO", Codice, ComandoCodiceFiscale},
    {"voci", "le voci della finestra principale: dove, voce, che cosa fa", {}, ComandoVoci},
}};

constexpr std::array<ComandoCli, 2> Zip = {{
    {"crea", "scrive un archivio; uno che c'è viene sostituito", DaCreare, ComandoZipCrea},
    {"estrai", "estrae un archivio in una cartella", DaEstrarre, ComandoZipEstrai},
}};

} // namespace

FamigliaCli ComandiSupporto() {
  return {"", "", Comandi};
}

FamigliaCli ComandiZip() {
  return {"zip", "archivi ZIP", Zip};
}

} // namespace lirmeto
