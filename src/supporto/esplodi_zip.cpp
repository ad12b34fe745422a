#include <supporto/zip.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <core/lettura.h>

#include <algorithm>
#include <optional>
#include <utility>

// How entries that are not plain files within the folder are read:
//
//   "/a", "\a", "C:\a", "a:b", "..\a", "a\..\b"   would leave the folder: left out, even where the way leads back in
//   "a\. .\b", "a\...\b"                          likewise: some file systems drop such dots and blanks
//   a link or a device                            left out, whatever it points at
//   ".\a\\b"                                      is "a\b"
//   a character that no file name can have        becomes "_"
//   two equal names, without regard to case       the later one stays, as over a file that was there before

namespace lirmeto {

namespace {

constexpr std::size_t MassimoNome = 1000; // letters of a name with its folders
constexpr std::size_t MassimoNominate = 20;

bool Comanda(char lettera) {
  return static_cast<unsigned char>(lettera) < 0x20 || lettera == '\x7F' || lettera == ':';
}

std::string SenzaCaratteriVietati(std::string_view componente) {
  std::string nome(componente);
  for (char& lettera : nome)
    if (std::string_view("<>\"|?*").find(lettera) != std::string_view::npos) lettera = '_';
  return nome;
}

// The folders and the file of an entry's name, each fit for a path; none for a name that leads out of the folder.
std::optional<std::vector<std::string>> ComponentiDentro(std::string_view nome) {
  if (nome.empty() || nome.size() > MassimoNome || nome.front() == '/' || nome.front() == '\\') return std::nullopt;
  if (std::any_of(nome.begin(), nome.end(), Comanda)) return std::nullopt;
  const std::string conBarre = Sostituisci(nome, "\\", "/");
  std::vector<std::string> componenti;
  for (const std::string_view componente : Dividi(conBarre, "/")) {
    if (componente.empty() || componente == ".") continue;
    if (componente.find_first_not_of(". ") == std::string_view::npos) return std::nullopt;
    componenti.push_back(SenzaCaratteriVietati(componente));
  }
  return componenti;
}

// Errors that belong to one entry and leave the others alone.
bool ErroreDellaVoce(const Errore& errore) {
  const int numero = errore.Numero();
  return numero == errore::NomeFileNonValido || numero == errore::AutorizzazioneNegata ||
         numero == errore::AccessoAlFile;
}

class Esplosione {
public:
  Esplosione(Ambiente& ambiente, ArchivioAperto& archivio, std::string cartella, const LimitiEsplosione& limiti)
      : ambiente_(ambiente), archivio_(archivio), cartella_(std::move(cartella)), limiti_(limiti),
        byteRimasti_(limiti.byte) {}

  void Tutte() {
    constexpr std::string_view lavoro = "Estrazione dell'archivio";
    const std::size_t totale = std::max(archivio_.Quante(), std::size_t{1});
    for (std::size_t fatte = 0; auto voce = archivio_.Prossima(); ++fatte) {
      if (fatte >= limiti_.voci) LanciaLimite();
      ambiente_.dialoghi.Avanzamento(lavoro, std::min(fatte, totale - 1), totale);
      if (const std::string_view motivo = Una(*voce); !motivo.empty())
        nonEstratte_.push_back(voce->nome + " - " + std::string(motivo));
    }
    ambiente_.dialoghi.Avanzamento(lavoro, totale, totale);
  }

  [[nodiscard]] const std::vector<std::string>& NonEstratte() const { return nonEstratte_; }

private:
  // What there is to tell of an entry; empty when it was simply unpacked.
  std::string_view Una(const VoceArchivio& voce) {
    const auto componenti = ComponentiDentro(voce.nome);
    if (!componenti) return "porta fuori dalla cartella";
    if (voce.genere == VoceArchivio::Genere::Collegamento) return "è un collegamento"_w;
    if (voce.protetta) return "è protetta da password"_w;
    try {
      return Scrivi(voce, *componenti);
    } catch (const Errore& errore) {
      if (!ErroreDellaVoce(errore)) throw;
      return "non si può scrivere"_w;
    }
  }

  std::string_view Scrivi(const VoceArchivio& voce, const std::vector<std::string>& componenti) {
    if (voce.genere == VoceArchivio::Genere::Cartella) {
      CreaCartelle(componenti, componenti.size());
      return {};
    }
    if (componenti.empty()) return "non ha un nome";
    const ContenutoVoce contenuto = archivio_.Leggi(byteRimasti_);
    if (contenuto.stato == ContenutoVoce::Stato::Troppo) LanciaLimite();
    if (contenuto.stato == ContenutoVoce::Stato::Guasto) return "è guasta"_w;
    byteRimasti_ -= contenuto.byte.size();
    const std::string percorso = CreaCartelle(componenti, componenti.size() - 1) + "\\" + componenti.back();
    ambiente_.disco.Scrivi(percorso, contenuto.byte);
    return scritti_.insert(Maiuscolo(percorso)).second ? std::string_view{} : "nome ripetuto: resta l'ultima";
  }

  // The path of the first folders, created where they are missing.
  std::string CreaCartelle(const std::vector<std::string>& componenti, std::size_t quante) {
    std::string percorso = cartella_;
    for (std::size_t i = 0; i < quante; ++i) {
      percorso += "\\" + componenti[i];
      CreaCartella(ambiente_, percorso);
      ambiente_.sessione.PuntoErrore = "Esplodi_ZIP";
    }
    return percorso;
  }

  [[noreturn]] void LanciaLimite() const {
    throw Errore(errore::Overflow,
                 "L'archivio supera il limite di " + TestoIntero(static_cast<long long>(limiti_.byte >> 20U)) +
                     " MB o di " + TestoIntero(static_cast<long long>(limiti_.voci)) + " voci: estrazione interrotta");
  }

  Ambiente& ambiente_;
  ArchivioAperto& archivio_;
  std::string cartella_;
  const LimitiEsplosione& limiti_;
  std::size_t byteRimasti_;
  std::unordered_set<std::string> scritti_; // upper-cased paths
  std::vector<std::string> nonEstratte_;
};

// While it lives the disk remembers the folders that it looks into.
class Ricordo {
public:
  explicit Ricordo(Disco& disco) : disco_(disco) { disco_.RicordaCartelle(true); }
  Ricordo(const Ricordo&) = delete;
  Ricordo& operator=(const Ricordo&) = delete;
  ~Ricordo() { disco_.RicordaCartelle(false); }

private:
  Disco& disco_;
};

void NominaNonEstratte(Ambiente& ambiente, const std::string& archivio, const std::vector<std::string>& voci) {
  if (voci.empty()) return;
  const std::size_t nominate = std::min(voci.size(), MassimoNominate);
  std::string testo = archivio + std::string(FineRiga) + "Voci NON estratte o ripetute:";
  for (std::size_t i = 0; i < nominate; ++i) testo += std::string(FineRiga) + voci[i];
  if (nominate < voci.size())
    testo += std::string(FineRiga) + "e altre " + TestoIntero(static_cast<long long>(voci.size() - nominate));
  ambiente.dialoghi.Messaggio(testo);
}

} // namespace

bool Esplodi_ZIP(Ambiente& ambiente, const std::string& archivio, const std::string& cartella,
                 const LimitiEsplosione& limiti) {
  if (!ambiente.disco.Esiste(archivio)) {
    ambiente.dialoghi.Messaggio(archivio + std::string(FineRiga) + "NON trovato!");
    return false;
  }
  const std::string dove = cartella.ends_with('\\') ? cartella.substr(0, cartella.size() - 1) : cartella;
  ambiente.sessione.PuntoErrore = "Esplodi_ZIP";
  const auto aperto = ambiente.processi.ApriArchivio(CaricaFileBinario(ambiente, archivio));
  CreaCartella(ambiente, dove);
  ambiente.sessione.PuntoErrore = "Esplodi_ZIP";
  Esplosione esplosione(ambiente, *aperto, dove, limiti);
  const Ricordo ricordo(ambiente.disco);
  try {
    esplosione.Tutte();
  } catch (const Errore&) {
    NominaNonEstratte(ambiente, archivio, esplosione.NonEstratte());
    throw;
  }
  NominaNonEstratte(ambiente, archivio, esplosione.NonEstratte());
  return esplosione.NonEstratte().empty();
}

} // namespace lirmeto
