#include <grafica/caricatori.h>

#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <core/riga.h>

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
  const Genere genere = GenereDi(riga);
  if (genere == Genere::Coordinate && Esclusa(riga, vista)) return;
  if (genere == Genere::Contorno)
    AggiungiRiga7(lista, riga);
  else if (!Taglia(riga).empty())
    lista.AggiungiVista(riga);
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

void AggiungiSezione(ListeGrafica& liste, const TestoCondiviso& byte, const SezionePdf& sezione) {
  const auto [numero, contenuto] = sezione;
  if (numero == 1000) AggiungiParti(liste.List1, byte, contenuto, "<nr>");
  if (numero == 2000) AggiungiRilievo(liste.List2, byte, contenuto);
  if (numero == 3000 || numero == 5000) AggiungiParti(liste.List3, byte, contenuto, "|");
  if (numero == 4000) AggiungiDitta(liste.List4, contenuto);
}

} // namespace

TestoCondiviso LeggiTestoDisegno(Ambiente& ambiente, std::string_view percorso, std::string_view punto) {
  return std::make_shared<const std::string>(ConFineRiga(*LeggiByteDisegno(ambiente, percorso, punto)));
}

TestoCondiviso LeggiByteDisegno(Ambiente& ambiente, std::string_view percorso, std::string_view punto) {
  ambiente.sessione.PuntoErrore = punto;
  return std::make_shared<const std::string>(CaricaFileBinario(ambiente, percorso));
}

ListeGrafica RigheEstratto(const TestoCondiviso& testo, const VistaGrafica& vista) {
  ListeGrafica liste;
  const auto righe = RigheDi(*testo);
  liste.List2[0].Riserva(righe.size());
  for (const auto riga : righe) AggiungiRigaEstratto(liste.List2[0], riga, vista);
  liste.List2[0].Tieni(testo);
  return liste;
}

ListeGrafica RigheSezioni(const TestoCondiviso& testo) {
  ListeGrafica liste;
  ListaRighe* sezione = nullptr;
  for (const auto riga : RigheDi(*testo)) {
    if (Contiene(riga, RigaProposta)) sezione = liste.List2.data();
    if (Contiene(riga, RigaPropostaAggiornata)) sezione = &liste.List2[1];
    if (sezione != nullptr) sezione->AggiungiVista(riga);
  }
  for (ListaRighe& lista : liste.List2) lista.Tieni(testo);
  return liste;
}

bool HaSezioni(std::string_view testo) {
  return Contiene(testo, RigaProposta) || Contiene(testo, RigaPropostaAggiornata);
}

ListeGrafica RigheIntere(const TestoCondiviso& testo) {
  ListeGrafica liste;
  liste.List2[0].AggiungiViste(RigheDi(*testo));
  liste.List2[0].Tieni(testo);
  return liste;
}

ListeGrafica RighePdf(const TestoCondiviso& byte) {
  ListeGrafica liste;
  for (const SezionePdf& sezione : DividiSezioniPdf(*byte)) AggiungiSezione(liste, byte, sezione);
  return liste;
}

} // namespace lirmeto
