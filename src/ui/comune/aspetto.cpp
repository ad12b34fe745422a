#include <ui/comune/aspetto.h>

#include <ui/comune/testo_qt.h>

#include <core/riga.h>

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>
#include <QTranslator>
#include <QWidget>

#include <algorithm>
#include <array>

// Qt wants the resources of a static library called by name, outside any namespace.
static void RegistraRisorse() {
  Q_INIT_RESOURCE(risorse);
}

namespace lirmeto::ui {

namespace {

QPalette PaletteChiara() {
  QPalette p;
  p.setColor(QPalette::Window, QColor(0xF4, 0xF6, 0xF8));
  p.setColor(QPalette::WindowText, QColor(0x26, 0x32, 0x38));
  p.setColor(QPalette::Base, Qt::white);
  p.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF9, 0xFA));
  p.setColor(QPalette::Text, QColor(0x21, 0x2B, 0x31));
  p.setColor(QPalette::Button, QColor(0xEE, 0xF1, 0xF4));
  p.setColor(QPalette::ButtonText, QColor(0x26, 0x32, 0x38));
  p.setColor(QPalette::Highlight, QColor(0x3B, 0x7D, 0xB5));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFD, 0xF2));
  p.setColor(QPalette::ToolTipText, QColor(0x26, 0x32, 0x38));
  p.setColor(QPalette::PlaceholderText, QColor(0x8A, 0x96, 0x9E));
  for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, ruolo, QColor(0x98, 0xA2, 0xA9));
  return p;
}

QString FoglioDiStile() {
  QFile file(QStringLiteral(":/stile.css"));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void TraduciDialoghi(QApplication& applicazione) {
  auto* traduttore = new QTranslator(&applicazione);
  if (traduttore->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    applicazione.installTranslator(traduttore);
}

} // namespace

void VestiApplicazione(QApplication& applicazione) {
  RegistraRisorse();
  applicazione.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  applicazione.setPalette(PaletteChiara());
  applicazione.setStyleSheet(FoglioDiStile());
  applicazione.setWindowIcon(Icona(QStringLiteral("lirmeto")));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  TraduciDialoghi(applicazione);
}

ColoriRiga ColoriDelGenere(std::string_view riga) {
  static const std::array<ColoriRiga, 10> colori = {{
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
  const auto genere = static_cast<std::size_t>(GenereDi(riga));
  return genere < colori.size() ? colori[genere] : colori[0];
}

QColor ColoreSelezione() {
  return {0xC5, 0xDF, 0xF4};
}
QColor ColoreNumeri() {
  return {0x7B, 0x88, 0x91};
}
QColor ColoreMargine() {
  return {0xEC, 0xEF, 0xF2};
}
QColor ColoreBarre() {
  return {0xB0, 0xBA, 0xC2};
}
QColor ColoreTrovato() {
  return {0xFF, 0xE4, 0x8A};
}

QIcon Icona(const QString& nome) {
  const QString percorso = QStringLiteral(":/icone/%1.svg").arg(nome);
  return QFile::exists(percorso) ? QIcon(percorso) : QIcon();
}

QString NomeIconaPulsante(int indice) {
  static const QHash<int, QString> nomi = {
      {1, QStringLiteral("importa")},
      {3, QStringLiteral("stampa")},
      {4, QStringLiteral("salva")},
      {5, QStringLiteral("vrs_elimina")},
      {6, QStringLiteral("attiva_pregeo")},
      {7, QStringLiteral("provincia")},
      {9, QStringLiteral("apri")},
      {10, QStringLiteral("nuovo")},
      {11, QStringLiteral("vrs_assegna")},
      {14, QStringLiteral("riordino")},
      {15, QStringLiteral("desktop")},
      {16, QStringLiteral("modifica")},
      {17, QStringLiteral("censuario")},
      {18, QStringLiteral("estratti")},
      {20, QStringLiteral("gondella")},
      {21, QStringLiteral("apri_pregeo")},
      {22, QStringLiteral("archivio")},
      {23, QStringLiteral("bussola")},
      {24, QStringLiteral("attiva_pregeo2")},
      {25, QStringLiteral("utilita")},
      {27, QStringLiteral("stazioni")},
      {28, QStringLiteral("fiduciali")},
      {30, QStringLiteral("inverti")},
      {31, QStringLiteral("copia")},
  };
  return nomi.value(indice);
}

QFont FontDa(const Carattere& carattere) {
  QFont font(AQString(carattere.nome));
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(std::clamp(carattere.dimensione, 4.0, 72.0));
  font.setBold(carattere.grassetto);
  font.setItalic(carattere.corsivo);
  return font;
}

Carattere CarattereDa(const QFont& font) {
  return {font.pointSizeF(), DaQString(font.family()), font.bold(), font.italic()};
}

QFont FontMonospazio(double punti) {
  Carattere carattere;
  carattere.dimensione = punti;
  return FontDa(carattere);
}

void AdattaAlloSchermo(QWidget& finestra, int larghezza, int altezza) {
  const QScreen* schermo = finestra.screen();
  const QSize libero = schermo != nullptr ? schermo->availableGeometry().size() : QSize(larghezza, altezza);
  finestra.resize(std::min(larghezza, libero.width()), std::min(altezza, libero.height()));
}

void RimettiAlPosto(QWidget& finestra, const std::optional<PosizioneForm>& posizione) {
  if (!posizione) return;
  if (posizione->larghezza > 0 && posizione->altezza > 0)
    AdattaAlloSchermo(finestra, posizione->larghezza, posizione->altezza);
  const QPoint posto(posizione->sinistra, posizione->alto);
  const QList<QScreen*> schermi = QGuiApplication::screens();
  const bool visibile = std::any_of(schermi.begin(), schermi.end(), [&](const QScreen* schermo) {
    constexpr int margine = 80; // pixels of the title that must be in reach
    return schermo->availableGeometry().adjusted(0, 0, -margine, -margine).contains(posto);
  });
  if (visibile) finestra.move(posto);
}

} // namespace lirmeto::ui
