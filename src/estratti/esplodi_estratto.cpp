#include <estratti/kr_estratto.h>

#include <base/avanzamento.h>
#include <base/estremi.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <estratti/campi.h>

#include <algorithm>
#include <memory>

namespace lirmeto {

// How an extract is read, where it could be done in more than one way:
//
//   a file that is not there            nothing is read or said; a save then fails on the missing row 0
//   a row that no list wants            stands in Scartate and is gone at the next save: an extract holds what Pregeo
//                                       reads, and nothing else
//   a continuation with no ring before  dropped like those
//   no vertices at all                  the mean east is 0
//   a date that is none                 its parts by their numeric values
//   the list INQUADRAMENTO              takes the empty field behind the closing bar too

namespace {

constexpr std::string_view Autoallestito = "AUTOALLESTITO";
constexpr std::string_view DataAutoallestito = "01122009"; // so that it always reads as long expired
constexpr std::size_t LunghezzaTestaContinuazione = 4;     // "7|0|"

using Lista = ListaRighe KR_Estratto::*;

Lista ListaDiPunto(std::string_view riga) {
  const std::string_view identificativo = SpezzaPunto(riga).identificativo;
  if (identificativo.starts_with("PF")) return &KR_Estratto::PF;
  if (identificativo.ends_with('T')) return &KR_Estratto::Toponimi;
  if (identificativo.ends_with('L')) return &KR_Estratto::PLinee;
  return &KR_Estratto::Punti;
}

// The distances come first, so that "6|DISTORSIONE|" lies among them and comes back out there: it is of them.
Lista ListaDiAttributo(std::string_view riga) {
  if (riga.starts_with("6|DIST")) return &KR_Estratto::DISTANZA;
  if (riga.starts_with("6|PA")) return &KR_Estratto::PARTICELLA;
  if (riga.starts_with("6|IN")) return &KR_Estratto::INQUADRAMENTO;
  if (riga.starts_with("6|DITTA|")) return &KR_Estratto::DITTA;
  if (riga.starts_with("6|PFCART|")) return &KR_Estratto::PFCART;
  if (riga.starts_with("6|SCALAOR")) return &KR_Estratto::ALTRO;
  return nullptr;
}

Lista ListaDiRiga(std::string_view riga) {
  const Genere genere = GenereDi(riga);
  if (genere == Genere::Coordinate) return ListaDiPunto(riga);
  if (genere == Genere::Contorno) return Contiene(riga, "L|") ? &KR_Estratto::Linee : &KR_Estratto::List1;
  return genere == Genere::Libera ? ListaDiAttributo(riga) : nullptr;
}

// The row from a character (counted from 0) on, as a line of a session's text.
void AggiungiLinea(std::string& testo, std::string_view riga, std::size_t da) {
  testo += riga.substr(std::min(da, riga.size()));
  testo += FineRiga;
}

void AggiungiInquadramento(ListaRighe& lista, std::string_view riga) {
  lista.AggiungiVista(riga);
  const Campi campi(riga);
  for (std::size_t i = 2; i < campi.Quanti(); ++i) lista.AggiungiVista(campi[i]);
}

void AggiungiRiga(Sessione& sessione, KR_Estratto& estratto, std::string_view riga) {
  const Lista lista = ListaDiRiga(riga);
  if (lista == nullptr) {
    if (!Taglia(riga).empty()) estratto.Scartate.Aggiungi(riga);
    return;
  }
  if (lista == &KR_Estratto::INQUADRAMENTO) {
    AggiungiInquadramento(estratto.INQUADRAMENTO, riga);
    return;
  }
  (estratto.*lista).AggiungiVista(riga);
  if (lista == &KR_Estratto::PARTICELLA)
    AggiungiLinea(sessione.EstrattoTestoParticelle, riga, std::string_view("6|PARTICELLA|").size());
  if (lista == &KR_Estratto::DITTA) AggiungiLinea(sessione.EstrattoDitte, riga, std::string_view("6|DITTA|").size());
}

void LeggiRighe(Ambiente& ambiente, KR_Estratto& estratto, std::string&& testo) {
  const auto file = std::make_shared<const std::string>(ConFineRiga(std::move(testo)));
  for (const Lista lista :
       {&KR_Estratto::ZERO, &KR_Estratto::Punti, &KR_Estratto::Toponimi, &KR_Estratto::PLinee, &KR_Estratto::PF,
        &KR_Estratto::List1, &KR_Estratto::Linee, &KR_Estratto::PARTICELLA, &KR_Estratto::DITTA, &KR_Estratto::DISTANZA,
        &KR_Estratto::PFCART, &KR_Estratto::ALTRO, &KR_Estratto::INQUADRAMENTO})
    (estratto.*lista).Tieni(file);
  const auto righe = RigheDi(*file);
  estratto.Punti.Riserva(estratto.Punti.size() + righe.size());
  Avanzamento avanzamento(ambiente.dialoghi, "Lettura dell'estratto", righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    if (i == 0)
      estratto.ZERO.AggiungiVista(righe[i]);
    else
      AllaRiga([i] { return i + 1; }, righe[i], [&] { AggiungiRiga(ambiente.sessione, estratto, righe[i]); });
  }
}

// A head with what its continuations hold, handed over from the last to the first, before the four closing fields. The
// text behind the last bar is no field.
std::string RigaSette(std::string_view testa, const std::vector<std::string>& riporto) {
  constexpr std::size_t chiusura = 4; // class, name twice, surface
  const std::size_t inizioChiusura = InizioCampoDaUltimo(testa, chiusura);
  std::string riga(testa.substr(0, inizioChiusura));
  for (auto pezzo = riporto.rbegin(); pezzo != riporto.rend(); ++pezzo) riga += *pezzo;
  riga += testa.substr(inizioChiusura, testa.rfind('|') + 1 - inizioChiusura);
  return riga;
}

// The rings from the last row to the first: SETTE holds them in the reverse order of the file, and a load and save
// turns their order round, for a ring's continuations are known when its head is met; two give the first order back.
void UnisciAnelli(KR_Estratto& estratto) {
  std::vector<std::string> riporto;
  for (std::size_t i = estratto.List1.size(); i > 0; --i) {
    const std::string_view riga = estratto.List1[i - 1];
    AllaRiga([&] { return estratto.List1.NumeroDiRiga(i - 1); }, riga,
             [&] {
               if (Valore(Campo(riga, 1)) == 0) {
                 riporto.push_back(Sostituisci(Sostituisci(riga, "7|0|", ""), "NC|", ""));
                 return;
               }
               estratto.SETTE.Aggiungi(RigaSette(riga, riporto));
               riporto.clear();
             });
  }
}

// The session's texts of the rings that were read, `prima` rings standing before them in SETTE.
void TestiSette(Sessione& sessione, const ListaRighe& sette, std::size_t prima) {
  std::size_t lunghezza = 0;
  for (std::size_t i = prima; i < sette.size(); ++i) lunghezza += sette[i].size() + FineRiga.size();
  sessione.EstrattoSette.reserve(lunghezza);
  sessione.EstrattoSetteBase.reserve(lunghezza);
  for (std::size_t i = prima; i < sette.size(); ++i) {
    const bool segno = sette[i].find_first_of("+-") != std::string_view::npos;
    AggiungiLinea(sessione.EstrattoSette, sette[i], 0);
    AggiungiLinea(segno ? sessione.EstrattoSetteSegno : sessione.EstrattoSetteBase, sette[i], 0);
  }
}

// Continuations behind the line they continue, from their fifth character on, closing fields and all.
void UnisciLinee(ListaRighe& linee) {
  constexpr std::size_t segno = 2; // "0" at the third character
  std::vector<std::string> unite;
  for (const auto riga : linee) {
    if (riga.size() <= segno || riga[segno] != '0') {
      unite.emplace_back(riga);
      continue;
    }
    if (unite.empty()) throw Errore(errore::IndiceFuoriIntervallo).DellaRiga(linee.NumeroDiRiga(0), riga);
    unite.back() += riga.substr(std::min(LunghezzaTestaContinuazione, riga.size()));
  }
  linee.clear();
  linee.Riserva(unite.size());
  for (const auto& riga : unite) linee.Aggiungi(riga);
}

// Calendar months from a date ddmmyyyy to today, the days left out.
std::string MesiDa(std::string_view data, const Data& oggi) {
  constexpr int mesiAnno = 12;
  const auto pezzo = [data](std::size_t da, std::size_t quanti) {
    return Valore(data.substr(std::min(da, data.size()), quanti));
  };
  return TestoPieno(oggi.anno * mesiAnno + oggi.mese - (pezzo(4, 4) * mesiAnno + pezzo(2, 2)));
}

void PrendiCampiRigaZero(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  const Campi campi(sessione.EstrattoRigaZero);
  sessione.EstrattoComune = campi[3];
  sessione.EstrattoFoglio = campi[4];
  sessione.EstrattoParticelle = campi[5];
  sessione.EstrattoProvincia = campi[6];
  sessione.EstrattoData = campi[1] == Autoallestito ? DataAutoallestito : campi[1];
  sessione.EstrattoMesi = MesiDa(sessione.EstrattoData, ambiente.orologio.Oggi());
}

void LeggiTestata(Ambiente& ambiente, const KR_Estratto& estratto, const std::string& percorso) {
  Sessione& sessione = ambiente.sessione;
  sessione.EstrattoFile = percorso;
  if (estratto.ZERO.empty()) throw Errore(errore::IndiceFuoriIntervallo, std::string("L'estratto è vuoto"_w));
  sessione.EstrattoRigaZero = estratto.ZERO[0];
  AllaRiga([] { return std::size_t{1}; }, sessione.EstrattoRigaZero, [&] { PrendiCampiRigaZero(ambiente); });
}

// Middle of the easts, whole metres: it tells where the sheet lies.
std::string EstMedio(const ListaRighe& punti) {
  constexpr std::size_t posizioneEst = 3;
  Estremi est;
  for (std::size_t i = 0; i < punti.size(); ++i)
    AllaRiga([&] { return punti.NumeroDiRiga(i); }, punti[i], [&] { est.Vedi(Valore(Campo(punti[i], posizioneEst))); });
  return std::string(Taglia(Formatta(est.Media(), "###########0")));
}

// Whether there was a file to read.
bool Esplodi(Ambiente& ambiente, KR_Estratto& estratto, std::string_view nome) {
  Sessione& sessione = ambiente.sessione;
  const std::string percorso = PercorsoEstratto(sessione, nome);
  if (percorso.ends_with('\\')) return false;
  for (std::string* testo : {&sessione.EstrattoDitte, &sessione.EstrattoTestoParticelle, &sessione.EstrattoSetteBase,
                             &sessione.EstrattoSetteSegno, &sessione.EstrattoSette})
    testo->clear();
  if (!ambiente.disco.Esiste(percorso)) return false;
  LeggiRighe(ambiente, estratto, ambiente.disco.Leggi(percorso));
  const std::size_t prima = estratto.SETTE.size();
  UnisciAnelli(estratto);
  TestiSette(sessione, estratto.SETTE, prima);
  estratto.List1.clear();
  UnisciLinee(estratto.Linee);
  LeggiTestata(ambiente, estratto, percorso);
  sessione.EstrattoEstMedio = EstMedio(estratto.Punti);
  sessione.PuntoErrore = "EsplodiEstratto1";
  return true;
}

} // namespace

std::string CartellaEstratti(const Sessione& sessione) {
  return sessione.RadicePregeo + "\\pregeo\\estratti";
}

std::string PercorsoEstratto(const Sessione& sessione, std::string_view nome) {
  if (Contiene(nome, "\\")) return std::string(nome);
  return CartellaEstratti(sessione) + "\\" + ComponenteFile(nome);
}

bool EstrattoAssociatoPresente(Ambiente& ambiente) {
  const std::string& nome = ambiente.sessione.EstrattoAssociato;
  if (!nome.empty() && ambiente.disco.Esiste(PercorsoEstratto(ambiente.sessione, nome))) return true;
  ambiente.dialoghi.Messaggio(nome.empty() ? std::string("Nessun Estratto di Mappa associato al Libretto!")
                                           : "Estratto di Mappa non trovato: " + nome);
  return false;
}

bool EsplodiEstratto(Ambiente& ambiente, KR_Estratto& estratto, std::string_view nome) {
  ambiente.sessione.PuntoErrore = "EsplodiEstratto";
  bool letto = false;
  return Intrappola(ambiente, [&] { letto = Esplodi(ambiente, estratto, nome); }) && letto;
}

} // namespace lirmeto
