#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/libretto_in_classi.h>
#include <core/mostra_errore.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

const std::string Nove = "9|12|10|20|-1000|VER|FR|TOTALE|";
const std::string ZeroPredefinita = "0|21112026|1|G693|0010|1|COGNOME NOME|GEOMETRA|PADOVA|";
const std::string NovePredefinita = "9|20|10|20|1070|10.00-G,STDA 2.08|18|TIPO SENZA GEOMETRIA|";

TEST(Apertura, LeRigheDiServizioVannoNellaSessione) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "6|<EST>A>B.EMP|resto|", "1|100|1.5|", "6|<COD>RSSMRA|", "6|<ISC>99|",
                    "6|<DIT>Rossi Mario|", "", "6|<DIT>nato a Padova|", "8|1|2|3|"}));
  const Sessione& s = banco.sessione;
  EXPECT_EQ(s.Libretto, Testo({Zero, Nove, "1|100|1.5|", "8|1|2|3|"}));
  EXPECT_EQ(s.EstrattoAssociato,
            "A>B.EMP"); // all that stands behind the first mark
  EXPECT_EQ(s.CodiceFiscale, "RSSMRA");
  EXPECT_EQ(s.NumeroIscrizione, "99");
  EXPECT_EQ(s.Ditta, "Rossi Mario\r\nnato a Padova\r\n");
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "1|100|1.5|", "8|1|2|3|"}));
}

struct CasoElenco {
  std::string nome;
  std::string testo;
  Righe righe;
};

class Elenco : public testing::TestWithParam<CasoElenco> {};

TEST_P(Elenco, RigheZeroENoveAlLoroPosto) {
  Banco banco;
  banco.Apri(GetParam().testo);
  EXPECT_EQ(banco.Righe(), GetParam().righe);
  EXPECT_EQ(banco.sessione.EtichettaPosizione, "0 / " + std::to_string(GetParam().righe.size()));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Elenco,
    testing::Values(
        CasoElenco{"soloZero", Zero + "\r\n", {Zero, NovePredefinita}},
        CasoElenco{"soloNove", Nove + "\n", {ZeroPredefinita, Nove, NovePredefinita}},
        CasoElenco{
            "nessunaTestata", "1|100|1.5|\n2|1|2|3|\n", {ZeroPredefinita, NovePredefinita, "1|100|1.5|", "2|1|2|3|"}},
        CasoElenco{"noveTerza", Testo({Zero, "1|1|2|", Nove}), {Zero, NovePredefinita, "1|1|2|", Nove}},
        CasoElenco{"testoSenzaCifre", Testo({"ciao", Nove}), {"ciao", Nove}},
        CasoElenco{"righeCorte", Testo({Zero, Nove, "8|", "8|1", "  1| "}), {Zero, Nove, "8|1"}},
        CasoElenco{"bianchiETab", Testo({Zero, Nove, "  8|1|  ", "\t8|2|"}), {Zero, Nove, "8|1|", "\t8|2|"}},
        CasoElenco{"primaRigaVuota", "\n\n" + Testo({Zero, Nove, "", "", "8|1|"}), {Zero, Nove, "8|1|"}},
        CasoElenco{"soloCr", Zero + "\r" + Nove + "\r8|1|", {Zero, Nove, "8|1|"}}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Apertura, LaPrimaRigaVuotaRestaUnaSola) {
  Banco banco;
  banco.Apri("\r\n\r\n\r\n" + Zero + "\r\n\r\n\r\n" + Nove);
  EXPECT_EQ(banco.sessione.Libretto, "\r\n" + Zero + "\r\n" + Nove + "\r\n");
}

TEST(Apertura, OgniByteTornaComEra) {
  Banco banco;
  std::string riga = "8|";
  for (int i = 1; i < 256; ++i) // a zero byte is none of a libretto
    if (i != '\r' && i != '\n') riga += static_cast<char>(i);
  riga += "|";
  banco.Apri(Testo({Zero, Nove, riga}));
  EXPECT_EQ(banco.Righe().back(), riga);
}

TEST(Apertura, UnFileCheMancaNonTocca) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove}));
  ApriLibretto(banco.ambiente, "C:\\ALTRO.DAT");
  EXPECT_EQ(banco.sessione.Libretto, Testo({Zero, Nove}));
  EXPECT_EQ(banco.sessione.NomeFileLibretto, "C:\\ALTRO.DAT");
}

class FileRotto : public testing::TestWithParam<std::string> {};

TEST_P(FileRotto, LasciaTuttoComEra) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "6|<DIT>Rossi|", "8|1|2|3|"}));
  const Righe prima = banco.Righe();
  banco.disco.rotti["C:\\ROTTO.DAT"] = errore::AutorizzazioneNegata;
  banco.disco.rotti["C:\\ROTTO.LXB"] = errore::AccessoAlFile;
  banco.disco.Metti("C:\\VUOTO.PDF", "%PDF-1.4 senza sezioni [TAG1000] rotta [TAG2000[/TAG");
  banco.disco.cartelle.emplace_back("C:\\CARTELLA.DAT");
  EXPECT_FALSE(Intrappola(banco.ambiente, [&] { ApriLibretto(banco.ambiente, GetParam()); }));
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_EQ(banco.dialoghi.detti.back().gravita, Gravita::Critico);
  EXPECT_EQ(banco.sessione.Libretto, Testo({Zero, Nove, "8|1|2|3|"}));
  EXPECT_EQ(banco.sessione.Ditta, "Rossi\r\n");
  EXPECT_EQ(banco.Righe(), prima);
  EXPECT_EQ(banco.sessione.NomeFileLibretto,
            "C:\\LIBRETTO.DAT"); // a later save must not write over the file
                                 // that failed
}

INSTANTIATE_TEST_SUITE_P(Tutti, FileRotto,
                         testing::Values("C:\\ROTTO.DAT", "C:\\ROTTO.LXB", "C:\\VUOTO.PDF", "C:\\CARTELLA.DAT",
                                         "C:\\MANCA.PDF"));

TEST(Lxb, SostituisceSoloLeMisure) {
  Banco banco;
  banco.disco.Metti("C:\\ACT.LXB", "1|200|1.6|N|\r\n2|20|10.0|100.0|5.0|1.5|N|\r\n2|21|1,2,3|c|\r\n3|2|200|"
                                   "300|\r\n6|sopra il "
                                   "contorno|\r\n7|2|1|2|NC|\r\n6|prima di "
                                   "gps|\r\n2|22|1,1,1|c|\r\n6|persa|\r\n8|9|9|9|\r\n4|A|B|1|\r\n");
  banco.Apri(Testo({Zero, Nove, "6|commento|", "1|100|1.5|N|", "2|1|5.0|100.0|9.0|1.5|N|", "3|1|100|", "4|X|Y|2|",
                    "7|1|1|NC|", "8|1|2|3|"}),
             "c:\\act.dat");
  banco.Apri(banco.disco.Contenuto("C:\\ACT.DAT"), "C:\\ACT.DAT");
  ApriLibretto(banco.ambiente, "C:\\act.lxb");
  EXPECT_EQ(banco.sessione.NomeFileLibretto, "C:\\ACT.DAT");
  EXPECT_EQ(banco.sessione.Libretto,
            Testo({Zero, Nove, "6|commento|", "3|2|200|300|", "2|21|1,2,3|c|", "6|prima di gps|", "2|22|1,1,1|c|",
                   "1|200|1.6|N|", "2|20|10.0|100.0|5.0|1.5|N|", "4|A|B|1|", "6|sopra il contorno|", "7|2|1|2|NC|",
                   "8|1|2|3|"}));
  EXPECT_EQ(prova::Copia(banco.sessione.RigheScartate), (Righe{"6|persa|", "8|9|9|9|"}));
}

TEST(Lxb, VuotoNonCambiaESenzaDatSiUnisceAllaSessione) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "1|100|1.5|N|", "8|1|2|3|"}));
  banco.disco.Metti("C:\\SOLO.LXB", "");
  ApriLibretto(banco.ambiente, "C:\\SOLO.LXB");
  EXPECT_EQ(banco.sessione.Libretto, Testo({Zero, Nove, "1|100|1.5|N|", "8|1|2|3|"}));
  banco.disco.Metti("C:\\SOLO.LXB", "1|200|1.5|N|");
  ApriLibretto(banco.ambiente, "C:\\SOLO.LXB");
  EXPECT_EQ(banco.sessione.Libretto, Testo({Zero, Nove, "1|200|1.5|N|", "8|1|2|3|"}));
}

TEST(Proposta, DallaSuaTestataAllaFine) {
  Banco banco;
  banco.sessione.Libretto = Testo({Zero, "6|ESTRATTO DI MAPPA| ", "6|ESTRATTO DI MAPPA|", " 8|1| ", "7|1|"});
  CatturaPropostaInLibretto(banco.sessione);
  EXPECT_EQ(banco.sessione.PropostaLibretto, Testo({"6|ESTRATTO DI MAPPA|", "8|1|", "7|1|"}));
  banco.sessione.Libretto = Testo({Zero, Nove});
  CatturaPropostaInLibretto(banco.sessione);
  EXPECT_EQ(banco.sessione.PropostaLibretto, "");
}

const std::string PdfIntero = "%PDF\n[TAG1000]|" + Zero + "<nr>" + Nove +
                              "[/TAG1000]x[TAG2000]|1|1|2|<nr>8|1|2|3|<nr>[/TAG"
                              "[TAG3000]|0|01012020|VE1/2020|G224|[/TAG3000][TAG4000]|9|Rossi 9| "
                              "Mario\\<nr>via 9|[/TAG4000]"
                              "[TAG5000]|altro|[/TAG][TAG777]|ignota|[/TAG]";

TEST(Pdf, SezioniDelLibretto) {
  Banco banco;
  banco.disco.Metti("C:\\pregeo\\estratti\\AAA.EMP", "0|01012020|VE9/2020|G224|\r\n");
  banco.disco.Metti("C:\\pregeo\\estratti\\BBB.EMP", "0|01012020|ve1/2020|G224|\r\n7|1|");
  banco.Apri(PdfIntero, "C:\\Atto.pdf");
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "1|1|2|", "8|1|2|3|"}));
  EXPECT_EQ(banco.sessione.NomeFileLibretto, "C:\\ATTO.TXT");
  EXPECT_EQ(banco.sessione.EstrattoAssociato, "BBB.EMP");
  EXPECT_EQ(banco.sessione.Ditta, "Rossi 9 Mario\r\nvia 9");
  EXPECT_EQ(prova::Copia(banco.sessione.RigheScartate), (Righe{"[TAG777]|ignota|"}));
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

TEST(Pdf, UnaFineRigaDentroLaSezioneChiudeLaRiga) {
  Banco banco;
  banco.Apri("[TAG1000]|\r\n" + Zero + "<nr>\n" + Nove +
                 "<nr>\r[/TAG][TAG2000]|8|1|2|3|\n8|4|5|6|[/TAG][TAG4000]|A\nB<nr>C[/TAG]",
             "C:\\A.PDF");
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "8|1|2|3|", "8|4|5|6|"}));
  EXPECT_EQ(banco.sessione.Ditta, "A\r\nB\r\nC");
}

struct CasoEstratto {
  std::string sezione3000;
  std::string primoEmp;
  std::string trovato;
  bool avviso;
};

class EstrattoDelPdf : public testing::TestWithParam<CasoEstratto> {};

TEST_P(EstrattoDelPdf, CercatoSoloQuandoCE) {
  Banco banco;
  banco.disco.Metti("C:\\pregeo\\estratti\\A.EMP", GetParam().primoEmp);
  banco.disco.Metti("C:\\pregeo\\estratti\\B.EMP", "0|x|ID|\r\n");
  banco.Apri("[TAG2000]|8|1|2|3|[/TAG]" + GetParam().sezione3000, "C:\\A.PDF");
  EXPECT_EQ(banco.sessione.EstrattoAssociato, GetParam().trovato);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(),
            GetParam().avviso ? "Estratto Associato non trovato nella cartella Estratti di Pregeo." : "");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, EstrattoDelPdf,
    testing::Values(CasoEstratto{"", "0|x|Y|\n", "", false},
                    CasoEstratto{"[TAG3000]|0|x|id|[/TAG]", "0|x|Y|\n", "B.EMP", false},
                    CasoEstratto{"[TAG3000]|0|x|id|[/TAG]", "\r\n0|x|ID|\n", "", true}, // stops the search
                    CasoEstratto{"[TAG3000]|0|x|id|[/TAG]", "senza barre\n", "B.EMP", false},
                    CasoEstratto{"[TAG3000]|0|x|Autoallestito|[/TAG]", "0|x|AUTOALLESTITO|\n", "", false},
                    CasoEstratto{"[TAG3000]|0|x[/TAG]", "0|x\n", "", true}, // no identifier is no extract's
                    CasoEstratto{"[TAG3000]|0|x|ALTRO|[/TAG]", "0|x|Y|\n", "", true}));

} // namespace
} // namespace lirmeto
