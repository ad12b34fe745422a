#include <generazione/opzioni_libretto.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <optional>

namespace lirmeto {

namespace {

constexpr std::string_view ChiaveDislivello = "PUNTO_PLA_DISLIVELLO";
constexpr std::string_view ChiavePrecisione = "PRECISIONE_ANGOLARE";

using O = OpzioniLibretto;

constexpr std::array<VoceOpzione, 17> Voci = {{
    {"MANTIENI_RIGHE4", "Mantieni Righe 4-5 del Libretto", &O::MantieniRighe4, "", false},
    {"MANTIENI_3_7", "Mantieni Poligonali e Contorni [3 - 7] del Libretto", &O::Mantieni37, "", false},
    {"MANTIENI_8", "Mantieni Righe 8 del Libretto", &O::Mantieni8, "", false},
    {"PUNTO_PLANIMETRICO",
     "Considera Planimetrici i Punti con un Dislivello Max dalla Stazione di mm:", &O::PuntoPlanimetrico, "", false},
    {"MOSTRA_REPORT", "Genera Report", &O::MostraReport, "", false},
    {"COMMENTI_DUPLICATI", "Elimina Commenti Duplicati nelle Righe7", &O::CommentiDuplicati, "", false},
    {"ORIENTA_AZIMUT", "Calcola Tutti Azimut", &O::OrientaAzimut, "Orientamento", true},
    {"ORIENTA_PRECEDENTE", "Azzera su Stazione Precedente", &O::OrientaPrecedente, "Orientamento", true},
    {"ORIENTA_LIBRETTO", "Orienta come da Libretto M. Esistente", &O::OrientaLibretto, "Orientamento", true},
    {"INCREMENTO_CENTESIMALE", "Staz. Incremento 100 .. 1000 - 1100 - ..", &O::IncrementoCentesimale, "Stazioni", true},
    {"INCREMENTO_MILLESIMALE", "Staz. Incremento 1000 - 2000 - ...", &O::IncrementoMillesimale, "Stazioni", true},
    {"METTI_CS", "Metti CS su Note Punti Consecutive Duplicate", &O::MettiCs, "", false},
    {"ELIMINA_PUNTI_NOTE", "Elimina punti da Descrizioni Punti", &O::EliminaPuntiNote, "", false},
    {"PF_DA_ESTRATTO", "Carica Righe 8 PF da TAF", &O::PfDaEstratto, "", false},
    {"MANTIENI_GPS", "Mantieni solo Punti GPS presenti nel Disegno", &O::MantieniGps, "", false},
    {"NOTE_MANCANTI", "Avvisa Note Mancanti", &O::NoteMancanti, "", false},
    {"RIORDINO_FITTIZIO", "Riordina Righe", &O::RiordinoFittizio, "", false},
}};

std::optional<bool> Logico(std::string_view testo) {
  if (ENumero(testo)) return Valore(testo) != 0;
  if (UgualiSenzaCaso(Taglia(testo), "True")) return true;
  if (UgualiSenzaCaso(Taglia(testo), "False")) return false;
  return std::nullopt;
}

std::string TestoLogico(const VoceOpzione& voce, bool valore) {
  if (voce.logico) return valore ? "True" : "False";
  return valore ? "1" : "0";
}

bool ImpostaVoce(OpzioniLibretto& opzioni, const VoceOpzione& voce, std::string_view testo) {
  const auto valore = Logico(testo);
  if (!valore) return false;
  if (*valore && !voce.gruppo.empty())
    for (const VoceOpzione& altra : Voci)
      if (altra.gruppo == voce.gruppo) opzioni.*altra.valore = false;
  opzioni.*voce.valore = *valore;
  return true;
}

bool ImpostaPrecisione(OpzioniLibretto& opzioni, std::string_view testo) {
  const double indice = Valore(testo);
  if (!ENumero(testo) || indice < 0 || indice >= static_cast<double>(PassiAngolari.size())) return false;
  opzioni.PrecisioneAngolare = static_cast<int>(indice);
  return true;
}

} // namespace

std::span<const VoceOpzione> VociOpzione() {
  return Voci;
}

bool ImpostaOpzione(OpzioniLibretto& opzioni, std::string_view chiave, std::string_view valore) {
  if (UgualiSenzaCaso(chiave, ChiavePrecisione)) return ImpostaPrecisione(opzioni, valore);
  if (UgualiSenzaCaso(chiave, ChiaveDislivello)) {
    opzioni.Dislivello = valore;
    return true;
  }
  for (const VoceOpzione& voce : Voci)
    if (UgualiSenzaCaso(chiave, voce.chiave)) return ImpostaVoce(opzioni, voce, valore);
  return false;
}

// Settings that nobody can read leave the default. Those of a group are taken as they were kept: none may be chosen.
OpzioniLibretto LeggiOpzioni(const Impostazioni& impostazioni) {
  OpzioniLibretto opzioni;
  const auto leggi = [&](std::string_view chiave, const std::string& predefinito) {
    return impostazioni.Leggi(SezioneLibrettoAutomatico, chiave, predefinito);
  };
  for (const VoceOpzione& voce : Voci)
    opzioni.*voce.valore =
        Logico(leggi(voce.chiave, TestoLogico(voce, opzioni.*voce.valore))).value_or(opzioni.*voce.valore);
  opzioni.Dislivello = leggi(ChiaveDislivello, opzioni.Dislivello);
  ImpostaPrecisione(opzioni, leggi(ChiavePrecisione, TestoIntero(opzioni.PrecisioneAngolare)));
  return opzioni;
}

void ScriviOpzioni(const OpzioniLibretto& opzioni, Impostazioni& impostazioni) {
  for (const VoceOpzione& voce : Voci)
    impostazioni.Scrivi(SezioneLibrettoAutomatico, voce.chiave, TestoLogico(voce, opzioni.*voce.valore));
  impostazioni.Scrivi(SezioneLibrettoAutomatico, ChiaveDislivello, opzioni.Dislivello);
  impostazioni.Scrivi(SezioneLibrettoAutomatico, ChiavePrecisione, TestoIntero(opzioni.PrecisioneAngolare));
}

} // namespace lirmeto
