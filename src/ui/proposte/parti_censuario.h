#pragma once
// What the windows of the census share: rows with their title, findings, buttons, the parcel lit in a drawing.

#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/modello_classe.h>

#include <core/elenco_righe.h>
#include <grafica/archivio_grafica.h>
#include <proposte/form_censuario.h>

#include <QListWidget>
#include <QWidget>

#include <functional>
#include <span>
#include <vector>

class QLabel;
class QListView;
class QToolButton;

namespace lirmeto::ui {

class BarraACapo;

class GraficaSuperficie;

// A button of the form; its name is "Pulsante_" and its index.
[[nodiscard]] QToolButton* CreaPulsante(const PulsanteForm& pulsante, QWidget* padre,
                                        const std::function<void(int)>& premi);

// The buttons in a row, pictures over their captions.
[[nodiscard]] BarraACapo* CreaPulsantiera(std::span<const PulsanteForm> pulsanti, QWidget* padre,
                                          const std::function<void(int)>& premi);

// Census rows under a title that tells how many they are.
class ElencoCensuario : public QWidget {
  Q_OBJECT
public:
  ElencoCensuario(const QString& titolo, const ListaRighe& righe, QWidget* padre = nullptr);
  // The same over rows with a selection, which the view then shows and changes.
  ElencoCensuario(const QString& titolo, ElencoRighe& righe, QWidget* padre = nullptr);

  [[nodiscard]] QListView& Vista() { return *vista_; }
  // Takes up what changed; the current row stays where it was.
  void Ricarica();
  void VaiA(std::size_t riga);

signals:
  void Corrente(const QString& riga); // the row under the cursor
  void DoppioClic(std::size_t riga);
  void SelezioneCambiata();

private:
  void Imposta(const QString& titolo);
  void PrendiSelezione();

  const ListaRighe& righe_;
  ElencoRighe* conSelezione_ = nullptr;
  ModelloClasse modello_;
  QString titoloBase_;
  QLabel* titolo_;
  QListView* vista_;
};

// Findings, each with the mark of its kind; a click tells where one stands.
class ElencoRilievi : public QListWidget {
  Q_OBJECT
public:
  enum class Dove { Form, Composizione, Memo };

  explicit ElencoRilievi(QWidget* padre = nullptr);

  void Mostra(const std::vector<Segnalazione>& form, const std::vector<Segnalazione>& composizione,
              const std::vector<Segnalazione>& memo);

  [[nodiscard]] QSize sizeHint() const override;

signals:
  void Scelto(ElencoRilievi::Dove dove, std::size_t riga);

private:
  void Aggiungi(Dove dove, const std::vector<Segnalazione>& rilievi);
};

// Lies over a drawing and lights the sides of a parcel.
class EvidenzaParticella : public QWidget {
  Q_OBJECT
public:
  // The surface is its parent.
  explicit EvidenzaParticella(GraficaSuperficie& superficie);

  void Illumina(std::vector<LineaGrafica> lati);

protected:
  void paintEvent(QPaintEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
  GraficaSuperficie& superficie_;
  std::vector<LineaGrafica> lati_;
};

} // namespace lirmeto::ui
