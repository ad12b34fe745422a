#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/file_ospite.h>

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

int NumeroDi(const std::function<void()>& lavoro) {
  try {
    lavoro();
  } catch (const Errore& errore) {
    return errore.Numero();
  }
  return 0;
}

class ProvaDisco : public testing::Test {
protected:
  ProvaDisco() : disco(cartella.Radice()) {}

  CartellaProvvisoria cartella;
  DiscoDischi disco;
};

std::string ConSegno(std::string_view prima, std::string_view segno, std::string_view dopo) {
  return std::string(prima).append(segno).append(dopo);
}

} // namespace

TEST_F(ProvaDisco, TrovaSenzaGuardareLeMaiuscole) {
  cartella.Metti("c/Pregeo/Estratti/X1.emp", "estratto");
  cartella.Metti("c/perizi\xC3\xA0 \xE2\x82\xAC.dat", "accenti");
  cartella.Metti("D/solo.txt", "disco maiuscolo");
  cartella.Metti("e:/dos.txt", "disco di un prefisso");
  cartella.Metti("F:/dos.txt", "disco di un prefisso, maiuscolo");
  const struct {
    std::string percorso;
    std::string_view contenuto;
  } casi[] = {
      {"C:\\Pregeo\\Estratti\\X1.emp", "estratto"},
      {"c:\\PREGEO\\ESTRATTI\\x1.EMP", "estratto"},
      {"C:/pregeo//.\\estratti/X1.EMP", "estratto"},
      {ConSegno("C:\\PERIZI", "À"_w, ConSegno(" ", "€"_w, ".DAT")), "accenti"},
      {"d:\\SOLO.TXT", "disco maiuscolo"},
      {"E:\\Dos.Txt", "disco di un prefisso"},
      {"f:\\DOS.TXT", "disco di un prefisso, maiuscolo"},
      {PercorsoDaOspite(cartella.Radice() / "D/solo.txt"), "disco maiuscolo"},
      {Maiuscolo(PercorsoDaOspite(cartella.Radice() / "D/solo.txt")), "disco maiuscolo"},
  };
  for (const auto& [percorso, contenuto] : casi) {
    EXPECT_TRUE(disco.Esiste(percorso)) << percorso;
    EXPECT_EQ(disco.Leggi(percorso), contenuto) << percorso;
  }
}

TEST_F(ProvaDisco, PreferisceLaGrafiaEsattaPoiLaPrima) {
  for (const char* nome : {"c/abc.dat", "c/ABC.dat", "c/Abc.dat"}) cartella.Metti(nome, nome);
  EXPECT_EQ(disco.Leggi("C:\\abc.dat"), "c/abc.dat");
  EXPECT_EQ(disco.Leggi("C:\\Abc.dat"), "c/Abc.dat");
  EXPECT_EQ(disco.Leggi("C:\\aBC.DAT"), "c/ABC.dat");
  disco.Scrivi("C:\\AbC.dAt", "nuovo");
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "c/ABC.dat"), "nuovo");
  EXPECT_EQ(disco.Elenca("C:\\", "").size(), 3U);
  disco.Elimina("C:\\ABC.dat");
  EXPECT_EQ(disco.Leggi("C:\\aBC.DAT"), "c/Abc.dat") << "nothing is remembered between two calls";
}

TEST_F(ProvaDisco, DiceSeLeMaiuscolePortanoNelloStessoPosto) {
  cartella.Metti("c/docs/a.dat", "a");
  cartella.Metti("c/due/a.dat", "a");
  cartella.Metti("c/DUE/a.dat", "a");
  const struct {
    std::string percorso;
    bool stesso;
  } casi[] = {{"C:\\docs\\a.dat", true},     {"C:\\docs\\nuovo.txt", true}, {"C:\\due\\a.dat", false},
              {"C:\\due\\nuovo.txt", false}, {"C:\\DUE\\a.dat", true},      {"C:\\a:b", false}};
  for (const auto& [percorso, stesso] : casi)
    EXPECT_EQ(disco.StessoPosto(percorso, Maiuscolo(percorso)), stesso) << percorso;
}

TEST_F(ProvaDisco, RifiutaIPercorsiImpossibili) {
  cartella.Metti("c/x.dat", "x");
  for (const std::string& percorso :
       {std::string(), std::string("x.dat"), std::string("\\x.dat"), std::string("C"), std::string("C:x.dat"),
        std::string("1:\\x.dat"), std::string("C:\\..\\c\\x.dat"), std::string("C:\\a\\.."), std::string("C:\\x.dat:s"),
        std::string("C:\\C:\\x.dat"), std::string("C:\\x\0.dat", 9), std::string("\\\\host\\x.dat")}) {
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
  ::chmod(protetto.c_str(), 0444);
  ASSERT_EQ(::mkfifo((cartella.Radice() / "c/tubo").c_str(), 0666), 0);
  fs::create_symlink("giro", cartella.Radice() / "c/giro");
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
      {"read pipe", 75, [&] { (void)disco.Leggi("C:\\tubo"); }},
      {"read device", 75, [&] { (void)disco.Leggi("Z:\\dev\\zero"); }},
      {"read loop", 75, [&] { (void)disco.Leggi("C:\\giro"); }},
      {"read long name", 52, [&] { (void)disco.Leggi(lungo); }},
      {"write missing folder", 76, [&] { disco.Scrivi("C:\\manca\\x.dat", "x"); }},
      {"write missing drive", 76, [&] { disco.Scrivi("Q:\\x.dat", "x"); }},
      {"write through a file", 76, [&] { disco.Scrivi("C:\\x.dat\\x.dat", "x"); }},
      {"write folder", 75, [&] { disco.Scrivi("C:\\SUB", "x"); }},
      {"write root", 75, [&] { disco.Scrivi("C:\\", "x"); }},
      {"write pipe", 75, [&] { disco.Scrivi("C:\\tubo", "x"); }},
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

TEST_F(ProvaDisco, ChiNonPuoLeggereOScrivereHa70) {
  if (::geteuid() == 0) GTEST_SKIP() << "nothing is forbidden to root";
  ::chmod(cartella.Metti("c/chiuso.dat", "x").c_str(), 0200);
  EXPECT_EQ(NumeroDi([&] { (void)disco.Leggi("C:\\chiuso.dat"); }), 70);
  ::chmod(cartella.Metti("c/mio.dat", "vecchio").c_str(), 0644);
  ::chmod((cartella.Radice() / "c").c_str(), 0555);
  EXPECT_EQ(NumeroDi([&] { disco.Scrivi("C:\\nuovo.dat", "x"); }), 70);
  EXPECT_EQ(NumeroDi([&] { disco.CreaCartella("C:\\nuova"); }), 70);
  EXPECT_EQ(NumeroDi([&] { disco.Elimina("C:\\chiuso.dat"); }), 70);
  ::setenv("XDG_DATA_HOME", cartella.Radice().c_str(), 1);
  disco.Scrivi("C:\\mio.dat", "nuovo"); // in place: nothing can be made beside it
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(disco.Leggi("C:\\mio.dat"), "nuovo");
  EXPECT_TRUE(fs::is_empty(cartella.Radice() / "lirmeto/copie"));
  ::chmod((cartella.Radice() / "c").c_str(), 0755);
}

// A disk that takes so many bytes of a file and no more.
class DiscoCorto {
public:
  explicit DiscoCorto(rlim_t byte) : segnale_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &prima_);
    const struct rlimit poco { byte, prima_.rlim_max };
    ::setrlimit(RLIMIT_FSIZE, &poco);
  }
  DiscoCorto(const DiscoCorto&) = delete;
  DiscoCorto& operator=(const DiscoCorto&) = delete;
  ~DiscoCorto() {
    ::setrlimit(RLIMIT_FSIZE, &prima_);
    std::signal(SIGXFSZ, segnale_);
  }

private:
  struct rlimit prima_ {};
  void (*segnale_)(int);
};

TEST_F(ProvaDisco, UnGuastoAMetaLasciaIlVecchio) {
  const std::string vecchio(900, 'v');
  cartella.Metti("c/x.dat", vecchio);
  fs::create_hard_link(cartella.Metti("c/due.dat", vecchio), cartella.Radice() / "c/nomi.dat"); // written in place
  {
    const DiscoCorto corto(1000);
    for (const char* file : {"C:\\x.dat", "C:\\due.dat", "C:\\nuovo.dat"})
      EXPECT_EQ(NumeroDi([&] { disco.Scrivi(file, std::string(1001, 'n')); }), 61) << file;
    EXPECT_EQ(NumeroDi([&] { disco.Scrivi("C:\\y.dat", std::string(1000, 'n')); }), 0);
  }
  for (const char* file : {"C:\\x.dat", "C:\\due.dat", "C:\\nomi.dat"}) EXPECT_EQ(disco.Leggi(file), vecchio) << file;
  EXPECT_EQ(disco.Elenca("C:\\", ""), (std::vector<std::string>{"due.dat", "nomi.dat", "x.dat", "y.dat"}));
}

TEST_F(ProvaDisco, UnNuovoFilePrendeIlPostoColSuoNomeEISuoiDiritti) {
  const auto file = cartella.Metti("c/vero.dat", "il vecchio contenuto");
  ::chmod(file.c_str(), 0640);
  struct stat prima {};
  ASSERT_EQ(::stat(file.c_str(), &prima), 0);
  fs::create_symlink("vero.dat", cartella.Radice() / "c/mezzo.dat");
  fs::create_symlink("mezzo.dat", cartella.Radice() / "c/x.dat");
  fs::create_symlink("manca.dat", cartella.Radice() / "c/vuoto.dat");
  disco.Scrivi("C:\\X.dat", "nuovo");
  disco.Scrivi("C:\\vuoto.dat", "nato");
  EXPECT_EQ(disco.Leggi("C:\\vero.dat"), "nuovo") << "what the links lead to, not the links";
  EXPECT_EQ(disco.Leggi("C:\\manca.dat"), "nato");
  for (const char* collegamento : {"c/x.dat", "c/mezzo.dat", "c/vuoto.dat"})
    EXPECT_TRUE(fs::is_symlink(cartella.Radice() / collegamento));
  struct stat dopo {};
  ASSERT_EQ(::stat(file.c_str(), &dopo), 0);
  EXPECT_NE(dopo.st_ino, prima.st_ino) << "one in its place, not the same file";
  EXPECT_EQ(std::tie(dopo.st_mode, dopo.st_uid, dopo.st_gid), std::tie(prima.st_mode, prima.st_uid, prima.st_gid));
  EXPECT_EQ(disco.Elenca("C:\\", "").size(), 5U) << "nothing is left beside it";
}

TEST_F(ProvaDisco, IlTempoEQuelloDellUltimaScrittura) {
  const auto file = cartella.Metti("c/x.dat", "x");
  const struct timespec allora[2] = {{1709247599, 0}, {1709247599, 0}}; // 29-2-2024, 22:59:59 UTC
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), allora, 0), 0);
  const Istante modificato = disco.Modificato("C:\\x.dat");
  EXPECT_EQ(modificato.data.anno * 100 + modificato.data.mese, 202402 + (modificato.data.giorno == 1 ? 1 : 0));
  EXPECT_EQ(modificato.ora.secondi, 59);
}

TEST(ProvaFileOspite, IlDiscoChePromettePostoENonNeHaE61) {
  EXPECT_EQ(NumeroDi([] { ScriviFileOspite("/dev/full", "x"); }), 61);
  EXPECT_EQ(NumeroDi([] { ScriviFileOspite("/dev/null", "x"); }), 0);
}

TEST_F(ProvaDisco, ScriveSulPostoByteEsatti) {
  std::string byte;
  for (int i = 0; i < 256 * 5000; ++i) byte += static_cast<char>(i * 7 + i / 256);
  const auto file = cartella.Metti("c/x.dat", std::string(2 * byte.size(), 'x'));
  ::chmod(file.c_str(), 0620);
  fs::create_hard_link(file, cartella.Radice() / "c/altro.dat");
  disco.Scrivi("C:\\X.DAT", byte);
  EXPECT_EQ(disco.Leggi("C:\\altro.dat"), byte) << "the same file, not one in its place";
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0620));
  EXPECT_EQ(disco.LeggiInizio("C:\\x.dat", 300000), byte.substr(0, 300000));
  EXPECT_EQ(disco.LeggiInizio("C:\\x.dat", 0), "");
  disco.Copia("C:\\x.dat", "C:\\copia.dat");
  EXPECT_EQ(disco.Leggi("C:\\copia.dat"), byte);
  disco.Scrivi("C:\\x.dat", "");
  EXPECT_EQ(disco.Leggi("C:\\x.dat"), "");
}

TEST_F(ProvaDisco, LeggeAncheChiNonDiceQuantoELungo) {
  EXPECT_EQ(disco.LeggiInizio("Z:\\proc\\self\\status", 5), "Name:");
  EXPECT_NE(disco.Leggi("Z:\\proc\\self\\status").find("\nPid:"), std::string::npos);
}

TEST_F(ProvaDisco, ElencaIFileInOrdine) {
  for (const char* nome :
       {"c/e/b.EMP", "c/e/A.emp", "c/e/_.emp", "c/e/\xC3\xA0.emp", "c/e/a.txt", "c/e/\xE6\x97\xA5.emp",
        "c/e/bad\\name.emp", "c/e/bad\xFF.emp", "c/e/emp", "c/e/sotto.emp/z"})
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

TEST_F(ProvaDisco, PercorsiDellOspite) {
  const struct {
    const char* ospite;
    std::string percorso;
  } casi[] = {
      {"/tmp/Ada/x.dat", "Z:\\tmp\\Ada\\x.dat"},
      {"/tmp//Ada/./x.dat", "Z:\\tmp\\Ada\\x.dat"},
      {"/tmp/Ada/", "Z:\\tmp\\Ada"},
      {"/", "Z:\\"},
      {"/tmp/perizi\xC3\xA0.dat", ConSegno("Z:\\tmp\\perizi", "à"_w, ".dat")},
  };
  for (const auto& [ospite, percorso] : casi) EXPECT_EQ(PercorsoDaOspite(ospite), percorso);
  for (const char* ospite : {"/tmp/\xE6\x97\xA5.dat", "/tmp/a\\b.dat", "/tmp/12:30.dat", "/tmp/rotto\xFF.dat"})
    EXPECT_EQ(NumeroDi([&] { (void)PercorsoDaOspite(ospite); }), 52) << ospite;
  EXPECT_EQ(disco.PercorsoOspite(PercorsoDaOspite("nuovo.dat")), fs::current_path() / "nuovo.dat");
  EXPECT_EQ(disco.PercorsoOspite("C:\\Manca\\x.dat"), cartella.Radice() / "c/Manca/x.dat");
}

TEST_F(ProvaDisco, DueIPuntiDietroUnCollegamentoComeLiIntendeLOspite) {
  const auto file = cartella.Metti("vera/x.dat", "x");
  fs::create_directories(cartella.Radice() / "vera/dentro");
  fs::create_directories(cartella.Radice() / "altrove");
  fs::create_symlink(cartella.Radice() / "vera/dentro", cartella.Radice() / "altrove/collegamento");
  EXPECT_EQ(PercorsoDaOspite(cartella.Radice() / "altrove/collegamento/../x.dat"), PercorsoDaOspite(file));
}

} // namespace lirmeto::prova
