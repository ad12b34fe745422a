#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <estratti/copia_estratto.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>

namespace lirmeto {
namespace {

using prova::Banco;

const std::string Estratti = "C:\\PREGEO\\ESTRATTI\\";

struct CasoCopia {
  std::string dato;
  std::string presenti;  // extensions of C:\DATI\A that are there
  std::string copiati;   // extensions that lie in the extract folder afterwards
  std::string associato; // "": as it was
  int errore = 0;
};

class Copia : public testing::TestWithParam<CasoCopia> {};

TEST_P(Copia, ConIlGemelloSeC) {
  const CasoCopia& caso = GetParam();
  Banco banco;
  banco.sessione.EstrattoAssociato = "PRIMA.EMP";
  for (const std::string estensione : {".EMP", ".PNG", ".DXF"})
    if (caso.presenti.find(estensione) != std::string::npos)
      banco.disco.Metti("C:\\DATI\\A" + estensione, "byte" + estensione);
  int numero = 0;
  try {
    CopiaEstrattoInPregeo(banco.ambiente, caso.dato);
  } catch (const Errore& guasto) {
    numero = guasto.Numero();
  }
  EXPECT_EQ(numero, caso.errore);
  std::string copiati;
  for (const std::string estensione : {".EMP", ".PNG", ".DXF"})
    if (banco.disco.Contenuto(Estratti + "A" + estensione) == std::string("byte").append(estensione))
      copiati += estensione;
  EXPECT_EQ(copiati, caso.copiati);
  EXPECT_EQ(banco.sessione.EstrattoAssociato, caso.associato.empty() ? "PRIMA.EMP" : caso.associato);
  const bool detto = !banco.dialoghi.detti.empty();
  EXPECT_EQ(detto, !caso.copiati.empty());
  if (detto) {
    EXPECT_EQ(banco.dialoghi.detti[0].titolo + "/" + banco.dialoghi.detti[0].testo,
              "Copia Estratto in Pregeo/Copiato nella cartella Estratti!");
  }
}

INSTANTIATE_TEST_SUITE_P(Casi, Copia,
                         testing::Values(CasoCopia{"\"c:\\dati\\a.emp\"", ".EMP.PNG", ".EMP.PNG", "A.EMP"},
                                         CasoCopia{"C:\\DATI\\A.EMP", ".EMP", ".EMP", "A.EMP"},
                                         CasoCopia{"C:\\DATI\\A.PNG", ".EMP.PNG", ".EMP.PNG", "A.EMP"},
                                         CasoCopia{"C:\\DATI\\A.PNG", ".PNG", ".PNG", ""},
                                         CasoCopia{"C:\\DATI\\A.EMP", ".PNG", "", "", errore::FileNonTrovato},
                                         CasoCopia{"C:\\DATI\\A.DXF", ".DXF", "", ""},
                                         CasoCopia{"A:.EMP", "", "", "", errore::NomeFileNonValido}));

// An archive in memory: "NAME=bytes" parted by ";".
class ArchivioFinto : public ArchivioAperto {
public:
  explicit ArchivioFinto(std::string testo) : testo_(std::move(testo)) {}
  [[nodiscard]] std::size_t Quante() const override { return QuanteParti(testo_, ';'); }
  [[nodiscard]] std::optional<VoceArchivio> Prossima() override {
    const std::string_view voce = Parte(testo_, ';', prossima_++);
    if (voce.empty()) return std::nullopt;
    byte_ = Parte(voce, '=', 1);
    return VoceArchivio{std::string(Parte(voce, '=', 0))};
  }
  [[nodiscard]] ContenutoVoce Leggi(std::size_t /*massimo*/) override { return {byte_}; }

private:
  std::string testo_;
  std::string byte_;
  std::size_t prossima_ = 0;
};

struct CasoZip {
  std::string nome;
  std::string archivio; // its entries; "" is none that can be read
  std::string copiati;  // contents of G.EMP and G.PNG in the extract folder
  bool associato;
  bool detto;
};

class CopiaZip : public testing::TestWithParam<CasoZip> {};

TEST_P(CopiaZip, SottoIlNomeDellArchivio) {
  const CasoZip& caso = GetParam();
  Banco banco;
  if (!caso.archivio.empty())
    banco.processi.apriArchivio = [](std::string byte) { return std::make_unique<ArchivioFinto>(std::move(byte)); };
  banco.disco.cartelle.emplace_back("C:\\PREGEO\\TMP");
  banco.disco.Metti("C:\\PREGEO\\TMP\\A.EMP", "di prima");
  banco.disco.Metti("C:\\pregeo\\tmp\\g.zip", caso.archivio);
  (void)Intrappola(banco.ambiente, [&] { CopiaEstrattoInPregeo(banco.ambiente, "c:\\pregeo\\tmp\\g.zip"); });
  std::string copiati;
  for (const std::string nome : {"G.EMP", "G.PNG"})
    if (banco.disco.Esiste(Estratti + nome)) copiati += banco.disco.Contenuto(Estratti + nome);
  EXPECT_EQ(copiati, caso.copiati);
  EXPECT_EQ(banco.sessione.EstrattoAssociato, caso.associato ? "G.EMP" : "");
  EXPECT_FALSE(banco.disco.Contenuto("C:\\PREGEO\\TMP\\A.EMP") == "di prima");
  ASSERT_FALSE(banco.dialoghi.detti.empty());
  EXPECT_EQ(banco.dialoghi.UltimoTesto() == "Esploso e Copiato nella cartella Estratti!", caso.detto);
}

INSTANTIATE_TEST_SUITE_P(Casi, CopiaZip,
                         testing::Values(CasoZip{"tutto", "b.emp=due;a.emp=uno;x.png=foto;l.txt=x", "unofoto", true,
                                                 true},
                                         CasoZip{"soloEmp", "a.emp=uno", "uno", true, true},
                                         CasoZip{"senzaEmp", "x.png=foto;sub/a.emp=uno", "", false, true},
                                         CasoZip{"ostileMaConEmp", "..\\b.emp=male;a.emp=uno", "uno", true, true},
                                         CasoZip{"rotto", "", "", false, false}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(CopiaEstratto, UnArchivioCheMancaNonVuotaLaCartella) {
  Banco banco;
  banco.disco.cartelle.emplace_back("C:\\PREGEO\\TMP");
  banco.disco.Metti("C:\\PREGEO\\TMP\\A.TXT", "lavoro");
  EXPECT_THROW(CopiaEstrattoInPregeo(banco.ambiente, "C:\\manca.zip"), Errore);
  EXPECT_EQ(banco.disco.Contenuto("C:\\PREGEO\\TMP\\A.TXT"), "lavoro");
}

} // namespace
} // namespace lirmeto
