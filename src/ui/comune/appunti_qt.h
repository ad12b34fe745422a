#pragma once
// The host's clipboard.

#include <base/macchina.h>

namespace lirmeto::ui {

class AppuntiQt final : public Appunti {
public:
  [[nodiscard]] std::string Testo() const override;
  void MettiTesto(std::string_view testo) override;
};

} // namespace lirmeto::ui
