#include <generazione/tipol10.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <estratti/kr_estratto.h>
#include <generazione/polilinee_dxf.h>

#include <array>

namespace lirmeto {

// What could be done in more than one way:
//
//   the picture                  is the extract with the rows of the proposal behind its own
//   a contour begun by a tool    is a polyline of its own, RC by the red tool and NC by the black one; one that was
//                                begun without is RC
//   a tool chosen again          begins anew: what it held of the last pick is forgotten
//   the next new point           has the next number without the tool being chosen again

namespace {

constexpr std::string_view NomeForm = "Tipol10";
constexpr std::string_view Contorno = "CONTORNO.TXT";

struct StrumentoDisegno {
  std::string_view nome;
  bool nomina = true; // takes the name of the next point
};

// By the index of the button; the two without a name are no tools.
constexpr std::array<StrumentoDisegno, 7> Strumenti = {
    {{"NuovoPunto"}, {"CONTORNOROSSO"}, {"CONTORNONERO"}, {"", false}, {"", false}, {"PUNTOMEDIO"}, {"PUNTOBILATERA"}}};
constexpr int ContornoRosso = 1;
constexpr int ContornoNero = 2;
constexpr int ContornoNuovo = 3;
constexpr int ContornoInRighe = 4;

std::string CartellaTemp(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\TEMP";
}

std::string InTemp(const Sessione& sessione, std::string_view nome) {
  return CartellaTemp(sessione) + "\\" + std::string(nome);
}

} // namespace

bool Tipol10::ConEstratto() const {
  return ambiente_.sessione.TipologiaCorrente != TipologiaSenzaEstratto;
}

std::string Tipol10::FileTesto() const {
  return InTemp(ambiente_.sessione, ComponenteFile("TIPOL" + ambiente_.sessione.TipologiaCorrente + ".TXT"));
}

void Tipol10::Prova(std::string_view punto, void (Tipol10::*comando)()) {
  ambiente_.sessione.PuntoErrore = punto;
  (void)Intrappola(ambiente_, [&] { (this->*comando)(); });
}

void Tipol10::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  PostoSalvato = LeggiPosizione(ambiente_.impostazioni, NomeForm);
  Titolo = "Tipologia " + ambiente_.sessione.TipologiaCorrente;
  Prova("Tipol10", &Tipol10::Carica);
}

void Tipol10::SalvaPosto(const PosizioneForm& posto) {
  ScriviPosizione(ambiente_.impostazioni, NomeForm, posto);
}

// The text is read before the folder that it lies in is emptied.
void Tipol10::Carica() {
  Disco& disco = ambiente_.disco;
  const std::string cartella = CartellaTemp(ambiente_.sessione) + "\\";
  if (disco.Esiste(FileTesto())) Text1 = disco.Leggi(FileTesto());
  for (const std::string& nome : disco.Elenca(cartella, {})) disco.Elimina(std::string(cartella).append(nome));
  Grafica1.KR_Clear();
  if (ConEstratto()) DisegnaEstratto({});
}

// The picture's file, and the picture.
void Tipol10::DisegnaEstratto(std::string_view proposta) {
  const Sessione& sessione = ambiente_.sessione;
  const std::string file = InTemp(sessione, "MODESTAENTITA.EMP");
  std::string testo;
  if (ConEstratto() && !sessione.EstrattoAssociato.empty())
    testo = ConFineRiga(ambiente_.disco.Leggi(PercorsoEstratto(sessione, sessione.EstrattoAssociato)));
  CreaPercorso(ambiente_, CartellaTemp(sessione));
  ambiente_.disco.Scrivi(file, testo.append(proposta));
  Grafica1.KR_CaricaEstratto_EMP(file);
}

void Tipol10::Ricarica() {
  (void)Intrappola(ambiente_, [&] {
    if (!Grafica1.Percorso.empty()) Grafica1.KR_CaricaEstratto_EMP(std::string(Grafica1.Percorso));
  });
}

void Tipol10::ButtonPlus1(int indice) {
  switch (indice) {
  case 0:
    return Prova("Tipol10_0", &Tipol10::Conferma);
  case 1:
    Chiusa = true;
    return;
  case 2:
    return GeneraLibrettoDaList();
  case 3:
    return GeneraLibrettoDaPoliLineeDXF();
  default:
    return;
  }
}

void Tipol10::Conferma() {
  Sessione& sessione = ambiente_.sessione;
  CreaPercorso(ambiente_, CartellaTemp(sessione));
  ambiente_.disco.Scrivi(FileTesto(), Text1);
  sessione.PropostaTipologia = RigheUnite(List1);
  sessione.EsitoForm = EsitoConfermato;
  Chiusa = true;
}

void Tipol10::ButtonPlus2(int indice) {
  if (indice < 0 || static_cast<std::size_t>(indice) >= Strumenti.size()) return;
  if (indice == ContornoInRighe) return Prova("Tipol10_Contorno", &Tipol10::ContornoDisegnato);
  const StrumentoDisegno& strumento = Strumenti.at(static_cast<std::size_t>(indice));
  ScegliStrumento(strumento.nome);
  if (strumento.nomina) DopoIlClick();
  (void)Intrappola(ambiente_, [&] {
    if (indice == ContornoNuovo) ambiente_.disco.Scrivi(InTemp(ambiente_.sessione, Contorno), " \r\n");
    if (indice == ContornoRosso) AggiungiAlContorno("LAYER RC");
    if (indice == ContornoNero) AggiungiAlContorno("LAYER NC");
  });
}

void Tipol10::ScegliStrumento(std::string_view strumento) {
  Grafica1.Strumento = strumento;
  Grafica1.NomeNuovoPunto.clear();
  Grafica1.LasciaPresa();
}

void Tipol10::DopoIlClick() {
  if (Grafica1.Strumento.empty() || !Grafica1.NomeNuovoPunto.empty()) return;
  Grafica1.NomeNuovoPunto = TestoPieno(Valore(Text2) + Valore(Text3)) + "*";
  Text2 = Grafica1.NomeNuovoPunto;
}

void Tipol10::AggiungiAlContorno(std::string_view riga) {
  const std::string file = InTemp(ambiente_.sessione, Contorno);
  std::string testo = ambiente_.disco.Esiste(file) ? ambiente_.disco.Leggi(file) : std::string();
  ambiente_.disco.Scrivi(file, testo.append(riga).append(FineRiga));
}

void Tipol10::ContornoDisegnato() {
  ambiente_.appunti.MettiTesto(CaricaFileIntero(ambiente_, InTemp(ambiente_.sessione, Contorno)));
  DaElenco();
}

void Tipol10::GeneraLibrettoDaList() {
  Prova("GeneraLibrettoDaList", &Tipol10::DaElenco);
}

void Tipol10::GeneraLibrettoDaPoliLineeDXF() {
  Prova("GeneraLibrettoDaPolilineeDXF", &Tipol10::DaDxf);
}

// The bytes of the file chosen; a cancelled choice is told in the words that the other choices of a file have.
std::string Tipol10::TestoDxf() {
  try {
    return ambiente_.disco.Leggi(
        ambiente_.dialoghi.ScegliFileDaAprire({"Seleziona un File DXF", {}, {}, "File da leggere (*.DXF *.dxf)"}));
  } catch (const Errore& guasto) {
    if (guasto.Numero() != errore::DialogoAnnullato) throw;
    ambiente_.dialoghi.Messaggio("Nessuna File selezionato!", "Seleziona Editor");
    throw;
  }
}

void Tipol10::DaDxf() {
  ambiente_.appunti.MettiTesto(ElencoDaDxf(ambiente_.dialoghi, TestoDxf()));
  DaElenco();
}

void Tipol10::DaElenco() {
  const std::string testo = ambiente_.appunti.Testo();
  const ElencoCad elenco = LeggiElencoCad(ambiente_.dialoghi, testo);
  if (elenco.polilinee.empty()) return ambiente_.dialoghi.Messaggio("Nessun dato trovato in memoria!");
  const std::string proposta = ComponiProposta(elenco);
  List1.clear();
  for (const auto riga : RigheDi(proposta)) List1.Aggiungi(riga);
  // A command line may run without any drive: then the rows are all there is.
  if (!ambiente_.disco.EsisteCartella(ambiente_.sessione.RadicePregeo)) return;
  ScriviEstrattoProvvisorio(elenco);
  DisegnaEstratto(proposta);
}

} // namespace lirmeto
