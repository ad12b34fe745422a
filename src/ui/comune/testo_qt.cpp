#include <ui/comune/testo_qt.h>

#include <base/testo.h>

#include <QTextDocument>

#include <algorithm>
#include <vector>

namespace lirmeto::ui {

namespace {

constexpr std::size_t MassimoRigaMessaggio = 600;
constexpr std::size_t MassimeRigheMessaggio = 30;

QString ConOgniLettera(QString testo, char (*cambia)(char)) {
  for (QChar& lettera : testo) {
    if (lettera.isSurrogate()) continue;
    const std::string byte = DaQString(QString(lettera));
    if (byte.size() == 1 && byte != "?") lettera = AQString(std::string(1, cambia(byte[0])))[0];
  }
  return testo;
}

} // namespace

QString AQString(std::string_view testo) {
  QString unicode(static_cast<qsizetype>(testo.size()), Qt::Uninitialized);
  std::transform(testo.begin(), testo.end(), unicode.begin(), [](char byte) {
    return QChar(static_cast<char16_t>(UnicodeDaByte(static_cast<unsigned char>(byte))));
  });
  return unicode;
}

std::string DaQString(const QString& testo) {
  const QByteArray utf8 = testo.toUtf8();
  return DaUtf8({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

std::string TestoDocumento(const QTextDocument& documento) {
  QString grezzo = documento.toRawText();
  grezzo.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
  return DaQString(grezzo);
}

QString InMaiuscolo(const QString& testo) {
  return ConOgniLettera(testo, &Maiuscolo);
}

QString InMinuscolo(const QString& testo) {
  return ConOgniLettera(testo, &Minuscolo);
}

QString PerDisegno(std::string_view testo) {
  QString unicode = AQString(testo);
  for (QChar& lettera : unicode)
    if (lettera.category() == QChar::Other_Control) lettera = lettera == u'\t' ? QChar(u' ') : QChar(0x00B7);
  return unicode;
}

QString PerMessaggio(std::string_view testo) {
  std::vector<std::string_view> righe = Dividi(testo, FineRiga);
  const bool troppe = righe.size() > MassimeRigheMessaggio;
  if (troppe) righe.resize(MassimeRigheMessaggio);
  QString intero;
  for (const std::string_view riga : righe) {
    if (!intero.isEmpty()) intero += u'\n';
    intero += AQString(riga.substr(0, MassimoRigaMessaggio));
    if (riga.size() > MassimoRigaMessaggio) intero += QStringLiteral("...");
  }
  return troppe ? intero + QStringLiteral("\n...") : intero;
}

} // namespace lirmeto::ui
