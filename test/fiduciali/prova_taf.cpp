#include "sostituti/banco.h"

#include <base/testo.h>
#include <fiduciali/importa_fiduciali.h>
#include <fiduciali/quota_media.h>
#include <fiduciali/quote_medie.h>
#include <fiduciali/taf.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

// A line of a TAF from its pieces, each at its column, from 1.
std::string Linea(const std::vector<std::pair<std::size_t, std::string>>& pezzi) {
  std::string linea;
  for (const auto& [colonna, testo] : pezzi) {
    linea.resize(std::max(linea.size(), colonna - 1 + testo.size()), ' ');
    linea.replace(colonna - 1, testo.size(), testo);
  }
  return linea;
}

// clang-format off
const std::string Intera = Linea({{1, "G224"}, {7, "12"}, {12, "A"}, {16, "7"}, {18, "145"}, {30, "SPIGOLO `NORD\x92"},
  {102, "   -5342.900"}, {115, "   -3938.500"}, {128, "05"}, {130, "AB"}, {139, "C"}, {143, "140312 CONFERMA"},
  {165, "base <Quota>"}, {237, "09"}, {240, "   13.900"}});
// clang-format on

TEST(RecordTaf, SiLeggePerColonne) {
  const RecordTaf taf = DecodificaRigaTAF(Intera);
  EXPECT_EQ(taf.nome, "PF07/012A/G224");
  EXPECT_EQ(taf.mappale + "/" + taf.timbro + "/" + taf.aggiornamento, "145/ABC/140312 CONFERMA");
  EXPECT_EQ(taf.riferimentoPlanimetrico, "SPIGOLO 'NORD'");
  EXPECT_TRUE(taf.x == -3938.5 && taf.y == -5342.9 && taf.z == 13.9);
}

// Cut anywhere, a line reads as the whole one with blanks behind the cut.
TEST(RecordTaf, TagliatoSiLeggeComeBianco) {
  for (std::size_t fine = 0; fine <= Intera.size(); ++fine) {
    const RecordTaf corto = DecodificaRigaTAF(std::string_view(Intera).substr(0, fine));
    const RecordTaf pieno = DecodificaRigaTAF(Intera.substr(0, fine) + std::string(Intera.size() - fine, ' '));
    ASSERT_EQ(corto.nome + corto.nord + corto.quota, pieno.nome + pieno.nord + pieno.quota) << fine;
  }
}

struct CasoNome {
  std::string nome;
  std::string linea;
  bool trovato; // by the quick look-up
  bool record;  // by the record
};

class Nomi : public testing::TestWithParam<CasoNome> {};

TEST_P(Nomi, SiCercanoEsatti) {
  Banco banco;
  banco.disco.Metti("C:\\fiducial\\DATI\\" + std::string(ComuneDelPunto(GetParam().nome)) + ".TAF",
                    "\r\n" + GetParam().linea);
  const auto trovato = CercaPFinTAF(banco.ambiente, " " + GetParam().nome + " ");
  EXPECT_EQ(trovato.has_value(), GetParam().trovato);
  EXPECT_EQ(trovato.value_or(CoordinatePF{}).nord, GetParam().trovato ? "10.5" : "");
  EXPECT_EQ(ArchivioTaf(banco.ambiente).Riga(GetParam().nome).empty(), !GetParam().record);
}

// Sheet, annex and number at columns 8, 12 and 16.
std::string Punto(const std::string& foglio, const std::string& allegato, const std::string& numero) {
  return Linea({{1, "G693"}, {8, foglio}, {12, allegato}, {16, numero}, {103, "10.5"}, {116, "-2.25"}});
}

INSTANTIATE_TEST_SUITE_P(Casi, Nomi,
                         testing::Values(CasoNome{"PF01/0010/G693", Punto("001", " ", "01"), true, true},
                                         CasoNome{"PF01/0010/G693", Punto("  1", "0", " 1"), true, true},
                                         CasoNome{"PF01/001A/G693", Punto("001", "A", "01"), true, true},
                                         CasoNome{"PF01/0010/G693", Punto("1", "0", "01"), false, true},
                                         CasoNome{"PF01/0010/g693", Punto("001", "0", "01"), false, false},
                                         CasoNome{"PF1/0010/G693", Punto("001", "0", "1"), false, false},
                                         CasoNome{"PF1/0010/G693", Punto("001", "0", " 1"), false, false},
                                         CasoNome{"PF01/0010/..\\A", Punto("001", "0", "01"), false, false},
                                         CasoNome{"PF01/0010", Punto("001", "0", "01"), false, false}));

TEST(QuotaMedia, ValeLUltimaRigaConLaChiave) {
  constexpr std::string_view testo = "G224|PADOVA|12|\r\nA001|ABANO|14|\r\nG224|PADOVA|13";
  EXPECT_EQ(QuotaMediaCon(testo, ""), std::nullopt) << "without a comune every line would do";
  EXPECT_EQ(QuotaMediaCon(testo, "L736"), std::nullopt);
  EXPECT_EQ(QuotaMediaCon(testo, "PADOVA"), "13");
}

const Righe Testata = {"0|12032018|1|G224|0010|1|ROSSI MARIO|GEOMETRA|PADOVA|", "9|20|10|20|5|V|FR|G|"};

struct ConForm : testing::Test {
  ConForm() {
    Righe righe = Testata;
    righe.insert(righe.end(), {"1|100|1.5|N|", "8|pf07/012a/g224|1|2|", "8|101|5|6|", "2|PF01/0010/G224|1|2|",
                               "8|PF01/0010/L736|1|2|", "8|PF07/012A/G224 |3|4|", "8|PF1/0010/G224|1|2|", "6|FINE|"});
    banco.Apri(Testo(righe));
    banco.disco.Metti("C:\\FIDUCIAL\\DATI\\G224.TAF", Intera.substr(0, 60) + "\r\n" +
                                                          Linea({{1, "G224"}, {7, "12"}, {12, "B"}, {16, "7"}}) +
                                                          "\r\n" + Intera);
  }
  Banco banco;
  FormImportaFiduciali form{banco.ambiente};
};

TEST_F(ConForm, IPuntiDelLibrettoControLaTaf) {
  form.AlCaricamento();
  EXPECT_EQ(banco.sessione.EsitoForm, EsitoAnnullato);
  EXPECT_EQ(form.List1, (Righe{"PF01/0010/L736", "PF07/012A/G224"}));
  EXPECT_EQ(form.List2, (Righe{"8|PF07/012A/G224||||SPIGOLO 'NORD'|"})) << "the first record of a name, cut as it is";
  EXPECT_EQ(form.PuntiInTaf, 1U);
  EXPECT_FALSE(form.Chiusa);
  form.CambiaRigheQuota(true);
  EXPECT_EQ(form.List2.back(), "8|PF07/012A/G224|9999.000|04|NOTE:|");
  banco.disco.Metti("C:\\FIDUCIAL\\DATI\\G224.TAF", Intera);
  form.Importa();
  EXPECT_EQ(banco.processi.avviati, (Righe{"C:\\Program Files (x86)\\Gondella\\Vordana.exe"}));
  EXPECT_EQ(form.List2, (Righe{"8|PF07/012A/G224|-5342.900|-3938.500|05|SPIGOLO 'NORD'|",
                               "8|PF07/012A/G224|13.900|04|Base Spigolo|"}));
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  banco.disco.rotti["C:\\FIDUCIAL\\DATI\\G224.TAF"] = 70;
  const Righe trovate = form.List2;
  form.CaricaPieffe8();
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_EQ(form.List1.size(), 2U);
  banco.disco.rotti.clear();
  form.CaricaPieffe8();
  EXPECT_EQ(form.List2, trovate);
  form.SostituisciRighe8();
  EXPECT_TRUE(form.Chiusa);
  EXPECT_EQ(banco.Righe(),
            (Righe{Testata[0], Testata[1], "1|100|1.5|N|", form.List2[0], form.List2[1], "8|101|5|6|",
                   "2|PF01/0010/G224|1|2|", "8|PF01/0010/L736|1|2|", "8|PF1/0010/G224|1|2|", "6|FINE|"}));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(),
            "Righe 8 mantenute perché assenti in TAF:\r\n101, PF01/0010/L736, PF1/0010/G224"_w);
  EXPECT_EQ(banco.sessione.Libretto, Testo(banco.Righe()));
}

// The points of the extract: where they lie changes, what else the libretto knows of them stays.
TEST_F(ConForm, IPuntiDellEstratto) {
  banco.sessione.EstrattoAssociato = "A.EMP";
  banco.disco.Metti("C:\\PREGEO\\ESTRATTI\\A.EMP",
                    "0|1|2|\r\n8|1%|1|2|\r\n8|PF07/012A/G224|-5179.20400|-4351.1|\r\n"
                    "8|PF09/012A/G224|1|2|\r\n8|pf09/012a/g224|3|4|\r\n7|2|1%|1%|NC|\r\n");
  banco.sessione.List1.Aggiungi("8|PF07/012A/G224|1|2|05|SPIGOLO|");
  banco.sessione.List1.Aggiungi("8|PF07/012A/G224|12.3|04|BASE|");
  FormImportaFiduciali estratto(banco.ambiente, FonteFiduciali::Estratto);
  estratto.AlCaricamento();
  EXPECT_EQ(estratto.List2,
            (Righe{"8|PF07/012A/G224|-5179.204|-4351.100|05|SPIGOLO|", "8|PF09/012A/G224|1.000|2.000|NOTE:|"}));
  EXPECT_EQ(estratto.PuntiInTaf, 1U);
  estratto.SostituisciRighe8();
  const auto righe = banco.Righe();
  EXPECT_EQ(righe[3] + righe[4], estratto.List2[0] + estratto.List2[1]);
  EXPECT_EQ(righe.back(), "8|PF07/012A/G224|12.3|04|BASE|") << "an extract tells no heights";
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

TEST(QuoteMedie, SiCercanoEVannoNellaRigaNove) {
  Banco banco;
  banco.Apri(Testo(Testata));
  banco.disco.Metti(PercorsoQuotaMedia(banco.sessione),
                    "A001|ABANO TERME|14|\r\nG224|PADOVA|12|\r\nL736|VENEZIA|1|\r\n");
  class QuoteMedie form(banco.ambiente);
  form.AlCaricamento();
  EXPECT_EQ(form.Indice, 1) << "the comune of row 0";
  form.Cerca("xyz");
  form.MettiInRigaNove();
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Selezionare un Comune!");
  form.Cerca("terme");
  EXPECT_EQ(form.Righe.size(), 1U);
  form.MettiInRigaNove();
  EXPECT_TRUE(form.Chiusa);
  EXPECT_TRUE(banco.sessione.RigaNove.starts_with("9|14|10|20|")) << banco.sessione.RigaNove;
}

} // namespace
} // namespace lirmeto
