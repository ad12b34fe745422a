#include <verifiche/atto_base.h>

#include <verifiche/pannello_verifiche.h>

#include <base/testo.h>

#include <algorithm>
#include <functional>
#include <ostream>
#include <set>

namespace lirmeto::prova {

namespace {

using Modifiche = std::vector<std::string>;

struct Caso {
  std::string trovata; // as ConAtto::Detta tells it: the field is lit for the user
  Modifiche colpa;     // changes of the act that bring it about
  Modifiche quasi;     // changes that nearly do
};

const std::string Lunga = "6|O|13   |000|  |     |000000100|SN|  |     |001|1 |                  |";

// An act with the fault, and one that nearly has it.
const std::vector<Caso> Casi = {
    // rows by themselves
    {"L001 3", {"3 +X|100|"}, {"3 +6|X|"}},
    {"L002 5", {"5 CHIODO>CHIODO|A"}, {"5 CHIODO>A CHIODO"}},
    {"L002 4", {"4 |CHIODO|>|CHIODO|A|B|"}, {}},
    {"L002 35", {"35 |102|0.00|ALLINEAMENTO|>|"}, {"35 ALLINEAMENTO>A|A"}},
    {"L002 36", {"36 |10.000|10.000|POZZETTO|>|"}, {}},
    {"L002 48", {"48 |1125.000|1165.000|TERMINE IN PIETRA|>|1|"}, {}},
    {"L002 48", {"48 TERMINE>A|B|TERMINE"}, {"48 TERMINE>A|TERMINE"}},
    {"L003 3.1", {"3 |4|>|x|"}, {}},
    {"L003 29.3", {"29 |0.000|>|o|"}, {}},
    {"L003 34.5", {"34 |2.000|>|2.ooo|"}, {}},
    {"L003 48.2", {"48 1125.000>1125.00o"}, {}},
    {"L003 5.2", {"5 126.4863>126.48a3"}, {"5 126.4863>126.486300"}},
    {"L003 14.3", {"14 100.4300>100.4x00"}, {}},
    {"L003 35.3", {"35 0.00>x"}, {"35 0.00|>0.00|"}},
    {"L003 36.2", {"36 5|105|10.000>5|105|1x.000"}, {"36 5|105|10.000>5|105|.5"}},
    {"L003 37.3", {"37 0.000>o.ooo"}, {}},
    {"L003 39.1", {"39 7|7>7|x"}, {}},
    {"L003 48.3", {"48 1165.000>1165.00o"}, {}},
    {"L003 9.3", {"9 +2|101|66.5167|o|TERMINE|"}, {"9 +2|101|66.5167|22.361|TERMINE|"}}, // a flat sight has no zenith
    {"L004 5.2", {"5 126.4863>126,4863"}, {"5 CHIODO>CHIODO, FERRO"}},
    {"L005 8.2", {"8 163.6250>563.6250"}, {"8 163.6250>163.6249"}},
    {"L005 9.2", {"9 +2|101|466.5167|22.361|T|"}, {}},
    {"L006 9.3", {"9 100.4300>10.4300"}, {"9 100.4300>99.4300"}},
    {"L007 9.4", {"9 22.361>0.000"}, {"9 22.361>22.360"}},
    {"L008 9.4", {"9 22.361>2236.100"}, {"8 196.984>196.985"}},
    {"L009 9.5", {"9 1.500>15.00"}, {"9 1.500>9.999"}},
    {"L010 9.5", {"9 1.500|>"}, {"9 1.500>0.000"}},
    {"L010 9.5", {"9 1.500>"}, {}},
    {"L010 4.2", {"4 1.550|>"}, {}},
    {"L011 9.6", {"9 TERMINE IN PIETRA>Note:"}, {"9 TERMINE IN PIETRA>Note: X"}},
    {"L011 4.3", {"4 CHIODO|>"}, {"4 CHIODO>C"}},
    {"L011 9.4", {"9 +2|101|66.5167|22.361||"}, {}},
    {"L011 29.4", {"29 STAZIONE PERMANENTE>"}, {}},
    {"L011 34.6", {"34 TERMINE IN PIETRA>"}, {"34 TERMINE IN PIETRA>T"}},
    {"L012 9.1", {"9 101>123456789012345"}, {"9 101>12345678901234"}},
    {"L013 9.1", {"9 101>1 01"}, {"9 101>101A"}},
    {"L013 9.1", {"9 101>1/01"}, {"9 101>A101"}},
    {"L013 3.3", {"3 |200|>|2/00|"}, {}},
    {"L013 4.1", {"4 |100|>|1/00|"}, {}},
    {"L013 34.1", {"34 |105|>|1/05|"}, {}},
    {"L013 35.1", {"35 |101|>|1/01|"}, {}},
    {"L013 35.2", {"35 |102|>|1/02|"}, {}},
    {"L013 36.1", {"36 |105|>|1/05|"}, {}},
    {"L013 48.1", {"48 |103|>|1/03|"}, {}},
    {"L014 43", {"43 totale>tot\xE0le"}, {"43 totale>tota'le"}},
    {"L015 9", {"9 PIETRA>PIETR\xC0"}, {"9 PIETRA>PIETRA'"}},
    {"L016 9", {"9 PIETRA>PIETRA\x81"}, {"9 PIETRA>PIETR\xC0"}},
    {"L017 10",
     {"10 +2|101|66.5167|100.4300|22.361|1.500|termine in pietra|"},
     {"10 +2|101|66.5168|100.4300|22.361|1.500|X|"}},
    {"L017 11", {"11 +2|101|66.5167|100.4300|22.361|1.500|TERMINE IN PIETRA|"}, {}},
    {"L018 9", {"9 PIETRA|>PIETRA"}, {"9 PIETRA|>PIETRA||"}},
    {"L019 30", {"30 +9|12|10|20|1150|10.00-G|FR|X|"}, {"30 +6|9|"}},
    {"L020 9.4", {"9 22.361>-22.361"}, {"9 22.361>0.001"}},
    {"L021 9.1", {"9 101>"}, {"9 101>1"}},
    // header
    {"T001 0.1", {"0 21112026>31112026"}, {"0 21112026>30092026"}},
    {"T001 0.1", {"0 21112026>29022026"}, {"0 21112026>29022024"}},
    {"T002 0.1", {"0 21112026>22112026"}, {"0 21112026>20112026"}},
    {"T003 0.3", {"0 G224>G225"}, {"0 G224>L736"}},
    {"T004 0.3", {"0 |PADOVA>|VENEZIA"}, {"0 |PADOVA>|padova"}},
    {"T005 0.4", {"0 0010>010"}, {"0 0010>001A"}},
    {"T006 0.5", {"0 |12|>||"}, {"0 |12|>|13|"}},
    {"T007 0.5", {"0 |12|>|12,13,12|"}, {"0 |12|>|12,13|"}},
    {"T008 0.5",
     {"0 |12|>|101,102,103,104,105,106,107,108,109,1100|"},
     {"0 |12|>|101,102,103,104,105,106,107,108,109,110|"}},
    {"T009 0.2", {"0 |1|G>|A1|G"}, {"0 |1|G>|7|G"}},
    {"T010 0.7", {"0 GEOMETRA>"}, {"0 GEOMETRA>X"}},
    {"T011 1.1", {"1 9|12>9|412"}, {"1 9|12>9|200"}},
    {"T012 1.4", {"1 |1150|>|3150|"}, {"1 |1150|>|1250|"}},
    {"T012 1.4", {"1 |20|1150|10.00-G,APAG 2.12|FR|STAZIONE TOTALE|>|"}, {}},
    {"T013 1.2", {"1 |10|20>|0|20"}, {"1 |10|20>|1|20"}},
    {"T014 1.5", {"1 10.00-G,APAG 2.12>X"}, {"1 10.00-G,APAG 2.12>10.00-G"}},
    {"T015 1.6", {"1 |FR|>|FX|"}, {"1 |FR|>|18|"}},
    {"T016 0.6", {"0 ROSSI ADA>COGNOME NOME"}, {"0 ROSSI ADA>NOME COGNOME"}},
    {"L002 0", {"0 |PADOVA|>|"}, {}},
    // network: what is not seen a third time names both rows
    {"R001 9.2", {"29 +2|101|320.4000|100.4300|44.722|1.500|X|"}, {"29 +2|101|319.7667|100.4300|44.722|1.500|X|"}},
    {"R001 10.2", {"10 110.3750>111.3750"}, {"10 110.3750>110.3800"}},
    {"R002 10.2", {"10 49.245>49.495"}, {"10 49.245>49.305"}},
    {"R003 14.4", {"14 60.829>61.329"}, {"14 60.829>60.849"}},
    {"R004 14.3", {"14 |100.4300|60.829|1.500|>|60.989|"}, {"14 60.829>60.869"}},
    {"R005 20.1", {"6 300>301", "15 300>301", "33 300>301"}, {"6 300>301", "15 300>301"}},
    {"R006 12.1", {"12 111>1100"}, {"12 111>1101"}},
    {"R007 3.3", {"3 |4|100|200|>|3|102|101|", "3 300|100|>300|"}, {"3 |4|100|200|300|100|>|3|100|200|300|"}},
    {"R008 3.5", {"3 300|100>300|999"}, {"3 300|100>300"}},
    {"R009 3", {"15 177.0958>177.3958"}, {"15 177.0958>177.1458"}},
    {"R010 3", {"5 60.829>61.829", "14 60.829>61.829"}, {"5 60.829>60.929", "14 60.829>60.929"}},
    {"R011 29.1",
     {"29 +1|400|1.5|CHIODO|", "30 +2|100|10.0000|100.0000|20.000|1.5|X|"},
     {"29 +1|200|1.5|CHIODO|", "30 +2|100|10.9863|100.4300|60.829|1.5|X|"}},
    {"R012 10.1", {"10 110.3750>210.3750"}, {"10 110.3750>110.3800"}},
    {"R013 48.2", {"48 1125.000>1129.000"}, {"48 1125.000>1126.000"}},
    {"R014 9.1", {"9 +2|900|66.5167|100.4300|22.361|1.500||"}, {"9 +2|900|66.5167|100.4300|22.361|1.500|POZZO|"}},
    {"R015 4", {"4 +2|900|66.5167|100.4300|22.361|1.500|X|"}, {"5 +2|900|66.5167|100.4300|22.361|1.500|X|"}},
    {"R016 35", {"35 +5|900|1.000|2.000|X|"}, {"36 +5|900|1.000|2.000|X|"}},
    {"R017 35.1", {"35 4|101>4|999"}, {"35 4|101>4|104"}},
    // GNSS
    {"G001 29.2", {"29 4389679.000>5389679.000"}, {"29 4389679.000>4389680.000"}},
    {"G002 31", {"31  [VRS]>"}, {"31 CHIODO [VRS]>[VRS]"}},
    {"G003 29.1", {"29 10000>10001"}, {"29 10000>10001", "30 NRTK>RTK"}},
    {"G004 31", {"30 NRTK>RTK"}, {"30 NRTK>RTK", "31  [VRS]>"}},
    {"G005 32", {"32 CHIODO>CHIODO [VRS]"}, {"32 CHIODO>CHIODO VRS"}},
    {"G006 29", {"30 -"}, {"30 6|L2>6|L1"}},
    {"G007 30", {"29 -"}, {"29 0.000>1.000"}},
    {"G008 34.2", {"34 133.409>133.409,1"}, {"34 133.409>133.409000"}},
    {"G009 34.2", {"30 NRTK>RTK", "34 -181.867>-12181.867"}, {"34 -181.867>-12181.867"}},
    {"G010 34.3",
     {"34 |0.00002,0.000002,0.000003,0.00001,0.000002,0.00002|>||", "34 -181.867>-6181.867"},
     {"34 |0.00002,0.000002,0.000003,0.00001,0.000002,0.00002|>||"}},
    {"G011 34.3", {"34 0.00002,0.000002>0.00002,0.000200"}, {"34 0.00002,0.000002>0.00002,0.000010"}},
    {"G012 34", {"34 PDOP=2>PDOP=7"}, {"34 PDOP=2>PDOP=6"}},
    // contours
    {"C001 39.1", {"39 7|7>7|8"}, {"40 +7|1|101|PV|"}},
    {"C001 40.1", {"40 +7|1|NC|"}, {}},
    {"C002 39.5", {"39 103>999"}, {"39 103>105"}},
    {"C003 39.5", {"41 111|112>102|103"}, {"41 111|112>102|104"}},
    {"C004 39", {"39 102|103|112>103|102|112"}, {"39 102|103>102"}},
    {"C005 40",
     {"40 +7|11|101|102|103|104|105|111|112|100|200|300|101|NC|"},
     {"40 +7|10|101|102|103|104|105|111|112|100|200|300|NC|"}},
    {"C006 41.3", {"41 111|112>111|105"}, {"41 111|112>111|102"}},
    {"C007 41.4", {"41 RC>RX"}, {"41 RC>RP"}},
    {"C008 41.1", {"41 7|2>7|0"}, {"40 +7|0|112|105|NC|", "39 7|7>7|9"}},
    {"C009 39.4", {"39 |111|>|111|111|"}, {"39 |111|>|111|102|111|"}},
    // fiducial points
    {"F001", {"47 -", "23 -"}, {"47 -"}},
    {"F001", {"47 -", "23 -"}, {"47 -", "23 -", "1 |FR|>|TM|"}}, // of small size
    {"F002", {"23 90.2500>290.2500", "23 120.004>130.004"}, {"23 90.2500>290.2500", "23 120.004>105.004"}},
    {"F003 9.1",
     {"9 +2|600|237.0000|100.0000|200.000|1.500|X|", "42 +7|2|600|111|NC|"},
     {"9 +2|600|237.0000|100.0000|150.000|1.500|X|", "42 +7|2|600|111|NC|"}},
    {"F004 7.1", {"7 PF01/0010>PF1/0010"}, {"7 PF01/0010>PF10/0010"}},
    {"F005 7.1", {"7 G224>L736"}, {"7 0010>0020"}},
    {"F014 7.1", {"7 0010>0020"}, {"7 G224>L736"}},
    {"F006 47.1", {"47 PF03>PF04"}, {"47 PF03>PF02"}},
    {"F007 45.2", {"45 1000.000>1000.020"}, {"45 1000.000>1000.005"}},
    {"F008 8.1", {"8 196.984>197.284", "16 -"}, {"8 196.984>197.034", "16 -"}},
    {"F009 23.1", {"23 120.004>124.504"}, {"23 120.004>122.504"}},
    {"F012 23.1", {"47 -"}, {"47 -", "23 -"}},
    {"F013 8.1", {"8 PF02>PF07"}, {"8 +2|PF02/0010/G224|163.6250|100.5400|196.984|1.500|SPIGOLO|"}},
    // extract and proposal
    {"E004 0.5", {"0 |12|>|14|"}, {"0 |12|>|13|"}},
    {"E005 0.3", {"0 G224>L736"}, {}},
    {"E005 0.4", {"0 0010>0020"}, {"0 0010>0011"}},
    {"E006 60", {"60 4%|1%|>4%|"}, {"60 4%|1%|>4%|3%|1%|"}},
    {"E007 65", {"65 |375|>|0|"}, {"65 |375|>|375.4|"}},
    {"E008 55", {"65 |375|>|377|"}, {"65 |375|>|376|"}},
    {"E009 41.3",
     {"48 +8|600|1090.050|1125.000|X|", "48 +8|601|1090.050|1160.000|X|", "41 111|112>600|601"},
     {"48 +8|600|1090.500|1125.000|X|", "48 +8|601|1090.500|1160.000|X|", "41 111|112>600|601"}},
    {"E010 64.4", {"64 6%>9%"}, {"64 6%>3%"}},
    {"E011 64", {"64 |500|>|502|"}, {"64 |500|>|501|"}},
    // census rows
    {"M001 52", {"52 +" + Lunga}, {"52 +6|NOTA|"}},
    {"M002 53", {"53 |000|>000||"}, {"53 |000|>|001|"}},
    {"M003 50.2",
     {"50 004>04 "},
     {"50 004>005", "54 +6|C|     |000|c |AAC  |000000000|SN|  |     |001|1 |                 |"}},
    {"M004 51.6", {"54 000000375>000000376"}, {"51 000000875>000000876", "54 000000375>000000376"}},
    {"M005 54.4", {"54 b >c "}, {"54 b >  "}},
    {"M006 51.2", {"52 S|12>S|13"}, {"52 6|S>6|V", "52 000000000>000000000"}},
    {"M007 54.10", {"54 |001|1 >|007|1 "}, {"54 |001|1 >|282|  "}},
    {"M008 54.11", {"54 |001|1 >|282|1 "}, {"54 |001|1 >|282|  "}},
    {"M009 51.2", {"51 O|12>O|15", "52 S|12>S|15"}, {"51 O|12>O|13", "52 S|12>S|13"}},
    {"M010 54.5", {"54 AAB>AAA"}, {"54 AAB>AAC"}},
    {"M011 50", {"50 -"}, {"50 51FTP>3SPC "}},
    {"M012 49", {"49 -"}, {"49 +6|NOTA|"}},
    {"M013 51",
     {"51 +6|Dati per aggiornare il D.B. Censuario dell'Ufficio Tecnico Erariale|"},
     {"51 +6|Dati per aggiornare|"}},
    {"M014 52.2",
     {"52 +6|O|12   |000|  |     |000000000|SN|  |     |001|1 |                 |"},
     {"52 +6|O|13   |000|  |     |000000000|SN|  |     |001|1 |                 |"}},
    {"M015 54.5", {"54 AAB>   "}, {"54 AAB>A  "}},
    {"M016 51.6", {"51 SN>SR", "54 000000375>000000376"}, {"51 SN>SR"}},
    {"M017 51.6", {"52 |  |     |000|>|a |AAA  |000|", "54 000000375>000000376"}, {"52 |  |     |000|>|a |AAA  |000|"}},
    {"M018 50", {"50 51FTP>M31FU"}, {"50 51FTP>3SPC "}},
};

void PrintTo(const Caso& caso, std::ostream* uscita) {
  *uscita << caso.trovata << testing::PrintToString(caso.colpa);
}

// What only the surroundings bring about.
struct CasoIntorno {
  std::string trovata;
  std::function<void(ConAtto&)> colpa;
  std::function<void(ConAtto&)> quasi;
};

void ConEstratto(ConAtto& c, const std::string& da, const std::string& a) {
  c.disco.Metti("C:\\pregeo\\estratti\\X.EMP", Sostituisci(EstrattoBase, da, a));
}

const std::string Taf = "C:\\fiducial\\DATI\\G224.taf";
const std::string Distanze = "C:\\fiducial\\DATI\\PD2024.DDD";
const std::string Estratto = "C:\\pregeo\\estratti\\X.EMP";

const std::vector<CasoIntorno> CasiIntorno = {
    {"F010", [](ConAtto& c) { c.disco.Elimina(Taf); }, [](ConAtto& c) { c.disco.Metti(Taf, ""); }},
    {"F010", [](ConAtto& c) { c.disco.rotti[Maiuscolo(Taf)] = 70; }, nullptr},
    {"F011", [](ConAtto& c) { c.disco.Elimina(Distanze); }, [](ConAtto& c) { c.disco.Metti(Distanze, ""); }},
    {"E001", [](ConAtto& c) { ConEstratto(c, "01102026", "01042026"); },
     [](ConAtto& c) { ConEstratto(c, "01102026", "01052026"); }},
    {"E001", [](ConAtto& c) { ConEstratto(c, "01102026", "01042026"); },
     [](ConAtto& c) { ConEstratto(c, "01102026", "AUTOALLESTITO"); }},
    {"E002", [](ConAtto& c) { c.disco.Elimina(Estratto); }, nullptr},
    {"E002", [](ConAtto& c) { c.estratto = "..\\X.EMP"; }, [](ConAtto& c) { c.estratto = "x.emp"; }},
    {"E003", [](ConAtto& c) { c.estratto.clear(); }, [](ConAtto& c) { c.estratto = "x.emp"; }},
    {"E012", [](ConAtto& c) { ConEstratto(c, "0|0110", "8|0110"); },
     [](ConAtto& c) { ConEstratto(c, "0|0110", "0|0210"); }},
    {"E013", [](ConAtto& c) { ConEstratto(c, "01102026", "32102026"); },
     [](ConAtto& c) { ConEstratto(c, "01102026", "31102026"); }},
};

std::string CodiceDi(const std::string& trovata) {
  return trovata.substr(0, trovata.find(' '));
}

bool Contenuta(const Modifiche& trovate, const std::string& trovata) {
  return std::find(trovate.begin(), trovate.end(), trovata) != trovate.end();
}

} // namespace

TEST(Verifiche, LAttoBuonoNonHaSegnalazioni) {
  ConAtto c;
  c.ApriCon({});
  EXPECT_EQ(c.Trovate(""), Modifiche{});
}

class UnaColpa : public testing::TestWithParam<Caso> {};

TEST_P(UnaColpa, SiTrovaAllaSuaRigaEQuasiNo) {
  const Caso& caso = GetParam();
  ConAtto c;
  c.ApriCon({});
  c.ApriCon(caso.colpa);
  EXPECT_TRUE(Contenuta(c.Trovate(""), caso.trovata)) << testing::PrintToString(c.Trovate(""));
  c.ApriCon(caso.quasi);
  EXPECT_EQ(c.Trovate(CodiceDi(caso.trovata)), Modifiche{});
  ConAtto nuovo;
  nuovo.ApriCon(caso.quasi);
  EXPECT_EQ(c.Trovate(""), nuovo.Trovate("")); // what was kept from the acts before takes no part
}

TEST_P(UnaColpa, IlRimedioLaToglie) {
  ConAtto c;
  c.ApriCon(GetParam().colpa);
  for (const Segnalazione& s : std::vector(c.verificatore.Segnalazioni())) {
    if (s.rimedio.empty()) continue;
    ConAtto curato;
    curato.ApriCon(GetParam().colpa);
    curato.sessione.List1.Cambia(*s.riga, s.rimedio);
    curato.verificatore.Aggiorna();
    EXPECT_FALSE(Contenuta(curato.Trovate(""), ConAtto::Detta(s))) << s.rimedio;
    EXPECT_LT(curato.verificatore.Quante().Tutte(), c.verificatore.Quante().Tutte());
  }
}

INSTANTIATE_TEST_SUITE_P(Tabella, UnaColpa, testing::ValuesIn(Casi));

TEST(Verifiche, QuelloCheManca) {
  for (const CasoIntorno& caso : CasiIntorno) {
    ConAtto c;
    caso.colpa(c);
    c.ApriCon({});
    EXPECT_TRUE(Contenuta(c.Trovate(""), caso.trovata)) << caso.trovata << testing::PrintToString(c.Trovate(""));
    EXPECT_EQ(c.dialoghi.detti.size(), 0U);
    ConAtto buono;
    if (caso.quasi) caso.quasi(buono);
    buono.ApriCon({});
    EXPECT_EQ(buono.Trovate(CodiceDi(caso.trovata)), Modifiche{});
  }
}

TEST(Verifiche, LaFraseDiceQualeAltraRiga) {
  for (const auto& [colpa, frase] :
       {std::pair{"14 60.829>61.329", "La distanza 100-200 \xE8 60.83 m all'andata e 61.33 m al ritorno (riga 6)"},
        {"5 126.4863>128.4863", "Il punto 200, visto anche da 200 (riga 14), cade a 1.91 m di distanza"}}) {
    ConAtto c;
    c.ApriCon({colpa});
    Modifiche frasi;
    for (const Segnalazione& s : c.verificatore.Segnalazioni()) frasi.push_back(Testo(s, 1));
    EXPECT_TRUE(Contenuta(frasi, frase)) << testing::PrintToString(frasi);
  }
}

TEST(Verifiche, UnAltroEstrattoSiLegge) {
  ConAtto c;
  c.ApriCon({});
  for (const char* nome : {"", "X.EMP"}) {
    c.sessione.EstrattoAssociato = nome;
    c.verificatore.Aggiorna();
    EXPECT_EQ(c.Trovate("E003").size(), *nome == 0 ? 1U : 0U);
  }
}

TEST(Pannello, FiltraOrdinaECammina) {
  ConAtto c;
  c.ApriCon({"5 126.4863>126.48a3", "9 TERMINE IN PIETRA>Note:", "0 |PADOVA>|VENEZIA"});
  c.sessione.EstrattoAssociato.clear();
  PannelloVerifiche pannello(c.ambiente);
  EXPECT_TRUE(pannello.Aggiorna());
  EXPECT_FALSE(pannello.Aggiorna());
  const auto codici = [&] {
    std::string testo;
    for (std::size_t i = 0; i < pannello.Quante(); ++i)
      testo +=
          std::string(pannello.Voce(i).regola->codice) + "/" + PannelloVerifiche::NumeroRiga(pannello.Voce(i)) + " ";
    return testo;
  };
  EXPECT_EQ(codici(), "T004/1 L003/6 L011/10 E003/ ");
  EXPECT_EQ(pannello.Successiva(true, 5), 2U);
  EXPECT_EQ(pannello.Successiva(true, 900), 0U) << "round the end";
  pannello.Ordina(OrdineVerifiche::Gravita);
  EXPECT_EQ(codici(), "L003/6 L011/10 T004/1 E003/ ");
  pannello.Ordina(OrdineVerifiche::Gravita);
  EXPECT_EQ(codici(), "E003/ T004/1 L011/10 L003/6 ");
  EXPECT_EQ(pannello.Successiva(true, 0), 2U) << "one of the whole act is no row behind";
  pannello.Mostra(Severita::Nota, false);
  EXPECT_EQ(codici(), "L011/10 L003/6 ");
  pannello.Scegli(0);
  EXPECT_EQ(pannello.Successiva(false, 5), 1U);
  pannello.Cerca("l003");
  EXPECT_EQ(codici(), "L003/6 ");
  EXPECT_EQ(pannello.Riepilogo(), "1 errore, 1 avviso, 2 note");
  EXPECT_EQ(pannello.SegnoDi(9), Severita::Avviso);
  EXPECT_EQ(pannello.SegnoDi(10), std::nullopt);
}

TEST(Verifiche, OgniControlloHaIlSuoCaso) {
  std::set<std::string> conCaso;
  std::set<std::string> conQuasi;
  const auto metti = [&](const std::string& trovata, bool quasi) {
    conCaso.insert(CodiceDi(trovata));
    if (quasi) conQuasi.insert(CodiceDi(trovata));
  };
  for (const Caso& caso : Casi) metti(caso.trovata, !caso.quasi.empty());
  for (const CasoIntorno& caso : CasiIntorno) metti(caso.trovata, caso.quasi != nullptr);
  for (const std::string& codice : conCaso) EXPECT_TRUE(conQuasi.contains(codice)) << codice << " never nearly so";
  for (const Regola& regola : Regole) EXPECT_EQ(conCaso.count(std::string(regola.codice)), 1U) << regola.codice;
  EXPECT_EQ(conCaso.size(), Regole.size());
}

// What no reader of rows expects: nothing is thrown, and everything that is said has a sentence.
TEST(Verifiche, RigheStraneNonFermanoNiente) {
  const Modifiche strane = {"2|1|1E999,-1E999,1E999|9,9,9,9,9,9|PDOP=1E999|1E999|",
                            "1|1|1E999|X|",
                            "8|1|1E999|-1E999|",
                            "7|1E999|1|1|1|RC|",
                            "3|-5|",
                            "4|1|1|0|X|",
                            "5|1|1E308|1E308|X|",
                            "2|1|1E999|1E999|1E999|1E999|X|",
                            std::string("6|O|12   |000|  |     |9E9999999|SN|  |     |001|1 |                 |"),
                            "7|1|1%|NC|A|A|1E999|",
                            "6|ESTRATTO DI MAPPA|",
                            "7|5|1E999%|NC|A|1E999|1E999|",
                            "|||||",
                            "1|1",
                            "2|1",
                            "5|1",
                            "8|1",
                            "7|"};
  for (std::size_t salta = 0; salta <= strane.size(); ++salta) {
    ConAtto c;
    Modifiche righe(AttoBase.begin(), AttoBase.begin() + 2);
    for (std::size_t i = 0; i < strane.size(); ++i)
      if (i != salta) righe.insert(righe.end(), 2, strane[i]);
    c.Apri(Testo(righe));
    c.verificatore.Aggiorna();
    for (const Segnalazione& s : c.verificatore.Segnalazioni()) EXPECT_EQ(Testo(s).find('{'), std::string::npos);
    EXPECT_GT(c.verificatore.Quante().errori, 5U);
  }
}

} // namespace lirmeto::prova
