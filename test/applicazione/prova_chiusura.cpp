// Nothing is lost when the window closes or a new libretto begins.
#include "sala.h"

#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

#include <deque>

namespace lirmeto {
namespace {

using prova::Nove;
using prova::Sala;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

TEST(Chiusura, ScriveIlFileELaPosizione) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.finestra.CambiaCodiceFiscale("abc");
  sala.finestra.CambiaIscrizione("9");
  sala.finestra.Chiusura({1, 2, 300, 400});
  const std::string scritto = sala.disco.Contenuto("C:\\ACT.DAT");
  EXPECT_TRUE(scritto.ends_with("6|<EST>|\r\n6|<COD>ABC|\r\n6|<ISC>9|\r\n6|<DIT>ROSSI|\r\n\r\n")) << scritto;
  EXPECT_EQ(sala.impostazioni.valori["POSIZIONE_FORMx/KR_LibrettoOriginale"], "1");
  EXPECT_EQ(sala.impostazioni.valori["FORMy/KR_LibrettoOriginale"], "400");
  EXPECT_TRUE(sala.finestra.Finita);
}

TEST(Chiusura, SenzaCambiamentiNonScriveNulla) {
  const std::string ripetute = Testo({Zero, Nove, "8|1||", "8|1||"}); // what opening mends is no change
  for (const char* file : {"C:\\ACT.DAT", "C:\\MANCA.DAT", ""}) {
    Sala sala;
    sala.disco.Metti("C:\\ACT.DAT", ripetute + "6|<DIT>Rossi|\r\n");
    sala.finestra.Avvia(file);
    sala.finestra.Esegui(Comando::InvertiSelezione);
    sala.finestra.Chiusura({});
    EXPECT_EQ(sala.disco.Contenuto("C:\\ACT.DAT"), ripetute + "6|<DIT>Rossi|\r\n");
    EXPECT_FALSE(sala.disco.Esiste("C:\\MANCA.DAT"));
    EXPECT_TRUE(sala.finestra.Finita);
    EXPECT_EQ(sala.dialoghi.UltimoTesto(),
              std::string_view(file).ends_with("MANCA.DAT") ? "C:\\MANCA.DAT\r\nNON trovato!" : "");
  }
}

TEST(Chiusura, CioCheUnLxbPortaSiScrive) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.LXB", "1|9|1.5|NUOVA|\r\n");
  sala.finestra.Avvia("C:\\ACT.LXB");
  sala.finestra.Chiusura({});
  EXPECT_TRUE(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "1|9|1.5|NUOVA|"));
}

struct CasoChiusura {
  std::string nome;
  std::deque<std::size_t> scelte; // 0 again, 1 elsewhere, 2 without saving; none: the window stays
  bool finita;
  std::string dove; // where the edit is in the end; empty for nowhere
};

class ChiusuraFallita : public testing::TestWithParam<CasoChiusura> {};

TEST_P(ChiusuraFallita, NonPerdeLeModifiche) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.disco.rotti["C:\\ACT.DAT"] = errore::AccessoAlFile;
  sala.dialoghi.scelte = GetParam().scelte;
  sala.dialoghi.fileScelto = "C:\\COPIA.DAT";
  sala.finestra.Chiusura({});
  EXPECT_EQ(sala.finestra.Finita, GetParam().finita);
  EXPECT_EQ(sala.finestra.CasellaDitta, "ROSSI");
  for (const std::string file : {"C:\\ACT.DAT", "C:\\COPIA.DAT"})
    EXPECT_EQ(Contiene(sala.disco.Contenuto(file), "6|<DIT>ROSSI|"), file == GetParam().dove) << file;
  sala.disco.rotti.clear();
  if (GetParam().finita) return;
  sala.finestra.Chiusura({});
  EXPECT_TRUE(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "6|<DIT>ROSSI|"));
}

INSTANTIATE_TEST_SUITE_P(Scelte, ChiusuraFallita,
                         testing::Values(CasoChiusura{"resta", {}, false, ""},
                                         CasoChiusura{"riprova", {0, 0}, false, ""},
                                         CasoChiusura{"altrove", {0, 1}, true, "C:\\COPIA.DAT"},
                                         CasoChiusura{"senzaSalvare", {2}, true, ""}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(Salvato, NonSiChiedeDiSalvarloAncora) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.finestra.Esegui(Comando::SalvaLibretto);
  sala.finestre.disponibili = {"FormCatasto1TXT"};
  sala.dialoghi.detti.clear();
  sala.finestra.Esegui(Comando::NuovoLibretto);
  EXPECT_TRUE(sala.dialoghi.detti.empty()) << sala.dialoghi.UltimoTesto();
}

// The header form as the user leaves it.
struct FinestraIntestazione : prova::FinestreDiProva {
  Sessione* sessione = nullptr;
  std::int16_t esito = EsitoAnnullato;
  std::size_t righe = 0; // that the form finds
  [[nodiscard]] bool Disponibile(std::string_view) const override { return true; }
  void Apri(std::string_view) override {
    sessione->EsitoForm = esito;
    righe = sessione->List1.Quante();
    if (esito > 0) sessione->Libretto = Testo({"0|01012026|9|G224|0010|5|NUOVO ATTO|GEOMETRA|PADOVA|", Nove});
  }
};

struct CasoNuovo {
  std::string nome;
  std::string ditta;  // typed before
  Risposta risposta;  // to the question whether to save
  bool siScrive;      // the file can be written
  std::int16_t esito; // of the header form
  bool chiede;
  bool nuovo;   // the new libretto stands in the end
  bool salvata; // the edit is on the disk
};

class Nuovo : public testing::TestWithParam<CasoNuovo> {};

TEST_P(Nuovo, NonSiPortaViaQuelloDiPrima) {
  const CasoNuovo& caso = GetParam();
  Sala sala;
  FinestraIntestazione finestre;
  finestre.sessione = &sala.sessione;
  finestre.esito = caso.esito;
  Ambiente vero{sala.sessione, sala.disco,        sala.dialoghi, finestre,
                sala.processi, sala.impostazioni, sala.appunti,  sala.orologio};
  KR_LibrettoOriginale finestra(vero);
  finestra.Avvia("C:\\ACT.DAT");
  if (!caso.ditta.empty()) finestra.CambiaDitta(caso.ditta);
  if (!caso.siScrive) sala.disco.rotti["C:\\ACT.DAT"] = errore::AccessoAlFile;
  sala.dialoghi.risposte = {caso.risposta};
  const auto prima = sala.Foto();
  finestra.Esegui(Comando::NuovoLibretto);
  EXPECT_EQ(!sala.dialoghi.detti.empty() && sala.dialoghi.detti[0].titolo == "Nuovo Libretto", caso.chiede);
  EXPECT_EQ(finestra.EtichettaFile, caso.nuovo ? "" : "C:\\ACT.DAT");
  EXPECT_EQ(sala.sessione.NomeFileLibretto, finestra.EtichettaFile);
  EXPECT_EQ(finestra.CasellaDitta, caso.nuovo ? "" : Maiuscolo(caso.ditta));
  if (!caso.nuovo) {
    EXPECT_EQ(sala.Foto(), prima);
  }
  EXPECT_EQ(Contiene(sala.disco.Contenuto("C:\\ACT.DAT"), "6|<DIT>ROSSI|"), caso.salvata);
  EXPECT_LE(finestre.righe, 2U) << "the new header finds none of the old rows";
  finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.sessione.NomeFileLibretto, "C:\\ACT.DAT");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Nuovo,
    testing::Values(CasoNuovo{"intatto", "", Risposta::No, true, EsitoConfermato, false, true, false},
                    CasoNuovo{"intatto_esc", "", Risposta::No, true, EsitoAnnullato, false, false, false},
                    CasoNuovo{"si", "rossi", Risposta::Si, true, EsitoConfermato, true, true, true},
                    CasoNuovo{"si_fallito", "rossi", Risposta::Si, false, EsitoConfermato, true, false, false},
                    CasoNuovo{"si_esc", "rossi", Risposta::Si, true, EsitoAnnullato, true, false, true},
                    CasoNuovo{"no", "rossi", Risposta::No, true, EsitoConfermato, true, true, false},
                    CasoNuovo{"annulla", "rossi", Risposta::Annulla, true, EsitoConfermato, true, false, false}),
    [](const auto& caso) { return caso.param.nome; });

} // namespace
} // namespace lirmeto
