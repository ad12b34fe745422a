#include <core/apertura.h>

#include <base/avanzamento.h>
#include <base/errore.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/lxb.h>
#include <core/riga.h>
#include <core/zero_nove.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace lirmeto {

// How files are opened, where it could be done in more than one way:
//
//   an .LXB whose .DAT is missing     its rows are merged into the Libretto of the session
//   an .LXB that is there and empty   changes nothing
//   the value of a tag row            all that stands behind the first ">" of its field 1, up to the bar that closes it
//   a file that cannot be read        Libretto, list and file name stay as they were, so that a later save does not
//                                     write the old rows over the file that failed
//   a folder given as a file          error 75
//   a file that is no libretto        has no row of a kind, a number from 0 to 9 before the first bar, or has bytes that
//                                     are zero: in the window error 5, and nothing of it is taken; a drawing (.LXC) has
//                                     its own reader; the command line fills in what is missing, as it always did

namespace {

// What a libretto's file gives, gathered before the session is touched.
struct FileLetto {
  std::string libretto;
  std::string ditta;
  std::optional<std::string> estratto;
  std::optional<std::string> codiceFiscale;
  std::optional<std::string> iscrizione;
};

std::string ValoreTag(std::string_view riga) {
  const std::string_view campo = Parte(riga, '|', 1);
  const std::size_t chiusa = campo.find('>');
  return chiusa == std::string_view::npos ? std::string{} : std::string(campo.substr(chiusa + 1));
}

// Whether the row is a tag row; its value goes to where it belongs.
bool PrendiTag(std::string_view riga, FileLetto& letto) {
  if (riga.find('<') == std::string_view::npos) return false;
  if (Contiene(riga, "6|<EST>")) return letto.estratto = ValoreTag(riga), true;
  if (Contiene(riga, "6|<COD>")) return letto.codiceFiscale = ValoreTag(riga), true;
  if (Contiene(riga, "6|<ISC>")) return letto.iscrizione = ValoreTag(riga), true;
  if (!Contiene(riga, "6|<DIT>")) return false;
  letto.ditta += ValoreTag(riga);
  letto.ditta += FineRiga;
  return true;
}

// The rows without tag rows; empty rows, those that a tag row leaves too, collapse into the line end before them. What
// stays is moved up within the text, so that a large file is not copied.
FileLetto LeggiFileLibretto(std::string testo) {
  FileLetto letto;
  std::size_t scritti = 0;
  for (std::size_t inizio = 0; inizio < testo.size();) {
    const std::size_t fine = testo.find(FineRiga, inizio);
    const std::string_view riga = std::string_view(testo).substr(inizio, fine - inizio);
    const std::size_t lungo = riga.size() + FineRiga.size();
    if (!riga.empty() && !PrendiTag(riga, letto)) {
      if (scritti != inizio) std::memmove(&testo[scritti], &testo[inizio], lungo);
      scritti += lungo;
    } else if (scritti == 0) {
      testo.replace(0, FineRiga.size(), FineRiga);
      scritti = FineRiga.size();
    }
    inizio += lungo;
  }
  testo.resize(scritti);
  letto.libretto = std::move(testo);
  return letto;
}

// A digit alone before the first bar.
bool RigaDiUnLibretto(std::string_view riga) {
  const std::string_view numero = Taglia(riga.substr(0, riga.find('|')));
  return numero.size() == 1 && numero.front() >= '0' && numero.front() <= '9' && Contiene(riga, "|");
}

void ControllaLibretto(std::string_view percorso, std::string_view testo) {
  if (FinisceConSenzaCaso(percorso, ".LXC")) return;
  const bool zeri = testo.find('\0') != std::string_view::npos;
  const auto righe = RigheDi(testo);
  if (!zeri && std::any_of(righe.begin(), righe.end(), RigaDiUnLibretto)) return;
  throw Errore(errore::ArgomentoNonValido, std::string("Il file non è un libretto: "_w) + std::string(percorso) +
                                               "\r\n" +
                                               (zeri ? "Contiene byte a zero" : "Nessuna riga ha un genere da 0 a 9"));
}

void MettiInSessione(FileLetto&& letto, Sessione& sessione) {
  if (letto.estratto) sessione.EstrattoAssociato = *letto.estratto;
  if (letto.codiceFiscale) sessione.CodiceFiscale = *letto.codiceFiscale;
  if (letto.iscrizione) sessione.NumeroIscrizione = *letto.iscrizione;
  sessione.Ditta = std::move(letto.ditta);
  sessione.Libretto = std::move(letto.libretto);
}

// Paths of an opening: the libretto's file and, for an .LXB, the file of its
// replacement rows.
struct PercorsiApertura {
  std::string libretto;
  std::string lxb;
};

PercorsiApertura PercorsiDa(const Disco& disco, const std::string& nome) {
  if (!FinisceConSenzaCaso(nome, ".LXB")) return {nome, {}};
  return {PercorsoInCapitali(disco, ConEstensione(nome, ".DAT")), PercorsoInCapitali(disco, nome)};
}

std::string EtichettaPosizione(const ElencoRighe& elenco) {
  return TestoIntero(elenco.Indice() + 1) + " / " + TestoIntero(static_cast<long long>(elenco.Quante()));
}

// Rows of Libretto that the list shows: all but the part behind the last line end, trimmed, of more than two
// characters.
ListaRighe RigheDaElencare(const std::string& libretto, Dialoghi& dialoghi) {
  constexpr std::size_t lunghezzaNonRiga = 2;
  const auto tenuto = std::make_shared<const std::string>(libretto);
  ListaRighe righe;
  righe.Tieni(tenuto);
  righe.Riserva(static_cast<std::size_t>(std::count(tenuto->begin(), tenuto->end(), '\n')) +
                2); // rows 0 and 9 may come
  std::string_view resto = *tenuto;
  Avanzamento avanzamento(dialoghi, "Lettura del libretto", resto.size());
  for (std::size_t fine = resto.find(FineRiga); fine != std::string_view::npos; fine = resto.find(FineRiga)) {
    if (const auto riga = Taglia(resto.substr(0, fine)); riga.size() > lunghezzaNonRiga) righe.AggiungiVista(riga);
    resto.remove_prefix(fine + FineRiga.size());
    avanzamento.Fatto(tenuto->size() - resto.size());
  }
  return righe;
}

// The defaults go where a row is missing first and where it is of another kind then: a file of one row that is no
// header gets row 9 both behind and before it: no row of the file is taken for what it may not be.
void MettiZeroNove(ListaRighe& righe, const Sessione& sessione) {
  if (righe.empty()) righe.Aggiungi(sessione.RigaZero);
  if (righe.size() < 2) righe.Aggiungi(sessione.RigaNove);
  if (GenereDi(righe[0]) != Genere::Intestazione) righe.Inserisci(0, sessione.RigaZero);
  if (GenereDi(righe[1]) != Genere::Chiusura) righe.Inserisci(1, sessione.RigaNove);
}

} // namespace

void CaricaLibrettoDaFile(Ambiente& ambiente, Accetta accetta) {
  Sessione& sessione = ambiente.sessione;
  const PercorsiApertura percorsi = PercorsiDa(ambiente.disco, sessione.NomeFileLibretto);
  const std::string sostitute = percorsi.lxb.empty() ? std::string{} : CaricaFileIntero(ambiente, percorsi.lxb);
  if (ambiente.disco.Esiste(percorsi.libretto)) {
    std::string testo = CaricaFileIntero(ambiente, percorsi.libretto);
    if (accetta == Accetta::SoloLibretti) ControllaLibretto(percorsi.libretto, testo);
    MettiInSessione(LeggiFileLibretto(std::move(testo)), sessione);
  }
  sessione.NomeFileLibretto = percorsi.libretto;
  if (!sostitute.empty()) UnisciLxb(ambiente, sostitute);
}

void ApriLibretto(Ambiente& ambiente, std::string_view percorso, Accetta accetta) {
  if (FinisceConSenzaCaso(percorso, ".PDF")) return EsplodiPDF(ambiente, percorso);
  Sessione& sessione = ambiente.sessione;
  const std::string nomePrima = std::exchange(sessione.NomeFileLibretto, std::string(percorso));
  try {
    CaricaLibrettoDaFile(ambiente, accetta);
  } catch (...) {
    sessione.NomeFileLibretto = nomePrima;
    throw;
  }
}

void RiempiList1(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  AssicuraRigheZeroNove(ambiente);
  ListaRighe righe = RigheDaElencare(sessione.Libretto, ambiente.dialoghi);
  MettiZeroNove(righe, sessione);
  sessione.List1.Riempi(std::move(righe));
  sessione.EtichettaPosizione = EtichettaPosizione(sessione.List1);
}

void AssicuraZeroNoveInList1(Ambiente& ambiente) {
  AssicuraRigheZeroNove(ambiente);
  ListaRighe righe = ambiente.sessione.List1.Righe();
  const std::size_t prima = righe.size();
  MettiZeroNove(righe, ambiente.sessione);
  if (righe.size() != prima) ambiente.sessione.List1.Riempi(std::move(righe));
}

void CaricaLibrettoInList1(Ambiente& ambiente) {
  RiempiList1(ambiente);
  DecoZeroNove(ambiente);
  ambiente.sessione.PuntoErrore = "Decozero_115";
}

} // namespace lirmeto
