#include <piattaforma/disco_dischi.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/linux/errori_ospite.h>
#include <piattaforma/percorsi_ospite.h>

#include <base/testo.h>

#include <algorithm>
#include <optional>
#include <system_error>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// Whether a host name is this name in some case. Nearly all names are ASCII and need no conversion.
bool StessoNome(const std::string& utf8, std::string_view nome) {
  const bool ascii = std::all_of(utf8.begin(), utf8.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii) return UgualiSenzaCaso(utf8, nome);
  const auto candidata = NomeDaOspite(utf8);
  return candidata && UgualiSenzaCaso(*candidata, nome);
}

// Does something with each name of a folder, as the host spells it.
template <typename Azione>
void PerOgniNome(const fs::path& cartella, const Azione& azione) {
  std::error_code guasto;
  for (fs::directory_iterator i(cartella, guasto), fine; !guasto && i != fine; i.increment(guasto))
    azione(i->path().filename().string());
}

// The first name of a folder that differs in case alone.
std::optional<std::string> Cerca(const fs::path& cartella, std::string_view nome) {
  std::optional<std::string> trovata;
  PerOgniNome(cartella, [&](const std::string& utf8) {
    if (StessoNome(utf8, nome) && (!trovata || utf8 < *trovata)) trovata = utf8;
  });
  return trovata;
}

std::optional<std::string> CercaFraRicordate(CartelleRicordate& ricordate, const fs::path& cartella,
                                             std::string_view nome) {
  const auto [posto, nuova] = ricordate.try_emplace(cartella.string());
  auto& nomi = posto->second;
  if (nuova) {
    PerOgniNome(cartella, [&nomi](const std::string& utf8) {
      const auto detto = NomeDaOspite(utf8);
      if (!detto) return;
      const auto [voce, prima] = nomi.try_emplace(Maiuscolo(*detto), utf8);
      if (!prima && utf8 < voce->second) voce->second = utf8;
    });
  }
  const auto voce = nomi.find(Maiuscolo(nome));
  return voce == nomi.end() ? std::nullopt : std::optional(voce->second);
}

// The entry of a folder with this name: its exact spelling, else the first that differs in case alone, else the name as
// given.
fs::path Voce(const fs::path& cartella, std::string_view nome, CartelleRicordate* ricordate) {
  fs::path esatta = cartella / AUtf8(nome);
  if (EsisteVoce(esatta)) return esatta;
  const auto trovata = ricordate == nullptr ? Cerca(cartella, nome) : CercaFraRicordate(*ricordate, cartella, nome);
  return trovata ? cartella / *trovata : esatta;
}

// "." and ".." of a host path are followed as the host follows them: ".." behind a link is not the folder before it.
fs::path Assoluto(const fs::path& ospite) {
  std::error_code guasto;
  fs::path assoluto = fs::absolute(ospite, guasto);
  if (guasto) LanciaErrno(guasto.value(), errore::PercorsoNonTrovato);
  if (std::find(assoluto.begin(), assoluto.end(), fs::path("..")) == assoluto.end()) return assoluto.lexically_normal();
  fs::path risolto = fs::weakly_canonical(assoluto, guasto);
  if (guasto) LanciaErrno(guasto.value(), errore::PercorsoNonTrovato);
  return risolto;
}

} // namespace

fs::path OspiteDaUtf8(std::string_view utf8) {
  return utf8;
}

std::string Utf8DaOspite(const fs::path& ospite) {
  return ospite.string();
}

fs::path PercorsoSuOspite(const fs::path& dischi, std::string_view percorso, CartelleRicordate* ricordate) {
  const PercorsoDiviso diviso = DividiPercorso(percorso);
  fs::path ospite = diviso.lettera == 'Z' ? fs::path("/") : CartellaDisco(dischi, diviso.lettera);
  for (const std::string_view componente : diviso.componenti) ospite = Voce(ospite, componente, ricordate);
  return ospite;
}

bool StessoPercorso(const fs::path& primo, const fs::path& secondo) {
  return primo == secondo ||
         (primo.parent_path() == secondo.parent_path() && !EsisteVoce(primo) && !EsisteVoce(secondo));
}

std::string PercorsoDaOspite(const fs::path& ospite) {
  std::string percorso = "Z:";
  for (const fs::path& parte : Assoluto(ospite).relative_path()) {
    if (parte.empty()) continue; // behind a closing separator
    const auto nome = NomeDaOspite(parte.string());
    if (!nome) LanciaNome(DaUtf8(ospite.string()));
    percorso += "\\" + *nome;
  }
  return percorso.size() == 2 ? "Z:\\" : percorso;
}

} // namespace lirmeto
