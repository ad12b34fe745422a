// What each entry of the main window does, whatever it stands on: button, menu, tool.

#include <applicazione/comandi.h>

#include <applicazione/tipologie.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

using Voce = std::pair<Comando, std::string_view>;

constexpr auto Effetti = std::to_array<Voce>({
    {Comando::NessunaAzione, "Non disponibile: nel programma non c'è nulla dietro questa voce"_w},
    {Comando::NuovoLibretto, "Un libretto nuovo: si compilano le righe 0 e 9, e chi rinuncia riha quello di prima"},
    {Comando::NuovoLibrettoVuoto,
     "Un libretto nuovo: si compilano le righe 0 e 9, e chi rinuncia riha quello di prima"},
    {Comando::ApriDaFile,
     "Si sceglie un file: un libretto .DAT, .TXT, .LXB, .PDF prende il posto di quello aperto, da un "
     "disegno .LXC se ne fa uno, un estratto .EMP, .ZIP va fra gli estratti di Pregeo"},
    {Comando::ApriDaPregeo, "L'archivio di Pregeo: i libretti, i loro punti, e l'importazione di questi"},
    {Comando::LibrettiRecenti, "Gli ultimi dieci file aperti"},
    {Comando::RipristinaDaArchivio, "Si sceglie una copia della cartella Backup_Libretti, che prende il posto del "
                                    "libretto aperto"},
    {Comando::RicaricaDaStorico, "Si sceglie una copia della cartella Storico_Libretti, che prende il posto del "
                                 "libretto aperto"},
    {Comando::SalvaLibretto, "Scrive il libretto nel suo file; senza un file chiede dove"},
    {Comando::EsportaLibretto, "Scrive le righe in un file che si sceglie, senza le righe di servizio"},
    {Comando::SelezionaFont, "Il carattere dell'elenco delle righe"},
    {Comando::KillPregeo, "Termina Pregeo e i suoi moduli"},
    {Comando::TerminaBloccati, "Dopo una domanda termina gli altri moduli di Lirmeto in esecuzione"},
    {Comando::Chiudi, "Chiude il programma; ciò che è cambiato si scrive"_w},
    {Comando::ModificaDiretta, "Il libretto come testo, alla riga scelta"},
    {Comando::RelazioneTecnica, "Il libretto come testo, alla Relazione Tecnica"},
    {Comando::TagliaRighe, "Toglie le righe selezionate e le mette negli appunti"},
    {Comando::CopiaRighe, "Mette negli appunti le righe selezionate"},
    {Comando::IncollaRighe, "Mette le righe degli appunti dietro quella scelta"},
    {Comando::EliminaRighe, "Toglie le righe selezionate, dopo una domanda"},
    {Comando::SelezionaTutte, "Seleziona tutte le righe"},
    {Comando::CampiRiga, "I campi della riga scelta come caselle, sotto l'elenco"},
    {Comando::Intestazione, "Le caselle delle righe 0 e 9"},
    {Comando::StampaLibretto, "Le righe in una stampa, da stampare, copiare o portare in un modello"},
    {Comando::MostraRiordino, "Le righe per classi, da riordinare, aggiungere e togliere"},
    {Comando::RiordinoRighe, "Mette le righe nell'ordine di Pregeo"},
    {Comando::IncollaDaAppunti, "Il testo degli appunti prende il posto del libretto, dopo una domanda"},
    {Comando::MostraDesktop, "Mostra la scrivania"},
    {Comando::GondellaLibretti, "Avvia Gondella Libretti e ne attende la fine"},
    {Comando::AttivaPregeo, "Avvia Dervola, che attiva Pregeo, e ne attende la fine"},
    {Comando::ProgrammaPregeo, "Avvia il programma Pregeo installato e non ne attende la fine"},
    {Comando::ConfiguraPregeo, "Il file PREGEO.INI come testo, con la provincia di competenza"},
    {Comando::UtilitaCatastali, "Mostra gli strumenti"},
    {Comando::CreaCollegamenti, "Collegamenti a Pregeo sulla scrivania, nel menu e nella barra"},
    {Comando::ArchiviaLibretti, "Mette una copia con data e ora del libretto nella cartella Backup_Libretti"},
    {Comando::InformazioniGenerali, "Avvertenze sulle tipologie automatizzate"},
    {Comando::Annulla, "Disfa l'ultimo comando"},
    {Comando::Ripeti, "Rifà ciò che si è disfatto"_w},
    {Comando::EliminaVrs, "Toglie la marca [VRS] dalla quinta riga"},
    {Comando::AssegnaVrs, "La riga GPS scelta diventa la quinta, con la marca [VRS]"},
    {Comando::SelezionaRighe1, "Seleziona le righe 1"},
    {Comando::SelezionaPuntiFiduciali, "Seleziona le righe che nominano un punto fiduciale"},
    {Comando::InvertiSelezione, "Seleziona le righe non selezionate, e solo quelle"},
    {Comando::SelezionaStazioni, "Seleziona le righe 1"},
    {Comando::SelezionaSquadri, "Seleziona le righe 4 e 5"},
    {Comando::SelezionaContorni, "Seleziona le righe 7"},
    {Comando::CopiaNegliAppunti, "Mette tutte le righe negli appunti"},
    {Comando::Righe8DaExcel, "Aggiunge una riga per ogni riga copiata dal foglio di calcolo: nome, nord, est"},
    {Comando::Righe8NomeAutoDaExcel, "Lo stesso con un nome progressivo: nord, est"},
    {Comando::RigheCompleteDaExcel, "Aggiunge le righe copiate dal foglio di calcolo così come sono"_w},
    {Comando::DaElaborazionePregeo, "Le coordinate di una stampa di Pregeo copiata diventano righe 8, al posto del "
                                    "libretto"},
    {Comando::ModelloCensuario, "L'archivio delle particelle e il modello censuario"},
    {Comando::ImportaFiduciali, "Le righe 8 dei punti fiduciali del libretto come le dà la TAF"_w},
    {Comando::ImportaFiducialiEstratto, "Le righe 8 dei punti fiduciali dell'estratto associato"},
    {Comando::AssegnaDescrizione, "Dà alle righe selezionate una sola nota"_w},
    {Comando::GraficaPregeo, "L'archivio di Pregeo, per salvare in DXF il disegno di un libretto"},
    {Comando::EstrattiDiMappa, "La gestione degli estratti di mappa"},
    {Comando::CompletaAutoallestito, "Completa l'estratto autoallestito associato al libretto"},
    {Comando::MostraVerifiche, "Mostra o nasconde l'elenco delle segnalazioni"},
    {Comando::SegnalazioneSuccessiva, "Alla riga della segnalazione seguente"},
    {Comando::SegnalazionePrecedente, "Alla riga della segnalazione precedente"},
    {Comando::PrendiRimedio, "Cambia la riga come dice il rimedio della segnalazione"},
    {Comando::MostraRilievo, "Mostra o nasconde il disegno del rilievo accanto alle righe"},
    {Comando::Disegno, "Mostra un file in un disegno: .EMP, .SUR, .CSV, .PDF, .DAT"},
    {Comando::CodiceFiscale, "Cerca un comune per nome o codice e ne copia il codice"},
    {Comando::Comuni, "I comuni di una provincia, e il codice di uno di essi"},
    {Comando::ArchivioPossessori, "L'archivio dei possessori"},
    {Comando::Autore, "Nome, versione e autori del programma"},
    {Comando::DaPregeo, "L'archivio di Pregeo: i punti di un suo libretto diventano righe 8 di quello aperto"},
    {Comando::PolilineeDxf, "Righe 8 e 7 dalle polilinee di un disegno DXF"},
    {Comando::InfoMisuratePF, "Le distanze fra i punti fiduciali del libretto accanto a quelle degli archivi"},
    {Comando::Configurazione, "Programma, versione e cartelle, in una stampa"},
    {Comando::PaginaWeb, "La pagina del programma nel navigatore"},
    {Comando::QuotaMedia, "Le quote medie dei comuni, e quella scelta nella riga 9"},
    {Comando::ArchivioTecnici, "Si sceglie il file di un tecnico: albo e codice fiscale passano nella finestra"},
    {Comando::Modulistica, "Apre la cartella dei moduli"},
    {Comando::AnteprimaProposta, "La proposta di aggiornamento dell'atto nella finestra del disegno"},
    {Comando::ArchivioLibretti, "L'archivio di Pregeo: i libretti, i loro punti, e l'importazione di questi"},
    {Comando::GestionePf, "I punti fiduciali di un comune: elenco e disegno"},
    {Comando::ArchivioMisurate, "Sceglie l'archivio delle distanze misurate e lo scrive in PREGEO.INI"},
    {Comando::CercaNeiLibretti, "L'archivio di Pregeo con una casella che ne cerca i libretti"},
});

} // namespace

std::string_view EffettoDi(Comando comando) {
  const auto sua =
      std::find_if(Effetti.begin(), Effetti.end(), [comando](const Voce& voce) { return voce.first == comando; });
  if (sua != Effetti.end()) return sua->second;
  const bool tipologia = TrovaTipologia(comando) != nullptr;
  return tipologia ? "Scelte le particelle dell'estratto associato, compone la proposta di aggiornamento di questo tipo"
                   : std::string_view{};
}

} // namespace lirmeto
