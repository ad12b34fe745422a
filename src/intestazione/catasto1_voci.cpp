// The lists of the header form: loaded, lengthened, shortened, kept.

#include <intestazione/catasto1_elenchi.h>

#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/zero_nove.h>

#include <algorithm>
#include <functional>

namespace lirmeto {

namespace {

constexpr std::size_t LettereTipologia = 2; // of an entry that go into the box

// Names of the provinces that have a college; of all provinces when the colleges are not known.
std::vector<std::string> NomiProvince(const Sessione& sessione) {
  std::vector<std::string> nomi;
  for (const auto& collegio : sessione.Collegi) nomi.push_back(collegio.codice);
  if (nomi.empty())
    for (const auto& provincia : sessione.Province) nomi.push_back(provincia.nome);
  return nomi;
}

void CaricaCollegi(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  if (sessione.Collegi.empty())
    sessione.Collegi = LeggiCollegi(CaricaFileIntero(ambiente, sessione.RadicePregeo + "\\pregeo\\exe\\collegi.txt"));
}

} // namespace

void ElenchiCatasto1::Carica() {
  const auto prova = [this](const std::function<void()>& comando) { (void)Intrappola(ambiente_, comando); };
  prova([&] { CaricaDaFile(Elenco::Commento); });
  prova([&] { CaricaProvinceComuni(ambiente_); });
  prova([&] { CaricaCollegi(ambiente_); });
  prova([&] { CaricaDaFile(Elenco::Strumentazione); });
  voci_[Posto(Elenco::Qualifica)] = VociIniziali(Elenco::Qualifica);
  voci_[Posto(Elenco::Tipologia)] = VociIniziali(Elenco::Tipologia);
  voci_[Posto(Elenco::Provincia)] = NomiProvince(ambiente_.sessione);
}

// A file that is missing is made with the first entries in it.
void ElenchiCatasto1::CaricaDaFile(Elenco elenco) {
  const std::string percorso = ambiente_.sessione.CartellaProgramma + std::string(DatiElenco(elenco).file);
  const bool ceLo = ambiente_.disco.Esiste(percorso);
  voci_.at(Posto(elenco)) = ceLo ? LeggiVoci(CaricaFileIntero(ambiente_, percorso)) : VociIniziali(elenco);
  letti_.at(Posto(elenco)) = true;
  if (!ceLo) Salva(elenco);
}

void ElenchiCatasto1::Salva(Elenco elenco) {
  if (!letti_.at(Posto(elenco))) return;
  ambiente_.disco.Scrivi(ambiente_.sessione.CartellaProgramma + std::string(DatiElenco(elenco).file),
                         RigheUnite(Voci(elenco)));
}

void ElenchiCatasto1::SalvaTutti() {
  Salva(Elenco::Strumentazione);
  Salva(Elenco::Commento);
}

void ElenchiCatasto1::Aggiungi(Elenco elenco, std::string_view voce) {
  const std::string titolo = "Aggiungi " + std::string(DatiElenco(elenco).nome);
  if (voce.empty()) return ambiente_.dialoghi.Messaggio("Casella vuota: nulla da aggiungere!", titolo);
  if (TrovaVoce(Voci(elenco), voce) != std::string::npos) {
    std::string detto = std::string(voce) + std::string(FineRiga);
    detto += "è già nell'Archivio!"_w;
    return ambiente_.dialoghi.Messaggio(detto, titolo);
  }
  voci_.at(Posto(elenco)).emplace_back(voce);
  SalvaTutti();
}

// The box keeps its text.
void ElenchiCatasto1::Elimina(Elenco elenco, std::string_view voce) {
  const std::size_t posto = TrovaVoce(Voci(elenco), voce);
  if (posto == std::string::npos)
    return ambiente_.dialoghi.Messaggio("\"" + std::string(voce) + "\"" + std::string(FineRiga) +
                                            std::string("non è nell'Archivio!"_w),
                                        "Elimina " + std::string(DatiElenco(elenco).nome));
  auto& voci = voci_.at(Posto(elenco));
  voci.erase(voci.begin() + static_cast<std::ptrdiff_t>(posto));
  SalvaTutti();
}

void ElenchiCatasto1::Ripristina() {
  for (const Elenco elenco : {Elenco::Qualifica, Elenco::Strumentazione, Elenco::Commento})
    for (const auto& voce : VociIniziali(elenco))
      if (TrovaVoce(Voci(elenco), voce) == std::string::npos) voci_.at(Posto(elenco)).push_back(voce);
  SalvaTutti();
}

std::size_t ElenchiCatasto1::Trova(Elenco elenco, std::string_view testo) const {
  const auto& voci = Voci(elenco);
  if (elenco != Elenco::Tipologia) return TrovaVoce(voci, testo);
  const auto trovata = std::find_if(voci.begin(), voci.end(), [testo](const std::string& voce) {
    return UgualiSenzaCaso(std::string_view(voce).substr(0, LettereTipologia), testo);
  });
  return trovata == voci.end() ? std::string::npos : static_cast<std::size_t>(trovata - voci.begin());
}

std::optional<std::string> ElenchiCatasto1::PerCasella(Elenco elenco, std::size_t voce) const {
  if (voce >= Voci(elenco).size()) return std::nullopt;
  const std::string& testo = Voci(elenco)[voce];
  return elenco == Elenco::Tipologia ? testo.substr(0, LettereTipologia) : testo;
}

} // namespace lirmeto
