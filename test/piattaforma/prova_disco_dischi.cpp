#include <piattaforma/banco_disco.h>

#include <base/testo.h>

namespace lirmeto::prova {

namespace fs = std::filesystem;

TEST_F(ProvaDisco, TrovaSenzaGuardareLeMaiuscole) {
  cartella.Metti("c/Pregeo/Estratti/X1.emp", "estratto");
  cartella.Metti("c/perizi\xC3\xA0 \xE2\x82\xAC.dat", "accenti");
  cartella.Metti("D/solo.txt", "disco maiuscolo");
  const struct {
    std::string percorso;
    std::string_view contenuto;
  } casi[] = {
      {"C:\\Pregeo\\Estratti\\X1.emp", "estratto"},
      {"c:\\PREGEO\\ESTRATTI\\x1.EMP", "estratto"},
      {"C:/pregeo//.\\estratti/X1.EMP", "estratto"},
      {ConSegno("C:\\PERIZI", "À"_w, ConSegno(" ", "€"_w, ".DAT")), "accenti"},
      {"d:\\SOLO.TXT", "disco maiuscolo"},
      {PercorsoDaOspite(cartella.Radice() / "D/solo.txt"), "disco maiuscolo"},
      {Maiuscolo(PercorsoDaOspite(cartella.Radice() / "D/solo.txt")), "disco maiuscolo"},
  };
  for (const auto& [percorso, contenuto] : casi) {
    EXPECT_TRUE(disco.Esiste(percorso)) << percorso;
    EXPECT_EQ(disco.Leggi(percorso), contenuto) << percorso;
  }
}

TEST_F(ProvaDisco, RifiutaIPercorsiImpossibili) {
  cartella.Metti("c/x.dat", "x");
  for (const std::string& percorso :
       {std::string(), std::string("x.dat"), std::string("\\x.dat"), std::string("C"), std::string("C:x.dat"),
        std::string("1:\\x.dat"), std::string("C:\\..\\c\\x.dat"), std::string("C:\\a\\.."), std::string("C:\\x.dat:s"),
        std::string("C:\\C:\\x.dat"), std::string("C:\\x\0.dat", 9), std::string("\\\\host\\.."),
        std::string("\\\\")}) {
    EXPECT_FALSE(disco.Esiste(percorso)) << percorso;
    EXPECT_FALSE(disco.EsisteCartella(percorso)) << percorso;
    EXPECT_EQ(NumeroDi([&] { (void)disco.Leggi(percorso); }), 52) << percorso;
    EXPECT_EQ(NumeroDi([&] { disco.Scrivi(percorso, "y"); }), 52) << percorso;
    EXPECT_EQ(NumeroDi([&] { (void)disco.Elenca(percorso, ""); }), 52) << percorso;
  }
}

TEST_F(ProvaDisco, DiceIlNumeroGiusto) {
  cartella.Metti("c/x.dat", "x");
  cartella.Metti("c/sub/y.dat", "y");
  const auto protetto = cartella.Metti("c/protetto.dat", "prima");
  fs::permissions(protetto, fs::perms::owner_read);
  const std::string lungo = "C:\\" + std::string(300, 'a');
  const struct {
    const char* caso;
    int numero;
    std::function<void()> lavoro;
  } casi[] = {
      {"read missing", 53, [&] { (void)disco.Leggi("C:\\manca.dat"); }},
      {"read missing folder", 53, [&] { (void)disco.Leggi("C:\\manca\\x.dat"); }},
      {"read missing drive", 53, [&] { (void)disco.Leggi("Q:\\x.dat"); }},
      {"read through a file", 53, [&] { (void)disco.Leggi("C:\\x.dat\\x.dat"); }},
      {"read folder", 75, [&] { (void)disco.Leggi("C:\\sub"); }},
      {"read root", 75, [&] { (void)disco.LeggiInizio("C:", 1); }},
      {"read long name", 52, [&] { (void)disco.Leggi(lungo); }},
      {"write missing folder", 76, [&] { disco.Scrivi("C:\\manca\\x.dat", "x"); }},
      {"write missing drive", 76, [&] { disco.Scrivi("Q:\\x.dat", "x"); }},
      {"write through a file", 76, [&] { disco.Scrivi("C:\\x.dat\\x.dat", "x"); }},
      {"write folder", 75, [&] { disco.Scrivi("C:\\SUB", "x"); }},
      {"write root", 75, [&] { disco.Scrivi("C:\\", "x"); }},
      {"write read-only", 75, [&] { disco.Scrivi("C:\\PROTETTO.DAT", "x"); }},
      {"write long name", 52, [&] { disco.Scrivi(lungo, "x"); }},
      {"time of missing", 53, [&] { (void)disco.Modificato("C:\\manca.dat"); }},
      {"make existing", 75, [&] { disco.CreaCartella("C:\\SUB"); }},
      {"make over a file", 75, [&] { disco.CreaCartella("C:\\X.dat"); }},
      {"make without parent", 76, [&] { disco.CreaCartella("C:\\manca\\sub"); }},
      {"copy missing", 53, [&] { disco.Copia("C:\\manca.dat", "C:\\x.dat"); }},
      {"copy over read-only", 75, [&] { disco.Copia("C:\\x.dat", "C:\\protetto.dat"); }},
      {"delete missing", 53, [&] { disco.Elimina("C:\\manca.dat"); }},
      {"delete folder", 75, [&] { disco.Elimina("C:\\sub"); }},
      {"delete read-only", 75, [&] { disco.Elimina("C:\\protetto.dat"); }},
  };
  for (const auto& [caso, numero, lavoro] : casi) EXPECT_EQ(NumeroDi(lavoro), numero) << caso;
  EXPECT_EQ(disco.Leggi("C:\\x.dat"), "x");
  EXPECT_EQ(disco.Leggi("C:\\protetto.dat"), "prima");
}

TEST_F(ProvaDisco, ScriveSulPostoByteEsatti) {
  std::string byte;
  for (int i = 0; i < 256 * 5000; ++i) byte += static_cast<char>(i * 7 + i / 256);
  const auto file = cartella.Metti("c/x.dat", std::string(2 * byte.size(), 'x'));
  fs::create_hard_link(file, cartella.Radice() / "c/altro.dat");
  disco.Scrivi("C:\\X.DAT", byte);
  EXPECT_EQ(disco.Leggi("C:\\altro.dat"), byte) << "the same file, not one in its place";
  EXPECT_EQ(disco.LeggiInizio("C:\\x.dat", 300000), byte.substr(0, 300000));
  EXPECT_EQ(disco.LeggiInizio("C:\\x.dat", 0), "");
  disco.Copia("C:\\x.dat", "C:\\copia.dat");
  EXPECT_EQ(disco.Leggi("C:\\copia.dat"), byte);
  disco.Scrivi("C:\\x.dat", "");
  EXPECT_EQ(disco.Leggi("C:\\x.dat"), "");
}

TEST_F(ProvaDisco, ElencaIFileInOrdine) {
  for (const char* nome : {"c/e/b.EMP", "c/e/A.emp", "c/e/_.emp", "c/e/\xC3\xA0.emp", "c/e/a.txt",
                           "c/e/\xE6\x97\xA5.emp", "c/e/emp", "c/e/sotto.emp/z"})
    cartella.Metti(nome, "x");
  const std::vector<std::string> attesi = {"A.emp", "b.EMP", "_.emp", "\xE0.emp"};
  EXPECT_EQ(disco.Elenca("c:\\E", ".Emp"), attesi);
  EXPECT_EQ(disco.Elenca("C:\\e\\", "").size(), 6U);
  EXPECT_TRUE(disco.Elenca("C:\\manca", ".EMP").empty());
  EXPECT_TRUE(disco.Elenca("C:\\e\\a.txt", "").empty());
}

TEST_F(ProvaDisco, CreaEdElimina) {
  cartella.Metti("c/x.dat", "x");
  disco.CreaCartella("C:\\Nuova");
  EXPECT_TRUE(disco.EsisteCartella("c:\\NUOVA"));
  EXPECT_FALSE(disco.EsisteCartella("C:\\x.dat"));
  disco.Scrivi("C:\\nuova\\Y.dat", "y");
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "c/Nuova/Y.dat"), "y");
  disco.Elimina("C:\\nuova\\y.DAT");
  EXPECT_FALSE(disco.Esiste("C:\\nuova\\Y.dat"));
}

} // namespace lirmeto::prova
