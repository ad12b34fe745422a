#pragma once
// What the logic says to the user and asks of him, and the windows it opens.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Title of every message that has none of its own.
inline constexpr std::string_view TitoloProgramma = "Lirmeto";

enum class Gravita { Informazione, Critico };
enum class Bottoni { SiNo, SiNoAnnulla };
enum class Risposta { Si, No, Annulla };

struct Carattere {
  double dimensione = 10; // points
  std::string nome = "Courier New";
  bool grassetto = false;
  bool corsivo = false;
  bool operator==(const Carattere&) const = default;
};

enum class Orientamento { Verticale, Orizzontale };

// A text to print, one line an entry, in one font. A page holds as many lines as its height gives; a line too wide for
// the page is cut at its margin.
struct Stampato {
  std::vector<std::string_view> righe;
  Carattere carattere;
  Orientamento orientamento = Orientamento::Verticale;
  std::string titolo;          // of the document, as the printer's queue shows it
  bool numeriDiPagina = false; // "Pagina 1 di 3" at the foot
};

struct RichiestaFile {
  std::string titolo;
  std::string cartella; // where the dialog opens, as "c:\"
  std::string nome;     // name proposed
  std::string filtro;   // "Libretti (*.dat *.txt)", parts separated by ";;";
                        // empty: all files
};

// Message boxes, questions, the platform's common dialogs and progress. A
// common dialog that the user cancels throws Errore 32755.
class Dialoghi {
public:
  virtual ~Dialoghi() = default;

  virtual void Messaggio(std::string_view testo, std::string_view titolo = TitoloProgramma,
                         Gravita gravita = Gravita::Informazione) = 0;
  [[nodiscard]] virtual Risposta Chiedi(std::string_view testo, std::string_view titolo, Bottoni bottoni) = 0;

  // One of several answers, each on a button of its own: its index; none when the question is cancelled.
  [[nodiscard]] virtual std::optional<std::size_t> Scegli(std::string_view testo, std::string_view titolo,
                                                          const std::vector<std::string>& risposte) = 0;

  // Path of a file that is there.
  [[nodiscard]] virtual std::string ScegliFileDaAprire(const RichiestaFile& richiesta) = 0;
  // Path chosen for a save.
  [[nodiscard]] virtual std::string ScegliFileDaSalvare(const RichiestaFile& richiesta) = 0;
  [[nodiscard]] virtual Carattere ScegliCarattere(const Carattere& attuale) = 0;

  // The user picks a printer and its paper: that printer becomes the current one.
  virtual void ScegliStampante() = 0;
  // Prints on the current printer. Errors: 482 no printer, or it does not go.
  virtual void Stampa(const Stampato& stampato) = 0;

  // Long work tells how far it is: `fatto` of `totale` steps; `fatto` equal to
  // `totale` ends it. Cheap to call often: the implementation shows it only
  // when the work lasts over half a second.
  virtual void Avanzamento(std::string_view lavoro, std::size_t fatto, std::size_t totale) = 0;

  // Something outside is waited for whose end nobody knows. Called again and again, and cheap, as Avanzamento is, which
  // ends it too. The answer is whether to go on: false once the user has given up.
  [[nodiscard]] virtual bool Attesa(std::string_view cosa) = 0;

  // A command begins, and has ended: calls nest. Whoever has a pointer shows with it that the program works.
  virtual void Lavora(bool /*si*/) {}
};

// A form as a model without a toolkit: its boxes and lists are plain data, its
// buttons are methods.
class Modello {
public:
  Modello() = default;
  Modello(const Modello&) = delete;
  Modello& operator=(const Modello&) = delete;
  virtual ~Modello() = default;
};

// Shows forms. A form of a layer above the caller's is reached by its name.
class Finestre {
public:
  virtual ~Finestre() = default;

  // Shows the model's window and returns when it is closed.
  virtual void MostraModale(Modello& modello) = 0;

  // Whether the form of this name exists in this program, and opening it.
  [[nodiscard]] virtual bool Disponibile(std::string_view nome) const = 0;
  virtual void Apri(std::string_view nome) = 0;
};

} // namespace lirmeto
