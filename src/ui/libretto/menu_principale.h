#pragma once
// The menu bar of the main window, built from the table of its entries.

#include <applicazione/comandi.h>

#include <QKeySequence>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;

namespace lirmeto::ui {

using EseguiComando = std::function<void(Comando)>;
using ComandoDisponibile = std::function<bool(Comando)>;

void RiempiMenu(QMenuBar& barra, const ComandoDisponibile& disponibile, const EseguiComando& esegui);

// Name of the submenu of the files opened last, and its entries.
inline constexpr const char* MenuRecenti = "LibrettiRecenti";
void RiempiRecenti(QMenu& menu, const std::vector<std::string>& recenti, const std::function<void(std::size_t)>& apri);

// The entry of a command; null when the bar has none.
[[nodiscard]] QAction* VoceDi(const QMenuBar& barra, Comando comando);

// The keyboard's way to a command; empty where there is none.
[[nodiscard]] QKeySequence Scorciatoia(Comando comando);

} // namespace lirmeto::ui
