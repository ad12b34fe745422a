#include <generazione/proposta.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <span>

namespace lirmeto {

// What could be done in more than one way:
//
//   a row between a contour's rows   ends the contour: a continuation behind it has no head
//   a head without a tail            "7|2|1*|2*|RC|": all it has are names and a code, and both stay
//   a contour unfolded already       stays so when it is unfolded again
//   a row 7 of up to ten names       needs no folding and stays as it is, whatever its count says: it may be the head of
//                                    a longer contour
//   a code that folding does not     RT, RP and the like end no stretch: they stand where a name would
//   know

namespace {

constexpr std::string_view TestaContinuazione = "7|0|";
constexpr std::size_t PrimoNome = 2; // field
constexpr std::size_t CampiCoda = 3; // name, parcel, area

using Campi = std::vector<std::string_view>;

// The fields of a row, without the empty one behind its closing bar.
Campi CampiRiga(std::string_view riga) {
  Campi campi = Dividi(riga, "|");
  if (!campi.empty() && campi.back().empty()) campi.pop_back();
  return campi;
}

std::string Barrati(std::span<const std::string_view> campi) {
  std::string testo;
  for (const auto campo : campi) testo.append(campo).append("|");
  return testo;
}

// What the rows of a contour add to its head, from the last to the first.
std::string NomiContinuazioni(std::span<const std::string_view> righe) {
  std::string nomi;
  for (const auto riga : righe) nomi += Sostituisci(Sostituisci(riga, TestaContinuazione, ""), "RC|", "");
  return nomi;
}

std::string EsplodiContorno(std::string_view testa, std::span<const std::string_view> continuazioni) {
  const Campi campi = CampiRiga(testa);
  const std::string nomi = NomiContinuazioni(continuazioni);
  if (campi.size() < PrimoNome + CampiCoda || CodiceLinea(campi.back())) {
    const std::size_t fine = !campi.empty() && CodiceLinea(campi.back()) ? campi.size() - 1 : campi.size();
    if (nomi.empty() || fine <= PrimoNome) return std::string(testa) + nomi;
    return Barrati(std::span(campi).first(fine)) + nomi + Barrati(std::span(campi).subspan(fine));
  }
  const std::size_t coda = campi.size() - CampiCoda;
  const std::size_t fine = CodiceLinea(campi[coda - 1]) ? coda - 1 : coda;
  return Barrati(std::span(campi).first(fine)) + nomi + Barrati(std::span(campi).subspan(coda));
}

void AggiungiRiga(std::string& testo, std::string_view riga) {
  testo.append(riga).append(FineRiga);
}

// A contour as it is folded: runs of names, each with the code of its line.
struct Tratto {
  Campi nomi;
  std::string_view codice;
};

bool ChiudeTratto(std::string_view campo) {
  return campo == "RC" || campo == "NC";
}

struct ContornoAperto {
  std::vector<Tratto> tratti;
  Campi coda; // fields behind the last code, the empty one behind the closing bar too
};

ContornoAperto LeggiTratti(const Campi& campi) {
  ContornoAperto contorno;
  Tratto tratto;
  for (std::size_t i = PrimoNome; i < campi.size(); ++i) {
    if (!ChiudeTratto(campi[i])) {
      tratto.nomi.push_back(campi[i]);
      continue;
    }
    tratto.codice = campi[i];
    if (!contorno.tratti.empty() && contorno.tratti.back().codice == tratto.codice)
      contorno.tratti.back().nomi.insert(contorno.tratti.back().nomi.end(), tratto.nomi.begin(), tratto.nomi.end());
    else
      contorno.tratti.push_back(tratto);
    tratto.nomi.clear();
  }
  contorno.coda = std::move(tratto.nomi);
  return contorno;
}

// Names in rows of ten. `testa` is what the first row begins with.
void AggiungiRighe7(std::vector<std::string>& righe, std::string_view testa, std::span<const std::string_view> nomi,
                    std::string_view codice) {
  do {
    const std::size_t quanti = std::min(nomi.size(), NomiPerRiga7);
    std::string riga(testa);
    riga.append(Barrati(nomi.first(quanti))).append(codice).append("|");
    righe.push_back(std::move(riga));
    testa = TestaContinuazione;
    nomi = nomi.subspan(quanti);
  } while (!nomi.empty());
}

} // namespace

bool Continuazione(std::string_view riga) {
  return GenereDi(riga) == Genere::Contorno && Parte(riga, '|', 1) == "0";
}

std::string Esplodi_Proposta(std::string_view testo) {
  const Campi righe = Dividi(testo, FineRiga);
  std::string esplosa;
  esplosa.reserve(testo.size());
  std::size_t fine = righe.size(); // behind the continuations met
  for (std::size_t i = righe.size(); i > 0; --i) {
    const std::string_view riga = righe[i - 1];
    if (Continuazione(riga)) continue;
    const auto continuazioni = std::span(righe).subspan(i, fine - i);
    const bool testa = GenereDi(riga) == Genere::Contorno;
    if (!testa)
      for (auto orfana = continuazioni.rbegin(); orfana != continuazioni.rend(); ++orfana)
        AggiungiRiga(esplosa, *orfana);
    if (testa)
      AggiungiRiga(esplosa, EsplodiContorno(riga, continuazioni));
    else if (!Taglia(riga).empty())
      AggiungiRiga(esplosa, riga);
    fine = i - 1;
  }
  for (; fine > 0; --fine) AggiungiRiga(esplosa, righe[fine - 1]);
  return esplosa;
}

std::vector<std::string> Implodi_Proposta(std::string_view riga) {
  const Campi campi = Dividi(riga, "|");
  if (GenereDi(riga) != Genere::Contorno || campi.size() <= PrimoNome ||
      std::none_of(campi.begin() + PrimoNome, campi.end(), ChiudeTratto))
    return {std::string(riga)};
  const ContornoAperto contorno = LeggiTratti(campi);
  const std::string testa = Barrati(std::span(campi).first(PrimoNome));
  std::vector<std::string> righe;
  for (const Tratto& tratto : contorno.tratti)
    if (righe.empty() || !tratto.nomi.empty())
      AggiungiRighe7(righe, righe.empty() ? std::string_view(testa) : TestaContinuazione, tratto.nomi, tratto.codice);
  righe.front() += Unisci(contorno.coda, "|");
  return righe;
}

std::vector<std::string> SpezzaRiga7(std::string_view riga) {
  const Campi campi = CampiRiga(riga);
  if (GenereDi(riga) != Genere::Contorno || campi.size() <= PrimoNome + 1 + NomiPerRiga7 ||
      !CodiceLinea(campi.back()) || !riga.ends_with('|'))
    return {std::string(riga)};
  const std::vector<std::string_view> nomi(campi.begin() + PrimoNome, campi.end() - 1);
  if (!Continuazione(riga)) return ComponiRighe7(nomi, campi.back(), {});
  std::vector<std::string> righe;
  AggiungiRighe7(righe, TestaContinuazione, nomi, campi.back());
  return righe;
}

std::vector<std::string> ComponiRighe7(const std::vector<std::string_view>& nomi, std::string_view codice,
                                       std::string_view coda) {
  std::vector<std::string> righe;
  const std::string testa = "7|" + Formatta(static_cast<double>(nomi.size()), "#######0") + "|";
  AggiungiRighe7(righe, testa, nomi, codice);
  righe.front() += coda;
  return righe;
}

} // namespace lirmeto
