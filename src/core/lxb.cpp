#include <core/lxb.h>

#include <core/libretto_in_classi.h>
#include <core/riga.h>

#include <utility>

namespace lirmeto {

namespace {

// Class of a replacement row; Nessuna when it is dropped.
ClasseRighe ClasseSostituta(std::string_view riga, double genere, double genereDopo) {
  if (genere == 1 || genere == 2)
    return riga.find(',') != std::string_view::npos ? ClasseRighe::Gps : ClasseRighe::Stazioni;
  if (genere == 3) return ClasseRighe::Poligonali;
  if (genere == 4 || genere == 5) return ClasseRighe::Allineate;
  if (genere == 7) return ClasseRighe::Contorni;
  if (genere == 6 && genereDopo == 7) return ClasseRighe::Contorni;
  if (genere == 6 && genereDopo == 2) return ClasseRighe::Gps;
  return ClasseRighe::Nessuna;
}

} // namespace

void UnisciLxb(Ambiente& ambiente, std::string_view sostitute) {
  RigheInClassi classi = EsplodiLibretto(ambiente);
  for (const ClasseRighe classe : {ClasseRighe::Stazioni, ClasseRighe::Poligonali, ClasseRighe::Allineate,
                                   ClasseRighe::Contorni, ClasseRighe::Gps})
    classi[classe].clear();
  const auto righe = RigheDi(sostitute);
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const double dopo = i + 1 < righe.size() ? GenereRiga(righe[i + 1]) : 0;
    classi[ClasseSostituta(righe[i], GenereRiga(righe[i]), dopo)].Aggiungi(righe[i]);
  }
  RicomponiLibretto(ambiente, std::move(classi));
}

} // namespace lirmeto
