#include <core/riordino.h>

#include <base/testo.h>
#include <core/apertura.h>
#include <core/apri_form.h>
#include <core/libretto_in_classi.h>
#include <core/salvataggio.h>

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lirmeto {

namespace {

using Conteggi = std::unordered_map<std::string_view, std::size_t>; // how many times a row

// Adds what was deleted of a list: `restate` are rows of `tutte` in the same order.
void ContaEliminate(const ListaRighe& tutte, const ListaRighe& restate, Conteggi& eliminate) {
  auto prossima = restate.begin();
  for (const auto riga : tutte) {
    if (prossima != restate.end() && *prossima == riga)
      ++prossima;
    else
      ++eliminate[riga];
  }
}

} // namespace

const std::array<FormRiordinoRighe::Classe, 13>& FormRiordinoRighe::Classi() {
  using C = ClasseRighe;
  static const std::array<Classe, 13> classi = {{
      {"Riga 0", C::Zero, {}, {}},
      {"Riga 9", C::Nove, {}, {}},
      {"Commento", C::Commento, "Eliminazione Riga Commento", "Eliminare commento?"},
      {"Appunti", C::Appunti, "Eliminazione Appunti da Libretto", "Eliminare gli Appunti dal Libretto?"},
      {"Poligonali", C::Poligonali, "Eliminazione Poligonali", "Eliminare Poligonali?"},
      {"Righe GPS", C::Gps, "Eliminazione Punti Fiduciali", "Eliminare le Righe GPS?"},
      {"Stazioni e Punti Battuti", C::Stazioni, "Eliminazione Stazioni", "Eliminare Stazioni-P.Battuti?"},
      {"Righe 4-5", C::Allineate, "Eliminazione Righe 4-5", "Eliminare Righe 4-5?"},
      {"Contorni", C::Contorni, "Eliminazione Contorni", "Eliminare Contorni?"},
      {"Relazione Tecnica", C::Relazione, "Eliminazione Relazione Tecnica", "Eliminare Relazione Tecnica?"},
      {"Punti Fiduciali e Coordinate", C::Coordinate, "Eliminazione Punti Fiduciali", "Eliminare Punti Fiduciali?"},
      {"Modello Censuario", C::Censuario, "Eliminazione Modello Censuario", "Eliminare Modello Censuario?"},
      {"Proposta di Aggiornamento", C::Proposta, "Eliminazione Proposta di Aggiornamnto",
       "Eliminare la Proposta di Aggiornamento?"},
  }};
  return classi;
}

void FormRiordinoRighe::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
}

void FormRiordinoRighe::AllAttivazione() {
  divise_ = EsplodiLibretto(ambiente_);
  Righe = divise_;
  MostraTecnico();
}

void FormRiordinoRighe::MostraTecnico() {
  EtichettaIscrizione = "Numero Iscrizione Albo " + ambiente_.sessione.NumeroIscrizione;
  EtichettaCodiceFiscale = "Codice Fiscale " + ambiente_.sessione.CodiceFiscale;
}

void FormRiordinoRighe::Conferma() {
  RicomponiLibretto(ambiente_, Righe);
  CaricaLibrettoInList1(ambiente_);
  ambiente_.sessione.RigheScartate = Righe[ClasseRighe::Nessuna].Compatta();
  ambiente_.sessione.PuntoErrore = "Decozero_127";
  ambiente_.sessione.EsitoForm = EsitoConfermato;
  Chiusa = true;
}

void FormRiordinoRighe::Chiudi() {
  const auto eliminata = [&](const Classe& classe) {
    return Righe[classe.classe].size() != divise_[classe.classe].size();
  };
  if (std::any_of(Classi().begin(), Classi().end(), eliminata) &&
      ambiente_.dialoghi.Chiedi("Chiudere senza confermare le eliminazioni?", "Riordino Righe", Bottoni::SiNo) !=
          Risposta::Si)
    return;
  ambiente_.sessione.ModoEditor = 0;
  Chiusa = true;
}

// The question of the list, and what would go.
bool FormRiordinoRighe::Domanda(const Classe& classe, std::string_view cosa) {
  const std::string domanda = std::string(classe.domanda) + std::string(FineRiga) + std::string(cosa);
  return ambiente_.dialoghi.Chiedi(domanda, classe.titolo, Bottoni::SiNo) == Risposta::Si;
}

void FormRiordinoRighe::EliminaClasse(std::size_t classe) {
  if (classe >= Classi().size() || Classi()[classe].domanda.empty()) return;
  ListaRighe& lista = Righe[Classi()[classe].classe];
  if (Domanda(Classi()[classe], QuanteRighe(lista.size()))) lista.clear();
}

void FormRiordinoRighe::DoppioClick(std::size_t classe, std::size_t riga) {
  if (classe >= Classi().size() || riga >= Righe[Classi()[classe].classe].size()) return;
  const ClasseRighe quale = Classi()[classe].classe;
  const bool intestazione = quale == ClasseRighe::Zero || quale == ClasseRighe::Nove || quale == ClasseRighe::Commento;
  intestazione ? ApriIntestazione() : TastoCancella(classe, riga);
}

void FormRiordinoRighe::TastoCancella(std::size_t classe, std::size_t riga) {
  if (classe >= Classi().size() || Classi()[classe].domanda.empty()) return;
  ListaRighe& lista = Righe[Classi()[classe].classe];
  if (riga < lista.size() && Domanda(Classi()[classe], lista[riga])) lista.Togli(riga);
}

// The form's own outcome is not the reorder's.
void FormRiordinoRighe::ApriIntestazione() {
  const bool confermata = ApriForm(ambiente_, "FormCatasto1TXT") && ambiente_.sessione.EsitoForm > 0;
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  if (confermata) RiprendiDalLibretto();
}

// The form writes rows 0 and 9 and the comment into Libretto, where a comment of before may now belong to another class:
// each list that is no longer the same comes anew, without the rows that were deleted from it here.
void FormRiordinoRighe::RiprendiDalLibretto() {
  RigheInClassi nuove = DividiInClassi(ambiente_.sessione.Libretto, ambiente_.dialoghi);
  std::vector<ClasseRighe> cambiate;
  Conteggi eliminate;
  for (const Classe& classe : Classi()) {
    if (nuove[classe.classe] == divise_[classe.classe]) continue;
    ContaEliminate(divise_[classe.classe], Righe[classe.classe], eliminate);
    cambiate.push_back(classe.classe);
  }
  for (const ClasseRighe classe : cambiate) {
    ListaRighe lista = nuove[classe];
    lista.TogliSe([&](std::string_view riga) {
      const auto trovata = eliminate.find(riga);
      return trovata != eliminate.end() && trovata->second > 0 && trovata->second-- > 0;
    });
    Righe[classe] = std::move(lista);
  }
  Righe[ClasseRighe::Nessuna] = nuove[ClasseRighe::Nessuna];
  divise_ = std::move(nuove);
  MostraTecnico();
}

void subRiordinoRighe(Ambiente& ambiente) {
  RigheInClassi righe = EsplodiLibretto(ambiente);
  const ListaRighe scartate = righe[ClasseRighe::Nessuna].Compatta();
  RicomponiLibretto(ambiente, std::move(righe));
  CaricaLibrettoInList1(ambiente);
  ambiente.sessione.RigheScartate = scartate;
  ambiente.sessione.PuntoErrore = "Decozero_116";
}

} // namespace lirmeto
