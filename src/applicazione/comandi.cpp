#include <applicazione/comandi.h>

#include <applicazione/forme.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::array ElencoPulsanti = {
    Pulsante{10, "Nuovo Libretto Vuoto", "Libretto", Comando::NuovoLibrettoVuoto},
    Pulsante{9, "Apri Libretto da File", "Libretto", Comando::ApriDaFile},
    Pulsante{21, "Apri Libretto da Pregeo", "Libretto", Comando::ApriDaPregeo},
    Pulsante{4, "Salva Libretto", "Libretto", Comando::SalvaLibretto},
    Pulsante{3, "Stampa Libretto", "Libretto", Comando::StampaLibretto},
    Pulsante{16, "Modifica Diretta del Libretto", "Righe", Comando::ModificaDiretta},
    Pulsante{14, "Riordino Righe", "Righe", Comando::MostraRiordino},
    Pulsante{31, "Copia negli Appunti di Windows", "Righe", Comando::CopiaNegliAppunti},
    Pulsante{27, "Seleziona Stazioni", "Selezione", Comando::SelezionaRighe1},
    Pulsante{28, "Seleziona Punti Fiduciali", "Selezione", Comando::SelezionaPuntiFiduciali},
    Pulsante{30, "Inverti Selezione", "Selezione", Comando::InvertiSelezione},
    Pulsante{11, "Assegna [VRS]", "GPS", Comando::AssegnaVrs},
    Pulsante{5, "ELIMINA [VRS]", "GPS", Comando::EliminaVrs},
    Pulsante{18, "Gestione Estratti di Mappa", "Mappa e Censuario", Comando::EstrattiDiMappa},
    Pulsante{17, "Compila Censuario/Archivio Particelle", "Mappa e Censuario", Comando::ModelloCensuario},
    Pulsante{1, "Importa da Libretto in Pregeo", "Pregeo", Comando::DaPregeo},
    Pulsante{7, "Configura Provincia di Pregeo", "Pregeo", Comando::ConfiguraPregeo},
    Pulsante{6, "Attiva Pregeo", "Pregeo", Comando::AttivaPregeo},
    Pulsante{24, "Attiva Pregeo", "Pregeo", Comando::ProgrammaPregeo},
    Pulsante{20, "Gondella Libretti", "Strumenti", Comando::GondellaLibretti},
    Pulsante{22, "", "Strumenti", Comando::NessunaAzione},
    Pulsante{23, "", "Strumenti", Comando::NessunaAzione},
    Pulsante{15, "Mostra DeskTop", "Strumenti", Comando::MostraDesktop},
    Pulsante{25, "Utilità Catastali"_w, "Strumenti", Comando::UtilitaCatastali},
};

constexpr std::string_view File = "File";
constexpr std::string_view Modifica = "Modifica Libretto";
constexpr std::string_view Cambia = "Cambia";
constexpr std::string_view Verifiche = "Verifiche";
constexpr std::string_view Excel = "Da Excel";
constexpr std::string_view Gondella = "Gondella";
constexpr std::string_view Utilita = "Utilità"_w;
constexpr std::string_view Estratti = "Estratti di Mappa";
constexpr std::string_view Tipologie = "Tipologie Automatizzate";
constexpr std::string_view Aiuto = "Aiuto";

constexpr std::array ElencoVoci = {
    VoceMenu{File, {}, "Nuovo Libretto", Comando::NuovoLibretto},
    VoceMenu{File, {}, "Apri Libretto da Pregeo", Comando::ApriDaPregeo},
    VoceMenu{File, {}, "Apri Libretto da File", Comando::ApriDaFile},
    VoceMenu{File, {}, "Libretti Recenti", Comando::LibrettiRecenti},
    VoceMenu{File, {}, "Ripristina da Archivio Libretti", Comando::RipristinaDaArchivio},
    VoceMenu{File, {}, "Salva", Comando::SalvaLibretto},
    VoceMenu{File, {}, "Esporta Libretto", Comando::EsportaLibretto},
    VoceMenu{File, {}, "Stampa Libretto", Comando::StampaLibretto},
    VoceMenu{File, {}, "Seleziona Font", Comando::SelezionaFont},
    VoceMenu{File, {}, "Attiva Pregeo", Comando::ProgrammaPregeo},
    VoceMenu{File, {}, "Kill Pregeo", Comando::KillPregeo},
    VoceMenu{File, {}, "Termina Moduli Bloccati", Comando::TerminaBloccati},
    VoceMenu{File, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{File, {}, "Chiudi", Comando::Chiudi},

    VoceMenu{Modifica, {}, "Annulla", Comando::Annulla},
    VoceMenu{Modifica, {}, "Ripeti", Comando::Ripeti},
    VoceMenu{Modifica, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Modifica, {}, "Taglia Righe", Comando::TagliaRighe},
    VoceMenu{Modifica, {}, "Copia Righe", Comando::CopiaRighe},
    VoceMenu{Modifica, {}, "Incolla Righe", Comando::IncollaRighe},
    VoceMenu{Modifica, {}, "Elimina Righe", Comando::EliminaRighe},
    VoceMenu{Modifica, {}, "Seleziona Tutte le Righe", Comando::SelezionaTutte},
    VoceMenu{Modifica, {}, "Campi della Riga", Comando::CampiRiga},
    VoceMenu{Modifica, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Modifica, {}, "Modifica Diretta", Comando::ModificaDiretta},
    VoceMenu{Modifica, {}, "Riga 0-9", Comando::Intestazione},
    VoceMenu{Modifica, {}, "Riordino Righe", Comando::RiordinoRighe},
    VoceMenu{Modifica, {}, "Relazione Tecnica", Comando::RelazioneTecnica},
    VoceMenu{Modifica, {}, "Modello Censuario", Comando::ModelloCensuario},
    VoceMenu{Modifica, {}, "Importa Fiduciali da TAF", Comando::ImportaFiduciali},
    VoceMenu{Modifica, {}, "Importa Fiduciali da Estratto", Comando::ImportaFiducialiEstratto},
    VoceMenu{Modifica, {}, "Incolla da Appunti", Comando::IncollaDaAppunti},
    VoceMenu{Modifica, Cambia, "Descrizione", Comando::AssegnaDescrizione},
    VoceMenu{Modifica, Cambia, "Seleziona Stazioni", Comando::SelezionaStazioni},
    VoceMenu{Modifica, Cambia, "Seleziona Squadri", Comando::SelezionaSquadri},
    VoceMenu{Modifica, Cambia, "Seleziona Contorni", Comando::SelezionaContorni},

    VoceMenu{Verifiche, {}, "Elenco delle Segnalazioni", Comando::MostraVerifiche},
    VoceMenu{Verifiche, {}, "Segnalazione Successiva", Comando::SegnalazioneSuccessiva},
    VoceMenu{Verifiche, {}, "Segnalazione Precedente", Comando::SegnalazionePrecedente},
    VoceMenu{Verifiche, {}, "Prendi il Rimedio", Comando::PrendiRimedio},
    VoceMenu{Verifiche, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Verifiche, {}, "Rilievo accanto alle Righe", Comando::MostraRilievo},

    VoceMenu{Excel, {}, "Righe 8 - (P, N, E)", Comando::Righe8DaExcel},
    VoceMenu{Excel, {}, "Righe 8 Nome Auto (N, E)", Comando::Righe8NomeAutoDaExcel},
    VoceMenu{Excel, {}, "Righe Complete", Comando::RigheCompleteDaExcel},

    VoceMenu{Gondella, {}, "Gondella", Comando::GondellaLibretti},

    VoceMenu{Utilita, {}, "Archivia Libretti", Comando::ArchiviaLibretti},
    VoceMenu{Utilita, {}, "Grafica Pregeo > DXF", Comando::GraficaPregeo},
    VoceMenu{Utilita, {}, "Ricarica da Storico", Comando::RicaricaDaStorico},
    VoceMenu{Utilita, {}, "PF-VE", Comando::NessunaAzione},
    VoceMenu{Utilita, {}, "Crea Collegamenti Pregeo", Comando::CreaCollegamenti},
    VoceMenu{Utilita, {}, "Configura Provincia di Pregeo", Comando::ConfiguraPregeo},
    VoceMenu{Utilita, {}, "Info Misurate PF", Comando::InfoMisuratePF},
    VoceMenu{Utilita, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Utilita, {}, "Guarda un Disegno", Comando::Disegno},
    VoceMenu{Utilita, {}, "Cerca Comune", Comando::CodiceFiscale},
    VoceMenu{Utilita, {}, "Comuni per Provincia", Comando::Comuni},
    VoceMenu{Utilita, {}, "Archivio Possessori", Comando::ArchivioPossessori},

    VoceMenu{Estratti, {}, "Gestione Estratti di Mappa", Comando::EstrattiDiMappa},
    VoceMenu{Estratti, {}, "Completa Autoallestito", Comando::CompletaAutoallestito},

    VoceMenu{Tipologie, {}, "Informazioni generali - operative - garanzie", Comando::InformazioniGenerali},
    VoceMenu{Tipologie, {}, "1 Conferma di Mappa con Conferma di Numero (ex 01)", Comando::ConfermaMappaENumero},
    VoceMenu{
        Tipologie, {}, "2 Conferma di Mappa con Variazione di Nunero (ex 02)", Comando::ConfermaMappaVariazioneNumero},
    VoceMenu{Tipologie, {}, "3 Demolizione Totale Fabbricato/i (ex 03)", Comando::DemolizioneTotale},
    VoceMenu{Tipologie, {}, "4 Demolizione di Corpo/i di fabbricato (ex 04)", Comando::DemolizioneDiCorpi},
    VoceMenu{Tipologie, {}, "5 Accorpamento Fabbricato alla Corte (ex 05)", Comando::AccorpamentoAllaCorte},
    VoceMenu{Tipologie, {}, "6 Fusione + Particelle, 1 già all' Urbano (ex 06)"_w, Comando::FusioneParticelle},
    VoceMenu{Tipologie, {}, "7 Nuova Costruzione su intera particella (ex 07)", Comando::NuovaCostruzione},
    VoceMenu{Tipologie, {}, "8 Nuova costruzione < 20 mq (ex 08)", Comando::NuovaCostruzionePiccola},
    VoceMenu{Tipologie, {}, "9 Ampl. di fabb. < 20 mq e < 50% esistente  (ex 09)", Comando::AmpliamentoPiccolo},
    VoceMenu{Tipologie, {}, "10 Ampliamento di fabb. < 50% esistente (ex 10)", Comando::Ampliamento},
    VoceMenu{Tipologie, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Tipologie, {}, "15 Scorporo fabbricato dalla corte (ex 15)", Comando::ScorporoDallaCorte},
    VoceMenu{Tipologie, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Tipologie, {}, "20 Subalterni di Fabb. Rurale a E.U. (20)", Comando::SubalterniRurali},
    VoceMenu{Tipologie, {}, "21 Tutti i subalterni Rurali a E.U. (21)", Comando::TuttiISubalterniRurali},
    VoceMenu{Tipologie, {}, "22 Tutti i sub. Rurali a E.U. Cambio Numero (22)", Comando::TuttiISubalterniCambioNumero},
    VoceMenu{Tipologie, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Tipologie, {}, "24 Demolizione Parziale Fabbricato ex 24)", Comando::DemolizioneParziale},
    VoceMenu{Tipologie, {}, "27 Fusione+Partic. + Demolizione Totale (ex 27)", Comando::FusioneEDemolizione},
    VoceMenu{Tipologie, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Tipologie, {}, "Ampliamento di F.R. ad intera particella (MC)", Comando::AmpliamentoRuraleIntero},
    VoceMenu{Tipologie, {}, "Ampliamento di E.U. ad intera particella (MA)", Comando::AmpliamentoUrbanoIntero},
    VoceMenu{Tipologie, {}, "Fusione+partic.+demol.parz.+nuovo numero (MC)", Comando::FusioneDemolizioneNuovoNumero},
    VoceMenu{Tipologie, {}, "TM Modesta Entità Variazione Identificativo (TM)"_w, Comando::ModestaEntitaVariazione},
    VoceMenu{Tipologie, {}, "TM Modesta Entità Conferma Identificativo (TM)"_w, Comando::ModestaEntitaConferma},
    VoceMenu{Tipologie, {}, "Elimina Tratteggiate-Punteggiate (MA)", Comando::EliminaTratteggiate},
    VoceMenu{Tipologie, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Tipologie, {}, "Passaggio all'urbano di terreno non edificato (MC)", Comando::TerrenoAllUrbano},
    VoceMenu{Tipologie, {}, Separatore, Comando::NessunaAzione},
    VoceMenu{Tipologie, {}, "Libretto per Coordinate da Polilinee DXF", Comando::PolilineeDxf},
    VoceMenu{Tipologie, {}, "Libretto per coordinate da Elaborazione Pregeo", Comando::DaElaborazionePregeo},

    VoceMenu{Aiuto, {}, "Informazioni generali - operative - garanzie", Comando::InformazioniGenerali},
    VoceMenu{Aiuto, {}, "Autore", Comando::Autore},
    VoceMenu{Aiuto, {}, "Configurazione", Comando::Configurazione},
    VoceMenu{Aiuto, {}, "Pagina Web", Comando::PaginaWeb},
};

constexpr std::array ElencoStrumenti = {
    Strumento{"Quota Media Comuni Italiani", "QUOTA_MEDIA", Comando::QuotaMedia},
    Strumento{"Archivio Tecnici", "tecnici", Comando::ArchivioTecnici},
    Strumento{"Configurazione di Pregeo", "CONFIGURA_PREGEO", Comando::ConfiguraPregeo},
    Strumento{"Modulistica/Atti di Aggiornamento", "Modulistica", Comando::Modulistica},
    Strumento{"Esamina/Corregge Proposta di Aggiornamento", "ANTEPRIMA_PROPOSTA", Comando::AnteprimaProposta},
    Strumento{"Archivio Libretti Pregeo", "archivio_libretti", Comando::ArchivioLibretti},
    Strumento{"Gestione Grafica Archivio PF", "gestione_pf", Comando::GestionePf},
    Strumento{"Archivio Distanze Misurate", "GESTIONE_MISURATE", Comando::ArchivioMisurate},
    Strumento{"Cerca nei Libretti in Pregeo", "CERCA_NEI_LIBRETTI", Comando::CercaNeiLibretti},
    Strumento{"Archivio Libretti di Backup", "STORICO_LIBRETTI", Comando::RipristinaDaArchivio},
};

constexpr std::array<std::pair<Comando, std::string_view>, 21> ElencoForm = {{
    {Comando::NuovoLibretto, forma::Intestazione},
    {Comando::NuovoLibrettoVuoto, forma::Intestazione},
    {Comando::ModelloCensuario, forma::ModelloCensuario},
    {Comando::ImportaFiduciali, forma::ImportaFiduciali},
    {Comando::ImportaFiducialiEstratto, forma::ImportaFiducialiEstratto},
    {Comando::AssegnaDescrizione, forma::AssegnaDescrizione},
    {Comando::GraficaPregeo, forma::DaPregeo},
    {Comando::DaPregeo, forma::DaPregeo},
    {Comando::ApriDaPregeo, forma::DaPregeo},
    {Comando::ArchivioLibretti, forma::DaPregeo},
    {Comando::CercaNeiLibretti, forma::CercaInPregeo},
    {Comando::ConfiguraPregeo, forma::ConfiguraPregeo},
    {Comando::GestionePf, forma::ElcoPf},
    {Comando::ArchivioMisurate, forma::SelezionaMisurate},
    {Comando::QuotaMedia, forma::QuoteMedie},
    {Comando::EstrattiDiMappa, forma::EstrattiDiMappa},
    {Comando::CompletaAutoallestito, forma::CompletaAutoallestito},
    {Comando::Disegno, forma::Disegno},
    {Comando::CodiceFiscale, forma::CodFis},
    {Comando::Comuni, forma::Comuni8},
    {Comando::ArchivioPossessori, forma::ArchivioPossessori},
}};

} // namespace

std::span<const Pulsante> Pulsanti() {
  return ElencoPulsanti;
}
std::span<const VoceMenu> VociMenu() {
  return ElencoVoci;
}
std::span<const Strumento> Strumenti() {
  return ElencoStrumenti;
}

std::string_view DidascaliaDi(Comando comando) {
  const auto suo = [comando](const auto& voce) { return voce.comando == comando; };
  const auto voce = std::find_if(ElencoVoci.begin(), ElencoVoci.end(), suo);
  if (voce != ElencoVoci.end()) return voce->didascalia;
  const auto pulsante = std::find_if(ElencoPulsanti.begin(), ElencoPulsanti.end(), suo);
  if (pulsante != ElencoPulsanti.end()) return pulsante->didascalia;
  const auto strumento = std::find_if(ElencoStrumenti.begin(), ElencoStrumenti.end(), suo);
  return strumento == ElencoStrumenti.end() ? std::string_view{} : strumento->didascalia;
}

std::string_view FormDi(Comando comando) {
  const auto posto =
      std::find_if(ElencoForm.begin(), ElencoForm.end(), [=](const auto& coppia) { return coppia.first == comando; });
  return posto == ElencoForm.end() ? std::string_view{} : posto->second;
}

} // namespace lirmeto
