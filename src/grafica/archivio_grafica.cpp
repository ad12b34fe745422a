#include <grafica/archivio_grafica.h>

#include <utility>

namespace lirmeto {

void ArchivioGrafica::Aggiungi(PuntoGrafica punto) {
  punti_.push_back(std::move(punto));
  primi_.Aggiungi(punti_);
  ++versione_;
}

void ArchivioGrafica::Aggiungi(const LineaGrafica& linea) {
  linee_.push_back(linea);
  ++versione_;
}

void ArchivioGrafica::AggiungiTra(std::string_view primo, std::string_view secondo, const PennaGrafica& penna) {
  const auto da = PrimoDiNome(primo);
  const auto a = PrimoDiNome(secondo);
  if (!da || !a) return;
  const PuntoGrafica& p = punti_[*da];
  const PuntoGrafica& q = punti_[*a];
  Aggiungi(LineaGrafica{p.X, p.Y, p.Z, q.X, q.Y, q.Z, penna.Spessore, penna.Colore, penna.Stile});
}

void ArchivioGrafica::Svuota() {
  punti_.clear();
  linee_.clear();
  primi_.Svuota();
  ++versione_;
  ++generazione_;
}

void ArchivioGrafica::Riserva(std::size_t punti, std::size_t linee) {
  punti_.reserve(punti);
  primi_.Riserva(punti_, punti);
  linee_.reserve(linee);
}

std::optional<std::size_t> ArchivioGrafica::PrimoDiNome(std::string_view nome) const {
  return primi_.Primo(punti_, nome);
}

} // namespace lirmeto
