#include <core/riordino.h>

#include <base/avanzamento.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/ordine_stazioni.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/salvataggio.h>
#include <core/servizi.h>

#include <algorithm>

namespace lirmeto {

// How rows are told apart and joined, where it could be done in more than one way:
//
//   a Relazione block without its closing mark     no block: its rows are judged one by one
//   a row 6 that holds either Relazione mark       no comment: it is dropped when it stands outside a block
//   a blank row                                    no row
//   the delete buttons                             every one empties its list only on Yes
//   census rows of province GO                     only those that have all the fields are changed
//   the proposal                                   its rows go to List14 even where they are a Relazione block too

namespace {

using Righe = std::vector<std::string_view>;

using Blocco = FormRiordinoRighe::Blocco;

// Both marks hold the five stars: most rows are passed over by their first
// character.
bool HaMarca(std::string_view riga, std::string_view marca) {
  return riga.find('*') != std::string_view::npos && Contiene(riga, marca);
}

// The last opening mark before the first closing one.
Blocco TrovaRelazione(const Righe& righe) {
  Blocco blocco;
  for (std::size_t i = 0; i < righe.size() && blocco.fine == std::string_view::npos; ++i) {
    if (HaMarca(righe[i], InizioRelazione)) blocco.inizio = i;
    if (HaMarca(righe[i], FineRelazione)) blocco.fine = i;
  }
  return blocco;
}

using Lista = ListaRighe FormRiordinoRighe::*;

// Class of a row 6; `prima` is the kind of the row before it. nullptr: no
// class.
Lista ClasseRiga6(std::string_view riga, double prima) {
  if (Riga6Gps(riga)) return &FormRiordinoRighe::List13;
  if (Contiene(riga, "6|DettaglioTipoAgg=")) return &FormRiordinoRighe::List12;
  if (riga.size() == LunghezzaCensuaria) return &FormRiordinoRighe::List6;
  if (riga.starts_with("6| -")) return &FormRiordinoRighe::List15;
  if (!PuoEssereCommento(riga)) return nullptr;
  return prima == 9 || prima == 0 ? &FormRiordinoRighe::List12 : &FormRiordinoRighe::List7;
}

Lista ClasseRiga(std::string_view riga, double genere, double prima) {
  if (genere == 3) return &FormRiordinoRighe::List3;
  if (genere == 0) return &FormRiordinoRighe::List0;
  if (genere == 1 || genere == 2) return RigaGps(riga) ? &FormRiordinoRighe::List13 : &FormRiordinoRighe::List1;
  if (genere == 6) return ClasseRiga6(riga, prima);
  if (genere == 9) return &FormRiordinoRighe::List9;
  if (genere == 8) return &FormRiordinoRighe::List8;
  if (genere == 7) return &FormRiordinoRighe::List7;
  if (genere == 4 || genere == 5) return &FormRiordinoRighe::List4;
  return &FormRiordinoRighe::List1;
}

// The rows without the whole text they were found in.
ListaRighe Copiate(const ListaRighe& righe) {
  ListaRighe copiate;
  for (const auto riga : righe) copiate.Aggiungi(riga);
  return copiate;
}

} // namespace

const std::array<FormRiordinoRighe::Classe, 13>& FormRiordinoRighe::Classi() {
  using F = FormRiordinoRighe;
  static const std::array<Classe, 13> classi = {{
      {"Riga 0", &F::List0, {}, {}},
      {"Riga 9", &F::List9, {}, {}},
      {"Commento", &F::List12, "Eliminazione Riga Commento", "Eliminare commento?"},
      {"Appunti", &F::List15, "Eliminazione Appunti da Libretto", "Eliminare gli Appunti dal Libretto?"},
      {"Poligonali", &F::List3, "Eliminazione Poligonali", "Eliminare Poligonali?"},
      {"Righe GPS", &F::List13, "Eliminazione Punti Fiduciali", "Eliminare le Righe GPS?"},
      {"Stazioni e Punti Battuti", &F::List1, "Eliminazione Stazioni", "Eliminare Stazioni-P.Battuti?"},
      {"Righe 4-5", &F::List4, "Eliminazione Righe 4-5", "Eliminare Righe 4-5?"},
      {"Contorni", &F::List7, "Eliminazione Contorni", "Eliminare Contorni?"},
      {"Relazione Tecnica", &F::List5, "Eliminazione Relazione Tecnica", "Eliminare Relazione Tecnica?"},
      {"Punti Fiduciali e Coordinate", &F::List8, "Eliminazione Punti Fiduciali", "Eliminare Punti Fiduciali?"},
      {"Modello Censuario", &F::List6, "Eliminazione Modello Censuario", "Eliminare Modello Censuario?"},
      {"Proposta di Aggiornamento", &F::List14, "Eliminazione Proposta di Aggiornamnto",
       "Eliminare la Proposta di Aggiornamento?"},
  }};
  return classi;
}

void FormRiordinoRighe::EsplodiLibretto() {
  Sessione& sessione = ambiente_.sessione;
  const auto testo = std::make_shared<const std::string>(sessione.Libretto);
  Svuota(testo);
  const Righe righe = RigheDi(*testo);
  const Blocco relazione = TrovaRelazione(righe);
  for (std::size_t i = 0; relazione.Vale() && i < righe.size(); ++i)
    if (relazione.Contiene(i)) List5.AggiungiVista(righe[i]);
  CatturaPropostaInLibretto(sessione);
  const auto proposta = static_cast<std::size_t>(std::find(righe.begin(), righe.end(), RigaProposta) - righe.begin());
  for (std::size_t i = proposta; i < righe.size(); ++i) List14.AggiungiVista(Taglia(righe[i]));
  // A last row that no line end closes is not looked at: a libretto is expected to end with one.
  const bool aperta = proposta == righe.size() && proposta > 0 && !testo->ends_with(FineRiga);
  Distribuisci(std::span(righe).first(proposta - (aperta ? 1 : 0)), relazione);
  OrdinaStazioni(List1, Ordine::Stazioni);
  OrdinaStazioni(List13, Ordine::Gps);
  EtichettaIscrizione = "Numero Iscrizione Albo " + sessione.NumeroIscrizione;
  EtichettaCodiceFiscale = "Codice Fiscale " + sessione.CodiceFiscale;
  ControllaCensuario();
}

// Every list empty and ready for rows of the text.
void FormRiordinoRighe::Svuota(const TestoCondiviso& testo) {
  for (const Classe& classe : Classi()) {
    (this->*classe.lista).clear();
    (this->*classe.lista).Tieni(testo);
  }
  RigheScartate.clear();
  RigheScartate.Tieni(testo);
}

// Each row to the first class that fits. The comments that other forms once
// held back for the next group never come here, so that no list waits for them.
void FormRiordinoRighe::Distribuisci(std::span<const std::string_view> righe, const Blocco& relazione) {
  Avanzamento avanzamento(ambiente_.dialoghi, "Riordino Righe", righe.size());
  double prima = -1; // no row stands before the first
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    const double genere = GenereRiga(righe[i]);
    if (!relazione.Contiene(i) && !Taglia(righe[i]).empty()) {
      const Lista lista = ClasseRiga(righe[i], genere, prima);
      (lista ? this->*lista : RigheScartate).AggiungiVista(righe[i]);
    }
    prima = genere;
  }
}

void FormRiordinoRighe::ControllaCensuario() {
  if (List6.empty() || RigheIndicate(List6) == static_cast<double>(List6.size())) return;
  ambiente_.dialoghi.Messaggio("Il numero delle righe INDICATE nel Modello Censuario" + std::string(FineRiga) +
                               "non corrisponde al numero delle righe PRESENTI nel Modello Censuario!");
}

void FormRiordinoRighe::RicomponiLibretto() {
  if (ambiente_.sessione.SiglaProvincia == "GO")
    for (std::size_t i = 0; i < List6.size(); ++i) List6.Cambia(i, RigaCensuariaGo(List6[i]));
  std::string& libretto = ambiente_.sessione.Libretto;
  libretto.clear();
  std::string_view prima;
  for (const Classe& classe : Classi()) {
    const ListaRighe& lista = this->*classe.lista;
    // A Relazione of its two mark rows says nothing.
    if (&lista == &List5 && lista.size() <= 2) continue;
    for (const auto riga : lista) {
      if (!libretto.empty() && UgualiSenzaCaso(riga, prima)) continue;
      libretto += riga;
      libretto += FineRiga;
      prima = riga;
    }
  }
}

void FormRiordinoRighe::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
}

void FormRiordinoRighe::AllAttivazione() {
  EsplodiLibretto();
}

void FormRiordinoRighe::Conferma() {
  RicomponiLibretto();
  CaricaLibrettoInList1(ambiente_);
  ambiente_.sessione.RigheScartate = Copiate(RigheScartate);
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
  if (Domanda(Classi()[classe])) (this->*Classi()[classe].lista).clear();
}

void FormRiordinoRighe::DoppioClick(std::size_t classe, std::size_t riga) {
  if (classe >= Classi().size()) return;
  ListaRighe& lista = this->*Classi()[classe].lista;
  if (riga >= lista.size()) return;
  if (&lista == &List0 || &lista == &List9 || &lista == &List12) {
    ApriForm(ambiente_, "FormCatasto1TXT");
  } else if (Domanda(Classi()[classe])) {
    lista.Togli(riga);
  }
}

void subRiordinoRighe(Ambiente& ambiente) {
  FormRiordinoRighe form(ambiente);
  form.EsplodiLibretto();
  form.RicomponiLibretto();
  CaricaLibrettoInList1(ambiente);
  ambiente.sessione.RigheScartate = Copiate(form.RigheScartate);
  ambiente.sessione.PuntoErrore = "Decozero_116";
}

} // namespace lirmeto
