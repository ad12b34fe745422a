#include "sostituti/banco.h"

#include <applicazione/finestra_principale.h>
#include <applicazione/tipologie.h>
#include <base/errore.h>
#include <base/testo.h>
#include <generazione/mappale_da_mantenere.h>
#include <generazione/seleziona_mappali.h>
#include <generazione/tipol10.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using prova::Zero;
using Elenco = std::vector<std::string>;

// Parcel 35 is land, 36 urban, 37 rural, 38 divided.
const Elenco Estratto = {"0|12032018|1|G224|00042|35,36|PD|PUB|A|1|",
                         "8|1%|10.000|10.000|",
                         "8|2%|10.000|110.000|",
                         "8|3%|110.000|110.000|",
                         "8|PF01/0010/G224|5|5|",
                         "7|4|1%|2%|3%|1%|NC|35|35|5000|",
                         "6|PARTICELLA|35|  |SEMINATIVO  |1|    | | |",
                         "6|particella|36|  |ente urbano |1|    | | |",
                         "6|PARTICELLA|37|  |FABB RURALE |1|    | | |",
                         "6|PARTICELLA|38|  |FR DIV SUB  |1|    | | |",
                         "6|DITTA|X|"};

struct Sala : Banco {
  KR_LibrettoOriginale finestra{ambiente};
  Sala() {
    disco.Metti("C:\\ACT.DAT", Testo({Zero, "9|20|10|20|0|P|FR|N|", "8|A|1|2|", "6|ESTRATTO DI MAPPA|", "7|vecchia|"}));
    disco.Metti("C:\\PREGEO\\ESTRATTI\\E.EMP", Testo(Estratto));
    EXPECT_TRUE(finestra.Avvia("C:\\ACT.DAT"));
    sessione.EstrattoAssociato = "E.EMP";
    finestre.utente = [this](Modello& modello) { Gioca(modello); };
  }

  // What the user does in each form; a form that he knows nothing of is closed.
  std::function<void(SelezionaMappali&)> mappali = [](SelezionaMappali& form) {
    for (std::size_t i = 0; i < form.List1.size(); ++i) form.Seleziona(i, true);
    form.Conferma();
  };
  std::function<void(MappaleDaMantenere&)> mantiene;
  std::function<void(Tipol10&)> compone = [this](Tipol10& form) {
    appunti.testo =
        "LAYER RC\r\nal punto X=20 Y=20\r\nal punto X=30 Y=20\r\nal punto X=30 Y=32\r\nal punto X=20 Y=20\r\n";
    form.ButtonPlus1(2);
    form.ButtonPlus1(0);
  };
  Elenco mostrate;

private:
  void Gioca(Modello& modello) {
    if (auto* uno = dynamic_cast<SelezionaMappali*>(&modello)) return Con("S", *uno, mappali);
    if (auto* uno = dynamic_cast<MappaleDaMantenere*>(&modello)) return Con("M", *uno, mantiene);
    if (auto* uno = dynamic_cast<Tipol10*>(&modello)) return Con("T", *uno, compone);
  }
  template <typename Form>
  void Con(const std::string& nome, Form& form, const std::function<void(Form&)>& gioco) {
    mostrate.push_back(nome);
    if (gioco) gioco(form);
  }
};

// From the entry of the menu to the proposal, which takes the old one's place; undo brings that back.
TEST(Tipologie, LaSetteDallaVoceAllaProposta) {
  Sala sala;
  const Elenco prima = sala.Righe();
  sala.finestra.Esegui(Comando::NuovaCostruzione);
  EXPECT_EQ(sala.mostrate, (Elenco{"S", "T"}));
  EXPECT_EQ(sala.sessione.ParticelleScelte + "/" + sala.sessione.ParticellaMantenuta, "35,38/35,38");
  EXPECT_EQ(sala.sessione.TipologiaCorrente, "07");
  Elenco attese = {Zero,
                   "9|20|10|20|0|P|07|N|",
                   "8|A|1|2|",
                   "6|ESTRATTO DI MAPPA|",
                   "8|1%|10.000|10.000|",
                   "8|2%|10.000|110.000|",
                   "8|3%|110.000|110.000|",
                   "7|4|1%|2%|3%|1%|NC|35|35|5000|",
                   "6|ESTRATTO DI MAPPA AGGIORNATO|",
                   "8|1*|20.000|20.000|",
                   "8|2*|20.000|30.000|",
                   "8|3*|32.000|30.000|",
                   "8|1*|20.000|20.000|",
                   "7|4|1*|2*|3*|1*|RC|35,38+|35,38|60|",
                   "6|Contorno fabbricato|",
                   "7|2|1*|2*|RC|",
                   "7|2|2*|3*|RC|",
                   "7|2|3*|1*|RC|"};
  EXPECT_EQ(sala.Righe(), attese);
  EXPECT_EQ(sala.sessione.PropostaLibretto, Testo({attese.begin() + 3, attese.end()}));
  sala.finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.Righe(), prima);
}

TEST(Tipologie, LePolilineeStannoPrimaDellaProposta) {
  Sala sala;
  sala.sessione.EstrattoAssociato.clear(); // none is needed
  sala.finestra.Esegui(Comando::PolilineeDxf);
  const Elenco righe = sala.Righe();
  EXPECT_EQ(sala.mostrate, Elenco{"T"});
  ASSERT_EQ(righe.size(), 13U);
  EXPECT_EQ(righe[1], "9|20|10|20|0|P|FR|N|");
  EXPECT_EQ(righe[3], "8|1*|20.000|20.000|");
  EXPECT_EQ(righe[11] + righe[12], "6|ESTRATTO DI MAPPA|7|vecchia|");
  EXPECT_EQ(sala.sessione.TipologiaCorrente, "FR");
}

struct CasoRinuncia {
  std::string nome;
  Comando comando;
  std::function<void(Sala&)> prepara;
  std::string detto; // the last message; empty: none
};

class Rinuncia : public testing::TestWithParam<CasoRinuncia> {};

TEST_P(Rinuncia, LasciaIlLibrettoComEra) {
  Sala sala;
  GetParam().prepara(sala);
  const Elenco prima = sala.Righe();
  sala.finestra.Esegui(GetParam().comando);
  EXPECT_EQ(sala.Righe(), prima);
  EXPECT_EQ(sala.dialoghi.UltimoTesto().substr(0, GetParam().detto.size()), GetParam().detto);
  EXPECT_EQ(sala.dialoghi.detti.empty(), GetParam().detto.empty());
  EXPECT_EQ(sala.sessione.TipologiaCorrente, "FR");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Rinuncia,
    testing::Values(
        CasoRinuncia{"Mappali", Comando::NuovaCostruzione, [](Sala& sala) { sala.mappali = nullptr; }, ""},
        CasoRinuncia{"Mantiene", Comando::FusioneParticelle, [](Sala&) {}, ""},
        CasoRinuncia{"Tipol10", Comando::Ampliamento, [](Sala& sala) { sala.compone = nullptr; }, ""},
        CasoRinuncia{"NienteComposto", Comando::NuovaCostruzione,
                     [](Sala& sala) { sala.compone = [](Tipol10& form) { form.ButtonPlus1(0); }; }, "Nessuna riga"},
        CasoRinuncia{"SenzaEstratto", Comando::NuovaCostruzione,
                     [](Sala& sala) { sala.sessione.EstrattoAssociato.clear(); }, "Nessun Estratto di Mappa associato"},
        CasoRinuncia{"EstrattoCheManca", Comando::NuovaCostruzione,
                     [](Sala& sala) { sala.sessione.EstrattoAssociato = "Z.EMP"; }, "Estratto di Mappa non trovato"},
        CasoRinuncia{
            "DueMappali22", Comando::TuttiISubalterniCambioNumero,
            [](Sala& sala) { sala.disco.Metti("C:\\PREGEO\\ESTRATTI\\E.EMP", Testo(Estratto) + Estratto[9] + "\r\n"); },
            "Questa versione di Lirmeto prevede un solo mappale."},
        CasoRinuncia{"UnSoloMappale", Comando::NuovaCostruzione,
                     [](Sala& sala) { sala.sessione.VersionePregeo = "10.00-Stda"; },
                     "Questa versione di Pregeo prevede un solo mappale."}),
    [](const auto& caso) { return caso.param.nome; });

struct CasoFiltro {
  std::string codice;
  std::string ammessi;
};

class Filtro : public testing::TestWithParam<CasoFiltro> {};

TEST_P(Filtro, MappaliAmmessi) {
  Banco banco;
  banco.disco.Metti("C:\\PREGEO\\ESTRATTI\\E.EMP", Testo(Estratto));
  banco.sessione.EstrattoAssociato = "E.EMP";
  banco.sessione.TipologiaCorrente = GetParam().codice;
  SelezionaMappali form(banco.ambiente);
  form.AlCaricamento();
  std::string ammessi;
  for (const auto& riga : form.List1) ammessi += std::string(Parte(riga, '|', 2)) + " ";
  EXPECT_EQ(ammessi, GetParam().ammessi);
  EXPECT_EQ(form.Titolo + form.Text2, "Seleziona Mappali - E.EMP60");
}

INSTANTIATE_TEST_SUITE_P(Casi, Filtro,
                         testing::Values(CasoFiltro{"01", "35 36 37 38 "}, CasoFiltro{"91", "35 36 37 38 "},
                                         CasoFiltro{"03", "36 "}, CasoFiltro{"46", "36 "}, CasoFiltro{"07", "35 38 "},
                                         CasoFiltro{"22", "38 "}, CasoFiltro{"41", "37 "},
                                         CasoFiltro{"48", "35 37 38 "}, CasoFiltro{"20", ""}, CasoFiltro{"MC", ""},
                                         CasoFiltro{"", ""}, CasoFiltro{"1", ""}));

TEST(Mappali, LaParticellaMantenutaStaPerPrima) {
  Sala sala;
  sala.mantiene = [](MappaleDaMantenere& form) {
    EXPECT_EQ(form.List1, (Elenco{"35", "36", "37", "38"}));
    EXPECT_EQ(form.List2, Elenco{"6|PARTICELLA|36|  |ENTE URBANO |1|    | | |"});
    form.ConfermaMappali();
    EXPECT_FALSE(form.Chiusa) << "none is selected";
    form.ClickList2(0); // takes parcel 36 away
    form.Indice = 1;
    form.ConfermaMappali();
  };
  sala.finestra.Esegui(Comando::FusioneParticelle);
  EXPECT_EQ(sala.mostrate, (Elenco{"S", "M", "T"}));
  EXPECT_EQ(sala.sessione.ParticelleScelte + "/" + sala.sessione.ParticellaMantenuta, "37,35,38/37");
}

TEST(Mappali, UrbaniORuraliDaMantenere) {
  Banco banco;
  banco.sessione.ParticelleScelte = "37,38";
  MappaleDaMantenere niente(banco.ambiente);
  niente.AlCaricamento();
  EXPECT_EQ(niente.Etichetta, "Nessun Ente Urbano selezionabile.");
  banco.sessione.RigheFabbRurale = "6|PARTICELLA|37|\r\n";
  for (const auto& [codice, righe] : std::map<std::string, std::size_t>{{"06", 1}, {"27", 0}}) {
    banco.sessione.TipologiaCorrente = codice;
    MappaleDaMantenere form(banco.ambiente);
    form.AlCaricamento();
    EXPECT_EQ(form.List2.size(), righe);
  }
}

TEST(Mappali, LEstMediaVaNellaRigaNove) {
  Sala sala;
  sala.mappali = [](SelezionaMappali& form) {
    form.CambiaText1("-1234.6");
    form.Check1 = true;
    form.Conferma();
  };
  sala.finestra.Esegui(Comando::NuovaCostruzione);
  EXPECT_EQ(sala.Righe()[1], "9|20|10|20|-1235|P|07|N|");
  EXPECT_EQ(sala.sessione.EstMedio, "-1235");
}

} // namespace
} // namespace lirmeto
