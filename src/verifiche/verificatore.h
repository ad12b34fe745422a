#pragma once
// All checks over the rows of a session, brought up to date as the rows change. It changes nothing itself.

#include <core/ambiente.h>
#include <verifiche/atto.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class Verificatore {
public:
  // Tables and archives are read through these surroundings when the first act names them, and kept.
  explicit Verificatore(Ambiente& ambiente) : ambiente_(ambiente) {}

  // Looks at the rows and the associated extract of the session as they are now; when nothing has changed it costs
  // nothing. Errors of the machine are archives that are not there.
  void Aggiorna();
  // Archives and extract are read again with the next Aggiorna.
  void Dimentica();

  // In the order of the rows, those of the whole act last.
  [[nodiscard]] const std::vector<Segnalazione>& Segnalazioni() const { return segnalazioni_; }
  [[nodiscard]] const Conteggio& Quante() const { return quante_; }
  // Those of a row.
  [[nodiscard]] std::span<const Segnalazione> Di(std::size_t riga) const;

  [[nodiscard]] const RigheLette& Righe() const { return righe_; }
  [[nodiscard]] const Rete& Posti() const { return rete_; }
  [[nodiscard]] const Intorno& Archivi() const { return intorno_; }
  // Grows when the findings are made anew.
  [[nodiscard]] unsigned long Versione() const { return versione_; }

private:
  // What decides which archives are read: header, fiducial points, extract.
  struct Chiave {
    std::string zero;
    std::vector<std::string> fiduciali;
    std::string estratto;
    bool operator==(const Chiave&) const = default;
  };

  [[nodiscard]] bool AggiornaIntorno();
  [[nodiscard]] Chiave ChiaveAdesso() const;
  void Verifica();

  Ambiente& ambiente_;
  RigheLette righe_;
  Rete rete_;
  Intorno intorno_;
  std::optional<Chiave> chiave_;
  std::vector<Segnalazione> segnalazioni_;
  Conteggio quante_;
  std::optional<unsigned long> versioneRighe_; // of the session's list
  unsigned long versione_ = 0;
};

} // namespace lirmeto
