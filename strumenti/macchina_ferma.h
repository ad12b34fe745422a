#pragma once
// The machine as the pictures want it: it reads and changes nothing, and keeps silent.

#include <ui/comune/testo_qt.h>

#include <applicazione/forme.h>
#include <base/errore.h>
#include <base/testo.h>
#include <piattaforma/disco_dischi.h>

#include <QTextStream>

#include <map>

namespace lirmeto::foto {

// Reads the disk, and keeps in memory what is written: a window may need the file that another one wrote.
class DiscoInLettura final : public Disco {
public:
  explicit DiscoInLettura(const Disco& disco) : disco_(disco) {}
  [[nodiscard]] bool Esiste(std::string_view percorso) const override {
    return scritti_.contains(Maiuscolo(percorso)) || disco_.Esiste(percorso);
  }
  [[nodiscard]] bool EsisteCartella(std::string_view percorso) const override {
    return disco_.EsisteCartella(percorso);
  }
  [[nodiscard]] bool StessoPosto(std::string_view percorso, std::string_view altro) const override {
    return disco_.StessoPosto(percorso, altro);
  }
  [[nodiscard]] std::string Leggi(std::string_view percorso) const override {
    const auto scritto = scritti_.find(Maiuscolo(percorso));
    return scritto != scritti_.end() ? scritto->second : disco_.Leggi(percorso);
  }
  [[nodiscard]] std::string LeggiInizio(std::string_view percorso, std::size_t byte) const override {
    return scritti_.contains(Maiuscolo(percorso)) ? Leggi(percorso).substr(0, byte)
                                                  : disco_.LeggiInizio(percorso, byte);
  }
  [[nodiscard]] std::vector<std::string> Elenca(std::string_view cartella, std::string_view estensione) const override {
    auto nomi = disco_.Elenca(cartella, estensione);
    const std::string inizio = Maiuscolo(cartella) + "\\";
    for (const auto& [percorso, contenuto] : scritti_)
      if (percorso.starts_with(inizio) && FinisceConSenzaCaso(percorso, estensione))
        nomi.push_back(percorso.substr(inizio.size()));
    return nomi;
  }
  void Scrivi(std::string_view percorso, std::string_view contenuto) override {
    scritti_[Maiuscolo(percorso)] = contenuto;
  }
  [[nodiscard]] Istante Modificato(std::string_view percorso) const override { return disco_.Modificato(percorso); }
  void CreaCartella(std::string_view /*percorso*/) override {}
  void Copia(std::string_view /*da*/, std::string_view /*a*/) override {}
  void Elimina(std::string_view /*percorso*/) override {}

private:
  const Disco& disco_;
  std::map<std::string, std::string> scritti_; // upper-cased path, content
};

class ProcessiFermi final : public Processi {
public:
  explicit ProcessiFermi(Processi& processi) : processi_(processi) {}
  [[nodiscard]] CartelleDiSistema Cartelle() override { return processi_.Cartelle(); }
  int AvviaEAttendi(const std::string& /*programma*/, const std::vector<std::string>& /*argomenti*/,
                    const std::function<bool()>& /*attende*/) override {
    return 0;
  }
  void ApriDocumento(const std::string& /*percorso*/) override {}
  void Avvia(const std::string& /*programma*/) override {}
  void ApriPagina(const std::string& /*indirizzo*/) override {}
  void ApriDocumentoCon(const std::string& /*programma*/, const std::string& /*percorso*/) override {}
  [[nodiscard]] std::vector<long> Elenca(std::string_view /*immagine*/) override { return {}; }
  [[nodiscard]] long QuestoProcesso() const override { return processi_.QuestoProcesso(); }
  [[nodiscard]] int Termina(long /*processo*/) override { return 0; }
  [[nodiscard]] std::unique_ptr<ArchivioAperto> ApriArchivio(std::string byte) override {
    return processi_.ApriArchivio(std::move(byte));
  }
  void Pausa(int /*millisecondi*/) override {}
  void MostraDesktop() override {}
  void CreaCollegamento(const Collegamento& /*collegamento*/) override {}
  [[nodiscard]] std::string VersioneFile(std::string_view percorso) override {
    return processi_.VersioneFile(percorso);
  }

private:
  Processi& processi_;
};

class DialoghiMuti final : public Dialoghi {
public:
  void Messaggio(std::string_view testo, std::string_view titolo, Gravita /*gravita*/) override {
    QTextStream(stderr) << '[' << ui::AQString(titolo) << "] " << ui::AQString(testo) << '\n';
  }
  [[nodiscard]] Risposta Chiedi(std::string_view /*testo*/, std::string_view /*titolo*/, Bottoni /*bottoni*/) override {
    return Risposta::No;
  }
  [[nodiscard]] std::optional<std::size_t> Scegli(std::string_view /*testo*/, std::string_view /*titolo*/,
                                                  const std::vector<std::string>& /*risposte*/) override {
    return std::nullopt;
  }
  [[nodiscard]] std::string ScegliFileDaAprire(const RichiestaFile& /*richiesta*/) override {
    throw Errore(errore::DialogoAnnullato);
  }
  [[nodiscard]] std::string ScegliFileDaSalvare(const RichiestaFile& /*richiesta*/) override {
    throw Errore(errore::DialogoAnnullato);
  }
  [[nodiscard]] Carattere ScegliCarattere(const Carattere& attuale) override { return attuale; }
  void ScegliStampante() override {}
  void Stampa(const Stampato& /*stampato*/) override {}
  void Avanzamento(std::string_view /*lavoro*/, std::size_t /*fatto*/, std::size_t /*totale*/) override {}
  [[nodiscard]] bool Attesa(std::string_view /*cosa*/) override { return true; }
};

// Shows none, and says which there are: entries look as in the program.
class NessunaFinestra final : public Finestre {
public:
  void MostraModale(Modello& /*modello*/) override {}
  [[nodiscard]] bool Disponibile(std::string_view nome) const override { return TrovaForma(nome) != nullptr; }
  void Apri(std::string_view /*nome*/) override {}
};

class ImpostazioniVuote final : public Impostazioni {
public:
  [[nodiscard]] std::string Leggi(std::string_view /*sezione*/, std::string_view /*chiave*/,
                                  std::string_view predefinito) const override {
    return std::string(predefinito);
  }
  void Scrivi(std::string_view /*sezione*/, std::string_view /*chiave*/, std::string_view /*valore*/) override {}
};

class AppuntiPropri final : public Appunti {
public:
  [[nodiscard]] std::string Testo() const override { return testo_; }
  void MettiTesto(std::string_view testo) override { testo_ = testo; }

private:
  std::string testo_;
};

} // namespace lirmeto::foto
