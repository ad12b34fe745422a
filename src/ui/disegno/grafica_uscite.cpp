#include <ui/disegno/grafica_uscite.h>

#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pittura.h>

#include <base/errore.h>
#include <base/testo.h>
#include <grafica/svg.h>

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

namespace lirmeto::ui {

namespace {

// The shape of the surface on the screen stays what it was: a picture only borrows the view.
class ConRapporto {
public:
  ConRapporto(Grafica& grafica, const QSizeF& misura)
      : vista_(grafica.Vista()), prima_(vista_.Rapporto), lista_(grafica.Dipingi(misura.width() / misura.height())) {}
  ConRapporto(const ConRapporto&) = delete;
  ConRapporto& operator=(const ConRapporto&) = delete;
  ~ConRapporto() { vista_.Rapporto = prima_; }

  [[nodiscard]] const Operazioni& Lista() const { return lista_; }

private:
  VistaGrafica& vista_;
  double prima_;
  Operazioni lista_;
};

void Png(QIODevice& uscita, const Operazioni& lista, QSize misura, double scala) {
  QImage immagine((QSizeF(misura) * scala).toSize(), QImage::Format_RGB32);
  PittoreSchermo().Dipingi(immagine, lista, scala, immagine.rect());
  immagine.save(&uscita, "PNG");
}

void Pdf(QIODevice& uscita, const Operazioni& lista, QSize misura) {
  constexpr int risoluzione = 1200;
  const double unita = risoluzione / pittura::PixelPerPollice;
  QPdfWriter scrittore(&uscita);
  scrittore.setResolution(risoluzione);
  scrittore.setTitle(AQString(TitoloProgramma));
  scrittore.setPageSize(
      QPageSize(QSizeF(misura) / pittura::PixelPerPollice, QPageSize::Inch, {}, QPageSize::ExactMatch));
  scrittore.setPageMargins({});
  QPainter pittore(&scrittore);
  DipingiPagina(pittore, lista, QRectF(QPointF(), QSizeF(misura) * unita), unita);
}

} // namespace

std::string ImmagineVista(Grafica& grafica, QSize misura, double scala, std::string_view estensione) {
  const ConRapporto vista(grafica, misura);
  if (UgualiSenzaCaso(estensione, ".SVG")) return DisegnoSvg(vista.Lista(), misura.width(), misura.height());
  QBuffer uscita;
  uscita.open(QIODevice::WriteOnly);
  if (UgualiSenzaCaso(estensione, ".PDF"))
    Pdf(uscita, vista.Lista(), misura);
  else
    Png(uscita, vista.Lista(), misura, scala);
  return uscita.data().toStdString();
}

void StampaVista(Grafica& grafica, QWidget* padre) {
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setDocName(AQString(TitoloProgramma));
  if (grafica.Vista().Rapporto > 1) stampante.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog finestra(&stampante, padre);
  finestra.setWindowTitle(QStringLiteral("Stampa del disegno"));
  if (finestra.exec() != QDialog::Accepted) throw Errore(errore::DialogoAnnullato);
  QPainter pittore;
  if (!pittore.begin(&stampante)) throw Errore(errore::ErroreStampante);
  const QRectF pagina(QPointF(), stampante.pageRect(QPrinter::DevicePixel).size());
  const ConRapporto vista(grafica, pagina.size());
  DipingiPagina(pittore, vista.Lista(), pagina, stampante.resolution() / pittura::PixelPerPollice);
  if (!pittore.end()) throw Errore(errore::ErroreStampante);
}

} // namespace lirmeto::ui
