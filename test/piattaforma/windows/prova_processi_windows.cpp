#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/windows/collegamenti.h>
#include <piattaforma/windows/processi_windows.h>
#include <piattaforma/windows/win32.h>

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include <shellapi.h>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

// This very program: each of the disabled tests below is what it does as another one.
fs::path QuestoProgramma() {
  std::wstring percorso(MAX_PATH, L'\0');
  percorso.resize(::GetModuleFileNameW(nullptr, percorso.data(), MAX_PATH));
  return percorso;
}

std::vector<std::string> ParoleDi(const std::string& parte) {
  return {"--gtest_also_run_disabled_tests", "--gtest_filter=Altro.DISABLED_" + parte};
}

class ProvaProcessi : public testing::Test {
protected:
  ProvaProcessi() { fs::create_directories(cartella.Radice() / "c" / "p"); }

  // A copy under another name.
  void MettiProgramma(const std::string& nome) const {
    fs::copy_file(QuestoProgramma(), cartella.Radice() / "c" / "p" / nome);
  }

  int NumeroDellAvvio(const std::string& programma, const std::vector<std::string>& parole,
                      const std::function<bool()>& attende) {
    try {
      codice = processi.AvviaEAttendi(programma, parole, attende);
    } catch (const Errore& errore) {
      return errore.Numero();
    }
    return 0;
  }

  CartellaProvvisoria cartella;
  DiscoDischi disco{cartella.Radice()};
  ProcessiWindows processi{disco};
  int codice = -2;
};

} // namespace

TEST(Altro, DISABLED_Racconta) {
  std::ofstream("detto", std::ios::binary) << Stretto(fs::current_path().native());
  std::exit(3);
}

TEST(Altro, DISABLED_Dorme) {
  ::Sleep(60'000);
}

TEST(Altro, DISABLED_Scrive) {
  DiscoDischi disco(fs::current_path().parent_path().parent_path());
  for (std::size_t volta = 1;; ++volta)
    disco.Scrivi("C:\\p\\x.dat", std::string(500'000 + 500'000 * (volta % 2), volta % 2 == 0 ? 'a' : 'b'));
}

TEST(ProvaRigaDiParole, IlProgrammaRitrovaLeParoleComeErano) {
  const std::vector<std::wstring> parole = {L"C:\\un programma.exe",
                                            L"",
                                            L"semplice",
                                            L"con spazio",
                                            L"vir\"gola",
                                            L"barra\\",
                                            L"barra e spazio\\",
                                            L"due\\\\\"",
                                            L"\\\"",
                                            L"a\tb",
                                            L"citt\u00E0 %PATH% ^& |",
                                            L"\\\\server\\atti\\"};
  int quante = 0;
  wchar_t** lette = ::CommandLineToArgvW(RigaDiParole(parole).c_str(), &quante);
  EXPECT_EQ(std::vector<std::wstring>(lette, lette + quante), parole);
  ::LocalFree(lette);
}

TEST_F(ProvaProcessi, AspettaLaFineNellaCartellaDelProgrammaENeDiceIlCodice) {
  MettiProgramma("vista");
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\Vista.EXE", ParoleDi("Racconta"), [] { return true; }), 0);
  EXPECT_EQ(codice, 3);
  EXPECT_EQ(CartellaProvvisoria::Prendi(cartella.Radice() / "c" / "p" / "detto"),
            Stretto((cartella.Radice() / "c" / "p").native()));
}

TEST_F(ProvaProcessi, ChiRinunciaFinisceIlProgramma) {
  MettiProgramma("dorme.exe");
  int volte = 0;
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\dorme.exe", ParoleDi("Dorme"), [&] { return ++volte < 20; }),
            errore::DialogoAnnullato);
  EXPECT_EQ(volte, 20);
  EXPECT_TRUE(processi.Elenca("dorme.exe").empty());
}

TEST_F(ProvaProcessi, DicePercheNonParte) {
  cartella.Metti("c/p/dato.exe", "MZ solo byte");
  const auto subito = [] { return true; };
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\manca.exe", {}, subito), 53);
  EXPECT_EQ(NumeroDellAvvio("C:\\p", {}, subito), 53);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\dato.exe", {}, subito), 70);
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\dato.exe", {std::string("a\0b", 3)}, subito), 5);
}

TEST_F(ProvaProcessi, ElencaPerNomeETermina) {
  MettiProgramma("ProvaLirmeto1.exe");
  std::vector<long> trovati;
  EXPECT_EQ(NumeroDellAvvio("C:\\p\\provalirmeto1.exe", ParoleDi("Dorme"),
                            [&] {
                              trovati = processi.Elenca("PROVALIRMETO1.EXE");
                              for (const long numero : trovati) EXPECT_EQ(processi.Termina(numero), 0);
                              return true;
                            }),
            0);
  EXPECT_EQ(codice, 1);
  EXPECT_TRUE(processi.Elenca("provalirmeto1.exe").empty());
  EXPECT_NE(processi.Termina(0), 0);
  const auto miei = processi.Elenca(DaUtf8(Stretto(QuestoProgramma().filename().native())));
  EXPECT_NE(std::find(miei.begin(), miei.end(), processi.QuestoProcesso()), miei.end());
}

TEST_F(ProvaProcessi, UccisoMentreScriveLasciaIlVecchioOIlNuovo) {
  MettiProgramma("scrive.exe");
  cartella.Metti("c/p/x.dat", std::string(500'000, 'a'));
  for (int volta = 0; volta < 8; ++volta) {
    int giri = 0;
    EXPECT_EQ(NumeroDellAvvio("C:\\p\\scrive.exe", ParoleDi("Scrive"),
                              [&] {
                                if (++giri > 30 + 7 * volta)
                                  for (const long numero : processi.Elenca("scrive.exe"))
                                    (void)processi.Termina(numero);
                                return true;
                              }),
              0);
    const std::string letto = disco.Leggi("C:\\p\\x.dat");
    EXPECT_TRUE(letto == std::string(500'000, 'a') || letto == std::string(1'000'000, 'b')) << letto.size();
  }
}

TEST_F(ProvaProcessi, LeCartelleSonoDellaShellOQuelleDeiDischi) {
  const CartelleDiSistema diProva = processi.Cartelle();
  EXPECT_EQ(diProva.windows, "C:\\WINDOWS");
  processi.CreaCartelleDiSistema();
  EXPECT_TRUE(disco.EsisteCartella(diProva.documenti));
  DiscoDischi unita{fs::path()};
  const CartelleDiSistema vere = ProcessiWindows(unita).Cartelle();
  for (const auto& percorso : {vere.documenti, vere.windows, vere.temporanea, vere.programmi})
    EXPECT_TRUE(unita.EsisteCartella(percorso)) << percorso;
  EXPECT_TRUE(unita.Esiste(vere.windows + "\\system32\\kernel32.dll"));
}

TEST_F(ProvaProcessi, UnCollegamentoPortaAlProgramma) {
  MettiProgramma("Pregeo.exe");
  const fs::path file = cartella.Radice() / "Collegamento a P.lnk";
  ScriviCollegamento(file, disco.PercorsoOspite("C:\\p\\Pregeo.exe"));
  const std::string byte = CartellaProvvisoria::Prendi(file);
  EXPECT_EQ(byte.substr(0, 4), std::string("L\0\0\0", 4));
  EXPECT_NE(byte.find("Pregeo.exe"), std::string::npos);
  EXPECT_THROW(ScriviCollegamento(cartella.Radice() / "manca" / "x.lnk", file), Errore);
  EXPECT_TRUE(fs::is_directory(CartellaDelPosto(PostoCollegamento::Desktop)));
}

} // namespace lirmeto::prova
