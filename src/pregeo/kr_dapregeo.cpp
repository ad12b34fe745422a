#include <pregeo/kr_dapregeo.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/proposta_libretto.h>
#include <core/riga.h>
#include <core/riordino.h>
#include <pregeo/trasvea.h>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   an archive without libretti     is said in words: its list would be an empty box
//   a blank line of the list        is no libretto
//   the extract of a libretto that  is that of the open one while it is shown, and stays so once its points are
//   is only looked at               imported; a close gives the open libretto its own back
//   rows imported into a libretto   stand before it: behind it they would be a part of it
//   that has a proposal

namespace {

constexpr std::string_view NomeForm = "KR_Dapregeo";
constexpr std::string_view Nota = "<P!>";
constexpr int SalvaDxf = 5; // entry of the drawing's menu

std::string_view UltimiDue(std::string_view testo) {
  return testo.substr(testo.size() - std::min<std::size_t>(2, testo.size()));
}

KR_Dapregeo::RigaArchivio LeggiRigaArchivio(std::string_view linea) {
  const auto campi = Dividi(linea, "|");
  const auto campo = [&](std::size_t i) { return std::string(i < campi.size() ? campi[i] : std::string_view{}); };
  return {campo(0),  campo(1), campo(2),
          campo(12), campo(9), campo(10),
          campo(3),  " ",      std::string(UltimiDue(campo(1))) + campo(2)};
}

// The last field takes the commas that are left.
KR_Dapregeo::RigaPunto LeggiRigaPunto(std::string_view linea) {
  KR_Dapregeo::RigaPunto punto;
  for (std::size_t i = 0; i < punto.size(); ++i) {
    const std::size_t virgola = i + 1 < punto.size() ? linea.find(',') : std::string_view::npos;
    punto.at(i) = linea.substr(0, virgola);
    linea = virgola == std::string_view::npos ? std::string_view{} : linea.substr(virgola + 1);
  }
  return punto;
}

void Riempi(ListaRighe& lista, std::string&& testo) {
  const auto file = std::make_shared<const std::string>(std::move(testo));
  lista.clear();
  lista.Tieni(file);
  lista.AggiungiViste(RigheDi(*file));
}

// By the kind of a row, the index of the last field below which a row without GPS is one without a note of its own;
// none for a kind that describes no point.
std::optional<int> CampiSenzaNota(Genere genere) {
  if (genere == Genere::Stazione) return 2;
  if (genere == Genere::Battuta) return 5;
  if (genere == Genere::Allineamento || genere == Genere::Squadro) return 4;
  return std::nullopt;
}

// Whether the last field stands where a row of its kind has none for the note.
bool SenzaNota(Genere genere, int ultimo, int limite) {
  return genere == Genere::Battuta ? ultimo <= limite : ultimo == limite;
}

// What a row of the libretto says of its point; none for a row that says nothing.
std::optional<std::string> DescrizioneDi(std::string_view riga) {
  const Genere genere = GenereDi(riga);
  const auto limite = CampiSenzaNota(genere);
  if (!limite) return std::nullopt;
  const RigaDivisa divisa = SplitRiga(riga);
  const std::string_view ultimo = divisa.CampiRiga.at(static_cast<std::size_t>(divisa.UltimoCampo));
  std::string testo(ENumero(ultimo) ? "Note:" : ultimo);
  const bool gps = (genere == Genere::Stazione || genere == Genere::Battuta) && Contiene(riga, ",");
  if (!gps && SenzaNota(genere, divisa.UltimoCampo, *limite)) testo += Nota;
  return testo;
}

// Coordinates as Libretto takes them in.
std::string Coordinata(std::string_view testo) {
  return Formatta(Valore(Sostituisci(testo, ",", ".")), "############0.000");
}

} // namespace

void KR_Dapregeo::Prova(std::string_view punto, void (KR_Dapregeo::*comando)()) {
  ambiente_.sessione.PuntoErrore = "KR_Dapregeo " + std::string(punto);
  (void)Intrappola(ambiente_, [&] { (this->*comando)(); });
}

void KR_Dapregeo::AlCaricamento() {
  PostoSalvato = LeggiPosizione(ambiente_.impostazioni, NomeForm);
  estrattoPrima_ = ambiente_.sessione.EstrattoAssociato;
  Grafica1.KR_Clear();
  Prova("CaricaPregeo800", &KR_Dapregeo::CaricaPregeo800);
  Titolo = ConRicerca ? "Cerca nei Libretti in Pregeo" : ambiente_.sessione.NomeFileLibretto;
  CambiaRiga(0);
}

void KR_Dapregeo::SalvaPosto(const PosizioneForm& posto) {
  ScriviPosizione(ambiente_.impostazioni, NomeForm, posto);
}

void KR_Dapregeo::CaricaPregeo800() {
  const std::string elenco = ElencoLibretti(ambiente_);
  for (const auto linea : RigheDi(elenco))
    if (!Taglia(linea).empty()) MSFlexGrid1.push_back(LeggiRigaArchivio(linea));
  ambiente_.dialoghi.Messaggio(MSFlexGrid1.empty() ? "Nessun Libretto nell'archivio di Pregeo!"
                                                   : std::string_view(elenco));
}

void KR_Dapregeo::CambiaRiga(std::size_t riga) {
  if (riga >= MSFlexGrid1.size()) return;
  Riga = riga;
  Svuota();
  Prova("MostraListaPregeo", &KR_Dapregeo::MostraListaPregeo);
}

bool KR_Dapregeo::Trovata(std::size_t riga) const {
  const std::string cercato = Maiuscolo(Taglia(Cercato));
  const RigaArchivio& celle = MSFlexGrid1.at(riga);
  return std::any_of(celle.begin(), celle.end(),
                     [&cercato](const std::string& cella) { return Contiene(Maiuscolo(cella), cercato); });
}

void KR_Dapregeo::Svuota() {
  List1.clear();
  List2.clear();
  MSFlexGrid2.clear();
  Grafica1.KR_Clear();
}

void KR_Dapregeo::MostraListaPregeo() {
  Sessione& sessione = ambiente_.sessione;
  const auto marca = [&](int passo) { sessione.PuntoErrore = "KR_Dapregeo MostraListaPregeo" + TestoIntero(passo); };
  const auto leggi = [&](std::string_view nome) { return CaricaFileIntero(ambiente_, FileDiScambio(sessione, nome)); };
  const RigaArchivio& scelta = MSFlexGrid1.at(*Riga);
  marca(1);
  EsportaTutto(ambiente_, std::string(UltimiDue(scelta[1])) + scelta[2]);
  marca(2);
  Riempi(List2, leggi("ESPORTA_LIBRETTO.txt"));
  marca(3);
  if (ambiente_.disco.Esiste(FileDiScambio(sessione, "ASSOCIA_ESTRATTO.txt")))
    sessione.EstrattoAssociato = Sostituisci(Parte(leggi("ASSOCIA_ESTRATTO.txt"), '\r', 0), "\"", "");
  marca(4);
  Riempi(List1, leggi("ESPORTA_PROPOSTA.txt"));
  marca(5);
  const std::string punti = leggi("ESPORTA_PUNTI_ELABORATI.txt");
  for (const auto linea : RigheDi(punti))
    if (!linea.empty()) MSFlexGrid2.push_back(LeggiRigaPunto(linea));
  marca(6);
  CaricaDescrizione();
  Disegna();
}

// Every point takes the first note that is not empty among the rows of its name.
void KR_Dapregeo::CaricaDescrizione() {
  std::unordered_map<std::string_view, std::vector<std::size_t>> senza; // points without a note, by name
  for (std::size_t i = 0; i < MSFlexGrid2.size(); ++i)
    if (MSFlexGrid2[i][4].empty()) senza[MSFlexGrid2[i][0]].push_back(i);
  for (std::size_t i = 1; i < List2.size(); ++i) {
    const auto punti = senza.find(Parte(List2[i], '|', 1));
    if (punti == senza.end()) continue;
    const auto testo = DescrizioneDi(List2[i]);
    if (!testo || testo->empty()) continue;
    for (const std::size_t punto : punti->second) MSFlexGrid2[punto][4] = *testo;
    senza.erase(punti);
  }
}

void KR_Dapregeo::Disegna() {
  constexpr std::size_t troppoCorto = 10; // characters
  std::string testo;
  for (const RigaPunto& punto : MSFlexGrid2) {
    const std::string riga = "8|" + punto[0] + "|" + punto[1] + "|" + punto[2] + "|";
    testo += Sostituisci(riga, ",", ".").append(FineRiga);
  }
  for (const auto riga : List2)
    if (GenereDi(riga) == Genere::Contorno) testo.append(riga).append(FineRiga);
  if (testo.size() <= troppoCorto) return;
  const std::string file = FileDiScambio(ambiente_.sessione, "elab.sur");
  ambiente_.disco.Scrivi(file, testo);
  Grafica1.KR_Elaborazione_SUR(file);
  Grafica1.KR_ZoomTutto();
}

void KR_Dapregeo::ImportaRighe8InLibretto() {
  std::string righe;
  for (const RigaPunto& punto : MSFlexGrid2) {
    const std::string riga = "8|" + punto[0] + "|" + Coordinata(punto[1]) + "|" + Coordinata(punto[2]) + "|" +
                             Sostituisci(punto[4], Nota, "") + "|";
    righe.append(Taglia(Sostituisci(riga, ",", "."))).append(FineRiga);
  }
  for (const auto riga : List2)
    if (GenereDi(riga) == Genere::Contorno) righe.append(Taglia(riga)).append(FineRiga);
  AggiungiRigheLibretto(ambiente_.sessione, righe);
  estrattoPrima_ = ambiente_.sessione.EstrattoAssociato;
  CaricaLibrettoInList1(ambiente_);
  ambiente_.sessione.PuntoErrore = "Decozero_129 ";
  FormRiordinoRighe riordino(ambiente_);
  riordino.AlCaricamento();
  ambiente_.finestre.MostraModale(riordino);
  Chiudi();
}

void KR_Dapregeo::Chiudi() {
  ambiente_.sessione.EstrattoAssociato = estrattoPrima_;
  ambiente_.sessione.ModoEditor = 0;
  Chiusa = true;
}

void KR_Dapregeo::Pulsante(int indice) {
  switch (indice) {
  case 0:
    return Chiudi();
  case 2:
    return Prova("ImportaRighe8InLibretto", &KR_Dapregeo::ImportaRighe8InLibretto);
  case 3:
    return Grafica1.mnuZoom1(SalvaDxf);
  default:
    return;
  }
}

} // namespace lirmeto
