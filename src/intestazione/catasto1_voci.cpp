// The lists of the header form: loaded, lengthened, shortened, kept.

#include <intestazione/catasto1_form.h>

#include <base/testo.h>
#include <core/lettura.h>
#include <core/zero_nove.h>

#include <algorithm>

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

void FormCatasto1TXT::CaricaElenchi() {
  Prova([&] { CaricaCommento(); });
  Prova([&] { CaricaProvinceComuni(ambiente_); });
  Prova([&] { CaricaCollegi(ambiente_); });
  Prova([&] { CaricaStrumentazione(); });
  Voci(Elenco::Qualifica) = VociIniziali(Elenco::Qualifica);
  Voci(Elenco::Tipologia) = VociIniziali(Elenco::Tipologia);
  Voci(Elenco::Provincia) = NomiProvince(ambiente_.sessione);
  ElencaTecnici();
}

// A file that is missing is made with the first entries in it.
void FormCatasto1TXT::CaricaElenco(Elenco elenco) {
  const std::string percorso = ambiente_.sessione.CartellaProgramma + std::string(DatiElenco(elenco).file);
  if (ambiente_.disco.Esiste(percorso)) {
    Voci(elenco) = LeggiVoci(CaricaFileIntero(ambiente_, percorso));
    letti_.at(static_cast<std::size_t>(elenco)) = true;
    return;
  }
  Voci(elenco) = VociIniziali(elenco);
  letti_.at(static_cast<std::size_t>(elenco)) = true;
  SalvaElenco(elenco);
}

// A file that could not be read is not written over.
void FormCatasto1TXT::SalvaElenco(Elenco elenco) {
  if (!letti_.at(static_cast<std::size_t>(elenco))) return;
  ambiente_.disco.Scrivi(ambiente_.sessione.CartellaProgramma + std::string(DatiElenco(elenco).file),
                         RigheUnite(Voci(elenco)));
}

// The box's text becomes an entry.
void FormCatasto1TXT::AggiungiVoce(Elenco elenco) {
  const std::string voce(Taglia(Text1.at(DatiElenco(elenco).casella)));
  const std::string titolo = "Aggiungi " + std::string(DatiElenco(elenco).nome);
  if (voce.empty()) return ambiente_.dialoghi.Messaggio("Casella vuota: nulla da aggiungere!", titolo);
  if (TrovaVoce(Voci(elenco), voce) != std::string::npos) {
    std::string detto = voce + std::string(FineRiga);
    detto += "è già nell'Archivio!"_w;
    return ambiente_.dialoghi.Messaggio(detto, titolo);
  }
  Voci(elenco).push_back(voce);
  SalvaStrumentazione();
  SalvaCOMMENTO();
}

// The entry that the box shows goes; the box keeps its text.
void FormCatasto1TXT::EliminaVoce(Elenco elenco) {
  const std::string voce(Taglia(Text1.at(DatiElenco(elenco).casella)));
  const std::size_t posto = TrovaVoce(Voci(elenco), voce);
  if (posto == std::string::npos)
    return ambiente_.dialoghi.Messaggio("\"" + voce + "\"" + std::string(FineRiga) +
                                            std::string("non è nell'Archivio!"_w),
                                        "Elimina " + std::string(DatiElenco(elenco).nome));
  Voci(elenco).erase(Voci(elenco).begin() + static_cast<std::ptrdiff_t>(posto));
  SalvaStrumentazione();
  SalvaCOMMENTO();
}

// The first entries that are missing come back behind the others.
void FormCatasto1TXT::RipristinaVoci() {
  for (const Elenco elenco : {Elenco::Qualifica, Elenco::Strumentazione, Elenco::Commento})
    for (const auto& voce : VociIniziali(elenco))
      if (TrovaVoce(Voci(elenco), voce) == std::string::npos) Voci(elenco).push_back(voce);
  SalvaStrumentazione();
  SalvaCOMMENTO();
}

std::size_t FormCatasto1TXT::VoceInCasella(Elenco elenco) const {
  const auto& voci = Elenchi.at(static_cast<std::size_t>(elenco));
  const std::string_view testo = Taglia(Text1.at(DatiElenco(elenco).casella));
  if (elenco != Elenco::Tipologia) return TrovaVoce(voci, testo);
  const auto trovata = std::find_if(voci.begin(), voci.end(), [testo](const std::string& voce) {
    return UgualiSenzaCaso(std::string_view(voce).substr(0, LettereTipologia), testo);
  });
  return trovata == voci.end() ? std::string::npos : static_cast<std::size_t>(trovata - voci.begin());
}

void FormCatasto1TXT::Scegli(Elenco elenco, std::size_t voce) {
  if (voce >= Voci(elenco).size()) return;
  const std::string& testo = Voci(elenco)[voce];
  Cambia(DatiElenco(elenco).casella, elenco == Elenco::Tipologia ? testo.substr(0, LettereTipologia) : testo);
}

} // namespace lirmeto
