#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/salvataggio.h>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Zero = "0|01022024|7|G224||1|ROSSI MARIO|GEOMETRA|PADOVA|";
const std::string Nove = "9|12|10|20||VER|FR|TOTALE|";

struct CasoPulizia {
  Righe prima;
  Righe dopo;
};

class Aggiorna : public testing::TestWithParam<CasoPulizia> {};

TEST_P(Aggiorna, RipetuteENoteVuote) {
  Banco banco;
  banco.sessione.List1.Riempi(prova::Lista(GetParam().prima));
  AggiornaLibrettoMisure(banco.ambiente);
  EXPECT_EQ(banco.sessione.Libretto, Testo(GetParam().dopo));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Aggiorna,
    testing::Values(CasoPulizia{{Zero, Nove, "8|1||"}, {Zero, Nove, "8|1|NOTE:|"}}, // rows 0 and 9 keep theirs
                    CasoPulizia{{"8|1|||"}, {"8|1|NOTE:||"}}, CasoPulizia{{"8|1||||"}, {"8|1|NOTE:||NOTE:|"}},
                    CasoPulizia{{"2|1|N <P!>|", "2|2|<P!>|"}, {"2|1|N |", "2|2|NOTE:|"}},
                    CasoPulizia{{"testo||senza cifre <P!>"}, {"testo||senza cifre <P!>"}},
                    CasoPulizia{{"8|a|", "8|A|", "8|a|", "8|b|", "8|a|"}, {"8|a|", "8|b|", "8|a|"}},
                    CasoPulizia{{"8|\xE0|", "8|\xC0|"}, {"8|\xE0|"}},
                    CasoPulizia{{"8|1|", " 8|1|", "   "}, {"8|1|", "8|1|"}}));

TEST(Aggiorna, AncheLElencoPrendeIlTesto) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "2|1||", "2|1||"}));
  AggiornaLibrettoMisure(banco.ambiente);
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "2|1|NOTE:|"}));
}

TEST(Salva, ScriveLeRigheDiServizioInFondo) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "8|1|2|3|"}));
  banco.sessione.EstrattoAssociato = "X.EMP";
  banco.sessione.CodiceFiscale.clear();
  banco.sessione.NumeroIscrizione = "12";
  banco.sessione.Ditta = "Rossi\r\n   \r\n  Bianchi ";
  EXPECT_TRUE(SalvaLibrettoMisure(banco.ambiente));
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT"),
            Testo({Zero, Nove, "8|1|2|3|", "6|<EST>X.EMP|", "6|<COD>|", "6|<ISC>12|", "6|<DIT>Rossi|",
                   "6|<DIT>  Bianchi |", ""}));
  // without owners no empty line stands at the end
  banco.sessione.Ditta = "\r\n";
  EXPECT_EQ(TestoDaSalvare(banco.sessione), Testo({Zero, Nove, "8|1|2|3|", "6|<EST>X.EMP|", "6|<COD>|", "6|<ISC>12|"}));
}

TEST(Salva, CioCheLeRigheDiServizioNonTengonoDiventaSpazioESiDice) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove}));
  banco.sessione.Ditta = "ROSSI|MARIO\nVIA PO\r\nBIANCHI";
  banco.sessione.NumeroIscrizione = "1|2";
  SalvaLibrettoMisure(banco.ambiente);
  SalvaLibrettoMisure(banco.ambiente);
  EXPECT_EQ(banco.dialoghi.detti.size(), 1U) << "told once";
  banco.Apri(banco.disco.Contenuto("C:\\LIBRETTO.DAT"));
  EXPECT_EQ(banco.sessione.Ditta, "ROSSI MARIO VIA PO\r\nBIANCHI\r\n");
  EXPECT_EQ(banco.sessione.NumeroIscrizione, "1 2");
  EXPECT_EQ(banco.Righe().size(), 2U);
}

TEST(Salva, DuePassateSulleFineRiga) {
  Banco banco;
  banco.sessione.Libretto = "a\r\n\r\n\r\n\r\n\r\nb"; // five become three, then two
  EXPECT_TRUE(TestoDaSalvare(banco.sessione).starts_with("a\r\n\r\nb\r\n6|<EST>"));
  banco.sessione.Libretto = "a\r\n\r\n\r\nb";
  EXPECT_TRUE(TestoDaSalvare(banco.sessione).starts_with("a\r\nb\r\n6|<EST>"));
}

TEST(Salva, ApertoESalvatoDueVolteEUguale) {
  Banco banco;
  banco.Apri("\r\n1|100|1.5||\r\n\r\n2|1|x|\r\n2|1|X|\r\n7|1|\r\n6|<DIT>a|"
             "\r\n6|<DIT>b|\r\n");
  AggiornaLibrettoMisure(banco.ambiente);
  SalvaLibrettoMisure(banco.ambiente);
  const std::string prima = banco.disco.Contenuto("C:\\LIBRETTO.DAT");
  banco.Apri(prima);
  AggiornaLibrettoMisure(banco.ambiente);
  SalvaLibrettoMisure(banco.ambiente);
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT"), prima);
}

// Copies of the last good contents by their path; the mark of a save that is not known to be good is none.
std::map<std::string, std::string> Ultimi(const Banco& banco) {
  std::map<std::string, std::string> ultimi;
  for (const auto& [percorso, contenuto] : banco.disco.file)
    if (percorso.ends_with(".ULTIMO")) ultimi[percorso] = contenuto;
  return ultimi;
}

TEST(Salva, UnErroreLasciaLUltimaCopiaEIlSecondoNonLaGuasta) {
  Banco banco;
  const std::string vecchio = Testo({Zero, Nove, "8|1|2|3|"});
  banco.Apri(vecchio);
  SalvaLibrettoMisure(banco.ambiente);
  ASSERT_EQ(Ultimi(banco).size(), 1U);
  EXPECT_EQ(Ultimi(banco).begin()->second, vecchio);
  EXPECT_TRUE(banco.dialoghi.detti.empty());

  const std::string buono = banco.disco.Contenuto("C:\\LIBRETTO.DAT");
  banco.disco.corti["C:\\LIBRETTO.DAT"] = 10;
  for (const int volta : {1, 2}) {
    banco.dialoghi.detti.clear();
    EXPECT_FALSE(SalvaLibrettoMisure(banco.ambiente));
    EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT").size(), 10U);
    EXPECT_EQ(Ultimi(banco).begin()->second, buono) << "save number " << volta;
    ASSERT_EQ(banco.dialoghi.detti.size(), 2U);
    EXPECT_EQ(Maiuscolo(banco.dialoghi.detti[1].testo),
              Maiuscolo(std::string("L'ultimo contenuto valido del libretto è conservato in:\r\n"_w) +
                        Ultimi(banco).begin()->first));
  }
  banco.disco.corti.clear();
  EXPECT_TRUE(SalvaLibrettoMisure(banco.ambiente));
  EXPECT_EQ(Ultimi(banco).begin()->second, buono) << "what is cut is no good content";
  banco.disco.Metti("C:\\LIBRETTO.DAT", "x");
  EXPECT_TRUE(SalvaLibrettoMisure(banco.ambiente));
  EXPECT_EQ(Ultimi(banco).begin()->second, "x") << "after a good save the copy follows again";
}

TEST(Salva, UnFileDiSolaLetturaSiDice) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove}));
  banco.disco.rotti["C:\\LIBRETTO.DAT"] = errore::AccessoAlFile;
  EXPECT_FALSE(SalvaLibrettoMisure(banco.ambiente));
  EXPECT_EQ(banco.dialoghi.detti[0].testo,
            "Si è verificato questo errore : 75\r\nErrore nell'accesso al percorso o "
            "al file\r\no il "
            "file potrebbe essere di sola lettura!\r\nNella Routine SalvaLibrettoMisure"_w);
}

TEST(Salva, DueAttiDiUnNomeHannoDueCopie) {
  Banco banco;
  banco.disco.cartelle.insert(banco.disco.cartelle.end(), {"C:\\A", "C:\\B"});
  for (const char* cartella : {"C:\\A\\X.DAT", "C:\\B\\X.DAT"}) {
    banco.Apri(Testo({Zero, Nove, "6|" + std::string(cartella) + "|"}), cartella);
    EXPECT_TRUE(SalvaLibrettoMisure(banco.ambiente));
  }
  std::set<std::string> contenuti;
  for (const auto& [percorso, contenuto] : Ultimi(banco)) contenuti.insert(contenuto);
  EXPECT_EQ(contenuti.size(), 2U);
}

TEST(Salva, SenzaCartellaPerLaCopiaIlVecchioNonSiTocca) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove}));
  std::erase(banco.disco.cartelle, "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\TEMP");
  EXPECT_FALSE(SalvaLibrettoMisure(banco.ambiente));
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT"), Testo({Zero, Nove}));
  EXPECT_EQ(banco.dialoghi.detti.size(),
            1U); // the report alone: there is no copy to speak of
}

TEST(Esporta, SenzaRigheDiServizioESenzaCambiareNome) {
  Banco banco;
  banco.sessione.Libretto = "a\r\n\r\nb\r\n";
  banco.dialoghi.fileScelto = "C:\\zzz.dat";
  EXPECT_TRUE(SalvaLibrettoMisure(banco.ambiente)); // no name: the export asks
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "c:\\zzz.dat");
  EXPECT_EQ(banco.disco.Contenuto("C:\\ZZZ.DAT"), "a\r\nb\r\n");
  EXPECT_EQ(banco.sessione.NomeFileLibretto, "");
}

TEST(Esporta, AnnullareTace) {
  Banco banco;
  for (const char* scelta : {"*", "   "}) {
    banco.dialoghi.detti.clear();
    banco.dialoghi.fileScelto = scelta;
    EsportaLibrettoInFile(banco.ambiente);
    EXPECT_EQ(banco.dialoghi.detti.size(), 1U) << "only the file dialog itself";
  }
}

} // namespace
} // namespace lirmeto
