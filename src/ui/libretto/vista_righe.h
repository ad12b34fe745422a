#pragma once
// The row list as a view that reads the logic's list directly: only the rows,
// and of each row only the columns, that stand in the window are converted and
// drawn, so a list of any length and rows of any width scroll at once.

#include <ui/comune/selezione_estesa.h>

#include <core/elenco_righe.h>
#include <supporto/segnalazione.h>

#include <QAbstractScrollArea>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lirmeto::ui {

class VistaRighe : public QAbstractScrollArea {
  Q_OBJECT
public:
  // The list must outlive the view.
  explicit VistaRighe(ElencoRighe& elenco, QWidget* padre = nullptr);

  // Takes up what changed in the list from outside; costs nothing when nothing
  // did.
  void Aggiorna();

  // Marks this text (Windows-1252) wherever it shows, in any case; empty:
  // nothing.
  void Evidenzia(const std::string& testo);

  // Marks beside the rows: the worst that is said of a row, and the sentences that its mark explains.
  using SegnoDi = std::function<std::optional<Severita>(std::size_t riga)>;
  using SpiegazioneDi = std::function<QString(std::size_t riga)>;
  void Segni(SegnoDi segno, SpiegazioneDi spiegazione);
  // Lights a field of a row, its kind being 0; 0 puts the light out.
  void AccendiCampo(std::size_t riga, std::size_t campo);

  // Makes the row the only selected one and brings it into view.
  void VaiA(std::size_t riga);
  // Brings the current row into view; the selection stays.
  void Scopri() { MostraRiga(elenco_.Indice()); }

  // Brings the row into view and leaves the selection alone.
  void PortaInVista(std::size_t riga) { MostraRiga(static_cast<long>(riga)); }

  [[nodiscard]] std::optional<std::size_t> RigaAlPunto(const QPoint& punto) const;
  [[nodiscard]] QRect RettangoloRiga(std::size_t riga) const; // of the viewport; may lie outside it

signals:
  void Toccata(); // selection, key, mouse or scroll
  void DoppioClick(std::size_t riga);
  void Invio(std::size_t riga);
  void Cancella();
  void MenuRichiesto(const QPoint& posto); // of the screen: on the row pressed, which is chosen, or at the current one
  void FileLasciato(const QString& percorsoOspite); // still inside the drag: to be received later

protected:
  bool viewportEvent(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void keyReleaseEvent(QKeyEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dragMoveEvent(QDragMoveEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

private:
  [[nodiscard]] int AltezzaRiga() const;
  [[nodiscard]] int LarghezzaColonna() const;
  [[nodiscard]] int LarghezzaMargine() const;
  [[nodiscard]] std::size_t PrimaVisibile() const;
  [[nodiscard]] std::size_t RigaVicina(const QPoint& punto) const;
  void MisuraRighe();
  void DisponiBarre();
  void DisegnaRiga(QPainter& pittore, std::size_t riga) const;
  void DisegnaSegnoDi(QPainter& pittore, std::size_t riga, const QRect& rettangolo) const;
  void DisegnaCampo(QPainter& pittore, std::size_t riga, const QRect& rettangolo) const;
  void DisegnaNumero(QPainter& pittore, std::size_t riga, const QRect& rettangolo) const;
  void DisegnaTesto(QPainter& pittore, std::string_view riga, const QRect& rettangolo) const;
  void DisegnaTrovati(QPainter& pittore, std::string_view visibile, const QRect& rettangolo) const;
  void Muovi(long passo, Qt::KeyboardModifiers modificatori);
  void MuoviA(std::size_t riga, Qt::KeyboardModifiers modificatori);
  [[nodiscard]] bool TastoDiMovimento(const QKeyEvent& evento);
  [[nodiscard]] bool TastoDiComando(const QKeyEvent& evento);
  void MostraRiga(long riga);
  void Tocco();

  ElencoRighe& elenco_;
  SelezioneEstesa selezione_;
  std::string evidenziato_;
  SegnoDi segno_;
  SpiegazioneDi spiegazione_;
  std::size_t rigaAccesa_ = 0;
  std::size_t campoAcceso_ = 0;  // 0: none
  std::size_t rigaPiuLunga_ = 0; // characters
  std::optional<unsigned long> versione_;
  std::optional<unsigned long> versioneSelezione_;
  long indice_ = -1;
  bool trascina_ = false;
};

} // namespace lirmeto::ui
