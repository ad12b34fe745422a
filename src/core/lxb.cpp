#include <core/lxb.h>

#include <core/libretto_in_classi.h>
#include <core/riga.h>

#include <utility>

namespace lirmeto {

namespace {

// Class of a replacement row; Nessuna when it is dropped.
ClasseRighe ClasseSostituta(std::string_view riga, Genere genere, Genere genereDopo) {
  if (genere == Genere::Stazione || genere == Genere::Battuta)
    return riga.find(',') != std::string_view::npos ? ClasseRighe::Gps : ClasseRighe::Stazioni;
  if (genere == Genere::Poligonale) return ClasseRighe::Poligonali;
  if (genere == Genere::Allineamento || genere == Genere::Squadro) return ClasseRighe::Allineate;
  if (genere == Genere::Contorno) return ClasseRighe::Contorni;
  if (genere == Genere::Libera && genereDopo == Genere::Contorno) return ClasseRighe::Contorni;
  if (genere == Genere::Libera && genereDopo == Genere::Battuta) return ClasseRighe::Gps;
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
    const Genere dopo = i + 1 < righe.size() ? GenereDi(righe[i + 1]) : Genere::Altro;
    classi[ClasseSostituta(righe[i], GenereDi(righe[i]), dopo)].Aggiungi(righe[i]);
  }
  if (!classi[ClasseRighe::Nessuna].empty()) ambiente.sessione.RigheScartate = classi[ClasseRighe::Nessuna].Compatta();
  RicomponiLibretto(ambiente, std::move(classi));
}

} // namespace lirmeto
