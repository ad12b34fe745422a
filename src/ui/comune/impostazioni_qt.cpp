#include <ui/comune/impostazioni_qt.h>

#include <ui/comune/testo_qt.h>

#include <base/dialoghi.h>

namespace lirmeto::ui {

namespace {

// Slashes part groups from keys in QSettings: inside a name they must not.
QString Nome(std::string_view sezione, std::string_view chiave) {
  const auto pulito = [](std::string_view parte) { return AQString(parte).replace(u'/', u'_').replace(u'\\', u'_'); };
  return pulito(sezione) + u'/' + pulito(chiave);
}

} // namespace

ImpostazioniQt::ImpostazioniQt()
    : archivio_(QSettings::IniFormat, QSettings::UserScope, AQString(TitoloProgramma), AQString(TitoloProgramma)) {}

ImpostazioniQt::ImpostazioniQt(const QString& file) : archivio_(file, QSettings::IniFormat) {}

std::string ImpostazioniQt::Leggi(std::string_view sezione, std::string_view chiave,
                                  std::string_view predefinito) const {
  const QVariant valore = archivio_.value(Nome(sezione, chiave));
  return valore.isValid() ? DaQString(valore.toString()) : std::string(predefinito);
}

void ImpostazioniQt::Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
  archivio_.setValue(Nome(sezione, chiave), AQString(valore));
}

} // namespace lirmeto::ui
