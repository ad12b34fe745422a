#pragma once
// The main window over a machine that holds one small act.

#include "sostituti/banco.h"

#include <applicazione/finestra_principale.h>

#include <string>
#include <vector>

namespace lirmeto::prova {

inline const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO";

struct Sala : Banco {
  KR_LibrettoOriginale finestra{ambiente};
  Sala() {
    disco.Metti("C:\\ACT.DAT",
                Testo({Zero, Nove, "6|commento|", "1|1|1.5|N|", "2|2|1|2|3|1|N|", "8|PF01/0010/G224|1|2|3|x|"}));
  }
  // Everything that undo must give back.
  [[nodiscard]] std::vector<std::string> Foto() const {
    std::vector<std::string> foto = Righe();
    for (const auto& valore : {sessione.Libretto, sessione.Ditta, finestra.CasellaDitta, sessione.NomeFileLibretto,
                               sessione.EstrattoAssociato, sessione.RigaZero, sessione.Protocollo})
      foto.push_back(valore);
    return foto;
  }
  [[nodiscard]] std::string Domanda() const { return dialoghi.detti.back().titolo + "/" + dialoghi.UltimoTesto(); }
};

} // namespace lirmeto::prova
