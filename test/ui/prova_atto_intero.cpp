// The typical act on the demo installation, through the windows: from the drawing to a libretto with its proposal and its census
// rows, which is saved and reordered.
#include <ui/utente.h>

#include <core/riga.h>
#include <core/riga_censuaria.h>

#include <QListView>
#include <QListWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace lirmeto::prova {
namespace {

namespace fs = std::filesystem;

const std::string Atto = "C:\\libretti\\RILIEVO.TXT";

// Everything below a folder, into a folder of the disk.
void Copia(DiscoInMemoria& disco, const fs::path& da, const std::string& in) {
  for (const auto& voce : fs::recursive_directory_iterator(da)) {
    std::string percorso = voce.path().lexically_relative(da).generic_string();
    std::replace(percorso.begin(), percorso.end(), '/', '\\');
    percorso.insert(0, in);
    if (voce.is_directory()) {
      disco.cartelle.push_back(Maiuscolo(percorso));
      continue;
    }
    std::ifstream file(voce.path(), std::ios::binary);
    disco.Metti(percorso, {std::istreambuf_iterator<char>(file), {}});
  }
}

// The exchange program over the acts of the disk, as the demo's own stand-in answers.
void Rispondi(Banco& banco, const std::vector<std::string>& argomenti) {
  if (argomenti.size() != 2 || argomenti[0] != "ESPORTA_TUTTO") return;
  const std::string proposta = "C:\\pregeo\\arch\\atti\\" + argomenti[1] + "\\PROPOSTA.TXT";
  const std::string risposta = banco.sessione.CartellaProgramma + "\\TEMP\\ESPORTA_PROPOSTA.txt";
  if (banco.disco.Esiste(proposta)) banco.disco.Metti(risposta, banco.disco.Contenuto(proposta));
}

struct Atti : testing::Test {
  Atti() {
    Banco& banco = tavolo.banco;
    const fs::path demo = LIRMETO_DEMO;
    Copia(banco.disco, demo / "dischi" / "c", "C:\\");
    Copia(banco.disco, demo / "documenti", banco.sessione.CartellaProgramma + "\\");
    banco.disco.cartelle.insert(banco.disco.cartelle.end(), {"C:\\FIDUCIAL\\PARTICELLE"});
    banco.processi.quandoAvvia = [&banco](const std::string&, const std::vector<std::string>& argomenti) {
      Rispondi(banco, argomenti);
    };
    banco.dialoghi.risposte = {Risposta::Si};
  }

  void DaDisegno() {
    const Utente utente(
        {{QStringLiteral("FormCatasto1TXT"), [](QWidget& f) { Premi(f, QStringLiteral("Pulsante_0")); }},
         {QStringLiteral("LibrettoDaDisegno"), [](QWidget& f) { Premi(f, QStringLiteral("Genera")); }}});
    KR_LibrettoOriginale programma(tavolo.ambiente);
    EXPECT_FALSE(programma.Avvia("C:\\libretti\\RILIEVO.LXC|LIBRETTO_DA_DISEGNO|")) << "it ends with the libretto";
    ASSERT_TRUE(utente.Finito());
    ASSERT_TRUE(tavolo.modello.Avvia(Atto));
  }

  void AssociaEstratto() {
    const Utente utente({{QStringLiteral("KR_EstrattiDiMappa1"), [](QWidget& f) {
                            auto* file = f.findChild<QListView*>(QStringLiteral("File1"));
                            const auto quale = file->model()->match(file->model()->index(0, 0), Qt::DisplayRole,
                                                                    QStringLiteral("G224_012300_35.EMP"));
                            EXPECT_EQ(quale.size(), 1);
                            file->setCurrentIndex(quale[0]);
                            Premi(f, QStringLiteral("Pulsante_15"));
                          }}});
    Scegli(tavolo, QStringLiteral("Gestione Estratti di Mappa"));
    ASSERT_TRUE(utente.Finito());
  }

  void Proposta() {
    tavolo.banco.dialoghi.fileScelto = "C:\\libretti\\NUOVO_FABBRICATO.DXF";
    const Utente utente({{QStringLiteral("SelezionaMappali"),
                          [](QWidget& f) {
                            Premi(f, QStringLiteral("Seleziona Tutti"));
                            Premi(f, QStringLiteral("Conferma"));
                          }},
                         {QStringLiteral("Tipol10"), [](QWidget& f) {
                            Premi(f, QStringLiteral("Polilinee da DXF"));
                            Premi(f, QStringLiteral("Conferma"));
                          }}});
    Scegli(tavolo, QStringLiteral("7 Nuova Costruzione"));
    ASSERT_TRUE(utente.Finito());
  }

  void Censuario() {
    const Utente utente({{QStringLiteral("KR_EDM"),
                          [](QWidget& f) {
                            Premi(f, QStringLiteral("Pulsante_12")); // those of every sheet
                            auto* file = f.findChild<QListView*>(QStringLiteral("File1"));
                            EXPECT_EQ(file->model()->rowCount(), 1) << "the parcel of the extract";
                            QTest::mouseClick(file->viewport(), Qt::LeftButton, {},
                                              file->visualRect(file->model()->index(0, 0)).center());
                            Premi(f, QStringLiteral("Pulsante_8"));
                            Premi(f, QStringLiteral("Pulsante_0"));
                          }},
                         {QStringLiteral("KR_NuovaCostruzione"), [](QWidget& f) {
                            Premi(f, QStringLiteral("Pulsante_2"));
                            Premi(f, QStringLiteral("Pulsante_1"));
                            f.close();
                          }}});
    Scegli(tavolo, QStringLiteral("Modello Censuario"));
    ASSERT_TRUE(utente.Finito());
  }

  // The rows of the act's file.
  [[nodiscard]] std::vector<std::string> Salvate() const {
    const std::string testo = tavolo.banco.disco.Contenuto(Atto);
    const auto righe = RigheDi(testo);
    return {righe.begin(), righe.end()};
  }

  Tavolo tavolo;
};

TEST_F(Atti, DalDisegnoAlRiordino) {
  DaDisegno();
  AssociaEstratto();
  Proposta();
  Censuario();
  tavolo.banco.dialoghi.detti.clear();
  Scegli(tavolo, QStringLiteral("Salva"));
  const auto salvate = Salvate();
  const auto quante = [&salvate](const auto& sono) { return std::count_if(salvate.begin(), salvate.end(), sono); };
  EXPECT_EQ(quante([](const std::string& r) { return r.starts_with("1|"); }), 4) << "the stations of the drawing";
  EXPECT_EQ(quante([](const std::string& r) { return RigaCensuaria(r); }), 5)
      << "heading, count, a parcel that dies, one born";
  EXPECT_EQ(quante([](const std::string& r) { return r == "6|ESTRATTO DI MAPPA AGGIORNATO|"; }), 1);
  EXPECT_EQ(quante([](const std::string& r) { return r.find("|35+|35|") != std::string::npos; }), 1) << "the building";
  const Utente utente({{QStringLiteral("Riordino Righe"), [](QWidget& f) { Premi(f, QStringLiteral("Conferma")); }}});
  tavolo.modello.Esegui(Comando::MostraRiordino);
  ASSERT_TRUE(utente.Finito());
  for (const auto& detto : tavolo.banco.dialoghi.detti)
    EXPECT_EQ(detto.testo.find("Modello Censuario"), std::string::npos) << detto.testo;
  auto riordinate = tavolo.banco.Righe();
  auto attese = salvate;
  std::erase_if(attese, [](const std::string& r) { return r.starts_with("6|<"); }); // the tags stand in the file alone
  std::sort(riordinate.begin(), riordinate.end());
  std::sort(attese.begin(), attese.end());
  std::vector<std::string> diverse;
  std::set_symmetric_difference(riordinate.begin(), riordinate.end(), attese.begin(), attese.end(),
                                std::back_inserter(diverse));
  EXPECT_EQ(diverse, std::vector<std::string>{}) << "no row is lost";
}

} // namespace
} // namespace lirmeto::prova
