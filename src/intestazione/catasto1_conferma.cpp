// The header form's confirm, step by step.

#include <intestazione/catasto1_form.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>
#include <intestazione/catasto1_difetti.h>
#include <intestazione/catasto1_righe.h>
#include <pregeo/pregeo_ini.h>
#include <pregeo/tecnico.h>
#include <supporto/codice_fiscale.h>

#include <algorithm>

namespace lirmeto {

// How the confirm goes, where it could be done in more than one way:
//
//   a date, comune or sheet that no row can     the form stays open at its box, whose text is kept, before anything is
//   have                                        changed; eight characters that are no date are such a date
//   the surveyor's file or PREGEO.INI cannot    the report says so, and the rows are written all the same
//   be written
//   the list once its rows are changed          goes to Libretto at once: Pregeo's defaults are taken from there
//   the fiscal code                             is checked without the blanks around it, and before anything is changed:
//                                               No leaves rows, surveyor's file, PREGEO.INI and session as they were

namespace {

constexpr std::string_view Conferma = "6|CONFERMA|";
constexpr std::size_t TerzaRiga = 2;

bool EConferma(const ElencoRighe& righe) {
  return righe.Quante() > TerzaRiga && UgualiSenzaCaso(righe.Riga(TerzaRiga), Conferma);
}

// "6|CONFERMA|" stands third where row 9 is of type CM, and nowhere else.
void AccordaConferma(ElencoRighe& righe, std::string_view rigaNove) {
  const bool voluta = Contiene(rigaNove, "|CM|");
  if (voluta == EConferma(righe)) return;
  voluta ? righe.Inserisci(TerzaRiga, Conferma) : righe.Togli(TerzaRiga);
}

} // namespace

void FormCatasto1TXT::ConfermaConfigurazione0() {
  Sessione& sessione = ambiente_.sessione;
  sessione.PuntoErrore = "ConfermaConfigurazione0";
  AvvisaProtocollo();
  if (AggiornaData) caselle_.Metti(casella::Data, TestoData(ambiente_.orologio.Oggi()));
  if (!CaselleGiuste() || !AccettaCodiceFiscale()) {
    sessione.EsitoForm = EsitoAnnullato; // closed in any other way from here on, the form is cancelled
    return;
  }
  AssicuraZeroNoveInList1(ambiente_);
  sessione.PuntoErrore = "RiordinoMappali";
  const std::string mappali = caselle_[casella::Mappali];
  caselle_.Metti(casella::Mappali, Taglia(mappali).empty() ? "1" : RiordinoMappali(mappali));
  sessione.PuntoErrore = "ConfermaConfigurazione4";
  caselle_.Pulisci();
  Completa();
  caselle_.DaiTecnico(sessione);
  sessione.PuntoErrore = "ConfermaConfigurazione5";
  Prova([&] { SalvaTecnico(ambiente_); });
  ScriviZeroNove();
  ScriviCommento();
  AccordaConferma(sessione.List1, sessione.RigaNove);
  AggiornaLibrettoMisure(ambiente_);
  sessione.EstrattoAssociato = Taglia(EtichettaEstratto);
  sessione.ModoEditor = ModoEditorLibretto;
  AggiornaPregeo();
  Chiusa = true;
}

void FormCatasto1TXT::AvvisaProtocollo() {
  if (Valore(caselle_[casella::Protocollo]) < 1)
    ambiente_.dialoghi.Messaggio("Protocollo non numerico!", "Protocollo non Numerico", Gravita::Critico);
}

// A wrong date is told; the form stays at the box, which shows the reason.
bool FormCatasto1TXT::CaselleGiuste() {
  DaCorreggere = PrimaDaCorreggere(caselle_, ambiente_.sessione);
  if (DaCorreggere == casella::Data)
    ambiente_.dialoghi.Messaggio(Difetto(casella::Data), "Errore nella data", Gravita::Critico);
  if (!DaCorreggere) ControllaData();
  return !DaCorreggere;
}

void FormCatasto1TXT::ControllaData() {
  caselle_.Metti(casella::Data, DataAOttoCifre(Taglia(caselle_[casella::Data])));
  const Data oggi = ambiente_.orologio.Oggi();
  const auto data = DataDaTesto(caselle_[casella::Data]);
  if (!data || *data >= oggi) return; // an empty one becomes today with the other defaults
  std::string domanda;
  domanda += "La data indicata è precedente la data attuale del PC!!"_w;
  domanda += std::string(FineRiga) + "Inserire data attuale?";
  if (ambiente_.dialoghi.Chiedi(domanda, "Verifica data Libretto", Bottoni::SiNo) == Risposta::Si)
    caselle_.Metti(casella::Data, TestoData(oggi));
}

void FormCatasto1TXT::ScriviZeroNove() {
  Sessione& sessione = ambiente_.sessione;
  sessione.RigaZero = caselle_.RigaZero();
  sessione.RigaNove = caselle_.RigaNove();
  sessione.List1.Cambia(0, sessione.RigaZero);
  sessione.List1.Cambia(1, sessione.RigaNove);
}

void FormCatasto1TXT::ScriviCommento() {
  Sessione& sessione = ambiente_.sessione;
  ElencoRighe& righe = sessione.List1;
  const std::string commento(Taglia(InUnCampo(caselle_[casella::Commento])));
  sessione.RigaCommento = commento.empty() ? std::string{} : "6|" + commento + "|";
  const std::size_t posto = PostoCommento(righe.Righe());
  const bool occupato = posto < righe.Quante() && CedeIlPosto(righe.Riga(posto));
  if (sessione.RigaCommento.empty()) {
    if (occupato && Contiene(righe.Riga(posto), "DettaglioTipoAgg")) righe.Togli(posto);
  } else if (occupato) {
    righe.Cambia(posto, sessione.RigaCommento);
  } else {
    righe.Inserisci(TerzaRiga, sessione.RigaCommento);
  }
}

void FormCatasto1TXT::AggiornaPregeo() {
  Sessione& sessione = ambiente_.sessione;
  sessione.PuntoErrore = "ConfermaConfigurazione6";
  if (AggiornaPregeoIni)
    Prova([&] { AggiornaConfigurazionePregeo(ambiente_); });
  else
    DecoZeroNove(ambiente_);
  sessione.PuntoErrore = "ConfermaConfigurazione7";
  ScriviOpzioni();
}

bool FormCatasto1TXT::AccettaCodiceFiscale() {
  if (ControllaCodiceFiscale(Taglia(caselle_[casella::CodiceFiscale])) != CodiceErrato) return true;
  const std::string domanda = "Probabile Codice Fiscale non Corretto!" + std::string(FineRiga) + "Continuare?";
  return ambiente_.dialoghi.Chiedi(domanda, "Verifica Codice Fiscale", Bottoni::SiNo) == Risposta::Si;
}

} // namespace lirmeto
