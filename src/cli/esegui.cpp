#include <cli/esegui.h>

#include <cli/console.h>
#include <cli/opzioni.h>

#include <applicazione/avvio.h>
#include <base/errore.h>
#include <base/testo.h>
#include <core/ambiente.h>
#include <core/mostra_errore.h>
#include <core/righe_scartate.h>
#include <core/sessione.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/orologi.h>
#include <piattaforma/percorsi_ospite.h>
#include <piattaforma/processi_ospite.h>
#include <piattaforma/trova_dischi.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace lirmeto {

namespace {

namespace fs = std::filesystem;

constexpr int Fatto = 0;
constexpr int ErroreMostrato = 1;
constexpr int FileIllegibile = 3;

bool Stampa(std::FILE* canale, std::string_view byte) {
  return std::fwrite(byte.data(), 1, byte.size(), canale) == byte.size() && std::fflush(canale) == 0;
}

// Why a file cannot be opened, Windows-1252; empty when it can.
std::string MotivoIllegibile(const std::string& utf8) {
  const std::string nome = DaUtf8(utf8);
  const fs::path file = OspiteDaUtf8(utf8);
  const GenereFile genere = GenereOspite(file);
  if (genere == GenereFile::Niente) return "Il file " + nome + " non esiste.";
  if (genere == GenereFile::Cartella) return nome + std::string(" è una cartella, non un file."_w);
  if (genere != GenereFile::Regolare) return nome + std::string(" non è un file che si possa leggere."_w);
  try {
    static_cast<void>(LeggiFileOspite(file, 1));
    static_cast<void>(PercorsoDaOspite(file));
  } catch (const Errore& errore) {
    return "Il file " + nome + " non si legge: " + errore.Descrizione() + ".";
  }
  return {};
}

// Kind of the argument number `indice`: the last one told may be given more than once.
GenereArgomento GenereDi(const ComandoCli& comando, std::size_t indice) {
  return comando.argomenti[std::min(indice, comando.argomenti.size() - 1)].genere;
}

bool EFile(GenereArgomento genere) {
  return genere == GenereArgomento::File || genere == GenereArgomento::AltriFile ||
         genere == GenereArgomento::FileFacoltativo;
}

// Why the first file that cannot be read cannot; empty when all can.
std::string PrimoIllegibile(const Opzioni& opzioni) {
  for (std::size_t i = 0; i < opzioni.argomenti.size(); ++i) {
    const GenereArgomento genere = GenereDi(*opzioni.comando, i);
    if (!EFile(genere) || (genere == GenereArgomento::FileFacoltativo && opzioni.argomenti[i].empty())) continue;
    std::string motivo = MotivoIllegibile(opzioni.argomenti[i]);
    if (!motivo.empty()) return motivo;
  }
  return {};
}

std::vector<std::string> ArgomentiPerIlComando(const Opzioni& opzioni) {
  std::vector<std::string> argomenti;
  for (std::size_t i = 0; i < opzioni.argomenti.size(); ++i) {
    const GenereArgomento genere = GenereDi(*opzioni.comando, i);
    const bool percorso = EFile(genere) || genere == GenereArgomento::Percorso;
    argomenti.push_back(percorso && !opzioni.argomenti[i].empty() ? PercorsoDaOspite(OspiteDaUtf8(opzioni.argomenti[i]))
                                                                  : DaUtf8(opzioni.argomenti[i]));
  }
  return argomenti;
}

// The machine of one run, and its session.
class Giro {
public:
  Giro(const Opzioni& opzioni, std::FILE* errori)
      : disco_(TrovaDischi(opzioni.dischi)), processi_(ProcessiDellaMacchina(disco_)),
        dialoghi_(errori, opzioni.risposte) {
    if (opzioni.oggi)
      orologio_ = std::make_unique<OrologioFisso>(*opzioni.oggi);
    else
      orologio_ = std::make_unique<OrologioDiSistema>();
  }

  // The result of a command; none when an error report was shown.
  std::optional<std::string> Esegui(const Opzioni& opzioni) {
    Ambiente ambiente = DammiAmbiente();
    std::string risultato;
    const bool riuscito = Intrappola(ambiente, [&] {
      PreparaCartelle(ambiente);
      CaricaInstallazione(ambiente);
      risultato = opzioni.comando->esegui(ambiente, ArgomentiPerIlComando(opzioni));
    });
    if (!riuscito || RapportoMostrato()) return std::nullopt;
    if (const std::string avviso = AvvisoRigheScartate(sessione_); !avviso.empty()) dialoghi_.Messaggio(avviso);
    return risultato;
  }

  bool Scrivi(const fs::path& file, std::string_view risultato) {
    Ambiente ambiente = DammiAmbiente();
    sessione_.PuntoErrore = "Uscita";
    return Intrappola(ambiente, [&] { ScriviFileOspite(file, risultato); });
  }

private:
  Ambiente DammiAmbiente() {
    return {sessione_, disco_, dialoghi_, finestre_, *processi_, impostazioni_, appunti_, *orologio_};
  }

  // A routine that traps its own errors has told of them already. A cancelled dialog is no error.
  [[nodiscard]] bool RapportoMostrato() const {
    return sessione_.NumeroErrore != 0 && sessione_.NumeroErrore != errore::DialogoAnnullato;
  }

  Sessione sessione_;
  DiscoDischi disco_;
  std::unique_ptr<ProcessiOspite> processi_;
  DialoghiConsole dialoghi_;
  FinestreAssenti finestre_;
  ImpostazioniDiUnGiro impostazioni_;
  AppuntiDiUnGiro appunti_;
  std::unique_ptr<Orologio> orologio_;
};

int Consegna(Giro& giro, const Opzioni& opzioni, const std::string& risultato, const Canali& canali) {
  const int fatto = opzioni.comando->codice == nullptr ? Fatto : opzioni.comando->codice(risultato);
  if (opzioni.uscita) return giro.Scrivi(*opzioni.uscita, risultato) ? fatto : ErroreMostrato;
  if (Stampa(canali.uscita, risultato)) return fatto;
  Stampa(canali.errori, RigaMessaggio(TitoloProgramma, "Impossibile scrivere sull'uscita standard."));
  return ErroreMostrato;
}

} // namespace

int Esegui(const std::vector<std::string>& parole, const Canali& canali) {
  const auto letto = LeggiOpzioni(parole);
  if (const auto* niente = std::get_if<NienteDaFare>(&letto)) {
    Stampa(canali.errori, niente->errore);
    return Stampa(canali.uscita, niente->uscita) ? niente->codice : ErroreMostrato;
  }
  const auto& opzioni = std::get<Opzioni>(letto);
  const std::string motivo = PrimoIllegibile(opzioni);
  if (!motivo.empty()) {
    Stampa(canali.errori, RigaMessaggio(TitoloProgramma, motivo));
    return FileIllegibile;
  }
  Giro giro(opzioni, canali.errori);
  const auto risultato = giro.Esegui(opzioni);
  return risultato ? Consegna(giro, opzioni, *risultato, canali) : ErroreMostrato;
}

} // namespace lirmeto
