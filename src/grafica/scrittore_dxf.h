#pragma once
// The entities of a DXF, an ENTITIES section alone.

#include <base/numeri.h>
#include <base/testo.h>
#include <grafica/esportazioni.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace lirmeto {

// Group codes and their values, a line each.
class ScrittoreDxf {
public:
  explicit ScrittoreDxf(std::size_t byte) { testo_.reserve(byte); }

  void ApriEntita() {
    Gruppo(" 0", "SECTION");
    Gruppo(" 2", "ENTITIES");
  }

  void Riga(std::string_view testo) {
    testo_ += testo;
    testo_ += FineRiga;
  }
  void Gruppo(std::string_view codice, std::string_view valore) {
    Riga(codice);
    Riga(valore);
  }
  void Entita(std::string_view genere, std::string_view strato) {
    Gruppo(" 0", genere);
    Gruppo(" 8", strato);
  }
  void Numero(std::string_view codice, double valore) { Gruppo(codice, TestoPieno(valore)); }
  // A text one metre high, at its place.
  void Nome(std::string_view nome) {
    Gruppo(" 40", "1");
    Gruppo(" 1", Taglia(SuUnaRiga(nome)));
  }
  void Fine(double x, double y) {
    Numero(" 11", x);
    Numero(" 21", y);
  }
  void Colore(const std::int16_t colore) { Gruppo(" 62", TestoIntero(colore)); }
  void Posto(double x, double y) {
    Numero(" 10", x);
    Numero(" 20", y);
  }

  [[nodiscard]] std::string Prendi() { return std::move(testo_); }

private:
  std::string testo_;
};

} // namespace lirmeto
