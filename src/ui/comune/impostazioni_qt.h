#pragma once
// Per-user settings in the place where the host keeps them.

#include <base/macchina.h>

#include <QSettings>

namespace lirmeto::ui {

class ImpostazioniQt final : public Impostazioni {
public:
  ImpostazioniQt();                             // the user's
  explicit ImpostazioniQt(const QString& file); // an INI file

  [[nodiscard]] std::string Leggi(std::string_view sezione, std::string_view chiave,
                                  std::string_view predefinito) const override;
  void Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) override;

private:
  QSettings archivio_;
};

} // namespace lirmeto::ui
