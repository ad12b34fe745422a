#include <core/apertura.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>

#include <algorithm>
#include <array>

namespace lirmeto {

// How a .PDF is read, where it could be done in more than one way:
//
//   the last row of a section         counts also when no "<nr>" closes it
//   "9|" of an owners' row            is taken off its beginning only
//   a file without a section 3000     no extract is looked for and no message is shown
//   a piece without "]|"              is broken; it is left out and told, as a section of another number is
//   no section 1000 and no 2000       error 5: there is no libretto in it

namespace {

using Righe = std::vector<std::string_view>;

constexpr std::array<double, 5> Numeri = {1000, 2000, 3000, 4000, 5000};

Righe RigheSezione(std::string_view contenuto) {
  Righe righe = Dividi(contenuto, "<nr>");
  if (!righe.empty() && righe.back().empty()) righe.pop_back();
  return righe;
}

void AggiungiRighe(std::vector<std::string>& uscita, std::string_view contenuto) {
  for (const auto riga : RigheSezione(contenuto)) uscita.emplace_back(riga);
}

std::string LeggiDitta(std::string_view contenuto) {
  Righe righe = RigheSezione(contenuto);
  std::vector<std::string> pulite;
  for (auto riga : righe) {
    if (riga.starts_with("9|")) riga.remove_prefix(2);
    pulite.push_back(Sostituisci(riga, "|", ""));
  }
  std::string ditta = ConFineRiga(Sostituisci(Unisci({pulite.begin(), pulite.end()}, FineRiga), "\\", ""));
  if (!ditta.empty()) ditta.resize(ditta.size() - FineRiga.size());
  return ditta;
}

void LeggiEstratto(ContenutoPdf& pdf, std::string_view contenuto) {
  pdf.dati3000.emplace_back(contenuto);
  pdf.estratto = Maiuscolo(Parte(contenuto, '|', 2));
}

void LeggiSezione(ContenutoPdf& pdf, const SezionePdf& sezione) {
  const auto [numero, contenuto] = sezione;
  if (numero == 1000) AggiungiRighe(pdf.righe1000, contenuto);
  if (numero == 2000) AggiungiRighe(pdf.righe2000, contenuto);
  if (numero == 3000) LeggiEstratto(pdf, contenuto);
  if (numero == 4000) pdf.ditta = LeggiDitta(contenuto);
  if (numero == 5000) pdf.dati3000.emplace_back(contenuto);
  if (std::find(Numeri.begin(), Numeri.end(), numero) == Numeri.end())
    pdf.scartate.push_back("[TAG" + TestoPieno(numero) + "]|" + std::string(contenuto));
}

std::string ComponiLibretto(const ContenutoPdf& pdf) {
  std::string libretto;
  for (const auto* righe : {&pdf.righe1000, &pdf.righe2000})
    for (const auto& riga : *righe) libretto += ConFineRiga(std::string_view(riga));
  return libretto;
}

// Every byte up to the first line end, or the beginning of a file that has none
// so far.
constexpr std::size_t BytePrimaRiga = 4096;

std::string PrimaRiga(const Disco& disco, const std::string& percorso) {
  const std::string inizio = disco.LeggiInizio(percorso, BytePrimaRiga);
  return inizio.substr(0, inizio.find_first_of(FineRiga));
}

} // namespace

std::vector<SezionePdf> DividiSezioniPdf(std::string_view byte) {
  std::vector<SezionePdf> sezioni;
  const Righe pezzi = Dividi(byte, "[TAG");
  for (std::size_t i = 1; i < pezzi.size(); ++i) {
    const std::string_view pezzo = pezzi[i].substr(0, pezzi[i].find("[/TAG"));
    const std::size_t inizio = pezzo.find("]|");
    if (inizio == std::string_view::npos)
      sezioni.push_back({0, pezzo});
    else
      sezioni.push_back({Valore(pezzo.substr(0, inizio)), pezzo.substr(inizio + 2)});
  }
  return sezioni;
}

ContenutoPdf LeggiSezioniPdf(std::string_view byte) {
  ContenutoPdf pdf;
  for (const SezionePdf& sezione : DividiSezioniPdf(byte)) LeggiSezione(pdf, sezione);
  return pdf;
}

std::string CercaEstratto(Ambiente& ambiente, std::string_view identificativo) {
  if (identificativo.empty()) return {}; // any first row without field 2 would have it
  const std::string cartella = ambiente.sessione.RadicePregeo + "\\pregeo\\estratti\\";
  for (const auto& nome : ambiente.disco.Elenca(cartella, ".EMP")) {
    const std::string riga = PrimaRiga(ambiente.disco, cartella + nome);
    if (riga.empty()) break; // a file that is being written: what lies behind it is not sure either
    if (UgualiSenzaCaso(Parte(riga, '|', 2), identificativo) && Contiene(riga, "|")) return nome;
  }
  return {};
}

void EsplodiPDF(Ambiente& ambiente, std::string_view percorso) {
  const ContenutoPdf pdf = LeggiSezioniPdf(CaricaFileBinario(ambiente, percorso));
  if (pdf.righe1000.empty() && pdf.righe2000.empty())
    throw Errore(errore::ArgomentoNonValido, "Il file PDF non contiene le sezioni di un libretto");
  const bool daCercare = pdf.estratto && *pdf.estratto != "AUTOALLESTITO";
  const std::string estratto = daCercare ? CercaEstratto(ambiente, *pdf.estratto) : std::string{};
  if (daCercare && estratto.empty())
    ambiente.dialoghi.Messaggio("Estratto Associato non trovato nella cartella Estratti di Pregeo.");
  Sessione& sessione = ambiente.sessione;
  sessione.NomeFileLibretto = PercorsoInCapitali(ambiente.disco, ConEstensione(percorso, ".TXT"));
  sessione.Libretto = ComponiLibretto(pdf);
  sessione.Ditta = pdf.ditta;
  sessione.EstrattoAssociato = estratto;
  sessione.RigheScartate.clear();
  for (const std::string& pezzo : pdf.scartate) sessione.RigheScartate.Aggiungi(pezzo);
}

} // namespace lirmeto
