#pragma once
// The machine in memory: every interface with a stand-in that records what was
// said and answers from a script.

#include <base/dialoghi.h>
#include <base/errore.h>
#include <base/macchina.h>
#include <core/ambiente.h>

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace lirmeto::prova {

// The two rows that a small act begins with.
inline const std::string Zero = "0|01022024|7|G224|0010|12,3|ROSSI MARIO|GEOMETRA|PADOVA|";
inline const std::string Nove = "9|12|10|20|0|VER|FR|TOTALE|";

// Files by their path, folders apart; upper case decides which is which.
class DiscoInMemoria : public Disco {
public:
  std::map<std::string, std::string> file;       // upper-cased path, content
  std::map<std::string, int> rotti;              // upper-cased path, error number that reading or writing it gives
  std::map<std::string, std::size_t> corti;      // upper-cased path, bytes that go in: one more fails and leaves it cut
  std::vector<std::string> cartelle;             // upper-cased
  Istante modificato{{2026, 11, 21}, {9, 5, 7}}; // all files

  void Metti(const std::string& percorso, std::string contenuto);
  [[nodiscard]] std::string Contenuto(const std::string& percorso) const;

  [[nodiscard]] bool Esiste(std::string_view percorso) const override;
  [[nodiscard]] bool EsisteCartella(std::string_view percorso) const override;
  [[nodiscard]] bool StessoPosto(std::string_view percorso, std::string_view altro) const override;
  [[nodiscard]] std::string Leggi(std::string_view percorso) const override;
  [[nodiscard]] std::string LeggiInizio(std::string_view percorso, std::size_t byte) const override;
  void Scrivi(std::string_view percorso, std::string_view contenuto) override;
  [[nodiscard]] Istante Modificato(std::string_view percorso) const override;
  void CreaCartella(std::string_view percorso) override;
  void Copia(std::string_view da, std::string_view a) override;
  void Elimina(std::string_view percorso) override;
  [[nodiscard]] std::vector<std::string> Elenca(std::string_view cartella, std::string_view estensione) const override;

private:
  void ControllaRotto(std::string_view percorso) const;
};

struct Detto {
  std::string testo;
  std::string titolo;
  Gravita gravita = Gravita::Informazione;
};

class DialoghiDiProva : public Dialoghi {
public:
  std::vector<Detto> detti;       // messages and questions in order
  std::deque<Risposta> risposte;  // to the next questions; the last one stays, none is No
  std::deque<std::size_t> scelte; // to the next questions of several answers; none closes the question
  std::string fileScelto;         // "*" cancels
  Carattere carattereScelto;
  std::vector<std::string> stampati; // title, "/V" or "/O", and the lines, each behind a bar
  int stampantiScelte = 0;
  std::vector<std::string> avanzamenti; // "LAVORO FATTO/TOTALE"
  std::string atteso;                   // what was waited for last
  bool rinuncia = false;                // gives up at once

  void Messaggio(std::string_view testo, std::string_view titolo, Gravita gravita) override;
  [[nodiscard]] Risposta Chiedi(std::string_view testo, std::string_view titolo, Bottoni bottoni) override;
  [[nodiscard]] std::optional<std::size_t> Scegli(std::string_view testo, std::string_view titolo,
                                                  const std::vector<std::string>& bottoni) override;
  [[nodiscard]] std::string ScegliFileDaAprire(const RichiestaFile& richiesta) override;
  [[nodiscard]] std::string ScegliFileDaSalvare(const RichiestaFile& richiesta) override;
  [[nodiscard]] Carattere ScegliCarattere(const Carattere& attuale) override;
  void ScegliStampante() override { ++stampantiScelte; }
  void Stampa(const Stampato& stampato) override;
  void Avanzamento(std::string_view lavoro, std::size_t fatto, std::size_t totale) override {
    avanzamenti.push_back(std::string(lavoro) + " " + std::to_string(fatto) + "/" + std::to_string(totale));
  }
  [[nodiscard]] bool Attesa(std::string_view cosa) override {
    atteso = cosa;
    return !rinuncia;
  }

  [[nodiscard]] std::string UltimoTesto() const { return detti.empty() ? std::string{} : detti.back().testo; }
};

// A form shown is played by `utente`; a form opened by name is noted.
class FinestreDiProva : public Finestre {
public:
  std::function<void(Modello&)> utente;
  std::vector<std::string> disponibili;
  std::vector<std::string> aperte;

  void MostraModale(Modello& modello) override {
    if (utente) utente(modello);
  }
  [[nodiscard]] bool Disponibile(std::string_view nome) const override;
  void Apri(std::string_view nome) override { aperte.emplace_back(nome); }
};

class ProcessiDiProva : public Processi {
public:
  std::map<std::string, std::vector<long>> vivi; // image name, processes
  std::vector<long> terminati;
  std::vector<std::string> avviati;  // programs; "PROGRAM < DOCUMENT" when started on one
  std::vector<std::string> aperti;   // documents
  std::map<std::string, int> guasti; // program or document, error number that starting or opening it gives
  std::vector<Collegamento> collegamenti;
  std::set<PostoCollegamento> negati; // places that take no shortcut
  int esitoTermina = 0;
  int codiceUscita = 0;                                                     // of a program that is waited for
  std::function<std::unique_ptr<ArchivioAperto>(std::string)> apriArchivio; // none: no archive can be read
  // What a program does that is started and waited for.
  std::function<void(const std::string& programma, const std::vector<std::string>& argomenti)> quandoAvvia;
  std::function<void()> quandoAspetta; // what the others do meanwhile

  [[nodiscard]] CartelleDiSistema Cartelle() override {
    return {"C:\\users\\prova\\Documents", "C:\\WINDOWS", "C:\\users\\prova\\Temp", "C:\\Program Files (x86)"};
  }
  int AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti,
                    const std::function<bool()>& attende) override {
    Guastati(programma);
    avviati.push_back(programma);
    if (!attende()) throw Errore(errore::DialogoAnnullato);
    if (quandoAvvia) quandoAvvia(programma, argomenti);
    return codiceUscita;
  }
  void ApriDocumento(const std::string& percorso) override {
    Guastati(percorso);
    aperti.push_back(percorso);
  }
  void Avvia(const std::string& programma) override {
    Guastati(programma);
    avviati.push_back("lascia " + programma);
  }
  void ApriPagina(const std::string& indirizzo) override { aperti.push_back(indirizzo); }
  void ApriDocumentoCon(const std::string& programma, const std::string& percorso) override {
    Guastati(programma);
    avviati.push_back(programma + " < " + percorso);
  }
  [[nodiscard]] std::vector<long> Elenca(std::string_view immagine) override { return vivi[std::string(immagine)]; }
  [[nodiscard]] long QuestoProcesso() const override { return 1; }
  [[nodiscard]] int Termina(long processo) override {
    terminati.push_back(processo);
    return esitoTermina;
  }
  [[nodiscard]] std::unique_ptr<ArchivioAperto> ApriArchivio(std::string byte) override {
    if (!apriArchivio) throw Errore(errore::OltreLaFine);
    return apriArchivio(std::move(byte));
  }
  void Pausa(int /*millisecondi*/) override {
    if (quandoAspetta) quandoAspetta();
  }
  void MostraDesktop() override { avviati.emplace_back("desktop"); }
  void CreaCollegamento(const Collegamento& collegamento) override;
  [[nodiscard]] std::string VersioneFile(std::string_view percorso) override {
    return percorso == "C:\\pregeo\\EXE\\PREGEO.EXE" ? "10.6.0.3" : throw Errore(errore::FileNonTrovato);
  }

private:
  void Guastati(const std::string& nome) const {
    if (const auto guasto = guasti.find(nome); guasto != guasti.end()) throw Errore(guasto->second);
  }
};

class ImpostazioniInMemoria : public Impostazioni {
public:
  std::map<std::string, std::string> valori; // "SEZIONE/chiave"
  [[nodiscard]] std::string Leggi(std::string_view sezione, std::string_view chiave,
                                  std::string_view predefinito) const override;
  void Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) override;
};

class AppuntiDiProva : public Appunti {
public:
  std::string testo;
  [[nodiscard]] std::string Testo() const override { return testo; }
  void MettiTesto(std::string_view nuovo) override { testo = nuovo; }
};

class OrologioFermo : public Orologio {
public:
  Data oggi{2026, 11, 21};
  Ora adesso{9, 5, 7};
  [[nodiscard]] Data Oggi() const override { return oggi; }
  [[nodiscard]] Ora Adesso() const override { return adesso; }
};

// Everything a command needs, with the folders of an installation on a drive C:
// and a session that knows them.
struct Banco {
  Banco();

  Sessione sessione;
  DiscoInMemoria disco;
  DialoghiDiProva dialoghi;
  FinestreDiProva finestre;
  ProcessiDiProva processi;
  ImpostazioniInMemoria impostazioni;
  AppuntiDiProva appunti;
  OrologioFermo orologio;
  Ambiente ambiente{sessione, disco, dialoghi, finestre, processi, impostazioni, appunti, orologio};

  // Opens a libretto's text and lists it.
  void Apri(const std::string& testo, const std::string& nome = "C:\\LIBRETTO.DAT");
  [[nodiscard]] std::vector<std::string> Righe() const;
};

// The rows of a list as texts of their own.
[[nodiscard]] std::vector<std::string> Copia(const ListaRighe& righe);
[[nodiscard]] ListaRighe Lista(const std::vector<std::string>& righe);

// Rows joined as a file holds them, each with its line end.
[[nodiscard]] std::string Testo(const std::vector<std::string>& righe);

// A small installation: PREGEO.INI, Pregeo.EXE and the tables of three comuni.
void MettiInstallazione(DiscoInMemoria& disco);

} // namespace lirmeto::prova
