#include <core/salvataggio.h>

#include <base/avanzamento.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace lirmeto {

namespace {

// Room behind Libretto for the tag rows that the file gets, so that they do not move a large text.
constexpr std::size_t SpazioPerRigheDiServizio = 4096;

// A note that is not filled in reads "Note:" to Pregeo; the mark of a
// planimetric point is of the generation only.
std::string RigaPulita(std::string_view riga) {
  return Sostituisci(Sostituisci(riga, "<P!>", ""), "||", "|NOTE:|");
}

bool DaPulire(std::string_view riga) {
  const Genere genere = GenereDi(riga);
  return genere != Genere::Intestazione && genere != Genere::Chiusura &&
         (Contiene(riga, "||") || Contiene(riga, "<P!>"));
}

// One pass of plain replacement of pairs of line ends, in place.
void DimezzaUnaVolta(std::string& testo) {
  constexpr std::string_view doppio = "\r\n\r\n";
  std::size_t scritti = testo.find(doppio);
  if (scritti == std::string::npos) return;
  for (std::size_t letti = scritti; letti < testo.size();) {
    if (testo.compare(letti, doppio.size(), doppio) == 0) letti += FineRiga.size();
    testo[scritti++] = testo[letti++];
    // the line end that stays is no beginning of another pair
    if (testo[scritti - 1] == '\r' && letti < testo.size() && testo[letti] == '\n') testo[scritti++] = testo[letti++];
  }
  testo.resize(scritti);
}

// Pairs of line ends halved in two passes. Two is the number: longer runs keep a pair.
std::string DimezzaFineRiga(std::string testo) {
  DimezzaUnaVolta(testo);
  DimezzaUnaVolta(testo);
  return testo;
}

std::string DittaInCampi(std::string_view ditta) {
  std::vector<std::string> campi;
  for (const auto linea : Dividi(ditta, FineRiga)) campi.push_back(InUnCampo(linea));
  return Unisci({campi.begin(), campi.end()}, FineRiga);
}

// A number of a text that stays the same from run to run (FNV-1a): two texts that differ have two, as good as surely.
class Impronta {
public:
  Impronta() = default;
  explicit Impronta(std::uint64_t valore) : valore_(valore) {}
  void Aggiungi(std::string_view testo) {
    constexpr std::uint64_t primo = 0x100000001B3;
    for (const char lettera : testo) valore_ = (valore_ ^ static_cast<unsigned char>(lettera)) * primo;
  }
  [[nodiscard]] std::uint64_t Valore() const { return valore_; }

private:
  std::uint64_t valore_ = 0xCBF29CE484222325;
};

std::uint64_t ConValori(Impronta impronta, const Sessione& sessione) {
  for (const std::string& valore : {sessione.NomeFileLibretto, sessione.EstrattoAssociato, sessione.CodiceFiscale,
                                    sessione.NumeroIscrizione, Maiuscolo(sessione.Ditta)})
    impronta.Aggiungi(valore + std::string(FineRiga));
  return impronta.Valore();
}

// "ACT.DAT.5402198.ultimo": acts of one name in two folders have one each.
std::string PercorsoUltimo(const Sessione& sessione) {
  Impronta impronta;
  impronta.Aggiungi(sessione.NomeFileLibretto);
  return sessione.CartellaProgramma + "\\temp\\" + std::string(NomeDaPercorso(sessione.NomeFileLibretto)) + "." +
         TestoIntero(static_cast<long long>(impronta.Valore() >> 1)) + ".ultimo";
}

// Stands from before a save until it is known to be good, in this run or in a later one: meanwhile the libretto's file
// may be cut, and the copy of its last good content must not be made from it.
std::string PercorsoIncompiuto(const Sessione& sessione) {
  return PercorsoUltimo(sessione) + ".incompiuto";
}

// Keeps the last good content of the libretto's file before it is written over. Whether there is one.
bool TieniUltimo(Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  const std::string incompiuto = PercorsoIncompiuto(sessione);
  if (ambiente.disco.Esiste(incompiuto)) return true;
  if (!ambiente.disco.Esiste(sessione.NomeFileLibretto)) return false;
  ambiente.disco.Copia(sessione.NomeFileLibretto, PercorsoUltimo(sessione));
  ambiente.disco.Scrivi(incompiuto, {});
  return true;
}

void SegnaCompiuto(Ambiente& ambiente) {
  try {
    ambiente.disco.Elimina(PercorsoIncompiuto(ambiente.sessione));
  } catch (const Errore&) { // the save is good: all that is lost is that the next one keeps an older copy
  }
}

// The whole save. When an error ends it behind the copy of the old content, the save stays marked as incomplete.
void ScriviLibretto(Ambiente& ambiente) {
  RendiScrivibili(ambiente);
  const std::string testo = TestoDaSalvare(ambiente.sessione);
  const bool tenuto = TieniUltimo(ambiente);
  ambiente.disco.Scrivi(ambiente.sessione.NomeFileLibretto, testo);
  if (tenuto) SegnaCompiuto(ambiente);
}

// Whether it went well; what did not is told.
bool ProvaASalvare(Ambiente& ambiente) {
  const bool riuscito = Intrappola(ambiente, [&] { ScriviLibretto(ambiente); });
  if (!riuscito && ambiente.disco.Esiste(PercorsoIncompiuto(ambiente.sessione)))
    ambiente.dialoghi.Messaggio(std::string("L'ultimo contenuto valido del libretto è conservato in:"_w) +
                                std::string(FineRiga) + PercorsoUltimo(ambiente.sessione));
  return riuscito;
}

} // namespace

void AggiungiRigaLibretto(Sessione& sessione, std::string_view riga) {
  sessione.Libretto += Taglia(riga);
  sessione.Libretto += FineRiga;
}

void AggiornaLibrettoMisure(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  ElencoRighe& elenco = sessione.List1;
  elenco.TogliRipetute();
  Avanzamento avanzamento(ambiente.dialoghi, "Aggiornamento del libretto", elenco.Quante());
  std::size_t lunghezza = 0;
  for (std::size_t i = 0; i < elenco.Quante(); ++i) {
    avanzamento.Fatto(i);
    if (DaPulire(elenco.Riga(i))) elenco.Cambia(i, RigaPulita(elenco.Riga(i)));
    lunghezza += elenco.Riga(i).size() + FineRiga.size();
  }
  sessione.Libretto.clear();
  sessione.Libretto.reserve(lunghezza + SpazioPerRigheDiServizio);
  for (const auto riga : elenco.Righe())
    if (!Taglia(riga).empty()) AggiungiRigaLibretto(sessione, riga);
}

void RendiScrivibili(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  bool cambiato = false;
  const auto prendi = [&](std::string& valore, std::string scrivibile) {
    cambiato = cambiato || valore != scrivibile;
    valore = std::move(scrivibile);
  };
  for (std::string* valore : {&sessione.EstrattoAssociato, &sessione.CodiceFiscale, &sessione.NumeroIscrizione})
    prendi(*valore, InUnCampo(*valore));
  prendi(sessione.Ditta, DittaInCampi(sessione.Ditta));
  if (cambiato)
    ambiente.dialoghi.Messaggio("Le righe di servizio del libretto non tengono barre: sono diventate spazi.",
                                "Salva Libretto");
}

std::string TestoDaSalvare(const Sessione& sessione) {
  std::string libretto;
  libretto.reserve(sessione.Libretto.size() + sessione.Ditta.size() + SpazioPerRigheDiServizio);
  libretto += sessione.Libretto;
  return TestoDaSalvare(std::move(libretto), sessione);
}

std::string TestoDaSalvare(std::string&& libretto, const Sessione& sessione) {
  const std::string fine(FineRiga);
  std::string testo = std::move(libretto);
  testo += fine + "6|<EST>" + sessione.EstrattoAssociato + "|" + fine;
  testo += "6|<COD>" + sessione.CodiceFiscale + "|" + fine;
  testo += "6|<ISC>" + sessione.NumeroIscrizione + "|";
  for (const auto linea : Dividi(sessione.Ditta, FineRiga)) {
    if (Taglia(linea).empty()) continue;
    testo += fine + "6|<DIT>";
    testo += linea;
    testo += "|" + fine;
  }
  return DimezzaFineRiga(std::move(testo)) + fine;
}

std::string EsportaLibrettoInFile(Ambiente& ambiente) {
  std::string scritto;
  (void)Intrappola(ambiente, [&] {
    const std::string& aperto = ambiente.sessione.NomeFileLibretto;
    const std::string nome(NomeDaPercorso(aperto));
    const std::string cartella = aperto.substr(0, aperto.size() - nome.size());
    const std::string scelto = ambiente.dialoghi.ScegliFileDaSalvare(
        {"Esporta Libretto", cartella.empty() ? "c:\\" : cartella, nome.empty() ? "zzz.dat" : nome, {}});
    if (Taglia(scelto).empty()) return;
    ambiente.disco.Scrivi(scelto, DimezzaFineRiga(ambiente.sessione.Libretto));
    scritto = scelto;
  });
  return scritto;
}

std::string QuanteRighe(std::size_t quante) {
  return TestoIntero(static_cast<long long>(quante)) + (quante == 1 ? " riga" : " righe");
}

std::string FattoARighe(std::string_view participio, std::size_t quante) {
  return std::string(participio) + (quante == 1 ? "a " : "e ") + QuanteRighe(quante);
}

ElencoRighe Sistemato(ElencoRighe elenco) {
  elenco.TogliRipetute();
  for (std::size_t i = 0; i < elenco.Quante(); ++i)
    if (DaPulire(elenco.Riga(i))) elenco.Cambia(i, RigaPulita(elenco.Riga(i)));
  return elenco;
}

std::string AvvisoSistemate(ElencoRighe elenco) {
  const std::size_t ripetute = elenco.TogliRipetute();
  const auto& righe = elenco.Righe();
  const auto note = static_cast<std::size_t>(std::count_if(righe.begin(), righe.end(), DaPulire));
  std::string avviso;
  if (ripetute > 0)
    avviso = FattoARighe("tolt", ripetute) + (ripetute == 1 ? " uguale" : " uguali") + " alla precedente";
  if (note > 0) avviso += (avviso.empty() ? "" : ", ") + FattoARighe("sistemat", note) + " con note da completare";
  return avviso;
}

bool SalvaLibrettoMisure(Ambiente& ambiente) {
  ambiente.sessione.PuntoErrore = "SalvaLibrettoMisure";
  if (ambiente.sessione.NomeFileLibretto.empty()) return !EsportaLibrettoInFile(ambiente).empty();
  return ProvaASalvare(ambiente);
}

bool SalvaLibrettoAltrove(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  std::string scelto;
  const bool chiesto = Intrappola(ambiente, [&] {
    scelto = ambiente.dialoghi.ScegliFileDaSalvare(
        {"Salva altrove", "c:\\", std::string(NomeDaPercorso(sessione.NomeFileLibretto)), {}});
  });
  if (!chiesto || Taglia(scelto).empty()) return false;
  sessione.PuntoErrore = "SalvaLibrettoMisure";
  std::swap(sessione.NomeFileLibretto, scelto);
  if (ProvaASalvare(ambiente)) return true;
  std::swap(sessione.NomeFileLibretto, scelto);
  return false;
}

std::uint64_t ImprontaRighe(const ElencoRighe& righe) {
  ElencoRighe elenco = righe;
  elenco.TogliRipetute();
  Impronta impronta;
  for (const auto riga : elenco.Righe()) {
    if (Taglia(riga).empty()) continue;
    DaPulire(riga) ? impronta.Aggiungi(Taglia(RigaPulita(riga))) : impronta.Aggiungi(Taglia(riga));
    impronta.Aggiungi(FineRiga);
  }
  return impronta.Valore();
}

std::uint64_t ImprontaElenco(std::uint64_t righe, const Sessione& sessione) {
  return ConValori(Impronta(righe), sessione);
}

std::uint64_t ImprontaLibretto(const Sessione& sessione) {
  Impronta impronta;
  impronta.Aggiungi(sessione.Libretto);
  return ConValori(impronta, sessione);
}

} // namespace lirmeto
