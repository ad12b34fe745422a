#include <ui/supporto/stampa_qt.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <base/errore.h>

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>

namespace lirmeto::ui {

namespace {

constexpr double Margine = 15; // millimetres
constexpr int ColonneTabulazione = 8;
constexpr double PuntiPiede = 8; // size of the page number

QString SenzaTabulazioni(const QString& riga) {
  QString piana;
  piana.reserve(riga.size());
  for (const QChar lettera : riga)
    if (lettera == u'\t')
      piana.append(QString(ColonneTabulazione - piana.size() % ColonneTabulazione, u' '));
    else
      piana.append(lettera);
  return piana;
}

// How many letters of a line fit; one always does, or the text would never end.
qsizetype QuanteLettere(QStringView riga, const QFontMetricsF& misure, double larghezza) {
  qsizetype stanno = 0;
  qsizetype non = riga.size() + 1;
  while (non - stanno > 1) {
    const qsizetype mezzo = stanno + (non - stanno) / 2;
    (misure.horizontalAdvance(riga.first(mezzo).toString()) <= larghezza ? stanno : non) = mezzo;
  }
  return std::max<qsizetype>(stanno, 1);
}

// Draws the pages of one printout.
class Impaginatore {
public:
  Impaginatore(QPrinter& stampante, QPainter& penna, const Stampato& stampato)
      : stampante_(stampante), penna_(penna), font_(FontDa(stampato.carattere)), piede_(FontMonospazio(PuntiPiede)),
        misure_(font_, &stampante), pagina_(stampante.pageLayout().paintRectPixels(stampante.resolution()).size()),
        righe_(RigheDiPagina(stampato.righe, misure_, pagina_.width())) {
    if (stampato.numeriDiPagina) altezzaPiede_ = 2 * QFontMetricsF(piede_, &stampante).lineSpacing();
    perPagina_ = std::max<std::size_t>(1, static_cast<std::size_t>((pagina_.height() - altezzaPiede_) / Passo()));
    pagine_ = std::max<std::size_t>(1, (righe_.size() + perPagina_ - 1) / perPagina_);
  }

  // False when the printer gave up.
  [[nodiscard]] bool Disegna() {
    for (std::size_t pagina = 0; pagina < pagine_; ++pagina) {
      if (pagina > 0 && !stampante_.newPage()) return false;
      DisegnaRighe(pagina * perPagina_);
      if (altezzaPiede_ > 0) DisegnaPiede(pagina + 1);
    }
    return true;
  }

private:
  [[nodiscard]] double Passo() const { return misure_.lineSpacing(); }

  void DisegnaRighe(std::size_t prima) {
    penna_.setFont(font_);
    const std::size_t fine = std::min(righe_.size(), prima + perPagina_);
    for (std::size_t i = prima; i < fine; ++i)
      penna_.drawText(QPointF(0, static_cast<double>(i - prima) * Passo() + misure_.ascent()), righe_[i]);
  }

  void DisegnaPiede(std::size_t pagina) {
    penna_.setFont(piede_);
    penna_.drawText(QRectF(0, 0, pagina_.width(), pagina_.height()), Qt::AlignRight | Qt::AlignBottom,
                    QStringLiteral("Pagina %1 di %2").arg(pagina).arg(pagine_));
  }

  QPrinter& stampante_;
  QPainter& penna_;
  QFont font_;
  QFont piede_;
  QFontMetricsF misure_; // in dots of the printer
  QSizeF pagina_;        // within the margins, dots
  std::vector<QString> righe_;
  double altezzaPiede_ = 0;
  std::size_t perPagina_ = 1;
  std::size_t pagine_ = 1;
};

} // namespace

std::vector<QString> RigheDiPagina(const std::vector<std::string_view>& righe, const QFontMetricsF& misure,
                                   double larghezza) {
  std::vector<QString> pagina;
  pagina.reserve(righe.size());
  for (const auto riga : righe) {
    const QString piana = SenzaTabulazioni(AQString(riga));
    QStringView resto = piana;
    do {
      const qsizetype quante = std::min(QuanteLettere(resto, misure, larghezza), resto.size());
      pagina.push_back(resto.first(quante).toString());
      resto = resto.sliced(quante);
    } while (!resto.isEmpty());
  }
  return pagina;
}

StampaQt::StampaQt() = default;
StampaQt::~StampaQt() = default;

QPrinter& StampaQt::Stampante() {
  if (stampante_ == nullptr) {
    stampante_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    stampante_->setPageSize(QPageSize(QPageSize::A4));
    stampante_->setPageMargins(QMarginsF(Margine, Margine, Margine, Margine), QPageLayout::Millimeter);
  }
  return *stampante_;
}

bool StampaQt::Pronta() {
  const QPrinter& stampante = Stampante();
  if (stampatoNelFile_) return false;
  return stampante.outputFormat() == QPrinter::NativeFormat ? !stampante.printerName().isEmpty()
                                                            : !stampante.outputFileName().isEmpty();
}

bool StampaQt::Scegli(QWidget* padre) {
  QPrintDialog finestra(&Stampante(), padre);
  finestra.setWindowTitle(QStringLiteral("Seleziona Stampante"));
  const bool scelta = finestra.exec() == QDialog::Accepted;
  if (scelta) stampatoNelFile_ = false;
  return scelta;
}

void StampaQt::Stampa(const Stampato& stampato) {
  QPrinter& stampante = Stampante();
  stampante.setPageOrientation(stampato.orientamento == Orientamento::Verticale ? QPageLayout::Portrait
                                                                                : QPageLayout::Landscape);
  stampante.setDocName(AQString(stampato.titolo));
  QPainter penna;
  if (!penna.begin(&stampante)) throw Errore(errore::ErroreStampante);
  const bool riuscito = Impaginatore(stampante, penna, stampato).Disegna();
  if (!riuscito || !penna.end()) throw Errore(errore::ErroreStampante);
  stampatoNelFile_ = stampante.outputFormat() == QPrinter::PdfFormat;
}

} // namespace lirmeto::ui
