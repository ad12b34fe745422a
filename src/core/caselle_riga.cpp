#include <core/caselle_riga.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/campi_riga.h>
#include <core/descrizione_riga.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

constexpr std::array ColonneCensuarie = {censuario::Operazione,
                                         censuario::Particella,
                                         censuario::Subalterno,
                                         censuario::Lettera,
                                         censuario::Temporaneo,
                                         censuario::Area,
                                         censuario::SrSn,
                                         censuario::LetteraDestinazione,
                                         censuario::TemporaneoDestinazione,
                                         censuario::Qualita,
                                         censuario::Classe,
                                         censuario::Coda};

bool AltriSiRegolanoSuLei(std::string_view riga) {
  return riga == RigaProposta || riga == RigaPropostaAggiornata || MarcaRelazioneOCensuario(riga) ||
         (RigaCensuaria(riga) && (riga == censuario::Intestazione || ApreSezione(riga)));
}

std::vector<CasellaRiga> Censuarie(std::string_view riga) {
  std::vector<CasellaRiga> caselle;
  caselle.reserve(ColonneCensuarie.size());
  for (const CampoCensuario& campo : ColonneCensuarie) {
    const bool area = campo.indice == censuario::Area.indice;
    caselle.push_back({std::string(campo.nome), area ? "mq" : "", std::string(Taglia(LeggiCampo(riga, campo))),
                       campo.indice, campo.quante});
  }
  return caselle;
}

// Of a row 6 each part between bars.
std::vector<CasellaRiga> Libere(const std::vector<std::string_view>& campi) {
  std::vector<CasellaRiga> caselle;
  for (std::size_t i = 1; i < std::min(campi.size(), MassimeCaselle + 1); ++i) {
    std::string nome = "Testo";
    if (i > 1) nome.append(" ").append(TestoIntero(static_cast<long long>(i)));
    caselle.push_back({std::move(nome), {}, std::string(campi[i]), i, 0});
  }
  return caselle;
}

std::vector<CasellaRiga> Descritte(std::string_view riga, const std::vector<std::string_view>& campi) {
  std::vector<CasellaRiga> caselle;
  for (CampoDescritto& descritto : DescriviRiga(riga).campi) {
    const std::size_t campo = caselle.size() + 1; // the first field told is field 1
    if (campo >= campi.size() || campo > MassimeCaselle) break;
    caselle.push_back({std::move(descritto.nome), std::move(descritto.unita), std::string(campi[campo]), campo, 0});
  }
  return caselle;
}

// A number as rows write it. Coordinates of GPS rows are three behind commas, and stay.
std::string ColPunto(const CasellaRiga& casella, std::string_view testo) {
  std::string col = Sostituisci(testo, ",", ".");
  return !casella.unita.empty() && ENumero(col) ? col : std::string(testo);
}

// Whether an empty field of the row would be read as the end of it.
bool NonPuoRestareVuota(std::string_view riga, const CasellaRiga& casella) {
  const Genere genere = GenereDi(riga);
  if (genere == Genere::Intestazione || genere == Genere::Chiusura || RigaCensuaria(riga)) return false;
  return CampoNota(riga) != casella.campo;
}

} // namespace

std::vector<CasellaRiga> CaselleDi(std::string_view riga) {
  if (AltriSiRegolanoSuLei(riga) || GenereDi(riga) == Genere::Altro || riga.find('|') == std::string_view::npos)
    return {};
  if (RigaCensuaria(riga)) return Censuarie(riga);
  std::vector<std::string_view> campi = Dividi(riga, "|");
  if (campi.back().empty()) campi.pop_back();
  return GenereDi(riga) == Genere::Libera ? Libere(campi) : Descritte(riga, campi);
}

std::string ConCasella(std::string_view riga, const CasellaRiga& casella, std::string_view testo) {
  const std::string_view tagliato = Taglia(testo);
  if (!RigaCensuaria(riga)) return ConCampo(riga, casella.campo, ColPunto(casella, tagliato));
  std::string nuova(riga);
  const auto colonna = std::find_if(ColonneCensuarie.begin(), ColonneCensuarie.end(),
                                    [&](const CampoCensuario& campo) { return campo.indice == casella.campo; });
  if (colonna == ColonneCensuarie.end()) throw Errore(errore::IndiceFuoriIntervallo);
  colonna->indice == censuario::Area.indice ? ScriviArea(nuova, tagliato) : ScriviCampo(nuova, *colonna, tagliato);
  return nuova;
}

void CambiaCasella(Ambiente& ambiente, std::size_t riga, std::size_t campo, std::string_view testo) {
  Sessione& sessione = ambiente.sessione;
  if (riga >= sessione.List1.Quante()) return;
  const std::string_view prima = sessione.List1.Riga(riga);
  const auto caselle = CaselleDi(prima);
  const auto casella =
      std::find_if(caselle.begin(), caselle.end(), [campo](const CasellaRiga& una) { return una.campo == campo; });
  if (casella == caselle.end()) return;
  if (Taglia(testo).empty() && NonPuoRestareVuota(prima, *casella))
    return ambiente.dialoghi.Messaggio("Il campo \"" + casella->nome + "\"" + std::string(" non può restare vuoto!"_w),
                                       casella->nome);
  const std::string nuova = ConCasella(prima, *casella, testo);
  if (nuova == prima) return;
  sessione.List1.Cambia(riga, nuova);
  AggiornaLibrettoMisure(ambiente);
  constexpr std::size_t primaDelleMisure = 2; // rows 0 and 9
  if (riga < primaDelleMisure) DecoZeroNove(ambiente);
}

} // namespace lirmeto
