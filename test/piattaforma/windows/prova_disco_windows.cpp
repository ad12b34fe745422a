#include <piattaforma/banco_disco.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/windows/win32.h>

#include <base/testo.h>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

// The drives of the machine as they are.
class ProvaUnita : public testing::Test {
protected:
  ProvaUnita() { ::SetEnvironmentVariableW(L"LIRMETO_DISCHI", nullptr); }

  [[nodiscard]] std::string Detto(const std::string& nome) const {
    return PercorsoDaOspite(cartella.Radice()) + "\\" + nome;
  }

  CartellaProvvisoria cartella;
  DiscoDischi disco{fs::path()};
};

} // namespace

TEST_F(ProvaUnita, IPercorsiSonoComeSono) {
  const std::pair<std::string, std::wstring> casi[] = {
      {"C:\\Ada\\x.dat", L"C:\\Ada\\x.dat"},
      {"c:/Ada//.\\x.dat", L"C:\\Ada\\x.dat"},
      {"D:", L"D:\\"},
      {"Z:\\x", L"Z:\\x"},
      {"\\\\server\\Atti 2024\\x.dat", L"\\\\server\\Atti 2024\\x.dat"},
      {"\\\\?\\E:\\x", L"E:\\x"},
      {"C:\\perizi\xE0. .\\\x80.dat ", L"C:\\perizi\u00E0\\\u20AC.dat"},
  };
  for (const auto& [detto, ospite] : casi) EXPECT_EQ(disco.PercorsoOspite(detto).native(), ospite) << detto;
}

TEST_F(ProvaUnita, RifiutaCioCheWindowsTieneOVieta) {
  for (const char* nome : {"NUL", "con.txt", "Com1", "lpt9.x.y", "AUX .dat", "a?b", "a*b", "a\"b", "a<b", "a>b", "a|b",
                           "a\tb", "...", "x\\nul\\y"})
    for (const std::string& prima : {std::string("C:\\"), std::string("\\\\server\\atti\\")}) {
      EXPECT_EQ(NumeroDi([&] { disco.Scrivi(prima + nome, "x"); }), 52) << prima << nome;
      EXPECT_FALSE(disco.Esiste(prima + nome));
    }
  for (const char* nome : {"com", "com10", "nulla", "console.txt", "lpt0"})
    EXPECT_NO_THROW((void)disco.PercorsoOspite(std::string("C:\\") + nome)) << nome;
  for (const char* percorso : {"\\\\server", "\\\\server\\a\\..\\b", "\\\\?\\server\\x", "\\x"})
    EXPECT_EQ(NumeroDi([&] { (void)disco.Leggi(percorso); }), 52) << percorso;
}

TEST_F(ProvaUnita, UnNomeCheNonStaNellAlfabetoEDetto) {
  EXPECT_EQ(PercorsoDaOspite(L"C:\\perizi\u00E0\\.\\b\\..\\x.dat"), "C:\\perizi\xE0\\x.dat");
  EXPECT_EQ(PercorsoDaOspite(L"C:/Ada/"), "C:\\Ada");
  EXPECT_EQ(PercorsoDaOspite(L"d:\\"), "D:\\");
  EXPECT_EQ(PercorsoDaOspite(L"\\\\?\\C:\\Ada\\x"), "C:\\Ada\\x");
  EXPECT_EQ(PercorsoDaOspite(L"\\\\server\\Atti\\x"), "\\\\server\\Atti\\x");
  EXPECT_EQ(PercorsoDaOspite(L"\\\\?\\UNC\\server\\Atti\\x"), "\\\\server\\Atti\\x");
  try {
    (void)PercorsoDaOspite(L"C:\\Ada\\\u65E5.dat");
    ADD_FAILURE();
  } catch (const Errore& errore) {
    EXPECT_EQ(errore.Numero(), 52);
    EXPECT_NE(errore.Descrizione().find("C:\\Ada\\?.dat"), std::string::npos) << errore.Descrizione();
  }
  const fs::path strano = cartella.Radice() / L"\u65E5.emp";
  ScriviFileOspite(strano, "x");
  cartella.Metti("A.EMP", "x");
  EXPECT_EQ(disco.Elenca(PercorsoDaOspite(cartella.Radice()), ".emp"), std::vector<std::string>{"A.EMP"});
}

TEST_F(ProvaUnita, AccantoADischiDiProvaLeUnitaVereHannoIlSegno) {
  ::SetEnvironmentVariableW(L"LIRMETO_DISCHI", cartella.Radice().c_str());
  EXPECT_EQ(PercorsoDaOspite(L"C:\\x.dat"), "\\\\?\\C:\\x.dat");
  EXPECT_EQ(PercorsoDaOspite(L"Z:\\x.dat"), "Z:\\x.dat");
  cartella.Metti("c/x.dat", "di prova");
  const DiscoDischi diProva(cartella.Radice());
  EXPECT_EQ(diProva.Leggi("C:\\X.DAT"), "di prova");
  EXPECT_EQ(diProva.Leggi(PercorsoDaOspite(cartella.Radice() / "c" / "x.dat")), "di prova");
  ::SetEnvironmentVariableW(L"LIRMETO_DISCHI", nullptr);
}

TEST_F(ProvaUnita, PercorsiPiuLunghiDiUnTempo) {
  std::string percorso = PercorsoDaOspite(cartella.Radice());
  for (int livello = 0; livello < 6; ++livello) {
    percorso += "\\" + std::string(60, static_cast<char>('a' + livello));
    disco.CreaCartella(percorso);
    EXPECT_TRUE(disco.EsisteCartella(percorso));
  }
  const std::string file = percorso + "\\Atto.DAT";
  disco.Scrivi(file, "uno");
  disco.Scrivi(Maiuscolo(file), "due");
  EXPECT_EQ(disco.Leggi(file), "due");
  EXPECT_EQ(disco.Elenca(percorso, ""), std::vector<std::string>{"Atto.DAT"}) << "spelled as before, nothing beside it";
  EXPECT_TRUE(disco.StessoPosto(file, Maiuscolo(file)));
  EXPECT_GT(disco.Modificato(file).data.anno, 2000);
  disco.Elimina(file);
  EXPECT_FALSE(disco.Esiste(file));
  EXPECT_EQ(NumeroDi([&] { disco.Scrivi(percorso + "\\" + std::string(300, 'x'), "x"); }), 52);
}

TEST_F(ProvaUnita, IlFileDiUnAltroProgrammaRestaComera) {
  const auto file = cartella.Metti("x.dat", "vecchio");
  {
    const Maniglia tenuto(
        ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(NumeroDi([&] { disco.Scrivi(Detto("x.dat"), "nuovo"); }), 70) << "it is open elsewhere";
    EXPECT_EQ(NumeroDi([&] { disco.Elimina(Detto("x.dat")); }), 70);
  }
  EXPECT_EQ(disco.Leggi(Detto("x.dat")), "vecchio");
  EXPECT_EQ(disco.Elenca(PercorsoDaOspite(cartella.Radice()), "").size(), 1U);
  disco.Scrivi(Detto("x.dat"), "nuovo");
  EXPECT_EQ(disco.Leggi(Detto("x.dat")), "nuovo");
}

} // namespace lirmeto::prova
