#include <estratti/anelli_interi.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

namespace lirmeto {

std::vector<std::size_t> TesteDegliAnelli(const std::vector<std::string_view>& righe) {
  std::vector<std::size_t> teste(righe.size(), NessunaTesta);
  std::size_t testa = NessunaTesta;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    if (GenereDi(righe[i]) != Genere::Contorno) continue;
    if (testa == NessunaTesta || Valore(Parte(righe[i], '|', 1)) != 0) testa = i;
    teste[i] = testa;
  }
  return teste;
}

} // namespace lirmeto
