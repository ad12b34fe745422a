#include <ui/comune/tema.h>

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace lirmeto::ui {

namespace {

struct VoceTema {
  std::string_view nome; // "@nome" in the style sheet
  QRgb chiaro;
  QRgb scuro;
};

constexpr std::array<VoceTema, static_cast<std::size_t>(Tono::Quanti)> Tabella = {{
    {"Finestra", 0xFFF4F6F8, 0xFF23292E},       {"TestoFinestra", 0xFF263238, 0xFFE3E8EC},
    {"Base", 0xFFFFFFFF, 0xFF1B2024},           {"Testo", 0xFF212B31, 0xFFE6EBEF},
    {"Alterna", 0xFFF7F9FA, 0xFF20262B},        {"Pulsante", 0xFFEEF1F4, 0xFF323A41},
    {"Spento", 0xFF667178, 0xFF98A4AD},         {"Invito", 0xFF5F6C75, 0xFFA3AFB8},
    {"Scelta", 0xFF2F6FA6, 0xFF2F6FA6},         {"TestoScelta", 0xFFFFFFFF, 0xFFFFFFFF},
    {"Consiglio", 0xFFFFFDF2, 0xFF3A3F33},      {"BordoConsiglio", 0xFFC9BE8E, 0xFF6E6A4A},
    {"TestoConsiglio", 0xFF14324A, 0xFFEFEBD6}, {"Bordo", 0xFFDCE1E5, 0xFF3B444B},
    {"BordoForte", 0xFFC3CCD3, 0xFF4C5760},     {"Cornice", 0xFFA9B2B9, 0xFF56636D},
    {"Testata", 0xFFFAFBFC, 0xFF272E33},        {"Sopra", 0xFFE3ECF4, 0xFF34414C},
    {"BordoSopra", 0xFFC9D9E6, 0xFF4A5F70},     {"Premuto", 0xFFD2E1EE, 0xFF3A4D5C},
    {"Acceso", 0xFFCFE2F2, 0xFF274B68},         {"BordoAcceso", 0xFF9DBEDA, 0xFF4D81AB},
    {"Fuoco", 0xFF3B7DB5, 0xFF6AAEE4},          {"Titolo", 0xFF566570, 0xFFA9B7C2},
    {"TestoPosto", 0xFF37474F, 0xFFC6D0D8},     {"Ricerca", 0xFFFFF9E6, 0xFF34301F},
    {"BordoRicerca", 0xFFE7DDB5, 0xFF5C5433},   {"Avviso", 0xFFFFF4D6, 0xFF3D3217},
    {"TestoAvviso", 0xFF7D5200, 0xFFF3CD7E},    {"BordoAvviso", 0xFFE7D9A8, 0xFF6B5927},
    {"AvvisoSopra", 0xFFFFEDBD, 0xFF4B3D1B},    {"RigaScelta", 0xFFC8E1F5, 0xFF234A68},
    {"Numeri", 0xFF56616A, 0xFFB3BFC8},         {"Margine", 0xFFECEFF2, 0xFF272D32},
    {"Barre", 0xFF545F68, 0xFFB3BFC8},          {"Trovato", 0xFFFFE48A, 0xFF6B5A12},
    {"RigaCorrente", 0xFFEEF5FB, 0xFF24303A},   {"CellaGialla", 0xFFFFE97A, 0xFF64550F},
    {"CellaRossa", 0xFFF29B90, 0xFF7A2F27},     {"TestoErrore", 0xFFB32A1E, 0xFFFF9D92},
    {"FondoErrore", 0xFFFDECEA, 0xFF4A2622},    {"TestoGiusto", 0xFF2A7330, 0xFF86D08C},
    {"SegnoErrore", 0xFFC62828, 0xFFFF7A6E},    {"SegnoDubbio", 0xFFC27700, 0xFFF0B040},
    {"SegnoNota", 0xFF2F7FC1, 0xFF6AAEE4},      {"Carta", 0xFFFDFDFB, 0xFF1A1F23},
    {"Scala", 0xFF5B6A75, 0xFFA9B7C2},          {"Cerchio", 0xFF2F7FC1, 0xFF6AAEE4},
    {"Righello", 0xFF8A2BA8, 0xFFD79AF0},       {"Evidenza", 0x90FFA800, 0xA0FFA800},
    {"Particella", 0xB0F08A24, 0xB0F08A24},     {"Foglio", 0xFFFFFFFF, 0xFFFFFFFF},
    {"Ombra", 0x46000000, 0x90000000},
}};
static_assert(!Tabella.back().nome.empty(), "a tone has no line");

// What the icons are drawn with, and what they are drawn with on a dark ground.
constexpr std::array<std::pair<const char*, const char*>, 11> ToniIcone = {{{"#3D5A73", "#BFD0DE"},
                                                                            {"#24547C", "#9CCBF3"},
                                                                            {"#2F7FC1", "#63AEEA"},
                                                                            {"#FFFFFF", "#2C343A"},
                                                                            {"#DCEBF8", "#3A5468"},
                                                                            {"#CFE2F2", "#3A5468"},
                                                                            {"#7B8891", "#A9B7C2"},
                                                                            {"#B24A3A", "#F08A7A"},
                                                                            {"#C6503C", "#F08A7A"},
                                                                            {"#C65F4A", "#F08A7A"},
                                                                            {"#8A5A00", "#F3CD7E"}}};

// Light that a part of a colour gives, 0 to 1.
double Lineare(double parte) {
  return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
}

double Luminanza(const QColor& colore) {
  return 0.2126 * Lineare(colore.redF()) + 0.7152 * Lineare(colore.greenF()) + 0.0722 * Lineare(colore.blueF());
}

} // namespace

const std::array<ColoriRiga, 10>& ColoriRighe(bool scuro) {
  static const std::array<ColoriRiga, 10> chiari = {{
      {QColor(0xF3, 0xF4, 0xF6), QColor(0x78, 0x83, 0x8C)}, // 0 header: slate
      {QColor(0xE9, 0xF3, 0xFC), QColor(0x2F, 0x7F, 0xC1)}, // 1 stations: blue
      {QColor(0xFF, 0xFF, 0xFF), QColor(0xA9, 0xCB, 0xE8)}, // 2 sightings: white under their station
      {QColor(0xF3, 0xEF, 0xFB), QColor(0x8A, 0x6B, 0xC4)}, // 3 traverses: violet
      {QColor(0xE8, 0xF6, 0xF3), QColor(0x2A, 0x98, 0x84)}, // 4 alignments: teal
      {QColor(0xF4, 0xFB, 0xF9), QColor(0x8F, 0xCC, 0xC0)}, // 5 their points: pale teal
      {QColor(0xFD, 0xF8, 0xE8), QColor(0xC9, 0xA2, 0x2E)}, // 6 free rows: straw
      {QColor(0xEE, 0xF7, 0xE9), QColor(0x5F, 0x9E, 0x3C)}, // 7 contours: green
      {QColor(0xFC, 0xEF, 0xEC), QColor(0xC6, 0x5F, 0x4A)}, // 8 coordinates: brick
      {QColor(0xF3, 0xF4, 0xF6), QColor(0x78, 0x83, 0x8C)}, // 9 closing data: slate
  }};
  static const std::array<ColoriRiga, 10> scuri = {{
      {QColor(0x2A, 0x30, 0x35), QColor(0x8D, 0x99, 0xA3)},
      {QColor(0x1E, 0x31, 0x41), QColor(0x4F, 0x9F, 0xE0)},
      {QColor(0x1B, 0x20, 0x24), QColor(0x3E, 0x62, 0x80)},
      {QColor(0x2C, 0x27, 0x38), QColor(0xA4, 0x8B, 0xDA)},
      {QColor(0x1B, 0x31, 0x2D), QColor(0x3F, 0xB5, 0x9F)},
      {QColor(0x1D, 0x29, 0x27), QColor(0x3F, 0x72, 0x69)},
      {QColor(0x33, 0x2D, 0x1B), QColor(0xD5, 0xAF, 0x3F)},
      {QColor(0x24, 0x30, 0x1E), QColor(0x79, 0xBD, 0x54)},
      {QColor(0x36, 0x25, 0x21), QColor(0xDB, 0x7A, 0x66)},
      {QColor(0x2A, 0x30, 0x35), QColor(0x8D, 0x99, 0xA3)},
  }};
  return scuro ? scuri : chiari;
}

QColor ColoreTema(Tono tono, bool scuro) {
  const VoceTema& voce = Tabella.at(static_cast<std::size_t>(tono));
  return QColor::fromRgba(scuro ? voce.scuro : voce.chiaro);
}

QColor ColoreTema(Tono tono) {
  return ColoreTema(tono, TemaScuro());
}

bool TemaScuro() {
  constexpr int mezzo = 128;
  return QApplication::palette().color(QPalette::Window).lightness() < mezzo;
}

// The longest names first: one may begin another.
QString ConColori(QString foglio, bool scuro) {
  std::array<VoceTema, Tabella.size()> voci = Tabella;
  std::ranges::sort(voci, std::ranges::greater(), [](const VoceTema& voce) { return voce.nome.size(); });
  for (const VoceTema& voce : voci)
    foglio.replace(u'@' + QString::fromLatin1(voce.nome.data(), static_cast<qsizetype>(voce.nome.size())),
                   QColor::fromRgba(scuro ? voce.scuro : voce.chiaro).name());
  return foglio;
}

// In one pass: a colour put in is not one to be changed.
QByteArray IconaScura(QByteArray svg) {
  constexpr qsizetype lungo = 7;
  for (qsizetype posto = svg.indexOf('#'); posto >= 0; posto = svg.indexOf('#', posto + 1))
    for (const auto& [chiaro, scuro] : ToniIcone)
      if (svg.mid(posto, lungo) == chiaro) {
        svg.replace(posto, lungo, scuro);
        break;
      }
  return svg;
}

QPalette PaletteDi(bool scuro) {
  constexpr std::array<std::pair<QPalette::ColorRole, Tono>, 14> ruoli = {{
      {QPalette::Window, Tono::Finestra},
      {QPalette::WindowText, Tono::TestoFinestra},
      {QPalette::Base, Tono::Base},
      {QPalette::AlternateBase, Tono::Alterna},
      {QPalette::Text, Tono::Testo},
      {QPalette::Button, Tono::Pulsante},
      {QPalette::ButtonText, Tono::TestoFinestra},
      {QPalette::BrightText, Tono::TestoErrore},
      {QPalette::Link, Tono::SegnoNota},
      {QPalette::Highlight, Tono::Scelta},
      {QPalette::HighlightedText, Tono::TestoScelta},
      {QPalette::ToolTipBase, Tono::Consiglio},
      {QPalette::ToolTipText, Tono::TestoConsiglio},
      {QPalette::PlaceholderText, Tono::Invito},
  }};
  // The rest, the edges of buttons and the like, follow from these two.
  QPalette palette(ColoreTema(Tono::Pulsante, scuro), ColoreTema(Tono::Finestra, scuro));
  for (const auto& [ruolo, tono] : ruoli) palette.setColor(ruolo, ColoreTema(tono, scuro));
  for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, ruolo, ColoreTema(Tono::Spento, scuro));
  return palette;
}

double Contrasto(const QColor& uno, const QColor& altro) {
  constexpr double riflesso = 0.05; // of the room, on any screen
  const auto [scura, chiara] = std::minmax({Luminanza(uno), Luminanza(altro)});
  return (chiara + riflesso) / (scura + riflesso);
}

QColor Leggibile(const QColor& colore, const QColor& fondo, double contrasto) {
  constexpr double passo = 0.02;
  const bool schiarisce = Luminanza(fondo) < 0.2;
  QColor letto = colore;
  for (double luce = colore.lightnessF(); Contrasto(letto, fondo) < contrasto && luce >= 0 && luce <= 1;
       luce += schiarisce ? passo : -passo)
    letto = QColor::fromHslF(colore.hslHueF(), colore.hslSaturationF(), static_cast<float>(luce));
  return letto;
}

} // namespace lirmeto::ui
