#include "sostituti/banco.h"

#include <base/testo.h>
#include <core/libretto_in_classi.h>
#include <core/ordine_stazioni.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/riordino.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Nove;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

const std::string Apre = "6|***** Relazione  Tecnica *****|";
const std::string Chiude = "6|*****   Fine   Relazione *****|";

std::string Censuaria(const std::string& testa) {
  return RiempiECorta("6|" + testa, 70);
}

Righe Riordinate(Banco& banco, const Righe& righe) {
  banco.sessione.Libretto = Testo(righe);
  RicomponiLibretto(banco.ambiente, EsplodiLibretto(banco.ambiente));
  Righe uscita;
  for (const auto riga : RigheDi(banco.sessione.Libretto)) uscita.emplace_back(riga);
  return uscita;
}

TEST(Riordino, OgniClasseAlSuoPosto) {
  Banco banco;
  const Righe disordinate = {"8|1|2|3|",
                             "7|2|1|2|NC|",
                             Zero,
                             "5|3|1.0|",
                             "2|20|1,2,3|c|P|h|n|",
                             "4|A|B|0.00|",
                             Apre,
                             "6|qualunque riga della relazione, anche lunga, con | barre | e oltre il limite|",
                             Chiude,
                             "1|100|1.5|N|",
                             "6|sopra il contorno|",
                             "6|DettaglioTipoAgg=1|",
                             "6| - appunto|",
                             "3|2|100|200|",
                             Nove,
                             "6|commento|",
                             "6|L1|10052018|RTK|",
                             Censuaria("5PARTIC|"),
                             "12|strana|",
                             "6|ESTRATTO DI MAPPA|",
                             "8|1%|5|6|",
                             "1|mai ordinata|"};
  EXPECT_EQ(Riordinate(banco, disordinate), (Righe{Zero,
                                                   Nove,
                                                   "6|DettaglioTipoAgg=1|",
                                                   "6|commento|",
                                                   "6| - appunto|",
                                                   "3|2|100|200|",
                                                   "2|20|1,2,3|c|P|h|n|",
                                                   "6|L1|10052018|RTK|",
                                                   "1|100|1.5|N|",
                                                   "12|strana|",
                                                   "5|3|1.0|",
                                                   "4|A|B|0.00|",
                                                   "7|2|1|2|NC|",
                                                   "6|sopra il contorno|",
                                                   Apre,
                                                   disordinate[7],
                                                   Chiude,
                                                   "8|1|2|3|",
                                                   Censuaria("5PARTIC|"),
                                                   "6|ESTRATTO DI MAPPA|",
                                                   "8|1%|5|6|",
                                                   "1|mai ordinata|"}));
  EXPECT_EQ(banco.sessione.PropostaLibretto, Testo({"6|ESTRATTO DI MAPPA|", "8|1%|5|6|", "1|mai ordinata|"}));
}

struct CasoRiga6 {
  std::string nome;
  std::string riga;
  std::string prima; // the row before it
  ClasseRighe classe;
};

class Riga6 : public testing::TestWithParam<CasoRiga6> {};

TEST_P(Riga6, LaPrimaClasseCheVaBene) {
  Banco banco;
  banco.sessione.Libretto = Testo({Zero, Nove, GetParam().prima, GetParam().riga});
  const RigheInClassi classi = EsplodiLibretto(banco.ambiente);
  const ListaRighe& lista = classi[GetParam().classe];
  ASSERT_FALSE(lista.empty());
  EXPECT_EQ(lista.back(), GetParam().riga);
}

using C = ClasseRighe;
INSTANTIATE_TEST_SUITE_P(
    Prove, Riga6,
    testing::Values(
        CasoRiga6{"basGps", "6|x|BAS|y|", Nove, C::Gps}, CasoRiga6{"pdop", "6|x|PDOP=2|", Nove, C::Gps},
        CasoRiga6{"pdopSenzaBarra", "6|PDOP=2x|", "8|1|", C::Gps}, CasoRiga6{"l2", "6|L2|a|b|c|", Nove, C::Gps},
        CasoRiga6{"settantaConDettaglio", Censuaria("DettaglioTipoAgg="), Nove, C::Commento},
        CasoRiga6{"settanta", Censuaria(" - x"), Nove, C::Censuario},
        CasoRiga6{"sessantanove", RiempiECorta("6|abc", 68) + "|", "8|1|2|", C::Contorni},
        CasoRiga6{"appunto", "6| - a | b | c|", "8|1|2|", C::Appunti},
        CasoRiga6{"dopoNove", "6|abc|", Nove, C::Commento}, CasoRiga6{"dopoTesto", "6|abc|", "ciao", C::Commento},
        CasoRiga6{"dopoMisura", "6|abc|", "2|1|2|3|4|", C::Contorni},
        CasoRiga6{"dueCampi", "6|abc|def|", Nove, C::Nessuna}, CasoRiga6{"nessunaChiusura", "6|abc", Nove, C::Nessuna},
        CasoRiga6{"settantacinque", RiempiECorta("6|a", 74) + "|", "8|1|2|", C::Contorni},
        CasoRiga6{"settantasei", RiempiECorta("6|a", 75) + "|", "8|1|2|", C::Nessuna},
        CasoRiga6{"datiCensuario", "6|Dati per aggiornare il D.B. Censuario|", "8|1|2|", C::Nessuna},
        CasoRiga6{"marcaSola", Apre, "8|1|2|", C::Nessuna}, CasoRiga6{"chiusuraSola", Chiude, "8|1|2|", C::Nessuna}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Relazione, SoloUnBloccoChiusoEPienoResta) {
  Banco banco;
  EXPECT_EQ(Riordinate(banco, {Zero, Nove, "1|1|2|", Apre, Chiude}), (Righe{Zero, Nove, "1|1|2|"}));
  // without the closing mark its rows are judged one by one
  EXPECT_EQ(Riordinate(banco, {Zero, Nove, Apre, "6|testo|", "1|1|2|"}), (Righe{Zero, Nove, "1|1|2|", "6|testo|"}));
  // the last opening before the first closing
  EXPECT_EQ(Riordinate(banco, {Zero, Nove, Apre, "8|1|1|1|", Apre, "6|a|b|c|", Chiude, Chiude}),
            (Righe{Zero, Nove, Apre, "6|a|b|c|", Chiude, "8|1|1|1|"}));
}

struct CasoStazioni {
  Righe prima;
  Righe dopo;
};

class Stazioni : public testing::TestWithParam<CasoStazioni> {};

TEST_P(Stazioni, OrdinateSottoLaStazione) {
  ListaRighe righe = prova::Lista(GetParam().prima);
  OrdinaStazioni(righe, Ordine::Stazioni);
  EXPECT_EQ(prova::Copia(righe), GetParam().dopo);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Stazioni,
    testing::Values(CasoStazioni{{}, {}},
                    CasoStazioni{{"1|A|", "2|5|", "2|10|", "2|2|"}, {"1|A|", "2|5|", "2|2|", "2|10|"}},
                    CasoStazioni{{"1|A|", "2|9|", "2|3|b|", "2|3|a|", "1|B|", "2|8|", "2|7|", "2|6|"},
                                 {"1|A|", "2|9|", "2|3|a|", "2|3|b|", "1|B|", "2|8|", "2|6|", "2|7|"}},
                    CasoStazioni{{"2|2|", "2|1|", "1| A |", "2| 5 |x|"}, {"2|1|", "2|2|", "1|A|", "2|5|x|"}},
                    CasoStazioni{{"1|A|", "12|z|", "2|1|"}, {"1|A|", "12|z|", "2|1|"}},
                    // names of more than twenty characters keep their last twenty; a row
                    // without a bar stays whole
                    CasoStazioni{{"1|A|", "2|1|", "2|X12345678901234567890|", "33"},
                                 {"1|A|", "2|1|", "2|12345678901234567890|", "33"}}));

// The plain way: every name padded, every row compared as text.
Righe OrdinatePerEsteso(Righe righe) {
  auto allinea = [](const std::string& riga) {
    const auto parti = Dividi(riga, "|");
    std::string uscita(parti[0]);
    for (std::size_t i = 1; i < parti.size(); ++i)
      uscita += "|" + (i == 1 ? AllineaDestra(parti[1], 20) : std::string(parti[i]));
    return uscita;
  };
  std::sort(righe.begin() + 2, righe.end(), [&](const auto& a, const auto& b) { return allinea(a) < allinea(b); });
  return righe;
}

TEST(Stazioni, LOrdineEQuelloDeiTestiAllineati) {
  std::mt19937 caso(7);
  const auto uno = [&](std::string_view lettere) { return lettere[caso() % lettere.size()]; };
  for (int giro = 0; giro < 300; ++giro) {
    Righe righe = {"1|S|", "2|prima|"};
    for (int i = 0; i < 12; ++i) {
      std::string nome;
      for (std::size_t n = caso() % 5; n > 0; --n) nome += uno("01AZ-!\xE0");
      righe.push_back((caso() % 6 == 0 ? "12|" : "2|") + nome + "|" + std::string(1, uno("ab")) + "|");
    }
    ListaRighe lista = prova::Lista(righe);
    OrdinaStazioni(lista, Ordine::Stazioni);
    ASSERT_EQ(prova::Copia(lista), OrdinatePerEsteso(righe));
  }
}

TEST(Stazioni, BloccoGps) {
  ListaRighe righe = {"6|L1|",    "2|z|1,1|", "6|L2|",    "2|y|1,1|", "2|c|1,1|",
                      "2|b|1,1|", "1|K|1,1|", "2|x|1,1|", "2|e|1,1|", "2|d|1,1|"};
  OrdinaStazioni(righe, Ordine::Gps);
  EXPECT_EQ(righe, (ListaRighe{"6|L1|", "2|z|1,1|", "6|L2|", "2|y|1,1|", "2|b|1,1|", "2|c|1,1|", "1|K|1,1|", "2|x|1,1|",
                               "2|d|1,1|", "2|e|1,1|"}));
}

TEST(Censuario, ConteggioDelleRighe) {
  Banco banco;
  const auto avvisa = [&](const Righe& censuario) {
    banco.dialoghi.detti.clear();
    Righe righe = {Zero, Nove};
    righe.insert(righe.end(), censuario.begin(), censuario.end());
    (void)Riordinate(banco, righe);
    return !banco.dialoghi.detti.empty();
  };
  const std::string due = Censuaria("3SPC |2");
  EXPECT_FALSE(avvisa({Censuaria("1"), due, Censuaria("a"), Censuaria("b")})); // 1 + (2 + 1)
  EXPECT_TRUE(avvisa({Censuaria("1"), due, Censuaria("a")}));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Il numero delle righe INDICATE nel Modello Censuario\r\nnon "
                                          "corrisponde al numero delle "
                                          "righe PRESENTI nel Modello Censuario!");
  EXPECT_FALSE(avvisa({Censuaria("1"), Censuaria("51FTP| 1"), Censuaria("x")}));
  EXPECT_FALSE(avvisa({}));
}

TEST(Censuario, IlBloccoDietroLaPropostaTornaAlSuoPosto) {
  Banco banco;
  const std::string testata(censuario::Intestazione);
  const std::string conteggio = RigaConteggio(censuario::Stralcio, 1);
  const std::string riga = RiempiECorta("6|C|", 69) + "|";
  const std::string ditta = RiempiECorta("6|DITTA|x", 69) + "|"; // seventy characters, and part of the proposal
  const std::string proposta(RigaProposta);
  const Righe attesa = {Zero, Nove, testata, conteggio, riga, proposta, "8|1%|1|2|", ditta};
  EXPECT_EQ(Riordinate(banco, {Zero, Nove, proposta, "8|1%|1|2|", ditta, testata, conteggio, riga}), attesa);
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  EXPECT_EQ(banco.sessione.PropostaLibretto, Testo({proposta, "8|1%|1|2|", ditta}));
}

TEST(Censuario, ProvinciaDiGorizia) {
  Banco banco;
  const std::string riga = RiempiECorta("6|a|bb|c|d|012345678901|f|g|h|ii|j|k|lll|m|", 69) + "|";
  const std::string corta = Censuaria("3SPC |0");
  banco.sessione.SiglaProvincia = "GO";
  const Righe uscita = Riordinate(banco, {Zero, Nove, corta, riga});
  EXPECT_EQ(uscita[2], corta);
  EXPECT_TRUE(uscita[3].starts_with("6|a|bb        |c|d|0123456789|f|g|h|ii        |j|k|  |m|")) << uscita[3];
  banco.sessione.SiglaProvincia = "PD";
  EXPECT_EQ(Riordinate(banco, {Zero, Nove, corta, riga})[3], riga);
}

TEST(Riordino, RipetuteDiSeguitoEUltimaRigaAperta) {
  Banco banco;
  EXPECT_EQ(Riordinate(banco, {Zero, Nove, "8|a|", "1|1|2|", "8|A|"}), (Righe{Zero, Nove, "1|1|2|", "8|a|"}));
  banco.sessione.Libretto = Testo({Zero, Nove}) + "8|persa|";
  EXPECT_TRUE(EsplodiLibretto(banco.ambiente)[C::Coordinate].empty());
  banco.sessione.Libretto = Testo({Zero, "8|1|", std::string(RigaProposta)}) + "8|tenuta|";
  EXPECT_EQ(EsplodiLibretto(banco.ambiente)[C::Proposta], (ListaRighe{RigaProposta, "8|tenuta|"}));
}

TEST(Riordino, DueVolteEComeUna) {
  Banco banco;
  const Righe una = Riordinate(banco, {"8|2|", "2|7|1,2|", "6|x|", "7|1|", Nove, "6|c|", Zero, "2|4|", "2|3|", "1|1|",
                                       "2|9|", "2|8|", Apre, "6|r|", Chiude, "6|ESTRATTO DI MAPPA|", "2|9|"});
  EXPECT_EQ(Riordinate(banco, una), una);
}

TEST(FormRiordino, DomandeEBottoni) {
  Banco banco;
  banco.sessione.NumeroIscrizione = "12";
  banco.sessione.CodiceFiscale = "CF";
  banco.Apri(Testo({Zero, Nove, "8|2|2|2|", "1|1|1.5|N|"}));
  FormRiordinoRighe form(banco.ambiente);
  form.AlCaricamento();
  form.AllAttivazione();
  EXPECT_EQ(banco.sessione.EsitoForm, -1);
  EXPECT_EQ(form.EtichettaIscrizione + "/" + form.EtichettaCodiceFiscale,
            "Numero Iscrizione Albo 12/Codice Fiscale CF");
  std::size_t stazioni = 0;
  while (FormRiordinoRighe::Classi()[stazioni].classe != C::Stazioni) ++stazioni;

  form.EliminaClasse(stazioni); // the answer is No
  EXPECT_EQ(form.Righe[C::Stazioni].size(), 1U);
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Eliminazione Stazioni/Eliminare Stazioni-P.Battuti?\r\n1 riga");
  form.EliminaClasse(0); // rows 0 have no delete button
  form.DoppioClick(stazioni, 5);
  form.DoppioClick(99, 0);
  EXPECT_EQ(banco.dialoghi.detti.size(), 1U);
  banco.dialoghi.risposte = {Risposta::Si};
  form.DoppioClick(stazioni, 0);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Eliminare Stazioni-P.Battuti?\r\n1|1|1.5|N|");
  EXPECT_TRUE(form.Righe[C::Stazioni].empty());
  banco.finestre.disponibili = {"FormCatasto1TXT"};
  form.DoppioClick(0, 0);
  EXPECT_EQ(banco.finestre.aperte, (Righe{"FormCatasto1TXT"}));

  form.Conferma();
  EXPECT_EQ(banco.sessione.EsitoForm, 1);
  EXPECT_TRUE(form.Chiusa);
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "8|2|2|2|"}));
}

TEST(FormRiordino, ChiudereChiedeSeQualcosaSiPerde) {
  for (const bool eliminata : {false, true}) {
    Banco banco;
    banco.Apri(Testo({Zero, Nove, "8|2|2|2|", "1|1|1.5|N|"}));
    FormRiordinoRighe form(banco.ambiente);
    form.AlCaricamento();
    form.AllAttivazione();
    if (eliminata) form.Righe[C::Stazioni].clear();
    form.Chiudi(); // the answer is No
    EXPECT_EQ(form.Chiusa, !eliminata);
    EXPECT_EQ(banco.dialoghi.detti.size(), eliminata ? 1U : 0U);
  }
}

struct CasoIntestazione {
  std::string nome;
  C classe;     // of it the first row is deleted
  Righe prima;  // behind rows 0 and 9
  Righe dopo;   // what the header form leaves there
  Righe attese; // what the confirm leaves there
};

class DopoLIntestazione : public testing::TestWithParam<CasoIntestazione> {};

TEST_P(DopoLIntestazione, LeListeSonoQuelleNuoveSenzaLeEliminate) {
  struct Intestazione : prova::FinestreDiProva {
    std::function<void()> conferma;
    void Apri(std::string_view /*nome*/) override { conferma(); }
  };
  const std::string altra = "0|01022024|99|G224|0010|1|BIANCHI ADA|GEOMETRA|PADOVA|";
  const auto con = [](const std::string& zero, Righe righe) {
    righe.insert(righe.begin(), {zero, Nove});
    return righe;
  };
  Banco banco;
  Intestazione finestre;
  finestre.disponibili = {"FormCatasto1TXT"};
  finestre.conferma = [&] {
    banco.sessione.Libretto = Testo(con(altra, GetParam().dopo));
    banco.sessione.EsitoForm = EsitoConfermato;
  };
  Ambiente ambiente{banco.sessione, banco.disco,        banco.dialoghi, finestre,
                    banco.processi, banco.impostazioni, banco.appunti,  banco.orologio};
  banco.Apri(Testo(con(Zero, GetParam().prima)));
  banco.dialoghi.risposte = {Risposta::Si};
  FormRiordinoRighe form(ambiente);
  form.AlCaricamento();
  form.AllAttivazione();
  std::size_t classe = 0;
  while (FormRiordinoRighe::Classi()[classe].classe != GetParam().classe) ++classe;
  form.TastoCancella(classe, 0);
  form.DoppioClick(0, 0);
  EXPECT_EQ(banco.sessione.EsitoForm, EsitoAnnullato); // the reorder itself is not confirmed yet
  form.Conferma();
  EXPECT_EQ(banco.Righe(), con(altra, GetParam().attese));
}

INSTANTIATE_TEST_SUITE_P(Casi, DopoLIntestazione,
                         testing::Values(CasoIntestazione{"UnaBattutaFraUguali",
                                                          C::Stazioni,
                                                          {"2|1|", "1|1|", "2|1|", "8|1|"},
                                                          {"2|1|", "1|1|", "2|1|", "8|1|"},
                                                          {"1|1|", "2|1|", "8|1|"}},
                                         CasoIntestazione{"UnCommentoNuovoSpostaIlVecchio",
                                                          C::Appunti,
                                                          {"6|vecchio|", "6|altro|", "7|1|"},
                                                          {"6|CONFERMA|", "6|vecchio|", "6|altro|", "7|1|"},
                                                          {"6|CONFERMA|", "6|vecchio|", "6|altro|", "7|1|"}},
                                         CasoIntestazione{"IlVecchioEliminatoLoRestaAncheSpostato",
                                                          C::Commento,
                                                          {"6|vecchio|", "6|altro|", "7|1|"},
                                                          {"6|CONFERMA|", "6|vecchio|", "6|altro|", "7|1|"},
                                                          {"6|CONFERMA|", "6|altro|", "7|1|"}}),
                         [](const auto& caso) { return caso.param.nome; });

} // namespace
} // namespace lirmeto
