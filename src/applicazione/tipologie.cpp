#include <applicazione/tipologie.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <core/proposta_libretto.h>
#include <core/riga.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>
#include <estratti/kr_estratto.h>
#include <generazione/mappale_da_mantenere.h>
#include <generazione/seleziona_mappali.h>
#include <generazione/tipol10.h>
#include <grafica/disegno_condiviso.h>

#include <algorithm>
#include <array>
#include <string>

namespace lirmeto {

// What could be done in more than one way:
//
//   an entry without a number      its code is the letters in its brackets; entries of the same letters have the same
//   one parcel chosen              keeps its identifier, and nobody is asked
//   the proposal's first section   the rows 8 and 7 of the extract, its fiducial points left out
//   the rows of typology 1000      stand before the proposal, if the libretto has one
//   nothing composed               is no proposal: the libretto stays as it was, and that is said

namespace {

constexpr std::array ElencoTipologie = {
    Tipologia{Comando::ConfermaMappaENumero, "01"},
    Tipologia{Comando::ConfermaMappaVariazioneNumero, "02"},
    Tipologia{Comando::DemolizioneTotale, "03"},
    Tipologia{Comando::DemolizioneDiCorpi, "04"},
    Tipologia{Comando::AccorpamentoAllaCorte, "05", true},
    Tipologia{Comando::FusioneParticelle, "06", true},
    Tipologia{Comando::NuovaCostruzione, "07"},
    Tipologia{Comando::NuovaCostruzionePiccola, "08"},
    Tipologia{Comando::AmpliamentoPiccolo, "09"},
    Tipologia{Comando::Ampliamento, "10"},
    Tipologia{Comando::ScorporoDallaCorte, "15"},
    Tipologia{Comando::SubalterniRurali, "20"},
    Tipologia{Comando::TuttiISubalterniRurali, "21"},
    Tipologia{Comando::TuttiISubalterniCambioNumero, "22"},
    Tipologia{Comando::DemolizioneParziale, "24"},
    Tipologia{Comando::FusioneEDemolizione, "27", true},
    Tipologia{Comando::AmpliamentoRuraleIntero, "MC"},
    Tipologia{Comando::AmpliamentoUrbanoIntero, "MA"},
    Tipologia{Comando::FusioneDemolizioneNuovoNumero, "MC"},
    Tipologia{Comando::ModestaEntitaVariazione, "TM"},
    Tipologia{Comando::ModestaEntitaConferma, "TM"},
    Tipologia{Comando::EliminaTratteggiate, "MA"},
    Tipologia{Comando::TerrenoAllUrbano, "MC"},
    Tipologia{Comando::PolilineeDxf, TipologiaSenzaEstratto},
};

constexpr std::size_t CampoTipologia = 6; // of row 9

// Whether the user confirmed the form shown last.
bool Confermata(const Ambiente& ambiente) {
  return ambiente.sessione.EsitoForm >= 0;
}

template <typename Form>
bool Mostra(Ambiente& ambiente) {
  Form form(ambiente);
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
  return Confermata(ambiente);
}

bool ScegliMappali(Ambiente& ambiente, const Tipologia& tipologia) {
  if (!Mostra<SelezionaMappali>(ambiente)) return false;
  Sessione& sessione = ambiente.sessione;
  sessione.ParticellaMantenuta = sessione.ParticelleScelte;
  const bool piuDiUno = Contiene(sessione.ParticelleScelte, ",");
  return !tipologia.unaMantiene || !piuDiUno || Mostra<MappaleDaMantenere>(ambiente);
}

// From the heading on: the extract as it is, then what the typology made of it.
std::string ComponiProposta(Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  const std::string estratto = CaricaFileIntero(ambiente, PercorsoEstratto(sessione, sessione.EstrattoAssociato));
  std::string proposta = std::string(RigaProposta).append(FineRiga);
  for (const auto riga : RigheDi(estratto)) {
    const Genere genere = GenereDi(riga);
    const bool punto = genere == Genere::Coordinate && !riga.starts_with("8|PF");
    if (punto || genere == Genere::Contorno) proposta.append(riga).append(FineRiga);
  }
  return proposta.append(RigaPropostaAggiornata).append(FineRiga).append(sessione.PropostaTipologia);
}

bool ComponiNelLibretto(Ambiente& ambiente, const Tipologia& tipologia) {
  Sessione& sessione = ambiente.sessione;
  const bool conEstratto = tipologia.codice != TipologiaSenzaEstratto;
  if (conEstratto) {
    if (!EstrattoAssociatoPresente(ambiente)) return false;
    CambiaCampoNove(ambiente, CampoTipologia, tipologia.codice);
    if (!ScegliMappali(ambiente, tipologia)) return false;
  }
  sessione.TipologiaCorrente = tipologia.codice;
  MostraTipol10(ambiente);
  if (!Confermata(ambiente)) return false;
  if (sessione.PropostaTipologia.empty()) {
    ambiente.dialoghi.Messaggio("Nessuna riga di Proposta: il Libretto non cambia.");
    return false;
  }
  if (conEstratto)
    MettiPropostaInLibretto(sessione, ComponiProposta(ambiente));
  else
    AggiungiRigheLibretto(sessione, sessione.PropostaTipologia);
  return true;
}

} // namespace

const Tipologia* TrovaTipologia(Comando comando) {
  const auto trovata = std::find_if(ElencoTipologie.begin(), ElencoTipologie.end(),
                                    [comando](const Tipologia& una) { return una.comando == comando; });
  return trovata == ElencoTipologie.end() ? nullptr : &*trovata;
}

void EseguiTipologia(Ambiente& ambiente, const Tipologia& tipologia) {
  Sessione& sessione = ambiente.sessione;
  AggiornaLibrettoMisure(ambiente);
  const std::string prima = sessione.Libretto;
  try {
    if (!ComponiNelLibretto(ambiente, tipologia)) {
      sessione.TipologiaCorrente = sessione.TipologiaRilievo;
      if (sessione.Libretto == prima) return;
      sessione.Libretto = prima;
    }
    CaricaLibrettoInList1(ambiente);
  } catch (const Errore&) {
    sessione.Libretto = prima;
    CaricaLibrettoInList1(ambiente);
    throw;
  }
}

void MostraTipol10(Ambiente& ambiente) {
  ambiente.sessione.PropostaTipologia.clear();
  DisegnoDellUtente disegno(ambiente);
  Tipol10 form(ambiente, disegno);
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
}

} // namespace lirmeto
