#include <ui/comune/aspetto.h>
#include <ui/comune/casella_testo.h>
#include <ui/comune/tema.h>
#include <ui/disegno/grafica_pittura.h>
#include <ui/tavolo.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace lirmeto::prova {
namespace {

using ui::ColoreTema;
using ui::Tono;

class Tema : public testing::TestWithParam<bool> {
protected:
  static void Legge(const QColor& testo, const QColor& fondo, const std::string& dove) {
    EXPECT_GE(ui::Contrasto(testo, fondo), ui::ContrastoTesto)
        << dove << ": " << testo.name().toStdString() << " su " << fondo.name().toStdString();
  }
  static void Legge(Tono testo, Tono fondo) {
    Legge(ColoreTema(testo, GetParam()), ColoreTema(fondo, GetParam()),
          "tono " + std::to_string(static_cast<int>(testo)));
  }
};

TEST_P(Tema, OgniTestoDellaPaletteEDeiDipinti) {
  const QPalette palette = ui::PaletteDi(GetParam());
  using P = QPalette;
  for (const auto& [testo, fondo] :
       {std::pair(P::WindowText, P::Window), std::pair(P::Text, P::Base), std::pair(P::Text, P::AlternateBase),
        std::pair(P::ButtonText, P::Button), std::pair(P::HighlightedText, P::Highlight),
        std::pair(P::ToolTipText, P::ToolTipBase), std::pair(P::PlaceholderText, P::Base)})
    Legge(palette.color(testo), palette.color(fondo), "palette " + std::to_string(testo));
  for (const P::ColorRole fondo : {P::Window, P::Base})
    Legge(palette.color(P::Disabled, P::Text), palette.color(fondo), "spento");
  for (const auto& [testo, fondo] :
       {std::pair(Tono::Testo, Tono::Trovato), std::pair(Tono::Testo, Tono::RigaCorrente),
        std::pair(Tono::Testo, Tono::CellaGialla), std::pair(Tono::Testo, Tono::CellaRossa),
        std::pair(Tono::Numeri, Tono::Margine), std::pair(Tono::Numeri, Tono::Finestra),
        std::pair(Tono::TestoErrore, Tono::Base), std::pair(Tono::Testo, Tono::FondoErrore),
        std::pair(Tono::TestoErrore, Tono::Finestra), std::pair(Tono::TestoGiusto, Tono::Finestra),
        std::pair(Tono::Scala, Tono::Carta), std::pair(Tono::TestoConsiglio, Tono::Consiglio),
        std::pair(Tono::TestoFinestra, Tono::Acceso)})
    Legge(testo, fondo);
}

TEST_P(Tema, OgniRigaDelLibretto) {
  std::vector<QColor> fondi = {ColoreTema(Tono::RigaScelta, GetParam())};
  for (const ui::ColoriRiga& colori : ui::ColoriRighe(GetParam())) fondi.push_back(colori.fondo);
  for (const QColor& fondo : fondi)
    for (const Tono testo : {Tono::Testo, Tono::Barre, Tono::Numeri})
      Legge(ColoreTema(testo, GetParam()), fondo, "riga");
}

// Each rule that gives a colour, on the ground that it gives or on that of the window; and no colour outside of the table.
TEST_P(Tema, OgniRegolaDelFoglioDiStile) {
  QFile file(QStringLiteral(":/stile.css"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString foglio = QString::fromUtf8(file.readAll());
  EXPECT_FALSE(
      foglio.contains(QRegularExpression(QStringLiteral("(color|background|border[^:;]*):[^;]*#[0-9A-Fa-f]{3}"))));
  const QString colorato = ui::ConColori(foglio, GetParam());
  EXPECT_FALSE(colorato.contains(u'@'));
  static const QRegularExpression testo(QStringLiteral("[{; ]color: (#\\w+)"));
  static const QRegularExpression sfondo(QStringLiteral("background: (#\\w+)"));
  int regole = 0;
  for (const QString& regola : colorato.split(u'\n')) {
    const auto colore = testo.match(regola);
    if (!colore.hasMatch()) continue;
    const auto fondo = sfondo.match(regola);
    const bool sulDisegno = regola.startsWith(QStringLiteral("#Invito"));
    Legge(QColor(colore.captured(1)),
          fondo.hasMatch() ? QColor(fondo.captured(1))
                           : ColoreTema(sulDisegno ? Tono::Carta : Tono::Finestra, GetParam()),
          regola.toStdString());
    ++regole;
  }
  EXPECT_GT(regole, 7);
}

// The windows in the other light, and back.
struct InLuce {
  explicit InLuce(bool scura) { ui::Tingi(*qApp, scura); }
  InLuce(const InLuce&) = delete;
  InLuce& operator=(const InLuce&) = delete;
  ~InLuce() { ui::Tingi(*qApp, false); }
};

// On screen red lines are wider, and every name can be read; files and paper have the classic colours.
TEST_P(Tema, InchiostriDelDisegno) {
  const InLuce luce(GetParam());
  const ui::Inchiostri schermo = ui::InchiostriSchermo();
  const ui::Inchiostri carta = ui::InchiostriCarta();
  for (std::int16_t colore = 0; colore < 16; ++colore)
    Legge(schermo.Testo(colore), schermo.fondo, "nome " + std::to_string(colore));
  EXPECT_EQ(carta.Segno(colore::RossoChiaro), QColor(255, 0, 0));
  EXPECT_EQ(carta.Testo(colore::RossoChiaro), QColor(255, 0, 0));
  EXPECT_EQ(schermo.Segno(colore::Nero) == carta.Segno(colore::Nero), !GetParam());
  const auto larga = [](const ui::Inchiostri& inchiostri, std::int16_t colore) {
    QImage tela(40, 40, QImage::Format_RGB32);
    Operazioni lista;
    lista.scala = {-20, 20, 20, -20};
    lista.linee = {{-20, 0.5, 20, 0.5, 1, colore, 0}};
    ui::PittoreSchermo(inchiostri).Dipingi(tela, lista, 1, tela.rect());
    int quanti = 0;
    for (int y = 0; y < tela.height(); ++y)
      quanti += ui::Contrasto(tela.pixelColor(20, y), inchiostri.fondo) > 1.2 ? 1 : 0;
    return quanti;
  };
  EXPECT_GT(larga(schermo, colore::RossoChiaro), larga(schermo, colore::Verde));
  EXPECT_EQ(larga(carta, colore::RossoChiaro), larga(carta, colore::Verde));
}

TEST_P(Tema, ChiHaUnSuoCarattereLoTiene) {
  Tavolo tavolo;
  const QFont prima = tavolo.vista->font();
  ui::Tingi(*qApp, !GetParam()); // the desktop changes twice
  const InLuce luce(GetParam());
  QCoreApplication::processEvents();
  EXPECT_EQ(tavolo.vista->font().family().toStdString(), prima.family().toStdString());
}

TEST_P(Tema, LaRigaCorrenteDellEditorSiLegge) {
  ui::CasellaTesto editor;
  ui::Tingi(*qApp, !GetParam());
  const InLuce luce(GetParam());
  QCoreApplication::processEvents();
  const QColor riga = editor.extraSelections().constFirst().format.background().color();
  EXPECT_EQ(riga, ColoreTema(Tono::RigaCorrente));
}

TEST_P(Tema, OgniIconaSiDistingueDalFondo) {
  const InLuce luce(GetParam());
  constexpr double contrastoSegno = 3; // what WCAG asks of a sign
  const QColor fondo = ColoreTema(Tono::Finestra);
  EXPECT_EQ(fondo.lightness() < 128, GetParam());
  const QStringList nomi = QDir(QStringLiteral(":/icone")).entryList();
  EXPECT_GT(nomi.size(), 60);
  for (const QString& nome : nomi) {
    const QImage icona = ui::Icona(nome.chopped(4)).pixmap(QSize(24, 24), 1.0).toImage();
    int distinti = 0;
    for (int y = 0; y < icona.height(); ++y)
      for (int x = 0; x < icona.width(); ++x) {
        const QColor pixel = icona.pixelColor(x, y);
        distinti += pixel.alpha() > 128 && ui::Contrasto(pixel, fondo) >= contrastoSegno ? 1 : 0;
      }
    EXPECT_GT(distinti, 12) << nome.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Luci, Tema, testing::Bool(),
                         [](const auto& caso) { return std::string(caso.param ? "Scura" : "Chiara"); });

} // namespace
} // namespace lirmeto::prova
