#include <piattaforma/linux/collegamenti_desktop.h>
#include <piattaforma/linux/errori_ospite.h>
#include <piattaforma/linux/processi_linux.h>

#include <base/errore.h>
#include <base/testo.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <pwd.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

std::string NomeUtente() {
  const passwd* utente = ::getpwuid(::geteuid());
  return utente != nullptr ? utente->pw_name : "";
}

// Attributes and actions of a start, released whatever happens.
class Avvio {
public:
  Avvio() {
    ::posix_spawnattr_init(&attributi_);
    ::posix_spawn_file_actions_init(&azioni_);
    // Signals that this program ignores must not stay ignored in another one.
    sigset_t segnali;
    sigemptyset(&segnali);
    sigaddset(&segnali, SIGPIPE);
    sigaddset(&segnali, SIGXFSZ);
    ::posix_spawnattr_setsigdefault(&attributi_, &segnali);
    ::posix_spawnattr_setflags(&attributi_, POSIX_SPAWN_SETSIGDEF);
  }
  Avvio(const Avvio&) = delete;
  Avvio& operator=(const Avvio&) = delete;
  ~Avvio() {
    ::posix_spawn_file_actions_destroy(&azioni_);
    ::posix_spawnattr_destroy(&attributi_);
  }

  void Cartella(const fs::path& cartella) { ::posix_spawn_file_actions_addchdir_np(&azioni_, cartella.c_str()); }

  void Muto() {
    for (const int canale : {STDOUT_FILENO, STDERR_FILENO})
      ::posix_spawn_file_actions_addopen(&azioni_, canale, "/dev/null", O_WRONLY, 0);
  }

  // Starts; the answer is the error of the start, 0 when it went.
  int Inizia(std::vector<std::string> parole, std::vector<std::string> ambiente, bool cercaNelPath) {
    const auto avvia = cercaNelPath ? ::posix_spawnp : ::posix_spawn;
    return avvia(&figlio_, parole.front().c_str(), &azioni_, &attributi_, Puntatori(parole).data(),
                 Puntatori(ambiente).data());
  }

  // Starts and waits.
  int Esegui(std::vector<std::string> parole, std::vector<std::string> ambiente, bool cercaNelPath) {
    const int esito = Inizia(std::move(parole), std::move(ambiente), cercaNelPath);
    if (esito != 0) return esito;
    while (::waitpid(figlio_, nullptr, 0) < 0 && errno == EINTR) {
    }
    return 0;
  }

  [[nodiscard]] pid_t Figlio() const { return figlio_; }

private:
  static std::vector<char*> Puntatori(std::vector<std::string>& testi) {
    std::vector<char*> puntatori;
    puntatori.reserve(testi.size() + 1);
    for (std::string& testo : testi) puntatori.push_back(testo.data());
    puntatori.push_back(nullptr);
    return puntatori;
  }

  pid_t figlio_ = 0;
  posix_spawnattr_t attributi_{};
  posix_spawn_file_actions_t azioni_{};
};

std::vector<std::string> AmbienteConDischi(const fs::path& dischi) {
  const std::string variabile = "LIRMETO_DISCHI=";
  std::vector<std::string> ambiente;
  for (char** voce = ::environ; voce != nullptr && *voce != nullptr; ++voce)
    if (std::strncmp(*voce, variabile.c_str(), variabile.size()) != 0) ambiente.emplace_back(*voce);
  std::error_code ignorato;
  ambiente.push_back(variabile + fs::absolute(dischi, ignorato).string());
  return ambiente;
}

void ControllaAvvio(int esito) {
  if (esito == ENOEXEC) throw Errore(errore::AutorizzazioneNegata); // a program, but not one of this host
  if (esito != 0) LanciaErrno(esito, errore::FileNonTrovato);
}

// Whether a program that ends within a second went well; none for one that goes on working.
std::optional<bool> FineEntroUnSecondo(pid_t processo) {
  constexpr int giri = 100;
  constexpr useconds_t pausa = 10'000;
  for (int giro = 0; giro < giri; ++giro) {
    int esito = 0;
    if (::waitpid(processo, &esito, WNOHANG) == processo) return WIFEXITED(esito) && WEXITSTATUS(esito) == 0;
    ::usleep(pausa);
  }
  return std::nullopt;
}

// Asks a program to end and, when it does not within a second, ends it.
void Interrompi(pid_t processo) {
  ::kill(processo, SIGTERM);
  if (FineEntroUnSecondo(processo)) return;
  ::kill(processo, SIGKILL);
  while (::waitpid(processo, nullptr, 0) < 0 && errno == EINTR) {
  }
}

// The exit code of a program, -1 when a signal ended it.
int AttendiFine(pid_t processo, const std::function<bool()>& attende) {
  constexpr useconds_t pausa = 10'000;
  int stato = 0;
  try {
    for (pid_t finito = 0; finito == 0;) {
      finito = ::waitpid(processo, &stato, WNOHANG);
      if (finito != 0) break;
      if (!attende()) throw Errore(errore::DialogoAnnullato);
      ::usleep(pausa);
    }
  } catch (...) {
    Interrompi(processo);
    throw;
  }
  return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
}

std::string_view UltimoComponente(std::string_view percorso) {
  const std::size_t barra = percorso.find_last_of("/\\");
  return barra == percorso.npos ? percorso : percorso.substr(barra + 1);
}

// Whether a process' name is that of the image. Without ".exe" it fits only where the program is known to be of ours: a
// program of the host that happens to be called "fire" is not Pregeo's fire.exe.
bool Corrisponde(std::string_view nome, std::string_view immagine, bool nostro) {
  if (nome.empty()) return false;
  if (UgualiSenzaCaso(nome, immagine)) return true;
  return nostro && FinisceConSenzaCaso(immagine, EstensioneProgramma) &&
         UgualiSenzaCaso(nome, immagine.substr(0, immagine.size() - EstensioneProgramma.size()));
}

std::string NomeEseguibile(const fs::path& processo) {
  constexpr std::string_view cancellato = " (deleted)"; // the file went while the process ran
  std::error_code guasto;
  std::string nome = fs::read_symlink(processo / "exe", guasto).string();
  if (FinisceConSenzaCaso(nome, cancellato)) nome.resize(nome.size() - cancellato.size());
  return DaUtf8(UltimoComponente(nome));
}

std::string NomeChiamato(const fs::path& processo) {
  std::ifstream riga(processo / "cmdline", std::ios::binary);
  std::string nome;
  std::getline(riga, nome, '\0');
  return DaUtf8(UltimoComponente(nome));
}

// Whether a process runs this very program, or one that lies under the drives.
bool Nostro(const fs::path& processo, const fs::path& dischi) {
  std::error_code guasto;
  const std::string programma = fs::read_symlink(processo / "exe", guasto).string();
  if (guasto) return false;
  const fs::path questo = fs::read_symlink("/proc/self/exe", guasto);
  return UltimoComponente(programma) == questo.filename().string() ||
         programma.starts_with(fs::weakly_canonical(dischi, guasto).string() + "/");
}

bool StessoUtente(const fs::path& processo) {
  struct stat stato {};
  return ::stat(processo.c_str(), &stato) == 0 && stato.st_uid == ::geteuid();
}

// The number of a folder of /proc; 0 for one that is no process.
long NumeroProcesso(const fs::path& cartella) {
  const std::string nome = cartella.filename().string();
  long numero = 0;
  const auto [fine, guasto] = std::from_chars(nome.data(), nome.data() + nome.size(), numero);
  return guasto == std::errc{} && fine == nome.data() + nome.size() ? numero : 0;
}

} // namespace

std::unique_ptr<ProcessiOspite> ProcessiDellaMacchina(DiscoDischi& disco) {
  return std::make_unique<ProcessiLinux>(disco);
}

CartelleDiSistema ProcessiLinux::Cartelle() {
  return CartelleSottoC(NomeUtente());
}

void ProcessiLinux::CreaCartelleDiSistema() {
  CreaCartelleMancanti(disco_, Cartelle());
}

int ProcessiLinux::AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti,
                                 const std::function<bool()>& attende) {
  const fs::path ospite = TrovaProgramma(disco_, programma);
  std::vector<std::string> parole{ospite.string()};
  for (std::string& parola : ParoleDelProgramma(argomenti)) parole.push_back(std::move(parola));
  Avvio avvio;
  avvio.Cartella(ospite.parent_path());
  ControllaAvvio(avvio.Inizia(std::move(parole), AmbienteConDischi(disco_.Dischi()), false));
  return AttendiFine(avvio.Figlio(), attende);
}

// Programs that were left alone and have ended meanwhile would stay in the table of processes.
void ProcessiLinux::RaccogliFiniti() {
  std::erase_if(lasciati_, [](int processo) { return ::waitpid(processo, nullptr, WNOHANG) != 0; });
}

void ProcessiLinux::ApriDocumento(const std::string& percorso) {
  RaccogliFiniti();
  if (!disco_.Esiste(percorso)) throw Errore(errore::FileNonTrovato);
  ApriDalDesktop(fs::absolute(disco_.PercorsoOspite(percorso)).string(), percorso);
}

void ProcessiLinux::ApriPagina(const std::string& indirizzo) {
  RaccogliFiniti();
  ApriDalDesktop(indirizzo, indirizzo);
}

// `nome` is what the user knows it by.
void ProcessiLinux::ApriDalDesktop(const std::string& cosa, const std::string& nome) {
  Avvio avvio;
  avvio.Muto();
  const int esito = avvio.Inizia({"xdg-open", cosa}, AmbienteConDischi(disco_.Dischi()), true);
  const auto fine = esito == 0 ? FineEntroUnSecondo(avvio.Figlio()) : std::optional(false);
  if (!fine) lasciati_.push_back(avvio.Figlio());
  if (!fine.value_or(true)) throw Errore(errore::AccessoAlFile, "Nessun programma apre " + nome);
}

void ProcessiLinux::ApriDocumentoCon(const std::string& programma, const std::string& percorso) {
  RaccogliFiniti();
  const fs::path eseguibile = TrovaProgramma(disco_, programma);
  if (!disco_.Esiste(percorso)) throw Errore(errore::FileNonTrovato);
  const fs::path ospite = fs::absolute(disco_.PercorsoOspite(percorso));
  Avvio avvio;
  avvio.Muto();
  avvio.Cartella(ospite.parent_path());
  const int esito =
      avvio.Inizia({eseguibile.string(), ospite.filename().string()}, AmbienteConDischi(disco_.Dischi()), false);
  ControllaAvvio(esito);
  lasciati_.push_back(avvio.Figlio());
}

void ProcessiLinux::Avvia(const std::string& programma) {
  RaccogliFiniti();
  const fs::path eseguibile = TrovaProgramma(disco_, programma);
  Avvio avvio;
  avvio.Muto();
  avvio.Cartella(eseguibile.parent_path());
  ControllaAvvio(avvio.Inizia({eseguibile.string()}, AmbienteConDischi(disco_.Dischi()), false));
  lasciati_.push_back(avvio.Figlio());
}

std::vector<long> ProcessiLinux::Elenca(std::string_view immagine) {
  std::vector<long> processi;
  std::error_code guasto;
  for (fs::directory_iterator i("/proc", guasto), fine; !guasto && i != fine; i.increment(guasto)) {
    const long numero = NumeroProcesso(i->path());
    if (numero <= 0 || !StessoUtente(i->path())) continue;
    const bool nostro = Nostro(i->path(), disco_.Dischi());
    if (Corrisponde(NomeEseguibile(i->path()), immagine, nostro) ||
        Corrisponde(NomeChiamato(i->path()), immagine, nostro))
      processi.push_back(numero);
  }
  std::sort(processi.begin(), processi.end());
  return processi;
}

long ProcessiLinux::QuestoProcesso() const {
  return ::getpid();
}

int ProcessiLinux::Termina(long processo) {
  if (processo <= 0) return EINVAL; // would reach whole groups of processes
  if (::kill(static_cast<pid_t>(processo), SIGTERM) != 0) return errno;
  static_cast<void>(::kill(static_cast<pid_t>(processo), SIGCONT)); // a stopped one hears of it only when it goes on
  return 0;
}

void ProcessiLinux::MostraDesktop() {
  Avvio avvio;
  avvio.Muto();
  static_cast<void>(avvio.Esegui({"wmctrl", "-k", "on"}, AmbienteConDischi(disco_.Dischi()), true));
}

void ProcessiLinux::CreaCollegamento(const Collegamento& collegamento) {
  const fs::path programma = TrovaProgramma(disco_, collegamento.programma);
  std::error_code ignorato;
  ScriviCollegamento(
      {collegamento.posto, AUtf8(collegamento.nome), programma, fs::absolute(disco_.Dischi(), ignorato)});
}

} // namespace lirmeto
