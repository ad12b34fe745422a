// What is not as it should be: files, command lines, places for the result.

#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Minimo = "0|22062018|18|G224|0010|12|ADA|G|PD|\r\n9|0|10|20|0|V|TM|S|\r\n";
constexpr std::string_view CodaMinima = "6|<EST>|\r\n6|<COD>RSSDAA80A41G224X|\r\n6|<ISC>3127|\r\n";

std::string Salvato(const std::string& righe) {
  return std::string(Minimo) + righe + std::string(CodaMinima);
}

} // namespace

TEST_F(ProvaCli, FileCheNonSiPuoAprireE3) {
  const std::string manca = (cartella.Radice() / "manca" / "x.dat").string();
  const std::string radice = cartella.Radice().string();
  const std::pair<std::string, std::string> casi[] = {
      {manca, "[Lirmeto] Il file " + manca + " non esiste.\n"},
      {"", "[Lirmeto] Il file  non esiste.\n"},
      {radice, "[Lirmeto] " + radice + " \xC3\xA8 una cartella, non un file.\n"},
  };
  for (const auto& [file, messaggio] : casi)
    for (const char* comando : {"righe", "salva"}) {
      const auto esito = Lancia({comando, file});
      EXPECT_EQ(esito.codice, 3) << file;
      EXPECT_EQ(esito.uscita, "");
      EXPECT_EQ(esito.errori, messaggio);
    }
  EXPECT_EQ(Lancia({"righe", Metti("\xE6\x97\xA5.dat", Minimo)}).codice, 3)
      << "a name that the rows' alphabet cannot say";
}

TEST_F(ProvaCli, UsoErratoE2ConLaRagione) {
  const std::string file = Metti("a.dat", Minimo);
  const struct {
    std::vector<std::string> parole;
    std::string ragione;
  } casi[] = {
      {{}, "Manca il comando."},
      {{"vola", file}, "Comando sconosciuto: vola"},
      {{"righe"}, "Manca il FILE del comando righe."},
      {{"righe", file, file}, "Argomento di troppo: " + file},
      {{"righe", "--nulla", file}, "Opzione sconosciuta: --nulla"},
      {{"comuni", "a", "b"}, "Argomento di troppo: b"},
      {{"salva", file, "-o"}, "Un'opzione \xC3\xA8 senza il suo valore."},
      {{"salva", file, "-o", ""}, "--uscita: il nome del file \xC3\xA8 vuoto"},
      {{"--oggi", "2023-02-29", "righe", file}, "--oggi: la data 2023-02-29 non \xC3\xA8 valida: si scrive AAAA-MM-GG"},
      {{"--rispondi", "forse", "righe", file}, "--rispondi: la risposta forse non \xC3\xA8 una di si, no, annulla"},
      {{"--dischi", "/manca", "righe", file}, "--dischi: la cartella /manca non esiste"},
  };
  for (const auto& [parole, ragione] : casi) {
    const auto esito = Lancia(parole);
    EXPECT_EQ(esito.codice, 2) << ragione;
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori, "[Lirmeto] " + ragione + "\nPer l'aiuto: lirmeto-cli --help\n");
  }
}

TEST_F(ProvaCli, AiutoEVersione) {
  const auto aiuto = Lancia({"--help"});
  EXPECT_EQ(aiuto.codice, 0);
  for (const char* parola : {"\n  righe ", "\n  intestazione ", "\n  salva ", "\n  riordina ", "\n  comuni ",
                             "--dischi DIR", "--oggi AAAA-MM-GG", "--rispondi R", "--uscita FILE"})
    EXPECT_NE(aiuto.uscita.find(parola), std::string::npos) << parola;
  EXPECT_EQ(Lancia({"--version"}).uscita, "lirmeto-cli 6.1\n");
  EXPECT_NE(Lancia({"righe", "--help"}).uscita.find("FILE"), std::string::npos);
  for (const char* parola : {"Usage", "OPTIONS", "SUBCOMMAND", "Positionals", "REQUIRED"})
    EXPECT_EQ(Lancia({"righe", "--help"}).uscita.find(parola), std::string::npos) << parola;
}

TEST_F(ProvaCli, OpzioniPrimaEDopoIlComando) {
  const std::string file = Metti("a.dat", Minimo);
  const auto attesa = Lancia({"righe", file}).uscita;
  EXPECT_EQ(Lancia({"--rispondi", "si", "--rispondi", "no", "righe", file}).uscita, attesa);
  EXPECT_EQ(Lancia({"righe", file, "--rispondi", "annulla"}).uscita, attesa);
  EXPECT_EQ(Lancia({"righe", "--", file}).uscita, attesa);
}

TEST_F(ProvaCli, FileStraniSiSalvanoComeSono) {
  const std::string lunga(1000000, 'x');
  std::string campi = "7|300|";
  for (int i = 0; i < 302; ++i) campi += "1|";
  std::string ogniByte;
  for (int i = 0; i < 256; ++i)
    if (i != '\r' && i != '\n') ogniByte += static_cast<char>(i);
  const struct {
    const char* nome;
    std::string file;
    std::string salvato;
  } casi[] = {
      {"vuoto.dat", "",
       "0|21112024|1|G693|0010|1|COGNOME "
       "NOME|GEOMETRA|PADOVA|\r\n9|20|10|20|1070|10.00-G,STDA 2.08|18|TIPO "
       "SENZA GEOMETRIA|\r\n" +
           std::string(CodaMinima)},
      {"lunga.dat", std::string(Minimo) + "2|" + lunga + "|\r\n", Salvato("2|" + lunga + "|\r\n")},
      {"campi.dat", std::string(Minimo) + campi + "\r\n", Salvato(campi + "\r\n")},
      {"byte.dat", std::string(Minimo) + ogniByte + "\r\n", Salvato(ogniByte + "\r\n")},
      {"unix.txt", std::string(Minimo) + "1|1|A|\n\n\n\n2|2|B|", Salvato("1|1|A|\r\n2|2|B|\r\n")},
  };
  for (const auto& [nome, file, salvato] : casi) {
    const auto esito = Lancia({"salva", Metti(nome, file)});
    EXPECT_EQ(esito.codice, 0) << nome << esito.errori;
    EXPECT_TRUE(esito.uscita == salvato) << nome;
    EXPECT_EQ(Lancia({"righe", Metti(nome, file)}).codice, 0) << nome;
    EXPECT_EQ(Lancia({"riordina", Metti(nome, file)}).codice, 0) << nome;
  }
}

TEST_F(ProvaCli, DopoUnRapportoDiErroreNonEsceNulla) {
  const std::string pdf = Metti("atto.pdf", "%PDF-1.4\nniente sezioni");
  const std::string uscita = Metti("uscita.dat", "prima");
  for (const char* comando : {"righe", "intestazione", "salva", "riordina"}) {
    const auto esito = Lancia({comando, pdf, "-o", uscita});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori.find("[Rilevato errore] Si \xC3\xA8 verificato questo errore : 5\n"), 0U) << esito.errori;
    EXPECT_EQ(CartellaProvvisoria::Prendi(uscita), "prima");
  }
  std::string troppe;
  for (int i = 0; i < 112; ++i) troppe += "PD,PADOVA\r\n";
  cartella.Metti("dischi/c/pregeo/exe/prosigle", troppe);
  const auto esito = Lancia({"righe", Metti("a.dat", Minimo)});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_EQ(esito.uscita, "");
}

TEST_F(ProvaCli, DoveNonSiPuoScrivereE1) {
  const std::string file = Metti("a.dat", Minimo);
  const std::string protetto = Metti("protetto.dat", "prima");
  fs::permissions(protetto, fs::perms::owner_read);
  const struct {
    std::string uscita;
    const char* numero;
  } casi[] = {
      {protetto, "75"}, {cartella.Radice().string(), "75"}, {(cartella.Radice() / "manca" / "x.dat").string(), "76"}};
  for (const auto& [uscita, numero] : casi) {
    const auto esito = Lancia({"salva", file, "-o", uscita});
    EXPECT_EQ(esito.codice, 1) << uscita;
    EXPECT_EQ(
        esito.errori.find(std::string("[Rilevato errore] Si \xC3\xA8 verificato questo errore : ") + numero + "\n"), 0U)
        << esito.errori;
  }
  EXPECT_EQ(CartellaProvvisoria::Prendi(protetto), "prima");
}

} // namespace lirmeto::prova
