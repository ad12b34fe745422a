#pragma once
// Printing: the current printer and the pages of a text.

#include <base/dialoghi.h>

#include <QString>

#include <memory>
#include <vector>

class QFontMetricsF;
class QPrinter;
class QWidget;

namespace lirmeto::ui {

class StampaQt {
public:
  StampaQt();
  ~StampaQt();
  StampaQt(const StampaQt&) = delete;
  StampaQt& operator=(const StampaQt&) = delete;

  // Whether there is a current printer. A file to print into is asked for anew each time, so that no printout
  // overwrites the one before it.
  [[nodiscard]] bool Pronta();

  // The print dialog; false when it is cancelled.
  [[nodiscard]] bool Scegli(QWidget* padre);

  // Throws Errore 482 when the printer does not go.
  void Stampa(const Stampato& stampato);

private:
  [[nodiscard]] QPrinter& Stampante();

  bool stampatoNelFile_ = false;
  std::unique_ptr<QPrinter> stampante_; // made at the first use: the machine's printers are looked up then
};

// The lines of a text as they fit a page of that width, in the metrics' unit: tabs go to every eighth column, and a
// line too wide goes on on the next one.
[[nodiscard]] std::vector<QString> RigheDiPagina(const std::vector<std::string_view>& righe,
                                                 const QFontMetricsF& misure, double larghezza);

} // namespace lirmeto::ui
