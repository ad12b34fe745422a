#include <generazione/seleziona_mappali.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <estratti/kr_estratto.h>
#include <generazione/tipologia.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t CampoEstMedio = 4; // of row 9
constexpr std::size_t CampoNome = 2;     // of a parcel's row

// Rows that hold a text, as one text.
std::string RigheCon(const std::vector<std::string>& righe, std::string_view testo) {
  std::string trovate;
  for (const std::string& riga : righe)
    if (Contiene(riga, testo)) trovate.append(riga).append(FineRiga);
  return trovate;
}

} // namespace

void SelezionaMappali::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  ambiente_.sessione.PuntoErrore = "SelezionaMappali";
  (void)Intrappola(ambiente_, [&] { Carica(); });
}

void SelezionaMappali::Carica() {
  const Sessione& sessione = ambiente_.sessione;
  Titolo = "Seleziona Mappali - " + sessione.EstrattoAssociato;
  Text1 = sessione.EstMedio;
  const std::string file = CaricaFileIntero(ambiente_, PercorsoEstratto(sessione, sessione.EstrattoAssociato));
  for (const auto riga : RigheDi(file)) {
    std::string alta = Maiuscolo(riga);
    if (Contiene(alta, "6|PARTICELLA|") && MappaleAmmesso(sessione.TipologiaCorrente, alta))
      List1.push_back(std::move(alta));
  }
  SelezionaNessuno();
  KR_Estratto estratto;
  if (EsplodiEstratto(ambiente_, estratto, sessione.EstrattoAssociato)) Text2 = sessione.EstrattoEstMedio;
}

void SelezionaMappali::Seleziona(std::size_t indice, bool si) {
  if (indice < Selezionati.size()) Selezionati[indice] = si;
}

void SelezionaMappali::CambiaText1(std::string_view testo) {
  Text1 = testo;
  (void)Intrappola(ambiente_,
                   [&] { CambiaCampoNove(ambiente_, CampoEstMedio, Formatta(Valore(testo), "###########0")); });
}

void SelezionaMappali::Conferma() {
  if (Check1) SelezionaTutti();
  std::vector<std::string> scelte;
  for (std::size_t i = 0; i < List1.size(); ++i)
    if (Selezionati[i]) scelte.push_back(List1[i]);
  if (scelte.empty()) return;
  Sessione& sessione = ambiente_.sessione;
  std::vector<std::string_view> nomi;
  nomi.reserve(scelte.size());
  for (const std::string& riga : scelte) nomi.push_back(Parte(riga, '|', CampoNome));
  sessione.ParticelleScelte = Unisci(nomi, ",");
  sessione.RigheParticelleScelte = RigheUnite(scelte);
  sessione.RigheEnteUrbano = RigheCon(scelte, "ENTE URBANO");
  sessione.RigheFabbRurale = RigheCon(scelte, "FABB RURALE");
  if (TroppiMappali(scelte.size())) return;
  sessione.EsitoForm = EsitoConfermato;
  Chiusa = true;
}

bool SelezionaMappali::TroppiMappali(std::size_t quanti) const {
  const std::string& codice = ambiente_.sessione.TipologiaCorrente;
  if (quanti < 2) return false;
  if (codice == "22") {
    ambiente_.dialoghi.Messaggio("Questa versione di Lirmeto prevede un solo mappale.");
    return true;
  }
  const bool unoSolo = Contiene(ambiente_.sessione.VersionePregeo, "Stda") && codice != "43" && codice != "06";
  if (unoSolo) ambiente_.dialoghi.Messaggio("Questa versione di Pregeo prevede un solo mappale.");
  return unoSolo;
}

} // namespace lirmeto
