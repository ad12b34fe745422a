#include <cli/esegui.h>

#include <piattaforma/canali.h>

#include <cstdio>
#include <exception>

int main(int quante, char** parole) {
  lirmeto::PreparaCanali();
  try {
    return lirmeto::Esegui(lirmeto::ParoleRicevute(quante, parole), {stdout, stderr});
  } catch (const std::exception& difetto) {
    std::fprintf(stderr, "[Lirmeto] %s\n", difetto.what());
    return 1;
  }
}
