#pragma once
// What a command is given: the session and the machine.

#include <base/dialoghi.h>
#include <base/macchina.h>
#include <core/sessione.h>

namespace lirmeto {

struct Ambiente {
  Sessione& sessione;
  Disco& disco;
  Dialoghi& dialoghi;
  Finestre& finestre;
  Processi& processi;
  Impostazioni& impostazioni;
  Appunti& appunti;
  Orologio& orologio;
};

} // namespace lirmeto
