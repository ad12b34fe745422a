#pragma once
// What stands round every surface that draws: its ruler among the buttons, and the line below it.

#include <functional>

class QAction;
class QLabel;
class QLayout;

namespace lirmeto::ui {

class BarraACapo;
class GraficaSuperficie;

// A button that stays down while the surface measures; `accendi` starts and ends it. The surface's own end lets it go.
QAction* AggiungiRighello(BarraACapo& barra, GraficaSuperficie& superficie, const std::function<void(bool)>& accendi);

// The place under the pointer, and how much is drawn.
[[nodiscard]] QLayout* PiedeGrafica(QLabel& posto, QLabel& conteggi);

} // namespace lirmeto::ui
