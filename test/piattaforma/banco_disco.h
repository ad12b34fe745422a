#pragma once
// A disk over a folder of one test.

#include <piattaforma/cartella_provvisoria.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/trova_dischi.h>

#include <base/errore.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

namespace lirmeto::prova {

// Number of the error that a piece of work ends with; 0 for none.
inline int NumeroDi(const std::function<void()>& lavoro) {
  try {
    lavoro();
  } catch (const Errore& errore) {
    return errore.Numero();
  }
  return 0;
}

class ProvaDisco : public testing::Test {
protected:
  ProvaDisco() : disco(TrovaDischi(cartella.Radice())) {}

  CartellaProvvisoria cartella;
  DiscoDischi disco;
};

inline std::string ConSegno(std::string_view prima, std::string_view segno, std::string_view dopo) {
  return std::string(prima).append(segno).append(dopo);
}

} // namespace lirmeto::prova
