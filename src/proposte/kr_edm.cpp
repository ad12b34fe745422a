#include <proposte/kr_edm.h>

#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/zero_nove.h>
#include <estratti/kr_estratto.h>
#include <pregeo/aree_proposta.h>
#include <proposte/archivio_particelle.h>
#include <proposte/derivazioni.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>
#include <proposte/kr_tm_fusione.h>
#include <proposte/tipo_mappale.h>
#include <proposte/verifica_censuario.h>
#include <supporto/cod_fis.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

// How the workbench does what could be done in more than one way:
//
//   a save without an associated extract   writes the parcel's file alone
//   an associated extract that is gone     the parcel's file is written and error 53 told; no new extract comes of it
//   a quality that the table has not       Text11 holds the text itself, so that it is seen in the rows
//   the buttons that need an extract       14 and 16
//   a sheet that is left with blanks       trimmed

namespace {

constexpr std::string_view Impossibile = "Impossibile continuare";

constexpr std::array ElencoPulsanti = {
    PulsanteForm{2, "salva", "Salva Particella", "Scrive la particella nell'archivio e nell'estratto"},
    PulsanteForm{14, "estratti", "Salva nell'Estratto", "Scrive la particella nell'archivio e nell'estratto associato"},
    PulsanteForm{3, "elimina", "Elimina Particella", "Elimina il file selezionato"},
    PulsanteForm{19, "sn_sr", "SN / SR", "Superficie nominale o reale"},
    PulsanteForm{5, "cerca", "Cerca Comune", "Il codice del comune"},
    PulsanteForm{6, "fraziona", "Frazionamento", "Il numero originale si sopprime"},
    PulsanteForm{7, "mantiene", "Frazionamento, stesso numero", "La prima derivata mantiene il numero"},
    PulsanteForm{10, "stralcio", "Stralcio", "Una parte della particella si stacca"},
    PulsanteForm{8, "costruzione", "Nuova Costruzione", "Tipo Mappale per un nuovo fabbricato"},
    PulsanteForm{9, "variazione", "Variazione", "Tipo Mappale per un fabbricato che varia"},
    PulsanteForm{11, "fusione", "Fusione", "Più particelle in una"_w},
    PulsanteForm{12, "archivio", "Tutte le Particelle", "I file di tutti i fogli"},
    PulsanteForm{13, "pagina", "Particelle del Foglio", "I file del foglio del libretto"},
    PulsanteForm{15, "importa", "Archivio dal Libretto", "Le nuove particelle dei frazionamenti del libretto"},
    PulsanteForm{16, "ricarica", "Archivio dall'Estratto", "Le particelle dell'estratto associato"},
    PulsanteForm{18, "svuota", "Elimina Tutte", "Elimina tutti i file dell'archivio, di ogni foglio"},
    PulsanteForm{1, "estratti", "Estratti di Mappa", "Chiude e apre la gestione degli estratti"},
    PulsanteForm{0, "chiudi", "Chiudi", "Chiude la finestra"},
};

template <typename Form>
void Mostra(Ambiente& ambiente, Form& form) {
  form.Form_Load();
  ambiente.finestre.MostraModale(form);
}

} // namespace

std::span<const PulsanteForm> KR_EDM::Pulsanti() {
  return ElencoPulsanti;
}

bool KR_EDM::Attivo(int indice) const {
  if (indice == 14 || indice == 16) return ConEstratto;
  if (indice == 1) return ambiente_.finestre.Disponibile("KR_EstrattiDiMappa1");
  return true;
}

// --- opening

std::string KR_EDM::AvvisoErrori() const {
  const Sessione& sessione = ambiente_.sessione;
  ListaRighe censuarie;
  for (const auto riga : RigheDi(sessione.Libretto))
    if (RigaCensuaria(riga)) censuarie.Aggiungi(riga);
  if (censuarie.empty()) return {};
  const auto rilievi = VerificaElencoCensuario(censuarie, sessione.TabellaQualita);
  const auto errori = std::count_if(rilievi.begin(), rilievi.end(),
                                    [](const Segnalazione& una) { return una.regola->severita == Severita::Errore; });
  return "Modello Censuario del libretto: " + TestoIntero(errori) + (errori == 1 ? " errore" : " errori");
}

void KR_EDM::AlCaricamento() {
  Sessione& sessione = ambiente_.sessione;
  DecoZeroNove(ambiente_);
  sessione.PuntoErrore = "Decozero_103";
  Titolo = "Archivio Particelle - " + sessione.CodiceComune + "-" + sessione.Foglio +
           "  Libretto: " + std::string(NomeDaPercorso(sessione.NomeFileLibretto)) +
           " Estratto: " + sessione.EstrattoAssociato;
  EsplodiAreeProposta(ambiente_);
  Prova(&KR_EDM::CaricaProposta);
  (void)Intrappola(ambiente_, [this] { ArchiviaParticelle(ambiente_); });
  AllAttivazione();
}

void KR_EDM::CaricaProposta() {
  const std::string temp = ambiente_.sessione.CartellaProgramma + "\\temp\\";
  List3 = DerivazioniVere(CaricaFileIntero(ambiente_, temp + "Modello Censuario.TXT"));
  if (!ambiente_.disco.Esiste(temp + "TempProposta")) return;
  grafica_.Vista().Check1 = true; // the updated extract over the old one
  grafica_.KR_CaricaPropostaDaLibretto(temp + "TempProposta");
}

void KR_EDM::AllAttivazione() {
  const Sessione& sessione = ambiente_.sessione;
  Label1 = sessione.EstrattoAssociato;
  ConEstratto = !sessione.EstrattoAssociato.empty();
  List1.clear();
  for (const auto particella : Dividi(sessione.Mappali, ",")) List1.emplace_back(Taglia(particella));
  Filtra(tutte_ ? std::string{} : InizioFoglio(sessione));
}

// All of them stay in view, while forms come and go, until those of the sheet are asked for.
void KR_EDM::Filtra(std::string inizio) {
  tutte_ = inizio.empty();
  inizio_ = std::move(inizio);
  Aggiorna();
}

// The file that was selected stays so where it still is.
void KR_EDM::Aggiorna() {
  const std::string scelto = File1Indice < 0 ? std::string{} : File1.at(static_cast<std::size_t>(File1Indice));
  File1 = ElencaParticelle(ambiente_, inizio_);
  const auto posto =
      std::ranges::find_if(File1, [&](const std::string& nome) { return UgualiSenzaCaso(nome, scelto); });
  File1Indice = posto == File1.end() ? -1 : static_cast<long>(posto - File1.begin());
}

// --- lists and boxes

std::string KR_EDM::NomeDi(std::string_view particella) const {
  return Maiuscolo(InizioFoglio(ambiente_.sessione) + "_" + std::string(particella) + ".MAP");
}

// The names stand sorted by their capitals.
bool KR_EDM::InArchivio(std::string_view particella) const {
  const auto inMaiuscolo = [](const std::string& nome) { return Maiuscolo(nome); };
  return std::ranges::binary_search(File1, NomeDi(particella), {}, inMaiuscolo);
}

void KR_EDM::ClicList1(std::size_t voce) {
  if (voce >= List1.size()) return;
  const std::string nome = NomeDi(List1[voce]);
  const auto posto = std::ranges::find_if(File1, [&](const std::string& file) { return Maiuscolo(file) == nome; });
  if (posto != File1.end()) ClicFile1(static_cast<long>(posto - File1.begin()));
}

void KR_EDM::ClicFile1(long voce) {
  if (voce < 0 || static_cast<std::size_t>(voce) >= File1.size()) return;
  File1Indice = voce;
  ambiente_.sessione.PuntoErrore = "KR_EDM";
  (void)Intrappola(ambiente_, [&] {
    const std::string& nome = File1[static_cast<std::size_t>(voce)];
    Label2 = LeggiFileParticella(ambiente_, nome);
    const DatiParticella dati = LeggiRigaParticella(Label2);
    const std::string_view radice = Parte(nome, '.', 0);
    Text1 = Parte(radice, '_', 0);
    Text2 = Parte(radice, '_', 1);
    Text3 = dati.nome;
    Text4 = dati.srSn;
    Text5 = dati.qualita;
    Text6 = dati.classe;
    Text7 = dati.superficie;
    Text8 = dati.superficieGrafica;
    Text9 = dati.dominicale;
    Text10 = dati.agrario;
    LasciaText5();
  });
}

void KR_EDM::LasciaText2() {
  constexpr std::size_t colonne = 5;
  constexpr std::size_t corto = 4;
  Text2 = Maiuscolo(Taglia(Text2));
  if (Text2.empty()) return;
  if (Text2.back() < 'A' && Text2.size() < corto) Text2.insert(Text2.begin(), '0');
  const std::string zeri = std::string(colonne, '0') + Text2;
  Text2 = zeri.substr(zeri.size() - colonne);
}

void KR_EDM::LasciaText5() {
  Text11 = CodiceQualita(ambiente_.sessione.TabellaQualita, Text5);
}

void KR_EDM::LasciaText6() {
  Text6 = ClasseInDueCifre(Text6);
}

// --- buttons

void KR_EDM::Prova(void (KR_EDM::*comando)()) {
  ambiente_.sessione.PuntoErrore = "KR_EDM";
  (void)Intrappola(ambiente_, [&] { (this->*comando)(); });
}

void KR_EDM::Premi(int indice) {
  ambiente_.sessione.PuntoErrore = "KR_EDM";
  (void)Intrappola(ambiente_, [&] { Esegui(indice); });
}

bool KR_EDM::ConSelezione() {
  if (File1Indice >= 0) return true;
  ambiente_.dialoghi.Messaggio("Selezionare una Particella!", Impossibile);
  return false;
}

void KR_EDM::Esegui(int indice) {
  using Azione = void (*)(KR_EDM&);
  static constexpr auto azioni = std::to_array<std::pair<int, Azione>>({
      {0, [](KR_EDM& form) { form.Chiusa = true; }},
      {1, [](KR_EDM& form) { form.ApriEstratti(); }},
      {2, [](KR_EDM& form) { form.Salva(); }},
      {3, [](KR_EDM& form) { form.Elimina(); }},
      {5, [](KR_EDM& form) { form.CercaComune(); }},
      {6, [](KR_EDM& form) { form.ApriFraziona(ModoSopprime); }},
      {7, [](KR_EDM& form) { form.ApriFraziona(ModoMantiene); }},
      {8, [](KR_EDM& form) { form.ApriNuovaCostruzione(); }},
      {9, [](KR_EDM& form) { form.ApriVariazione(); }},
      {10, [](KR_EDM& form) { form.ApriStralcio(); }},
      {11, [](KR_EDM& form) { form.ApriFusione(); }},
      {12, [](KR_EDM& form) { form.Filtra({}); }},
      {13, [](KR_EDM& form) { form.Filtra(InizioFoglio(form.ambiente_.sessione)); }},
      {14, [](KR_EDM& form) { form.Salva(); }},
      {15, [](KR_EDM& form) { form.ArchivioDalLibretto(); }},
      {16, [](KR_EDM& form) { form.ArchivioDallEstratto(); }},
      {18, [](KR_EDM& form) { form.EliminaTutte(); }},
      {19, [](KR_EDM& form) { form.Text4 = form.Text4 == "SN" ? "SR" : "SN"; }},
  });
  for (const auto& [suo, azione] : azioni)
    if (suo == indice) azione(*this);
}

void KR_EDM::ApriEstratti() {
  Chiusa = true;
  ApriForm(ambiente_, "KR_EstrattiDiMappa1");
}

void KR_EDM::CercaComune() {
  Sessione& sessione = ambiente_.sessione;
  sessione.CodiceComune = Text1;
  KR_CodFis form(ambiente_);
  form.AlCaricamento();
  ambiente_.finestre.MostraModale(form);
  if (sessione.EsitoSelezione >= 0) Text1 = sessione.CodiceComune;
}

void KR_EDM::Elimina() {
  if (!ConSelezione()) return;
  ambiente_.disco.Elimina(PercorsoParticella(ambiente_.sessione, File1.at(static_cast<std::size_t>(File1Indice))));
  Aggiorna();
}

void KR_EDM::EliminaTutte() {
  if (File1.empty()) return;
  const std::string cartella = CartellaParticelle(ambiente_.sessione) + "\\";
  for (const auto& nome : ambiente_.disco.Elenca(cartella, ""))
    if (Contiene(Maiuscolo(nome), ".MAP")) ambiente_.disco.Elimina(std::string(cartella).append(nome));
  Aggiorna();
}

// --- saving

// The file comes first: when the extract then cannot be written the two differ until the next save.
void KR_EDM::Salva() {
  if (Taglia(Text8).empty()) Text8 = Text7;
  DatiParticella dati = Caselle();
  dati.classe = ClasseInDueCifre(dati.classe);
  Label2 = RigaParticella(dati);
  const std::string nome = Maiuscolo(NomeFileParticella(Text1, Text2, Text3, ".map"));
  ScriviFileParticella(ambiente_, nome, Sostituisci(Maiuscolo(Label2), ",", "."));
  Aggiorna();
  if (!ambiente_.sessione.EstrattoAssociato.empty()) SalvaNellEstratto(Label2);
}

void KR_EDM::SalvaNellEstratto(const std::string& riga) {
  const std::string percorso = PercorsoEstratto(ambiente_.sessione, ambiente_.sessione.EstrattoAssociato);
  if (!ambiente_.disco.Esiste(percorso)) throw Errore(errore::FileNonTrovato, "Estratto non trovato: " + percorso);
  const std::string testo = CaricaFileIntero(ambiente_, percorso);
  ambiente_.sessione.PuntoErrore = "KR_EDM";
  ambiente_.disco.Scrivi(percorso, EstrattoConParticella(testo, riga));
}

// --- archive

void KR_EDM::ArchivioDalLibretto() {
  DecoZeroNove(ambiente_);
  ambiente_.sessione.PuntoErrore = "Decozero_102";
  ScriviParticelle(ambiente_, ParticelleDelLibretto(ambiente_.sessione));
  Aggiorna();
}

void KR_EDM::ArchivioDallEstratto() {
  const Sessione& sessione = ambiente_.sessione;
  Dialoghi& dialoghi = ambiente_.dialoghi;
  if (sessione.EstrattoAssociato.empty())
    return dialoghi.Messaggio("Estratto NON Associato!", "Estratto non Associato", Gravita::Critico);
  const std::string percorso = PercorsoEstratto(sessione, sessione.EstrattoAssociato);
  const std::string fine(FineRiga);
  if (!ambiente_.disco.Esiste(percorso))
    return dialoghi.Messaggio(fine + "L'Estratto " + percorso + fine + "Non esiste!", "Estratto non trovato",
                              Gravita::Critico);
  const std::string testo = CaricaFileIntero(ambiente_, percorso);
  ambiente_.sessione.PuntoErrore = "KR_EDM";
  ScriviParticelle(ambiente_, ParticelleDellEstratto(sessione, testo));
  Aggiorna();
  if (File1.empty())
    Filtra({}); // an extract may write its sheet otherwise than the libretto: its parcels show all the same
}

// --- the proposal forms

DatiParticella KR_EDM::Caselle() const {
  return {Text3, Text6, Text5, Text7, Text8, Text10, Text9, Text4};
}

ParticellaScelta KR_EDM::Scelta() const {
  return {Caselle(), Text11, List3};
}

void KR_EDM::ApriFraziona(int modo) {
  if (!ConSelezione()) return;
  ambiente_.sessione.ModoEditor = modo;
  KR_Fraziona form(ambiente_, Scelta());
  Mostra(ambiente_, form);
}

void KR_EDM::ApriStralcio() {
  if (!ConSelezione()) return;
  KR_Stralcio form(ambiente_, Scelta());
  Mostra(ambiente_, form);
  Chiusa = true;
}

void KR_EDM::ApriNuovaCostruzione() {
  if (!ConSelezione()) return;
  KR_NuovaCostruzione form(ambiente_, Scelta());
  Mostra(ambiente_, form);
}

// A parcel that is no building is warned of, and the form opens all the same.
void KR_EDM::ApriVariazione() {
  if (!ConSelezione()) return;
  if (Valore(Text11) < censuario::PrimaNonAgraria)
    ambiente_.dialoghi.Messaggio("Non è un Fabbricato!"_w, "Attenzione!!!");
  KR_TMVariazione form(ambiente_, Scelta());
  Mostra(ambiente_, form);
  Chiusa = true;
}

void KR_EDM::ApriFusione() {
  KR_TMFusione form(ambiente_);
  Mostra(ambiente_, form);
}

} // namespace lirmeto
