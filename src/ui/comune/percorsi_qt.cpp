#include <ui/comune/percorsi_qt.h>

#include <ui/comune/testo_qt.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <piattaforma/percorsi_ospite.h>

#include <filesystem>

namespace lirmeto::ui {

namespace {

bool HaUnita(const QString& percorso) {
  return percorso.size() > 2 && percorso[0].isLetter() && percorso[1] == u':' &&
         (percorso[2] == u'\\' || percorso[2] == u'/');
}

// As a path of one of the drives where the disk has them as folders.
std::string Detto(const Disco& disco, const std::filesystem::path& ospite) {
  const auto* dischi = dynamic_cast<const DiscoDischi*>(&disco);
  return dischi == nullptr ? PercorsoDaOspite(ospite) : dischi->DaOspite(ospite);
}

} // namespace

Percorsi PercorsiDi(const DiscoDischi& disco) {
  return {[&disco](std::string_view percorso) {
            return QString::fromStdString(Utf8DaOspite(disco.PercorsoOspite(percorso)));
          },
          [&disco](const QString& ospite) { return disco.DaOspite(OspiteDaUtf8(ospite.toStdString())); }};
}

std::function<std::string(const QString&)> PercorsoDetto(Ambiente& ambiente) {
  return [&ambiente](const QString& percorso) {
    std::string detto;
    (void)Intrappola(ambiente, [&] {
      const std::string utf8 = percorso.toStdString();
      const bool siDice = HaUnita(percorso) && RappresentabileDaUtf8(utf8);
      detto = siDice ? DaUtf8(utf8) : Detto(ambiente.disco, OspiteDaUtf8(utf8));
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
