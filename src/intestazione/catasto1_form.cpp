#include <intestazione/catasto1_form.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/nomi_forme.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <intestazione/catasto1_difetti.h>
#include <intestazione/catasto1_righe.h>
#include <pregeo/catasto1_file.h>
#include <pregeo/pregeo_ini.h>

#include <array>

namespace lirmeto {

// How the boxes are filled, where it could be done in more than one way:
//
//   field 6 of a row 0           surname and name: those of the boxes where they say the same, else its first word and
//                                what stands behind it
//   Catasto1.txt                 holds the surname box alone, and is read so; a text of several words is divided
//   Recapito                     comes from the session, which has it from the surveyor's file
//   the two options              stand in the section of the surveyor's other option

namespace {

constexpr std::string_view NomeForm = "FormCatasto1TXT";
constexpr std::string_view SezioneOpzioni = "RELAZIONE_TECNICA";

// What the buttons of the form and leaving its boxes write into the session before the confirm.
constexpr std::array<std::string Sessione::*, 22> ValoriDelForm = {&Sessione::DataLibretto,
                                                                   &Sessione::Protocollo,
                                                                   &Sessione::CodiceComune,
                                                                   &Sessione::NomeComune,
                                                                   &Sessione::SiglaProvincia,
                                                                   &Sessione::NomeProvincia,
                                                                   &Sessione::Foglio,
                                                                   &Sessione::Mappali,
                                                                   &Sessione::Tecnico,
                                                                   &Sessione::Cognome,
                                                                   &Sessione::Nome,
                                                                   &Sessione::Qualifica,
                                                                   &Sessione::Provincia,
                                                                   &Sessione::QuotaMedia,
                                                                   &Sessione::PrecisioneLineare,
                                                                   &Sessione::PrecisioneAngolare,
                                                                   &Sessione::Strumentazione,
                                                                   &Sessione::NumeroIscrizione,
                                                                   &Sessione::CodiceFiscale,
                                                                   &Sessione::Recapito,
                                                                   &Sessione::EstrattoAssociato,
                                                                   &Sessione::MisurateAssociate};

std::string PercorsoCatasto1(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\Catasto1.txt";
}

bool Spuntata(const Impostazioni& impostazioni, std::string_view chiave) {
  return Valore(impostazioni.Leggi(SezioneOpzioni, chiave, "1")) != 0;
}

} // namespace

void FormCatasto1TXT::Prova(const std::function<void()>& comando) {
  (void)Intrappola(ambiente_, comando);
}

void FormCatasto1TXT::AlCaricamento() {
  Sessione& sessione = ambiente_.sessione;
  prima_ = DaSessione();
  LeggiOpzioni();
  CFDaPregeoINI();
  elenchi_.Carica();
  tecnici_.Elenca();
  sessione.EsitoForm = EsitoAnnullato;
  Prova([&] { CaricaCatasto1TXT(); });
  if (!sessione.Libretto.empty()) CaricaDalLibretto();
  Completa();
  caselle_.Metti(casella::EstMedio, NumeroInFormato(caselle_[casella::EstMedio], FormatoEstMedio));
  caselle_.Metti(casella::QuotaMedia, NumeroInFormato(caselle_[casella::QuotaMedia], FormatoQuotaMedia));
  EtichettaEstratto = sessione.EstrattoAssociato;
  aperte_ = caselle_;
  aperto_ = EtichettaEstratto;
}

FormCatasto1TXT::Fuori FormCatasto1TXT::DaSessione() const {
  Fuori fuori{{}, ambiente_.sessione.ModoEditor};
  fuori.valori.reserve(ValoriDelForm.size());
  for (const auto valore : ValoriDelForm) fuori.valori.push_back(ambiente_.sessione.*valore);
  return fuori;
}

bool FormCatasto1TXT::Modificata() const {
  return caselle_.Testi() != aperte_.Testi() || EtichettaEstratto != aperto_;
}

// Nothing of what was looked up or chosen in the form stays in the session.
void FormCatasto1TXT::Chiudi() {
  if (Modificata() && ambiente_.dialoghi.Chiedi("Chiudere senza confermare le modifiche?", "Intestazione del Libretto",
                                                Bottoni::SiNo) != Risposta::Si)
    return;
  for (std::size_t i = 0; i < prima_.valori.size(); ++i) ambiente_.sessione.*ValoriDelForm.at(i) = prima_.valori[i];
  ambiente_.sessione.ModoEditor = prima_.modoEditor;
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  Chiusa = true;
}

std::string FormCatasto1TXT::Difetto(std::size_t indice) const {
  return DifettoCasella(indice, caselle_[indice], ambiente_.sessione);
}

void FormCatasto1TXT::LeggiOpzioni() {
  const Impostazioni& impostazioni = ambiente_.impostazioni;
  PostoSalvato = LeggiPosizione(impostazioni, NomeForm);
  AggiornaPregeoIni = Spuntata(impostazioni, "Aggiorna_Default_Pregeo");
  AggiornaData = Spuntata(impostazioni, "Aggiorna_Default_Data");
}

void FormCatasto1TXT::ScriviOpzioni() {
  ambiente_.impostazioni.Scrivi(SezioneOpzioni, "Aggiorna_Default_Pregeo", AggiornaPregeoIni ? "1" : "0");
  ambiente_.impostazioni.Scrivi(SezioneOpzioni, "Aggiorna_Default_Data", AggiornaData ? "1" : "0");
}

void FormCatasto1TXT::SalvaPosto(const PosizioneForm& posto) {
  ScriviPosizione(ambiente_.impostazioni, NomeForm, posto);
}

void FormCatasto1TXT::CFDaPregeoINI() {
  SistemaDatiPregeoIni(ambiente_.sessione);
  caselle_.PrendiTecnico(ambiente_.sessione);
}

void FormCatasto1TXT::CaricaCatasto1TXT() {
  const std::string percorso = PercorsoCatasto1(ambiente_.sessione);
  if (ambiente_.disco.Esiste(percorso)) caselle_.MettiRighe(LeggiCatasto1(CaricaFileIntero(ambiente_, percorso)));
}

void FormCatasto1TXT::CaricaDalLibretto() {
  Catasto1 dati = DatiDelleRighe(ambiente_.sessione.Libretto);
  if (dati.commento.empty()) dati.commento = caselle_[casella::Commento];
  caselle_.MettiRighe(dati);
}

void FormCatasto1TXT::Completa() {
  caselle_.Completa(ambiente_.sessione, ambiente_.orologio.Oggi());
}

std::string_view FormCatasto1TXT::TestoPer(Elenco elenco) const {
  return Taglia(caselle_[DatiElenco(elenco).casella]);
}

void FormCatasto1TXT::Scegli(Elenco elenco, std::size_t voce) {
  if (const auto testo = elenchi_.PerCasella(elenco, voce)) Cambia(DatiElenco(elenco).casella, *testo);
}

void FormCatasto1TXT::ScegliTecnico(std::size_t indice) {
  if (indice >= tecnici_.File().size()) return;
  tecnici_.Scegli(indice);
  constexpr int carica = 21;
  Premi(carica);
}

std::string FormCatasto1TXT::ComuneInCasella() const {
  const Comune* comune = TrovaComune(ambiente_.sessione.Comuni, Taglia(caselle_[casella::Comune]));
  return comune == nullptr ? std::string{} : comune->nome + " (" + comune->provincia + ")";
}

// A box that is only written in its own way is not edited.
void FormCatasto1TXT::Lascia(std::size_t indice) {
  const bool intatta = caselle_[indice] == aperte_[indice];
  Normalizza(indice);
  if (intatta) aperte_.Metti(indice, caselle_[indice]);
}

void FormCatasto1TXT::Normalizza(std::size_t indice) {
  const std::string& testo = caselle_[indice];
  const bool vuota = Taglia(testo).empty();
  if (indice == casella::Data) {
    caselle_.Metti(indice, DataAOttoCifre(Taglia(testo)));
    ambiente_.sessione.DataLibretto = caselle_[indice];
  } else if (indice == casella::Foglio) {
    caselle_.Metti(indice, FoglioAQuattroCifre(Taglia(testo)));
  } else if (indice == casella::Mappali) {
    caselle_.Metti(indice, RiordinoMappali(testo));
  } else if (indice == casella::EstMedio && vuota) {
    EstMedio();
  } else if (vuota && (indice == casella::PrecisioneLineare || indice == casella::PrecisioneAngolare ||
                       indice == casella::Versione || indice == casella::Tipologia)) {
    caselle_.Metti(indice, ValorePredefinito(indice, ambiente_.sessione, ambiente_.orologio.Oggi()));
  }
}

void FormCatasto1TXT::ApriEstratti() {
  constexpr int modoIntestazione = 344;
  ambiente_.sessione.ModoEditor = modoIntestazione;
  Prova([&] { ApriForm(ambiente_, forma::EstrattiDiMappa); });
  EtichettaEstratto = ambiente_.sessione.EstrattoAssociato;
}

// --- Catasto1.txt

void FormCatasto1TXT::SalvaCatasto1() {
  caselle_.InCapitali(casella::Data, casella::Commento);
  const std::string percorso = PercorsoCatasto1(ambiente_.sessione);
  const Disco& disco = ambiente_.disco;
  const std::string originale = disco.Esiste(percorso) ? disco.Leggi(percorso) : std::string{};
  ambiente_.disco.Scrivi(percorso, TestoCatasto1(caselle_.PerCatasto1(), originale));
}

void FormCatasto1TXT::EliminaCatasto1() {
  const std::string percorso = PercorsoCatasto1(ambiente_.sessione);
  if (ambiente_.disco.Esiste(percorso)) ambiente_.disco.Elimina(percorso);
}

} // namespace lirmeto
