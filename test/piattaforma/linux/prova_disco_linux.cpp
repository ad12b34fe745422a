#include <piattaforma/banco_disco.h>
#include <piattaforma/file_ospite.h>

#include <base/testo.h>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace lirmeto::prova {

namespace fs = std::filesystem;

TEST_F(ProvaDisco, UnDiscoDiUnPrefissoHaIDuePunti) {
  cartella.Metti("e:/dos.txt", "minuscolo");
  cartella.Metti("F:/dos.txt", "maiuscolo");
  EXPECT_EQ(disco.Leggi("E:\\Dos.Txt"), "minuscolo");
  EXPECT_EQ(disco.Leggi("f:\\DOS.TXT"), "maiuscolo");
  EXPECT_EQ(NumeroDi([&] { (void)disco.Leggi("\\\\host\\x.dat"); }), 52) << "shares are mounted here";
}

// Many new names in one folder: what was made meanwhile is found, in any case, and what others made is seen afterwards.
TEST_F(ProvaDisco, RicordaLeCartelleFinoAQuandoGliSiDice) {
  for (const char* nome : {"c/abc.dat", "c/ABC.dat"}) cartella.Metti(nome, nome);
  disco.RicordaCartelle(true);
  EXPECT_EQ(disco.Leggi("C:\\aBC.DAT"), "c/ABC.dat");
  disco.CreaCartella("C:\\Dentro");
  disco.Scrivi("C:\\dentro\\Nuovo.txt", "1");
  disco.Scrivi("C:\\DENTRO\\NUOVO.TXT", "2");
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "c/Dentro/Nuovo.txt"), "2");
  disco.Elimina("C:\\DENTRO\\NUOVO.TXT");
  EXPECT_FALSE(disco.Esiste("C:\\dentro\\nuovo.txt"));
  cartella.Metti("c/Dentro/altri.txt", "3");
  EXPECT_FALSE(disco.Esiste("C:\\dentro\\ALTRI.TXT"));
  disco.RicordaCartelle(false);
  EXPECT_TRUE(disco.Esiste("C:\\dentro\\ALTRI.TXT"));
}

TEST_F(ProvaDisco, TubiDispositiviEGiriNonSonoFile) {
  cartella.Metti("c/x.dat", "x");
  ASSERT_EQ(::mkfifo((cartella.Radice() / "c/tubo").c_str(), 0666), 0);
  fs::create_symlink("giro", cartella.Radice() / "c/giro");
  const struct {
    const char* caso;
    std::function<void()> lavoro;
  } casi[] = {
      {"read pipe", [&] { (void)disco.Leggi("C:\\tubo"); }},
      {"read device", [&] { (void)disco.Leggi("Z:\\dev\\zero"); }},
      {"read loop", [&] { (void)disco.Leggi("C:\\giro"); }},
      {"write pipe", [&] { disco.Scrivi("C:\\tubo", "x"); }},
  };
  for (const auto& [caso, lavoro] : casi) EXPECT_EQ(NumeroDi(lavoro), 75) << caso;
}

TEST_F(ProvaDisco, NomiCheWindowsNonPuoDireNonCiSono) {
  for (const char* nome : {"c/e/bad\\name.emp", "c/e/bad\xFF.emp", "c/e/x.emp"}) cartella.Metti(nome, "x");
  EXPECT_EQ(disco.Elenca("C:\\e", ""), std::vector<std::string>{"x.emp"});
}

TEST_F(ProvaDisco, ScriveSulPostoColDirittiDiPrima) {
  const auto file = cartella.Metti("c/x.dat", "x");
  ::chmod(file.c_str(), 0620);
  fs::create_hard_link(file, cartella.Radice() / "c/altro.dat");
  disco.Scrivi("C:\\X.DAT", "nuovo");
  EXPECT_EQ(disco.Leggi("C:\\altro.dat"), "nuovo") << "the same file, not one in its place";
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0620));
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

TEST_F(ProvaDisco, LeggeAncheChiNonDiceQuantoELungo) {
  EXPECT_EQ(disco.LeggiInizio("Z:\\proc\\self\\status", 5), "Name:");
  EXPECT_NE(disco.Leggi("Z:\\proc\\self\\status").find("\nPid:"), std::string::npos);
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

TEST_F(ProvaDisco, UnFileDiUnUnitaHaLaSuaLettera) {
  const fs::path prefisso = cartella.Radice() / "prefisso";
  cartella.Metti("prefisso/drive_c/atti/x.dat", "x");
  fs::create_directories(prefisso / "dosdevices");
  fs::create_symlink("../drive_c", prefisso / "dosdevices/c:");
  fs::create_symlink("/", prefisso / "dosdevices/z:");
  const DiscoDischi wine(prefisso / "dosdevices");
  const struct {
    const DiscoDischi& dischi;
    fs::path ospite;
    std::string detto;
  } casi[] = {
      {disco, cartella.Radice() / "c/Libretti/x.dat", "C:\\Libretti\\x.dat"},
      {disco, cartella.Radice() / "c/", "C:\\"},
      {disco, cartella.Radice() / "altro/x.dat", PercorsoDaOspite(cartella.Radice() / "altro/x.dat")},
      {wine, prefisso / "dosdevices/c:/atti/x.dat", "C:\\atti\\x.dat"},
      {wine, prefisso / "drive_c/atti/x.dat", "C:\\atti\\x.dat"},
      {wine, "/tmp/x.dat", "Z:\\tmp\\x.dat"},
  };
  for (const auto& [dischi, ospite, detto] : casi) EXPECT_EQ(dischi.DaOspite(ospite), detto) << ospite;
}

TEST_F(ProvaDisco, DueIPuntiDietroUnCollegamentoComeLiIntendeLOspite) {
  const auto file = cartella.Metti("vera/x.dat", "x");
  fs::create_directories(cartella.Radice() / "vera/dentro");
  fs::create_directories(cartella.Radice() / "altrove");
  fs::create_symlink(cartella.Radice() / "vera/dentro", cartella.Radice() / "altrove/collegamento");
  EXPECT_EQ(PercorsoDaOspite(cartella.Radice() / "altrove/collegamento/../x.dat"), PercorsoDaOspite(file));
}

} // namespace lirmeto::prova
