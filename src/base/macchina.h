#pragma once
// The interfaces to the machine: everything the logic asks of disk, processes,
// settings, clipboard and clock. Paths are texts with a drive, such as
// "C:\pregeo\estratti\X.EMP" (Windows-1252). What fails throws Errore.

#include <base/data.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Files and folders under drive letters. Every component of a path is looked up
// without regard to case, an existing spelling being preferred; "\" and "/"
// both separate. A path without a drive, with ".." or with an impossible
// character is error 52.
class Disco {
public:
  virtual ~Disco() = default;

  // Whether something (file or folder) stands there; false for a path that
  // cannot be.
  [[nodiscard]] virtual bool Esiste(std::string_view percorso) const = 0;
  [[nodiscard]] virtual bool EsisteCartella(std::string_view percorso) const = 0;

  // Whether two paths that differ in case alone lead to the same place, or would once something stands there: a host
  // that tells spellings apart may have two folders of one name.
  [[nodiscard]] virtual bool StessoPosto(std::string_view percorso, std::string_view altro) const = 0;

  // All bytes of a file. Errors: 53 not there, 70 not allowed, 75 not a file or
  // not readable.
  [[nodiscard]] virtual std::string Leggi(std::string_view percorso) const = 0;

  // At most the first `byte` bytes of a file. Errors as Leggi.
  [[nodiscard]] virtual std::string LeggiInizio(std::string_view percorso, std::size_t byte) const = 0;

  // Replaces or creates a file, whole: whatever happens while writing, the old content or the new one is there. Links
  // are followed and rights kept. Where a new file cannot be put in the old one's place it is written in place, and a
  // copy of the old content is kept until the write is known good. Errors: 61 disk full, 70, 75 read-only or a folder,
  // 76 its folder is not there.
  virtual void Scrivi(std::string_view percorso, std::string_view contenuto) = 0;

  // When a file was last written, local time. Error 53 not there.
  [[nodiscard]] virtual Istante Modificato(std::string_view percorso) const = 0;

  // Creates one folder in a folder that exists. Errors: 75 already there, 76
  // its parent is not there.
  virtual void CreaCartella(std::string_view percorso) = 0;

  // Copies a file over another. Errors as Leggi and Scrivi.
  virtual void Copia(std::string_view da, std::string_view a) = 0;

  // Deletes one file. Errors: 53 not there, 70, 75.
  virtual void Elimina(std::string_view percorso) = 0;

  // Names (not paths) of the files of a folder that end in `estensione`
  // (".EMP", without regard to case; empty: all), sorted by their upper-cased
  // bytes. A folder that is not there has none.
  [[nodiscard]] virtual std::vector<std::string> Elenca(std::string_view cartella,
                                                        std::string_view estensione) const = 0;
  // From now on, until told otherwise, folders that are looked into are remembered, so that many new names in one folder
  // do not have it read for each, and new files need not be on the disk at once. For a command that writes many files
  // and can be run again: what other programs do meanwhile is not seen. A disk with nothing to remember does nothing.
  virtual void RicordaCartelle(bool /*si*/) {}
};

// The shell's special folders, as paths without a closing backslash.
struct CartelleDiSistema {
  std::string documenti;  // the user's documents
  std::string windows;    // where PREGEO.INI lies
  std::string temporanea; // environment variable "temp"
  std::string programmi;  // environment variable "ProgramFiles(x86)"
};

// A shortcut to a program.
enum class PostoCollegamento { Desktop, MenuProgrammi, AvvioRapido };
struct Collegamento {
  PostoCollegamento posto;
  std::string nome;      // as the user sees it
  std::string programma; // path with a drive
};

// One entry of an archive, as the archive tells it: nothing of it may be trusted.
struct VoceArchivio {
  enum class Genere { File, Cartella, Collegamento }; // a link, or anything else that is neither of the two

  std::string nome; // with its folders, parted by "/" or "\\"
  Genere genere = Genere::File;
  bool protetta = false; // by a password
};

// What came of reading an entry.
struct ContenutoVoce {
  enum class Stato { Intero, Guasto, Troppo };

  std::string byte;
  Stato stato = Stato::Intero;
};

// An archive opened for unpacking, entry after entry.
class ArchivioAperto {
public:
  ArchivioAperto() = default;
  ArchivioAperto(const ArchivioAperto&) = delete;
  ArchivioAperto& operator=(const ArchivioAperto&) = delete;
  virtual ~ArchivioAperto() = default;

  // How many entries it says it has.
  [[nodiscard]] virtual std::size_t Quante() const = 0;

  // The next entry; none at the end. Error 62 when the archive is broken from here on.
  [[nodiscard]] virtual std::optional<VoceArchivio> Prossima() = 0;

  // All bytes of that entry; they are Troppo, and none given, when there are more than `massimo`.
  [[nodiscard]] virtual ContenutoVoce Leggi(std::size_t massimo) = 0;
};

// Processes and the shell.
class Processi {
public:
  virtual ~Processi() = default;

  [[nodiscard]] virtual CartelleDiSistema Cartelle() = 0;

  // Starts a program with its arguments, in the program's own folder, and waits
  // for its end as long as `attende` says so, which is asked many times a second.
  // The program is a path with a drive; "NAME.exe" that is not there is looked for
  // as "NAME". The answer is its exit code, -1 when it was ended from outside.
  // Errors: 53 no such program, 70; 32755 the wait was given up, and the program
  // ended.
  virtual int AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti,
                            const std::function<bool()>& attende) = 0;

  // Opens a file or folder with the program that the user's desktop has for it, and does not wait for its end. Errors:
  // 53 not there, 75 no program opens it.
  virtual void ApriDocumento(const std::string& percorso) = 0;

  // Starts a program without a document, in the program's own folder, and does not wait for its end. It is found as in
  // AvviaEAttendi. Errors: 53 not there, 70.
  virtual void Avvia(const std::string& programma) = 0;

  // Opens a page of the web in the user's browser, and does not wait for its end. Error 75: no program opens it.
  virtual void ApriPagina(const std::string& indirizzo) = 0;

  // Starts a program on a file, with the file's name as its argument and the file's folder as working folder, and does
  // not wait for its end. The program is found as in AvviaEAttendi. Errors: 53 program or file not there, 70.
  virtual void ApriDocumentoCon(const std::string& programma, const std::string& percorso) = 0;

  // Process numbers of the same user whose image has this name, this process
  // among them if it fits.
  [[nodiscard]] virtual std::vector<long> Elenca(std::string_view immagine) = 0;
  [[nodiscard]] virtual long QuestoProcesso() const = 0;

  // Ends a process; the answer is 0 when it went, another number when it did
  // not.
  [[nodiscard]] virtual int Termina(long processo) = 0;

  // A ZIP archive, given as its bytes, as the shell sees it: as a folder. Error 62 when they are cut short or are none.
  [[nodiscard]] virtual std::unique_ptr<ArchivioAperto> ApriArchivio(std::string byte) = 0;

  // Waits so many milliseconds.
  virtual void Pausa(int millisecondi) = 0;

  // Asks the shell to clear the desktop of windows.
  virtual void MostraDesktop() = 0;

  // Makes a shortcut, over one of the same name. Errors: 53 no such program, 70, 75, 76 this desktop has no such place.
  virtual void CreaCollegamento(const Collegamento& collegamento) = 0;

  // File version of an executable, "10.6.0.3"; empty when it tells none. Errors as Disco::Leggi.
  [[nodiscard]] virtual std::string VersioneFile(std::string_view percorso) = 0;
};

// Per-user settings: texts by section and key.
class Impostazioni {
public:
  virtual ~Impostazioni() = default;
  [[nodiscard]] virtual std::string Leggi(std::string_view sezione, std::string_view chiave,
                                          std::string_view predefinito) const = 0;
  virtual void Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) = 0;
};

// The clipboard's text, its lines ended by CR LF.
class Appunti {
public:
  virtual ~Appunti() = default;
  [[nodiscard]] virtual std::string Testo() const = 0;
  virtual void MettiTesto(std::string_view testo) = 0;
};

class Orologio {
public:
  virtual ~Orologio() = default;
  [[nodiscard]] virtual Data Oggi() const = 0;
  [[nodiscard]] virtual Ora Adesso() const = 0;
};

} // namespace lirmeto
