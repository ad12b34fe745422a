#include <core/comandi_righe.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/apri_form.h>
#include <core/riga.h>
#include <core/riordino.h>
#include <core/salvataggio.h>

#include <algorithm>
#include <vector>

namespace lirmeto {

// How rows come in and are marked, where it could be done in more than one way:
//
//   a list of fewer than five rows, no current row   the row reads as empty
//   the current row among the first five             changes place with none; the fifth gets the mark
//   a Libretto that no line end closes               gets one before the rows of a spreadsheet: two rows never melt
//                                                    into one
//   the part behind the spreadsheet's last line end  no line; an empty line among the others is one
//   blanks around a line of the printout             part of no token
//   \temp\TagUno.tag                                 the text and the line end of its print

namespace {

constexpr std::size_t RigheFisse = 2; // rows 0 and 9 always stay
constexpr std::size_t QuintaRiga = 4; // index
constexpr std::size_t CampoNota = 6;
constexpr std::string_view MarcaVrs = "[VRS]";

std::string_view RigaOVuota(const ElencoRighe& elenco, long indice) {
  const auto posto = static_cast<std::size_t>(indice);
  return indice < 0 || posto >= elenco.Quante() ? std::string_view{} : elenco.Riga(posto);
}

// Whether the row is one of GPS measures; the user is told when it is not.
bool ControllaGps(Ambiente& ambiente, std::string_view riga) {
  if (Contiene(riga, ",")) return true;
  ambiente.dialoghi.Messaggio(std::string(riga) + std::string(FineRiga) + std::string("Non è una riga GPS"_w));
  return false;
}

// The row with its note freed of the mark, trimmed and followed by `coda`.
std::string ConNota(std::string_view riga, std::string_view coda) {
  std::vector<std::string_view> campi = Dividi(riga, "|");
  if (campi.size() <= CampoNota)
    throw Errore(errore::IndiceFuoriIntervallo, "La riga non ha il campo della nota: " + std::string(riga));
  std::string nota(Taglia(Sostituisci(campi[CampoNota], MarcaVrs, "")));
  nota += coda;
  campi[CampoNota] = nota;
  return Unisci(campi, "|");
}

// What a line of the spreadsheet becomes; `numero` counts from 1.
using RigaDaLinea = std::string (*)(std::string_view linea, std::size_t numero);

void ImportaDaExcel(Ambiente& ambiente, RigaDaLinea componi, std::string_view marcatore) {
  const std::string testo = Sostituisci(Sostituisci(ambiente.appunti.Testo(), ",", "."), "\t", "|");
  std::string righe;
  std::size_t numero = 0;
  for (const auto linea : RigheDi(testo)) righe.append(componi(linea, ++numero)).append(FineRiga);
  std::string& libretto = ambiente.sessione.Libretto;
  if (!libretto.empty() && !libretto.ends_with(FineRiga)) libretto += FineRiga;
  libretto += righe;
  CaricaLibrettoInList1(ambiente);
  ambiente.sessione.PuntoErrore = marcatore;
}

std::vector<std::string_view> Parole(std::string_view linea) {
  std::vector<std::string_view> parole = Dividi(linea, " ");
  std::erase_if(parole, [](std::string_view parola) { return parola.empty(); });
  return parole;
}

auto DiGenere(Genere genere) {
  return [genere](std::string_view riga) { return GenereDi(riga) == genere; };
}

} // namespace

void EliminaVrs(Ambiente& ambiente) {
  ElencoRighe& elenco = ambiente.sessione.List1;
  const std::string_view riga = RigaOVuota(elenco, QuintaRiga);
  if (Taglia(riga).empty()) return ambiente.dialoghi.Messaggio("Il libretto contiene meno di 5 righe");
  if (!ControllaGps(ambiente, riga)) return;
  elenco.Cambia(QuintaRiga, ConNota(riga, {}));
  AggiornaLibrettoMisure(ambiente);
}

// Both rows hold a comma once they are past the tests, so that the fifth needs no other.
void AssegnaVrs(Ambiente& ambiente) {
  ElencoRighe& elenco = ambiente.sessione.List1;
  if (elenco.QuanteSelezionate() > 1) return ambiente.dialoghi.Messaggio("Selezionare una riga solamente!");
  const long indice = elenco.Indice();
  const std::string_view scelta = RigaOVuota(elenco, indice);
  const std::string_view quinta = RigaOVuota(elenco, QuintaRiga);
  if (!ControllaGps(ambiente, scelta) || !ControllaGps(ambiente, quinta)) return;
  const bool scambia = indice > static_cast<long>(QuintaRiga);
  const std::string marcata = ConNota(scambia ? scelta : quinta, " [VRS]");
  if (scambia) elenco.Cambia(static_cast<std::size_t>(indice), Taglia(Sostituisci(quinta, MarcaVrs, "")));
  elenco.Cambia(QuintaRiga, marcata);
  AggiornaLibrettoMisure(ambiente);
}

void SelezionaRighe1(Ambiente& ambiente) {
  ambiente.sessione.List1.SelezionaSe([](std::string_view riga) { return riga.starts_with("1|"); });
}

void SelezionaPuntiFiduciali(Ambiente& ambiente) {
  ambiente.sessione.List1.SelezionaSe(
      [](std::string_view riga) { return Maiuscolo(riga).find("|PF", 1) != std::string::npos; });
}

void Seleziona_Stazioni(Ambiente& ambiente) {
  ambiente.sessione.List1.SelezionaSe(DiGenere(Genere::Stazione));
}

void Seleziona_Squadri(Ambiente& ambiente) {
  ambiente.sessione.List1.SelezionaSe([](std::string_view riga) {
    return GenereDi(riga) == Genere::Allineamento || GenereDi(riga) == Genere::Squadro;
  });
}

void Seleziona_Contorni(Ambiente& ambiente) {
  ambiente.sessione.List1.SelezionaSe(DiGenere(Genere::Contorno));
}

void InvertiSelezione(Ambiente& ambiente) {
  ElencoRighe& elenco = ambiente.sessione.List1;
  for (std::size_t i = 0; i < elenco.Quante(); ++i) elenco.Seleziona(i, !elenco.Selezionata(i));
}

void SelezionaTutte(Ambiente& ambiente) {
  ambiente.sessione.List1.SelezionaSe([](std::string_view) { return true; });
}

void EliminaRigheSelezionate(Ambiente& ambiente) {
  ElencoRighe& elenco = ambiente.sessione.List1;
  const std::vector<std::size_t> quali = elenco.Selezionate(RigheFisse);
  if (quali.empty()) return;
  const std::string cosa = quali.size() == 1 ? std::string(elenco.Riga(quali.front()))
                                             : TestoIntero(static_cast<long long>(quali.size())) + " righe";
  const Risposta risposta = ambiente.dialoghi.Chiedi("Eliminare le Righe selezionate?" + std::string(FineRiga) + cosa,
                                                     "Elimina righe dal Libretto", Bottoni::SiNo);
  if (risposta != Risposta::Si) return;
  elenco.TogliSelezionate(RigheFisse);
  AggiornaLibrettoMisure(ambiente);
}

void CopiaNegliAppunti(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  std::string testo = RigheUnite(sessione.List1.Righe());
  ambiente.appunti.MettiTesto(testo);
  sessione.PuntoErrore = "CopiaNegliAppunti";
  ambiente.disco.Scrivi(sessione.CartellaProgramma + "\\temp\\TagUno.tag", testo + std::string(FineRiga));
  sessione.UltimaTag = std::move(testo);
  ambiente.dialoghi.Messaggio("Il Libretto è stato copiato!"_w, "Copia Libretto");
}

// The first two give rows of kind 2, whatever their captions say: the user completes them as sightings.
void ImportaRighe8DaExcel(Ambiente& ambiente) {
  ImportaDaExcel(
      ambiente, [](std::string_view linea, std::size_t) { return "2|" + std::string(linea) + "|"; }, "Decozero_133");
}

void ImportaRighe8NomeAutoDaExcel(Ambiente& ambiente) {
  ImportaDaExcel(
      ambiente,
      [](std::string_view linea, std::size_t numero) {
        return "2|" + TestoIntero(static_cast<long long>(numero)) + "|" + std::string(linea) + "|";
      },
      "Decozero_134");
}

void ImportaRigheCompleteDaExcel(Ambiente& ambiente) {
  ImportaDaExcel(
      ambiente,
      [](std::string_view linea, std::size_t) {
        std::string riga = std::string(linea) + "|";
        const auto fine = std::unique(riga.begin(), riga.end(), [](char a, char b) { return a == '|' && b == '|'; });
        riga.erase(fine, riga.end());
        return riga;
      },
      "Decozero_135");
}

void LibrettoDaElaborazionePregeo(Ambiente& ambiente) {
  constexpr std::size_t parolePerPunto = 7; // name, north, its error, east, its error, ...
  const std::string testo = ambiente.appunti.Testo();
  std::string libretto;
  for (const auto linea : Dividi(testo, FineRiga)) {
    if (!Contiene(linea, "+/-")) continue;
    const auto parole = Parole(linea);
    if (parole.size() < parolePerPunto) continue;
    libretto += "8|" + Unisci({parole[0], parole[1], parole[3]}, "|") + "|" + std::string(FineRiga);
  }
  ambiente.sessione.Libretto = std::move(libretto);
  CaricaLibrettoInList1(ambiente);
}

void subModelloCensuario(Ambiente& ambiente) {
  AggiornaLibrettoMisure(ambiente);
  if (ApriForm(ambiente, "KR_EDM")) subRiordinoRighe(ambiente);
}

} // namespace lirmeto
