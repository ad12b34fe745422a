#pragma once
// The header form over an open libretto, its window not shown.

#include "sostituti/banco.h"

#include <applicazione/finestra_principale.h>
#include <intestazione/catasto1_form.h>

#include <string>
#include <vector>

namespace lirmeto::prova {

inline const std::string ZeroDiOggi = "0|21112026|7|G224|0010|12,3|ROSSI MARIO|GEOMETRA|PADOVA|";
inline const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO";
inline const std::string Catasto = Programma + "\\Catasto1.txt";
inline const std::string CodiceGiusto = "RSSMRA85T10A562S";

struct Sportello : Banco {
  FormCatasto1TXT form{ambiente};
  explicit Sportello(const std::vector<std::string>& righe = {ZeroDiOggi, Nove}) {
    KR_LibrettoOriginale finestra(ambiente);
    disco.Metti("C:\\ACT.DAT", Testo(righe));
    finestra.Avvia("C:\\ACT.DAT");
    dialoghi.detti.clear();
  }
  void Apri() {
    form.AlCaricamento();
    form.Cambia(casella::CodiceFiscale, CodiceGiusto);
  }
  [[nodiscard]] std::string Casella(std::size_t indice) const { return form.Caselle()[indice]; }
};

} // namespace lirmeto::prova
