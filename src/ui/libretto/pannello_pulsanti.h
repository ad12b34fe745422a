#pragma once
// The button array of the main window: groups under titles, captions beside icons, the picture-only buttons in rows.

#include <applicazione/comandi.h>

#include <QScrollArea>

#include <functional>
#include <map>

class QToolButton;
class QVBoxLayout;

namespace lirmeto::ui {

class PannelloPulsanti : public QScrollArea {
  Q_OBJECT
public:
  // `disponibile` tells which commands can be used: the buttons of the others are disabled.
  using Disponibile = std::function<bool(Comando)>;
  explicit PannelloPulsanti(Disponibile disponibile, QWidget* padre = nullptr);

  // The province's code stands beside the caption of its button.
  void MostraProvincia(const QString& sigla);

  // The button of an index of the array; null when there is none.
  [[nodiscard]] QToolButton* Bottone(int indice) const;

signals:
  void Premuto(lirmeto::Comando comando);
  void PuntatoreSopra(int indice);

protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
  void AggiungiGruppo(QVBoxLayout& colonna, const QString& titolo);
  [[nodiscard]] QToolButton* CreaBottone(const Pulsante& pulsante);

  Disponibile disponibile_;
  std::map<int, QToolButton*> bottoni_;
};

} // namespace lirmeto::ui
