#pragma once
// Lists of rows that do not copy them.

#include <base/errore.h>

#include <deque>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A text that several lists of rows share.
using TestoCondiviso = std::shared_ptr<const std::string>;

// Rows in order, as views into texts that the list keeps alive: the million rows of a libretto cost one text and not a
// million strings, and a copy of the list shares its texts. A changed row gets a text of its own. Indices count from 0;
// one that does not exist is error 9.
class ListaRighe {
public:
  using value_type = std::string_view;
  using const_iterator = std::vector<std::string_view>::const_iterator;

  ListaRighe() = default;
  ListaRighe(std::initializer_list<std::string_view> righe);

  [[nodiscard]] std::size_t size() const { return righe_.size(); }
  [[nodiscard]] bool empty() const { return righe_.empty(); }
  [[nodiscard]] const_iterator begin() const { return righe_.begin(); }
  [[nodiscard]] const_iterator end() const { return righe_.end(); }
  [[nodiscard]] std::string_view operator[](std::size_t indice) const { return righe_[Controlla(indice)]; }
  [[nodiscard]] std::string_view back() const { return righe_[Controlla(righe_.size() - 1)]; }

  void clear();

  // Keeps the text alive, so that rows of it may be added.
  void Tieni(TestoCondiviso testo) { testi_.push_back(std::move(testo)); }
  // Room for so many rows.
  void Riserva(std::size_t righe) { righe_.reserve(righe); }
  // A row of a text that the list keeps.
  void AggiungiVista(std::string_view riga) { righe_.push_back(riga); }
  void AggiungiViste(std::span<const std::string_view> righe);
  // A row of any other text, which is copied.
  void Aggiungi(std::string_view riga) { righe_.push_back(Copiata(riga)); }

  void Inserisci(std::size_t indice, std::string_view riga);
  void Cambia(std::size_t indice, std::string_view riga) { righe_[Controlla(indice)] = Copiata(riga); }
  // A row of a text that the list keeps in place of another.
  void CambiaVista(std::size_t indice, std::string_view riga) { righe_[Controlla(indice)] = riga; }
  void Togli(std::size_t indice);
  // The rows at these places go, which stand in order.
  void TogliPosti(std::span<const std::size_t> posti);
  // The rows go that the predicate is true for. It sees each once, in order.
  template <typename Predicato>
  void TogliSe(Predicato via) {
    std::size_t restano = 0;
    for (const auto riga : righe_)
      if (!via(riga)) righe_[restano++] = riga;
    righe_.resize(restano);
  }
  // Rows of texts that the list keeps in place of so many others.
  void CambiaTratto(std::size_t inizio, std::size_t quante, std::span<const std::string_view> righe);

  // Number of a row, from 1, in the file that it was read from; in the list where it has no line of a file.
  [[nodiscard]] std::size_t NumeroDiRiga(std::size_t indice) const;

  // A list of the same rows that keeps them alone and not the whole texts they were found in.
  [[nodiscard]] ListaRighe Compatta() const;

  // The same rows in the same order, whatever texts they lie in.
  [[nodiscard]] bool operator==(const ListaRighe& altra) const { return righe_ == altra.righe_; }

private:
  [[nodiscard]] std::size_t Controlla(std::size_t indice) const;
  [[nodiscard]] std::string_view Copiata(std::string_view riga);

  std::vector<std::string_view> righe_;
  std::vector<TestoCondiviso> testi_;
  std::shared_ptr<std::deque<std::string>>
      copie_; // blocks of single rows; they only ever grow, so that views into them stay
};

} // namespace lirmeto
