#include <grafica/grafica.h>

#include <base/testo.h>
#include <core/apertura.h>
#include <core/riga.h>
#include <core/servizi.h>

#include <memory>
#include <utility>

namespace lirmeto {

// How drawings are loaded, where it could be done in more than one way:
//
//   a file that cannot be read      the drawing that stood before stays, its path too
//   section 2000 of an act          its rows go to the first list up to the row that holds "AGGIORNATO", from that row
//   on
//                                   to the second: the same two sections as in a libretto
//   the extension of a file         .AGG and .SMP hold the rows of an .EMP; a file that is none of the known kinds is
//                                   read as a libretto

namespace {

constexpr std::string_view RigaPropostaAggiornata = "6|ESTRATTO DI MAPPA AGGIORNATO|";

// A file's text that lists of rows can share.
TestoCondiviso LeggiTesto(Ambiente& ambiente, std::string_view percorso, std::string_view punto) {
  ambiente.sessione.PuntoErrore = punto;
  return std::make_shared<const std::string>(ConFineRiga(CaricaFileBinario(ambiente, percorso)));
}

bool Esclusa(std::string_view riga, const VistaGrafica& vista) {
  return (vista.Check4 && Contiene(riga, "|PF")) || (vista.Check3 && Contiene(riga, "T|"));
}

// Dashed and dotted black lines of an extract come out red.
void AggiungiRiga7(ListaRighe& lista, std::string_view riga) {
  if (Contiene(riga, "NT") || Contiene(riga, "NP"))
    lista.Aggiungi(Sostituisci(Sostituisci(riga, "NT", "RT"), "NP", "RP"));
  else
    lista.AggiungiVista(riga);
}

void AggiungiRigaEstratto(ListaRighe& lista, std::string_view riga, const VistaGrafica& vista) {
  const double genere = GenereRiga(riga);
  if (genere == 8 && Esclusa(riga, vista)) return;
  if (genere == 7)
    AggiungiRiga7(lista, riga);
  else if (!Taglia(riga).empty())
    lista.AggiungiVista(riga);
}

bool HaSezioni(std::string_view testo) {
  return Contiene(testo, RigaProposta) || Contiene(testo, RigaPropostaAggiornata);
}

void CaricaSezioni(Grafica& grafica, std::string_view percorso, const TestoCondiviso& testo) {
  grafica.Comincia(percorso);
  ListaRighe* sezione = nullptr;
  for (const auto riga : RigheDi(*testo)) {
    if (Contiene(riga, RigaProposta)) sezione = grafica.List2.data();
    if (Contiene(riga, RigaPropostaAggiornata)) sezione = &grafica.List2[1];
    if (sezione != nullptr) sezione->AggiungiVista(riga);
  }
  for (ListaRighe& lista : grafica.List2) lista.Tieni(testo);
  grafica.GeneraGrafica();
}

void CaricaIntero(Grafica& grafica, std::string_view percorso, const TestoCondiviso& testo) {
  grafica.Comincia(percorso);
  grafica.List2[0].Viste() = RigheDi(*testo);
  grafica.List2[0].Tieni(testo);
  grafica.GeneraGrafica();
}

// The parts of a section as rows of a list that keeps the file's bytes.
void AggiungiParti(ListaRighe& lista, const TestoCondiviso& byte, std::string_view contenuto,
                   std::string_view separatore) {
  for (const auto parte : Dividi(contenuto, separatore)) lista.AggiungiVista(parte);
  lista.Tieni(byte);
}

void AggiungiRilievo(std::array<ListaRighe, 2>& liste, const TestoCondiviso& byte, std::string_view contenuto) {
  std::size_t indice = 0;
  for (const auto parte : Dividi(contenuto, "<nr>")) {
    if (Contiene(parte, "AGGIORNATO")) indice = 1;
    liste[indice].AggiungiVista(parte);
  }
  for (ListaRighe& lista : liste) lista.Tieni(byte);
}

void AggiungiDitta(ListaRighe& lista, std::string_view contenuto) {
  for (const auto parte : Dividi(contenuto, "<nr>")) lista.Aggiungi(Sostituisci(parte, "9|", ""));
}

void AggiungiSezione(Grafica& grafica, const TestoCondiviso& byte, const SezionePdf& sezione) {
  const auto [numero, contenuto] = sezione;
  if (numero == 1000) AggiungiParti(grafica.List1, byte, contenuto, "<nr>");
  if (numero == 2000) AggiungiRilievo(grafica.List2, byte, contenuto);
  if (numero == 3000 || numero == 5000) AggiungiParti(grafica.List3, byte, contenuto, "|");
  if (numero == 4000) AggiungiDitta(grafica.List4, contenuto);
}

} // namespace

void Grafica::Comincia(std::string_view percorso) {
  Percorso = percorso;
  for (ListaRighe* lista : {&List1, List2.data(), &List2[1], &List3, &List4, &List5}) lista->clear();
  KR_Clear();
}

void Grafica::KR_CaricaEstratto_EMP(std::string_view percorso) {
  const TestoCondiviso testo = LeggiTesto(ambiente_, percorso, "KR_CaricaEstratto_EMP");
  Comincia(percorso);
  const auto righe = RigheDi(*testo);
  List2[0].Riserva(righe.size());
  for (const auto riga : righe) AggiungiRigaEstratto(List2[0], riga, disegno_.vista);
  List2[0].Tieni(testo);
  GeneraGrafica();
}

void Grafica::KR_CaricaPropostaDaLibretto(std::string_view percorso) {
  CaricaSezioni(*this, percorso, LeggiTesto(ambiente_, percorso, "KR_CaricaPropostaDaLibretto"));
}

void Grafica::KR_CaricaProposta_SUR(std::string_view percorso) {
  CaricaSezioni(*this, percorso, LeggiTesto(ambiente_, percorso, "KR_CaricaProposta_SUR"));
}

void Grafica::KR_Elaborazione_SUR(std::string_view percorso) {
  CaricaIntero(*this, percorso, LeggiTesto(ambiente_, percorso, "KR_Elaborazione_SUR"));
}

void Grafica::EsplodiPDF(std::string_view percorso) {
  ambiente_.sessione.PuntoErrore = "EsplodiPDF";
  const auto byte = std::make_shared<const std::string>(CaricaFileBinario(ambiente_, percorso));
  Comincia(percorso);
  for (const SezionePdf& sezione : DividiSezioniPdf(*byte)) AggiungiSezione(*this, byte, sezione);
  GeneraGrafica();
}

void Grafica::CaricaDisegno(std::string_view percorso) {
  const auto e = [&](std::string_view estensione) { return FinisceConSenzaCaso(percorso, estensione); };
  if (e(".EMP") || e(".AGG") || e(".SMP")) return KR_CaricaEstratto_EMP(percorso);
  if (e(".CSV")) return KR_LoadFileCSV(percorso);
  if (e(".PDF")) return EsplodiPDF(percorso);
  if (!e(".SUR")) return KR_CaricaPropostaDaLibretto(percorso);
  const TestoCondiviso testo = LeggiTesto(ambiente_, percorso, "KR_Elaborazione_SUR");
  if (HaSezioni(*testo)) return CaricaSezioni(*this, percorso, testo);
  CaricaIntero(*this, percorso, testo);
}

void Grafica::GeneraGrafica() {
  KR_Clear();
  const bool conProposta = disegno_.vista.Check1;
  AggiungiGrafica(0, conProposta ? 1 : 0);
  if (conProposta) AggiungiGrafica(1, 1);
  LibrettoOriginale = List2[0];
  if (conProposta)
    for (const auto riga : List2[1]) LibrettoOriginale.Aggiungi(riga);
  KR_ZoomTutto();
}

} // namespace lirmeto
