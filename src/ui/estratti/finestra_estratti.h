#pragma once
// The window of the extract manager.

#include <estratti/estratti_di_mappa.h>

#include <QDialog>

#include <functional>
#include <vector>

class QBoxLayout;
class QButtonGroup;
class QLabel;
class QLayout;
class QListView;
class QStackedWidget;
class QStringListModel;
class QTimer;
class QToolButton;

namespace lirmeto::ui {

class AnteprimaRaster;
class GraficaPannello;
class TestiEstratto;

class FinestraEstratti : public QDialog {
  Q_OBJECT
public:
  // The model must outlive the window.
  explicit FinestraEstratti(KR_EstrattiDiMappa1& modello, QWidget* padre = nullptr);

signals:
  void FileLasciato(const QString& percorsoOspite);

protected:
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

private:
  struct Voce {
    const KR_EstrattiDiMappa1::Pulsante* pulsante;
    QToolButton* bottone;
  };

  [[nodiscard]] QWidget* CreaBarra();
  [[nodiscard]] QLayout* CreaFiltri();
  QWidget* CreaElenco();
  [[nodiscard]] QWidget* CreaCentro();
  [[nodiscard]] QWidget* CreaDati();
  [[nodiscard]] QToolButton* CreaBottone(int indice, Qt::ToolButtonStyle stile);
  void AggiungiEtichette(QBoxLayout& colonna);
  void AggiungiCompleta(QBoxLayout& colonna);
  void AggiungiNomi(QBoxLayout& colonna);

  void Fa(const std::function<void()>& azione);
  void Seleziona(int riga);
  void Mostra();
  void MostraElenco();
  void MostraEtichette();
  void MostraAnteprima();
  void MostraPulsanti();

  KR_EstrattiDiMappa1& modello_;
  QListView* elenco_;
  QStringListModel* nomi_;
  QButtonGroup* filtri_;
  QStackedWidget* anteprima_;
  GraficaPannello* disegno_;
  AnteprimaRaster* raster_;
  std::string rasterMostrato_; // path of what it shows
  QToolButton* soloRaster_;    // shows the raster of the selected stem in place of the drawing
  TestiEstratto* testi_;
  std::vector<std::pair<std::string EtichetteEstratto::*, QLabel*>> etichette_;
  QToolButton* completa_;
  std::vector<Voce> voci_;
  QTimer* dopo_; // the drawing of the file selected, once the list has stopped moving
};

} // namespace lirmeto::ui
