#pragma once
// The view of a drawing as a picture: PNG, SVG, PDF, and on paper.

#include <grafica/grafica.h>

#include <QSize>

#include <string>
#include <string_view>

class QWidget;

namespace lirmeto::ui {

// The bytes of a picture of the view, by the file's extension: ".SVG", ".PDF", anything else a PNG. The sizes are
// pixels at 100%; a PNG has `scala` times as many, a PDF is a page of that shape.
[[nodiscard]] std::string ImmagineVista(Grafica& grafica, QSize misura, double scala, std::string_view estensione);

// The user chooses a printer, and the view is painted on a page of it. Errors: 32755 cancelled, 482 the printer does
// not go.
void StampaVista(Grafica& grafica, QWidget* padre);

} // namespace lirmeto::ui
