#include <generazione/generazione.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t LunghezzaCensuario = 50; // a longer row 6 is one of the census
constexpr std::size_t RigheGpsMinime = 3;

bool RigaMisura(std::string_view riga) {
  const Genere genere = GenereDi(riga);
  return genere == Genere::Stazione || genere == Genere::Battuta;
}

// Narrower than what the reorder takes for GPS: a row with "|GDOP=" is a result and no measure, and is not kept.
bool DiGps(std::string_view riga) {
  if (RigaMisura(riga)) return Contiene(riga, ",");
  return GenereDi(riga) == Genere::Libera &&
         (Contiene(riga, "|BAS|") || Contiene(riga, "|RTK|") || Contiene(riga, "|PDOP=") || riga.starts_with("6|L1|") ||
          riga.starts_with("6|L2|"));
}

void TogliAssenti(Generazione& g) {
  std::erase_if(g.gps, [&](const std::string& riga) {
    return GenereDi(riga) == Genere::Battuta && g.tabelle.Trova(Parte(riga, '|', 1)) == nullptr;
  });
}

// The note goes into its field; a row that ends just before it gets the field and its bar.
std::string ConNota(std::string_view riga, std::size_t campo, const std::string& nota) {
  auto campi = Dividi(riga, "|");
  if (campo >= campi.size()) throw Errore(errore::IndiceFuoriIntervallo);
  if (campi.size() == campo + 1) return std::string(riga) + nota + "|";
  campi[campo] = nota;
  return Unisci(campi, "|");
}

void MettiNote(Generazione& g) {
  for (std::size_t i = 0; i < g.gps.size(); ++i) {
    std::string& riga = g.gps[i];
    if (!RigaMisura(riga)) continue;
    if (const PuntoDisegno* punto = g.tabelle.Trova(Parte(riga, '|', 1)))
      riga = AllaRiga([i] { return i + 1; }, riga,
                      [&] { return ConNota(riga, GenereDi(riga) == Genere::Stazione ? 4 : 6, punto->Nota); });
  }
}

// The field before the closing bar.
std::string_view UltimaVoce(std::string_view riga) {
  const std::size_t quante = QuanteParti(riga, '|');
  return quante < 2 ? std::string_view{} : Parte(riga, '|', quante - 2);
}

std::string ConUltimaVoce(std::string_view riga, std::string_view voce) {
  auto campi = Dividi(riga, "|");
  campi[campi.size() - 2] = voce;
  return Unisci(campi, "|");
}

std::string SenzaPunti(std::string_view nota) {
  const std::string senzaPunti = Sostituisci(nota, ".", " ");
  const std::string senzaVirgole = Sostituisci(Taglia(senzaPunti), ",", " ");
  const std::string_view resto = Taglia(senzaVirgole);
  return std::string(resto.empty() ? "NOTE:" : resto);
}

bool HaRosseContinue(const Generazione& g) {
  return std::any_of(g.righe.begin(), g.righe.end(), [](const std::string& riga) {
    return riga.starts_with("7|") && Contiene(Maiuscolo(riga), "|RC|");
  });
}

void ProponiModestaEntita(Generazione& g) {
  if (g.righe.size() < 2 || HaRosseContinue(g) || Contiene(g.righe[1], "|TM|")) return;
  std::string titolo;
  titolo += "Inserire (TM) Tipo Mappale di Modesta Entità??"_w;
  if (g.ambiente.dialoghi.Chiedi("Tipo senza righe Rosse Continue (RC)...", titolo, Bottoni::SiNo) != Risposta::Si)
    return;
  auto campi = Dividi(g.righe[1], "|");
  campi.resize(std::max<std::size_t>(campi.size(), 8));
  campi[6] = "TM";
  g.righe[1] = Unisci(campi, "|");
}

void AvvisaNoteMancanti(const Generazione& g) {
  const bool mancanti = std::any_of(g.righe.begin(), g.righe.end(),
                                    [](const std::string& riga) { return Contiene(Maiuscolo(riga), "NOTE:"); });
  if (g.opzioni.NoteMancanti && mancanti)
    g.ambiente.dialoghi.Messaggio("Il Libretto contiene Descrizioni o Note di Punti Mancanti o da definire!",
                                  "Note o Descrizioni mancanti");
}

} // namespace

bool HaMarca(std::string_view nota, std::string_view marca) {
  return !nota.empty() && Contiene(Maiuscolo(nota), marca);
}

bool NomeFiduciale(std::string_view nome) {
  return UgualiSenzaCaso(nome.substr(0, 2), "PF");
}

std::string NotaConBarra(std::string_view nota, std::string_view vuota) {
  const std::string_view tagliata = Taglia(nota);
  return std::string(tagliata.empty() ? vuota : tagliata) + "|";
}

std::vector<std::string_view> Elementi(std::string_view punti) {
  if (punti.size() < 3) return {};
  return Dividi(punti.substr(1, punti.size() - 2), "|");
}

void PrendiRigheGps(Generazione& g) {
  for (const auto riga : g.vecchie)
    if (DiGps(riga)) g.gps.emplace_back(riga);
  for (std::string& riga : g.gps)
    if (GenereDi(riga) == Genere::Battuta && QuanteParti(riga, '|') < 8) riga += "NOTE:|";
  if (g.opzioni.MantieniGps && g.gps.size() >= RigheGpsMinime) TogliAssenti(g);
  if (g.gps.size() >= RigheGpsMinime) MettiNote(g);
}

void MettiTestata(Generazione& g) {
  const Sessione& sessione = g.ambiente.sessione;
  g.righe = {sessione.RigaZero, sessione.RigaNove};
  if (!Taglia(sessione.RigaCommento).empty()) g.righe.push_back(sessione.RigaCommento);
  g.rapporto.emplace_back(g.opzioni.OrientaAzimut       ? "Calcola Tutti Azimut"
                          : g.opzioni.OrientaPrecedente ? "Azzera su Stazione Precedente"
                                                        : "Orienta su Lib.Misure");
  for (const std::string& riga : g.tabelle.Scartate) g.rapporto.push_back("Riga del disegno non letta: " + riga);
}

void TogliUgualiVicine(Generazione& g) {
  g.righe.erase(std::unique(g.righe.begin(), g.righe.end()), g.righe.end());
}

void MantieniCensuario(Generazione& g) {
  if (g.vecchie.empty()) return;
  g.rapporto.emplace_back("Mantiene Censuario Esistente");
  for (const auto riga : g.vecchie)
    if (riga.size() > LunghezzaCensuario && GenereDi(riga) == Genere::Libera) g.righe.emplace_back(riga);
}

void TogliPuntiDalleNote(Generazione& g) {
  if (!g.opzioni.EliminaPuntiNote) return;
  g.rapporto.emplace_back("Eliminati punti da descrizioni");
  for (std::string& riga : g.righe) {
    if (!RigaMisura(riga) || QuanteParti(riga, '|') < 2) continue;
    const std::string_view nota = UltimaVoce(riga);
    if (!ENumero(nota)) riga = ConUltimaVoce(riga, SenzaPunti(nota));
  }
}

void InserisciGps(Generazione& g) {
  const auto fine = std::find_if(g.righe.begin(), g.righe.end(), [](const std::string& riga) {
    const Genere genere = GenereDi(riga);
    return genere != Genere::Intestazione && genere != Genere::Libera && genere != Genere::Chiusura;
  });
  g.righe.insert(fine, g.gps.begin(), g.gps.end());
}

void MettiCs(Generazione& g) {
  if (!g.opzioni.MettiCs) return;
  g.rapporto.emplace_back("Mette CS su righe 2 sequenzialmente duplicate");
  for (std::size_t i = g.righe.size(); i-- > 1;) {
    std::string& riga = g.righe[i];
    const std::string& prima = g.righe[i - 1];
    if (GenereDi(riga) != Genere::Battuta || GenereDi(prima) != Genere::Battuta || QuanteParti(riga, '|') < 2) continue;
    if (UltimaVoce(riga) == UltimaVoce(prima)) riga = ConUltimaVoce(riga, "CS");
  }
}

void ControlliFinali(Generazione& g) {
  ProponiModestaEntita(g);
  AvvisaNoteMancanti(g);
}

std::string SciogliSegni(std::string_view testo) {
  return Sostituisci(Sostituisci(testo, "__|", ""), "_", "|");
}

} // namespace lirmeto
