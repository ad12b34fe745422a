#include <cli/comandi.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <fiduciali/elco_pf_file.h>
#include <fiduciali/misurate.h>
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

// The points of a comune by its code; without a TAF there are none to show.
TabellaPF Tabella(Ambiente& ambiente, const std::string& comune) {
  constexpr std::size_t provincia = 2; // letters in front of the name of its archive
  const std::string codice = Maiuscolo(Taglia(comune));
  const std::string percorso = PercorsoTafDelComune(ambiente.sessione, codice);
  if (percorso.empty() || !ambiente.disco.Esiste(percorso))
    throw Errore(errore::FileNonTrovato, "Manca la TAF del comune \"" + comune + "\"");
  TabellaPF tabella{codice, codice, TrovaArchivioMisurate(ambiente, codice).substr(0, provincia), {}};
  CaricaPunti(ambiente, tabella);
  return tabella;
}

std::string ComandoPfElenco(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return TestoTabella(Tabella(ambiente, argomenti[0]));
}

// With the distances measured, where the archive of the province is there.
std::string ComandoPfDxf(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  constexpr int misurate = 6;
  const TabellaPF tabella = Tabella(ambiente, argomenti[0]);
  KR_ElcoPFGrafica form(ambiente, tabella);
  form.AlCaricamento();
  form.Esegui(misurate);
  return TestoDxfPF(form.Punti, form.Segmenti);
}

constexpr ArgomentoCli ArgomentiMisurate[] = {
    {"FILE", GenereArgomento::File, "libretto, o disegno .LXC"},
    {"--disegno", GenereArgomento::Bandiera, "FILE è un disegno: le distanze sono quelle fra i suoi punti"}};
constexpr ArgomentoCli ArgomentiPf[] = {{"NOME", GenereArgomento::Testo, "come PF01/0010/G224"}};

constexpr std::array<ComandoCli, 1> Misurate = {{
    {"misurate", "le distanze fra i punti fiduciali a confronto con gli archivi", ArgomentiMisurate, ComandoMisurate},
}};

constexpr ArgomentoCli UnComune[] = {{"COMUNE", GenereArgomento::Testo, "codice del comune, come G224"}};

constexpr std::array<ComandoCli, 2> DelComune = {{
    {"elenco", "la tabella dei punti di un comune, una riga per punto", UnComune, ComandoPfElenco},
    {"dxf", "i punti di un comune e le distanze misurate come DXF", UnComune, ComandoPfDxf},
}};

constexpr ComandoCli UnPunto = {"", "le coordinate di un punto fiduciale", ArgomentiPf, ComandoPf};

} // namespace

FamigliaCli ComandiMisurate() {
  return {"", "", Misurate};
}

FamigliaCli ComandiPf() {
  return {"pf", "le coordinate di un punto fiduciale, o tutti quelli di un comune", DelComune, &UnPunto};
}

} // namespace lirmeto
