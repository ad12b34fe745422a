#include <grafica/form_disegno.h>

#include <core/mostra_errore.h>

namespace lirmeto {

namespace {

constexpr std::string_view Filtro = "Disegni (*.emp *.EMP *.sur *.SUR *.csv *.CSV *.pdf *.PDF *.dat *.DAT *.txt *.TXT)"
                                    ";;Estratti di mappa (*.emp *.EMP);;Tutti i file (*)";

} // namespace

void FormDisegno::Sfoglia() {
  ambiente_.sessione.PuntoErrore = "Sfoglia";
  std::string percorso;
  const bool scelto = Intrappola(ambiente_, [&] {
    percorso = ambiente_.dialoghi.ScegliFileDaAprire(
        {"Apri disegno", ambiente_.sessione.RadicePregeo + "\\pregeo\\estratti", "", std::string(Filtro)});
  });
  if (scelto) (void)Apri(percorso);
}

bool FormDisegno::Apri(const std::string& percorso) {
  ambiente_.sessione.PuntoErrore = "CaricaDisegno";
  const bool letto = Intrappola(ambiente_, [&] { grafica_.CaricaDisegno(percorso); });
  if (letto) Titolo = "Disegno : " + percorso;
  return letto;
}

void FormDisegno::Ricarica() {
  if (!grafica_.Percorso.empty()) (void)Apri(std::string(grafica_.Percorso));
}

} // namespace lirmeto
