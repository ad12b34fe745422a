#include <ui/comune/percorsi_qt.h>

#include <ui/comune/testo_qt.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <piattaforma/percorsi_ospite.h>

namespace lirmeto::ui {

namespace {

bool HaUnita(const QString& percorso) {
  return percorso.size() > 2 && percorso[0].isLetter() && percorso[1] == u':' &&
         (percorso[2] == u'\\' || percorso[2] == u'/');
}

} // namespace

Percorsi PercorsiDi(const DiscoDischi& disco) {
  return {[&disco](std::string_view percorso) {
            return QString::fromStdString(Utf8DaOspite(disco.PercorsoOspite(percorso)));
          },
          [](const QString& ospite) { return PercorsoDaOspite(OspiteDaUtf8(ospite.toStdString())); }};
}

std::function<std::string(const QString&)> PercorsoDetto(Ambiente& ambiente) {
  return [&ambiente](const QString& percorso) {
    std::string detto;
    (void)Intrappola(ambiente, [&] {
      const std::string utf8 = percorso.toStdString();
      const bool siDice = HaUnita(percorso) && RappresentabileDaUtf8(utf8);
      detto = siDice ? DaUtf8(utf8) : PercorsoDaOspite(OspiteDaUtf8(utf8));
    });
    return detto;
  };
}

std::optional<std::string> RigaDiComando(const QString& riga,
                                         const std::function<std::string(const QString&)>& percorso) {
  const QString intera = QString(riga).remove(u'"');
  const qsizetype barra = intera.indexOf(u'|');
  const QString file = intera.left(barra); // all of it where there is no bar
  std::string detto = file.isEmpty() ? std::string() : percorso(file);
  if (barra < 0) return detto;
  if (detto.empty() && !file.isEmpty()) return std::nullopt;
  return detto + DaQString(intera.mid(barra));
}

} // namespace lirmeto::ui
