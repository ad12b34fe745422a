// Any bytes as a libretto: opened, listed, described, saved, opened again,
// reordered. An input that begins "%PDF" is an act, one that begins "LXB" and a
// line end gives the rows that replace those of a kept .DAT, anything else is a
// .DAT.

#include "pretendi.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/descrizione_riga.h>
#include <core/libretto_in_classi.h>
#include <core/riga.h>
#include <core/salvataggio.h>
#include <sostituti/banco.h>

#include <algorithm>
#include <cstdint>
#include <set>

using namespace lirmeto;
using lirmeto::prova::Banco;

namespace {

constexpr std::string_view InizioPdf = "%PDF";
constexpr std::string_view InizioLxb = "LXB\n";
constexpr std::string_view DatTenuto = "0|01012024|1|G224|0010|1|A "
                                       "B|GEOMETRA|PADOVA|\r\n9|0|10|20|0|V|FR|N|\r\n6|PRIMA|\r\n"
                                       "3|2|1|2|\r\n1|1|1.5|N|\r\n2|2|1|1|1|1|N|\r\n7|2|1|2|RC|\r\n8|P|1|2|N|\r\n";

std::string MettiFile(Banco& banco, std::string_view byte) {
  if (byte.starts_with(InizioPdf)) {
    banco.disco.Metti("C:\\L.PDF", std::string(byte));
    return "C:\\L.PDF";
  }
  if (byte.starts_with(InizioLxb)) {
    banco.disco.Metti("C:\\L.LXB", std::string(byte.substr(InizioLxb.size())));
    banco.disco.Metti("C:\\L.DAT", std::string(DatTenuto));
    return "C:\\L.LXB";
  }
  banco.disco.Metti("C:\\L.DAT", std::string(byte));
  return "C:\\L.DAT";
}

// Whether the file was opened; one that was refused leaves the session as it
// was.
bool Apri(Banco& banco, const std::string& percorso) {
  const std::string prima = banco.sessione.Libretto;
  try {
    ApriLibretto(banco.ambiente, percorso);
  } catch (const Errore&) {
    Pretendi(banco.sessione.Libretto == prima, "a file that is refused changes nothing");
    return false;
  }
  CaricaLibrettoInList1(banco.ambiente);
  return true;
}

void ProvaElenco(const Banco& banco) {
  const auto& righe = banco.sessione.List1.Righe();
  Pretendi(righe.size() >= 2 && GenereRiga(righe[0]) == 0 && GenereRiga(righe[1]) == 9, "rows 0 and 9 come first");
  for (const auto& riga : righe) {
    Pretendi(riga.size() > 2 && Taglia(riga) == riga, "the list holds trimmed rows");
    try {
      (void)TestoDescrizione(DescriviRiga(riga));
      const RigaDivisa divisa = SplitRiga(riga);
      Pretendi(divisa.UltimoVertice <= divisa.UltimoCampo && divisa.UltimoCampo < static_cast<int>(MassimoCampi),
               "vertices are fields");
    } catch (const Errore& errore) {
      Pretendi(errore.Numero() == errore::IndiceFuoriIntervallo, "a row is refused only for too many fields");
    }
  }
}

std::string Salvato(Banco& banco) {
  AggiornaLibrettoMisure(banco.ambiente);
  Pretendi(SalvaLibrettoMisure(banco.ambiente), "what was opened can be saved");
  return banco.disco.Contenuto(banco.sessione.NomeFileLibretto);
}

// Opened and saved again and again a file comes to rest: the empty notes of
// "||||" need two saves, and rows that became equal go at the next. A "<P!>"
// inside another comes off one at a time, as often as there are.
void ProvaRiposo(std::string file) {
  constexpr int salvataggi = 4;
  if (Contiene(file, "<P")) return;
  for (int i = 0; i < salvataggi; ++i) {
    Banco banco;
    banco.disco.Metti("C:\\L.DAT", file);
    Pretendi(Apri(banco, "C:\\L.DAT"), "a file that was saved can be opened");
    const auto elencate = banco.Righe();
    const std::string ancora = Salvato(banco);
    if (ancora == file) {
      Pretendi(banco.Righe() == elencate, "at rest the save changes no row");
      return;
    }
    file = ancora;
  }
  Pretendi(false, "saving comes to rest");
}

// A row as a reorder leaves it recognisable: without its field 1, which is trimmed, and cut where it is sorted.
std::string Impronta(std::string_view riga) {
  std::vector<std::string_view> campi = Dividi(riga, "|");
  if (campi.size() > 1) campi[1] = {};
  return Maiuscolo(Sostituisci(Unisci(campi, "|"), " ", ""));
}

std::set<std::string> Impronte(std::string_view testo) {
  std::set<std::string> impronte;
  for (const auto riga : Dividi(testo, FineRiga)) impronte.insert(Impronta(riga));
  return impronte;
}

// Rows that no reorder may lose: all but those of kind 6, and the marks of a
// Relazione with what may stand between them.
std::set<std::string> DaTenere(std::string_view testo) {
  std::set<std::string> impronte;
  if (testo.find('*') == std::string_view::npos)
    for (const auto riga : Dividi(testo, FineRiga))
      if (GenereRiga(riga) != 6) impronte.insert(Impronta(riga));
  return impronte;
}

void ProvaRiordino(Banco& banco) {
  const std::string prima = banco.sessione.Libretto;
  RicomponiLibretto(banco.ambiente, EsplodiLibretto(banco.ambiente));
  const auto dopo = Impronte(banco.sessione.Libretto);
  const auto prime = Impronte(prima);
  const auto tenute = DaTenere(prima);
  Pretendi(std::includes(prime.begin(), prime.end(), dopo.begin(), dopo.end()), "a reorder makes no row up");
  Pretendi(std::includes(dopo.begin(), dopo.end(), tenute.begin(), tenute.end()), "a reorder drops only rows 6");
  // A Relazione that stands in the proposal is kept in both places.
  if (!Contiene(prima, InizioRelazione))
    Pretendi(banco.sessione.Libretto.size() <= prima.size(), "a reorder adds nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string_view byte(reinterpret_cast<const char*>(dati), quanti);
  Banco banco;
  if (!Apri(banco, MettiFile(banco, byte))) return 0;
  ProvaElenco(banco);
  const std::string file = Salvato(banco);
  // The rows of an act are cut at their own marks and may hold single line
  // ends, which a file would cut.
  if (!byte.starts_with(InizioPdf)) ProvaRiposo(file);
  ProvaRiordino(banco);
  return 0;
}
