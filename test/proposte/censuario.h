#pragma once
// A machine with a quality table and the folders that the census forms write to.

#include "sostituti/banco.h"

#include <core/riga_censuaria.h>
#include <core/tabelle.h>
#include <proposte/file_particella.h>
#include <proposte/proposta_derivate.h>

namespace lirmeto::prova {

inline const std::string Temp = "C:\\users\\prova\\Documents\\LIRMETO\\temp\\";
inline const std::string Archivio = "C:\\FIDUCIAL\\PARTICELLE\\";

struct BancoCensuario : Banco {
  BancoCensuario() {
    disco.cartelle.insert(disco.cartelle.end(), {"C:\\FIDUCIAL", "C:\\FIDUCIAL\\PARTICELLE"});
    sessione.TabellaQualita = LeggiQualita("testata\r\nSEMINATIVO   001\r\nPRATO        005\r\nPRATO IRRIG  006\r\n"
                                           "RELIT ACQUE  271\r\nFABB RURALE  279\r\nENTE URBANO  282\r\n");
  }

  // A parcel as the workbench hands it over.
  [[nodiscard]] ParticellaScelta Particella(const std::string& riga, const std::string& modello = {}) const {
    return ScegliParticella(sessione, riga, modello);
  }
};

inline const std::string TestataCensuaria(censuario::Intestazione);
inline const std::string Bianchi57(57, ' ');
inline const std::string Cento = "6|PARTICELLA|35|01|SEMINATIVO  |100|100|1.00|2.00|SN|";

// Types each area and its keys, as a surveyor would.
inline void Batti(PropostaDerivate& form, const std::vector<std::string>& aree) {
  form.CambiaText1(std::to_string(aree.size()));
  for (const auto& area : aree) {
    form.CambiaText2(area.substr(0, area.find(':')));
    for (std::size_t i = area.find(':'); i != std::string::npos && ++i < area.size();)
      form.CambiaText2(form.Text2 + area[i]);
    form.Invio();
  }
}

inline std::string Conteggio(const std::string& sezione, const std::string& cifre) {
  return "6|" + sezione + "|" + cifre + "|" + Bianchi57 + "|";
}

} // namespace lirmeto::prova
