// The header form: what its boxes show, its lists, its buttons.
#include "sportello.h"

#include <base/errore.h>
#include <base/testo.h>
#include <intestazione/catasto1_righe.h>
#include <pregeo/catasto1_file.h>
#include <supporto/cod_fis.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Catasto;
using prova::Lista;
using prova::Nove;
using prova::Programma;
using prova::Sportello;
using prova::Testo;
using prova::ZeroDiOggi;
using Testi = std::vector<std::string>;

// --- load

TEST(Catasto1, AperturaRiempieLeCaselleDaIniELibretto) {
  Sportello sala({"0|010224|7|G224|12A|12,3|DE ROSSI ANNA MARIA|INGEGNERE|VENEZIA|", "9|12.6|10|||VER|FR|", "6|ciao|"});
  sala.disco.Metti("C:\\pregeo\\exe\\collegi.txt", "PADOVA , PD\r\nROVIGO,RO");
  sala.form.AlCaricamento();
  EXPECT_EQ(Testi(sala.form.Caselle().Testi().begin(), sala.form.Caselle().Testi().end()),
            (Testi{"010224",
                   "7",
                   "G224",
                   "12A",
                   "12,3",
                   "DE",
                   "INGEGNERE",
                   "VENEZIA",
                   "13",
                   "10",
                   "20",
                   "0",
                   "VER",
                   "FR",
                   "GEODIMETRO INTEGRATO",
                   "ciao",
                   "1234",
                   "RSSMRA70A01G224K",
                   "",
                   "ROSSI ANNA MARIA"}));
  EXPECT_EQ(sala.form.Elenchi().Voci(Elenco::Provincia), (Testi{"PADOVA", "ROVIGO"}));
  EXPECT_EQ(sala.form.ComuneInCasella(), "PADOVA (PD)");
  EXPECT_EQ(sala.sessione.EsitoForm, EsitoAnnullato);
  EXPECT_TRUE(sala.disco.Contenuto(Programma + "\\TIPOLOGIASTRUMENTAZIONE.INI").starts_with("MISURE ASSENTI\r\n"));
  EXPECT_EQ(LeggiVoci(sala.disco.Contenuto(Programma + "\\SALVACOMMENTO.INI")),
            sala.form.Elenchi().Voci(Elenco::Commento));
  EXPECT_TRUE(sala.dialoghi.detti.empty()) << sala.dialoghi.UltimoTesto();
}

TEST(Catasto1, SenzaLibrettoValgonoIPredefinitiDelTecnico) {
  Sportello sala;
  sala.disco.Metti(Catasto, "0|01012025|3|L736|0020|5|ROSSI||\n9|7\n6|a|b|\n");
  sala.sessione.Libretto.clear();
  sala.form.AlCaricamento();
  EXPECT_EQ(sala.Casella(casella::Comune) + sala.Casella(casella::Cognome) + "/" + sala.Casella(casella::Nome),
            "L736ROSSI/MARIO");
  EXPECT_EQ(sala.Casella(casella::Qualifica), "GEOMETRA"); // an empty field is the default's
  EXPECT_EQ(sala.Casella(casella::QuotaMedia) + sala.Casella(casella::Tipologia), "7FR");
  EXPECT_EQ(sala.Casella(casella::Commento), "a b");
}

TEST(Catasto1, SurnameOfSeveralWordsStaysThatOfPregeoIni) {
  Sportello sala({"0|010224|7|G224|12A|12,3|De Rossi Anna|INGEGNERE|VENEZIA|", Nove});
  sala.sessione.RighePregeoIni = {"[x]", "cognome=DE ROSSI", "nome=ANNA", ""};
  sala.form.AlCaricamento();
  EXPECT_EQ(sala.Casella(casella::Cognome) + "/" + sala.Casella(casella::Nome), "DE ROSSI/ANNA");
}

struct CasoCommento {
  Testi righe;
  std::string commento;
};

class CommentoMostrato : public testing::TestWithParam<CasoCommento> {};

TEST_P(CommentoMostrato, DalTerzoPosto) {
  EXPECT_EQ(CommentoDelleRighe(Lista(GetParam().righe)), GetParam().commento);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, CommentoMostrato,
    testing::Values(CasoCommento{{"0|", "9|"}, ""}, CasoCommento{{"0|", "9|", "6|uno|"}, "uno"},
                    CasoCommento{{"0|", "9|", "6|uno|due|"}, ""}, CasoCommento{{"0|", "9|", "9|x|", "6|uno|"}, "uno"},
                    CasoCommento{{"0|", "9|", "8|x|", "6|uno|"}, ""},
                    CasoCommento{{"0|", "9|", "6|DettaglioTipoAgg=1|2|"}, "DettaglioTipoAgg=12"},
                    CasoCommento{{"0|", "9|", "6|***** Relazione  Tecnica *****|"}, ""},
                    CasoCommento{{"0|", "9|", "6|ESTRATTO DI MAPPA|"}, ""},
                    CasoCommento{{"0|", "9|", "6|" + std::string(72, 'x') + "|"}, std::string(72, 'x')},
                    CasoCommento{{"0|", "9|", "6|" + std::string(73, 'x') + "|"}, ""}));

// --- boxes

struct CasoLascia {
  std::size_t casella;
  std::string testo;
  std::string dopo;
};

class LasciaCasella : public testing::TestWithParam<CasoLascia> {};

TEST_P(LasciaCasella, SiNormalizza) {
  Sportello sala;
  sala.Apri();
  sala.form.Cambia(GetParam().casella, GetParam().testo);
  sala.form.Lascia(GetParam().casella);
  EXPECT_EQ(sala.Casella(GetParam().casella), GetParam().dopo);
  if (GetParam().casella == casella::Data) {
    EXPECT_EQ(sala.sessione.DataLibretto, GetParam().dopo);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Casi, LasciaCasella,
    testing::Values(CasoLascia{casella::Data, "010287", "01022087"}, CasoLascia{casella::Data, "010288", "01021988"},
                    CasoLascia{casella::Data, "01022024", "01022024"}, CasoLascia{casella::Data, "1/2/24", "1/2/24"},
                    CasoLascia{casella::Foglio, "7", "0007"}, CasoLascia{casella::Foglio, "12a", "0012a"},
                    CasoLascia{casella::Foglio, "12345", "12345"}, CasoLascia{casella::Foglio, "", ""},
                    CasoLascia{casella::Mappali, "12,3,12", "3,12"}, CasoLascia{casella::Mappali, "", ""},
                    CasoLascia{casella::PrecisioneLineare, " ", "10"}, CasoLascia{casella::PrecisioneLineare, "5", "5"},
                    CasoLascia{casella::PrecisioneAngolare, "", "20"},
                    CasoLascia{casella::Versione, "", "PREGEO 10.00-G,APAG 2.12"},
                    CasoLascia{casella::Tipologia, "", "FR"}, CasoLascia{casella::EstMedio, "", "0"},
                    CasoLascia{casella::EstMedio, "5", "5"}, CasoLascia{casella::Commento, "a|b\r\nc", "a b  c"}));

// --- rows 8

TEST(Catasto1, EstMedioEQuotaMediaDalleRigheGiuste) {
  const ListaRighe righe =
      Lista({"1|8|1|2|", "8|PF01/0010/G224|-5343.646|-4209.233|12|SPIGOLO|", "8|PF01/0010/G224|14.930|02|SPIGOLO|",
             "8|1%|-100.000|-4402.650|", "8|7|1|", "8|PF02/0010/G224|1|99999|", "8|PF09/0010/G224|16.700|04|CABINA|"});
  EXPECT_EQ(EstMedioDelleRighe(righe), (-4209.233 - 4402.650) / 2);
  EXPECT_EQ(QuotaMediaDelleRighe(righe), (1 + 16.7) / 2);
  EXPECT_FALSE(EstMedioDelleRighe(Lista({"8|1|2|"})));
  EXPECT_FALSE(QuotaMediaDelleRighe(Lista({"8|1|", "7|1|2|"})));
  Sportello sala({ZeroDiOggi, Nove, "8|a|1.0|1.0e308|n|", "8|b|2.0|9.0e307|n|"});
  sala.Apri();
  sala.form.Premi(7); // does not overflow
  EXPECT_TRUE(sala.Casella(casella::EstMedio).starts_with("95000000"));
  sala.form.Premi(4);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "Nessuna quota nelle righe 8!");
}

// --- buttons

TEST(Catasto1, PredefinitiSalvatiRilettiEliminati) {
  Sportello sala;
  sala.disco.Metti(Catasto, "vecchia\nvecchia\nvecchia\nresta\ncosi");
  sala.Apri();
  sala.form.Cambia(casella::Commento, "Prova");
  sala.form.Premi(2);
  EXPECT_EQ(sala.disco.Contenuto(Catasto), "0|21112026|7|G224|0010|12,3|ROSSI|GEOMETRA|PADOVA|\n"
                                           "9|12|10|20|0|VER|FR|TOTALE|\n6|PROVA|\nresta\ncosi");
  const Catasto1 letto = LeggiCatasto1(sala.disco.Contenuto(Catasto));
  EXPECT_EQ(letto.zero[5] + letto.nove[6] + letto.commento, "ROSSITOTALEPROVA");
  sala.form.Premi(22);
  sala.form.Premi(22); // not there: nothing
  EXPECT_FALSE(sala.disco.Esiste(Catasto));
  sala.form.Premi(2);
  EXPECT_TRUE(sala.disco.Contenuto(Catasto).ends_with("|\r\n6|PROVA|\r\n"));
  EXPECT_TRUE(sala.dialoghi.detti.empty());
  EXPECT_EQ(LeggiCatasto1("").commento + LeggiCatasto1("0|\n9|\n6|").commento, "");
}

TEST(Catasto1, ElenchiAllungatiAccorciatiTenuti) {
  const std::string strumenti = Programma + "\\TIPOLOGIASTRUMENTAZIONE.INI";
  Sportello sala;
  sala.disco.Metti(strumenti, "a=\"b\"\n\n  \nSTAZIONE"); // no line end at the end
  sala.Apri();
  EXPECT_EQ(sala.form.Elenchi().Voci(Elenco::Strumentazione), (Testi{"a=\"b\"", "STAZIONE"}));
  sala.form.Cambia(casella::Strumentazione, "stazione");
  sala.form.Premi(16);
  EXPECT_TRUE(Contiene(sala.dialoghi.UltimoTesto(), "nell'Archivio!"));
  sala.form.Premi(17);
  EXPECT_EQ(sala.disco.Contenuto(strumenti), "a=\"b\"\r\n");
  sala.form.Cambia(casella::Commento, "DEROGA");
  sala.form.Premi(20);
  sala.form.Cambia(casella::Qualifica, "GEOMETRA");
  sala.form.Premi(11);
  sala.form.Premi(30);
  EXPECT_EQ(sala.form.Elenchi().Voci(Elenco::Strumentazione).size(), 12U);
  EXPECT_EQ(sala.form.Elenchi().Voci(Elenco::Commento).size(), 9U);
  EXPECT_EQ(sala.form.Elenchi().Voci(Elenco::Qualifica).size(), 8U);
  sala.form.Scegli(Elenco::Tipologia, 3);
  sala.form.Scegli(Elenco::Tipologia, 99);
  EXPECT_EQ(sala.Casella(casella::Tipologia), "CM");
  sala.disco.rotti[Maiuscolo(strumenti)] = errore::AccessoAlFile;
  FormCatasto1TXT altra(sala.ambiente);
  altra.AlCaricamento(); // a list that could not be read is not written over
  sala.disco.rotti.clear();
  altra.Cambia(casella::Commento, "nuovo");
  altra.Premi(18);
  EXPECT_EQ(LeggiVoci(sala.disco.Contenuto(strumenti)).size(), 12U);
  EXPECT_TRUE(sala.disco.Contenuto(Programma + "\\SALVACOMMENTO.INI").ends_with("nuovo\r\n"));
}

TEST(Catasto1, TecniciScelti) {
  Sportello sala;
  sala.disco.Metti(Programma + "\\TECNICI\\BIANCHI LUCA UGO.PFS",
                   "\"BIANCHI LUCA UGO\",\"INGEGNERE\",\"ROVIGO\"\n\n9,CF");
  sala.disco.Metti(Programma + "\\TECNICI\\X.PFS",
                   "\"X, Y\",\"Q\",\"P\"\r\n1,2,S\r\n5,CF\r\nDE X\r\nY\r\nvia"); // a comma shifts
  sala.Apri();
  sala.form.Cambia(casella::PrecisioneLineare, "99");
  sala.form.Premi(21);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), "Selezionare un Tecnico!");
  sala.form.ScegliTecnico(0);
  EXPECT_EQ(sala.Casella(casella::Cognome) + "/" + sala.Casella(casella::Nome), "BIANCHI/LUCA UGO");
  EXPECT_EQ(sala.Casella(casella::Qualifica) + sala.Casella(casella::PrecisioneLineare), "INGEGNERE10");
  sala.form.ScegliTecnico(1);
  EXPECT_EQ(sala.Casella(casella::Iscrizione) + sala.Casella(casella::Nome), "SDE X");
  sala.form.Premi(14);
  EXPECT_EQ(sala.form.Tecnici().File().size(), 2U); // No
  sala.dialoghi.risposte = {Risposta::Si};
  sala.form.Premi(14);
  EXPECT_EQ(sala.form.Tecnici().File(), (Testi{"BIANCHI LUCA UGO.PFS"}));
  EXPECT_FALSE(sala.disco.Esiste(Programma + "\\TECNICI\\X.PFS"));
  sala.disco.Metti(Programma + "\\TECNICI\\ALTRO.PFS", "");
  sala.Apri();
  sala.form.ScegliTecnico(0);
  sala.dialoghi.risposte = {Risposta::Si, Risposta::Si};
  for (int volta = 0; volta < 2; ++volta) sala.form.Premi(14);
  EXPECT_EQ(sala.form.Tecnici().File(), (Testi{"BIANCHI LUCA UGO.PFS"})) << "the next in the list was not chosen";
}

TEST(Catasto1, QuotaComuneEstrattoEMisurate) {
  Sportello sala;
  sala.Apri();
  sala.form.Premi(5);
  EXPECT_EQ(sala.dialoghi.UltimoTesto(), Programma + "\\QUOTAMEDIA.TXT\r\nNon Trovato!");
  sala.disco.Metti(Programma + "\\QUOTAMEDIA.TXT", "G224|PADOVA|12\nL736|VENEZIA|1\nG224|PADOVA|13");
  sala.form.Premi(5);
  EXPECT_EQ(sala.Casella(casella::QuotaMedia), "13");
  sala.form.Premi(6); // nothing taken
  EXPECT_EQ(sala.Casella(casella::Comune), "G224");
  sala.finestre.utente = [](Modello& modello) {
    auto& ricerca = dynamic_cast<KR_CodFis&>(modello);
    ricerca.CambiaText1("goriz");
    ricerca.CopiaCodiceFiscale();
  };
  sala.form.Premi(6);
  EXPECT_EQ(sala.Casella(casella::Comune), "E098");
  EXPECT_EQ(sala.sessione.EsitoForm, EsitoAnnullato); // that of this form
  sala.form.Premi(23);
  EXPECT_EQ(sala.sessione.MisurateAssociate, "");
  sala.form.Premi(27);
  EXPECT_EQ(sala.Casella(casella::Foglio), "0010"); // no extract: nothing changes
  sala.disco.Metti("C:\\pregeo\\estratti\\E.EMP", "0|06052024|P|L736|00123|45|PD|PUB|R|1|\r\n8|1%|-5.0|-4.0|\r\n");
  sala.sessione.EstrattoAssociato = "E.EMP";
  sala.form.Premi(27);
  EXPECT_EQ(sala.Casella(casella::Comune) + sala.Casella(casella::Foglio) + sala.Casella(casella::Mappali),
            "L736012312,3");
}

TEST(Catasto1, LibrettoSingoloDopoLaCopia) {
  Sportello sala;
  sala.disco.Metti("C:\\pregeo\\arch\\arch2.db", "vecchio");
  sala.Apri();
  sala.form.NomeBackupArch2 = "C:\\altro\\";
  sala.form.Premi(8);
  EXPECT_TRUE(sala.dialoghi.UltimoTesto().starts_with("Il File C:\\altro\\arch2.db\r\n"));
  EXPECT_EQ(sala.dialoghi.detti.back().titolo, "Usa Libretto Singolo");
  sala.disco.Metti("C:\\altro\\arch2.db", "nuovo");
  sala.form.Premi(8);
  EXPECT_EQ(sala.disco.Contenuto("C:\\pregeo\\arch\\arch2.db"), "nuovo");
  EXPECT_EQ(sala.disco.Contenuto("C:\\pregeo\\arch\\BackupDB\\ACT_2026-11-21_09-05-07.db"), "vecchio");
  EXPECT_EQ(sala.form.NomeBackupArch2, "");
}

TEST(Catasto1, PostoSulloSchermo) {
  Sportello sala;
  sala.impostazioni.valori["POSIZIONE_FORMx/FormCatasto1TXT"] = "1e300";
  sala.impostazioni.valori["POSIZIONE_FORMy/FormCatasto1TXT"] = "-7";
  sala.Apri();
  ASSERT_TRUE(sala.form.PostoSalvato);
  EXPECT_EQ(sala.form.PostoSalvato->sinistra, 32767);
  EXPECT_EQ(sala.form.PostoSalvato->alto, -7);
}

TEST(Catasto1, NuovoLibrettoApreLaFormEMostraCioCheConferma) {
  Sportello sala;
  sala.finestre.disponibili = {"FormCatasto1TXT"};
  KR_LibrettoOriginale finestra(sala.ambiente);
  finestra.Esegui(Comando::NuovoLibretto);
  EXPECT_EQ(sala.finestre.aperte, Testi{"FormCatasto1TXT"});
}

} // namespace
} // namespace lirmeto
