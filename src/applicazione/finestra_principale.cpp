#include <applicazione/finestra_principale.h>

#include <applicazione/autore.h>
#include <applicazione/avvio.h>
#include <applicazione/comandi_tag.h>
#include <applicazione/consegna.h>
#include <applicazione/libretti_recenti.h>
#include <applicazione/versione.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/apri_form.h>
#include <core/carattere.h>
#include <core/cartelle.h>
#include <core/caselle_riga.h>
#include <core/comandi_righe.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/programmi.h>
#include <core/riga.h>
#include <core/riordino.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>
#include <fiduciali/misurate.h>
#include <intestazione/catasto1_difetti.h>
#include <pregeo/gondella.h>
#include <pregeo/tecnico.h>
#include <supporto/editor_gen.h>
#include <supporto/stampa_generale.h>

#include <array>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::string_view FormIntestazione = "FormCatasto1TXT";
constexpr std::string_view Lxb = ".LXB";

constexpr std::array<std::string_view, 9> TestiOpzioni = {
    "Avvisa Protocollo NON Numerico",
    "Avvisa Assenza Relazione Tecnica",
    "Avvisa Assenza Modello Censuario",
    "Riordino Righe",
    "Attiva Backup Libretti con Pregeo",
    "Associa e stralcia Mappali di Riga 0",
    "Aggiorna Config. Pregeo (Dati Tecnico)",
    "Elabora con Pregeo",
    "Attiva Pregeo",
};

// The owners' text as a file of visure holds it, without the line ends around
// it. The chain of replacements is what tells which ends are cut: bars become
// blanks on the way.
std::string DittaDaVisura(std::string_view testo) {
  const std::string piatto = Sostituisci(Sostituisci(testo, " ", "|"), FineRiga, " ");
  return Sostituisci(Sostituisci(Taglia(piatto), " ", FineRiga), "|", " ");
}

std::string FileCarattere(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\CONFIGURACARATTERE.INI";
}

std::string TestoInformazioni() {
  constexpr std::array<std::string_view, 5> frasi = {
      "Si avvisa l'utente che l'utilizzo di queste Casistiche automatizzate "
      "abbisogna di una conoscenza preventiva ed "
      "approndita.",
      "Inoltre non si garantisce che la soluzione proposta possa funzionare in "
      "tutti i casi, in tutte le situazioni e "
      "con qualsiasi Estratto di Mappa.",
      "Sarà cura ed onere dell'utente approfondire le tematiche quì risolte e "
      "mettere in atto tutte le tutele "
      "necessarie."_w,
      "Non sarà in ogni caso imputabile agli Autori la sospensione o non "
      "approvazione di Tipi redatti con la seguente "
      "procedura."_w,
      "Si ringrazia fin d'ora quanti vorranno segnalare errori, "
      "malfunzionamenti o proporre suggerimenti."};
  return Unisci({frasi.begin(), frasi.end()}, FineRiga);
}

} // namespace

KR_LibrettoOriginale::KR_LibrettoOriginale(Ambiente& ambiente)
    : Verifiche(ambiente), Rilievo(ambiente, Verifiche.Esito()), ambiente_(ambiente) {
  for (const auto testo : TestiOpzioni) Opzioni.push_back({std::string(testo), true});
}

void KR_LibrettoOriginale::Prova(const std::function<void()>& comando) {
  (void)Intrappola(ambiente_, comando);
}

bool KR_LibrettoOriginale::Avvia(const std::string& comandoAvvio) {
  PreparaCartelle(ambiente_);
  ScriviCartellaDocumenti(ambiente_);
  if (!AltriModuli(ambiente_).empty() && !PrendeIlPosto(comandoAvvio)) return false;
  return Carica(comandoAvvio);
}

bool KR_LibrettoOriginale::Carica(const std::string& comandoAvvio) {
  Sessione& sessione = ambiente_.sessione;
  Titolo = "Lirmeto V. " + std::string(VersioneProgramma);
  CaricaInstallazione(ambiente_);
  CreaCartelle(ambiente_);
  Prova([&] {
    ambiente_.disco.Scrivi(sessione.CartellaProgramma + "\\VersioneLirmeto.TXT",
                           "Ver 6.00 " + std::string(VersioneProgramma) + "\r\n");
  });
  (void)PrendiConsegne(ambiente_); // of starts before this one
  DatiTecnico delFile;
  if (!ApriDaComando(comandoAvvio, delFile)) return false;
  CaricaElenco(delFile);
  // What a command or an .LXB brought in is on no disk yet.
  const bool daAltro = FinisceConSenzaCaso(comandoAvvio, Lxb) || FinisceConSenzaCaso(comandoAvvio, ".LXC");
  if (!Contiene(comandoAvvio, "|") && !daAltro) Prova([&] { RicordaIntatto(); });
  return true;
}

// Whether the window comes up. What a libretto's file tells of the surveyor holds over PREGEO.INI and his own file.
bool KR_LibrettoOriginale::ApriDaComando(const std::string& comandoAvvio, DatiTecnico& delFile) {
  Sessione& sessione = ambiente_.sessione;
  Prova([&] { Recenti = LeggiRecenti(ambiente_.impostazioni); });
  sessione.ComandoTag = comandoAvvio;
  if (comandoAvvio.empty()) {
    sessione.ComandoTag = sessione.CartellaProgramma + "\\NUOVO.DAT"; // nobody reads it as a command
    return true;
  }
  if (Contiene(comandoAvvio, "|")) return ComandoTag1(ambiente_) != DopoComando::Finisce;
  const DatiTecnico prima{std::exchange(sessione.CodiceFiscale, {}), std::exchange(sessione.NumeroIscrizione, {})};
  const bool resta = ComandoTag1(ambiente_) != DopoComando::Finisce;
  delFile = {sessione.CodiceFiscale, sessione.NumeroIscrizione};
  if (delFile.codiceFiscale.empty()) sessione.CodiceFiscale = prima.codiceFiscale;
  if (delFile.iscrizione.empty()) sessione.NumeroIscrizione = prima.iscrizione;
  if (!sessione.NomeFileLibretto.empty()) {
    RicordaRecente(PercorsoInCapitali(ambiente_.disco, Sostituisci(comandoAvvio, "\"", "")));
  }
  return resta && !sessione.FineScambio;
}

// What follows once it is known that the window comes up.
void KR_LibrettoOriginale::CaricaElenco(const DatiTecnico& delFile) {
  Sessione& sessione = ambiente_.sessione;
  sessione.PuntoErrore = "1013";
  Prova([&] {
    if (const auto letto = LeggiCarattere(ambiente_, FileCarattere(sessione))) CarattereElenco = *letto;
  });
  TerminaPregeo(ambiente_);
  Prova([&] { DecoZeroNove(ambiente_); });
  Prova([&] { CaricaTecnico(ambiente_, sessione.Tecnico + ".PFS"); });
  if (!delFile.codiceFiscale.empty()) sessione.CodiceFiscale = delFile.codiceFiscale;
  if (!delFile.iscrizione.empty()) sessione.NumeroIscrizione = delFile.iscrizione;
  Prova([&] { CaricaLibrettoInList1(ambiente_); });
  sessione.PuntoErrore = "Decozero_136";
  Prova([&] { LeggiDitta(); });
  sessione.PuntoErrore = "Decozero_141";
  MostraSessione();
  if (!sessione.NomeFileLibretto.empty()) Esito = EsitoApertura(sessione.NomeFileLibretto);
  LeggiPostiVerifiche();
  storia_.Ricomincia(sessione);
}

void KR_LibrettoOriginale::LeggiDitta() {
  Sessione& sessione = ambiente_.sessione;
  const std::string percorso =
      sessione.RadiceDati + "\\FIDUCIAL\\VISURE\\" + ComponenteFile(sessione.NomeFascicolo + ".VIS");
  if (ambiente_.disco.Esiste(percorso)) sessione.Ditta = DittaDaVisura(CaricaFileIntero(ambiente_, percorso));
}

// Boxes and labels from the session.
void KR_LibrettoOriginale::MostraSessione() {
  const Sessione& sessione = ambiente_.sessione;
  CasellaDitta = Maiuscolo(sessione.Ditta);
  EtichettaMisurate = "Misurate associate : " + sessione.MisurateAssociate;
  SiglaPulsanteProvincia = sessione.SiglaProvincia;
  Aggiornami();
}

void KR_LibrettoOriginale::Aggiornami() {
  const Sessione& sessione = ambiente_.sessione;
  CasellaIscrizione = sessione.NumeroIscrizione;
  CasellaCodiceFiscale = sessione.CodiceFiscale;
  EtichettaFile = sessione.NomeFileLibretto;
  EtichettaVersione = "Pregeo 10-G,STDA "; // a version text would follow; none is stored
  EtichettaEstratto = "Estratto : " + sessione.EstrattoAssociato;
}

void KR_LibrettoOriginale::Attivazione(bool minimizzata) {
  ambiente_.sessione.PuntoErrore = "1010";
  EtichettaEstratto = "Estratto : " + ambiente_.sessione.EstrattoAssociato;
  if (minimizzata) return;
  Righe_Indice();
  ambiente_.sessione.PuntoErrore = "1011";
  CasellaDitta = Maiuscolo(ambiente_.sessione.Ditta);
}

void KR_LibrettoOriginale::Righe_Indice() {
  Sessione& sessione = ambiente_.sessione;
  sessione.PuntoErrore = "1134";
  Titolo = "Lirmeto V " + std::string(VersioneProgramma) + " - L'Evoluzione - Libretto Misure : [" +
           sessione.Protocollo + " " + sessione.DataLibretto + "] [CF Comune : " + sessione.CodiceComune + " - " +
           sessione.NomeComune + "] [Provincia : " + sessione.NomeProvincia + "]";
  sessione.EtichettaPosizione =
      TestoIntero(sessione.List1.Indice() + 1) + "/" + TestoIntero(static_cast<long long>(sessione.List1.Quante()));
  PannelloStrumenti = false;
  EtichettaFile = sessione.NomeFileLibretto;
  SeguiRiga();
}

void KR_LibrettoOriginale::PuntatoreSuPulsante(int indice) {
  PannelloStrumenti = indice == PulsanteUtilita;
}

void KR_LibrettoOriginale::EseguiAltri(Comando comando) {
  switch (comando) {
  case Comando::SalvaLibretto:
    return Salva();
  case Comando::EsportaLibretto:
    return Esporta();
  case Comando::SelezionaFont:
    return SelezionaCarattere();
  case Comando::TerminaBloccati:
    return TerminaBloccati();
  case Comando::Chiudi:
    Finita = true;
    break;
  case Comando::ModificaDiretta:
    return ModificaRiga();
  case Comando::Intestazione:
    return ApriIntestazione();
  case Comando::MostraRiordino:
    return MostraRiordino();
  case Comando::RiordinoRighe:
    AggiornaLibrettoMisure(ambiente_);
    return subRiordinoRighe(ambiente_);
  case Comando::IncollaDaAppunti:
    return IncollaDaAppunti();
  case Comando::MostraDesktop:
    return ambiente_.processi.MostraDesktop();
  case Comando::GondellaLibretti:
    return AvviaGondella(ambiente_, "GondellaLibretti.exe");
  case Comando::AttivaPregeo:
    return AvviaGondella(ambiente_, "Dervola.exe");
  case Comando::UtilitaCatastali:
    PannelloStrumenti = true;
    break;
  case Comando::InformazioniGenerali:
    return ambiente_.dialoghi.Messaggio(TestoInformazioni());
  case Comando::Configurazione:
    return MostraStampaGenerale(ambiente_, RigheConfigurazione(ambiente_.sessione));
  case Comando::PaginaWeb:
    return ambiente_.processi.ApriPagina(std::string(IndirizzoWeb));
  case Comando::TutteLeOpzioni:
    return SpuntaOpzioni(true);
  case Comando::NessunaOpzione:
    return SpuntaOpzioni(false);
  default: // no action
    break;
  }
}

void KR_LibrettoOriginale::MostraRiordino() {
  AggiornaLibrettoMisure(ambiente_);
  FormRiordinoRighe form(ambiente_);
  form.AlCaricamento();
  ambiente_.finestre.MostraModale(form);
  MostraSessione(); // the header form may have been opened from there
  Righe_Indice();
}

void KR_LibrettoOriginale::ModificaRiga() {
  AggiornaLibrettoMisure(ambiente_);
  subModificaDiretta(ambiente_);
}

// What stands beyond rows 0 and 9 is work that the user is asked about.
void KR_LibrettoOriginale::IncollaDaAppunti() {
  constexpr std::size_t righeFisse = 2;
  const bool lavoro = ambiente_.sessione.List1.Quante() > righeFisse;
  if (lavoro && !ConsenteDiSostituire(DidascaliaDi(Comando::IncollaDaAppunti))) return;
  ambiente_.sessione.Libretto = ambiente_.appunti.Testo();
  CaricaLibrettoInList1(ambiente_);
}

void KR_LibrettoOriginale::SelezionaCarattere() {
  const Carattere scelto = ambiente_.dialoghi.ScegliCarattere(CarattereElenco);
  CarattereElenco = scelto;
  ScriviCarattere(ambiente_, FileCarattere(ambiente_.sessione), scelto);
}

void KR_LibrettoOriginale::ApriIntestazione() {
  if (!ApriForm(ambiente_, FormIntestazione) || ambiente_.sessione.EsitoForm < 0) return;
  CaricaLibrettoInList1(ambiente_);
  MostraSessione();
  Righe_Indice();
}

void KR_LibrettoOriginale::DoppioClick(std::size_t riga) {
  if (riga >= ambiente_.sessione.List1.Quante()) return;
  const std::string testo(ambiente_.sessione.List1.Riga(riga));
  const Genere genere = GenereDi(testo);
  Comanda("Modifica", [&] {
    if (genere == Genere::Intestazione || genere == Genere::Chiusura ||
        (genere == Genere::Libera && Contiene(testo, "DettaglioTipoAgg")))
      return ApriIntestazione();
    if (genere == Genere::Coordinate && Parte(testo, '|', 1).starts_with("PF"))
      return InfoMisurate(ambiente_, Parte(testo, '|', 1));
    ModificaRiga();
  });
}

void KR_LibrettoOriginale::TastoInvio(std::size_t riga) {
  if (riga >= ambiente_.sessione.List1.Quante()) return;
  const Genere genere = GenereDi(ambiente_.sessione.List1.Riga(riga));
  Comanda("Modifica", [&] {
    if (genere == Genere::Intestazione || genere == Genere::Chiusura) return ApriIntestazione();
    ModificaRiga();
  });
}

void KR_LibrettoOriginale::TastoCancella() {
  Comanda("Elimina Righe", [&] { EliminaRigheSelezionate(ambiente_); });
}

// Rows 0 and 9 also say what the boxes and the title show.
void KR_LibrettoOriginale::CambiaCampo(std::size_t riga, std::size_t campo, std::string_view testo) {
  Comanda("Modifica Campo", [&] { CambiaCasella(ambiente_, riga, campo, testo); });
  MostraSessione();
  Righe_Indice();
}

void KR_LibrettoOriginale::CambiaIscrizione(std::string_view testo) {
  CasellaIscrizione = testo;
  ambiente_.sessione.NumeroIscrizione = testo;
}

std::string KR_LibrettoOriginale::DifettoCodiceFiscale() const {
  return DifettoCasella(casella::CodiceFiscale, CasellaCodiceFiscale, ambiente_.sessione);
}

void KR_LibrettoOriginale::CambiaCodiceFiscale(std::string_view testo) {
  CasellaCodiceFiscale = Maiuscolo(testo);
  ambiente_.sessione.CodiceFiscale = CasellaCodiceFiscale;
}

void KR_LibrettoOriginale::CambiaDitta(std::string_view testo) {
  CasellaDitta = Maiuscolo(testo);
  ambiente_.sessione.Ditta = CasellaDitta;
}

} // namespace lirmeto
