#include <piattaforma/disco_dischi.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/percorsi_ospite.h>

#include <base/errore.h>
#include <base/testo.h>

#include <algorithm>
#include <system_error>
#include <utility>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// What is asked of a path; no for one that cannot be.
template <typename Domanda>
bool SePossibile(const Domanda& domanda) {
  try {
    return domanda();
  } catch (const Errore&) {
    return false;
  }
}

// What a host path has behind a folder, "\\a\\b", nothing for the folder itself; none where it does not lie in it or
// cannot be said.
std::optional<std::string> DietroA(const fs::path& cartella, const fs::path& ospite) {
  const auto [fine, resto] = std::mismatch(cartella.begin(), cartella.end(), ospite.begin(), ospite.end());
  if (cartella.empty() || fine != cartella.end()) return std::nullopt;
  std::string dietro;
  for (auto parte = resto; parte != ospite.end(); ++parte) {
    if (parte->empty()) continue; // behind a closing separator
    const auto nome = NomeDaOspite(Utf8DaOspite(*parte));
    if (!nome) return std::nullopt;
    dietro.append("\\").append(*nome);
  }
  return dietro;
}

} // namespace

fs::path DiscoDischi::PercorsoOspite(std::string_view percorso) const {
  return PercorsoSuOspite(dischi_, percorso, ricordate_ ? &*ricordate_ : nullptr);
}

// The drives of a Wine prefix are links: a path may come with the link's name or with that of the folder behind it.
std::string DiscoDischi::DaOspite(const fs::path& ospite) const {
  std::error_code guasto;
  const fs::path pieno = fs::absolute(ospite, guasto);
  const bool semplice = !dischi_.empty() && std::find(pieno.begin(), pieno.end(), fs::path("..")) == pieno.end();
  for (char lettera = 'A'; semplice && lettera < 'Z'; ++lettera) {
    const fs::path cartella = CartellaDisco(dischi_, lettera);
    for (const fs::path& inizio : {fs::absolute(cartella, guasto).lexically_normal(), fs::canonical(cartella, guasto)})
      if (const auto dietro = DietroA(inizio, pieno.lexically_normal()))
        return std::string{lettera} + ":" + (dietro->empty() ? "\\" : *dietro);
  }
  return PercorsoDaOspite(ospite);
}

void DiscoDischi::RicordaCartelle(bool si) {
  ricordate_.reset();
  if (si) ricordate_.emplace();
}

// What has just been made, where its folder is remembered.
void DiscoDischi::Annota(const fs::path& voce) {
  if (!ricordate_) return;
  const auto cartella = ricordate_->find(Utf8DaOspite(voce.parent_path()));
  const std::string utf8 = Utf8DaOspite(voce.filename());
  const auto nome = NomeDaOspite(utf8);
  if (cartella != ricordate_->end() && nome) cartella->second.try_emplace(Maiuscolo(*nome), utf8);
}

bool DiscoDischi::Esiste(std::string_view percorso) const {
  return SePossibile([&] { return GenereOspite(PercorsoOspite(percorso)) != GenereFile::Niente; });
}

bool DiscoDischi::EsisteCartella(std::string_view percorso) const {
  return SePossibile([&] { return GenereOspite(PercorsoOspite(percorso)) == GenereFile::Cartella; });
}

bool DiscoDischi::StessoPosto(std::string_view percorso, std::string_view altro) const {
  return SePossibile([&] { return StessoPercorso(PercorsoOspite(percorso), PercorsoOspite(altro)); });
}

std::string DiscoDischi::Leggi(std::string_view percorso) const {
  return LeggiFileOspite(PercorsoOspite(percorso));
}

std::string DiscoDischi::LeggiInizio(std::string_view percorso, std::size_t byte) const {
  return LeggiFileOspite(PercorsoOspite(percorso), byte);
}

void DiscoDischi::Scrivi(std::string_view percorso, std::string_view contenuto) {
  const fs::path ospite = PercorsoOspite(percorso);
  const GenereFile genere = GenereOspite(ospite);
  if (genere != GenereFile::Niente && genere != GenereFile::Regolare) throw Errore(errore::AccessoAlFile);
  ScriviFileOspite(ospite, contenuto, !ricordate_);
  Annota(ospite);
}

Istante DiscoDischi::Modificato(std::string_view percorso) const {
  return ModificatoOspite(PercorsoOspite(percorso));
}

void DiscoDischi::CreaCartella(std::string_view percorso) {
  const fs::path ospite = PercorsoOspite(percorso);
  if (EsisteVoce(ospite)) throw Errore(errore::AccessoAlFile);
  CreaCartellaOspite(ospite);
  Annota(ospite);
}

void DiscoDischi::Copia(std::string_view da, std::string_view a) {
  Scrivi(a, Leggi(da));
}

void DiscoDischi::Elimina(std::string_view percorso) {
  const fs::path ospite = PercorsoOspite(percorso);
  if (!EsisteVoce(ospite)) throw Errore(errore::FileNonTrovato);
  EliminaOspite(ospite);
}

std::vector<std::string> DiscoDischi::Elenca(std::string_view cartella, std::string_view estensione) const {
  std::vector<std::pair<std::string, std::string>> nomi; // upper-cased name, name
  for (const std::string& utf8 : FileDellaCartella(PercorsoOspite(cartella))) {
    const auto nome = NomeDaOspite(utf8);
    if (nome && FinisceConSenzaCaso(*nome, estensione)) nomi.emplace_back(Maiuscolo(*nome), *nome);
  }
  std::sort(nomi.begin(), nomi.end());
  std::vector<std::string> elenco;
  elenco.reserve(nomi.size());
  for (auto& [chiave, nome] : nomi) elenco.push_back(std::move(nome));
  return elenco;
}

} // namespace lirmeto
