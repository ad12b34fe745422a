#pragma once
// The window of a split and of a separation.

#include <ui/proposte/finestra_censuario.h>
#include <ui/proposte/griglia_qt.h>

#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableView;

namespace lirmeto::ui {

class EvidenzaParticella;
class GraficaPannello;

class FinestraProposta : public FinestraCensuario {
  Q_OBJECT
public:
  explicit FinestraProposta(KR_Fraziona& modello, QWidget* padre = nullptr);
  explicit FinestraProposta(KR_Stralcio& modello, QWidget* padre = nullptr);

protected:
  void Mostra() override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
  FinestraProposta(PropostaDerivate& modello, QWidget* padre);
  void Componi();
  [[nodiscard]] QWidget* CreaScelte();
  void CollegaScelte();
  [[nodiscard]] QWidget* CreaGriglia();
  void PreparaTabella();
  [[nodiscard]] QListWidget* CreaElenco(const char* nome, const std::vector<std::string>& voci);
  [[nodiscard]] QWidget* CreaUrbani(KR_Stralcio& stralcio);
  void CollegaGriglia();
  void Tocca(); // the model changed under a box
  void MostraCasella();
  void MostraSomma();
  void VaiARiga(std::size_t riga);
  void Batti(const QString& testo);

  PropostaDerivate& modello_;
  KR_Fraziona* frazionamento_ = nullptr;
  KR_Stralcio* stralcio_ = nullptr;
  GrigliaQt griglia_;
  QTableView* tabella_;
  QLineEdit* text1_;
  QCheckBox* check1_;
  QLineEdit* text2_;
  QLabel* label2_;
  QLabel* somma_;
  GraficaPannello* disegno_ = nullptr;
  EvidenzaParticella* evidenza_ = nullptr;
};

} // namespace lirmeto::ui
