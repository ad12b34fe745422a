#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/linux/processi_linux.h>

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <spawn.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

class ProvaProcessi : public testing::Test {
protected:
  ProvaProcessi() : disco(cartella.Radice()), processi(disco) {}

  void MettiProgramma(const fs::path& nome, std::string_view testo, mode_t permessi = 0755) const {
    ::chmod(cartella.Metti(nome, testo).c_str(), permessi);
  }

  int NumeroDellAvvio(const std::string& programma, const std::vector<std::string>& argomenti = {}) {
    try {
      static_cast<void>(processi.AvviaEAttendi(programma, argomenti, [] { return true; }));
    } catch (const Errore& errore) {
      return errore.Numero();
    }
    return 0;
  }

  CartellaProvvisoria cartella;
  DiscoDischi disco;
  ProcessiLinux processi;
};

// What it was given, one a line: folder, drives, arguments.
constexpr std::string_view Racconta = "#!/bin/sh\nsleep 0.1\n{ pwd; echo \"$LIRMETO_DISCHI\"; for a; do echo "
                                      "\"<$a>\"; done; } > detto\n";

// A program of our own under another name, asleep until somebody ends it.
pid_t AvviaDormiente(const fs::path& programma, std::string chiamato) {
  fs::create_directories(programma.parent_path());
  fs::copy_file("/bin/sleep", programma);
  std::string secondi = "60";
  char* parole[] = {chiamato.data(), secondi.data(), nullptr};
  pid_t figlio = 0;
  EXPECT_EQ(::posix_spawn(&figlio, programma.c_str(), nullptr, nullptr, parole, ::environ), 0);
  // The start returns a moment before the kernel shows the new program's words.
  const fs::path riga = fs::path("/proc") / std::to_string(figlio) / "cmdline";
  for (int giro = 0; giro < 1000 && CartellaProvvisoria::Prendi(riga).empty(); ++giro) ::usleep(1000);
  return figlio;
}

} // namespace

TEST_F(ProvaProcessi, AspettaLaFineNellaCartellaDelProgramma) {
  MettiProgramma("c/Program Files (x86)/Gondella/Dervola", Racconta);
  const std::string strano = "a b\"; $(x) *";
  processi.AvviaEAttendi("C:\\PROGRAM FILES (x86)\\gondella\\DERVOLA.EXE", {strano, "", "citt\xE0"},
                         [] { return true; });
  const fs::path casa = cartella.Radice() / "c/Program Files (x86)/Gondella";
  EXPECT_EQ(CartellaProvvisoria::Prendi(casa / "detto"),
            casa.string() + "\n" + cartella.Radice().string() + "\n<" + strano + ">\n<>\n<citt\xC3\xA0>\n");
}

// Puts a program of ours in the place of the desktop's opener.
TEST_F(ProvaProcessi, UnDocumentoSiApreColProgrammaDelDesktopEChiFallisceLoDice) {
  MettiProgramma("bin/xdg-open",
                 "#!/bin/sh\necho \"$1\" > \"$0.detto\"\ncase \"$1\" in *rotto*) exit 3;; *lungo*) sleep 3;; esac\n");
  const std::string prima = ::getenv("PATH");
  ::setenv("PATH", (cartella.Radice() / "bin:").string().append(prima).c_str(), 1);
  const auto apri = [&](const std::string& nome) {
    cartella.Metti(fs::path("c") / nome, "x");
    try {
      processi.ApriDocumento("C:\\" + Maiuscolo(nome));
    } catch (const Errore& errore) {
      return errore.Numero();
    }
    return 0;
  };
  EXPECT_EQ(apri("a b;$(x).rtf"), 0);
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "bin/xdg-open.detto"),
            (cartella.Radice() / "c/a b;$(x).rtf\n").string());
  EXPECT_EQ(apri("lungo"), 0) << "it works on: nobody waits for it";
  EXPECT_EQ(apri("rotto"), errore::AccessoAlFile);
  EXPECT_THROW(processi.ApriDocumento("C:\\nulla.rtf"), Errore);
  ::setenv("PATH", prima.c_str(), 1);
}

TEST_F(ProvaProcessi, UnVisualizzatoreParteNellaCartellaDelFile) {
  MettiProgramma("c/p/vista", Racconta);
  cartella.Metti("c/dati/Elenco.csv", "1;2");
  processi.ApriDocumentoCon("C:\\P\\VISTA.EXE", "C:\\DATI\\ELENCO.CSV");
  const fs::path detto = cartella.Radice() / "c/dati/detto";
  for (int giro = 0; giro < 3000 && !CartellaProvvisoria::Prendi(detto).ends_with(">\n"); ++giro) ::usleep(1000);
  EXPECT_EQ(CartellaProvvisoria::Prendi(detto),
            (cartella.Radice() / "c/dati").string() + "\n" + cartella.Radice().string() + "\n<Elenco.csv>\n");
  EXPECT_THROW(processi.ApriDocumentoCon("C:\\p\\manca.exe", "C:\\dati\\Elenco.csv"), Errore);
  MettiProgramma("c/p/guasto", "MZ solo byte\n");
  EXPECT_THROW(processi.ApriDocumentoCon("C:\\p\\guasto.exe", "C:\\dati\\Elenco.csv"), Errore);
  EXPECT_THROW(processi.ApriDocumentoCon("C:\\p\\vista.exe", "C:\\dati\\manca.csv"), Errore);
}

TEST_F(ProvaProcessi, IlProgrammaColSuoNomePrimaDelSostituto) {
  MettiProgramma("c/p/x.exe", "#!/bin/sh\necho exe > detto\n");
  MettiProgramma("c/p/x", "#!/bin/sh\necho nativo > detto\n");
  EXPECT_EQ(processi.AvviaEAttendi("C:\\p\\X.exe", {}, [] { return true; }), 0);
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "c/p/detto"), "exe\n");
}

TEST_F(ProvaProcessi, ChiRinunciaFinisceIlProgramma) {
  MettiProgramma("c/p/x", "#!/bin/sh\ntrap 'echo finito > detto; exit 0' TERM\nsleep 60 &\nwait\n");
  MettiProgramma("c/p/y", "#!/bin/sh\nexit 3\n");
  int volte = 0;
  EXPECT_THROW(static_cast<void>(processi.AvviaEAttendi("C:\\p\\x", {}, [&] { return ++volte < 20; })), Errore);
  EXPECT_EQ(volte, 20);
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "c/p/detto"), "finito\n");
  EXPECT_EQ(processi.AvviaEAttendi("C:\\p\\y", {}, [] { return true; }), 3);
}

TEST_F(ProvaProcessi, DicePercheNonParte) {
  MettiProgramma("c/p/dato.exe", "MZ solo byte\n");
  MettiProgramma("c/p/vietato.exe", Racconta, 0644);
  MettiProgramma("c/p/cartella.exe/x", Racconta);
  MettiProgramma("c/p/buono", Racconta);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\manca.exe"), 53);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\cartella.exe"), 53);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\dato.exe"), 70);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\vietato.exe"), 70);
  EXPECT_EQ(NumeroDellAvvio("buono"), 52);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\buono", {std::string("a\0b", 3)}), 5);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\buono"), 0);
}

TEST_F(ProvaProcessi, ElencaPerNomeETermina) {
  const struct {
    const char* programma;
    const char* chiamato;
    const char* immagine;
  } casi[] = {
      {"a/provalirmeto1", "x", "ProvaLirmeto1.EXE"},
      {"a/provalirmeto2.exe", "x", "provalirmeto2.exe"},
      {"a/caricatore", "C:\\pregeo\\ProvaLirmeto3.exe", "provalirmeto3.exe"},
      {"a/provalirmeto4", "/x/y/qualunque", "qualunque.exe"},
  };
  for (const auto& [programma, chiamato, immagine] : casi) {
    EXPECT_TRUE(processi.Elenca(immagine).empty());
    const pid_t figlio = AvviaDormiente(cartella.Radice() / programma, chiamato);
    EXPECT_EQ(processi.Elenca(immagine), std::vector<long>{figlio}) << immagine;
    ::kill(figlio, SIGSTOP); // hung
    EXPECT_EQ(processi.Termina(figlio), 0);
    int stato = 0;
    ASSERT_EQ(::waitpid(figlio, &stato, 0), figlio);
    EXPECT_TRUE(WIFSIGNALED(stato) && WTERMSIG(stato) == SIGTERM);
    EXPECT_TRUE(processi.Elenca(immagine).empty());
    EXPECT_NE(processi.Termina(figlio), 0) << "already gone";
    fs::remove_all(cartella.Radice() / "a");
  }
}

TEST_F(ProvaProcessi, NonTerminaInteriGruppi) {
  EXPECT_NE(processi.Termina(0), 0);
  EXPECT_NE(processi.Termina(-1), 0);
}

TEST_F(ProvaProcessi, QuestoProcessoETraISuoi) {
  const auto miei = processi.Elenca(fs::read_symlink("/proc/self/exe").filename().string());
  EXPECT_NE(std::find(miei.begin(), miei.end(), processi.QuestoProcesso()), miei.end());
}

TEST_F(ProvaProcessi, CreaSoloLeCartelleCheMancano) {
  fs::create_directories(cartella.Radice() / "c/Windows");
  processi.CreaCartelleDiSistema();
  processi.CreaCartelleDiSistema();
  const auto [documenti, windows, temporanea, programmi] = processi.Cartelle();
  for (const auto& percorso : {documenti, windows, temporanea, programmi})
    EXPECT_TRUE(disco.EsisteCartella(percorso)) << percorso;
  EXPECT_FALSE(fs::exists(cartella.Radice() / "c/WINDOWS"));
  EXPECT_EQ(windows, "C:\\WINDOWS");
  EXPECT_EQ(programmi, "C:\\Program Files (x86)");
  EXPECT_EQ(documenti.substr(0, 9), "C:\\users\\");
}

} // namespace lirmeto::prova
