#include <cli/comandi.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <fiduciali/misurate_pf.h>
#include <fiduciali/taf.h>
#include <generazione/misurate_disegno.h>

#include <array>

namespace lirmeto {

namespace {

// Arguments: file, "--disegno" or nothing. What ends it without a report has been said: no error is told beside it.
std::string ComandoMisurate(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  const bool disegno = !argomenti[1].empty();
  if (disegno)
    ambiente.sessione.NomeFileLibretto = argomenti[0];
  else
    ApriLibretto(ambiente, argomenti[0]);
  const auto relazione = disegno ? MisurateDelDisegno(ambiente) : MisurateDelLibretto(ambiente);
  if (!relazione) throw Errore(errore::DialogoAnnullato);
  return *relazione;
}

std::string ComandoPf(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  const auto trovato = CercaPFinTAF(ambiente, argomenti[0]);
  if (!trovato) throw Errore(errore::ArgomentoNonValido, "Punto fiduciale non trovato: \"" + argomenti[0] + "\"");
  return AUtf8("north=" + trovato->nord + "\neast=" + trovato->est + "\n");
}

constexpr ArgomentoCli ArgomentiMisurate[] = {
    {"FILE", GenereArgomento::File, "libretto, o disegno .LXC"},
    {"--disegno", GenereArgomento::Bandiera, "FILE è un disegno: le distanze sono quelle fra i suoi punti"}};
constexpr ArgomentoCli ArgomentiPf[] = {{"NOME", GenereArgomento::Testo, "come PF01/0010/G224"}};

constexpr std::array<ComandoCli, 1> Misurate = {{
    {"misurate", "le distanze fra i punti fiduciali a confronto con gli archivi", ArgomentiMisurate, ComandoMisurate},
}};

constexpr ComandoCli UnPunto = {"", "le coordinate di un punto fiduciale", ArgomentiPf, ComandoPf};

} // namespace

FamigliaCli ComandiMisurate() {
  return {"", "", Misurate};
}

FamigliaCli ComandiPf() {
  return {"pf", "le coordinate di un punto fiduciale, o tutti quelli di un comune", {}, &UnPunto};
}

} // namespace lirmeto
