#include "censuario.h"

#include <base/numeri.h>
#include <proposte/archivio_particelle.h>
#include <proposte/contorno_particella.h>
#include <proposte/kr_edm.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>
#include <proposte/kr_tm_fusione.h>
#include <proposte/tipo_mappale.h>
#include <supporto/cod_fis.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Archivio;
using prova::BancoCensuario;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Estratto = "C:\\pregeo\\estratti\\X.EMP";
const std::string Zero = "0|12062024|P|G224|00010|35,36|PD|PUB|R|1|";
const std::string Anello = "7|4|1%|2%|3%|1%|NC|35|35|12.75|";

// A libretto of sheet 0010 with parcels 35 and 36, an extract with parcel 35.
struct BancoEdm : BancoCensuario {
  BancoEdm() {
    disco.Metti(Estratto, Testo({Zero, "8|1%|0|0|", "8|2%|0|5|", "8|3%|5|0|", Anello,
                                 "6|PARTICELLA|35|01|PRATO       |12||0|0|SN|", "6|DITTA|x|", "6|DISTORSIONE|1|",
                                 "6|INQUADRAMENTO|1|2|3|4|5|6|", "6|IGNOTA|", "5|x|"}));
    Apri(Testo({"0|01022024|7|G224|0010|35,36|ROSSI|G|PD|", "9|12|10|20|0|V|FR|T|"}), "C:\\ATTO.DAT");
    sessione.EstrattoAssociato = "X.EMP";
    disco.Metti(prova::Temp + "Modello Censuario.TXT", "35 = 12_35 = 12\r\n35 = 12_AAA = 12\r\n");
  }
};

TEST(Edm, ApreListeECaselle) {
  BancoEdm banco;
  banco.disco.Metti(Archivio + "G224_00020_9.MAP", "6|PARTICELLA|9|\r\n");
  KR_EDM form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_TRUE(banco.dialoghi.detti.empty()) << banco.dialoghi.UltimoTesto();
  EXPECT_EQ(form.Titolo, "Archivio Particelle - G224-0010  Libretto: ATTO.DAT Estratto: X.EMP");
  EXPECT_EQ(form.File1, (Righe{"G224_00010_35.MAP"})); // from the extract, of this sheet
  EXPECT_EQ(form.List1, (Righe{"35", "36"}));
  EXPECT_EQ(form.List3, (Righe{"35 = 12_AAA = 12"}));
  EXPECT_TRUE(form.Attivo(14) && form.InArchivio("35"));
  EXPECT_FALSE(form.InArchivio("36"));
  form.Premi(6);
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Impossibile continuare/Selezionare una Particella!");
  form.ClicList1(1); // not in the archive
  EXPECT_EQ(form.File1Indice, -1);
  form.ClicList1(0);
  EXPECT_EQ(form.Text1 + "/" + form.Text2 + "/" + form.Text3 + "/" + form.Text4 + "/" + form.Text5 + "/" + form.Text6 +
                "/" + form.Text7 + "/" + form.Text8 + "/" + form.Text9 + "/" + form.Text10 + "/" + form.Text11,
            "G224/00010/35/SN/PRATO       /01/12//0/0/005");
  form.Premi(12);
  EXPECT_EQ(form.File1.size(), 2U);
  EXPECT_EQ(form.File1Indice, 0); // the selected file stays selected
  form.ClicFile1(1);
  EXPECT_NE(banco.dialoghi.UltimoTesto().find("Nella Routine KR_EDM"), std::string::npos);
  form.Premi(13);
  EXPECT_EQ(form.File1.size(), 1U);
  form.Premi(19);
  EXPECT_EQ(form.Text4, "SR");
}

// A ring goes on behind its tenth name; one with a plus is the parcel's too, one with a minus is a hole.
TEST(Edm, IlContornoDellaParticella) {
  BancoEdm banco;
  banco.disco.Metti("C:\\P.DAT",
                    Testo({"6|ESTRATTO DI MAPPA|", "8|1%|0|0|", "8|2%|0|5|", "8|3%|5|0|", Anello,
                           "6|ESTRATTO DI MAPPA AGGIORNATO|", "8|4%|7|7|", "7|4|1%|2%|3%|1%|NC|36+|36+|12|",
                           "7|5|1%|3%|NC|AAA|AAA|1|", "7|0|4%|2%|1%|NC|", "7|3|2%|3%|2%|NC|AAA-|AAA-|0|"}));
  DisegnoCondiviso disegno;
  Grafica grafica(banco.ambiente, disegno);
  grafica.Vista().Check1 = true;
  grafica.KR_CaricaPropostaDaLibretto("C:\\P.DAT");
  const auto lati = [&](const char* nome) {
    std::string testo;
    for (const LineaGrafica& l : ContornoParticella(grafica, nome))
      for (const double numero : {l.X1, l.Y1, l.X2, l.Y2}) testo += TestoPieno(numero) + " ";
    return testo;
  };
  EXPECT_EQ(lati("AAA"), "0 0 0 5 0 5 7 7 7 7 5 0 5 0 0 0 ");
  EXPECT_EQ(lati("36"), "0 0 5 0 5 0 0 5 0 5 0 0 ");
  EXPECT_EQ(lati("35"), lati("36")) << "in the original extract alone";
  EXPECT_EQ(lati("37") + lati(""), "");
}

TEST(Edm, SalvaNellArchivioENellEstratto) {
  BancoEdm banco;
  KR_EDM form(banco.ambiente);
  form.AlCaricamento();
  form.ClicList1(0);
  form.Text5 = "prato irrig";
  form.Text6 = "7";
  form.Text8 = " ";
  form.Text9 = "1,5";
  form.Premi(2);
  const std::string riga = "6|PARTICELLA|35|07|prato irrig |12|12|0|1,5|SN|";
  EXPECT_EQ(form.Label2, riga);
  EXPECT_EQ(banco.disco.Contenuto(Archivio + "G224_00010_35.MAP"),
            "6|PARTICELLA|35|07|PRATO IRRIG |12|12|0|1.5|SN|\r\n");
  const std::string atteso = Testo({Zero, "8|1%|0|0|", "8|2%|0|5|", "8|3%|5|0|", Anello, "6|DITTA|x|", riga,
                                    "6|DISTORSIONE|1|", "6|INQUADRAMENTO|1|2|3|4|5|6|"});
  EXPECT_EQ(banco.disco.Contenuto(Estratto), atteso);
  form.Premi(14);
  EXPECT_EQ(banco.disco.Contenuto(Estratto), atteso) << "saved twice, one row";
  // An extract that cannot be written or that is gone: said, and nothing is made of it.
  banco.disco.rotti["C:\\PREGEO\\ESTRATTI\\X.EMP"] = 75;
  form.Premi(2);
  EXPECT_NE(banco.dialoghi.UltimoTesto().find(": 75"), std::string::npos) << banco.dialoghi.UltimoTesto();
  banco.disco.rotti.clear();
  banco.disco.Elimina(Estratto);
  form.Premi(2);
  EXPECT_NE(banco.dialoghi.UltimoTesto().find("Estratto non trovato: C:\\pregeo"), std::string::npos);
  EXPECT_FALSE(banco.disco.Esiste(Estratto));
  form.Text3 = "..\\x";
  form.Premi(2);
  EXPECT_NE(banco.dialoghi.UltimoTesto().find(": 52"), std::string::npos) << banco.dialoghi.UltimoTesto();
}

TEST(Edm, CaselleLasciate) {
  BancoCensuario banco;
  KR_EDM form(banco.ambiente);
  const std::pair<std::string, std::string> fogli[] = {{"12", "00012"},   {"123", "00123"}, {"12a", "0012A"},
                                                       {"1234", "01234"}, {"", ""},         {"123456", "23456"}};
  for (const auto& [scritto, letto] : fogli) {
    form.Text2 = scritto;
    form.LasciaText2();
    EXPECT_EQ(form.Text2, letto);
  }
  form.Text6 = "123";
  form.LasciaText6();
  EXPECT_EQ(form.Text6, "23");
  form.Text5 = "ROVO";
  form.LasciaText5();
  EXPECT_EQ(form.Text11, "ROVO");
}

// Each button opens its form on the chosen parcel, and some close the workbench behind it.
TEST(Edm, ApreLeForme) {
  const std::pair<int, std::string> casi[] = {{6, "Fraziona Particella 35/341"},
                                              {7, "Fraziona Particella 35/342"},
                                              {8, "Nuova Costruzione - Particella 35"},
                                              {9, "Variazione - Particella 35!"},
                                              {10, "Fraziona Particella 35!"},
                                              {11, "Fusione di Particelle"},
                                              {5, "CodFis"},
                                              {1, "!"}};
  for (const auto& [indice, atteso] : casi) {
    BancoEdm banco;
    banco.disco.Metti(prova::Temp + "Aree Per Censuario.txt", "6|X|\r\n");
    banco.finestre.disponibili = {"KR_EstrattiDiMappa1"};
    KR_EDM form(banco.ambiente);
    form.AlCaricamento();
    form.ClicList1(0);
    std::string vista;
    banco.finestre.utente = [&](Modello& modello) {
      if (auto* censuario = dynamic_cast<FormCensuario*>(&modello)) vista = censuario->Titolo;
      if (dynamic_cast<KR_Fraziona*>(&modello) != nullptr) vista += "/" + std::to_string(banco.sessione.ModoEditor);
      if (auto* comuni = dynamic_cast<KR_CodFis*>(&modello)) {
        vista = "CodFis";
        comuni->DoppioClic(1);
      }
    };
    form.Premi(indice);
    EXPECT_EQ(vista + (form.Chiusa ? "!" : ""), atteso);
    EXPECT_EQ(form.Text1, indice == 5 ? "L736" : "G224");
    if (indice == 9) {
      EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Attenzione!!!");
    }
    EXPECT_EQ(banco.finestre.aperte.size(), indice == 1 ? 1U : 0U);
  }
}

TEST(Edm, ArchivioDalLibretto) {
  BancoEdm banco;
  const auto riga = [](const std::string& dati) { return "6|" + dati + "                 |"; };
  const std::string frazionamento = "6|51FTP|000|" + prova::Bianchi57 + "|";
  banco.sessione.Libretto += Testo({prova::TestataCensuaria, "6|3SPC |000|" + prova::Bianchi57 + "|",
                                    riga("C|     |000|a |AAZ  |000000001|SN|  |     |282|  |"), frazionamento,
                                    riga("O|35   |000|  |     |000003016|SN|  |     |001|1 |"),
                                    riga("C|     |000|a |AAA  |000001561|SN|  |     |000|  |"),
                                    riga("C|     |000|b |10/2 |000000000|SN|  |     |000|  |"),
                                    riga("O|36   |000|  |     |000003016|SN|  |     |282|  |"),
                                    riga("C|     |000|a |AAA  |000000007|SN|  |     |000|  |"),
                                    riga("C|     |000|a |CORTA|000000007|SN|  |     |000|  |") + " "});
  KR_EDM form(banco.ambiente);
  form.Premi(15);
  EXPECT_EQ(ParticelleDelLibretto(banco.sessione),
            (std::vector<FileParticella>{{"G224_00010_AAA.MAP", "6|PARTICELLA|AAA|00|282         |7|7|0|0|"},
                                         {"G224_00010_10_2.MAP", "6|PARTICELLA|10/2|01|001         |||0|0|"}}));
  EXPECT_EQ(banco.disco.Contenuto(Archivio + "G224_00010_AAA.MAP"), "6|PARTICELLA|AAA|00|282         |7|7|0|0|\r\n");
  EXPECT_EQ(form.File1.size(), 2U);
  form.Premi(12);
  form.ClicFile1(0);
  form.Premi(3);
  EXPECT_EQ(form.File1, (Righe{"G224_00010_AAA.MAP"}));
  banco.disco.Metti(Archivio + "ALTRO.MAPPA", "x");
  banco.disco.Metti(Archivio + "ALTRO.TXT", "x");
  form.Premi(18);
  EXPECT_EQ(form.File1.size(), 0U);
  EXPECT_EQ(banco.disco.Elenca(Archivio, ""), (Righe{"ALTRO.TXT"}));
}

TEST(Edm, ArchivioDallEstratto) {
  BancoEdm banco;
  KR_EDM form(banco.ambiente);
  form.AlCaricamento();
  banco.disco.file.erase("C:\\FIDUCIAL\\PARTICELLE\\G224_00010_35.MAP");
  form.Premi(16);
  EXPECT_EQ(banco.disco.Contenuto(Archivio + "G224_00010_35.Map"), "6|PARTICELLA|35|01|PRATO       |12||0|0|SN|\r\n");
  EXPECT_EQ(form.File1, (Righe{"G224_00010_35.MAP"}));
  banco.sessione.Foglio = "0100"; // 10 and its annex, which the extract writes 00010
  form.Premi(13);
  EXPECT_EQ(form.File1, Righe{});
  form.Premi(16);
  form.AllAttivazione(); // as after a form of its own
  EXPECT_EQ(form.File1, (Righe{"G224_00010_35.MAP"}));
  banco.sessione.Foglio = "0010";
  const std::string anelli = Testo(
      {"0|x|", Anello, "7|0|11%|NC|", "7|4|1%|NC|35-|35-|1|", "7|4|1%|NC|35+|35+|1|", "7|3|1L|2L|NT|", "7|3|1%|NP|"});
  EXPECT_EQ(ParticelleDellEstratto(banco.sessione, anelli),
            (std::vector<FileParticella>{{"G224_00010_35.Map", "6|PARTICELLA|35|  |            |12.75|12.75|0|0|"}}));
  banco.disco.Elimina(Estratto);
  form.Premi(16);
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Estratto non trovato/\r\nL'Estratto " + Estratto + "\r\nNon esiste!");
  banco.sessione.EstrattoAssociato.clear();
  form.Premi(16);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Estratto NON Associato!");
  form.AllAttivazione();
  EXPECT_FALSE(form.Attivo(14) || form.Attivo(16) || form.Attivo(1));
}

} // namespace
} // namespace lirmeto
