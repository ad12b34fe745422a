#pragma once
// Every value of a session, under the one name that all routines use. Created
// once, passed by reference; nobody keeps a second copy. Texts are
// Windows-1252.

#include <core/elenco_righe.h>
#include <core/tabelle.h>

#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

namespace lirmeto {

struct Sessione {
  // Folders and paths.
  std::string CartellaDocumenti;   // the user's documents
  std::string CartellaProgramma;   // CartellaDocumenti + "\LIRMETO", no closing backslash
  std::string CartellaTemp;        // environment variable "temp"
  std::string CartellaWindows;     // PREGEO.INI lies here
  std::string CartellaProgrammi;   // environment variable "ProgramFiles(x86)":
                                   // sibling programs lie there
  std::string RadicePregeo = "C:"; // drive of Pregeo's programs
  std::string RadiceDati = "C:";   // drive of Pregeo's data
  std::string Arch2Db;             // Pregeo's archive
  std::string NomeFileLibretto;    // path of the open libretto; empty when it has
                                   // no file yet

  // The open document.
  std::string Libretto; // rows at CR LF, row 0 first, row 9 second; never a tag row
  std::string RigaZero;
  std::string RigaNove;
  std::string RigaCommento;
  std::string Ditta;             // owners, several lines at CR LF; kept as read
  std::string EstrattoAssociato; // file name of the associated extract (.EMP)
  std::string MisurateAssociate; // file name of the measured-distance archive
  std::string PropostaLibretto;  // the update proposal, from its heading to the end

  // The automated typology under way.
  std::string TipologiaCorrente;     // its code, field 6 of row 9; "1000": no extract is involved
  std::string ParticelleScelte;      // chosen parcels, commas between
  std::string RigheParticelleScelte; // their rows of the extract, lines at CR LF
  std::string RigheEnteUrbano;       // those of them that hold "ENTE URBANO"
  std::string RigheFabbRurale;       // those that hold "FABB RURALE"
  std::string ParticellaMantenuta;   // the parcel that keeps its identifier
  std::string PropostaTipologia;     // rows of the proposal made, lines at CR LF

  // The row list of the main window and the text of its position label, "3 /
  // 120".
  ElencoRighe List1;
  std::string EtichettaPosizione;
  ListaRighe RigheScartate; // rows of no class that the last command dropped

  // Reports and documents.
  std::string NomeBaseStampa;   // path, without extension, of the current report's .TXT and .CSV; empty for none
  std::string ElencoPossessori; // possessors chosen for the documents, lines at CR LF

  // What a map extract leaves when it is read.
  std::string EstrattoFile;
  std::string EstrattoRigaZero;
  std::string EstrattoData;
  std::string EstrattoComune;
  std::string EstrattoProvincia;
  std::string EstrattoFoglio;
  std::string EstrattoParticelle;
  std::string EstrattoDitte;           // owners, what stands behind "6|DITTA|"; lines at CR LF
  std::string EstrattoTestoParticelle; // what stands behind "6|PARTICELLA|"; lines at CR LF
  std::string EstrattoMesi;            // calendar months since the release
  std::string EstrattoEstMedio;        // metres, whole
  std::string EstrattoSette;           // its rings, a row each, at CR LF; the last of the file first
  std::string EstrattoSetteBase;       // those without "+" and "-"
  std::string EstrattoSetteSegno;      // those with one
  std::string VersionePregeoEstratto;  // "10" or "9"
  std::string TipoEstratto;            // "AUTOALLESTITO" or empty

  // Derived from rows 0 and 9 by DecoZeroNove.
  std::string DataLibretto; // ddmmyyyy
  std::string Protocollo;
  std::string ProtocolloPregeo; // last two digits of the date + Protocollo: key
                                // of the libretto in Pregeo's archive
  std::string AnnoLibretto;     // yyyy
  std::string CodiceComune;     // "G224"
  std::string NomeComune;
  std::string SiglaProvincia; // "PD"
  std::string NomeProvincia;
  std::string Foglio;  // "0010"
  std::string Mappali; // "12,13"
  std::string Tecnico; // surname, blank, name
  std::string Cognome;
  std::string Nome;
  std::string Qualifica;
  std::string Provincia;         // of the professional register
  std::string QuotaMedia;        // metres
  std::string PrecisioneLineare; // centimetres
  std::string PrecisioneAngolare;
  std::string EstMedio; // metres, whole
  std::string TipologiaRilievo;
  std::string Strumentazione;
  std::string ClasseAtto; // "M" Tipo Mappale, "S" split
  std::string NomeFascicolo;

  // The surveyor.
  std::string CodiceFiscale;
  std::string NumeroIscrizione;
  std::string Recapito;
  int IncludiDatiTecnico = 0;

  // Tables loaded once.
  std::vector<Comune> Comuni;
  bool AssenzaComuniDetta = false; // a missing comunt.dat was told: once a session is enough
  std::vector<CodiceENome> Province;
  std::vector<CodiceENome> Collegi;
  std::vector<std::string> TabellaQualita; // "282   ENTE URBANO "
  std::vector<std::string> RighePregeoIni;
  std::string VersionePregeo;

  // Numbers and flags.
  double RadGon = 200 / std::numbers::pi; // radians to grads
  std::int16_t EsitoForm = 0;             // set by a modal form before it closes: 1 confirmed, -1 cancelled
  std::int16_t EsitoSelezione = 0; // the same kind of answer: 1 a comune or a possessor was taken, -1 nothing was
  int ModoEditor = 0;              // what KR_EditorGen edits: 381 the libretto, 382 a report, 383 the census memo
  std::int16_t HostGrafica = 0;    // form that hosts the drawing last under the pointer
  std::int16_t ModoDaPregeo = 0;   // 0 listing for import, 1 listing for DXF
  std::string ComandoTag;          // command line, later the current tag command
  std::string UltimaTag;
  std::string ParametroTag;
  bool FineScambio = false; // the drawing is copied and the program was started for that alone: it ends, saving nothing

  // The last trapped error and where it happened.
  std::string PuntoErrore;
  int NumeroErrore = 0;
  std::string TestoErrore;
};

inline constexpr int ModoEditorLibretto = 381;
inline constexpr int ModoEditorStampa = 382;
inline constexpr int ModoEditorCensuario = 383;
inline constexpr int ModoEditorRaggio = 601; // what Imputa asks for: the radius round a click
inline constexpr std::int16_t EsitoConfermato = 1;
inline constexpr std::int16_t EsitoAnnullato = -1;

} // namespace lirmeto
