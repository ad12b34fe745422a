#include <verifiche/verifiche_righe.h>

#include <supporto/tabella_verifiche.h>

#include <base/gon.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/campi_riga.h>

#include <algorithm>
#include <array>
#include <optional>

namespace lirmeto {

namespace {

constexpr double MinimoZenit = 50;
constexpr double MassimoZenit = 150;
constexpr double MassimaDistanza = 2000; // metres
constexpr double MassimaAltezza = 10;    // metres
constexpr std::size_t MassimoNome = 14;
constexpr std::size_t CampiBattuta = 7;
constexpr std::size_t CampiBattutaPiana = 5;

void Di(Raccolta& raccolta, const Regola& regola, std::size_t campo, Raccolta::Valori valori = {},
        std::string rimedio = {}) {
  raccolta.Riga(regola, 0, campo, valori, std::move(rimedio));
}

std::string_view CampoTagliato(const RigaDaVerificare& r, std::size_t campo) {
  return Taglia(CampoSe(r.campi, campo));
}

// The number of a field; none, and said so, when it is no number.
std::optional<double> Numero(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  const std::string_view testo = CampoTagliato(r, campo);
  if (ENumero(testo)) return Valore(testo);
  const std::string conPunto = Sostituisci(testo, ",", ".");
  if (conPunto != testo && ENumero(conPunto)) {
    Di(raccolta, RegolaDi("L004"), campo, {testo}, ConCampo(r.riga, campo, conPunto));
    return Valore(conPunto);
  }
  Di(raccolta, RegolaDi("L003"), campo, {testo});
  return std::nullopt;
}

void VerificaNome(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  const std::string_view nome = CampoTagliato(r, campo);
  if (nome.empty()) return Di(raccolta, RegolaDi("L021"), campo);
  if (nome.size() > MassimoNome)
    Di(raccolta, RegolaDi("L012"), campo, {nome, TestoIntero(static_cast<long long>(nome.size()))});
  if (NomePuntoFiduciale(nome) || std::all_of(nome.begin(), nome.end(), LetteraOCifra)) return;
  if (UgualiSenzaCaso(nome.substr(0, 2), "PF")) return Di(raccolta, RegolaDi("F004"), campo, {nome});
  std::string pulito;
  std::copy_if(nome.begin(), nome.end(), std::back_inserter(pulito), [](char c) { return c != ' '; });
  const bool bastaCosi = !pulito.empty() && std::all_of(pulito.begin(), pulito.end(), LetteraOCifra);
  Di(raccolta, RegolaDi("L013"), campo, {nome}, bastaCosi ? ConCampo(r.riga, campo, pulito) : std::string{});
}

void VerificaNota(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  const std::string_view nota = CampoTagliato(r, campo);
  if (nota.empty() || UgualiSenzaCaso(nota, "NOTE:")) Di(raccolta, RegolaDi("L011"), campo);
}

void VerificaAltezza(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  if (CampoTagliato(r, campo).empty()) return Di(raccolta, RegolaDi("L010"), campo);
  const auto altezza = Numero(r, campo, raccolta);
  if (altezza && *altezza > MassimaAltezza) Di(raccolta, RegolaDi("L009"), campo, {CampoTagliato(r, campo)});
}

void VerificaAngolo(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  const auto angolo = Numero(r, campo, raccolta);
  if (angolo && (*angolo < 0 || *angolo > Giro.Valore()))
    Di(raccolta, RegolaDi("L005"), campo, {CampoTagliato(r, campo)});
}

void VerificaZenit(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  const auto angolo = Numero(r, campo, raccolta);
  if (angolo && (*angolo < MinimoZenit || *angolo > MassimoZenit))
    Di(raccolta, RegolaDi("L006"), campo, {CampoTagliato(r, campo)});
}

void VerificaDistanza(const RigaDaVerificare& r, std::size_t campo, Raccolta& raccolta) {
  const auto distanza = Numero(r, campo, raccolta);
  if (!distanza) return;
  if (*distanza < 0) Di(raccolta, RegolaDi("L020"), campo, {CampoTagliato(r, campo)});
  if (*distanza == 0) Di(raccolta, RegolaDi("L007"), campo, {CampoTagliato(r, 1)});
  if (*distanza > MassimaDistanza) Di(raccolta, RegolaDi("L008"), campo, {CampoTagliato(r, campo)});
}

void CampiSbagliati(const RigaDaVerificare& r, std::string_view attesi, Raccolta& raccolta) {
  Di(raccolta, RegolaDi("L002"), 0,
     {TestoIntero(r.letta.genere), TestoIntero(static_cast<long long>(QuantiCampi(r.campi))), attesi});
}

void VerificaStazione(const RigaDaVerificare& r, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(r.campi);
  VerificaNome(r, 1, raccolta);
  if (r.letta.forma == FormaRiga::BaseGps) {
    if (quanti < 4 || quanti > 5) return CampiSbagliati(r, "5", raccolta);
    VerificaAltezza(r, 3, raccolta);
    return VerificaNota(r, 4, raccolta);
  }
  if (quanti > 4) return CampiSbagliati(r, "3 o 4", raccolta);
  const bool altezza = quanti == 4 || ENumero(CampoTagliato(r, 2));
  if (altezza) VerificaAltezza(r, 2, raccolta);
  VerificaNota(r, altezza ? 3 : 2, raccolta);
}

void VerificaVettore(const RigaDaVerificare& r, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(r.campi);
  if (quanti < 6 || quanti > 7) return CampiSbagliati(r, "7", raccolta);
  VerificaAltezza(r, 5, raccolta);
  VerificaNota(r, 6, raccolta);
}

void VerificaBattutaPiana(const RigaDaVerificare& r, Raccolta& raccolta) {
  VerificaAngolo(r, 2, raccolta);
  VerificaDistanza(r, 3, raccolta);
  VerificaNota(r, 4, raccolta);
}

// Of six fields the last is the height without a note, or the note without a height.
void VerificaBattutaConZenit(const RigaDaVerificare& r, Raccolta& raccolta) {
  VerificaAngolo(r, 2, raccolta);
  VerificaZenit(r, 3, raccolta);
  VerificaDistanza(r, 4, raccolta);
  if (QuantiCampi(r.campi) == CampiBattuta || ENumero(CampoTagliato(r, 5))) {
    VerificaAltezza(r, 5, raccolta);
    VerificaNota(r, 6, raccolta);
  } else if (Valore(CampoTagliato(r, 4)) != 0) { // a direction alone needs no height
    Di(raccolta, RegolaDi("L010"), 5);
  }
}

void VerificaBattuta(const RigaDaVerificare& r, Raccolta& raccolta) {
  VerificaNome(r, 1, raccolta);
  if (r.letta.forma == FormaRiga::VettoreGps) return VerificaVettore(r, raccolta);
  const std::size_t quanti = QuantiCampi(r.campi);
  if (quanti < 4 || quanti > CampiBattuta) return CampiSbagliati(r, "5 o 7", raccolta);
  if (quanti <= CampiBattutaPiana) return VerificaBattutaPiana(r, raccolta);
  VerificaBattutaConZenit(r, raccolta);
}

void VerificaPoligonale(const RigaDaVerificare& r, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(r.campi);
  if (quanti < 3) return CampiSbagliati(r, "almeno 3", raccolta);
  Numero(r, 1, raccolta);
  for (std::size_t i = 2; i < quanti; ++i) VerificaNome(r, i, raccolta);
}

void VerificaAllineamento(const RigaDaVerificare& r, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(r.campi);
  if (quanti < 3 || quanti > 6) return CampiSbagliati(r, "da 3 a 6", raccolta);
  VerificaNome(r, 1, raccolta);
  constexpr std::size_t base = 5;
  if (quanti < base) {
    Numero(r, 2, raccolta);
    return;
  }
  VerificaNome(r, 2, raccolta);
  Numero(r, 3, raccolta);
  if (quanti > base) Numero(r, 4, raccolta);
}

void VerificaSquadro(const RigaDaVerificare& r, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(r.campi);
  if (quanti < 3 || quanti > 5) return CampiSbagliati(r, "da 3 a 5", raccolta);
  VerificaNome(r, 1, raccolta);
  Numero(r, 2, raccolta);
  if (quanti == 5) Numero(r, 3, raccolta);
}

void VerificaContorno(const RigaDaVerificare& r, Raccolta& raccolta) {
  if (QuantiCampi(r.campi) < 3) return CampiSbagliati(r, "almeno 3", raccolta);
  Numero(r, 1, raccolta);
}

void VerificaCoordinate(const RigaDaVerificare& r, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(r.campi);
  const bool proposta = r.letta.sezione == SezioneAtto::Proposta;
  if (quanti < 4 || (quanti > 6 && !proposta)) return CampiSbagliati(r, "da 4 a 6", raccolta);
  if (!proposta) VerificaNome(r, 1, raccolta);
  Numero(r, 2, raccolta);
  if (r.letta.forma == FormaRiga::Coordinate) Numero(r, 3, raccolta);
}

void VerificaPerGenere(const RigaDaVerificare& r, Raccolta& raccolta) {
  switch (r.letta.genere) {
  case -1:
    return Di(raccolta, RegolaDi("L001"), 0);
  case 1:
    return VerificaStazione(r, raccolta);
  case 2:
    return VerificaBattuta(r, raccolta);
  case 3:
    return VerificaPoligonale(r, raccolta);
  case 4:
    return VerificaAllineamento(r, raccolta);
  case 5:
    return VerificaSquadro(r, raccolta);
  case 7:
    return VerificaContorno(r, raccolta);
  case 8:
    return VerificaCoordinate(r, raccolta);
  default:
    return;
  }
}

bool Controllo(char c) {
  const auto byte = static_cast<unsigned char>(c);
  constexpr std::string_view senzaSegno = "\x7F\x81\x8D\x8F\x90\x9D";
  return byte < 0x20 || senzaSegno.find(c) != std::string_view::npos;
}

// An accented letter as the letter and an apostrophe, as it is written where there are no accents; empty for a
// character that is no such letter.
std::string_view SenzaAccento(char c) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 10> lettere = {{
      {"\xC0\xC1", "A'"},
      {"\xC8\xC9", "E'"},
      {"\xCC\xCD", "I'"},
      {"\xD2\xD3", "O'"},
      {"\xD9\xDA", "U'"},
      {"\xE0\xE1", "a'"},
      {"\xE8\xE9", "e'"},
      {"\xEC\xED", "i'"},
      {"\xF2\xF3", "o'"},
      {"\xF9\xFA", "u'"},
  }};
  for (const auto& [accentate, semplice] : lettere)
    if (accentate.find(c) != std::string_view::npos) return semplice;
  return c == '\x92' ? "'" : std::string_view{};
}

bool Semplice(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

// The row in plain letters; empty when a character has no plain form.
std::string InLettereSemplici(std::string_view riga) {
  std::string semplice;
  for (const char c : riga) {
    const std::string_view lettera = SenzaAccento(c);
    if (!Semplice(c) && lettera.empty()) return {};
    semplice += Semplice(c) ? std::string_view(&c, 1) : lettera;
  }
  return semplice;
}

void VerificaCaratteri(const RigaDaVerificare& r, Raccolta& raccolta) {
  if (std::any_of(r.riga.begin(), r.riga.end(), Controllo)) Di(raccolta, RegolaDi("L016"), 0);
  if (std::all_of(r.riga.begin(), r.riga.end(), Semplice)) return;
  const Regola& regola = r.letta.sezione == SezioneAtto::Relazione ? RegolaDi("L014") : RegolaDi("L015");
  Di(raccolta, regola, 0, {}, InLettereSemplici(r.riga));
}

void VerificaChiusura(const RigaDaVerificare& r, Raccolta& raccolta) {
  if (r.letta.genere >= 0 && !r.riga.ends_with('|')) Di(raccolta, RegolaDi("L018"), 0, {}, std::string(r.riga) + "|");
}

} // namespace

void VerificaRiga(const RigaDaVerificare& riga, Raccolta& raccolta) {
  VerificaPerGenere(riga, raccolta);
  VerificaCaratteri(riga, raccolta);
  VerificaChiusura(riga, raccolta);
}

} // namespace lirmeto
