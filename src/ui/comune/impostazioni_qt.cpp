#include <ui/comune/impostazioni_qt.h>

#include <ui/comune/testo_qt.h>

#include <base/dialoghi.h>

#include <QDir>
#include <QFileInfo>
#include <QOperatingSystemVersion>

namespace lirmeto::ui {

namespace {

constexpr const char* Pernico = "Pernico";
constexpr std::string_view SezioneDiPernico = "VisualizzatoreXLS";

// Slashes part groups from keys in QSettings: inside a name they must not.
QString Nome(std::string_view sezione, std::string_view chiave) {
  const auto pulito = [](std::string_view parte) { return AQString(parte).replace(u'/', u'_').replace(u'\\', u'_'); };
  return pulito(sezione) + u'/' + pulito(chiave);
}

// The registry where there is one, HKEY_CURRENT_USER\Software\Lirmeto\Lirmeto; elsewhere a text file.
QSettings::Format Formato() {
  const bool registro = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
  return registro ? QSettings::NativeFormat : QSettings::IniFormat;
}

} // namespace

ImpostazioniQt::ImpostazioniQt()
    : archivio_(Formato(), QSettings::UserScope, AQString(TitoloProgramma), AQString(TitoloProgramma)),
      pernico_(Formato(), QSettings::UserScope, QString::fromLatin1(Pernico), QString::fromLatin1(Pernico)) {}

ImpostazioniQt::ImpostazioniQt(const QString& file)
    : archivio_(file, QSettings::IniFormat),
      pernico_(QFileInfo(file).dir().filePath(QString::fromLatin1(Pernico) + QStringLiteral(".ini")),
               QSettings::IniFormat) {}

const QSettings& ImpostazioniQt::ArchivioDi(std::string_view sezione) const {
  return sezione == SezioneDiPernico ? pernico_ : archivio_;
}

std::string ImpostazioniQt::Leggi(std::string_view sezione, std::string_view chiave,
                                  std::string_view predefinito) const {
  const QVariant valore = ArchivioDi(sezione).value(Nome(sezione, chiave));
  return valore.isValid() ? DaQString(valore.toString()) : std::string(predefinito);
}

void ImpostazioniQt::Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
  QSettings& archivio = sezione == SezioneDiPernico ? pernico_ : archivio_;
  archivio.setValue(Nome(sezione, chiave), AQString(valore));
}

} // namespace lirmeto::ui
