#include <cli/comandi.h>

#include <array>

namespace lirmeto {

std::span<const FamigliaCli> FamiglieCli() {
  static const std::array famiglie = {
      ComandiLibretto(),    //
      ComandiVerifiche(),   //
      ComandiGenerazione(), //
      ComandiMisurate(),    //
      ComandiPf(),          //
      ComandiPolilinee(),   //
      ComandiProposta(),    //
      ComandiEstratto(),    //
      ComandiFoglio(),      //
      ComandiCensuario(),   //
      ComandiDisegno(),     //
      ComandiModello(),     //
      ComandiZip(),         //
      ComandiSupporto(),    //
  };
  return famiglie;
}

} // namespace lirmeto
