#include <ui/comune/aspetto.h>

#include <ui/comune/disegnatore_icona.h>
#include <ui/comune/luce_di_sistema.h>
#include <ui/comune/stile_finestre.h>
#include <ui/comune/testo_qt.h>

#include <core/riga.h>

#include <QApplication>
#include <QByteArrayView>
#include <QFile>
#include <QHash>
#include <QLibraryInfo>
#include <QList>
#include <QLocale>
#include <QScreen>
#include <QStyle>
#include <QTranslator>
#include <QWidget>

#include <algorithm>
#include <array>
#include <utility>

// Qt wants the resources of a static library called by name, outside any namespace.
static void RegistraRisorse() {
  Q_INIT_RESOURCE(risorse);
}

namespace lirmeto::ui {

namespace {

QString FoglioDiStile() {
  QFile file(QStringLiteral(":/stile.css"));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What a screen leaves to the inside of a window: its free room but for the frame, whose title must stay in reach.
QRect SpazioPerFinestre(const QScreen& schermo) {
  const int titolo = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QRect libero = schermo.availableGeometry();
  return libero.adjusted(0, std::min(titolo, libero.height() / 4), 0, 0);
}

// What Qt's own translation leaves in English.
class Mancanti final : public QTranslator {
public:
  using QTranslator::QTranslator;
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* /*contesto*/, const char* testo, const char* /*quale*/,
                                  int /*quanti*/) const override {
    static const QHash<QByteArrayView, QString> testi = {
        {"Folder", QStringLiteral("Cartella")},
        {"File Folder", QStringLiteral("Cartella")},
        {"Drive", QStringLiteral("Unità")},
        {"File", QStringLiteral("File")},
        {"%1 File", QStringLiteral("File %1")},
        {"Shift", QStringLiteral("Maiusc")},
        {"Home", QStringLiteral("Home")},
        {"Pages", QStringLiteral("Pagine")},
        {"Double Sided Printing", QStringLiteral("Stampa fronte-retro")},
        {"Off", QStringLiteral("No")},
        {"Long side binding", QStringLiteral("Rilegatura sul lato lungo")},
        {"Short side binding", QStringLiteral("Rilegatura sul lato corto")},
        {"Advanced", QStringLiteral("Avanzate")},
        {"Banner page at start", QStringLiteral("Pagina iniziale")},
        {"Banner page at end", QStringLiteral("Pagina finale")},
        {"Invalid Pages Definition", QStringLiteral("Pagine non valide")},
        {"There are conflicts in some options. Please fix them.",
         QStringLiteral("Alcune opzioni sono in conflitto: vanno corrette.")},
        {"Please choose a different file name.", QStringLiteral("Scegliere un altro nome di file.")},
        {"Normal", QStringLiteral("Normale")},
        {"Displays help on commandline options.", QStringLiteral("Mostra questo aiuto.")},
        {"Displays help including Qt specific options.", QStringLiteral("Mostra anche le opzioni di Qt.")},
    };
    return testi.value(testo);
  }
};

void TraduciDialoghi(QApplication& applicazione) {
  auto* traduttore = new QTranslator(&applicazione);
  if (traduttore->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    applicazione.installTranslator(traduttore);
  applicazione.installTranslator(new Mancanti(&applicazione)); // the last one is asked first
}

} // namespace

// The style sheet comes last: it has every window look at its colours again, and takes the fonts away that were not its
// own.
void Tingi(QApplication& applicazione, bool scuro) {
  QList<std::pair<QWidget*, QFont>> caratteri;
  for (QWidget* finestra : QApplication::allWidgets())
    if (finestra->testAttribute(Qt::WA_SetFont)) caratteri.emplace_back(finestra, finestra->font());
  applicazione.setPalette(PaletteDi(scuro));
  applicazione.setStyleSheet(ConColori(FoglioDiStile(), scuro));
  for (const auto& [finestra, carattere] : caratteri)
    if (finestra->font() != carattere) finestra->setFont(carattere);
}

void VestiApplicazione(QApplication& applicazione, Luce luce) {
  RegistraRisorse();
  bool scuro = luce == Luce::Scura;
  if (luce == Luce::Sistema) {
    auto* sistema = new LuceDiSistema(&applicazione);
    QObject::connect(sistema, &LuceDiSistema::Cambiata, &applicazione, [&](bool scura) { Tingi(applicazione, scura); });
    scuro = sistema->Scura();
  }
  applicazione.setStyle(new StileFinestre);
  Tingi(applicazione, scuro);
  applicazione.setWindowIcon(Icona(QStringLiteral("lirmeto")));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  TraduciDialoghi(applicazione);
}

ColoriRiga ColoriDelGenere(std::string_view riga) {
  const auto& colori = ColoriRighe(TemaScuro());
  const auto genere = static_cast<std::size_t>(GenereDi(riga));
  return genere < colori.size() ? colori.at(genere) : colori[0];
}

QColor ColoreSelezione() {
  return ColoreTema(Tono::RigaScelta);
}
QColor ColoreNumeri() {
  return ColoreTema(Tono::Numeri);
}
QColor ColoreMargine() {
  return ColoreTema(Tono::Margine);
}
QColor ColoreBarre() {
  return ColoreTema(Tono::Barre);
}
QColor ColoreTrovato() {
  return ColoreTema(Tono::Trovato);
}

QIcon Icona(const QString& nome) {
  const QString percorso = QStringLiteral(":/icone/%1").arg(nome);
  const bool disegnata =
      QFile::exists(percorso + QStringLiteral(".svg")) || QFile::exists(percorso + QStringLiteral(".png"));
  return disegnata ? QIcon(new DisegnatoreIcona(percorso)) : QIcon();
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
  const QSize libero = schermo != nullptr ? SpazioPerFinestre(*schermo).size() : QSize(larghezza, altezza);
  finestra.resize(std::min(larghezza, libero.width()), std::min(altezza, libero.height()));
}

// Left to itself the window manager may put the inside of a high window where its frame should begin, and the title above
// the screen.
void MettiNelMezzo(QWidget& finestra) {
  if (finestra.parentWidget() == nullptr || finestra.testAttribute(Qt::WA_Moved)) return;
  const QWidget* sotto = finestra.parentWidget()->window();
  const int titolo = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QSize intera = finestra.size() + QSize(0, titolo);
  const QRect libero = sotto->screen()->availableGeometry();
  QRect posto({}, intera);
  posto.moveCenter(sotto->frameGeometry().center());
  finestra.move(std::max(libero.left(), std::min(posto.left(), libero.left() + libero.width() - intera.width())),
                std::max(libero.top(), std::min(posto.top(), libero.top() + libero.height() - intera.height())));
}

// A window left on a screen that is no more goes where the system puts new ones; one that hangs over an edge is pushed
// back by as much.
void RimettiAlPosto(QWidget& finestra, const std::optional<PosizioneForm>& posizione) {
  if (!posizione) return;
  if (posizione->larghezza > 0 && posizione->altezza > 0)
    AdattaAlloSchermo(finestra, posizione->larghezza, posizione->altezza);
  const QPoint posto(posizione->sinistra, posizione->alto);
  for (const QScreen* schermo : QGuiApplication::screens()) {
    constexpr int margine = 80; // pixels of the title that must be in reach
    const QRect libero = schermo->availableGeometry();
    if (!libero.adjusted(0, 0, -margine, -margine).contains(posto)) continue;
    const QSize spazio = SpazioPerFinestre(*schermo).size();
    finestra.resize(finestra.size().boundedTo(spazio));
    return finestra.move(std::min(posto.x(), libero.left() + spazio.width() - finestra.width()),
                         std::min(posto.y(), libero.top() + spazio.height() - finestra.height()));
  }
}

} // namespace lirmeto::ui
