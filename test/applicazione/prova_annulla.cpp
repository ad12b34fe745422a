// Undo and redo of each command, and the notice of dropped rows that comes and goes with them.
#include "forme_vere.h"
#include "sala.h"

#include <base/testo.h>
#include <core/righe_scartate.h>
#include <core/riordino.h>
#include <intestazione/catasto1_form.h>
#include <supporto/editor_gen.h>

#include <gtest/gtest.h>

#include <functional>

namespace lirmeto {
namespace {

using prova::FormeVere;
using prova::Nove;
using prova::Sala;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

struct CasoAnnulla {
  std::string nome;
  std::function<void(Sala&)> comando;
};

class Annulla : public testing::TestWithParam<CasoAnnulla> {};

TEST_P(Annulla, RidaEsatteLeRigheERipeteRida) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "6|commento|", "8|1|1|1|", "2|1|1,2,3|x|y|z|N [VRS]|",
                                         "1|1|1.5||<P!>|", "2|2|1,2,3|x|y|z|N|", "6|una|due|tre|quattro|"}));
  sala.disco.Metti("C:\\ALTRO.DAT", Testo({Zero, Nove, "8|9|9|9|", "6|<DIT>NERI|", "6|<EST>ALTRO.EMP|"}));
  sala.disco.Metti("C:\\ACT.LXB", Testo({"1|1|9|x|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.CambiaDitta("rossi");
  sala.finestre.disponibili = {"FormCatasto1TXT", "KR_EDM"};
  sala.dialoghi.risposte = {Risposta::Si};
  sala.appunti.testo = "5\t1,5\t2\r\n";
  const auto prima = sala.Foto();
  GetParam().comando(sala);
  const auto dopo = sala.Foto();
  EXPECT_NE(prima, dopo);
  ASSERT_TRUE(sala.finestra.Attivo(Comando::Annulla)) << sala.dialoghi.UltimoTesto();
  for (int giro = 0; giro < 2; ++giro) {
    sala.finestra.Esegui(Comando::Annulla);
    EXPECT_EQ(sala.Foto(), prima);
    EXPECT_FALSE(sala.finestra.Attivo(Comando::Annulla)) << "one command is one step";
    sala.finestra.Esegui(Comando::Ripeti);
    EXPECT_EQ(sala.Foto(), dopo);
  }
}

CasoAnnulla Dal(Comando comando, long indice = -1) {
  return {"Comando" + std::to_string(static_cast<int>(comando)), [=](Sala& sala) {
            sala.sessione.List1.Indice(indice);
            sala.finestra.Esegui(comando);
          }};
}

// The editor, as a user who takes a row away.
CasoAnnulla Dall(const std::string& nome, void (KR_LibrettoOriginale::*evento)(std::size_t)) {
  return {nome, [=](Sala& sala) {
            sala.finestre.utente = [](Modello& modello) {
              auto& editor = dynamic_cast<KR_EditorGen&>(modello);
              editor.Testo = Sostituisci(editor.Testo, "8|1|1|1|\r\n", "");
              editor.Chiudi();
            };
            (sala.finestra.*evento)(3);
          }};
}

INSTANTIATE_TEST_SUITE_P(
    OgniComando, Annulla,
    testing::Values(Dal(Comando::EliminaVrs), Dal(Comando::AssegnaVrs, 6), Dal(Comando::Righe8DaExcel),
                    Dal(Comando::Righe8NomeAutoDaExcel), Dal(Comando::RigheCompleteDaExcel),
                    Dal(Comando::DaElaborazionePregeo), Dal(Comando::ModelloCensuario), Dal(Comando::RiordinoRighe),
                    Dal(Comando::IncollaDaAppunti), Dal(Comando::NuovoLibretto), Dal(Comando::NuovoLibrettoVuoto),
                    Dall("DoppioClick", &KR_LibrettoOriginale::DoppioClick),
                    Dall("Invio", &KR_LibrettoOriginale::TastoInvio),
                    CasoAnnulla{"Cancella",
                                [](Sala& sala) {
                                  sala.sessione.List1.SelezionaIntervallo(2, 4, true);
                                  sala.finestra.TastoCancella();
                                }},
                    CasoAnnulla{"Trascina", [](Sala& sala) { sala.finestra.Trascina("C:\\altro.dat"); }},
                    CasoAnnulla{"TrascinaLxb", [](Sala& sala) { sala.finestra.Trascina("C:\\act.lxb"); }},
                    CasoAnnulla{"DialogoRiordino",
                                [](Sala& sala) {
                                  sala.finestre.utente = [](Modello& modello) {
                                    auto& form = dynamic_cast<FormRiordinoRighe&>(modello);
                                    form.AllAttivazione();
                                    form.Righe[ClasseRighe::Coordinate].clear();
                                    form.Conferma();
                                  };
                                  sala.finestra.Esegui(Comando::MostraRiordino);
                                }}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Annulla, LIntestazioneConfermata) {
  Sala sala;
  FormeVere vere(sala);
  vere.utente = [](Modello& modello) {
    auto& form = dynamic_cast<FormCatasto1TXT&>(modello);
    form.Cambia(1, "99");
    form.Premi(0);
  };
  sala.dialoghi.risposte = {Risposta::Si}; // a fiscal code that is none
  KR_LibrettoOriginale finestra(vere.ambiente);
  finestra.Avvia("C:\\ACT.DAT");
  const auto prima = sala.Foto();
  finestra.DoppioClick(0);
  EXPECT_EQ(Parte(sala.Righe()[0], '|', 2), "99");
  finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.Foto(), prima);
  finestra.Esegui(Comando::Ripeti);
  EXPECT_EQ(sala.sessione.Protocollo, "99");
}

// A header confirmed inside the reorder holds; what the dialog deleted, the comment too, stays deleted.
TEST(Riordino, LIntestazioneConfermataDentroNonTornaQuellaDiPrima) {
  Sala sala;
  FormeVere vere(sala);
  vere.utente = [](Modello& modello) {
    if (auto* intestazione = dynamic_cast<FormCatasto1TXT*>(&modello)) {
      intestazione->Cambia(1, "99");
      intestazione->Cambia(16, "777");
      return intestazione->Premi(0);
    }
    auto& form = dynamic_cast<FormRiordinoRighe&>(modello);
    form.AllAttivazione();
    form.TastoCancella(2, 0); // the comment
    form.TastoCancella(6, 1); // the sighting
    form.TastoCancella(0, 0); // row 0 cannot go
    form.DoppioClick(1, 0);
    EXPECT_EQ(form.EtichettaIscrizione, "Numero Iscrizione Albo 777");
    form.Conferma();
  };
  sala.dialoghi.risposte = {Risposta::Si};
  KR_LibrettoOriginale finestra(vere.ambiente);
  finestra.Avvia("C:\\ACT.DAT");
  finestra.Esegui(Comando::MostraRiordino);
  EXPECT_EQ(Parte(sala.Righe()[0], '|', 2), "99");
  EXPECT_EQ(sala.Righe().size(), 4U);
  EXPECT_EQ(sala.Righe()[2], "1|1|1.5|N|");
  EXPECT_EQ(finestra.CasellaIscrizione, "777");
}

TEST(Annulla, NonPerCioCheNonCambiaLeRighe) {
  Sala sala;
  sala.finestra.Avvia("C:\\ACT.DAT");
  for (const Comando comando : {Comando::SalvaLibretto, Comando::CopiaNegliAppunti, Comando::SelezionaStazioni,
                                Comando::InvertiSelezione, Comando::MostraRigheScartate, Comando::EliminaVrs}) {
    sala.finestra.Esegui(comando);
    EXPECT_FALSE(sala.finestra.Attivo(Comando::Annulla)) << static_cast<int>(comando);
  }
  sala.finestra.Esegui(Comando::RiordinoRighe);
  EXPECT_EQ(sala.finestra.Didascalia(Comando::Annulla), "Annulla");
  sala.sessione.List1.Aggiungi("8|nuova|1|2|");
  sala.sessione.List1.Seleziona(2, true);
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.TastoCancella();
  EXPECT_EQ(sala.finestra.Didascalia(Comando::Annulla), "Annulla Elimina Righe");
  sala.finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.finestra.Didascalia(Comando::Ripeti), "Ripeti Elimina Righe");
}

TEST(Scartate, LAvvisoRestaFinoAlProssimoCambiamento) {
  Sala sala;
  sala.disco.Metti("C:\\ACT.DAT", Testo({Zero, Nove, "8|1|1|1|", "6|una|due|tre|", "6|x|y|z|w|"}));
  sala.finestra.Avvia("C:\\ACT.DAT");
  sala.finestra.Esegui(Comando::RiordinoRighe);
  EXPECT_EQ(sala.finestra.AvvisoScartate, "Scartate 2 righe senza classe");
  sala.finestra.Esegui(Comando::SelezionaStazioni);
  sala.finestre.utente = [&](Modello& modello) {
    auto& form = dynamic_cast<FormRigheScartate&>(modello);
    EXPECT_EQ(form.Righe(), (ListaRighe{"6|una|due|tre|", "6|x|y|z|w|"}));
    form.Copia();
  };
  sala.finestra.Esegui(Comando::MostraRigheScartate);
  EXPECT_EQ(sala.appunti.testo, Testo({"6|una|due|tre|", "6|x|y|z|w|"}));
  sala.finestra.Esegui(Comando::Annulla);
  EXPECT_EQ(sala.finestra.AvvisoScartate, "");
  sala.finestra.Esegui(Comando::Ripeti);
  EXPECT_EQ(sala.sessione.RigheScartate.size(), 2U);
  sala.dialoghi.risposte = {Risposta::Si};
  sala.finestra.Esegui(Comando::IncollaDaAppunti);
  EXPECT_EQ(sala.finestra.AvvisoScartate, "");
}

} // namespace
} // namespace lirmeto
