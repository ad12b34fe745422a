#include <piattaforma/linux/collegamenti_desktop.h>

#include <piattaforma/cartelle_utente.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/linux/cartelle_xdg.h>
#include <piattaforma/linux/errori_ospite.h>
#include <piattaforma/processi_ospite.h>

#include <base/testo.h>

#include <algorithm>
#include <system_error>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// The text with a backslash before each of these letters.
std::string ConBarre(std::string_view testo, std::string_view lettere) {
  std::string protetto;
  for (const char lettera : testo) {
    if (lettere.find(lettera) != lettere.npos) protetto += '\\';
    protetto += lettera;
  }
  return protetto;
}

// A value of a .desktop file.
std::string Valore(std::string_view testo) {
  return Sostituisci(Sostituisci(ConBarre(testo, "\\"), "\n", "\\n"), "\r", "\\r");
}

// One word of a command line, before it becomes a value.
std::string Parola(std::string_view testo) {
  return "\"" + Sostituisci(ConBarre(testo, "\"`$\\"), "%", "%%") + "\"";
}

std::string Comando(const CollegamentoOspite& collegamento) {
  const bool perWindows = LeggiFileOspite(collegamento.programma, 2) == "MZ";
  return "env " + Parola("LIRMETO_DISCHI=" + collegamento.dischi.string()) + (perWindows ? " wine " : " ") +
         Parola(collegamento.programma.string());
}

std::string TestoCollegamento(const CollegamentoOspite& collegamento) {
  return "[Desktop Entry]\nVersion=1.0\nType=Application\nName=" + Valore(collegamento.nome) +
         "\nExec=" + Valore(Comando(collegamento)) + "\nPath=" + Valore(collegamento.programma.parent_path().string()) +
         "\nTerminal=false\nCategories=Office;\n";
}

std::string UserDirs() {
  const fs::path file = CartellaConfigurazione() / "user-dirs.dirs";
  std::error_code guasto;
  return fs::is_regular_file(file, guasto) ? LeggiFileOspite(file) : std::string{};
}

fs::path CartellaDelPosto(PostoCollegamento posto) {
  switch (posto) {
  case PostoCollegamento::Desktop:
    return CartellaDesktop(UserDirs(), CartellaCasa());
  case PostoCollegamento::MenuProgrammi:
    return CartellaDati() / "applications";
  case PostoCollegamento::AvvioRapido:
    break;
  }
  throw Errore(errore::PercorsoNonTrovato);
}

} // namespace

fs::path CartellaDesktop(std::string_view userDirs, const fs::path& casa) {
  constexpr std::string_view chiave = "XDG_DESKTOP_DIR=\"";
  constexpr std::string_view nellaCasa = "$HOME/";
  const std::string testo = ConFineRiga(userDirs);
  for (std::string_view riga : Dividi(testo, FineRiga)) {
    riga = Taglia(riga);
    if (!riga.starts_with(chiave) || !riga.ends_with('"') || riga.size() <= chiave.size()) continue;
    const std::string valore = Sostituisci(riga.substr(chiave.size(), riga.size() - chiave.size() - 1), "\\", "");
    if (valore.starts_with(nellaCasa)) return casa / valore.substr(nellaCasa.size());
    if (valore.starts_with('/')) return valore;
  }
  return casa / "Desktop";
}

void ScriviCollegamento(const CollegamentoOspite& collegamento) {
  const fs::path cartella = CartellaDelPosto(collegamento.posto);
  std::error_code guasto;
  fs::create_directories(cartella, guasto);
  if (guasto) LanciaErrno(guasto.value(), errore::PercorsoNonTrovato);
  const fs::path file = cartella / (AUtf8(ComponenteSicuro(collegamento.nome)) + ".desktop");
  ScriviFileOspite(file, TestoCollegamento(collegamento));
  // Desktops start only what may be run.
  fs::permissions(file, fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec, fs::perm_options::add,
                  guasto);
  if (guasto) LanciaErrno(guasto.value(), errore::PercorsoNonTrovato);
}

} // namespace lirmeto
