#include <core/tabelle.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t ColonneCodiceQualita = 3;

// Columns `da` to `a` of a record, counted from 1; what lies beyond its end is
// not there.
std::string_view Colonne(std::string_view record, std::size_t da, std::size_t a) {
  return record.size() < da ? std::string_view{} : record.substr(da - 1, a - da + 1);
}

Comune LeggiComune(std::string_view record) {
  const std::string codice = RiempiECorta(Colonne(record, 2, 5), 4) + std::string(Colonne(record, 1, 1));
  return {std::string(Taglia(codice)), std::string(Taglia(Colonne(record, 63, 66))),
          std::string(Colonne(record, 27, 28)), std::string(Taglia(Colonne(record, 29, 62)))};
}

std::vector<CodiceENome> LeggiCoppie(std::string_view testo, std::size_t massimo) {
  const auto linee = RigheDi(testo);
  if (linee.size() > massimo) throw Errore(errore::IndiceFuoriIntervallo);
  std::vector<CodiceENome> tabella;
  tabella.reserve(linee.size());
  for (const auto linea : linee)
    tabella.push_back({std::string(Taglia(Parte(linea, ',', 0))), std::string(Taglia(Parte(linea, ',', 1)))});
  return tabella;
}

// "ENTE URBANO 282": the last three characters of the name's twelve columns,
// three blanks and the trimmed code come first in the entry, the twelve columns
// of the name behind them.
std::string VoceQualita(std::string_view linea) {
  const std::string nome = RiempiECorta(linea, 12);
  const std::string intera =
      nome + "   " + std::string(Taglia(linea.size() > 13 ? linea.substr(13) : std::string_view{}));
  return intera.substr(intera.size() - ColonneCodiceQualita) + "   " + nome;
}

// The first entry that holds the name; null when there is none.
const std::string* VoceDiQualita(const std::vector<std::string>& tabella, std::string_view nome) {
  const auto trovata =
      std::find_if(tabella.begin(), tabella.end(), [nome](const std::string& voce) { return Contiene(voce, nome); });
  return trovata == tabella.end() ? nullptr : &*trovata;
}

} // namespace

std::vector<Comune> LeggiComuni(std::string_view byte) {
  const auto pezzi = Dividi(byte, "@B");
  std::vector<Comune> tabella;
  tabella.reserve(pezzi.size());
  for (std::size_t i = 1; i < pezzi.size(); ++i) tabella.push_back(LeggiComune(pezzi[i]));
  return tabella;
}

std::vector<CodiceENome> LeggiProvince(std::string_view testo) {
  return LeggiCoppie(testo, MassimoProvince);
}

std::vector<CodiceENome> LeggiCollegi(std::string_view testo) {
  return LeggiCoppie(testo, MassimoCollegi);
}

std::vector<std::string> LeggiQualita(std::string_view testo) {
  const auto linee = RigheDi(testo);
  if (linee.size() > MassimoQualita + 1) throw Errore(errore::IndiceFuoriIntervallo);
  std::vector<std::string> tabella;
  for (std::size_t i = 1; i < linee.size(); ++i) tabella.push_back(VoceQualita(linee[i]));
  return tabella;
}

std::string QualitaDaNome(const std::vector<std::string>& tabella, std::string_view nome) {
  constexpr std::size_t colonne = 5;
  const std::string* voce = VoceDiQualita(tabella, nome);
  return std::string(voce == nullptr ? nome : Taglia(std::string_view(*voce).substr(0, colonne)));
}

std::string CodiceQualita(const std::vector<std::string>& tabella, std::string_view nome) {
  const std::string* voce = VoceDiQualita(tabella, nome);
  return voce == nullptr ? std::string(nome) : voce->substr(0, ColonneCodiceQualita);
}

const Comune* TrovaComune(const std::vector<Comune>& tabella, std::string_view codice) {
  const auto trovato =
      std::find_if(tabella.begin(), tabella.end(), [codice](const Comune& comune) { return comune.codice == codice; });
  return trovato == tabella.end() ? nullptr : &*trovato;
}

const CodiceENome* TrovaPerCodice(const std::vector<CodiceENome>& tabella, std::string_view codice) {
  const auto trovato =
      std::find_if(tabella.begin(), tabella.end(), [codice](const CodiceENome& voce) { return voce.codice == codice; });
  return trovato == tabella.end() ? nullptr : &*trovato;
}

} // namespace lirmeto
