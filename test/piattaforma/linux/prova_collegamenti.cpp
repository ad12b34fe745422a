#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/linux/collegamenti_desktop.h>
#include <piattaforma/linux/processi_linux.h>

#include <base/errore.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

// A user whose folders lie in a folder of the test, with drives that need quoting.
class ProvaCollegamenti : public testing::Test {
protected:
  ProvaCollegamenti() {
    for (const char* nome : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
      const char* valore = std::getenv(nome);
      prima_.emplace_back(nome, valore == nullptr ? "" : valore);
      ::unsetenv(nome);
    }
    ::setenv("HOME", (cartella.Radice() / "casa").c_str(), 1);
  }
  ~ProvaCollegamenti() override {
    for (const auto& [nome, valore] : prima_)
      valore.empty() ? ::unsetenv(nome.c_str()) : ::setenv(nome.c_str(), valore.c_str(), 1);
  }

  int Crea(PostoCollegamento posto, const std::string& nome) {
    try {
      processi.CreaCollegamento({posto, nome, "C:\\pregeo\\exe\\PREGEO.EXE"});
    } catch (const Errore& guasto) {
      return guasto.Numero();
    }
    return 0;
  }

  CartellaProvvisoria cartella;
  DiscoDischi disco{cartella.Radice() / "di $chi"};
  ProcessiLinux processi{disco};

private:
  std::vector<std::pair<std::string, std::string>> prima_;
};

} // namespace

TEST_F(ProvaCollegamenti, FileDesktopNelleCartelleDellUtente) {
  EXPECT_EQ(Crea(PostoCollegamento::Desktop, "P"), errore::FileNonTrovato);
  cartella.Metti("di $chi/c/Pregeo/exe/pregeo", "#!/bin/sh\n");
  cartella.Metti("casa/.config/user-dirs.dirs", "# cartelle\nXDG_DESKTOP_DIR=\"$HOME/Scrivania\"\n");
  ASSERT_EQ(Crea(PostoCollegamento::Desktop, "Collegamento a P/10 \xE0"), 0);
  ASSERT_EQ(Crea(PostoCollegamento::MenuProgrammi, "P"), 0);
  EXPECT_EQ(Crea(PostoCollegamento::AvvioRapido, "P"), errore::PercorsoNonTrovato);
  const fs::path file = cartella.Radice() / "casa/Scrivania/Collegamento a P_10 \xC3\xA0.desktop";
  const std::string radice = cartella.Radice().string();
  EXPECT_EQ(CartellaProvvisoria::Prendi(file),
            "[Desktop Entry]\nVersion=1.0\nType=Application\nName=Collegamento a P/10 \xC3\xA0\nExec=env "
            "\"LIRMETO_DISCHI=" +
                radice + "/di \\\\$chi\" \"" + radice + "/di \\\\$chi/c/Pregeo/exe/pregeo\"\nPath=" + radice +
                "/di $chi/c/Pregeo/exe\nTerminal=false\nCategories=Office;\n");
  EXPECT_NE(fs::status(file).permissions() & fs::perms::owner_exec, fs::perms::none);
  EXPECT_TRUE(fs::exists(cartella.Radice() / "casa/.local/share/applications/P.desktop"));
}

TEST_F(ProvaCollegamenti, UnProgrammaDiWindowsPassaDaWine) {
  cartella.Metti("di $chi/c/pregeo/exe/Pregeo.EXE", "MZ");
  ASSERT_EQ(Crea(PostoCollegamento::Desktop, "P"), 0);
  EXPECT_NE(CartellaProvvisoria::Prendi(cartella.Radice() / "casa/Desktop/P.desktop").find("\" wine \"/"),
            std::string::npos);
  cartella.Metti("occupata", "x");
  ::setenv("XDG_DATA_HOME", (cartella.Radice() / "occupata").c_str(), 1);
  EXPECT_NE(Crea(PostoCollegamento::MenuProgrammi, "P"), 0);
}

TEST(ProvaCartellaDesktop, ComeLaDiceIlFile) {
  const std::pair<std::string, std::string> casi[] = {
      {"", "/c/Desktop"},
      {"XDG_DESKTOP_DIR=\"$HOME/Scrivania\"", "/c/Scrivania"},
      {"#XDG_DESKTOP_DIR=\"$HOME/No\"\r\n  XDG_DESKTOP_DIR=\"/mnt/un\\\"a\"\n", "/mnt/un\"a"},
      {"XDG_DESKTOP_DIR=\"relativa\"\nXDG_DESKTOP_DIR=\"", "/c/Desktop"},
  };
  for (const auto& [testo, cartella] : casi) EXPECT_EQ(CartellaDesktop(testo, "/c"), cartella) << testo;
}

} // namespace lirmeto::prova
