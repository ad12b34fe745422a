#include <verifiche/atto.h>

#include <base/testo.h>
#include <core/riga_censuaria.h>
#include <proposte/verifica_censuario.h>

namespace lirmeto {

// The originals are looked up in the extract here; all else the forms that compose the rows ask too.
void VerificaCensuario(const Atto& atto, Raccolta& raccolta) {
  const auto& estratto = atto.intorno.estratto;
  std::vector<RigaInLista> righe;
  for (std::size_t i = 0; i < atto.righe.Quante(); ++i) {
    if (atto.righe[i].forma != FormaRiga::Censuario || atto.righe[i].sezione != SezioneAtto::Misure) continue;
    const std::string_view riga = atto.righe.Testo(i);
    righe.push_back({i, riga});
    const std::string_view nome = Taglia(LeggiCampo(riga, censuario::Particella));
    if (RigaCensuaria(riga) && riga.starts_with("6|O|") && estratto && estratto->intestato &&
        !estratto->HaParticella(nome))
      raccolta.Riga(RegolaDi("M009"), i, censuario::Particella.indice, {nome});
  }
  static const std::vector<std::string> nessuna;
  VerificaBloccoCensuario(righe, atto.intorno.qualita == nullptr ? nessuna : *atto.intorno.qualita, raccolta);
}

} // namespace lirmeto
