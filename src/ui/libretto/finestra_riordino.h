#pragma once
// The window of the row reorder: the classes with their counts in a column, the rows of the chosen one beside it.

#include <core/riordino.h>

#include <QButtonGroup>
#include <QDialog>

#include <vector>

class QGridLayout;
class QLabel;
class QListView;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace lirmeto::ui {

class ModelloClasse;

class FinestraRiordino : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraRiordino(FormRiordinoRighe& modello, QWidget* padre = nullptr);

  // Esc and the window's own cross close as the button does.
  void reject() override;

signals:
  void Mostrata();

protected:
  void showEvent(QShowEvent* evento) override;

private:
  struct VistaClasse {
    QPushButton* bottone; // caption and count
    QLabel* quante;
    QToolButton* elimina; // null where the class has none
    QListView* lista;
    ModelloClasse* righe;
  };

  [[nodiscard]] QWidget* CreaColonna();
  void AggiungiElenco(QGridLayout& griglia, const QString& titolo, const ListaRighe& righe);
  void CollegaClasse(QGridLayout& griglia, std::size_t indice);
  [[nodiscard]] QWidget* CreaPiede();
  void SullaRiga(std::size_t indice, int riga, void (FormRiordinoRighe::*azione)(std::size_t, std::size_t));
  void Attiva();
  void Scegli(std::size_t indice);
  void Mostra();
  void ChiudiSeChiusa();

  FormRiordinoRighe& modello_;
  QButtonGroup scelta_{this};
  std::vector<VistaClasse> classi_; // in canonical order; the rows of no class last
  QStackedWidget* pila_;
  QLabel* titolo_; // of the list shown
  QLabel* iscrizione_;
  QLabel* codiceFiscale_;
  bool attivata_ = false;
};

} // namespace lirmeto::ui
