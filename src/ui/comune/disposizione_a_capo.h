#pragma once
// A layout that sets its items beside each other and goes on in the next line where the width ends.

#include <QLayout>
#include <QList>

namespace lirmeto::ui {

class DisposizioneACapo : public QLayout {
  Q_OBJECT
public:
  explicit DisposizioneACapo(QWidget* padre = nullptr) : QLayout(padre) {}
  ~DisposizioneACapo() override;
  DisposizioneACapo(const DisposizioneACapo&) = delete;
  DisposizioneACapo& operator=(const DisposizioneACapo&) = delete;

  // Puts a widget at a place; past the end: behind all others.
  void Inserisci(int posto, QWidget* oggetto);

  void addItem(QLayoutItem* voce) override { voci_.append(voce); }
  [[nodiscard]] int count() const override { return static_cast<int>(voci_.size()); }
  [[nodiscard]] QLayoutItem* itemAt(int indice) const override { return voci_.value(indice); }
  QLayoutItem* takeAt(int indice) override;
  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int larghezza) const override;
  // All in one line.
  [[nodiscard]] QSize sizeHint() const override;
  // The widest item.
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;

private:
  [[nodiscard]] int Disponi(const QRect& area, bool sposta) const;
  void DisponiRiga(const QRect& riga, qsizetype primo, qsizetype fine, int avanzo) const;
  [[nodiscard]] QSize Bordi() const;

  QList<QLayoutItem*> voci_;
};

} // namespace lirmeto::ui
