// The data of an auto-assembled extract.
#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <estratti/completa_autoallestito.h>
#include <supporto/comuni8.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Percorso = "C:\\pregeo\\estratti\\X.EMP";
const std::string Autoallestito = "0|AUTOALLESTITO|0|0|0|0|0|0|0|0|";
const Righe File = {Autoallestito,
                    "8|1%|0|0|",
                    "8|2%|1|1|",
                    "7|3|1%|2%|1%|NC|35|35|50|",
                    "7|3|1%|2%|1%|NC|36|36|50|",
                    "6|PARTICELLA|36|01|SEMINATIVO  |12|12|3|4|SR|"};

struct Tavolo : Banco {
  explicit Tavolo(const std::vector<std::string>& righe = File, const std::string& tipologia = "") {
    disco.Metti(Percorso, Testo(righe));
    sessione.TipologiaCorrente = tipologia;
    form.AlCaricamento();
  }
  CompletaAutoallestito form{ambiente, "X.EMP"};
};

TEST(Completa, ElencaLeParticelleConLeRigheCheHanno) {
  Tavolo tavolo;
  EXPECT_EQ(tavolo.form.Titolo, "Completa Autoallestito - X");
  EXPECT_EQ(tavolo.form.List1, (Righe{"6|PARTICELLA|35||||||||", File[5]}));
  EXPECT_EQ(tavolo.form.Indice, 0);
  tavolo.form.Seleziona(1);
  EXPECT_EQ(tavolo.form.QualitaParticella + "/" + tavolo.form.DescrizioneParticella + "/" + tavolo.form.Superficie,
            "01/SEMINATIVO/12");
  EXPECT_THROW(tavolo.form.Seleziona(2), Errore);
  Tavolo conNomi({Sostituisci(Autoallestito, "|0|0|0|0|0|0|0|0|", "|PD|G224|00042|7,8|PD|||"), "8|1%|0|0|"});
  EXPECT_EQ(conNomi.form.List1, (Righe{"6|PARTICELLA|7||||||||", "6|PARTICELLA|8||||||||"}));
  EXPECT_EQ(conNomi.form.Foglio, "00042");
}

TEST(Completa, RicalcolaParticellaNellaRigaSuaOAlTerzoPosto) {
  Tavolo tavolo;
  auto& form = tavolo.form;
  form.ScegliQualita(1);
  EXPECT_EQ(form.CodiceParticella, "282");
  form.QualitaParticella = "00";
  form.Superficie = "123.7";
  form.RicalcolaParticella();
  const std::string nuova = "6|PARTICELLA|35|00|ENTE URBANO |124|124|||SN|";
  EXPECT_EQ(form.List1[0], nuova);
  form.Seleziona(1);
  form.DescrizioneParticella = "una descri|zione lunga";
  form.Superficie = "";
  form.RicalcolaParticella();
  Righe attese = File;
  attese.insert(attese.begin() + 2, nuova);
  attese.back() = "6|PARTICELLA|36|01|una descri z|0|0|3|4|SN|";
  EXPECT_EQ(form.List2, attese);
  form.RicalcolaParticella();
  EXPECT_EQ(form.List2, attese) << "a second time changes nothing";
  form.Salva();
  EXPECT_EQ(tavolo.disco.Contenuto(Percorso), Testo(attese));
}

TEST(Completa, LaTipologia22HaLaSuaQualita) {
  Tavolo tavolo(File, "22");
  tavolo.form.Superficie = "10";
  tavolo.form.RicalcolaParticella();
  EXPECT_EQ(tavolo.form.List1[0], "6|PARTICELLA|35|00|FABB PROMIS |10|10|||SN|");
  EXPECT_EQ(tavolo.form.CodiceParticella, "278");
}

TEST(Completa, LeQualitaPerTipologia) {
  for (const auto& [tipologia, visibili] : std::vector<std::pair<std::string, std::string>>{
           {"", "013"}, {"05", "013"}, {"01", "023"}, {"02", "023"}, {"20", "3"}, {"21", "3"}, {"22", "3"}}) {
    Tavolo tavolo(File, tipologia);
    std::string viste;
    for (std::size_t i = 0; i < CompletaAutoallestito::Qualita.size(); ++i)
      if (tavolo.form.Visibile(i)) viste += std::to_string(i);
    EXPECT_EQ(viste, visibili) << tipologia;
  }
}

TEST(Completa, RigaZeroConComuneFoglioEParticelle) {
  Tavolo tavolo;
  tavolo.sessione.CodiceComune = "Z999";
  tavolo.finestre.utente = [](Modello& modello) {
    auto& scelta = dynamic_cast<KR_Comuni8&>(modello);
    scelta.CambiaText1("PADOVA");
    scelta.CopiaCodiceFiscale();
  };
  auto& form = tavolo.form;
  form.ScegliComune();
  EXPECT_EQ(form.EtichettaComune, "G224 - PADOVA");
  EXPECT_EQ(tavolo.sessione.CodiceComune, "Z999") << "the libretto's stays";
  form.Foglio = "42";
  form.LasciaFoglio();
  EXPECT_EQ(form.Foglio, "00042");
  form.RicalcolaAutoAllestito();
  EXPECT_EQ(form.List2[0], "0|AUTOALLESTITO|PD|G224|00042|35,36|PD|0|0|0|");
  EXPECT_EQ(form.Label2, form.List2[0]);
  EXPECT_EQ(tavolo.sessione.EstrattoFoglio, "0042");
}

TEST(Completa, SenzaParticelleOSenzaFileSoloUnMessaggio) {
  Tavolo vuoto(Righe{});
  EXPECT_EQ(vuoto.form.Indice, -1);
  vuoto.form.RicalcolaParticella();
  EXPECT_EQ(vuoto.dialoghi.UltimoTesto(), "Selezionare una particella!");
  vuoto.form.RicalcolaAutoAllestito();
  EXPECT_EQ(vuoto.form.List2.size(), 1U);
}

} // namespace
} // namespace lirmeto
