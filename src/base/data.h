#pragma once
// Calendar dates and times of day, local time, as the machine's clock gives
// them.

#include <string>

namespace lirmeto {

struct Data {
  int anno = 0;   // four digits
  int mese = 0;   // 1 to 12
  int giorno = 0; // 1 to 31
  bool operator==(const Data&) const = default;
  auto operator<=>(const Data&) const = default;
};

struct Ora {
  int ore = 0;     // 0 to 23
  int minuti = 0;  // 0 to 59
  int secondi = 0; // 0 to 60
};

struct Istante {
  Data data;
  Ora ora;
};

// Whether the calendar has it.
[[nodiscard]] bool NelCalendario(const Data& data);

// "ddmmyyyy", the form of row 0.
[[nodiscard]] std::string TestoData(const Data& data);

} // namespace lirmeto
