#include <core/riordino.h>

#include <core/apertura.h>
#include <core/apri_form.h>
#include <core/libretto_in_classi.h>

#include <utility>

namespace lirmeto {

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
  Righe = EsplodiLibretto(ambiente_);
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
  ambiente_.sessione.ModoEditor = 0;
  Chiusa = true;
}

bool FormRiordinoRighe::Domanda(const Classe& classe) {
  return ambiente_.dialoghi.Chiedi(classe.domanda, classe.titolo, Bottoni::SiNo) == Risposta::Si;
}

void FormRiordinoRighe::EliminaClasse(std::size_t classe) {
  if (classe >= Classi().size() || Classi()[classe].domanda.empty()) return;
  if (Domanda(Classi()[classe])) Righe[Classi()[classe].classe].clear();
}

void FormRiordinoRighe::DoppioClick(std::size_t classe, std::size_t riga) {
  if (classe >= Classi().size()) return;
  const ClasseRighe quale = Classi()[classe].classe;
  ListaRighe& lista = Righe[quale];
  if (riga >= lista.size()) return;
  if (quale == ClasseRighe::Zero || quale == ClasseRighe::Nove || quale == ClasseRighe::Commento) {
    ApriForm(ambiente_, "FormCatasto1TXT");
  } else if (Domanda(Classi()[classe])) {
    lista.Togli(riga);
  }
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
