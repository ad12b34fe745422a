#include <ui/libretto/vista_righe.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/ricerca.h>
#include <ui/comune/testo_qt.h>
#include <ui/verifiche/segni.h>

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <limits>
#include <utility>

namespace lirmeto::ui {

namespace {

constexpr int Striscia = 5; // pixels
constexpr int PrimaDelTesto = 8;
constexpr int CifreMinime = 4; // room for row numbers
constexpr int LatoSegno = 9;   // of the mark of what is said of a row
constexpr int PostoSegno = 15;

int Entro(std::size_t valore) {
  return static_cast<int>(std::min<std::size_t>(valore, std::numeric_limits<int>::max()));
}

} // namespace

VistaRighe::VistaRighe(ElencoRighe& elenco, QWidget* padre)
    : QAbstractScrollArea(padre), elenco_(elenco), selezione_(elenco) {
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  viewport()->setAcceptDrops(true);
  viewport()->setCursor(Qt::ArrowCursor);
  verticalScrollBar()->setSingleStep(1);
  setAccessibleName(QStringLiteral("Righe del libretto"));
}

void VistaRighe::Aggiorna() {
  const bool righe = versione_ != elenco_.Versione();
  const bool altro = versioneSelezione_ != elenco_.VersioneSelezione() || indice_ != elenco_.Indice();
  if (!righe && !altro) return;
  versione_ = elenco_.Versione();
  versioneSelezione_ = elenco_.VersioneSelezione();
  indice_ = elenco_.Indice();
  if (righe) MisuraRighe();
  if (righe) DisponiBarre();
  const bool presente = indice_ >= 0 && static_cast<std::size_t>(indice_) < elenco_.Quante();
  setAccessibleDescription(presente ? AQString(elenco_.Riga(static_cast<std::size_t>(indice_)).substr(0, 200))
                                    : QString());
  viewport()->update();
}

void VistaRighe::Evidenzia(const std::string& testo) {
  evidenziato_ = testo;
  viewport()->update();
}

void VistaRighe::Segni(SegnoDi segno, SpiegazioneDi spiegazione) {
  segno_ = std::move(segno);
  spiegazione_ = std::move(spiegazione);
  viewport()->update();
}

void VistaRighe::AccendiCampo(std::size_t riga, std::size_t campo) {
  rigaAccesa_ = riga;
  campoAcceso_ = campo;
  viewport()->update();
}

// The sentences stand where the pointer rests on a mark; elsewhere the list's own hint.
bool VistaRighe::viewportEvent(QEvent* evento) {
  if (evento->type() == QEvent::ToolTip && spiegazione_) {
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const auto riga = RigaAlPunto(aiuto->pos());
    const QString testo = riga && aiuto->pos().x() < LarghezzaMargine() ? spiegazione_(*riga) : QString();
    if (!testo.isEmpty()) {
      QToolTip::showText(aiuto->globalPos(), testo, viewport());
      return true;
    }
  }
  return QAbstractScrollArea::viewportEvent(evento);
}

void VistaRighe::VaiA(std::size_t riga) {
  selezione_.Semplice(riga);
  MostraRiga(elenco_.Indice());
  Tocco();
}

std::optional<std::size_t> VistaRighe::RigaAlPunto(const QPoint& punto) const {
  if (punto.y() < 0) return std::nullopt;
  const std::size_t riga = PrimaVisibile() + static_cast<std::size_t>(punto.y() / AltezzaRiga());
  return riga < elenco_.Quante() ? std::optional(riga) : std::nullopt;
}

QRect VistaRighe::RettangoloRiga(std::size_t riga) const {
  const long scarto = static_cast<long>(riga) - static_cast<long>(PrimaVisibile());
  return {0, static_cast<int>(scarto * AltezzaRiga()), viewport()->width(), AltezzaRiga()};
}

// --- drawing

void VistaRighe::paintEvent(QPaintEvent* evento) {
  QPainter pittore(viewport());
  pittore.setFont(font());
  pittore.fillRect(evento->rect(), palette().base());
  pittore.fillRect(QRect(0, 0, LarghezzaMargine(), viewport()->height()), ColoreMargine());
  const int quante = viewport()->height() / AltezzaRiga() + 1;
  const std::size_t prima = PrimaVisibile();
  const std::size_t fine = std::min(elenco_.Quante(), prima + static_cast<std::size_t>(quante));
  for (std::size_t riga = prima; riga < fine; ++riga)
    if (evento->rect().intersects(RettangoloRiga(riga))) DisegnaRiga(pittore, riga);
}

void VistaRighe::DisegnaRiga(QPainter& pittore, std::size_t riga) const {
  const QRect intero = RettangoloRiga(riga);
  const int margine = LarghezzaMargine();
  const std::string_view testo = elenco_.Riga(riga);
  const ColoriRiga colori = ColoriDelGenere(testo);
  const QRect zona = intero.adjusted(margine, 0, 0, 0);
  DisegnaSegnoDi(pittore, riga, intero);
  DisegnaNumero(pittore, riga, QRect(0, intero.top(), margine, intero.height()));
  pittore.fillRect(zona, elenco_.Selezionata(riga) ? ColoreSelezione() : colori.fondo);
  pittore.fillRect(QRect(zona.left(), zona.top(), Striscia, zona.height()), colori.striscia);
  DisegnaCampo(pittore, riga, zona.adjusted(Striscia + PrimaDelTesto, 0, 0, 0));
  DisegnaTesto(pittore, testo, zona.adjusted(Striscia + PrimaDelTesto, 0, 0, 0));
  if (elenco_.Indice() != static_cast<long>(riga)) return;
  pittore.setPen(hasFocus() ? palette().highlight().color() : ColoreBarre());
  pittore.drawRect(zona.adjusted(Striscia, 0, -1, -1));
}

void VistaRighe::DisegnaSegnoDi(QPainter& pittore, std::size_t riga, const QRect& rettangolo) const {
  const auto segno = segno_ ? segno_(riga) : std::nullopt;
  if (!segno) return;
  const int alto = rettangolo.top() + (rettangolo.height() - LatoSegno) / 2;
  DisegnaSegno(pittore, *segno, QRect((PostoSegno - LatoSegno) / 2 + 1, alto, LatoSegno, LatoSegno));
}

// Behind the field that a finding is about.
void VistaRighe::DisegnaCampo(QPainter& pittore, std::size_t riga, const QRect& rettangolo) const {
  if (campoAcceso_ == 0 || riga != rigaAccesa_) return;
  const std::string_view testo = elenco_.Riga(riga);
  std::size_t inizio = 0;
  for (std::size_t i = 0; i < campoAcceso_ && inizio != std::string_view::npos; ++i) {
    inizio = testo.find('|', inizio);
    if (inizio != std::string_view::npos) ++inizio;
  }
  if (inizio == std::string_view::npos) return;
  const std::size_t fine = std::min(testo.find('|', inizio), testo.size());
  const auto prima = static_cast<std::size_t>(horizontalScrollBar()->value());
  const auto visto = [&](std::size_t da, std::size_t a) {
    return PerDisegno(testo.substr(std::min(da, testo.size()), a > da ? a - da : 0));
  };
  const QFontMetricsF misure(font());
  const double x = rettangolo.left() + misure.horizontalAdvance(visto(prima, inizio));
  const double larga = misure.horizontalAdvance(visto(std::max(prima, inizio), fine));
  pittore.fillRect(QRectF(x - 1, rettangolo.top() + 1, std::max(larga, 4.0) + 2, rettangolo.height() - 2),
                   ColoreTrovato());
}

void VistaRighe::DisegnaNumero(QPainter& pittore, std::size_t riga, const QRect& rettangolo) const {
  const bool attuale = elenco_.Indice() == static_cast<long>(riga);
  pittore.setPen(attuale ? palette().text().color() : ColoreNumeri());
  pittore.drawText(rettangolo.adjusted(0, 0, -PrimaDelTesto, 0), Qt::AlignRight | Qt::AlignVCenter,
                   QString::number(riga + 1));
}

void VistaRighe::DisegnaTesto(QPainter& pittore, std::string_view riga, const QRect& rettangolo) const {
  const auto prima = static_cast<std::size_t>(horizontalScrollBar()->value());
  if (prima >= riga.size()) return;
  // The narrowest letters take a sixth of the widest: what lies beyond cannot be in the window.
  const int massime = 6 * rettangolo.width() / LarghezzaColonna() + 1;
  const std::string_view visibile = riga.substr(prima, static_cast<std::size_t>(massime));
  DisegnaTrovati(pittore, visibile, rettangolo);
  const QFontMetricsF misure(font());
  const double linea = rettangolo.top() + (rettangolo.height() - misure.height()) / 2 + misure.ascent();
  double x = rettangolo.left();
  for (std::size_t da = 0; da < visibile.size() && x < rettangolo.right();) {
    const bool barra = visibile[da] == '|';
    const std::size_t fine = barra ? da + 1 : std::min(visibile.find('|', da), visibile.size());
    const QString pezzo = PerDisegno(visibile.substr(da, fine - da));
    pittore.setPen(barra ? ColoreBarre() : palette().text().color());
    pittore.drawText(QPointF(x, linea), pezzo);
    x += misure.horizontalAdvance(pezzo);
    da = fine;
  }
}

void VistaRighe::DisegnaTrovati(QPainter& pittore, std::string_view visibile, const QRect& rettangolo) const {
  const QFontMetricsF misure(font());
  for (const auto& [colonna, lunghezza] : PostiNellaRiga(visibile, evidenziato_)) {
    const double x = rettangolo.left() + misure.horizontalAdvance(PerDisegno(visibile.substr(0, colonna)));
    const double larga = misure.horizontalAdvance(PerDisegno(visibile.substr(colonna, lunghezza)));
    pittore.fillRect(QRectF(x, rettangolo.top() + 1, larga, rettangolo.height() - 2), ColoreTrovato());
  }
}

// --- measures and scroll bars

int VistaRighe::AltezzaRiga() const {
  return QFontMetrics(font()).height() + 4;
}

// Of the widest letter, so that the end of a row can be reached with any font.
int VistaRighe::LarghezzaColonna() const {
  return std::max(1, QFontMetrics(font()).horizontalAdvance(u'W'));
}

int VistaRighe::LarghezzaMargine() const {
  const auto cifre = std::max<qsizetype>(CifreMinime, QString::number(elenco_.Quante()).size());
  return static_cast<int>(cifre) * QFontMetrics(font()).horizontalAdvance(u'0') + 2 * PrimaDelTesto +
         (segno_ ? PostoSegno : 0);
}

std::size_t VistaRighe::PrimaVisibile() const {
  return static_cast<std::size_t>(verticalScrollBar()->value());
}

void VistaRighe::MisuraRighe() {
  rigaPiuLunga_ = 0;
  for (const std::string_view riga : elenco_.Righe()) rigaPiuLunga_ = std::max(rigaPiuLunga_, riga.size());
}

// Scrolls by rows and by characters, so that no number of pixels can overflow.
void VistaRighe::DisponiBarre() {
  const int intere = std::max(1, viewport()->height() / AltezzaRiga());
  verticalScrollBar()->setPageStep(intere);
  verticalScrollBar()->setRange(0, std::max(0, Entro(elenco_.Quante()) - intere));
  const int larga = viewport()->width() - LarghezzaMargine() - Striscia - 2 * PrimaDelTesto;
  const int colonne = std::max(1, larga / LarghezzaColonna());
  horizontalScrollBar()->setPageStep(colonne);
  horizontalScrollBar()->setSingleStep(4);
  horizontalScrollBar()->setRange(0, std::max(0, Entro(rigaPiuLunga_) - colonne));
}

void VistaRighe::resizeEvent(QResizeEvent* evento) {
  QAbstractScrollArea::resizeEvent(evento);
  DisponiBarre();
}

void VistaRighe::changeEvent(QEvent* evento) {
  QAbstractScrollArea::changeEvent(evento);
  if (evento->type() == QEvent::FontChange) DisponiBarre();
}

void VistaRighe::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  emit Toccata();
}

void VistaRighe::MostraRiga(long riga) {
  if (riga < 0) return;
  const int intere = std::max(1, viewport()->height() / AltezzaRiga());
  const int cima = verticalScrollBar()->value();
  const int posto = static_cast<int>(riga);
  if (posto < cima) verticalScrollBar()->setValue(posto);
  if (posto >= cima + intere) verticalScrollBar()->setValue(posto - intere + 1);
}

void VistaRighe::Tocco() {
  Aggiorna();
  emit Toccata();
}

} // namespace lirmeto::ui
