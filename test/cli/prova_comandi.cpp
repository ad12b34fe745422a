#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>

namespace lirmeto::prova {

namespace fs = std::filesystem;

namespace {

// Line ends of three kinds, a repeated row in another case, an empty note, a row too short, tag rows in the middle.
constexpr std::string_view Disordinato = "0|22062018|18|D704|0010|12,3||GEOMETRA|PADOVA|\r\n"
                                         "9|0|10|20|1725|10.00-G,APAG 2.12|TM|GEODIMETRO INTEGRATO|\n"
                                         "6|CONFERMA|\n"
                                         "8|PF01/0010/D704|10.000|20.000|\r\n"
                                         "6|<EST>X.EMP|\r\n"
                                         "1|100|1.430||\r"
                                         "2|5|10.0000|38.944|citt\xE0<P!>|\r\n"
                                         "2|5|10.0000|38.944|CITT\xC0<P!>|\r\n"
                                         "2|10|20.0000|38.944|SP|\r\n"
                                         "  2|2|30.0000|38.944|SP|  \r\n"
                                         "ab\r\n"
                                         "6|<DIT>Bianchi \xC8lia|\r\n"
                                         "6|<ISC>77|\r\n"
                                         "7|3|5|10|2|NC|\r\n";

constexpr std::string_view Minimo = "0|22062018|18|G224|0010|12|ADA|G|PD|\r\n9|0|10|20|0|V|TM|S|\r\n";

constexpr std::string_view Coda = "6|<EST>X.EMP|\r\n6|<COD>RSSDAA80A41G224X|\r\n6|<ISC>77|\r\n6|<DIT>Bianchi "
                                  "\xC8lia|\r\n\r\n";

} // namespace

TEST_F(ProvaCli, RigheDiceIndiceGenereERiga) {
  const auto esito = Lancia({"righe", Metti("a.dat", Disordinato)});
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.uscita, "0\t0\t0|22062018|18|D704|0010|12,3||GEOMETRA|PADOVA|\n"
                          "1\t9\t9|0|10|20|1725|10.00-G,APAG 2.12|TM|GEODIMETRO INTEGRATO|\n"
                          "2\t6\t6|CONFERMA|\n"
                          "3\t8\t8|PF01/0010/D704|10.000|20.000|\n"
                          "4\t1\t1|100|1.430||\n"
                          "5\t2\t2|5|10.0000|38.944|citt\xC3\xA0<P!>|\n"
                          "6\t2\t2|5|10.0000|38.944|CITT\xC3\x80<P!>|\n"
                          "7\t2\t2|10|20.0000|38.944|SP|\n"
                          "8\t2\t2|2|30.0000|38.944|SP|\n"
                          "9\t7\t7|3|5|10|2|NC|\n");
  EXPECT_EQ(esito.codice, 0);
}

TEST_F(ProvaCli, IntestazioneDiceIValoriDelleRigheZeroENove) {
  const auto esito = Lancia({"intestazione", Metti("a.dat", Disordinato)});
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.uscita, "DataLibretto=22062018\nProtocollo=18\nProtocolloPregeo="
                          "1818\nAnnoLibretto=2018\n"
                          "CodiceComune=D704\nNomeComune=FORL\xC3\x8C\nSiglaProvincia="
                          "FC\nNomeProvincia=FORL\xC3\x8C-CESENA\n"
                          "Foglio=0010\nMappali=12,3\nTecnico=\nCognome=ROSSI\nNome=ADA\nQualifica="
                          "GEOMETRA\n"
                          "Provincia=PADOVA\nQuotaMedia=0\nPrecisioneLineare="
                          "10\nPrecisioneAngolare=20\nEstMedio=1725\n"
                          "TipologiaRilievo=TM\nStrumentazione=GEODIMETRO INTEGRATO\nClasseAtto=M\n"
                          "NomeFascicolo=2018_ROSSI "
                          "ADA_M_TM_18_D704_0010_12_3\nEstrattoAssociato=X.EMP\n"
                          "CodiceFiscale=RSSDAA80A41G224X\nNumeroIscrizione=77\n");
  EXPECT_EQ(esito.codice, 0);
}

TEST_F(ProvaCli, SalvaDaIByteDelSalvataggio) {
  const std::string file = Metti("a.dat", Disordinato);
  const auto esito = Lancia({"salva", file});
  const std::string attesi = "0|22062018|18|D704|0010|12,3||GEOMETRA|PADOVA|\r\n"
                             "9|0|10|20|1725|10.00-G,APAG 2.12|TM|GEODIMETRO INTEGRATO|\r\n"
                             "6|CONFERMA|\r\n"
                             "8|PF01/0010/D704|10.000|20.000|\r\n"
                             "1|100|1.430|NOTE:|\r\n"
                             "2|5|10.0000|38.944|citt\xE0|\r\n"
                             "2|10|20.0000|38.944|SP|\r\n"
                             "2|2|30.0000|38.944|SP|\r\n"
                             "7|3|5|10|2|NC|\r\n" +
                             std::string(Coda);
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.uscita, attesi);
  EXPECT_EQ(esito.codice, 0);
  EXPECT_EQ(CartellaProvvisoria::Prendi(file), Disordinato) << "the file given is never changed";
  EXPECT_EQ(Lancia({"salva", Metti("b.dat", attesi)}).uscita, attesi) << "saved twice is the same file";
}

TEST_F(ProvaCli, RiordinaMetteNellOrdineDiPregeo) {
  const auto esito = Lancia({"riordina", Metti("a.dat", Disordinato)});
  const std::string attesi = "0|22062018|18|D704|0010|12,3||GEOMETRA|PADOVA|\r\n"
                             "9|0|10|20|1725|10.00-G,APAG 2.12|TM|GEODIMETRO INTEGRATO|\r\n"
                             "6|CONFERMA|\r\n"
                             "1|100|1.430|NOTE:|\r\n"
                             "2|5|10.0000|38.944|citt\xE0|\r\n"
                             "2|2|30.0000|38.944|SP|\r\n"
                             "2|10|20.0000|38.944|SP|\r\n"
                             "7|3|5|10|2|NC|\r\n"
                             "8|PF01/0010/D704|10.000|20.000|\r\n" +
                             std::string(Coda);
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.uscita, attesi);
  EXPECT_EQ(esito.codice, 0);
  EXPECT_EQ(Lancia({"riordina", Metti("b.dat", attesi)}).uscita, attesi);
}

TEST_F(ProvaCli, LxbDaLeMisureAlDatAccanto) {
  cartella.Metti("fuori/Misure.dat", std::string(Minimo) + "1|1|A|\r\n8|PF1|1|2|\r\n");
  const auto esito = Lancia({"righe", Metti("misure.lxb", "1|200|B|\r\n2|201|1.5|2.5|C|\r\n")});
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.uscita, "0\t0\t0|22062018|18|G224|0010|12|ADA|G|PD|\n1\t9\t9|"
                          "0|10|20|0|V|TM|S|\n2\t1\t1|200|B|\n"
                          "3\t2\t2|201|1.5|2.5|C|\n4\t8\t8|PF1|1|2|\n");
}

TEST_F(ProvaCli, PdfDaRigheDittaEdEstratto) {
  cartella.Metti("dischi/c/pregeo/estratti/Altro.emp", "0|x|ALTRO|\r\n");
  cartella.Metti("dischi/c/pregeo/estratti/Trovato.emp", "0|x|t123|\r\n");
  const std::string prima = "%PDF\n[TAG1000]|0|22062018|18|G224|0010|12|ADA|G|PD|<nr>9|0|10|20|0|V|"
                            "TM|S|<nr>[/TAG1000]"
                            "[TAG2000]|1|1|A|<nr>2|2||B|[/TAG2000][TAG3000]|0|x|";
  const std::string dopo = "|[/TAG3000][TAG4000]|9|BIANCHI\\ ADA|<nr>[/TAG4000]%%EOF";
  const std::string righe = std::string(Minimo) + "1|1|A|\r\n2|2|NOTE:|B|\r\n";
  const std::string resto = "6|<COD>RSSDAA80A41G224X|\r\n6|<ISC>3127|\r\n6|<DIT>BIANCHI ADA|\r\n\r\n";
  const auto trovato = Lancia({"salva", Metti("atto.pdf", prima + "T123" + dopo)});
  EXPECT_EQ(trovato.errori, "");
  EXPECT_EQ(trovato.uscita, righe + "6|<EST>Trovato.emp|\r\n" + resto);
  const auto perso = Lancia({"salva", Metti("perso.Pdf", prima + "T999" + dopo)});
  EXPECT_EQ(perso.errori, "[Lirmeto] Estratto Associato non trovato nella "
                          "cartella Estratti di Pregeo.\n");
  EXPECT_EQ(perso.uscita, righe + "6|<EST>|\r\n" + resto);
  EXPECT_EQ(perso.codice, 0);
}

TEST_F(ProvaCli, ComuniPerInizioDelNomeOPerCodice) {
  const std::string padova = "G224\tPD\tPADOVA\tD3AA\n";
  const std::string abano = "A001B\tPD\tABANO TERME\tD3AB\n";
  const std::string forli = "D704\tFC\tFORL\xC3\x8C\tE1AA\n";
  EXPECT_EQ(Lancia({"comuni"}).uscita, padova + abano + forli);
  EXPECT_EQ(Lancia({"comuni", "pad"}).uscita, padova);
  EXPECT_EQ(Lancia({"comuni", "a001b"}).uscita, abano);
  EXPECT_EQ(Lancia({"comuni", "forl\xC3\xAC"}).uscita, forli);
  EXPECT_EQ(Lancia({"comuni", "ova"}).uscita, "");
  EXPECT_EQ(Lancia({"comuni", "D70"}).uscita, "");
}

TEST_F(ProvaCli, UscitaVaNelFileEScriveSulPosto) {
  const std::string file = Metti("a.dat", Disordinato);
  const std::string uscita = Metti("salvato.dat", std::string(10000, 'x'));
  const auto esito = Lancia({"salva", file, "-o", uscita});
  EXPECT_EQ(esito.uscita + esito.errori, "");
  EXPECT_EQ(esito.codice, 0);
  EXPECT_EQ(CartellaProvvisoria::Prendi(uscita), Lancia({"salva", file}).uscita);
  const std::string giapponese = Metti("\xE6\x97\xA5.dat", "");
  EXPECT_EQ(Lancia({"--uscita", giapponese, "salva", file}).codice, 0) << "the result goes to any name of the host";
  EXPECT_EQ(CartellaProvvisoria::Prendi(std::u8string(giapponese.begin(), giapponese.end())),
            CartellaProvvisoria::Prendi(uscita));
}

TEST_F(ProvaCli, SenzaInstallazioneLoDiceEVaAvanti) {
  const std::string file = Metti("a.dat", "");
  fs::remove_all(cartella.Radice() / "dischi");
  fs::create_directories(cartella.Radice() / "dischi/c");
  const auto esito = Lancia({"righe", file});
  EXPECT_EQ(esito.uscita, "0\t0\t0|21112024|1|G693|0010|1|COGNOME NOME|GEOMETRA|PADOVA|\n"
                          "1\t9\t9|20|10|20|1070|10.00-G,STDA 2.08|18|TIPO SENZA GEOMETRIA|\n");
  EXPECT_EQ(esito.codice, 0);
  EXPECT_EQ(esito.errori.find("[Pregeo Non Installato] PREGEO.INI NON trovato - Verificare "
                              "installazione Pregeo!\n"
                              "[Lirmeto] C:\\pregeo\\arch\\comunt.dat\nNon Trovato!\n"),
            0U)
      << esito.errori;
  EXPECT_TRUE(fs::is_empty(cartella.Radice() / "dischi/c")) << "a run leaves no folder behind";
}

} // namespace lirmeto::prova
