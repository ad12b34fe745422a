#include <cli/comandi.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/salvataggio.h>
#include <generazione/libretto_da_disegno.h>

#include <array>

namespace lirmeto {

namespace {

// "CHIAVE=VALORE" into the form.
void Imposta(LibrettoDaDisegno& form, std::string_view opzione) {
  const std::size_t uguale = opzione.find('=');
  const bool fatto =
      uguale != std::string_view::npos && form.Imposta(Taglia(opzione.substr(0, uguale)), opzione.substr(uguale + 1));
  if (!fatto)
    throw Errore(errore::ArgomentoNonValido,
                 "Opzione sconosciuta o valore non valido: \"" + std::string(opzione) + "\"");
}

// The old libretto, or rows 0 and 9 by default.
void ApriPrecedente(Ambiente& ambiente, const std::string& libretto) {
  if (!libretto.empty()) ApriLibretto(ambiente, libretto);
  CaricaLibrettoInList1(ambiente);
}

// The session file of the libretto made from a drawing. Arguments: drawing, old libretto or nothing, options.
std::string ComandoGenera(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriPrecedente(ambiente, argomenti[1]);
  ambiente.sessione.NomeFileLibretto = argomenti[0];
  DisegnoCondiviso disegno;
  LibrettoDaDisegno form(ambiente, disegno);
  form.Form_Load();
  for (std::size_t i = 2; i < argomenti.size(); ++i) Imposta(form, argomenti[i]);
  if (!form.GeneraLibrettoMisureAutomatico())
    throw Errore(errore::ArgomentoNonValido, "Nessuna modalit\xE0 di orientamento scelta");
  RendiScrivibili(ambiente);
  return TestoDaSalvare(std::move(ambiente.sessione.Libretto), ambiente.sessione);
}

constexpr ArgomentoCli ArgomentiGenera[] = {
    {"DISEGNO", GenereArgomento::File, "disegno .LXC"},
    {"--libretto", GenereArgomento::FileFacoltativo, "libretto di partenza; senza: le righe 0 e 9 predefinite"},
    {"--opzione", GenereArgomento::AltriTesti, "CHIAVE=VALORE; ripetibile"}};

constexpr std::array<ComandoCli, 1> Comandi = {{
    {"genera", "il libretto da un disegno", ArgomentiGenera, ComandoGenera},
}};

} // namespace

FamigliaCli ComandiGenerazione() {
  return {"", "", Comandi};
}

} // namespace lirmeto
