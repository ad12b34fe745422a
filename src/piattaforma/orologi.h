#pragma once
// The machine's clock, and one that stands still.

#include <base/macchina.h>

#include <ctime>

namespace lirmeto {

// A moment of the host as local date and time.
[[nodiscard]] Istante IstanteLocale(std::time_t momento);

// Local date and time.
class OrologioDiSistema final : public Orologio {
public:
  [[nodiscard]] Data Oggi() const override;
  [[nodiscard]] Ora Adesso() const override;
};

// Always midnight of one day: runs that can be repeated.
class OrologioFisso final : public Orologio {
public:
  explicit OrologioFisso(const Data& oggi) : oggi_(oggi) {}
  [[nodiscard]] Data Oggi() const override { return oggi_; }
  [[nodiscard]] Ora Adesso() const override { return {}; }

private:
  Data oggi_;
};

} // namespace lirmeto
