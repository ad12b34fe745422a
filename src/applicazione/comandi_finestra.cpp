// The main window's commands: which routine of the logic each one is, and what they leave for undo and redo.

#include <applicazione/finestra_principale.h>

#include <applicazione/autore.h>
#include <applicazione/comandi_libretto.h>
#include <applicazione/comandi_tag.h>
#include <applicazione/tipologie.h>
#include <core/apertura.h>
#include <core/appunti_righe.h>
#include <core/apri_form.h>
#include <core/comandi_righe.h>
#include <core/programmi.h>
#include <core/righe_scartate.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>
#include <fiduciali/misurate_pf.h>
#include <pregeo/collegamenti.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

using Routine = void (*)(Ambiente&);

constexpr auto Selezioni = std::to_array<std::pair<Comando, Routine>>({
    {Comando::SelezionaRighe1, SelezionaRighe1},
    {Comando::SelezionaPuntiFiduciali, SelezionaPuntiFiduciali},
    {Comando::InvertiSelezione, InvertiSelezione},
    {Comando::SelezionaTutte, SelezionaTutte},
    {Comando::SelezionaStazioni, Seleziona_Stazioni},
    {Comando::SelezionaSquadri, Seleziona_Squadri},
    {Comando::SelezionaContorni, Seleziona_Contorni},
});

void InfoMisuratePF(Ambiente& ambiente) {
  AggiornaLibrettoMisure(ambiente);
  CalcolaMisuratePF_DaLibretto(ambiente);
}

constexpr auto Comandi = std::to_array<std::pair<Comando, Routine>>({
    {Comando::TagliaRighe, TagliaRighe},
    {Comando::CopiaRighe, CopiaRighe},
    {Comando::IncollaRighe, IncollaRighe},
    {Comando::EliminaRighe, EliminaRigheSelezionate},
    {Comando::EliminaVrs, EliminaVrs},
    {Comando::AssegnaVrs, AssegnaVrs},
    {Comando::StampaLibretto, StampaLibretto},
    {Comando::RelazioneTecnica, ModificaRelazione},
    {Comando::ArchiviaLibretti, ArchiviaLibretto},
    {Comando::ArchivioMisurate, ScegliMisurate},
    {Comando::ArchivioTecnici, ScegliTecnico},
    {Comando::AnteprimaProposta, MostraProposta},
    {Comando::Modulistica, ApriModulistica},
    {Comando::ProgrammaPregeo, AvviaPregeo},
    {Comando::CopiaNegliAppunti, CopiaNegliAppunti},
    {Comando::Righe8DaExcel, ImportaRighe8DaExcel},
    {Comando::Righe8NomeAutoDaExcel, ImportaRighe8NomeAutoDaExcel},
    {Comando::RigheCompleteDaExcel, ImportaRigheCompleteDaExcel},
    {Comando::DaElaborazionePregeo, LibrettoDaElaborazionePregeo},
    {Comando::ModelloCensuario, subModelloCensuario},
    {Comando::KillPregeo, TerminaPregeo},
    {Comando::CreaCollegamenti, CreaCollegamentiPregeo},
    {Comando::Autore, MostraAutore},
    {Comando::InfoMisuratePF, InfoMisuratePF},
});

template <std::size_t N>
bool EseguiDa(const std::array<std::pair<Comando, Routine>, N>& tabella, Comando comando, Ambiente& ambiente) {
  const auto voce =
      std::find_if(tabella.begin(), tabella.end(), [comando](const auto& coppia) { return coppia.first == comando; });
  if (voce == tabella.end()) return false;
  voce->second(ambiente);
  return true;
}

// A form that leaves the rows alone. It may take a comune, or read PREGEO.INI again: the session keeps what row 0 says.
bool SoloConsulta(Comando comando) {
  return comando == Comando::Disegno || comando == Comando::CodiceFiscale || comando == Comando::Comuni ||
         comando == Comando::ArchivioPossessori || comando == Comando::CompletaAutoallestito ||
         comando == Comando::GestionePf || comando == Comando::ConfiguraPregeo;
}

} // namespace

// A tool may have read PREGEO.INI or the archives again: boxes and checks follow.
void KR_LibrettoOriginale::EseguiStrumento(std::string_view tag) {
  const auto strumenti = Strumenti();
  const auto suo =
      std::find_if(strumenti.begin(), strumenti.end(), [tag](const Strumento& uno) { return uno.tag == tag; });
  if (suo == strumenti.end()) return;
  ambiente_.sessione.ComandoTag = tag;
  Esegui(suo->comando);
  Verifiche.Dimentica();
  MostraSessione();
}

bool KR_LibrettoOriginale::Disponibile(Comando comando) const {
  const std::string_view form = FormDi(comando);
  if (!form.empty()) return ambiente_.finestre.Disponibile(form);
  return comando != Comando::NessunaAzione;
}

bool KR_LibrettoOriginale::Attivo(Comando comando) const {
  if (comando == Comando::Annulla) return storia_.PuoAnnullare();
  if (comando == Comando::Ripeti) return storia_.PuoRipetere();
  return Disponibile(comando);
}

// Undo and redo name the command that they are about.
std::string KR_LibrettoOriginale::Didascalia(Comando comando) const {
  std::string didascalia(DidascaliaDi(comando));
  if (!Attivo(comando)) return didascalia;
  if (comando == Comando::Annulla) didascalia.append(" ").append(storia_.DaAnnullare());
  if (comando == Comando::Ripeti) didascalia.append(" ").append(storia_.DaRipetere());
  return didascalia;
}

void KR_LibrettoOriginale::Esegui(Comando comando) {
  if (comando == Comando::Annulla) return Torna(&Storia::Annulla);
  if (comando == Comando::Ripeti) return Torna(&Storia::Ripeti);
  if (EseguiFile(comando)) return;
  if (comando == Comando::MostraRigheScartate) return MostraScartate();
  if (EseguiVerifiche(comando)) return;
  const bool censuario = comando == Comando::ModelloCensuario;
  if (comando == Comando::EsportaLibretto || comando == Comando::SalvaLibretto) ContaErrori();
  Comanda(DidascaliaDi(comando), [&] {
    if (EseguiDa(Selezioni, comando, ambiente_)) return DiciSelezione(comando);
    if (const Tipologia* tipologia = TrovaTipologia(comando)) return EseguiTipologia(ambiente_, *tipologia);
    if (!EseguiDa(Comandi, comando, ambiente_) && !EseguiConForm(comando)) EseguiAltri(comando);
  });
  DiciSeNulla(comando);
  if (censuario) ContaErrori(); // with what the workbench wrote
}

// Runs a command and keeps what it did to the rows. The notice of dropped rows stays until the rows change again.
void KR_LibrettoOriginale::Comanda(std::string_view nome, const std::function<void()>& comando) {
  Sessione& sessione = ambiente_.sessione;
  Esito.clear();
  PrimaNuova.reset();
  const Scelta scelta = SceltaAttuale();
  const ElencoRighe prima = sessione.List1;
  Prova([&] { storia_.Prepara(sessione); });
  ListaRighe scartatePrima = std::exchange(sessione.RigheScartate, {});
  Prova(comando);
  bool cambiate = false;
  Prova([&] { cambiate = storia_.Registra(sessione, nome); });
  if (cambiate) DiciCambiamento(nome, prima);
  RimettiScelta(scelta, cambiate);
  if (!cambiate && sessione.RigheScartate.empty()) sessione.RigheScartate = std::move(scartatePrima);
  AvvisoScartate = AvvisoRigheScartate(sessione);
  if (sessione.FineScambio) Finita = true;
}

// One step back or forth.
void KR_LibrettoOriginale::Torna(void (Storia::*passo)(Sessione&)) {
  const bool indietro = passo == &Storia::Annulla;
  const std::string nome(indietro ? storia_.DaAnnullare() : storia_.DaRipetere());
  Esito = nome.empty() ? std::string() : (indietro ? "Annullato: " : "Ripetuto: ") + nome;
  Prova([&] {
    storia_.Prepara(ambiente_.sessione);
    (storia_.*passo)(ambiente_.sessione);
  });
  MostraSessione();
  Righe_Indice();
  AvvisoScartate = AvvisoRigheScartate(ambiente_.sessione);
}

// Whether the command is one that shows a form.
bool KR_LibrettoOriginale::EseguiConForm(Comando comando) {
  if (comando == Comando::NuovoLibretto || comando == Comando::NuovoLibrettoVuoto) {
    NuovoLibretto(comando == Comando::NuovoLibretto ? std::string_view{} : "Decozero_131");
    return true;
  }
  const std::string_view form = FormDi(comando);
  if (form.empty()) return false;
  Verifiche.Dimentica(); // a form may change the extract or install an archive
  if (SoloConsulta(comando)) {
    const bool letto = comando == Comando::ConfiguraPregeo; // PREGEO.INI has the last word until row 0 is read again
    if (ApriForm(ambiente_, form) && !letto) DecoZeroNove(ambiente_);
    MostraSessione();
    return true;
  }
  AggiornaLibrettoMisure(ambiente_);
  ambiente_.sessione.ModoDaPregeo = comando == Comando::GraficaPregeo ? 1 : 0; // listing for DXF, or for import
  if (!ApriForm(ambiente_, form)) return true;
  CaricaLibrettoInList1(ambiente_);
  if (comando == Comando::EstrattiDiMappa) ambiente_.sessione.PuntoErrore = "Decozero_132";
  return true;
}

// Nothing that changes the rows: the notice stays.
void KR_LibrettoOriginale::MostraScartate() {
  Prova([&] {
    FormRigheScartate form(ambiente_);
    ambiente_.finestre.MostraModale(form);
  });
}

// The state is stored when all are set, and only then.
void KR_LibrettoOriginale::SpuntaOpzioni(bool si) {
  for (Opzione& opzione : Opzioni) opzione.spuntata = si;
  if (!si) return;
  for (const Opzione& opzione : Opzioni) ambiente_.impostazioni.Scrivi("LIBRETTO_AUTOMATICO", opzione.testo, "1");
}

} // namespace lirmeto
