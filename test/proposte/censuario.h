#pragma once
// A machine with a quality table and the folders that the census forms write to.

#include "sostituti/banco.h"

#include <core/riga_censuaria.h>
#include <core/tabelle.h>
#include <proposte/file_particella.h>

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

} // namespace lirmeto::prova
