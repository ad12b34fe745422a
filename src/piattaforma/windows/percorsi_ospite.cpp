#include <piattaforma/percorsi_ospite.h>

#include <piattaforma/cartelle_utente.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/windows/win32.h>

#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view DellOspite = "\\\\?\\"; // before a drive of the host where drives of our own have its letter

// The name as the system keeps it, without the blanks and points at its end. Error 52 for one that it cannot keep.
std::wstring NomeOspite(std::string_view nome, std::string_view percorso) {
  const std::size_t fine = nome.find_last_not_of(" .");
  std::wstring largo = Largo(AUtf8(nome.substr(0, fine == nome.npos ? 0 : fine + 1)));
  const bool proibito = std::any_of(largo.begin(), largo.end(), [](wchar_t c) { return c < L' '; }) ||
                        largo.find_first_of(L"<>\"|?*") != largo.npos;
  constexpr std::size_t massimo = 255; // units of UTF-16
  if (largo.empty() || largo.size() > massimo || proibito || NomeDiDispositivo(largo)) LanciaNome(percorso);
  return largo;
}

// "\\server\share" with the components behind it.
fs::path Condiviso(std::string_view percorso) {
  constexpr std::size_t serverEParte = 2;
  const auto componenti = Componenti(percorso);
  if (componenti.size() < serverEParte) LanciaNome(percorso);
  std::wstring ospite = L"\\";
  for (const std::string_view componente : componenti) ospite += L'\\' + NomeOspite(componente, percorso);
  return ospite;
}

fs::path RadiceUnita(char lettera) {
  return std::wstring{static_cast<wchar_t>(lettera), L':', L'\\'};
}

bool Barra(char lettera) {
  return lettera == '\\' || lettera == '/';
}

// Where a letter stands for a folder of our own, the host's drive is said with the mark.
std::string Unita(wchar_t lettera) {
  const bool nostra = lettera != L'Z' && VariabileAmbiente("LIRMETO_DISCHI").has_value();
  return (nostra ? std::string(DellOspite) : std::string()) + static_cast<char>(lettera) + ":";
}

// What a full path begins with, as the logic says it, and how much of it that is.
std::pair<std::string, std::size_t> Inizio(const std::wstring& pieno) {
  if (pieno.starts_with(L"\\\\") && !pieno.starts_with(L"\\\\.\\")) return {"\\", 2};
  if (pieno.size() < 2 || pieno[1] != L':') LanciaNome(DaUtf8(Stretto(pieno)));
  return {Unita(static_cast<wchar_t>(::towupper(pieno[0]))), 2};
}

} // namespace

fs::path OspiteDaUtf8(std::string_view utf8) {
  return Largo(utf8);
}

std::string Utf8DaOspite(const fs::path& ospite) {
  return Stretto(ospite.native());
}

fs::path PercorsoSuOspite(const fs::path& dischi, std::string_view percorso, CartelleRicordate* /*ricordate*/) {
  const bool ospite = percorso.starts_with(DellOspite);
  if (!ospite && percorso.size() > 1 && Barra(percorso[0]) && Barra(percorso[1])) return Condiviso(percorso);
  const PercorsoDiviso diviso = DividiPercorso(ospite ? percorso.substr(DellOspite.size()) : percorso);
  fs::path cartella = ospite || dischi.empty() || diviso.lettera == 'Z'
                          ? RadiceUnita(diviso.lettera)
                          : PercorsoPieno(CartellaDisco(dischi, diviso.lettera));
  for (const std::string_view componente : diviso.componenti) cartella /= NomeOspite(componente, percorso);
  return cartella;
}

// The system tells no spellings apart.
bool StessoPercorso(const fs::path& primo, const fs::path& secondo) {
  return ::CompareStringOrdinal(primo.c_str(), -1, secondo.c_str(), -1, TRUE) == CSTR_EQUAL;
}

std::string PercorsoDaOspite(const fs::path& ospite) {
  const std::wstring pieno = PercorsoPieno(ospite).native();
  auto [percorso, letti] = Inizio(pieno);
  const std::size_t radice = percorso.size();
  for (const fs::path& parte : fs::path(pieno.substr(letti))) {
    if (parte.empty() || parte == L"\\" || parte == L"/") continue;
    const auto nome = NomeDaOspite(Stretto(parte.native()));
    if (!nome) LanciaNome(DaUtf8(Stretto(pieno)));
    percorso += "\\" + *nome;
  }
  return percorso.size() == radice ? percorso + "\\" : percorso;
}

} // namespace lirmeto
