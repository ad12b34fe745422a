// Pictures of the real windows over a libretto, without a display. Nothing is written but the pictures: the disk is
// only read, processes are left alone, messages go to standard error.
//
//   lirmeto-foto --dischi DIR --uscita DIR [--scala 1|2] [--scura] [--massima LxA] FILE
//   lirmeto-foto ... --disegno FILE            a drawing
//   lirmeto-foto ... --disegno FILE.LXC        the libretto from a drawing
//   lirmeto-foto ... --censuario FILE          the census windows
//   lirmeto-foto ... --tipologie DXF FILE      the typologies: these write on the drives, and start programs

#include "fotografo.h"
#include "macchina_ferma.h"

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <base/testo.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/orologi.h>
#include <piattaforma/percorsi_ospite.h>
#include <piattaforma/processi_ospite.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <filesystem>
#include <optional>

namespace {

using namespace lirmeto;
using namespace lirmeto::foto;

enum class Genere { Libretto, Disegno, Censuario, Tipologie };

struct Richiesta {
  std::filesystem::path dischi;
  QDir uscita;
  QString file;
  QString dxf; // of the typologies
  Genere genere = Genere::Libretto;
  QSize massima;
  bool scura = false;
};

// The forms that write and start programs, on the drives given: a copy that may change.
int FotografaTipologie(const Richiesta& chiesto) {
  Sessione sessione;
  DiscoDischi disco(chiesto.dischi);
  const auto processi = ProcessiDellaMacchina(disco);
  DialoghiMuti dialoghi;
  NessunaFinestra finestre;
  ImpostazioniVuote impostazioni;
  AppuntiPropri appunti;
  OrologioDiSistema orologio;
  Ambiente ambiente{sessione, disco, dialoghi, finestre, *processi, impostazioni, appunti, orologio};
  processi->CreaCartelleDiSistema();
  KR_LibrettoOriginale modello(ambiente);
  if (!modello.Avvia(ui::DaQString(chiesto.file))) return 1;
  return Fotografo(modello, ambiente, chiesto.uscita, chiesto.massima).Tipologie(ui::DaQString(chiesto.dxf)) ? 0 : 1;
}

int Fotografa(const Richiesta& chiesto) {
  Sessione sessione;
  DiscoDischi discoVero(chiesto.dischi);
  const auto processiVeri = ProcessiDellaMacchina(discoVero);
  DiscoInLettura disco(discoVero);
  ProcessiFermi processi(*processiVeri);
  DialoghiMuti dialoghi;
  NessunaFinestra finestre;
  ImpostazioniVuote impostazioni;
  AppuntiPropri appunti;
  OrologioDiSistema orologio;
  Ambiente ambiente{sessione, disco, dialoghi, finestre, processi, impostazioni, appunti, orologio};
  KR_LibrettoOriginale modello(ambiente);
  const bool conUnita = chiesto.file.mid(1, 2) == QLatin1String(":\\");
  const std::string file =
      conUnita ? ui::DaQString(chiesto.file) : PercorsoDaOspite(OspiteDaUtf8(chiesto.file.toStdString()));
  Fotografo fotografo(modello, ambiente, chiesto.uscita, chiesto.massima);
  if (chiesto.genere == Genere::Disegno)
    return (FinisceConSenzaCaso(file, ".LXC") ? fotografo.LibrettoDisegno(file) : fotografo.Disegno(file)) ? 0 : 1;
  if (!modello.Avvia(file)) return 1;
  return (chiesto.genere == Genere::Censuario ? fotografo.Censuario() : fotografo.Libretto()) ? 0 : 1;
}

// The platform without a display warns of every window that it has no size hints.
void SoloErrori(QtMsgType genere, const QMessageLogContext& /*dove*/, const QString& testo) {
  if (genere == QtCriticalMsg || genere == QtFatalMsg) QTextStream(stderr) << testo << '\n';
}

// The scale must be known before Qt starts: it is looked for in the bare arguments.
QByteArray Scala(int argc, char** argv) {
  for (int i = 1; i + 1 < argc; ++i)
    if (QByteArray(argv[i]) == "--scala") return argv[i + 1];
  return "1";
}

// "1280x690".
QSize Misura(const QString& testo) {
  const QStringList parti = testo.split(u'x');
  return parti.size() == 2 ? QSize(parti[0].toInt(), parti[1].toInt()) : QSize();
}

std::optional<Richiesta> LeggiRichiesta(const QApplication& applicazione) {
  QCommandLineParser lettore;
  lettore.addHelpOption();
  lettore.addOptions(
      {{QStringLiteral("dischi"), QStringLiteral("Cartella delle unità."), QStringLiteral("DIR")},
       {QStringLiteral("uscita"), QStringLiteral("Cartella delle immagini."), QStringLiteral("DIR")},
       {QStringLiteral("disegno"), QStringLiteral("Il file è un disegno.")},
       {QStringLiteral("censuario"), QStringLiteral("Le finestre del censuario.")},
       {QStringLiteral("tipologie"), QStringLiteral("L'archivio di Pregeo, e la proposta dalle polilinee di un DXF."),
        QStringLiteral("DXF")},
       {QStringLiteral("scura"), QStringLiteral("Le finestre su un desktop scuro.")},
       {QStringLiteral("massima"), QStringLiteral("Lo spazio che ha una finestra."), QStringLiteral("LxA")},
       {QStringLiteral("scala"), QStringLiteral("1 o 2."), QStringLiteral("N"), QStringLiteral("1")}});
  lettore.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Libretto da mostrare."));
  lettore.process(applicazione);
  const QStringList file = lettore.positionalArguments();
  if (file.size() != 1 || !lettore.isSet(QStringLiteral("dischi")) || !lettore.isSet(QStringLiteral("uscita")))
    lettore.showHelp(2);
  const Genere genere = lettore.isSet(QStringLiteral("disegno"))     ? Genere::Disegno
                        : lettore.isSet(QStringLiteral("censuario")) ? Genere::Censuario
                        : lettore.isSet(QStringLiteral("tipologie")) ? Genere::Tipologie
                                                                     : Genere::Libretto;
  Richiesta chiesto{lettore.value(QStringLiteral("dischi")).toStdString(),
                    QDir(lettore.value(QStringLiteral("uscita"))),
                    file.first(),
                    lettore.value(QStringLiteral("tipologie")),
                    genere,
                    Misura(lettore.value(QStringLiteral("massima"))),
                    lettore.isSet(QStringLiteral("scura"))};
  if (!QDir().mkpath(chiesto.uscita.path())) return std::nullopt;
  return chiesto;
}

} // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", Scala(argc, argv));
  qInstallMessageHandler(SoloErrori);
  QApplication applicazione(argc, argv);
  const std::optional<Richiesta> chiesto = LeggiRichiesta(applicazione);
  if (!chiesto) return 1;
  ui::VestiApplicazione(applicazione, chiesto->scura ? ui::Luce::Scura : ui::Luce::Chiara);
  return chiesto->genere == Genere::Tipologie ? FotografaTipologie(*chiesto) : Fotografa(*chiesto);
}
