// The checks of acts, one finding a line:
//
//   severity TAB row TAB code TAB text       the row as `righe` counts it; empty for the whole act
//
// With more than one file a line "file TAB path" stands before the findings of each, and a line "riepilogo TAB path TAB
// errors TAB warnings TAB notes" for each behind them all.
#include <cli/comandi.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <supporto/tabella_verifiche.h>
#include <verifiche/verifica_anelli.h>
#include <verifiche/verificatore.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

constexpr int ConErrori = 4;
constexpr std::string_view RigaErrore = "errore\t";
constexpr std::string_view JsonErrore = "\"severita\":\"errore\"";

struct Esame {
  std::string percorso;
  std::vector<Segnalazione> segnalazioni;
};

bool EEstratto(std::string_view percorso) {
  constexpr std::array<std::string_view, 3> estensioni = {".EMP", ".AGG", ".SMP"};
  return std::any_of(estensioni.begin(), estensioni.end(),
                     [&](std::string_view estensione) { return FinisceConSenzaCaso(percorso, estensione); });
}

// Nothing of the act before stays: neither its extract nor its owners.
std::vector<Segnalazione> EsaminaLibretto(Ambiente& ambiente, const std::string& percorso) {
  ambiente.sessione.Libretto.clear();
  ambiente.sessione.EstrattoAssociato.clear();
  ApriLibretto(ambiente, percorso);
  CaricaLibrettoInList1(ambiente);
  Verificatore verificatore(ambiente);
  verificatore.Aggiorna();
  return verificatore.Segnalazioni();
}

Esame Esamina(Ambiente& ambiente, const std::string& percorso) {
  if (!EEstratto(percorso)) return {percorso, EsaminaLibretto(ambiente, percorso)};
  return {percorso, VerificaFileEstratto(CaricaFileIntero(ambiente, percorso), ambiente.orologio.Oggi())};
}

std::string Numero(std::size_t numero) {
  return TestoIntero(static_cast<long long>(numero));
}

std::string RigaDi(const Segnalazione& s) {
  const std::string riga = s.riga ? Numero(*s.riga) : std::string{};
  return std::string(NomeSeverita(s.regola->severita)) + "\t" + riga + "\t" + std::string(s.regola->codice) + "\t" +
         AUtf8(Testo(s)) + "\n";
}

std::string Righe(const std::vector<Esame>& esami) {
  std::string uscita;
  std::string riepilogo;
  for (const auto& [percorso, segnalazioni] : esami) {
    if (esami.size() > 1) uscita += "file\t" + AUtf8(percorso) + "\n";
    for (const Segnalazione& s : segnalazioni) uscita += RigaDi(s);
    const Conteggio conteggio = Conta(segnalazioni);
    riepilogo += "riepilogo\t" + AUtf8(percorso) + "\t" + Numero(conteggio.errori) + "\t" + Numero(conteggio.avvisi) +
                 "\t" + Numero(conteggio.note) + "\n";
  }
  return esami.size() > 1 ? uscita + riepilogo : uscita;
}

// A text between quotes, UTF-8.
std::string Json(std::string_view testo) {
  constexpr std::string_view cifre = "0123456789abcdef";
  std::string json = "\"";
  for (const char c : AUtf8(testo)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20) {
      json += std::string("\\u00") + cifre[byte >> 4U] + cifre[byte & 0xFU];
      continue;
    }
    if (c == '"' || c == '\\') json += '\\';
    json += c;
  }
  return json + "\"";
}

std::string JsonDi(const Segnalazione& s) {
  return "{\"severita\":\"" + std::string(NomeSeverita(s.regola->severita)) +
         "\",\"riga\":" + (s.riga ? Numero(*s.riga) : "null") + ",\"campo\":" + Numero(s.campo) +
         ",\"codice\":" + Json(s.regola->codice) + ",\"testo\":" + Json(Testo(s)) +
         ",\"rimedio\":" + (s.rimedio.empty() ? "null" : Json(s.rimedio)) + "}";
}

// An array of files, each with its findings and their counts.
std::string InJson(const std::vector<Esame>& esami) {
  std::string uscita = "[";
  for (const auto& [percorso, segnalazioni] : esami) {
    const Conteggio conteggio = Conta(segnalazioni);
    uscita += (uscita.size() > 1 ? ",\n{" : "\n{") + ("\"file\":" + Json(percorso)) +
              ",\"errori\":" + Numero(conteggio.errori) + ",\"avvisi\":" + Numero(conteggio.avvisi) +
              ",\"note\":" + Numero(conteggio.note) + ",\"segnalazioni\":[";
    std::string_view separatore = "\n";
    for (const Segnalazione& s : segnalazioni) uscita.append(std::exchange(separatore, ",\n")).append(JsonDi(s));
    uscita += "]}";
  }
  return uscita + "\n]\n";
}

std::string ComandoVerifica(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  std::vector<Esame> esami;
  for (std::size_t i = 1; i < argomenti.size(); ++i) esami.push_back(Esamina(ambiente, argomenti[i]));
  return argomenti[0].empty() ? Righe(esami) : InJson(esami);
}

int CodiceVerifica(std::string_view risultato) {
  const bool inRighe = risultato.starts_with(RigaErrore) || Contiene(risultato, "\n" + std::string(RigaErrore));
  return inRighe || (risultato.starts_with("[") && Contiene(risultato, JsonErrore)) ? ConErrori : 0;
}

// The table of the guide: code, severity, sentence, reason, UTF-8.
std::string ComandoVerifiche(Ambiente& /*ambiente*/, const std::vector<std::string>& /*argomenti*/) {
  std::string uscita;
  for (const Regola& regola : Regole)
    uscita += std::string(regola.codice) + "\t" + std::string(NomeSeverita(regola.severita)) + "\t" +
              AUtf8(Sostituisci(regola.frase, "{#", "{")) + "\t" + AUtf8(regola.motivo) + "\n";
  return uscita;
}

constexpr ArgomentoCli ArgomentiVerifica[] = {
    {"--json", GenereArgomento::Bandiera, "il risultato in JSON"},
    {"FILE", GenereArgomento::AltriFile, "libretti ed estratti (.EMP); di più se ne dà il riepilogo"}};

constexpr std::array<ComandoCli, 2> Comandi = {{
    {"verifica", "i controlli di un libretto o di un estratto; codice di uscita 4 se c'è un errore", ArgomentiVerifica,
     ComandoVerifica, CodiceVerifica},
    {"verifiche", "la tabella dei controlli: codice, severità, frase, motivo", {}, ComandoVerifiche},
}};

} // namespace

FamigliaCli ComandiVerifiche() {
  return {"", "", Comandi};
}

} // namespace lirmeto
