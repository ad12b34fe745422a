#include "sostituti/banco.h"

#include <supporto/zip.h>

#include <base/errore.h>
#include <base/testo.h>
#include <piattaforma/estrazione.h>

#include <gtest/gtest.h>
#include <zlib.h>

namespace lirmeto {
namespace {

using prova::Banco;

// ZIP archives made field by field, as no honest program would make them; stored without compression.
struct VoceFinta {
  std::string nome;
  std::string dati = "dati";
  unsigned opzioni = 0;   // flags of both headers
  unsigned modo = 0;      // on a Unix host: 0120777 a link; 0: an MS-DOS host
  std::string extra = {}; // extra fields
  bool crcGiusto = true;
  std::string nomeLocale = {}; // where the two headers do not agree
  std::string nota = {};
};

std::string Numero(std::size_t valore, int byte) {
  std::string numero;
  for (int i = 0; i < byte; ++i) numero += static_cast<char>((valore >> (8 * i)) & 0xFFU);
  return numero;
}

std::size_t Crc(const std::string& byte) {
  return crc32(0, reinterpret_cast<const Bytef*>(byte.data()), static_cast<uInt>(byte.size()));
}

std::string CampiComuni(const VoceFinta& voce, const std::string& nome) {
  const std::size_t lunga = voce.dati.size();
  return Numero(20, 2) + Numero(voce.opzioni, 2) + Numero(0, 2) + Numero(0x5AB56000, 4) +
         Numero(Crc(voce.dati) ^ (voce.crcGiusto ? 0U : 1U), 4) + Numero(lunga, 4) + Numero(lunga, 4) +
         Numero(nome.size(), 2) + Numero(voce.extra.size(), 2);
}

std::string ArchivioFinto(const std::vector<VoceFinta>& voci) {
  std::string archivio;
  std::string elenco;
  for (const VoceFinta& voce : voci) {
    const std::string& locale = voce.nomeLocale.empty() ? voce.nome : voce.nomeLocale;
    elenco += Numero(0x02014B50, 4) + Numero(voce.modo != 0 ? 0x314 : 20, 2) + CampiComuni(voce, voce.nome) +
              Numero(voce.nota.size(), 2) + Numero(0, 4) + Numero(std::size_t{voce.modo} << 16U, 4) +
              Numero(archivio.size(), 4) + voce.nome + voce.extra + voce.nota;
    archivio += Numero(0x04034B50, 4) + CampiComuni(voce, locale) + locale + voce.extra + voce.dati;
  }
  return archivio + elenco + Numero(0x06054B50, 4) + Numero(0, 4) + Numero(voci.size(), 2) + Numero(voci.size(), 2) +
         Numero(elenco.size(), 4) + Numero(archivio.size(), 4) + Numero(0, 2);
}

std::string CampoUnicode(const std::string& nome, const std::string& utf8) {
  return Numero(0x7075, 2) + Numero(utf8.size() + 5, 2) + "\1" + Numero(Crc(nome), 4) + utf8;
}

struct Tavola : Banco {
  Tavola() {
    disco.cartelle.emplace_back("C:\\ZIP");
    processi.apriArchivio = ApriArchivioZip;
  }

  // Files under C:\zip\F after unpacking, "name=content" in the order of their upper-cased names.
  std::string Esplodi(const std::string& byte, const LimitiEsplosione& limiti = {}) {
    disco.Metti("C:\\zip\\a.zip", byte);
    esito = Esplodi_ZIP(ambiente, "C:\\zip\\a.zip", "C:\\zip\\F\\", limiti);
    return Estratti();
  }
  [[nodiscard]] std::string Estratti() const {
    std::string trovati;
    for (const auto& [percorso, contenuto] : disco.file)
      if (percorso.starts_with("C:\\ZIP\\F\\")) trovati += percorso.substr(9) + "=" + contenuto + " ";
    return trovati;
  }
  // The error that unpacking ends with, 0 when it does not.
  int Errore(const std::string& byte, const LimitiEsplosione& limiti = {}) {
    try {
      Esplodi(byte, limiti);
      return 0;
    } catch (const lirmeto::Errore& errore) {
      return errore.Numero();
    }
  }

  bool esito = false;
};

std::uint32_t Campo(const std::string& byte, std::size_t posto, int quanti) {
  std::uint32_t valore = 0;
  for (int i = quanti; i > 0; --i)
    valore = valore << 8U | static_cast<unsigned char>(byte.at(posto + static_cast<std::size_t>(i) - 1));
  return valore;
}

// What outside readers do not look at: the fields that have one value only.
TEST(ZipClass, ScriveICampiCheDeve) {
  Tavola t;
  t.disco.Metti("C:\\zip\\dir\\citt\xE0.txt", std::string(1000, 'x'));
  t.disco.modificato = {{2024, 2, 29}, {23, 59, 59}};
  ZipClass zip(t.disco);
  EXPECT_TRUE(zip.AddFile("C:\\zip\\dir\\citt\xE0.txt", "", "nota"));
  EXPECT_FALSE(zip.AddFile("C:\\zip\\manca.txt"));
  EXPECT_TRUE(zip.WriteZip("C:\\zip\\b.zip", false));
  const std::string byte = t.disco.Contenuto("C:\\zip\\b.zip");
  const std::size_t centrale = Campo(byte, byte.size() - 6, 4);
  for (const std::size_t comuni : {std::size_t{4}, centrale + 6}) {
    EXPECT_EQ(Campo(byte, comuni, 2), 20U);
    EXPECT_EQ(Campo(byte, comuni + 2, 2), 2U);
    EXPECT_EQ(Campo(byte, comuni + 4, 2), 8U);
    EXPECT_EQ(Campo(byte, comuni + 6, 2), 23U << 11U | 59U << 5U | 29U);
    EXPECT_EQ(Campo(byte, comuni + 8, 2), 44U << 9U | 2U << 5U | 29U);
  }
  EXPECT_EQ(Campo(byte, centrale, 4), 0x02014B50U);
  EXPECT_EQ(Campo(byte, centrale + 4, 2), 20U);
  EXPECT_EQ(Campo(byte, centrale + 38, 4), 32U);
  EXPECT_EQ(byte.substr(centrale + 46, 13), "citt\xE0.txtnota");
}

TEST(ZipClass, QuelloCheScriveTornaIndietro) {
  Tavola t;
  std::string tutti;
  for (int i = 1; i < 256; ++i) tutti += static_cast<char>(i);
  t.disco.Metti("C:\\zip\\VUOTO.TXT", "");
  t.disco.Metti("C:\\zip\\X.EMP", tutti);
  ZipClass zip(t.disco);
  EXPECT_TRUE(zip.AddFile("C:\\zip\\vuoto.txt", "", std::string(300, 'c')));
  EXPECT_TRUE(zip.AddFile("C:\\zip\\X.EMP", "dir\\PERCH\xC9 \x80\x96.emp"));
  EXPECT_TRUE(zip.WriteZip("C:\\zip\\b.zip", false));
  EXPECT_EQ(t.Esplodi(t.disco.Contenuto("C:\\zip\\b.zip")), "DIR\\PERCH\xC9 \x80\x96.EMP=" + tutti + " VUOTO.TXT= ");
  EXPECT_EQ(t.dialoghi.avanzamenti.back(), "Estrazione dell'archivio 2/2") << "the work is told to be over";
  EXPECT_TRUE(t.esito);
  EXPECT_TRUE(t.dialoghi.detti.empty());
}

TEST(ZipClass, IlVecchioRestaQuandoNonSiScrive) {
  Tavola t;
  t.disco.Metti("C:\\zip\\a", "a");
  t.disco.Metti("C:\\zip\\b.zip", "vecchio");
  ZipClass zip(t.disco);
  EXPECT_TRUE(zip.AddFile("C:\\zip\\a", std::string(65535, 'n')));
  EXPECT_THROW((void)zip.AddFile("c:\\ZIP\\A"), Errore);
  EXPECT_FALSE(zip.WriteZip("C:\\zip\\b.zip", false));
  ZipClass troppo = zip;
  EXPECT_TRUE(troppo.AddFile("C:\\zip\\b.zip", "b", std::string(65536, 'c')));
  EXPECT_THROW((void)troppo.WriteZip("C:\\zip\\b.zip", true), Errore);
  EXPECT_EQ(t.disco.Contenuto("C:\\zip\\b.zip"), "vecchio");
  EXPECT_TRUE(zip.WriteZip("C:\\zip\\b.zip", true));
  EXPECT_EQ(t.disco.Contenuto("C:\\zip\\b.zip").substr(0, 4), "PK\3\4");
}

TEST(ZipFile, DateFuoriDagliAnniCheSiPossonoDire) {
  EXPECT_EQ(DataDos({1979, 12, 31}), 0x21);
  EXPECT_EQ(DataDos({2107, 12, 31}), 0xFF9F);
  EXPECT_EQ(DataDos({2108, 1, 1}), 0xFF9F);
  EXPECT_EQ(OraDos({23, 59, 60}), 0xBF7D);
}

struct Ostile {
  std::vector<VoceFinta> voci;
  std::string estratti; // as Estratti tells them
  std::string detto;    // lines of the message behind its first two, joined by "; "
};

class ZipOstile : public testing::TestWithParam<Ostile> {};

TEST_P(ZipOstile, NienteEsceDallaCartella) {
  Tavola t;
  t.disco.Metti("C:\\zip\\F\\VECCHIO.TXT", "vecchio");
  t.disco.cartelle.emplace_back("C:\\ZIP\\F");
  const std::size_t prima = t.disco.file.size() + 1; // the archive
  auto voci = GetParam().voci;
  voci.push_back({"buono.txt", "si"});
  const std::string attesi = GetParam().estratti + "VECCHIO.TXT=vecchio ";
  EXPECT_EQ(t.Esplodi(ArchivioFinto(voci)), "BUONO.TXT=si " + attesi);
  EXPECT_EQ(t.disco.file.size(), prima + QuanteParti(t.Estratti(), '=') - 2) << "nothing beside the folder";
  EXPECT_EQ(t.esito, GetParam().detto.empty());
  const std::string testa = "C:\\zip\\a.zip\r\nVoci NON estratte o ripetute:\r\n";
  ASSERT_EQ(t.dialoghi.detti.size(), GetParam().detto.empty() ? 0U : 1U);
  EXPECT_EQ(t.dialoghi.UltimoTesto(), GetParam().detto.empty() ? "" : testa + GetParam().detto);
}

constexpr const char* Fuori = " - porta fuori dalla cartella";

INSTANTIATE_TEST_SUITE_P(
    Voci, ZipOstile,
    testing::Values(
        Ostile{{{"../x"}, {"..\\x"}, {"a/../b"}},
               "",
               std::string("../x") + Fuori + "\r\n../x" + Fuori + "\r\na/../b" + Fuori},
        Ostile{{{"/etc/x"}, {"C:/x"}, {"a/b:flusso"}},
               "",
               std::string("/etc/x") + Fuori + "\r\nC:/x" + Fuori + "\r\na/b:flusso" + Fuori},
        Ostile{
            {{".. /x"}, {"..."}, {"a\nb"}}, "", std::string(".. /x") + Fuori + "\r\n..." + Fuori + "\r\na\nb" + Fuori},
        Ostile{{{"x", "dati", 0, 0, "", true, "/x"}}, "", std::string("/x") + Fuori},
        Ostile{{{"link", "/etc/passwd", 0, 0120777}}, "", "link - \xE8 un collegamento"},
        Ostile{{{"chiusa", "dati", 1}}, "", "chiusa - \xE8 protetta da password"},
        Ostile{{{"rotta", "dati", 0, 0, "", false}}, "", "rotta - \xE8 guasta"},
        Ostile{{{"Vecchio.txt", "1"}, {"VECCHIO.TXT", "vecchio"}}, "", "VECCHIO.TXT - nome ripetuto: resta l'ultima"},
        Ostile{{{"./d/./e//f?.txt"}, {"vuota/", ""}}, "D\\E\\F_.TXT=dati ", ""},
        Ostile{{{"citt\xC3\xA0", "u8", 0x800}}, "CITT\xC0=u8 ", ""},
        Ostile{{{"d\\\xE6\x97\xA5.txt", "u8", 0x800}}, "D\\_.TXT=u8 ", ""},
        Ostile{{{"citt\xC3\xA0", "zip"}}, "CITT\xC0=zip ", ""}, Ostile{{{"citt\xE0", "1252"}}, "CITT\xC0=1252 ", ""},
        Ostile{{{"citt\x85", "extra", 0, 0, CampoUnicode("citt\x85", "citt\xC3\xA0")}}, "CITT\xC0=extra ", ""}));

// Behind a program that unpacks itself, and with all that may follow a name in the list.
TEST(Esplodi, NomiDopoAltriByte) {
  const std::string extra = CampoUnicode("citt\x85", "citt\xC3\xA0");
  const std::string byte =
      ArchivioFinto({{"citt\x85", "uno", 0, 0, extra, true, "", "una nota"}, {"d\\perch\xC3\xA9", "due", 0x800}});
  for (const char* prima : {"", "MZ programma"}) {
    Tavola t;
    EXPECT_EQ(t.Esplodi(prima + byte), "CITT\xC0=uno D\\PERCH\xC9=due ") << prima;
  }
}

TEST(Esplodi, ArchiviCheNonSiAprono) {
  Tavola t;
  EXPECT_FALSE(Esplodi_ZIP(t.ambiente, "C:\\zip\\manca.zip", "C:\\zip\\F"));
  EXPECT_EQ(t.dialoghi.UltimoTesto(), "C:\\zip\\manca.zip\r\nNON trovato!");
  const std::string intero = ArchivioFinto({{"a"}, {"b"}});
  for (std::size_t lungo = 0; lungo < intero.size(); ++lungo)
    EXPECT_EQ(t.Errore(intero.substr(0, lungo)), errore::OltreLaFine) << lungo;
  EXPECT_EQ(t.Errore("Non sono un archivio"), errore::OltreLaFine);
  EXPECT_EQ(t.Estratti(), "");
  EXPECT_FALSE(t.disco.EsisteCartella("C:\\zip\\F"));
  EXPECT_EQ(t.Errore(ArchivioFinto({})), 0) << "no entries are no fault";
  EXPECT_TRUE(t.esito);
}

// A byte changed anywhere leads to files within the folder, a message or an error, never to anything else.
TEST(Esplodi, ByteCambiati) {
  const std::string intero = ArchivioFinto({{"d/a", "uno"}, {"citt\xC3\xA0", "due", 0x800}, {"c", "", 0, 0120777}});
  for (std::size_t i = 0; i < intero.size() * 3; ++i) {
    Tavola t;
    std::string byte = intero;
    byte[i / 3] = static_cast<char>(byte[i / 3] ^ (i % 3 == 0 ? '\x01' : i % 3 == 1 ? '\x80' : '\xFF'));
    const std::size_t prima = t.disco.file.size() + 1;
    const int errore = t.Errore(byte);
    EXPECT_TRUE(errore == 0 || errore == errore::OltreLaFine) << i << " " << errore;
    EXPECT_EQ(t.disco.file.size() - prima, QuanteParti(t.Estratti() + "=", '=') - 2) << i;
  }
}

TEST(Esplodi, LaBombaSiFermaAlLimite) {
  Tavola t;
  t.disco.Metti("C:\\zip\\zeri", std::string(8U << 20U, '\0'));
  ZipClass zip(t.disco);
  EXPECT_TRUE(zip.AddFile("C:\\zip\\zeri"));
  EXPECT_TRUE(zip.WriteZip("C:\\zip\\bomba.zip", false));
  const std::string bomba = t.disco.Contenuto("C:\\zip\\bomba.zip");
  EXPECT_LT(bomba.size(), 10'000U);
  EXPECT_EQ(t.Errore(bomba, {(8U << 20U) - 1, 10}), errore::Overflow);
  EXPECT_EQ(t.Estratti(), "");
  EXPECT_EQ(t.Errore(bomba, {8U << 20U, 1}), 0);
  EXPECT_EQ(t.Errore(ArchivioFinto({{"a"}, {"b"}, {"c"}}), {11, 10}), errore::Overflow) << "the sum of four bytes each";
  EXPECT_EQ(t.Errore(ArchivioFinto({{"a"}, {"b"}, {"c"}}), {12, 3}), 0);
  t.dialoghi.avanzamenti.clear();
  EXPECT_EQ(t.Errore(ArchivioFinto({{"/x"}, {"a"}, {"b"}}), {1000, 2}), errore::Overflow);
  EXPECT_EQ(t.dialoghi.avanzamenti,
            (std::vector<std::string>{"Estrazione dell'archivio 0/3", "Estrazione dell'archivio 1/3"}));
  EXPECT_EQ(t.disco.Contenuto("C:\\zip\\F\\a"), "dati") << "what came before the limit stays";
  EXPECT_TRUE(Contiene(t.dialoghi.UltimoTesto(), "/x - porta fuori"));
}

} // namespace
} // namespace lirmeto
