// Files into the main window: chosen in a dialog, dropped, one of the last ones, or handed over by a second start.

#include <applicazione/finestra_principale.h>

#include <applicazione/comandi_tag.h>
#include <applicazione/consegna.h>
#include <applicazione/libretti_recenti.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/salvataggio.h>
#include <estratti/copia_estratto.h>

#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   a file chosen in a dialog        takes the road of one that is dropped, with its question
//   a file dropped beside the rows   an extract is imported, a libretto opened; the rows take libretti alone
//   a drawing (.LXC)                 becomes a libretto, with the forms of that command; it is never opened as rows, over which
//                                    a save would go
//   a file that is not there         is told, and nothing changes; among the last files it leaves their list
//   the extract of the act before    is not that of another one whose file names none; it stays with the rows of an .LXB
//   where the dialog opens           the folder of the open libretto, or of the last file, or "c:\"
//   a command handed over            runs here: its file, when it names one, is opened first, if the user says so
//   nobody takes what is handed over the user is asked whether to end the other instance and to go on here: it may hang, or
//                                    be at the forms of a command, which come before any window of its own

namespace {

constexpr std::string_view Lxb = ".LXB";
constexpr std::string_view Filtro = "Libretti, disegni ed estratti (*.dat *.DAT *.txt *.TXT *.lxb *.LXB *.pdf *.PDF "
                                    "*.lxc *.LXC *.emp *.EMP *.zip *.ZIP);;Tutti i file (*)";
constexpr std::string_view CartellaPredefinita = "c:\\";

bool EstensioneLibretto(std::string_view percorso) {
  return FinisceConSenzaCaso(percorso, ".TXT") || FinisceConSenzaCaso(percorso, ".DAT") ||
         FinisceConSenzaCaso(percorso, ".PDF") || FinisceConSenzaCaso(percorso, Lxb);
}

// Folder of a path, with its closing backslash; empty for a bare name.
std::string CartellaDi(std::string_view percorso) {
  return std::string(percorso.substr(0, percorso.size() - NomeDaPercorso(percorso).size()));
}

} // namespace

bool KR_LibrettoOriginale::EseguiFile(Comando comando) {
  const std::string_view titolo = DidascaliaDi(comando);
  const std::string& programma = ambiente_.sessione.CartellaProgramma;
  switch (comando) {
  case Comando::ApriDaFile:
    return ScegliEApri(titolo, CartellaLibretto()), true;
  case Comando::RipristinaDaArchivio:
    return ScegliEApri(titolo, programma + "\\Backup_Libretti\\"), true;
  case Comando::RicaricaDaStorico:
    return ScegliEApri(titolo, programma + "\\Storico_Libretti\\"), true;
  default:
    return false;
  }
}

// Where the user is likely to look for a libretto.
std::string KR_LibrettoOriginale::CartellaLibretto() const {
  std::string cartella = CartellaDi(ambiente_.sessione.NomeFileLibretto);
  if (cartella.empty() && !Recenti.empty()) cartella = CartellaDi(Recenti.front());
  return cartella.empty() ? std::string(CartellaPredefinita) : cartella;
}

void KR_LibrettoOriginale::ScegliEApri(std::string_view titolo, const std::string& cartella) {
  ambiente_.sessione.PuntoErrore = "ApriLibrettoDaFile";
  std::string scelto;
  Prova([&] {
    scelto = ambiente_.dialoghi.ScegliFileDaAprire({std::string(titolo), cartella, {}, std::string(Filtro)});
  });
  if (!Taglia(scelto).empty()) PrendiFile(titolo, scelto);
}

void KR_LibrettoOriginale::ApriRecente(std::size_t indice) {
  if (indice >= Recenti.size()) return;
  const std::string percorso = Recenti[indice];
  if (ambiente_.disco.Esiste(percorso)) return PrendiFile("Apri Libretto da File", percorso);
  DiciAssente(percorso);
  TogliRecente(ambiente_.impostazioni, percorso);
  Recenti = LeggiRecenti(ambiente_.impostazioni);
}

void KR_LibrettoOriginale::DiciAssente(const std::string& percorso) {
  ambiente_.dialoghi.Messaggio(percorso + std::string(FineRiga) + "NON trovato!", "Apri Libretto da File");
}

void KR_LibrettoOriginale::RicordaRecente(const std::string& percorso) {
  Prova([&] {
    AggiungiRecente(ambiente_.impostazioni, percorso);
    Recenti = LeggiRecenti(ambiente_.impostazioni);
  });
}

void KR_LibrettoOriginale::Trascina(const std::string& percorso) {
  if (EstensioneLibretto(percorso)) return TrascinaAccanto(percorso);
  ambiente_.dialoghi.Messaggio(FinisceConSenzaCaso(percorso, ".DXF") ? "Processo non attivo!"
                                                                     : "Ammessi file di Testo: .TXT, .DAT, .LXB, .PDF");
}

void KR_LibrettoOriginale::TrascinaAccanto(const std::string& percorso) {
  PrendiFile("Trascina Libretto", percorso);
}

void KR_LibrettoOriginale::PrendiFile(std::string_view comando, const std::string& percorso) {
  if (EDisegno(ambiente_, percorso)) return EseguiConsegnata(percorso + std::string(ComandoDisegno));
  if (!EstensioneLibretto(percorso)) return PrendiEstratto(percorso);
  if (ConsenteDiSostituire(comando)) PrendiLibretto(comando, percorso);
}

bool KR_LibrettoOriginale::ConsenteDiSostituire(std::string_view titolo) {
  return ambiente_.dialoghi.Chiedi("Sostituire il Libretto Esistente?", titolo, Bottoni::SiNo) == Risposta::Si;
}

// An act whose file names no extract does not get that of the act before it. The rows of an .LXB may be for that one.
void KR_LibrettoOriginale::ApriSenzaEstrattoDAltri(const std::string& percorso) {
  Sessione& sessione = ambiente_.sessione;
  const bool altro = !sessione.NomeFileLibretto.empty() && !FinisceConSenzaCaso(percorso, Lxb) &&
                     !ambiente_.disco.StessoPosto(sessione.NomeFileLibretto, percorso);
  const std::string prima = sessione.EstrattoAssociato;
  if (altro) sessione.EstrattoAssociato.clear();
  try {
    ApriLibretto(ambiente_, percorso, Accetta::SoloLibretti);
  } catch (...) {
    sessione.EstrattoAssociato = prima;
    throw;
  }
}

void KR_LibrettoOriginale::PrendiLibretto(std::string_view comando, const std::string& percorso) {
  if (!ambiente_.disco.Esiste(percorso)) return DiciAssente(percorso);
  Comanda(comando, [&] {
    ApriSenzaEstrattoDAltri(percorso);
    CaricaLibrettoInList1(ambiente_);
    ambiente_.sessione.PuntoErrore = FinisceConSenzaCaso(percorso, ".PDF") ? "Decozero_138" : "Decozero_137";
    MostraSessione();
    if (!FinisceConSenzaCaso(percorso, Lxb)) RicordaIntatto();
    RicordaRecente(percorso);
    Esito = EsitoApertura(percorso);
  });
}

// Into the extracts folder, as the manager imports it; the extract becomes that of the libretto.
void KR_LibrettoOriginale::PrendiEstratto(const std::string& percorso) {
  Comanda("Importa Estratto", [&] { ImportaFileInEstratti(ambiente_, percorso); });
  Aggiornami();
}

std::string KR_LibrettoOriginale::EsitoApertura(const std::string& percorso) const {
  const std::string sistemate = AvvisoSistemate(ambiente_.sessione.List1);
  return "Aperto " + std::string(NomeDaPercorso(percorso)) + ": " + QuanteRighe(ambiente_.sessione.List1.Quante()) +
         (sistemate.empty() ? "" : "; al salvataggio " + sistemate);
}

// --- a second start

// Whether this start goes on: it does not when the window that runs has taken its command line.
bool KR_LibrettoOriginale::PrendeIlPosto(const std::string& comando) {
  bool presa = false;
  Prova([&] { presa = ConsegnaComando(ambiente_, comando); });
  if (presa) {
    ambiente_.dialoghi.Messaggio("Modulo già attivo!"_w);
    return false;
  }
  const Risposta risposta = ambiente_.dialoghi.Chiedi(
      "Modulo già attivo!\r\nÈ occupato o bloccato: terminarlo? Il lavoro non salvato va perso."_w, TitoloProgramma,
      Bottoni::SiNo);
  if (risposta == Risposta::Si) TerminaAltriModuli(ambiente_);
  return risposta == Risposta::Si;
}

bool KR_LibrettoOriginale::ArrivateConsegne() {
  for (std::string& comando : PrendiConsegne(ambiente_)) consegne_.push_back(std::move(comando));
  return !consegne_.empty();
}

void KR_LibrettoOriginale::EseguiConsegne() {
  for (const std::string& comando : std::exchange(consegne_, {})) {
    const std::string linea = Sostituisci(comando, "\"", "");
    if (Contiene(linea, "|"))
      EseguiConsegnata(linea);
    else if (!linea.empty())
      PrendiFile("Apri Libretto da File", PercorsoInCapitali(ambiente_.disco, linea));
  }
}

// A drawing whose forms are given up leaves the libretto that stood, and so does a command that fails.
void KR_LibrettoOriginale::EseguiConsegnata(const std::string& linea) {
  const bool conFile = !Parte(linea, '|', 0).empty();
  const bool daDisegno = Maiuscolo(std::string(Parte(linea, '|', 1))) + "|" == ComandoDisegno.substr(1);
  const std::string nome(daDisegno ? "Libretto da Disegno" : Parte(linea, '|', 1));
  if (conFile && !ConsenteDiSostituire(nome)) return;
  Comanda(nome, [&] {
    Sessione& sessione = ambiente_.sessione;
    Sessione prima = sessione;
    AggiornaLibrettoMisure(ambiente_);
    if (conFile) sessione.EstrattoAssociato.clear();
    try {
      EseguiLineaDiComando(ambiente_, linea);
    } catch (...) {
      sessione = std::move(prima);
      throw;
    }
    if (daDisegno && sessione.EsitoForm != EsitoConfermato) return static_cast<void>(sessione = std::move(prima));
    CaricaLibrettoInList1(ambiente_);
  });
  MostraSessione();
}

void KR_LibrettoOriginale::TerminaBloccati() {
  if (AltriModuli(ambiente_).empty()) return ambiente_.dialoghi.Messaggio("Nessun altro modulo attivo.");
  const Risposta risposta =
      ambiente_.dialoghi.Chiedi("Terminare gli altri moduli di Lirmeto? Il loro lavoro non salvato va perso.",
                                "Termina Moduli Bloccati", Bottoni::SiNo);
  if (risposta == Risposta::Si) TerminaAltriModuli(ambiente_);
}

} // namespace lirmeto
