#pragma once
// The commands of the main window as tables: what stands on it, under which
// caption, and what each entry does.

#include <core/apri_form.h> // NonAncoraDisponibile: what a disabled entry says when the pointer stands on it

#include <span>
#include <string_view>

namespace lirmeto {

enum class Comando {
  NessunaAzione,      // nothing in the system stands behind it: its place is kept, shown as unavailable
  NuovoLibretto,      // needs the header form
  NuovoLibrettoVuoto, // the same from its button
  ApriDaFile,
  ApriDaPregeo,         // a libretto of Pregeo's archive
  LibrettiRecenti,      // the entry that holds the last files
  RipristinaDaArchivio, // a file of \Backup_Libretti
  RicaricaDaStorico,    // a file of \Storico_Libretti
  SalvaLibretto,
  EsportaLibretto,
  SelezionaFont,
  KillPregeo,
  TerminaBloccati, // other processes of this program
  Chiudi,
  ModificaDiretta,
  RelazioneTecnica, // the editor at its block
  Intestazione,     // the header form on the open libretto
  StampaLibretto,   // the rows as a report
  MostraRiordino,   // the dialog
  RiordinoRighe,    // without the dialog
  IncollaDaAppunti,
  MostraDesktop,
  GondellaLibretti,
  AttivaPregeo,    // the sibling program that does it
  ProgrammaPregeo, // Pregeo itself
  ConfiguraPregeo,
  UtilitaCatastali, // shows the tools panel
  CreaCollegamenti, // to Pregeo
  ArchiviaLibretti,
  InformazioniGenerali,
  Annulla, // what the last command did to the rows
  Ripeti,
  TagliaRighe, // the selected ones, else the current one
  CopiaRighe,
  IncollaRighe, // behind the current one
  EliminaRighe,
  SelezionaTutte,
  CampiRiga, // to the boxes of the current row's fields
  EliminaVrs,
  AssegnaVrs,
  SelezionaRighe1,
  SelezionaPuntiFiduciali,
  InvertiSelezione,
  SelezionaStazioni,
  SelezionaSquadri,
  SelezionaContorni,
  CopiaNegliAppunti,
  Righe8DaExcel,
  Righe8NomeAutoDaExcel,
  RigheCompleteDaExcel,
  DaElaborazionePregeo,
  ModelloCensuario,
  ImportaFiduciali,
  ImportaFiducialiEstratto,
  AssegnaDescrizione,
  GraficaPregeo,
  EstrattiDiMappa,
  CompletaAutoallestito,
  MostraRigheScartate, // of the last command
  TutteLeOpzioni,
  NessunaOpzione,
  MostraVerifiche, // the list of findings below the rows, or away with it
  SegnalazioneSuccessiva,
  SegnalazionePrecedente,
  PrendiRimedio, // of the chosen finding
  MostraRilievo, // the picture beside the rows, or away with it
  Disegno,       // any drawing file in a window of its own
  CodiceFiscale, // the search of a comune
  Comuni,
  ArchivioPossessori,
  Autore,
  DaPregeo, // points of a libretto in Pregeo's archive
  // Automated typologies, in the order of their menu.
  ConfermaMappaENumero,
  ConfermaMappaVariazioneNumero,
  DemolizioneTotale,
  DemolizioneDiCorpi,
  AccorpamentoAllaCorte,
  FusioneParticelle,
  NuovaCostruzione,
  NuovaCostruzionePiccola,
  AmpliamentoPiccolo,
  Ampliamento,
  ScorporoDallaCorte,
  SubalterniRurali,
  TuttiISubalterniRurali,
  TuttiISubalterniCambioNumero,
  DemolizioneParziale,
  FusioneEDemolizione,
  AmpliamentoRuraleIntero,
  AmpliamentoUrbanoIntero,
  FusioneDemolizioneNuovoNumero,
  ModestaEntitaVariazione,
  ModestaEntitaConferma,
  EliminaTratteggiate,
  TerrenoAllUrbano,
  PolilineeDxf,
  InfoMisuratePF, // the fiducial points of the libretto against the archives
  Configurazione, // as a report
  PaginaWeb,
  // Tools of the panel.
  QuotaMedia,
  ArchivioTecnici,
  Modulistica,
  AnteprimaProposta,
  ArchivioLibretti,
  GestionePf,
  ArchivioMisurate,
  CercaNeiLibretti,
};

struct Pulsante {
  int indice; // in the button array
  std::string_view didascalia;
  std::string_view gruppo; // "Libretto", "Righe", ...: buttons of a group stand together
  Comando comando;
};

// Caption of a menu entry that is only a line between others.
inline constexpr std::string_view Separatore = "-";

struct VoceMenu {
  std::string_view menu;      // "File"
  std::string_view sottomenu; // "Cambia"; empty: directly in the menu
  std::string_view didascalia;
  Comando comando;
};

struct Strumento { // of the tools panel
  std::string_view didascalia;
  std::string_view tag; // under which sibling programs know it
  Comando comando;
};

[[nodiscard]] std::span<const Pulsante> Pulsanti();
[[nodiscard]] std::span<const VoceMenu> VociMenu();
[[nodiscard]] std::span<const Strumento> Strumenti();

// What an entry of this command does, in a sentence without a full stop: the one table of it, shown beside the entry
// and printed in the guide.
[[nodiscard]] std::string_view EffettoDi(Comando comando);

// Caption of the first menu entry, else of the first button, else of the first tool, that gives the command; empty when
// none does.
[[nodiscard]] std::string_view DidascaliaDi(Comando comando);

// Name of the form that a command opens; empty for one that opens none by name.
[[nodiscard]] std::string_view FormDi(Comando comando);

inline constexpr int PulsanteProvincia = 7; // shows SiglaProvincia beside its caption
inline constexpr int PulsanteUtilita = 25;  // the pointer over it shows the tools panel, over any other hides it

} // namespace lirmeto
