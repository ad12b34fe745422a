#include <intestazione/catasto1_elenchi.h>

#include <base/testo.h>
#include <core/riga.h>
#include <intestazione/catasto1_caselle.h>

#include <algorithm>
#include <span>

namespace lirmeto {

namespace {

constexpr std::array<VociElenco, NumeroElenchi> Elenchi = {{
    {"Qualifica", casella::Qualifica, ""},
    {"Provincia", casella::Provincia, ""},
    {"Tipologia Rilievo", casella::Tipologia, ""},
    {"Strumentazione", casella::Strumentazione, "\\TIPOLOGIASTRUMENTAZIONE.INI"},
    {"Commento", casella::Commento, "\\SALVACOMMENTO.INI"},
}};

constexpr std::array<std::string_view, 8> Qualifiche = {"AGROTECNICO",    "DOTTORE IN AGRARIA", "DOTT. AGRONOMO O F.",
                                                        "ARCHITETTO",     "GEOMETRA",           "INGEGNERE",
                                                        "PERITO AGRARIO", "PERITO EDILE"};

// Their first two letters are the value of the field.
constexpr std::array<std::string_view, 8> Tipologie = {"FR - Frazionamento",
                                                       "MC - Tipo Mappale per Nuova Costruzione",
                                                       "TM - Tipo Mappale per Variazione",
                                                       "CM - Tipo Mappale per Conferma di Mappa",
                                                       "SC - Tipo Mappale con Scorporo di Corte",
                                                       "FM - Frazionamento con Tipo Mappale",
                                                       "PA - Tipo Particellare",
                                                       "TR - Tipo Mappale a Rettifica"};

constexpr std::array<std::string_view, 11> Strumenti = {"MISURE ASSENTI",
                                                        "TIPO SENZA GEOMETRIA",
                                                        "CORDELLA METRICA E PALINE",
                                                        "GEODIMETRO INTEGRATO",
                                                        "STAZIONE TOTALE",
                                                        "CORDELLA METRICA",
                                                        "ALLINEAMENTI E SQUADRI",
                                                        "MULTIMETRO LASER",
                                                        "Strumentazione GPS",
                                                        "Strumentazione GPS + Stazione Totale",
                                                        "Libretto per sole coordinate"};

constexpr std::array<std::string_view, 9> Commenti = {
    "CONFERMA",
    "VARIAZIONE",
    "DEROGA",
    "Conformità di mappa con conferma di mappa"_w,
    "Conferma: Conformità di mappa con variazione di particella"_w,
    "Conferma: Demolizione totale di fabbricato",
    "Conferma: Accorpamento di fabbricato alla corte",
    "Conferma: Fusione di particelle edificate (qualità 282 oppure Fabbr. Rurali)"_w,
    "Conferma: Nuova costruzione sull'intera particella"};

} // namespace

const VociElenco& DatiElenco(Elenco elenco) {
  return Elenchi.at(static_cast<std::size_t>(elenco));
}

std::vector<std::string> VociIniziali(Elenco elenco) {
  constexpr std::array<std::span<const std::string_view>, NumeroElenchi> iniziali = {
      Qualifiche, std::span<const std::string_view>(), Tipologie, Strumenti, Commenti};
  const auto voci = iniziali.at(static_cast<std::size_t>(elenco));
  return {voci.begin(), voci.end()};
}

std::vector<std::string> LeggiVoci(std::string_view testo) {
  const std::string intero = ConFineRiga(testo);
  std::vector<std::string> voci;
  for (const auto riga : RigheDi(intero))
    if (!Taglia(riga).empty()) voci.emplace_back(riga);
  return voci;
}

std::size_t TrovaVoce(const std::vector<std::string>& voci, std::string_view voce) {
  const auto trovata =
      std::find_if(voci.begin(), voci.end(), [voce](const std::string& altra) { return UgualiSenzaCaso(altra, voce); });
  return trovata == voci.end() ? std::string::npos : static_cast<std::size_t>(trovata - voci.begin());
}

} // namespace lirmeto
