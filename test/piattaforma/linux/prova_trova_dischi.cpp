#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/trova_dischi.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

// A machine that knows nothing, with a home of its own; what the environment
// was comes back at the end.
class ProvaTrovaDischi : public testing::Test {
protected:
  ProvaTrovaDischi() {
    for (const char* nome : {"LIRMETO_DISCHI", "WINEPREFIX", "XDG_DATA_HOME", "HOME"}) {
      const char* valore = std::getenv(nome);
      prima_.emplace_back(nome, valore == nullptr ? "" : valore);
      ::unsetenv(nome);
    }
    ::setenv("HOME", (cartella.Radice() / "casa").c_str(), 1);
  }
  ~ProvaTrovaDischi() override {
    for (const auto& [nome, valore] : prima_) {
      if (valore.empty())
        ::unsetenv(nome.c_str());
      else
        ::setenv(nome.c_str(), valore.c_str(), 1);
    }
  }

  // A Wine prefix, its C: being a link as Wine makes it; the answer is its
  // drives.
  [[nodiscard]] fs::path MettiPrefisso(const fs::path& nome) const {
    cartella.Metti(nome / "drive_c/windows/Pregeo.ini", "x");
    fs::create_directories(cartella.Radice() / nome / "dosdevices");
    fs::create_symlink("../drive_c", cartella.Radice() / nome / "dosdevices/c:");
    return cartella.Radice() / nome / "dosdevices";
  }

  CartellaProvvisoria cartella;

private:
  std::vector<std::pair<std::string, std::string>> prima_;
};

} // namespace

TEST_F(ProvaTrovaDischi, NellOrdineDettoDalPiuForte) {
  EXPECT_EQ(TrovaDischi({}), cartella.Radice() / "casa/.local/share/lirmeto/dischi");
  EXPECT_TRUE(fs::is_directory(cartella.Radice() / "casa/.local/share/lirmeto/dischi/c"));
  ::setenv("XDG_DATA_HOME", (cartella.Radice() / "dati").c_str(), 1);
  EXPECT_EQ(TrovaDischi({}), cartella.Radice() / "dati/lirmeto/dischi");
  const auto casa = MettiPrefisso("casa/.wine");
  EXPECT_EQ(TrovaDischi({}), casa);
  const auto altro = MettiPrefisso("prefisso");
  ::setenv("WINEPREFIX", (cartella.Radice() / "prefisso").c_str(), 1);
  EXPECT_EQ(TrovaDischi({}), altro);
  ::setenv("LIRMETO_DISCHI", "/altri/dischi", 1);
  EXPECT_EQ(TrovaDischi({}), "/altri/dischi");
  EXPECT_EQ(TrovaDischi("dischi"), "dischi");
}

TEST_F(ProvaTrovaDischi, UnPrefissoSenzaPregeoNonConta) {
  const auto dispositivi = MettiPrefisso("casa/.wine");
  fs::remove(cartella.Radice() / "casa/.wine/drive_c/windows/Pregeo.ini");
  ::setenv("XDG_DATA_HOME", "relativa", 1);
  EXPECT_EQ(TrovaDischi({}), cartella.Radice() / "casa/.local/share/lirmeto/dischi");
}

} // namespace lirmeto::prova
