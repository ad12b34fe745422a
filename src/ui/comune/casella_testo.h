#pragma once
// A plain-text box with line numbers and the current line marked; it keeps
// every Windows-1252 byte.

#include <QPlainTextEdit>

#include <string>
#include <string_view>

namespace lirmeto::ui {

class CasellaTesto : public QPlainTextEdit {
  Q_OBJECT
public:
  explicit CasellaTesto(QWidget* padre = nullptr);

  // Lines at CR LF.
  void MettiTesto(std::string_view testo);
  [[nodiscard]] std::string Testo() const;

  // The caret at the start of a line, from 0, and the line in the middle of the box.
  void VaiAllaRiga(std::size_t riga);

  // The selected letters in another size, points; without a selection all of them.
  void CambiaDimensione(double punti);

  // Changes the selected letters and leaves them selected.
  void SelezioneInMaiuscolo();
  void SelezioneInMinuscolo();

  // Finds the text forwards or backwards from the caret, wrapping round; false
  // when it is nowhere.
  bool Trova(const QString& testo, bool avanti);

  // How many lines hold the text, in any case; none do an empty one.
  [[nodiscard]] std::size_t RigheCon(const QString& testo) const;

signals:
  // Text came in that Windows-1252 cannot hold and that would be saved as "?".
  void LettereNonAmmesse(const QString& lettere);

protected:
  void resizeEvent(QResizeEvent* evento) override;
  void changeEvent(QEvent* evento) override;

private:
  friend class MargineNumeri;
  [[nodiscard]] int LarghezzaMargine() const;
  void DisegnaMargine(const QRect& zona, QWidget& margine);
  void DisponiMargine();
  void SegnaRigaCorrente();
  void CambiaSelezione(QString (*cambia)(const QString&));
  void ControllaLettere(int posto, int aggiunte);

  QWidget* margine_;
  bool fidata_ = false; // the text comes from Windows-1252 and needs no look
};

} // namespace lirmeto::ui
