#include <ui/libretto/riga_di_stato.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <QPainter>

namespace lirmeto::ui {

namespace {

constexpr std::size_t MassimoValore = 200; // characters of one field worth showing
constexpr std::size_t MassimiCampi = 40;

QString ValoreBreve(const CampoDescritto& campo) {
  const QString valore = PerDisegno(std::string_view(campo.valore).substr(0, MassimoValore));
  return campo.valore.size() > MassimoValore ? valore + QStringLiteral("...") : valore;
}

QString Tabella(const RigaDescritta& descritta) {
  QString tabella = QStringLiteral("<b>%1</b><table cellspacing='0' cellpadding='2'>")
                        .arg(AQString(descritta.genere).toHtmlEscaped());
  for (std::size_t i = 0; i < descritta.campi.size() && i < MassimiCampi; ++i) {
    const CampoDescritto& campo = descritta.campi[i];
    tabella += QStringLiteral("<tr><td><i>%1</i>&nbsp;&nbsp;</td><td>%2&nbsp;%3</td></tr>")
                   .arg(AQString(campo.nome).toHtmlEscaped(), ValoreBreve(campo).toHtmlEscaped(),
                        AQString(campo.unita).toHtmlEscaped());
  }
  return tabella + QStringLiteral("</table>");
}

} // namespace

RigaDiStato::RigaDiStato(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RigaDiStato::MostraRiga(std::string_view riga) {
  descritta_ = DescriviRiga(riga);
  striscia_ = ColoriDelGenere(riga).striscia;
  setAccessibleName(AQString(TestoDescrizione(descritta_)));
  setToolTip(Tabella(descritta_));
  update();
}

void RigaDiStato::Pulisci() {
  descritta_ = {};
  striscia_ = QColor();
  setAccessibleName(QString());
  setToolTip(QString());
  update();
}

QSize RigaDiStato::sizeHint() const {
  return {200, fontMetrics().height() + 12};
}

QSize RigaDiStato::minimumSizeHint() const {
  return {80, fontMetrics().height() + 12};
}

QList<RigaDiStato::Pezzo> RigaDiStato::Pezzi() const {
  const QColor scuro = palette().text().color();
  const QColor chiaro = ColoreNumeri();
  QList<Pezzo> pezzi{{AQString(descritta_.genere), scuro, true}};
  for (std::size_t i = 0; i < descritta_.campi.size() && i < MassimiCampi; ++i) {
    const CampoDescritto& campo = descritta_.campi[i];
    pezzi.append(
        {(i == 0 ? QStringLiteral("   ") : QStringLiteral("  ·  ")) + AQString(campo.nome) + u' ', chiaro, false});
    pezzi.append({ValoreBreve(campo), scuro, false});
    if (!campo.unita.empty()) pezzi.append({u' ' + AQString(campo.unita), chiaro, false});
  }
  return pezzi;
}

void RigaDiStato::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  if (descritta_.genere.empty()) {
    pittore.setPen(ColoreNumeri());
    pittore.drawText(rect().adjusted(13, 0, -6, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     QStringLiteral("Selezionare una riga: qui si leggono i suoi campi"));
    return;
  }
  pittore.fillRect(QRect(0, 4, 5, height() - 8), striscia_);
  int x = 13;
  const int fine = width() - 6;
  for (const Pezzo& pezzo : Pezzi()) {
    QFont carattere = font();
    carattere.setBold(pezzo.grassetto);
    pittore.setFont(carattere);
    pittore.setPen(pezzo.colore);
    const QFontMetrics misure(carattere);
    const bool entra = x + misure.horizontalAdvance(pezzo.testo) <= fine;
    const QString testo = entra ? pezzo.testo : misure.elidedText(pezzo.testo, Qt::ElideRight, fine - x);
    pittore.drawText(QRect(x, 0, fine - x, height()), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, testo);
    if (!entra) return;
    x += misure.horizontalAdvance(pezzo.testo);
  }
}

} // namespace lirmeto::ui
