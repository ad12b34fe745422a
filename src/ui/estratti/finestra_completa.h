#pragma once
// The window that completes an auto-assembled extract.

#include <estratti/completa_autoallestito.h>

#include <QDialog>

#include <array>
#include <functional>

class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStringListModel;

namespace lirmeto::ui {

class FinestraCompleta : public QDialog {
  Q_OBJECT
public:
  // The model must outlive the window.
  explicit FinestraCompleta(CompletaAutoallestito& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QWidget* CreaRighe();
  QWidget* CreaTestata();
  [[nodiscard]] QWidget* CreaParticella();
  [[nodiscard]] QWidget* CreaQualita();
  QLineEdit* AggiungiCasella(QGridLayout& griglia, const QString& titolo, const QString& nome, std::string& valore);
  QPushButton* CreaBottone(const QString& testo, const QString& nome, const std::function<void()>& azione);
  void Fa(const std::function<void()>& azione);
  void Mostra();
  void MostraElenchi();

  struct Casella {
    QLineEdit* riga;
    const std::string* valore;
  };

  CompletaAutoallestito& modello_;
  QListWidget* particelle_;
  QStringListModel* righe_;
  QLabel* rigaZero_;
  QLabel* comune_;
  QLabel* codice_;
  std::vector<Casella> caselle_;
};

} // namespace lirmeto::ui
