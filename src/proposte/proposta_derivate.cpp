#include <proposte/proposta_derivate.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <pregeo/aree_proposta.h>
#include <proposte/derivazioni.h>
#include <proposte/lettere.h>
#include <proposte/memo.h>
#include <supporto/editor_gen.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace lirmeto {

// How derived parcels are made, where it could be done in more than one way:
//
//   more than 26 of them               letters and names go on: "aa", "ABA"
//   a number of parcels beyond 17,576  as many as there are temporary names
//   no derivations in the proposal     the automatic proposal makes the rows anew and leaves the number as it is
//   a double click on the original     recomposes too, though no area is being typed
//   the mode                           stays with the form: the editor of the memo leaves ModoEditor at 0
//   an error of the composition        is shown among the findings; no message comes between two keys
//   the editor of the memo             opens the memo of the form
//   a save while the memo is empty     asks whether the rows composed go there first; with a no the form closes as it would

namespace {

using Grid = GrigliaProposta;

constexpr Regola NonRicomposte = {"", Severita::Errore, "Le righe non sono ricomposte: {1}",
                                  "restano quelle di prima dell'errore"};

constexpr std::array ElencoPulsanti = {
    PulsanteForm{8, "salva", "Salva nel Libretto", "Il memo prende il posto delle righe censuarie del libretto"},
    PulsanteForm{pulsante::Aggiungi, "importa", "Aggiungi al Libretto",
                 "Il memo va dietro le righe censuarie che ci sono"},
    PulsanteForm{2, "giu", "Metti nel Memo", "Le righe di questa particella vanno nel memo"},
    PulsanteForm{9, "ricarica", "Proposta Automatica", "Particelle e aree dalla proposta di aggiornamento"},
    PulsanteForm{6, "su", "Carica dal Libretto", "Le righe censuarie del libretto vanno nel memo"},
    PulsanteForm{7, "modifica", "Modifica Memo", "Il memo come testo"},
    PulsanteForm{5, "elimina", "Elimina Righe", "Toglie dal memo le righe selezionate"},
    PulsanteForm{3, "nuovo", "Ricomincia", "Vuota il memo"},
    PulsanteForm{pulsante::Copia, "copia", "Copia", "Il memo negli appunti"},
    PulsanteForm{pulsante::Stampa, "stampa", "Stampa", "Stampa il memo"},
    PulsanteForm{pulsante::Chiudi, "chiudi", "Chiudi", "Chiude senza toccare il libretto"},
};

std::vector<std::string> LineeMenoLaPrima(std::string_view testo) {
  const auto linee = RigheDi(testo);
  return {linee.empty() ? linee.end() : linee.begin() + 1, linee.end()};
}

} // namespace

std::span<const PulsanteForm> PropostaDerivate::Pulsanti() const {
  return ElencoPulsanti;
}

PropostaDerivate::PropostaDerivate(Ambiente& ambiente, ParticellaScelta scelta)
    : FormCensuario(ambiente), scelta_(std::move(scelta)) {
  scelta_.dati.nome = Taglia(scelta_.dati.nome);
}

PropostaDerivate::Ingressi PropostaDerivate::LeggiIngressi() {
  EsplodiAreeProposta(LAmbiente());
  const std::string temp = LaSessione().CartellaProgramma + "\\temp\\";
  const std::string aree = temp + "Aree Per Censuario.txt";
  if (!LAmbiente().disco.Esiste(aree)) LAmbiente().dialoghi.Messaggio("Proposta Assente!", "Impossibile continuare");
  Ingressi ingressi;
  (void)Intrappola(LAmbiente(), [&] {
    ingressi = {CaricaFileIntero(LAmbiente(), aree), CaricaFileIntero(LAmbiente(), temp + "Modello Censuario.TXT"),
                LeggiCen(LAmbiente(), FileMemo()), CaricaFileIntero(LAmbiente(), temp + "TempProposta")};
  });
  return ingressi;
}

void PropostaDerivate::Apri(const Ingressi& ingressi) {
  Combo1 = LineeMenoLaPrima(ingressi.aree);
  ContaLettere(ingressi.memo);
  RiempiGriglia();
  CaricaMemo(ingressi.memo);
  List3 = DerivazioniDi(DerivazioniVere(ingressi.modello), Particella());
  if (List3.empty()) return;
  if (Valore(ParteDerivata(List3.front())) > 0) Check1 = true; // a numbered parcel goes on with its number
  CambiaText1(TestoIntero(static_cast<long long>(List3.size())));
}

void PropostaDerivate::RiempiGriglia() {
  Titolo = "Fraziona Particella " + Particella();
  MSFlexGrid1.Righe(Grid::PrimaDerivata);
  MSFlexGrid1.Metti(Grid::Originale, Grid::Operazione, "O");
  MSFlexGrid1.Metti(Grid::Originale, Grid::Particella, Particella());
  MSFlexGrid1.Metti(Grid::Originale, Grid::Area, scelta_.dati.superficie);
  MSFlexGrid1.Metti(Grid::Originale, Grid::RA, scelta_.dati.dominicale);
  MSFlexGrid1.Metti(Grid::Originale, Grid::RD, scelta_.dati.agrario);
  MSFlexGrid1.Metti(Grid::Soppressa, Grid::Operazione, "S");
}

// --- memo

void PropostaDerivate::CaricaMappaleDiPartenza() {
  ContaLettere(LeggiCen(LAmbiente(), fileMemo_));
}

// The last "C" row decides.
void PropostaDerivate::ContaLettere(std::string_view memo) {
  ultimaLettera_ = 0;
  for (const auto riga : RigheDi(memo)) {
    const auto colonne = [riga](const CampoCensuario& campo) {
      return riga.size() < campo.prima ? std::string_view{} : riga.substr(campo.prima - 1, campo.quante);
    };
    if (colonne(censuario::Operazione) == "C") ultimaLettera_ = NumeroTemporaneo(colonne(censuario::Temporaneo));
  }
}

void PropostaDerivate::Carica51FTPCen() {
  CaricaMemo(LeggiCen(LAmbiente(), fileMemo_));
}

// An empty memo begins as one of splits, that of a separation too: meant so, though the office then reads it as a
// split. The findings tell.
void PropostaDerivate::CaricaMemo(std::string_view testo) {
  List2.Riempi(RigheCensuarie(testo));
  if (List2.Vuoto()) IniziaMemo(List2, censuario::Frazionamento);
  RinnovaConteggio(List2);
}

void PropostaDerivate::AggiungiAlMemo() {
  if (List2.Vuoto()) IniziaMemo(List2, censuario::Frazionamento);
  AggiungiDati(List2, List1);
  RinnovaConteggio(List2);
  ScriviCen(LAmbiente(), fileMemo_, List2);
}

void PropostaDerivate::MemorizzaParticella() {
  AggiungiAlMemo();
  Chiusa = LAmbiente().dialoghi.Chiedi(DomandaNuova(), TitoloDomanda(), Bottoni::SiNo) == Risposta::Si;
}

// Whether a save may go on. It takes the memo alone, and an empty one closes the form all the same: what was composed is
// not lost without a word.
bool PropostaDerivate::MemoPronto() {
  if (List2.Quante() > RigheDiTesta || List1.size() <= RigheDiTesta) return true;
  const Risposta risposta = LAmbiente().dialoghi.Chiedi("Il memo è vuoto: mettervi le righe di questa particella?"_w,
                                                        "Memo Vuoto", Bottoni::SiNoAnnulla);
  if (risposta == Risposta::Si) AggiungiAlMemo();
  return risposta != Risposta::Annulla;
}

void PropostaDerivate::VuotaMemo() {
  const std::string percorso = PercorsoCen(LaSessione(), fileMemo_);
  if (!fileMemo_.empty() && LAmbiente().disco.Esiste(percorso)) LAmbiente().disco.Elimina(percorso);
  List2.Svuota();
  IniziaMemo(List2, Sezione());
  CaricaMappaleDiPartenza();
}

void PropostaDerivate::TogliSelezionate() {
  List2.TogliSelezionate(0);
  ScriviCen(LAmbiente(), fileMemo_, List2);
}

void PropostaDerivate::CaricaDalLibretto() {
  List2.Riempi(RigheCensuarie(LaSessione().Libretto));
  ScriviCen(LAmbiente(), fileMemo_, List2);
}

void PropostaDerivate::DoppioClickMemo() {
  subModificaCensuario(LAmbiente(), PercorsoCen(LaSessione(), FileMemo()));
  (void)Intrappola(LAmbiente(), [this] { Carica51FTPCen(); });
}

void PropostaDerivate::Esegui(int indice) {
  switch (indice) {
  case pulsante::Aggiungi:
    if (!MemoPronto()) return;
    SalvaPropostaFile(LAmbiente(), List2);
    Chiusa = true;
    return;
  case 2:
    return MemorizzaParticella();
  case 3:
    return VuotaMemo();
  case 5:
    return TogliSelezionate();
  case 6:
    return CaricaDalLibretto();
  case 7:
    ScriviCen(LAmbiente(), fileMemo_, List2);
    return DoppioClickMemo();
  case 8:
    if (!MemoPronto()) return;
    SalvaPropostaFile1(LAmbiente(), List2);
    Chiusa = true;
    return;
  case 9:
    return PropostaAutomatica();
  default:
    FormCensuario::Esegui(indice);
  }
}

// --- boxes and grid

void PropostaDerivate::CambiaText1(std::string_view testo) {
  Text1 = testo;
  GeneraParticelleDerivate();
}

void PropostaDerivate::LasciaText1() {
  if (Valore(Text1) <= 0) LAmbiente().dialoghi.Messaggio("Inserire un valore > 0", "Impossibile continuare");
}

// The rows are made anew: what was typed into them goes.
void PropostaDerivate::GeneraParticelleDerivate() {
  modo_ = Check1 ? ModoMantiene : ModoSopprime;
  LaSessione().ModoEditor = modo_;
  const double volute = Valore(Text1);
  if (volute <= 0) return;
  const auto quante = static_cast<std::size_t>(std::min(std::floor(volute), static_cast<double>(MassimiTemporanei)));
  MSFlexGrid1.Righe(Grid::PrimaDerivata);
  MSFlexGrid1.Righe(Grid::PrimaDerivata + std::max<std::size_t>(quante, Mantiene() ? 1 : 0));
  for (std::size_t i = Grid::PrimaDerivata; i < MSFlexGrid1.Righe(); ++i) {
    const bool variata = Mantiene() && i == Grid::PrimaDerivata;
    MSFlexGrid1.Metti(i, Grid::Operazione, variata ? "V" : "C");
    MSFlexGrid1.Metti(i, Grid::Particella, LetteraDerivata(PostoInSerie(i)));
    MSFlexGrid1.Metti(i, Grid::SrSn, "SN");
  }
  MSFlexGrid1.Metti(Grid::Originale, Grid::SrSn, "SN");
  RigaCorrente = Grid::PrimaDerivata;
  if (MSFlexGrid1.Righe() > Grid::PrimaDerivata) MostraCasella();
}

// The varied parcel takes no letter.
std::size_t PropostaDerivate::PostoInSerie(std::size_t riga) const {
  return riga + 1 - Grid::PrimaDerivata - (Mantiene() ? 1 : 0);
}

std::string PropostaDerivate::NomeInSerie(std::size_t riga) const {
  return NomeTemporaneo(PostoInSerie(riga) + ultimaLettera_);
}

void PropostaDerivate::VaiARiga(std::size_t riga) {
  if (riga >= MSFlexGrid1.Righe()) return;
  RigaCorrente = riga;
  MostraCasella();
}

void PropostaDerivate::MostraCasella() {
  if (RigaCorrente < Grid::Soppressa) {
    Text2.clear();
    return;
  }
  Text2 = Taglia(MSFlexGrid1.Cella(RigaCorrente, Grid::PropAree));
  Label2 = "Area Propoprzionale Particella " + Particella() + " - " + MSFlexGrid1.Cella(RigaCorrente, Grid::Particella);
}

void PropostaDerivate::CambiaText2(std::string_view testo) {
  Text2 = testo;
  for (char& lettera : Text2)
    if (Tasto(Maiuscolo(lettera))) lettera = ' ';
  Ricomponi();
}

// Whether the key is one that acts on the current row.
bool PropostaDerivate::Tasto(char lettera) {
  if (lettera != 'R' && lettera != 'N' && lettera != 'F') return false;
  if (RigaCorrente < Grid::PrimaDerivata) return true;
  if (lettera == 'F')
    MSFlexGrid1.Metti(RigaCorrente, Grid::Fissa, Grid::TestoFissa);
  else
    MSFlexGrid1.Metti(RigaCorrente, Grid::SrSn, lettera == 'R' ? "SR" : "SN");
  return true;
}

void PropostaDerivate::Invio() {
  VaiARiga(RigaCorrente + 1 < MSFlexGrid1.Righe() ? RigaCorrente + 1 : Grid::PrimaDerivata);
}

void PropostaDerivate::ScegliArea(std::size_t voce) {
  if (voce >= Combo1.size()) return;
  Text2 = DopoUguale(Combo1[voce]);
  Ricomponi();
  Invio();
}

void PropostaDerivate::CambiaCheck1(bool si) {
  Check1 = si;
  PropostaAutomatica();
}

// The rows that come out are those of an area put in after the other: one composition at the end gives the same.
void PropostaDerivate::PropostaAutomatica() {
  if (!List3.empty()) Text1 = TestoIntero(static_cast<long long>(List3.size()));
  GeneraParticelleDerivate();
  for (std::size_t i = 0; i < List3.size() && Grid::PrimaDerivata + i < MSFlexGrid1.Righe(); ++i)
    MSFlexGrid1.Metti(Grid::PrimaDerivata + i, Grid::PropAree, DopoUltimoUguale(List3[i]));
  VaiARiga(Grid::PrimaDerivata);
  if (!List3.empty()) Ricomponi();
}

void PropostaDerivate::DoppioClick(std::size_t riga, std::size_t colonna) {
  if (riga >= MSFlexGrid1.Righe()) return;
  VaiARiga(riga);
  Assorbi(Titolo + " MsFlexgrid1_DblClick", [&] {
    const std::string& operazione = MSFlexGrid1.Cella(riga, Grid::Operazione);
    if (operazione != "O" && operazione != "C") return;
    if (colonna == Grid::SrSn) CambiaSegno(riga);
    if (colonna == Grid::Fissa) CambiaFissa(riga);
    if (MSFlexGrid1.Righe() > Grid::PrimaDerivata) Componi();
  });
}

void PropostaDerivate::CambiaSegno(std::size_t riga) {
  const bool nominale = MSFlexGrid1.Cella(riga, Grid::SrSn) == "SN";
  MSFlexGrid1.Metti(riga, Grid::SrSn, nominale ? "SR" : "SN");
  if (nominale && MSFlexGrid1.Cella(riga, Grid::Operazione) == "C")
    MSFlexGrid1.Metti(riga, Grid::Fissa, Grid::TestoFissa);
}

// A row "SR" cannot lose its "FISSA".
void PropostaDerivate::CambiaFissa(std::size_t riga) {
  if (!MSFlexGrid1.EFissa(riga)) {
    if (MSFlexGrid1.Cella(riga, Grid::Operazione) == "C") MSFlexGrid1.Metti(riga, Grid::Fissa, Grid::TestoFissa);
  } else if (MSFlexGrid1.Cella(riga, Grid::SrSn) != "SR") {
    MSFlexGrid1.Metti(riga, Grid::Fissa, {});
  }
}

// --- what the window shows besides

double PropostaDerivate::SommaAree() const {
  double somma = 0;
  for (const auto riga : List1) {
    const std::string_view operazione = LeggiCampo(riga, censuario::Operazione);
    if (operazione == "C" || operazione == "V") somma += Valore(LeggiCampo(riga, censuario::Area));
  }
  return somma;
}

double PropostaDerivate::DifferenzaAree() const {
  return SommaAree() - MSFlexGrid1.ValoreCella(Grid::Originale, Grid::Area);
}

double PropostaDerivate::DifferenzaGriglia() const {
  return MSFlexGrid1.Somma(Grid::Area) - MSFlexGrid1.ValoreCella(Grid::Originale, Grid::Area);
}

std::string PropostaDerivate::ParticellaCorrente() const {
  if (RigaCorrente < Grid::PrimaDerivata || RigaCorrente >= MSFlexGrid1.Righe()) return {};
  const std::string_view proposta = Taglia(MSFlexGrid1.Cella(RigaCorrente, Grid::NomeProposta));
  if (!proposta.empty()) return std::string(proposta);
  return MSFlexGrid1.Cella(RigaCorrente, Grid::Operazione) == "V" ? Particella() : NomeDellaNuova(RigaCorrente);
}

std::vector<Segnalazione> PropostaDerivate::Rilievi() const {
  std::vector<Segnalazione> rilievi;
  if (!assorbito_.empty()) rilievi.push_back({&NonRicomposte, {}, 0, assorbito_, {}});
  return rilievi;
}

} // namespace lirmeto
