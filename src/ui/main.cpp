// The program with its windows.

#include <ui/comune/appunti_qt.h>
#include <ui/comune/aspetto.h>
#include <ui/comune/dialoghi_qt.h>
#include <ui/comune/impostazioni_qt.h>
#include <ui/comune/percorsi_qt.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/finestra_disegno.h>
#include <ui/finestre_qt.h>
#include <ui/libretto/finestra_principale.h>

#include <applicazione/avvio.h>
#include <applicazione/versione.h>
#include <core/cartelle.h>
#include <core/mostra_errore.h>
#include <piattaforma/canali.h>
#include <piattaforma/orologi.h>
#include <piattaforma/percorsi_ospite.h>
#include <piattaforma/processi_ospite.h>
#include <piattaforma/trova_dischi.h>

#include <QApplication>
#include <QCommandLineParser>

namespace {

using namespace lirmeto;

struct Opzioni {
  std::optional<std::filesystem::path> dischi;
  QString comando; // a file, or "file|COMMAND|parameter"
  std::optional<QString> disegno;
};

Opzioni LeggiOpzioni(const QApplication& applicazione) {
  QCommandLineParser lettore;
  lettore.setApplicationDescription(QStringLiteral("Libretti delle misure per tecnici del catasto."));
  lettore.addHelpOption();
  lettore.addVersionOption();
  lettore.addOption({QStringLiteral("dischi"),
                     QStringLiteral("Cartella con una sottocartella per ogni unità (c, d, ...)."),
                     QStringLiteral("DIR")});
  lettore.addOption({QStringLiteral("disegno"),
                     QStringLiteral("Mostra soltanto un disegno: .EMP, .SUR, .CSV, .PDF, .DAT."),
                     QStringLiteral("FILE")});
  lettore.addPositionalArgument(QStringLiteral("FILE"),
                                QStringLiteral("Libretto da aprire, o estratto da copiare in Pregeo."),
                                QStringLiteral("[FILE]"));
  lettore.addPositionalArgument(QStringLiteral("FILE|COMANDO|PARAMETRO"),
                                QStringLiteral("Un solo comando su un libretto, come CONFIGURA_PREGEO o DA_PREGEO."),
                                QStringLiteral("['FILE|COMANDO|PARAMETRO']"));
  lettore.process(applicazione);
  Opzioni opzioni;
  if (lettore.isSet(QStringLiteral("dischi")))
    opzioni.dischi = OspiteDaUtf8(lettore.value(QStringLiteral("dischi")).toStdString());
  if (lettore.isSet(QStringLiteral("disegno"))) opzioni.disegno = lettore.value(QStringLiteral("disegno"));
  opzioni.comando = lettore.positionalArguments().join(u' ');
  return opzioni;
}

// The drawing alone, without a libretto. Nothing is shown when it cannot be read.
int MostraDisegno(Ambiente& ambiente, const QString& file) {
  PreparaCartelle(ambiente);
  (void)Intrappola(ambiente, [&] { CreaCartelle(ambiente); });
  FormDisegno modello(ambiente);
  if (!modello.Apri(ui::PercorsoDetto(ambiente)(file))) return 1;
  ui::FinestraDisegno(modello).exec();
  return 0;
}

int Lavora(const Opzioni& opzioni) {
  // A message shown before the window is there must not end the program when it is closed.
  QApplication::setQuitOnLastWindowClosed(false);
  Sessione sessione;
  DiscoDischi disco(TrovaDischi(opzioni.dischi));
  const auto processi = ProcessiDellaMacchina(disco);
  ui::DialoghiQt dialoghi(ui::PercorsiDi(disco));
  ui::FinestreQt finestre;
  ui::ImpostazioniQt impostazioni;
  ui::AppuntiQt appunti;
  OrologioDiSistema orologio;
  Ambiente ambiente{sessione, disco, dialoghi, finestre, *processi, impostazioni, appunti, orologio};
  finestre.Usa(ambiente);

  (void)Intrappola(ambiente, [&] { processi->CreaCartelleDiSistema(); });
  if (opzioni.disegno) return MostraDisegno(ambiente, *opzioni.disegno);
  KR_LibrettoOriginale modello(ambiente);
  const auto percorso = ui::PercorsoDetto(ambiente);
  const auto comando = ui::RigaDiComando(opzioni.comando, percorso);
  if (!comando || !modello.Avvia(*comando)) return 0;
  ui::FinestraPrincipale finestra(modello, percorso);
  finestra.show();
  QApplication::setQuitOnLastWindowClosed(true);
  return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
  PreparaCanali();
  QApplication applicazione(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lirmeto"));
  QApplication::setApplicationVersion(QString::fromUtf8(VersioneProgramma));
  ui::VestiApplicazione(applicazione);
  return Lavora(LeggiOpzioni(applicazione));
}
