#pragma once
// Forms opened by their name are the real ones, played by `utente`.

#include "sostituti/banco.h"

#include <applicazione/forme.h>

namespace lirmeto::prova {

// The machine of a Banco with real forms; the Banco must outlive it.
class FormeVere : public FinestreDiProva {
public:
  Ambiente ambiente;

  explicit FormeVere(Banco& banco)
      : ambiente{banco.sessione, banco.disco,        banco.dialoghi, *this,
                 banco.processi, banco.impostazioni, banco.appunti,  banco.orologio} {}
  [[nodiscard]] bool Disponibile(std::string_view nome) const override { return TrovaForma(nome) != nullptr; }
  void Apri(std::string_view nome) override { TrovaForma(nome)->apri(ambiente); }
};

} // namespace lirmeto::prova
