#include <cli/opzioni.h>

#include <cli/console.h>

#include <applicazione/avvio.h>
#include <base/testo.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <map>

namespace lirmeto {

namespace {

constexpr int UsoErrato = 2;

const std::map<std::string, Risposta>& Risposte() {
  static const std::map<std::string, Risposta> risposte = {
      {"si", Risposta::Si}, {"no", Risposta::No}, {"annulla", Risposta::Annulla}};
  return risposte;
}

// What the parser fills; the commands share the place of their one argument, since only one of them is given.
struct Scritte {
  std::string dischi;
  std::string oggi;
  std::vector<std::string> risposte;
  std::string uscita;
  std::string argomento;
};

// Whole number of exactly so many digits.
std::optional<int> Cifre(std::string_view testo) {
  int numero = 0;
  const auto [fine, guasto] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (guasto != std::errc{} || fine != testo.data() + testo.size() || testo.front() == '-') return std::nullopt;
  return numero;
}

std::string ControllaDischi(const std::string& cartella) {
  std::error_code ignorato;
  return std::filesystem::is_directory(cartella, ignorato) ? "" : "la cartella " + cartella + " non esiste";
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
  return "lirmeto-cli " + std::string(NumeroMaggiore) + "." + std::string(NumeroRevisione);
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

void AggiungiComandi(CLI::App& app, Scritte& scritte) {
  app.require_subcommand(1);
  for (const ComandoCli& comando : ComandiCli()) {
    CLI::App* voce = app.add_subcommand(std::string(comando.nome), std::string(comando.descrizione));
    voce->group("Comandi")->fallthrough()->set_help_flag("-h,--help", "mostra questo aiuto")->group("Opzioni");
    voce->footer("Le altre opzioni: lirmeto-cli --help");
    if (comando.genere == ArgomentoCli::File)
      voce->add_option("FILE", scritte.argomento, "file da aprire")->option_text(" ")->required();
    else
      voce->add_option("TESTO", scritte.argomento, "inizio del nome, o codice; senza: tutti")->option_text(" ");
  }
}

const ComandoCli* ComandoScelto(const CLI::App& app) {
  const auto scelti = app.get_subcommands();
  if (scelti.empty()) return nullptr;
  const auto comandi = ComandiCli();
  const auto trovato = std::find_if(comandi.begin(), comandi.end(), [&](const ComandoCli& comando) {
    return comando.nome == scelti.front()->get_name();
  });
  return &*trovato;
}

std::string SpiegaErrore(const CLI::App& app, const CLI::ParseError& sbaglio) {
  const auto avanzi = app.remaining(true);
  const bool senzaComando = app.get_subcommands().empty();
  if (dynamic_cast<const CLI::ValidationError*>(&sbaglio) != nullptr) return sbaglio.what();
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&sbaglio) != nullptr) return "Un'opzione è senza il suo valore.";
  if (!avanzi.empty() && avanzi.front().rfind('-', 0) == 0) return "Opzione sconosciuta: " + avanzi.front();
  if (!avanzi.empty()) return (senzaComando ? "Comando sconosciuto: " : "Argomento di troppo: ") + avanzi.front();
  if (senzaComando) return "Manca il comando.";
  return "Manca il FILE del comando " + app.get_subcommands().front()->get_name() + ".";
}

NienteDaFare UsoSbagliato(const CLI::App& app, const CLI::ParseError& sbaglio) {
  return {UsoErrato, "",
          "[" + std::string(TitoloProgramma) + "] " + SpiegaErrore(app, sbaglio) +
              "\nPer l'aiuto: lirmeto-cli --help\n"};
}

Opzioni DaScritte(const CLI::App& app, const Scritte& scritte) {
  Opzioni opzioni;
  if (!scritte.dischi.empty()) opzioni.dischi = scritte.dischi;
  if (!scritte.oggi.empty()) opzioni.oggi = LeggiData(scritte.oggi);
  if (!scritte.uscita.empty()) opzioni.uscita = scritte.uscita;
  for (const std::string& risposta : scritte.risposte) opzioni.risposte.push_back(Risposte().at(risposta));
  opzioni.comando = ComandoScelto(app);
  opzioni.argomento = scritte.argomento;
  return opzioni;
}

} // namespace

std::optional<Data> LeggiData(std::string_view testo) {
  if (testo.size() != 10 || testo[4] != '-' || testo[7] != '-') return std::nullopt;
  const auto anno = Cifre(testo.substr(0, 4));
  const auto mese = Cifre(testo.substr(5, 2));
  const auto giorno = Cifre(testo.substr(8, 2));
  if (!anno || !mese || !giorno || *anno == 0) return std::nullopt;
  const std::chrono::year_month_day data{std::chrono::year(*anno), std::chrono::month(static_cast<unsigned>(*mese)),
                                         std::chrono::day(static_cast<unsigned>(*giorno))};
  if (!data.ok()) return std::nullopt;
  return Data{*anno, *mese, *giorno};
}

std::variant<Opzioni, NienteDaFare> LeggiOpzioni(const std::vector<std::string>& parole) {
  CLI::App app("Lirmeto da riga di comando: lo stesso lavoro senza finestre.", "lirmeto-cli");
  Scritte scritte;
  Etichette(app);
  AggiungiOpzioni(app, scritte);
  AggiungiComandi(app, scritte);
  try {
    app.parse(std::vector<std::string>(parole.rbegin(), parole.rend())); // the parser takes from the back
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
