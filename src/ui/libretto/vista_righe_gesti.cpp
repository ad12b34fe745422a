// What mouse, keys and dropped files do to the row list.

#include <ui/libretto/vista_righe.h>

#include <QContextMenuEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto::ui {

// --- mouse

std::size_t VistaRighe::RigaVicina(const QPoint& punto) const {
  const long scarto = punto.y() < 0 ? -1 : punto.y() / AltezzaRiga();
  const long riga = static_cast<long>(PrimaVisibile()) + scarto;
  return static_cast<std::size_t>(std::max(0L, riga));
}

void VistaRighe::mousePressEvent(QMouseEvent* evento) {
  const std::optional<std::size_t> riga = RigaAlPunto(evento->position().toPoint());
  if (!riga || evento->button() != Qt::LeftButton) return;
  const bool ctrl = evento->modifiers().testFlag(Qt::ControlModifier);
  trascina_ = !ctrl;
  if (evento->modifiers().testFlag(Qt::ShiftModifier)) {
    selezione_.Estendi(*riga, ctrl);
  } else if (ctrl) {
    selezione_.Alterna(*riga);
  } else {
    selezione_.Semplice(*riga);
  }
  Tocco();
}

void VistaRighe::mouseMoveEvent(QMouseEvent* evento) {
  if (!trascina_ || !evento->buttons().testFlag(Qt::LeftButton) || elenco_.Vuoto()) return;
  const std::size_t riga = RigaVicina(evento->position().toPoint());
  if (static_cast<long>(riga) == elenco_.Indice()) return;
  selezione_.Estendi(riga, false);
  MostraRiga(elenco_.Indice());
  Tocco();
}

void VistaRighe::mouseReleaseEvent(QMouseEvent* /*evento*/) {
  trascina_ = false;
  emit Toccata();
}

void VistaRighe::mouseDoubleClickEvent(QMouseEvent* evento) {
  trascina_ = false;
  const std::optional<std::size_t> riga = RigaAlPunto(evento->position().toPoint());
  if (riga && evento->button() == Qt::LeftButton) emit DoppioClick(*riga);
}

void VistaRighe::contextMenuEvent(QContextMenuEvent* evento) {
  QPoint posto = evento->pos();
  if (evento->reason() == QContextMenuEvent::Mouse) {
    const auto riga = RigaAlPunto(posto);
    if (riga && !elenco_.Selezionata(*riga)) VaiA(*riga);
  } else {
    Scopri();
    posto = RettangoloRiga(static_cast<std::size_t>(std::max(0L, elenco_.Indice()))).bottomLeft() +
            QPoint(LarghezzaMargine(), 0);
  }
  emit MenuRichiesto(viewport()->mapToGlobal(posto));
}

// --- keys

void VistaRighe::keyPressEvent(QKeyEvent* evento) {
  if (TastoDiComando(*evento) || TastoDiMovimento(*evento)) return;
  QAbstractScrollArea::keyPressEvent(evento);
}

bool VistaRighe::TastoDiComando(const QKeyEvent& evento) {
  const int tasto = evento.key();
  const bool ctrl = evento.modifiers().testFlag(Qt::ControlModifier);
  const bool corrente = elenco_.Indice() >= 0;
  if (tasto == Qt::Key_Delete) {
    emit Cancella();
  } else if ((tasto == Qt::Key_Return || tasto == Qt::Key_Enter) && corrente) {
    emit Invio(static_cast<std::size_t>(elenco_.Indice()));
  } else if (tasto == Qt::Key_A && ctrl) {
    selezione_.Tutte();
    Tocco();
  } else if (tasto == Qt::Key_Space && corrente) {
    const auto riga = static_cast<std::size_t>(elenco_.Indice());
    ctrl ? selezione_.Alterna(riga) : selezione_.Semplice(riga);
    Tocco();
  } else {
    return false;
  }
  return true;
}

bool VistaRighe::TastoDiMovimento(const QKeyEvent& evento) {
  const long pagina = std::max(1, verticalScrollBar()->pageStep() - 1);
  const auto tutte = static_cast<long>(elenco_.Quante());
  const std::array<std::pair<Qt::Key, long>, 6> passi = {{{Qt::Key_Up, -1},
                                                          {Qt::Key_Down, 1},
                                                          {Qt::Key_PageUp, -pagina},
                                                          {Qt::Key_PageDown, pagina},
                                                          {Qt::Key_Home, -tutte},
                                                          {Qt::Key_End, tutte}}};
  for (const auto& [tasto, passo] : passi) {
    if (evento.key() != tasto) continue;
    Muovi(passo, evento.modifiers());
    return true;
  }
  if (evento.key() != Qt::Key_Left && evento.key() != Qt::Key_Right) return false;
  horizontalScrollBar()->triggerAction(evento.key() == Qt::Key_Left ? QScrollBar::SliderSingleStepSub
                                                                    : QScrollBar::SliderSingleStepAdd);
  return true;
}

void VistaRighe::Muovi(long passo, Qt::KeyboardModifiers modificatori) {
  if (elenco_.Vuoto()) return;
  const long ultima = static_cast<long>(elenco_.Quante()) - 1;
  MuoviA(static_cast<std::size_t>(std::clamp(elenco_.Indice() + passo, 0L, ultima)), modificatori);
}

void VistaRighe::MuoviA(std::size_t riga, Qt::KeyboardModifiers modificatori) {
  const bool ctrl = modificatori.testFlag(Qt::ControlModifier);
  if (modificatori.testFlag(Qt::ShiftModifier)) {
    selezione_.Estendi(riga, ctrl);
  } else if (ctrl) {
    selezione_.Sposta(riga);
  } else {
    selezione_.Semplice(riga);
  }
  MostraRiga(elenco_.Indice());
  Tocco();
}

void VistaRighe::keyReleaseEvent(QKeyEvent* evento) {
  QAbstractScrollArea::keyReleaseEvent(evento);
  emit Toccata();
}

void VistaRighe::focusInEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusInEvent(evento);
  viewport()->update();
}

void VistaRighe::focusOutEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusOutEvent(evento);
  viewport()->update();
}

// --- dropped files

void VistaRighe::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

void VistaRighe::dragMoveEvent(QDragMoveEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

void VistaRighe::dropEvent(QDropEvent* evento) {
  const QList<QUrl> indirizzi = evento->mimeData()->urls();
  if (indirizzi.isEmpty() || !indirizzi.first().isLocalFile()) return;
  evento->acceptProposedAction();
  emit FileLasciato(indirizzi.first().toLocalFile());
}

} // namespace lirmeto::ui
