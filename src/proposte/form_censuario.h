#pragma once
// What the forms that compose census rows have in common: the rows under composition, the memo, the row of buttons.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <proposte/verifica_censuario.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A button of an indexed row.
struct PulsanteForm {
  int indice;
  std::string_view icona; // name of its file, without extension
  std::string_view didascalia;
  std::string_view spiegazione;
};

class FormCensuario : public Modello {
public:
  std::string Titolo; // window caption
  ListaRighe List1;   // rows under composition: a whole section
  bool Chiusa = false;

  // Under which the window's place is kept.
  [[nodiscard]] virtual std::string_view NomeForm() const = 0;
  [[nodiscard]] virtual std::span<const PulsanteForm> Pulsanti() const = 0;
  // The finished rows.
  [[nodiscard]] virtual ElencoRighe& Memo() = 0;

  // A button; an index that is not there does nothing. Errors are reported here.
  void Premi(int indice);

  // What is to be told of the form as a whole, of List1, of the memo.
  [[nodiscard]] virtual std::vector<Segnalazione> Rilievi() const { return {}; }
  [[nodiscard]] std::vector<Segnalazione> RilieviList1() const;
  [[nodiscard]] std::vector<Segnalazione> RilieviMemo();

  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }

protected:
  explicit FormCensuario(Ambiente& ambiente) : ambiente_(ambiente) {}

  // What is not named here does nothing: close, copy and print are.
  virtual void Esegui(int indice);

  [[nodiscard]] Ambiente& LAmbiente() const { return ambiente_; }
  [[nodiscard]] Sessione& LaSessione() const { return ambiente_.sessione; }

private:
  void CopiaMemo();

  Ambiente& ambiente_;
};

// Indices that all forms share.
namespace pulsante {
inline constexpr int Chiudi = 0;
inline constexpr int Aggiungi = 1; // the memo to the Libretto
inline constexpr int Copia = 10;
inline constexpr int Stampa = 11;
} // namespace pulsante

} // namespace lirmeto
