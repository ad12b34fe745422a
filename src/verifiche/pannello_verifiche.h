#pragma once
// The list of findings below the rows, as a model: filter, order, the one that is chosen.

#include <verifiche/verificatore.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

enum class OrdineVerifiche : std::uint8_t { Gravita, Riga, Codice, Testo };

class PannelloVerifiche {
public:
  explicit PannelloVerifiche(Ambiente& ambiente) : verificatore_(ambiente) {}

  // The windows count the rows from here.
  static constexpr std::size_t PrimaRiga = 1;
  // Of a finding as the list shows it; empty for the whole act.
  [[nodiscard]] static std::string NumeroRiga(const Segnalazione& s);

  // Brings the findings up to the rows as they are now. Whether they are others than before.
  bool Aggiorna();
  // Tables, archives and extract are read again with the next one.
  void Dimentica() { verificatore_.Dimentica(); }

  // Filter and order.
  void Mostra(Severita severita, bool si);
  [[nodiscard]] bool Mostrata(Severita severita) const { return mostrate_.at(static_cast<std::size_t>(severita)); }
  // In any case, in code, row or sentence.
  void Cerca(std::string_view testo);
  // By another column from the smallest on; by the same one the other way round.
  void Ordina(OrdineVerifiche ordine);

  // Grows when the list becomes another one.
  [[nodiscard]] unsigned long Versione() const { return versioneElenco_; }
  // What the list shows, from 0.
  [[nodiscard]] std::size_t Quante() const { return voci_.size(); }
  [[nodiscard]] const Segnalazione& Voce(std::size_t indice) const {
    return verificatore_.Segnalazioni()[voci_.at(indice)];
  }
  [[nodiscard]] std::optional<std::size_t> Scelta() const { return scelta_; }
  void Scegli(std::size_t indice);
  // The one behind the chosen one, or before it, round the end; with none chosen the first about a row behind the
  // current one. None in an empty list.
  [[nodiscard]] std::optional<std::size_t> Successiva(bool avanti, long rigaAttuale) const;
  // The mend of the chosen finding, or of the first about this row that has one.
  [[nodiscard]] std::optional<Segnalazione> ConRimedio(long rigaAttuale) const;

  // The worst of what is said of a row.
  [[nodiscard]] std::optional<Severita> SegnoDi(std::size_t riga) const;
  // The sentences about a row, one a line; empty for none.
  [[nodiscard]] std::string SpiegazioneDi(std::size_t riga) const;
  // "2 errori, 1 avviso, 5 note"; "Nessuna segnalazione".
  [[nodiscard]] std::string Riepilogo() const;
  // What is shown, a line each, tabs between its columns.
  [[nodiscard]] std::vector<std::string> Righe() const;

  [[nodiscard]] const Verificatore& Esito() const { return verificatore_; }

private:
  void Filtra();
  [[nodiscard]] bool Passa(const Segnalazione& segnalazione) const;

  Verificatore verificatore_;
  unsigned long versione_ = 0; // of the findings that voci_ is made from
  unsigned long versioneElenco_ = 0;
  std::array<bool, 3> mostrate_ = {true, true, true};
  std::string cercato_; // in capitals
  OrdineVerifiche ordine_ = OrdineVerifiche::Riga;
  bool discendente_ = false;
  std::vector<std::size_t> voci_; // indices of findings
  std::optional<std::size_t> scelta_;
};

} // namespace lirmeto
