#include <pregeo/pregeo_ini_scrittura.h>

#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::string_view SezioneTecnico = "[DATI TECNICO]";
constexpr std::string_view SezioneProvincia = "[PROV_DI_COMP]";

// The ends of a text's lines in order; the last one is empty when nothing closes the last line.
std::vector<std::string_view> FiniDi(std::string_view testo) {
  std::vector<std::string_view> fini;
  for (std::size_t inizio = 0; inizio < testo.size();) {
    const std::size_t fine = std::min(testo.find_first_of("\r\n", inizio), testo.size());
    const std::size_t lunga = testo.substr(fine).starts_with(FineRiga) ? FineRiga.size() : 1;
    fini.push_back(testo.substr(fine, lunga));
    inizio = fine + lunga;
  }
  return fini;
}

std::string SiglaDaNome(const Sessione& sessione, std::string_view nome) {
  const auto& province = sessione.Province;
  const auto trovata = std::find_if(province.begin(), province.end(),
                                    [&](const CodiceENome& provincia) { return provincia.nome == nome; });
  return trovata == province.end() ? std::string{} : trovata->codice;
}

void ScriviRiga(const Sessione& sessione, std::string& testo, const std::string& prima) {
  const std::string alto = Maiuscolo(testo);
  const auto scrivi = [&testo](const std::string& valore) { testo = RigaIniConValore(testo, SuUnaRiga(valore)); };
  const auto ha = [&alto](std::string_view chiave) { return Contiene(alto, chiave); };
  const std::string altoPrima = Maiuscolo(prima);
  if (ha("NUMERO=")) scrivi(sessione.NumeroIscrizione);
  if (Contiene(Minuscolo(testo), "codc=")) scrivi(sessione.CodiceFiscale);
  if (ha("COGNOME="))
    scrivi(sessione.Cognome);
  else if (ha("NOME="))
    scrivi(altoPrima == SezioneTecnico ? sessione.Cognome + " " + sessione.Nome : sessione.Nome);
  if (ha("QUALIFICA=")) scrivi(sessione.Qualifica);
  if (ha("PROVINCIA=")) scrivi(altoPrima == SezioneProvincia ? sessione.SiglaProvincia : sessione.Provincia);
  if (ha("SIGLA PROV."))
    if (const std::string sigla = SiglaDaNome(sessione, sessione.Provincia); !sigla.empty()) scrivi(sigla);
  if (ha("FILE_DISTANZETAF")) scrivi(sessione.MisurateAssociate);
}

} // namespace

std::string PercorsoPregeoIni(const Sessione& sessione) {
  return sessione.CartellaWindows + "\\PREGEO.INI";
}

std::vector<std::string> RigheIni(std::string_view testo) {
  const std::string intero = ConFineRiga(testo);
  const auto righe = Dividi(intero, FineRiga);
  return {righe.begin(), righe.end()};
}

std::string TestoIni(const std::vector<std::string>& righe, std::string_view originale) {
  const auto fini = FiniDi(originale);
  std::string testo;
  for (std::size_t i = 0; i + 1 < righe.size(); ++i) {
    const bool ultima = i + 2 == righe.size() && righe.back().empty();
    const bool nota = i < fini.size() && (!fini[i].empty() || ultima);
    testo += righe[i];
    testo += nota ? fini[i] : FineRiga;
  }
  return righe.empty() ? testo : testo + righe.back();
}

std::string RigaIniConValore(std::string_view riga, std::string_view valore) {
  auto parti = Dividi(riga, "=");
  if (parti.size() < 2 || riga.substr(riga.find('=') + 1) == valore) return std::string(riga);
  parti[1] = valore;
  return Unisci(parti, "=");
}

std::vector<std::string> RigheIniConValori(std::vector<std::string> righe, const Sessione& sessione) {
  // The section is looked for in the line before as it was read; none of its keys is one itself.
  for (std::size_t i = 0; i + 1 < righe.size(); ++i)
    ScriviRiga(sessione, righe[i], i > 0 ? righe[i - 1] : std::string{});
  return righe;
}

} // namespace lirmeto
