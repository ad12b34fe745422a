#pragma once
// The surveyors of the header form: their .PFS files.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class TecniciCatasto1 {
public:
  explicit TecniciCatasto1(Ambiente& ambiente) : ambiente_(ambiente) {}

  [[nodiscard]] const std::vector<std::string>& File() const { return file_; }
  // Place of the one chosen; npos when none is.
  [[nodiscard]] std::size_t Scelto() const { return scelto_; }
  void Scegli(std::size_t indice) { scelto_ = indice < file_.size() ? indice : std::string::npos; }

  // The files of the folder, none of them chosen.
  void Elenca();
  // The chosen one into the session. False, and told, when none is chosen.
  bool Carica();
  // The chosen one goes, if the user says so.
  void Elimina();

private:
  // Whether one is chosen; the user is told when not.
  [[nodiscard]] bool ESceltoPer(std::string_view titolo) const;

  Ambiente& ambiente_;
  std::vector<std::string> file_;
  std::size_t scelto_ = std::string::npos;
};

} // namespace lirmeto
