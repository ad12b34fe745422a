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
  [[nodiscard]] const QSettings& ArchivioDi(std::string_view sezione) const;

  QSettings archivio_;
  QSettings pernico_; // of the sibling program that shows .CSV files: the two share the section of the viewer
};

} // namespace lirmeto::ui
