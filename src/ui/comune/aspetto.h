#pragma once
// The look all windows share: fonts, icons, place and size, and one quiet colour for each kind of row.

#include <ui/comune/tema.h>

#include <base/dialoghi.h>
#include <core/posizione_form.h>

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

#include <optional>
#include <string_view>

class QApplication;
class QWidget;

namespace lirmeto::ui {

// The light that the windows are in.
enum class Luce { Sistema, Chiara, Scura };

// Sets style, palette, Italian texts of the toolkit's own dialogs and the window icon. With the system's light the
// windows change with it while they run.
void VestiApplicazione(QApplication& applicazione, Luce luce = Luce::Sistema);

// The same windows in another light.
void Tingi(QApplication& applicazione, bool scuro);

// Colours by kind of row (0 to 9); any other kind has those of kind 0.
[[nodiscard]] ColoriRiga ColoriDelGenere(std::string_view riga);

[[nodiscard]] QColor ColoreSelezione();
[[nodiscard]] QColor ColoreNumeri();  // row numbers
[[nodiscard]] QColor ColoreMargine(); // behind the row numbers
[[nodiscard]] QColor ColoreBarre();   // the bars between fields
[[nodiscard]] QColor ColoreTrovato(); // behind a text that was looked for

// An icon by the name of its file, without extension; a null icon for one that
// is not there.
[[nodiscard]] QIcon Icona(const QString& nome);

// Name of the icon of a button of the main window's array.
[[nodiscard]] QString NomeIconaPulsante(int indice);

[[nodiscard]] QFont FontDa(const Carattere& carattere);
[[nodiscard]] Carattere CarattereDa(const QFont& font);
[[nodiscard]] QFont FontMonospazio(double punti);

// Size of a window that fits the screen it will stand on.
void AdattaAlloSchermo(QWidget& finestra, int larghezza, int altezza);

// Where and as large as a window was left, as long as some screen still shows that place.
void RimettiAlPosto(QWidget& finestra, const std::optional<PosizioneForm>& posizione);

// One that was left nowhere goes before the middle of the window that it belongs to, its title on the screen.
void MettiNelMezzo(QWidget& finestra);

} // namespace lirmeto::ui
