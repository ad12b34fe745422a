// What the main window says of the last command, and the rows that stay chosen when it is over.

#include <applicazione/finestra_principale.h>

#include <applicazione/tipologie.h>
#include <core/salvataggio.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

constexpr std::array PerLeRighe = {
    Comando::TagliaRighe,
    Comando::IncollaRighe,
    Comando::EliminaRighe,
    Comando::ModificaDiretta,
    Comando::RelazioneTecnica,
    Comando::Intestazione,
    Comando::MostraRiordino,
    Comando::RiordinoRighe,
    Comando::IncollaDaAppunti,
    Comando::EliminaVrs,
    Comando::AssegnaVrs,
    Comando::Righe8DaExcel,
    Comando::Righe8NomeAutoDaExcel,
    Comando::RigheCompleteDaExcel,
    Comando::DaElaborazionePregeo,
    Comando::ModelloCensuario,
    Comando::ImportaFiduciali,
    Comando::ImportaFiducialiEstratto,
    Comando::AssegnaDescrizione,
    Comando::DaPregeo,
    Comando::QuotaMedia,
};

std::string Frase(const Storia::Differenza& quante) {
  if (quante.nuove > quante.vecchie) return FattoARighe("aggiunt", quante.nuove - quante.vecchie);
  if (quante.nuove < quante.vecchie) return FattoARighe("tolt", quante.vecchie - quante.nuove);
  return FattoARighe("cambiat", quante.diverse);
}

// How many more rows there are, or fewer, or else how many are others.
Storia::Differenza Confronta(const ListaRighe& vecchie, const ListaRighe& nuove) {
  Storia::Differenza differenza{0, nuove.size(), vecchie.size(), 0};
  for (std::size_t i = 0; vecchie.size() == nuove.size() && i < nuove.size(); ++i)
    differenza.diverse += vecchie[i] == nuove[i] ? 0U : 1U;
  return differenza;
}

} // namespace

// A command that told its own outcome has the last word. Many put the rows in order first, as a save does: that is told
// beside what they are there for.
void KR_LibrettoOriginale::DiciCambiamento(std::string_view nome, const ElencoRighe& prima) {
  if (!Esito.empty()) return;
  const ElencoRighe& elenco = ambiente_.sessione.List1;
  const Storia::Differenza quante = storia_.Ultima(ambiente_.sessione);
  if (quante.nuove > quante.vecchie) PrimaNuova = quante.inizio;
  Esito = std::string(nome) + ": ";
  const std::string sistemate = AvvisoSistemate(elenco).empty() ? AvvisoSistemate(prima) : std::string();
  if (sistemate.empty()) return static_cast<void>(Esito += Frase(quante));
  const Storia::Differenza altre = Confronta(Sistemato(prima).Righe(), elenco.Righe());
  Esito += altre.nuove == altre.vecchie && altre.diverse == 0 ? sistemate : Frase(altre) + "; " + sistemate;
}

// A command that is there to change rows and changed none does not leave the user in doubt.
void KR_LibrettoOriginale::DiciSeNulla(Comando comando) {
  if (comando == Comando::CopiaRighe) return DiciCopia();
  const bool suo = TrovaTipologia(comando) != nullptr ||
                   std::find(PerLeRighe.begin(), PerLeRighe.end(), comando) != PerLeRighe.end();
  if (suo && Esito.empty()) Esito = std::string(DidascaliaDi(comando)) + ": nessuna riga cambiata";
}

// The selected rows, else the current one.
void KR_LibrettoOriginale::DiciCopia() {
  const ElencoRighe& elenco = ambiente_.sessione.List1;
  const std::size_t scelte = elenco.QuanteSelezionate();
  Esito = std::string(DidascaliaDi(Comando::CopiaRighe)) + ": " +
          FattoARighe("copiat", scelte == 0 && elenco.Indice() >= 0 ? 1 : scelte);
}

void KR_LibrettoOriginale::DiciSelezione(Comando comando) {
  Righe_Indice();
  Esito = std::string(DidascaliaDi(comando)) + ": " +
          FattoARighe("selezionat", ambiente_.sessione.List1.QuanteSelezionate());
}

KR_LibrettoOriginale::Scelta KR_LibrettoOriginale::SceltaAttuale() const {
  const ElencoRighe& elenco = ambiente_.sessione.List1;
  Scelta scelta{{}, elenco.Indice(), elenco.Versione(), ambiente_.sessione.NomeFileLibretto};
  for (std::size_t i = 0; i < elenco.Quante(); ++i)
    if (elenco.Selezionata(i)) scelta.selezionate.push_back(i);
  return scelta;
}

// A list that was only filled again has the selection it had; where rows changed the row under the cursor stays chosen,
// at the place that it has now.
void KR_LibrettoOriginale::RimettiScelta(const Scelta& prima, bool cambiate) {
  ElencoRighe& elenco = ambiente_.sessione.List1;
  const bool perduta =
      elenco.Versione() != prima.versione && elenco.Indice() < 0 && prima.file == ambiente_.sessione.NomeFileLibretto;
  if (!perduta || elenco.QuanteSelezionate() > 0) return;
  if (!cambiate) {
    for (const std::size_t riga : prima.selezionate)
      if (riga < elenco.Quante()) elenco.Seleziona(riga, true);
    if (prima.indice < static_cast<long>(elenco.Quante())) elenco.Indice(prima.indice);
    return;
  }
  if (prima.indice < 0 || elenco.Vuoto()) return;
  const Storia::Differenza quante = storia_.Ultima(ambiente_.sessione);
  long riga = prima.indice;
  if (riga >= static_cast<long>(quante.inizio + quante.vecchie))
    riga += static_cast<long>(quante.nuove) - static_cast<long>(quante.vecchie);
  riga = std::clamp(riga, 0L, static_cast<long>(elenco.Quante()) - 1);
  elenco.Seleziona(static_cast<std::size_t>(riga), true);
  elenco.Indice(riga);
}

} // namespace lirmeto
