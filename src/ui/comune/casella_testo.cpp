#include <ui/comune/casella_testo.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <base/testo.h>

#include <QPainter>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace lirmeto::ui {

namespace {

constexpr int Aria = 8; // pixels at both sides of the line numbers

} // namespace

// The strip at the left of the box; the box itself draws on it.
class MargineNumeri : public QWidget {
public:
  explicit MargineNumeri(CasellaTesto& casella) : QWidget(&casella), casella_(casella) {}

protected:
  void paintEvent(QPaintEvent* evento) override { casella_.DisegnaMargine(evento->rect(), *this); }

private:
  CasellaTesto& casella_;
};

CasellaTesto::CasellaTesto(QWidget* padre) : QPlainTextEdit(padre), margine_(new MargineNumeri(*this)) {
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setFont(FontMonospazio(10));
  connect(this, &QPlainTextEdit::blockCountChanged, this, &CasellaTesto::DisponiMargine);
  connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& zona, int scarto) {
    scarto != 0 ? margine_->scroll(0, scarto) : margine_->update(0, zona.y(), margine_->width(), zona.height());
  });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CasellaTesto::SegnaRigaCorrente);
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int posto, int /*tolte*/, int aggiunte) { ControllaLettere(posto, aggiunte); });
  DisponiMargine();
  SegnaRigaCorrente();
}

void CasellaTesto::MettiTesto(std::string_view testo) {
  const QScopedValueRollback fidata(fidata_, true);
  setPlainText(AQString(testo));
}

std::string CasellaTesto::Testo() const {
  return TestoDocumento(*document());
}

void CasellaTesto::VaiAllaRiga(std::size_t riga) {
  const int blocco = static_cast<int>(std::min(riga, static_cast<std::size_t>(blockCount() - 1)));
  setTextCursor(QTextCursor(document()->findBlockByNumber(blocco)));
  centerCursor();
}

void CasellaTesto::CambiaDimensione(double punti) {
  if (QTextCursor cursore = textCursor(); cursore.hasSelection()) {
    QTextCharFormat formato;
    formato.setFontPointSize(punti);
    return cursore.mergeCharFormat(formato);
  }
  QFont carattere = font();
  carattere.setPointSizeF(punti);
  setFont(carattere);
}

void CasellaTesto::SelezioneInMaiuscolo() {
  CambiaSelezione(&InMaiuscolo);
}

void CasellaTesto::SelezioneInMinuscolo() {
  CambiaSelezione(&InMinuscolo);
}

void CasellaTesto::CambiaSelezione(QString (*cambia)(const QString&)) {
  QTextCursor cursore = textCursor();
  if (!cursore.hasSelection()) return;
  const int ancora = cursore.anchor();
  const int posto = cursore.position();
  cursore.insertText(cambia(cursore.selectedText()));
  cursore.setPosition(ancora);
  cursore.setPosition(posto, QTextCursor::KeepAnchor);
  setTextCursor(cursore);
}

bool CasellaTesto::Trova(const QString& testo, bool avanti) {
  const QTextDocument::FindFlags verso = avanti ? QTextDocument::FindFlags() : QTextDocument::FindBackward;
  if (find(testo, verso)) return true;
  const QTextCursor prima = textCursor();
  moveCursor(avanti ? QTextCursor::Start : QTextCursor::End);
  if (find(testo, verso)) return true;
  setTextCursor(prima);
  return false;
}

std::size_t CasellaTesto::RigheCon(const QString& testo) const {
  const QString tutto = document()->toRawText();
  std::size_t righe = 0;
  for (const QStringView riga : QStringView(tutto).tokenize(QChar(QChar::ParagraphSeparator)))
    if (!testo.isEmpty() && riga.contains(testo, Qt::CaseInsensitive)) ++righe;
  return righe;
}

void CasellaTesto::ControllaLettere(int posto, int aggiunte) {
  if (fidata_) return;
  QString estranee;
  for (int i = posto; i < posto + aggiunte && estranee.size() < 20; ++i) {
    const QChar lettera = document()->characterAt(i);
    if (lettera.unicode() < 0x80 || lettera == QChar::ParagraphSeparator || lettera.isNull()) continue;
    const bool mezza = lettera.isSurrogate();
    if (mezza || !RappresentabileDaUtf8(QString(lettera).toUtf8().toStdString())) estranee += lettera;
  }
  if (!estranee.isEmpty()) emit LettereNonAmmesse(estranee);
}

// --- line numbers

int CasellaTesto::LarghezzaMargine() const {
  const auto cifre = std::max<qsizetype>(4, QString::number(blockCount()).size());
  return 2 * Aria + static_cast<int>(cifre) * fontMetrics().horizontalAdvance(u'0');
}

void CasellaTesto::DisponiMargine() {
  setViewportMargins(LarghezzaMargine(), 0, 0, 0);
  const QRect interno = contentsRect();
  margine_->setGeometry(interno.left(), interno.top(), LarghezzaMargine(), interno.height());
}

void CasellaTesto::resizeEvent(QResizeEvent* evento) {
  QPlainTextEdit::resizeEvent(evento);
  DisponiMargine();
}

void CasellaTesto::changeEvent(QEvent* evento) {
  QPlainTextEdit::changeEvent(evento);
  if (margine_ == nullptr) return;
  if (evento->type() == QEvent::FontChange) DisponiMargine();
  if (evento->type() == QEvent::PaletteChange) SegnaRigaCorrente(); // in the colour of the new light
}

void CasellaTesto::DisegnaMargine(const QRect& zona, QWidget& margine) {
  QPainter pittore(&margine);
  pittore.setFont(font());
  pittore.fillRect(zona, ColoreMargine());
  const int corrente = textCursor().blockNumber();
  QTextBlock blocco = firstVisibleBlock();
  for (QRectF posto = blockBoundingGeometry(blocco).translated(contentOffset());
       blocco.isValid() && posto.top() <= zona.bottom();
       posto = blockBoundingGeometry(blocco).translated(contentOffset())) {
    pittore.setPen(blocco.blockNumber() == corrente ? palette().text().color() : ColoreNumeri());
    pittore.drawText(QRectF(0, posto.top(), margine.width() - Aria, posto.height()), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(blocco.blockNumber() + 1));
    blocco = blocco.next();
  }
}

void CasellaTesto::SegnaRigaCorrente() {
  QTextEdit::ExtraSelection riga;
  riga.format.setBackground(ColoreTema(Tono::RigaCorrente));
  riga.format.setProperty(QTextFormat::FullWidthSelection, true);
  riga.cursor = textCursor();
  riga.cursor.clearSelection();
  setExtraSelections({riga});
  margine_->update();
}

} // namespace lirmeto::ui
