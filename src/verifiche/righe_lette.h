#pragma once
// The rows of the list as read, with what the checks of a row by itself say of it; only what changed is read again.

#include <core/lista_righe.h>
#include <supporto/segnalazione.h>
#include <verifiche/riga_letta.h>

#include <vector>

namespace lirmeto {

class RigheLette {
public:
  // Brings everything up to the list as it is now. Whether anything had changed.
  bool Aggiorna(const ListaRighe& righe);

  [[nodiscard]] std::size_t Quante() const { return lette_.size(); }
  [[nodiscard]] const RigaLetta& operator[](std::size_t indice) const { return lette_[indice]; }
  [[nodiscard]] std::string_view Testo(std::size_t indice) const { return righe_[indice]; }
  [[nodiscard]] const NomiPunti& Nomi() const { return nomi_; }
  [[nodiscard]] std::string_view Nome(std::size_t indice) const { return nomi_.Nome(lette_[indice].nome); }
  // Row where the update proposal begins; the number of rows when there is none.
  [[nodiscard]] std::size_t InizioProposta() const { return proposta_; }

  // What the rows by themselves give, in the order of the rows.
  void Riporta(Raccolta& raccolta) const;

private:
  void Leggi(std::size_t indice, SezioneAtto sezione);
  void PonSezioni();

  ListaRighe righe_;
  NomiPunti nomi_;
  std::vector<RigaLetta> lette_;
  std::vector<std::vector<Segnalazione>> dette_; // by row
  std::size_t proposta_ = 0;
  Campi campi_;
};

} // namespace lirmeto
