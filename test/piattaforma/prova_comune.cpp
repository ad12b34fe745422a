#include <piattaforma/orologi.h>
#include <piattaforma/processi_ospite.h>
#include <piattaforma/versione_eseguibile.h>

#include <base/testo.h>

#include <gtest/gtest.h>

#include <ctime>

namespace lirmeto::prova {

TEST(ProvaVersioneEseguibile, DallaRisorsa) {
  std::string chiave;
  for (const char lettera : std::string_view("VS_VERSION_INFO")) chiave += {lettera, '\0'};
  const std::string numeri("\xBD\x04\xEF\xFE\0\0\1\0\6\0\x0A\0\3\0\0\x01", 16);
  const std::string vuoto(4, '\0');
  EXPECT_EQ(VersioneDaEseguibile("MZ" + chiave + vuoto + numeri + "coda"), "10.6.256.3");
  EXPECT_EQ(VersioneDaEseguibile(chiave + "xxxxxxx" + numeri), "") << "too far from its key";
  EXPECT_EQ(VersioneDaEseguibile(chiave + chiave + vuoto + numeri), "10.6.256.3");
  for (std::size_t lungo = 0; lungo < numeri.size(); ++lungo)
    EXPECT_EQ(VersioneDaEseguibile(chiave + vuoto + numeri.substr(0, lungo)), "");
  EXPECT_EQ(VersioneDaEseguibile("MZ" + numeri), "");
}

TEST(ProvaComponenteSicuro, NonEsceDallaCartella) {
  EXPECT_EQ(ComponenteSicuro("ada.rossi"), "ada.rossi");
  EXPECT_EQ(ComponenteSicuro("DOM\\ada/x:y"), "DOM_ada_x_y");
  EXPECT_EQ(ComponenteSicuro(".."), "utente");
  EXPECT_EQ(ComponenteSicuro(""), "utente");
  EXPECT_EQ(ComponenteSicuro("nicol\xC3\xB2\n"), std::string("nicolò_"_w));
}

TEST(ProvaOrologi, OggiEIlGiornoLocale) {
  const OrologioDiSistema orologio;
  const auto giorno = [] {
    const std::time_t ora = std::time(nullptr);
    const std::tm* tempo = std::localtime(&ora);
    return Data{tempo->tm_year + 1900, tempo->tm_mon + 1, tempo->tm_mday};
  };
  const Data prima = giorno();
  const Data letta = orologio.Oggi();
  EXPECT_LE(prima, letta);
  EXPECT_LE(letta, giorno());
  EXPECT_EQ(OrologioFisso(Data{2022, 2, 28}).Oggi(), (Data{2022, 2, 28}));
}

} // namespace lirmeto::prova
