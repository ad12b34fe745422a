#include <cli/opzioni.h>

#include <cli/console.h>

#include <applicazione/versione.h>
#include <base/testo.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/percorsi_ospite.h>

#include <CLI/CLI.hpp>

#include <array>
#include <charconv>
#include <map>

namespace lirmeto {

namespace {

constexpr int UsoErrato = 2;

const std::map<std::string, Risposta>& Risposte() {
  static const std::map<std::string, Risposta> risposte = {
      {"si", Risposta::Si}, {"no", Risposta::No}, {"annulla", Risposta::Annulla}};
  return risposte;
}

// What the parser fills; the commands share the places of their arguments, since only one of them is given.
struct Scritte {
  std::string dischi;
  std::string oggi;
  std::vector<std::string> risposte;
  std::string uscita;
  std::array<std::string, 7> argomenti; // as many as a command has at most
  std::vector<std::string> altri;       // of an argument that is given more than once
};

// Whole number of exactly so many digits.
std::optional<int> Cifre(std::string_view testo) {
  int numero = 0;
  const auto [fine, guasto] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (guasto != std::errc{} || fine != testo.data() + testo.size() || testo.front() == '-') return std::nullopt;
  return numero;
}

std::string ControllaDischi(const std::string& cartella) {
  return GenereOspite(OspiteDaUtf8(cartella)) == GenereFile::Cartella ? "" : "la cartella " + cartella + " non esiste";
}

std::string ControllaOggi(const std::string& data) {
  return LeggiData(data) ? "" : "la data " + data + " non è valida: si scrive AAAA-MM-GG";
}

std::string ControllaRisposta(const std::string& risposta) {
  return Risposte().count(risposta) != 0 ? "" : "la risposta " + risposta + " non è una di si, no, annulla";
}

std::string ControllaUscita(const std::string& file) {
  return file.empty() ? "il nome del file è vuoto" : "";
}

void Etichette(CLI::App& app) {
  const auto formato = std::make_shared<CLI::Formatter>();
  formato->label("Usage", "Uso");
  formato->label("OPTIONS", "OPZIONI");
  formato->label("SUBCOMMAND", "COMANDO");
  formato->label("Positionals", "Argomenti");
  formato->label("REQUIRED", "");
  formato->column_width(26);
  app.formatter(formato);
}

std::string Versione() {
  return "lirmeto-cli " + std::string(VersioneProgramma);
}

void AggiungiOpzioni(CLI::App& app, Scritte& scritte) {
  app.option_defaults()->group("Opzioni");
  app.set_help_flag("-h,--help", "mostra questo aiuto")->group("Opzioni");
  app.set_version_flag("--version", Versione(), "mostra la versione")->group("Opzioni");
  app.add_option("--dischi", scritte.dischi, "cartella con una sottocartella per ogni unità (c, d, ...)")
      ->option_text("DIR")
      ->check(ControllaDischi);
  app.add_option("--oggi", scritte.oggi, "la data di oggi, per lavori ripetibili")
      ->option_text("AAAA-MM-GG")
      ->check(ControllaOggi);
  app.add_option("--rispondi", scritte.risposte,
                 "risposta alla prossima domanda: si, no, annulla; ripetibile, vale l'ultima; senza: no")
      ->option_text("R")
      ->allow_extra_args(false)
      ->check(ControllaRisposta);
  app.add_option("-o,--uscita", scritte.uscita, "file del risultato; senza: uscita standard")
      ->option_text("FILE")
      ->check(ControllaUscita);
}

bool Ripetuto(GenereArgomento genere) {
  return genere == GenereArgomento::AltriFile || genere == GenereArgomento::AltriTesti;
}

bool Facoltativo(GenereArgomento genere) {
  return genere == GenereArgomento::TestoFacoltativo || genere == GenereArgomento::FileFacoltativo ||
         genere == GenereArgomento::AltriTesti || genere == GenereArgomento::Bandiera;
}

void AggiungiArgomento(CLI::App& voce, const ArgomentoCli& argomento, std::string& posto,
                       std::vector<std::string>& altri) {
  const std::string nome(argomento.nome);
  const std::string spiegazione(argomento.spiegazione);
  if (argomento.genere == GenereArgomento::Bandiera) {
    voce.add_flag(nome, posto, spiegazione);
    return;
  }
  CLI::Option* opzione = Ripetuto(argomento.genere) ? voce.add_option(nome, altri, spiegazione)
                                                    : voce.add_option(nome, posto, spiegazione);
  opzione->option_text(argomento.genere == GenereArgomento::AltriFile ? "..." : " ")
      ->required(!Facoltativo(argomento.genere));
  if (argomento.genere == GenereArgomento::AltriTesti) opzione->allow_extra_args(false);
}

CLI::App* AggiungiVoce(CLI::App& app, std::string_view nome, std::string_view descrizione) {
  CLI::App* voce = app.add_subcommand(std::string(nome), std::string(descrizione));
  voce->group("Comandi")->fallthrough()->set_help_flag("-h,--help", "mostra questo aiuto")->group("Opzioni");
  voce->footer("Le altre opzioni: lirmeto-cli --help");
  return voce;
}

void AggiungiComando(CLI::App& app, const ComandoCli& comando, Scritte& scritte) {
  CLI::App* voce = AggiungiVoce(app, comando.nome, comando.descrizione);
  for (std::size_t i = 0; i < comando.argomenti.size(); ++i)
    AggiungiArgomento(*voce, comando.argomenti[i], scritte.argomenti.at(i), scritte.altri);
}

// The family's name alone, or one of its commands. Which of the two it is turns out when the line is read: until then
// the argument of the former may be missing.
void AggiungiFamiglia(CLI::App& padre, const FamigliaCli& famiglia, Scritte& scritte) {
  if (famiglia.daSola == nullptr) return static_cast<void>(padre.require_subcommand(1));
  AggiungiArgomento(padre, famiglia.daSola->argomenti[0], scritte.argomenti[0], scritte.altri);
  padre.get_option(std::string(famiglia.daSola->argomenti[0].nome))->required(false);
}

void AggiungiComandi(CLI::App& app, Scritte& scritte) {
  app.require_subcommand(1);
  for (const FamigliaCli& famiglia : FamiglieCli()) {
    CLI::App* padre = &app;
    if (!famiglia.nome.empty()) {
      padre = AggiungiVoce(app, famiglia.nome, famiglia.descrizione);
      AggiungiFamiglia(*padre, famiglia, scritte);
    }
    for (const ComandoCli& comando : famiglia.comandi) AggiungiComando(*padre, comando, scritte);
  }
}

// The subcommands given, the outer one first.
std::vector<std::string> Scelti(const CLI::App& app) {
  std::vector<std::string> nomi;
  for (auto dati = app.get_subcommands(); !dati.empty(); dati = dati.front()->get_subcommands())
    nomi.push_back(dati.front()->get_name());
  return nomi;
}

const ComandoCli* ComandoScelto(const CLI::App& app) {
  const auto nomi = Scelti(app);
  for (const FamigliaCli& famiglia : FamiglieCli()) {
    if (nomi.size() == 1 && nomi.front() == famiglia.nome) return famiglia.daSola;
    for (const ComandoCli& comando : famiglia.comandi)
      if (nomi.back() == comando.nome && (nomi.size() == 1 ? "" : nomi.front()) == famiglia.nome) return &comando;
  }
  return nullptr;
}

// A family without its command, or a command without its argument.
std::string SpiegaMancanza(const CLI::App& app) {
  const auto nomi = Scelti(app);
  if (nomi.empty()) return "Manca il comando.";
  const ComandoCli* comando = ComandoScelto(app);
  if (comando == nullptr) return "Manca il comando di " + nomi.front() + ".";
  std::string nome;
  for (const std::string& parola : nomi) nome += " " + parola;
  std::string argomenti;
  std::size_t quanti = 0;
  for (const ArgomentoCli& argomento : comando->argomenti)
    if (!Facoltativo(argomento.genere)) {
      argomenti += " " + std::string(argomento.nome);
      ++quanti;
    }
  return (quanti == 1 ? "Manca il" + argomenti : "Gli argomenti sono" + argomenti) + " del comando" + nome + ".";
}

std::string SpiegaErrore(const CLI::App& app, const CLI::ParseError& sbaglio) {
  const auto avanzi = app.remaining(true);
  const bool senzaComando = app.get_subcommands().empty();
  const bool diFamiglia = !senzaComando && ComandoScelto(app) == nullptr;
  if (dynamic_cast<const CLI::ValidationError*>(&sbaglio) != nullptr) return sbaglio.what();
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&sbaglio) != nullptr) return "Un'opzione è senza il suo valore.";
  if (!avanzi.empty() && avanzi.front().rfind('-', 0) == 0) return "Opzione sconosciuta: " + avanzi.front();
  if (!avanzi.empty())
    return (senzaComando || diFamiglia ? "Comando sconosciuto: " : "Argomento di troppo: ") + avanzi.front();
  return SpiegaMancanza(app);
}

NienteDaFare UsoSbagliato(const CLI::App& app, const CLI::ParseError& sbaglio) {
  return {UsoErrato, "",
          "[" + std::string(TitoloProgramma) + "] " + SpiegaErrore(app, sbaglio) +
              "\nPer l'aiuto: lirmeto-cli --help\n"};
}

Opzioni DaScritte(const CLI::App& app, const Scritte& scritte) {
  Opzioni opzioni;
  if (!scritte.dischi.empty()) opzioni.dischi = OspiteDaUtf8(scritte.dischi);
  if (!scritte.oggi.empty()) opzioni.oggi = LeggiData(scritte.oggi);
  if (!scritte.uscita.empty()) opzioni.uscita = OspiteDaUtf8(scritte.uscita);
  for (const std::string& risposta : scritte.risposte) opzioni.risposte.push_back(Risposte().at(risposta));
  opzioni.comando = ComandoScelto(app);
  for (std::size_t i = 0; i < opzioni.comando->argomenti.size(); ++i)
    if (!Ripetuto(opzioni.comando->argomenti[i].genere)) opzioni.argomenti.push_back(scritte.argomenti.at(i));
  opzioni.argomenti.insert(opzioni.argomenti.end(), scritte.altri.begin(), scritte.altri.end());
  return opzioni;
}

} // namespace

std::optional<Data> LeggiData(std::string_view testo) {
  if (testo.size() != 10 || testo[4] != '-' || testo[7] != '-') return std::nullopt;
  const auto anno = Cifre(testo.substr(0, 4));
  const auto mese = Cifre(testo.substr(5, 2));
  const auto giorno = Cifre(testo.substr(8, 2));
  if (!anno || !mese || !giorno || *anno == 0) return std::nullopt;
  const Data data{*anno, *mese, *giorno};
  return NelCalendario(data) ? std::optional(data) : std::nullopt;
}

std::variant<Opzioni, NienteDaFare> LeggiOpzioni(const std::vector<std::string>& parole) {
  CLI::App app("Lirmeto da riga di comando: lo stesso lavoro senza finestre.", "lirmeto-cli");
  app.allow_windows_style_options(false); // "/x" is a path everywhere
  Scritte scritte;
  Etichette(app);
  AggiungiOpzioni(app, scritte);
  AggiungiComandi(app, scritte);
  try {
    app.parse(std::vector<std::string>(parole.rbegin(), parole.rend())); // the parser takes from the back
    if (ComandoScelto(app)->nome.empty() && scritte.argomenti[0].empty()) throw CLI::RequiredError("");
    return DaScritte(app, scritte);
  } catch (const CLI::CallForHelp&) {
    return NienteDaFare{0, app.help(), ""};
  } catch (const CLI::CallForVersion&) {
    return NienteDaFare{0, Versione() + "\n", ""};
  } catch (const CLI::ParseError& sbaglio) {
    return UsoSbagliato(app, sbaglio);
  }
}

} // namespace lirmeto
