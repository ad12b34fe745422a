#include <fiduciali/tabella_pf.h>

#include <base/avanzamento.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

std::string PercorsoTafDelComune(const Sessione& sessione, std::string_view comune) {
  constexpr std::size_t codice = 4;
  return PercorsoTaf(sessione, comune.substr(0, codice));
}

void CaricaPunti(Ambiente& ambiente, TabellaPF& tabella) {
  tabella.punti.clear();
  const std::string percorso = PercorsoTafDelComune(ambiente.sessione, tabella.comune);
  if (percorso.empty() || !ambiente.disco.Esiste(percorso)) return;
  const std::string testo = CaricaFileIntero(ambiente, percorso);
  const auto righe = RigheDi(testo);
  Avanzamento avanzamento(ambiente.dialoghi, "Lettura dei punti fiduciali", righe.size());
  tabella.punti.reserve(righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    if (!Taglia(righe[i]).empty()) tabella.punti.push_back(DecodificaRigaTAF(righe[i]));
  }
}

std::string RigaConTab(const RecordTaf& punto, std::size_t colonne) {
  std::string riga;
  for (std::size_t i = 0; i < colonne; ++i) {
    if (i > 0) riga += '\t';
    std::string cella = punto.*ColonnePF[i].cella;
    std::replace(cella.begin(), cella.end(), '\t', ' ');
    riga += Taglia(cella);
  }
  return riga;
}

std::string TestoTabella(const TabellaPF& tabella) {
  std::string testo;
  for (const RecordTaf& punto : tabella.punti) testo.append(RigaConTab(punto)).append(FineRiga);
  return testo;
}

} // namespace lirmeto
