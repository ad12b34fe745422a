#include <core/lxb.h>

#include <core/riga.h>
#include <core/riordino.h>

namespace lirmeto {

namespace {

// List of a replacement row; nullptr when it is dropped.
ListaRighe* ListaPer(FormRiordinoRighe& classi, std::string_view riga, double genere, double genereDopo) {
  if (genere == 1 || genere == 2) return riga.find(',') != std::string_view::npos ? &classi.List13 : &classi.List1;
  if (genere == 3) return &classi.List3;
  if (genere == 4 || genere == 5) return &classi.List4;
  if (genere == 7) return &classi.List7;
  if (genere == 6 && genereDopo == 7) return &classi.List7;
  if (genere == 6 && genereDopo == 2) return &classi.List13;
  return nullptr;
}

} // namespace

void UnisciLxb(Ambiente& ambiente, std::string_view sostitute) {
  FormRiordinoRighe classi(ambiente);
  classi.EsplodiLibretto();
  for (ListaRighe* lista : {&classi.List1, &classi.List3, &classi.List4, &classi.List7, &classi.List13}) lista->clear();
  const auto righe = RigheDi(sostitute);
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const double dopo = i + 1 < righe.size() ? GenereRiga(righe[i + 1]) : 0;
    if (ListaRighe* lista = ListaPer(classi, righe[i], GenereRiga(righe[i]), dopo)) lista->Aggiungi(righe[i]);
  }
  classi.RicomponiLibretto();
}

} // namespace lirmeto
