#pragma once
// A machine with some extracts in their folder, and what the manager's user does first.

#include "sostituti/banco.h"

#include <estratti/estratti_di_mappa.h>

#include <algorithm>
#include <string>
#include <vector>

namespace lirmeto::prova {

inline const std::string Cartella = "C:\\PREGEO\\ESTRATTI\\";
inline const std::string ZeroEstratto = "0|12062026|PD0041877/2026|G224|00123|35,36|PD|PUB|RSSMTN|1|";
inline const std::vector<std::string> Estratto = {ZeroEstratto,
                                                  "8|1%|0|0|",
                                                  "8|2%|10|0|",
                                                  "8|3%|10|10|",
                                                  "8|9%|77|7|",
                                                  "7|4|1%|2%|3%|1%|NC|35|35|50|",
                                                  "7|4|1%|3%|2%|1%|NC|36|36|50|",
                                                  "6|DITTA|1|ROSSI|2|X|",
                                                  "6|PARTICELLA|35/A|  |SEMINATIVO  |1|1| | |",
                                                  "6|DISTORSIONE|1.5|"};

struct Tavolo : Banco {
  Tavolo() {
    sessione.Comuni = {{"G224", "D3AA", "PD", "PADOVA"}};
    sessione.Province = {{"PD", "PADOVA"}};
    disco.cartelle.emplace_back("C:\\PREGEO\\TMP");
    for (const char* cartella : {"C:\\FIDUCIAL", "C:\\FIDUCIAL\\DITTA", "C:\\FIDUCIAL\\PARTICELLE", "C:\\DATI"})
      disco.cartelle.emplace_back(cartella);
    disco.Metti(Cartella + "A.EMP", Testo(Estratto));
    disco.Metti(Cartella + "A.PNG", "foto");
    disco.Metti(Cartella + "A.JPG", "foto j");
    disco.Metti(Cartella + "B.EMP", Testo({ZeroEstratto, "8|1%|0|0.0001|", "8|2%|50|50|"}));
    disco.Metti(Cartella + "C.SMP", Testo({ZeroEstratto}));
    disco.Metti(Cartella + "NOTE.TXT", "no");
    dialoghi.risposte = {Risposta::Si};
  }

  [[nodiscard]] std::string File(const std::string& nome) const { return disco.Contenuto(Cartella + nome); }
  [[nodiscard]] std::vector<std::string> Detti() const {
    std::vector<std::string> testi;
    for (const auto& detto : dialoghi.detti) testi.push_back(detto.titolo + "/" + detto.testo);
    return testi;
  }
};

inline void Scegli(KR_EstrattiDiMappa1& form, const std::string& nome) {
  const auto trovato = std::find(form.File1.begin(), form.File1.end(), nome);
  form.Seleziona(trovato == form.File1.end() ? -1 : trovato - form.File1.begin());
}

} // namespace lirmeto::prova
