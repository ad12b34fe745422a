#include <ui/disegno/grafica_superficie.h>

#include <ui/comune/tema.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_uscite.h>

#include <grafica/pittura.h>

#include <QClipboard>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lirmeto::ui {

namespace {

constexpr int Tacca = 120;             // of a wheel, eighths of a degree
constexpr qsizetype EtichettaMax = 80; // characters of the readout that are shown

bool StessaScena(const VistaGrafica& a, const VistaGrafica& b) {
  return a.Zoom == b.Zoom && a.Xmin == b.Xmin && a.Xmax == b.Xmax && a.Ymin == b.Ymin && a.Ymax == b.Ymax &&
         a.Check2 == b.Check2 && a.Check3 == b.Check3 && a.NomiSovrapposti == b.NomiSovrapposti;
}

bool StessoCentro(const VistaGrafica& a, const VistaGrafica& b) {
  return a.Xc == b.Xc && a.Yc == b.Yc;
}

// 1, 2 or 5 times a power of ten: the longest not above `metri`.
double LunghezzaTonda(double metri) {
  const double decade = std::pow(10.0, std::floor(std::log10(metri)));
  for (const double passo : {5.0, 2.0})
    if (passo * decade <= metri) return passo * decade;
  return decade;
}

} // namespace

GraficaSuperficie::GraficaSuperficie(Grafica& grafica, std::int16_t ospite, QWidget* padre)
    : QWidget(padre), grafica_(grafica), ospite_(ospite), pittore_(InchiostriSchermo()), label1_(new QLabel(this)) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  label1_->setObjectName(QStringLiteral("Label1"));
  label1_->setTextFormat(Qt::PlainText);
  label1_->setAttribute(Qt::WA_TransparentForMouseEvents);
  label1_->hide();
  grafica_.Picture1 = this;
}

GraficaSuperficie::~GraficaSuperficie() {
  if (sopra_) grafica_.PuntatoreEsce(ospite_);
  if (grafica_.Picture1 == this) grafica_.Picture1 = nullptr;
}

void GraficaSuperficie::Ridisegna() {
  update();
  emit Ridisegnata();
}

// What is pasted elsewhere is on paper, whatever light the windows are in.
void GraficaSuperficie::CopiaRaster() {
  QImage foglio(MisuraTela(), QImage::Format_RGB32);
  PittoreSchermo pittore;
  const Operazioni lista = grafica_.Dipingi(static_cast<double>(foglio.width()) / foglio.height());
  DisponiNomi(pittore, lista, foglio.size());
  pittore.Dipingi(foglio, lista, devicePixelRatioF(), foglio.rect());
  QGuiApplication::clipboard()->setImage(foglio);
}

void GraficaSuperficie::Stampa() {
  StampaVista(grafica_, this);
}

void GraficaSuperficie::MostraMenu() {
  emit MenuRichiesto(QCursor::pos());
}

QPointF GraficaSuperficie::Metri(const QPointF& posto) const {
  const double metriPixel = grafica_.Vista().Zoom / std::max(1, height());
  return {(posto.x() - width() / 2.0) * metriPixel, (height() / 2.0 - posto.y()) * metriPixel};
}

QPointF GraficaSuperficie::Posto(double x, double y) const {
  const VistaGrafica& vista = grafica_.Vista();
  const double pixelMetro = height() / vista.Zoom;
  return {width() / 2.0 + (x - vista.Xc) * pixelMetro, height() / 2.0 - (y - vista.Yc) * pixelMetro};
}

QSize GraficaSuperficie::MisuraTela() const {
  return (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo(QSize(1, 1));
}

// Brings the picture up to what the drawing says now; does nothing when it shows that already.
void GraficaSuperficie::AggiornaTela() {
  const QSize misura = MisuraTela();
  const bool stessa = !tela_.isNull() && misura == ritratto_.misura &&
                      grafica_.Archivio().Versione() == ritratto_.versione &&
                      StessaScena(grafica_.Vista(), ritratto_.vista);
  if (stessa && StessoCentro(grafica_.Vista(), ritratto_.vista)) return;
  const Operazioni lista = grafica_.Dipingi(static_cast<double>(misura.width()) / misura.height());
  const Ritratto adesso{grafica_.Vista(), grafica_.Archivio().Versione(), misura};
  if (stessa && Scorri(lista, adesso)) return;
  if (!stessa) DisponiNomi(pittore_, lista, misura);
  if (tela_.size() != misura) tela_ = QImage(misura, QImage::Format_RGB32);
  tela_.setDevicePixelRatio(1);
  ritratto_ = adesso;
  DipingiSullaTela(lista, QRect(QPoint(), misura));
}

// A view moved by whole pixels keeps what is still seen of the picture; only the edges that come in are painted.
bool GraficaSuperficie::Scorri(const Operazioni& lista, const Ritratto& adesso) {
  constexpr double quasi = 0.01; // pixels
  const double pixelMetro = adesso.misura.height() / adesso.vista.Zoom;
  const QPointF scarto((ritratto_.vista.Xc - adesso.vista.Xc) * pixelMetro,
                       (adesso.vista.Yc - ritratto_.vista.Yc) * pixelMetro);
  if (!(std::abs(scarto.x()) < adesso.misura.width() && std::abs(scarto.y()) < adesso.misura.height())) return false;
  const QPoint passi = scarto.toPoint();
  if ((scarto - QPointF(passi)).manhattanLength() > quasi) return false;
  if (passi.isNull()) return true;
  tela_.setDevicePixelRatio(1);
  const QImage prima = tela_.copy();
  QPainter(&tela_).drawImage(passi, prima);
  ritratto_ = adesso;
  const QRect tutta(QPoint(), adesso.misura);
  DipingiSullaTela(lista, QRegion(tutta) - tutta.translated(passi));
  return true;
}

void GraficaSuperficie::DisponiNomi(PittoreSchermo& pittore, const Operazioni& lista, const QSize& misura) const {
  if (grafica_.Vista().NomiSovrapposti) return pittore.NomiComeDetto();
  pittore.DisponiNomi(lista, misura.height() / (lista.scala.alto - lista.scala.basso), devicePixelRatioF());
}

void GraficaSuperficie::DipingiSullaTela(const Operazioni& lista, const QRegion& dove) {
  for (const QRect& pezzo : dove) pittore_.Dipingi(tela_, lista, devicePixelRatioF(), pezzo);
}

void GraficaSuperficie::paintEvent(QPaintEvent* /*evento*/) {
  AggiornaTela();
  QPainter pittore(this);
  tela_.setDevicePixelRatio(devicePixelRatioF());
  pittore.drawImage(QPoint(), tela_);
  tela_.setDevicePixelRatio(1);
  pittore.setRenderHint(QPainter::Antialiasing);
  DipingiEvidenza(pittore);
  DipingiPuntoVicino(pittore);
  if (grafica_.Archivio().Punti().empty() && grafica_.Archivio().Linee().empty()) return DipingiInvito(pittore);
  DipingiScala(pittore);
  DipingiRighello(pittore);
}

// Broad and clear, so that the line itself and the names beside it are still read.
void GraficaSuperficie::DipingiEvidenza(QPainter& pittore) const {
  constexpr double larga = 9;
  pittore.setPen(QPen(ColoreTema(Tono::Evidenza), larga, Qt::SolidLine, Qt::RoundCap));
  pittore.setBrush(Qt::NoBrush);
  for (const PuntoPiano& punto : grafica_.PuntiEvidenza)
    pittore.drawEllipse(Posto(punto.est, punto.nord), larga, larga);
  if (!grafica_.Evidenza) return;
  const QPointF da = Posto(grafica_.Evidenza->X1, grafica_.Evidenza->Y1);
  const QPointF a = Posto(grafica_.Evidenza->X2, grafica_.Evidenza->Y2);
  const auto tratto = pittura::Ritaglia({da.x(), da.y(), a.x(), a.y(), 0},
                                        pittura::Rettangolo{0, 0, 1.0 * width(), 1.0 * height()}.Allargato(larga));
  if (!tratto) return;
  pittore.drawLine(QPointF(tratto->x1, tratto->y1), QPointF(tratto->x2, tratto->y2));
}

// A ring round the point that the readout names.
void GraficaSuperficie::DipingiPuntoVicino(QPainter& pittore) const {
  if (!label1_->isVisible()) return;
  constexpr double raggio = 6;
  pittore.setPen(QPen(ColoreTema(Tono::Cerchio), 1.6));
  pittore.setBrush(Qt::NoBrush);
  const PuntoPiano& vicino = grafica_.Mouse().Etichetta().posto;
  pittore.drawEllipse(Posto(vicino.est, vicino.nord), raggio, raggio);
}

// A bar of a round length, at most a fifth of the width.
void GraficaSuperficie::DipingiScala(QPainter& pittore) const {
  constexpr double margine = 16;
  constexpr double alto = 5;
  const double pixelMetro = height() / grafica_.Vista().Zoom;
  const double metri = LunghezzaTonda(width() / 5.0 / pixelMetro);
  if (!std::isfinite(metri) || !(metri > 0)) return;
  const QRectF barra(margine, height() - margine - alto, metri * pixelMetro, alto);
  const QColor inchiostro = ColoreTema(Tono::Scala);
  const QString testo = metri >= 1000 ? QStringLiteral("%L1 km").arg(metri / 1000) : QStringLiteral("%L1 m").arg(metri);
  pittore.setPen(QPen(inchiostro, 1.2));
  pittore.drawPolyline(QPolygonF{barra.topLeft(), barra.bottomLeft(), barra.bottomRight(), barra.topRight()});
  pittore.drawText(QRectF(barra.left(), barra.top() - 18, std::max(barra.width(), 60.0), 18),
                   Qt::AlignLeft | Qt::AlignBottom, testo);
}

void GraficaSuperficie::DipingiInvito(QPainter& pittore) const {
  constexpr int margine = 24;
  QFont grande = font();
  grande.setPointSizeF(grande.pointSizeF() * 1.2);
  pittore.setFont(grande);
  pittore.setPen(ColoreTema(Tono::Invito));
  pittore.drawText(rect().adjusted(margine, margine, -margine, -margine), Qt::AlignCenter | Qt::TextWordWrap, invito_);
}

// The way measured so far, on to the point under the mouse, and what it measures in a corner.
void GraficaSuperficie::DipingiRighello(QPainter& pittore) const {
  constexpr double larga = 2;
  constexpr double vertice = 4;
  constexpr int chiaro = 40; // of 255: the drawing shows through the area
  const Righello& metro = grafica_.Metro();
  if (!metro.Acceso()) return;
  QPolygonF via;
  for (const PuntoPiano& punto : metro.Vertici()) via.append(Posto(punto.est, punto.nord));
  if (metro.Sotto() && !via.isEmpty()) via.append(Posto(metro.Sotto()->est, metro.Sotto()->nord));
  QColor colore = ColoreTema(Tono::Righello);
  pittore.setPen(QPen(colore, larga, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  pittore.drawPolyline(via);
  for (const QPointF& punto : std::as_const(via)) pittore.drawEllipse(punto, vertice, vertice);
  colore.setAlpha(chiaro);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(colore);
  pittore.drawPolygon(via);
  DipingiMisura(pittore);
}

void GraficaSuperficie::DipingiMisura(QPainter& pittore) const {
  constexpr int margine = 8;
  QStringList righe;
  for (const std::string& riga : RigheMisura(grafica_.Metro())) righe << AQString(riga);
  const QString testo = righe.join(u'\n');
  const QRect scritta = fontMetrics().boundingRect(rect(), Qt::AlignLeft, testo).translated(2 * margine, 2 * margine);
  pittore.setPen(ColoreTema(Tono::BordoConsiglio));
  pittore.setBrush(ColoreTema(Tono::Consiglio));
  pittore.drawRoundedRect(scritta.adjusted(-margine, -margine, margine, margine), 4, 4);
  pittore.setPen(ColoreTema(Tono::TestoConsiglio));
  pittore.drawText(scritta, Qt::AlignLeft, testo);
}

// The view may show less than the whole list while the window is being laid out: nothing is painted here.
void GraficaSuperficie::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  grafica_.KR_RidisegnaGrafica();
}

// Without a tool the left button moves the view too, for those who have no middle one.
TastoMouse GraficaSuperficie::Tasto(Qt::MouseButtons tasti) const {
  if (tasti & Qt::MiddleButton) return TastoMouse::Centrale;
  if (tasti & Qt::RightButton) return TastoMouse::Destro;
  if (!(tasti & Qt::LeftButton)) return TastoMouse::Nessuno;
  return grafica_.Strumento.empty() && !grafica_.Metro().Acceso() ? TastoMouse::Centrale : TastoMouse::Sinistro;
}

void GraficaSuperficie::mouseMoveEvent(QMouseEvent* evento) {
  const QPointF metri = Metri(evento->position());
  grafica_.MouseMove({metri.x(), metri.y()}, Tasto(evento->buttons()));
  setCursor(grafica_.Mouse().Sposta() ? Qt::SizeAllCursor : Qt::CrossCursor);
  MostraEtichetta();
  emit Sopra(metri.x() + grafica_.Vista().Xc, metri.y() + grafica_.Vista().Yc);
}

void GraficaSuperficie::mousePressEvent(QMouseEvent* evento) {
  const QPointF metri = Metri(evento->position());
  const TastoMouse tasto = Tasto(evento->button());
  grafica_.MouseDown({metri.x(), metri.y()}, tasto);
  if (evento->button() == Qt::LeftButton && tasto == TastoMouse::Centrale)
    grafica_.MouseDown({metri.x(), metri.y()}, TastoMouse::Sinistro);
}

void GraficaSuperficie::mouseReleaseEvent(QMouseEvent* evento) {
  mouseMoveEvent(evento);
}

// A fine wheel or a touchpad sends parts of a notch: each whole one is a step.
void GraficaSuperficie::wheelEvent(QWheelEvent* evento) {
  const QPointF metri = Metri(evento->position());
  rotella_ += evento->angleDelta().y();
  for (; std::abs(rotella_) >= Tacca; rotella_ -= rotella_ > 0 ? Tacca : -Tacca)
    grafica_.Rotola(rotella_ > 0, {metri.x(), metri.y()});
  MostraEtichetta();
  evento->accept();
}

// Of the ruler: the last vertex, or all of it.
void GraficaSuperficie::keyPressEvent(QKeyEvent* evento) {
  const bool metro = grafica_.Metro().Acceso();
  if (metro && (evento->key() == Qt::Key_Delete || evento->key() == Qt::Key_Backspace)) return grafica_.TogliVertice();
  if (metro && evento->key() == Qt::Key_Escape) emit RighelloLasciato();
  if (!metro || evento->key() != Qt::Key_Escape) QWidget::keyPressEvent(evento);
}

void GraficaSuperficie::changeEvent(QEvent* evento) {
  QWidget::changeEvent(evento);
  if (evento->type() != QEvent::PaletteChange && evento->type() != QEvent::StyleChange) return;
  pittore_.Cambia(InchiostriSchermo());
  tela_ = QImage();
  update();
}

void GraficaSuperficie::enterEvent(QEnterEvent* evento) {
  QWidget::enterEvent(evento);
  sopra_ = true;
  grafica_.PuntatoreEntra(ospite_);
}

void GraficaSuperficie::leaveEvent(QEvent* evento) {
  QWidget::leaveEvent(evento);
  sopra_ = false;
  grafica_.PuntatoreEsce(ospite_);
  label1_->hide();
  update();
  emit Uscito();
}

// The readout stands beside its point and inside the surface; that of a point out of sight is not shown.
void GraficaSuperficie::MostraEtichetta() {
  const EtichettaMouse& etichetta = grafica_.Mouse().Etichetta();
  const QPointF posto = Posto(etichetta.posto.est, etichetta.posto.nord);
  const QString testo = PerDisegno(etichetta.testo);
  update();
  label1_->setVisible(etichetta.visibile && !testo.isEmpty() && QRectF(rect()).contains(posto));
  if (!label1_->isVisible()) return;
  label1_->setText(testo.size() > EtichettaMax ? testo.left(EtichettaMax) + u'…' : testo);
  label1_->adjustSize();
  constexpr int scosto = 10;
  const QPoint angolo = posto.toPoint() + QPoint(scosto, -scosto - label1_->height());
  label1_->move(std::clamp(angolo.x(), 0, std::max(0, width() - label1_->width())),
                std::clamp(angolo.y(), 0, std::max(0, height() - label1_->height())));
}

} // namespace lirmeto::ui
