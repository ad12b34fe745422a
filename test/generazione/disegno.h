#pragma once
// A drawing on the disk in memory and the form over it.

#include <sostituti/banco.h>

#include <generazione/libretto_da_disegno.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace lirmeto::prova {

// The rows 0 and 9 of every libretto here.
inline const std::vector<std::string> Testata = {"0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|",
                                                 "9|20||||V|TM||"};

struct Disegno : Banco {
  DisegnoCondiviso condiviso;

  // Rows of the libretto made from the lines of a drawing, "P,100,0,0,10,CHIODO,1.5", under options "CHIAVE=VALORE".
  std::vector<std::string> Genera(const std::vector<std::string>& linee, const std::vector<std::string>& opzioni = {},
                                  const std::vector<std::string>& vecchie = {}) {
    std::vector<std::string> righe = Testata;
    righe.insert(righe.end(), vecchie.begin(), vecchie.end());
    Apri(Testo(righe), "C:\\RILIEVO.LXC");
    disco.Metti("C:\\RILIEVO.LXC", Testo(linee));
    sessione.VersionePregeo = "VERSIONE";
    LibrettoDaDisegno form(ambiente, condiviso);
    form.Form_Load();
    for (const std::string& opzione : opzioni) {
      const auto uguale = opzione.find('=');
      EXPECT_TRUE(form.Imposta(opzione.substr(0, uguale), opzione.substr(uguale + 1))) << opzione;
    }
    form.ButtonPlus1_0();
    finita = form.FineProgramma;
    rapporto = form.List6;
    form.Form_Unload();
    return Righe();
  }

  bool finita = false;
  std::vector<std::string> rapporto;
};

// Rows 0 and 9 are left out.
inline std::vector<std::string> Corpo(std::vector<std::string> righe) {
  righe.erase(righe.begin(), righe.begin() + 2);
  return righe;
}

} // namespace lirmeto::prova
