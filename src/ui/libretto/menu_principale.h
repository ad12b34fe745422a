#pragma once
// The menu bar of the main window, built from the table of its entries.

#include <applicazione/comandi.h>

#include <QKeySequence>

#include <functional>

class QAction;
class QMenuBar;

namespace lirmeto::ui {

using EseguiComando = std::function<void(Comando)>;
using ComandoDisponibile = std::function<bool(Comando)>;

void RiempiMenu(QMenuBar& barra, const ComandoDisponibile& disponibile, const EseguiComando& esegui);

// The entry of a command; null when the bar has none.
[[nodiscard]] QAction* VoceDi(const QMenuBar& barra, Comando comando);

// The keyboard's way to a command; empty where there is none.
[[nodiscard]] QKeySequence Scorciatoia(Comando comando);

} // namespace lirmeto::ui
