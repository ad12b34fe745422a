#include <verifiche/riga_letta.h>

#include <base/gon.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <cmath>

namespace lirmeto {

namespace {

constexpr std::size_t LunghezzaCensuario = 70;

bool ComincePF(std::string_view nome) {
  return nome.size() > 2 && Maiuscolo(nome[0]) == 'P' && Maiuscolo(nome[1]) == 'F';
}

bool LettereOCifre(std::string_view testo) {
  return std::all_of(testo.begin(), testo.end(), LetteraOCifra);
}

// A number whose decimal sign may be a comma: the row is told of that elsewhere.
double NumeroDi(std::string_view campo) {
  return campo.find(',') == std::string_view::npos ? Misura(campo) : Misura(Sostituisci(campo, ",", "."));
}

std::int8_t GenereNoto(std::string_view riga) {
  const double valore = GenereRiga(riga);
  if (valore != std::floor(valore) || valore < 0 || valore > 9) return -1;
  if (valore == 0 && !riga.starts_with("0|")) return -1;
  return static_cast<std::int8_t>(valore);
}

bool NotaVuota(std::string_view nota) {
  const std::string_view tagliata = Taglia(nota);
  return tagliata.empty() || UgualiSenzaCaso(tagliata, "NOTE:");
}

void LeggiStazione(const Campi& campi, RigaLetta& letta) {
  const std::string_view campo = CampoSe(campi, 2);
  if (CampoGnss(campo)) {
    letta.forma = FormaRiga::BaseGps;
    const Terna terna = LeggiTerna(campo);
    std::copy_n(terna.valori.begin(), 3, letta.numeri.begin());
    letta.numeri[3] = Misura(CampoSe(campi, 3));
    return;
  }
  letta.forma = FormaRiga::Stazione;
  letta.haZenit = QuantiCampi(campi) > 3 && !Taglia(campo).empty();
  if (letta.haZenit) letta.numeri[0] = NumeroDi(campo);
}

// The plane distance of a sighting, and the place it leads to when its reading is an azimuth.
void PonBattuta(RigaLetta& letta, Gon hz, Gon zenit, double distanza) {
  const double piana = letta.haZenit ? distanza * std::fabs(std::sin(Radianti(zenit))) : distanza;
  const double angolo = Radianti(hz);
  letta.numeri = {piana * std::sin(angolo), piana * std::cos(angolo), hz.Valore(), piana};
  letta.haDistanza = distanza > 0;
}

void LeggiBattuta(const Campi& campi, RigaLetta& letta) {
  const std::size_t quanti = QuantiCampi(campi);
  const std::string_view campo = CampoSe(campi, 2);
  if (CampoGnss(campo)) {
    letta.forma = FormaRiga::VettoreGps;
    const Terna terna = LeggiTerna(campo);
    std::copy_n(terna.valori.begin(), 3, letta.numeri.begin());
    letta.haDistanza = terna.quanti == 3;
    letta.senzaNota = NotaVuota(CampoSe(campi, 6));
    return;
  }
  constexpr std::size_t conAltezza = 6;
  letta.forma = FormaRiga::Battuta;
  letta.haZenit = quanti >= conAltezza;
  letta.senzaNota = NotaVuota(CampoSe(campi, quanti == conAltezza + 1 ? conAltezza : 4));
  const double zenit = letta.haZenit ? NumeroDi(CampoSe(campi, 3)) : 0;
  PonBattuta(letta, Gon(NumeroDi(campo)), Gon(zenit), NumeroDi(CampoSe(campi, letta.haZenit ? 4 : 3)));
}

void LeggiPoligonale(const Campi& campi, NomiPunti& nomi, RigaLetta& letta) {
  letta.forma = FormaRiga::Poligonale;
  letta.conteggio = static_cast<std::int32_t>(std::clamp(Valore(CampoSe(campi, 1)), 0.0, 1e6));
  for (std::size_t i = 2; i < QuantiCampi(campi); ++i) letta.punti.push_back(nomi.Numero(Taglia(campi[i])));
}

// The forms told apart by their number of fields: 5 is a base, 6 a levelling from the middle, fewer one from an end.
void LeggiAllineamento(const Campi& campi, NomiPunti& nomi, RigaLetta& letta) {
  letta.forma = FormaRiga::Livellazione;
  if (QuantiCampi(campi) != 5) return;
  letta.forma = NumeroDi(campi[3]) == 0 ? FormaRiga::Squadro : FormaRiga::BaseAltra;
  letta.punti = {letta.nome, nomi.Numero(Taglia(campi[2]))};
}

void LeggiSquadro(const Campi& campi, RigaLetta& letta) {
  constexpr std::size_t conOrdinata = 5;
  letta.forma = QuantiCampi(campi) >= conOrdinata ? FormaRiga::Offset : FormaRiga::Dislivello;
  letta.numeri[0] = NumeroDi(CampoSe(campi, 2));
  if (letta.forma == FormaRiga::Offset) letta.numeri[1] = NumeroDi(campi[3]);
}

void LeggiContorno(const Campi& campi, NomiPunti& nomi, RigaLetta& letta) {
  letta.forma = FormaRiga::Contorno;
  letta.conteggio = static_cast<std::int32_t>(std::clamp(Valore(CampoSe(campi, 1)), 0.0, 1e6));
  const std::size_t fine = FineVertici(campi);
  for (std::size_t i = 2; i < fine; ++i) letta.punti.push_back(nomi.Numero(Taglia(campi[i])));
  const std::string_view codice = Taglia(CampoSe(campi, fine));
  if (codice.size() == letta.codice.size()) {
    std::copy(codice.begin(), codice.end(), letta.codice.begin());
    letta.lungoCodice = 2;
  }
}

// A row of coordinates has two numbers; one of a height has a number and a code of two digits.
void LeggiCoordinate(const Campi& campi, bool fiduciale, RigaLetta& letta) {
  const std::size_t quanti = QuantiCampi(campi);
  const std::string_view terzo = Taglia(CampoSe(campi, 3));
  const bool quota = fiduciale ? quanti == 5 : quanti == 5 && terzo.size() == 2 && TutteCifre(terzo);
  letta.forma = quota || quanti < 4 ? FormaRiga::Quota : FormaRiga::Coordinate;
  letta.numeri = {NumeroDi(CampoSe(campi, 2)), quota ? 0 : NumeroDi(terzo), 0, 0};
}

void LeggiRiga6(std::string_view riga, RigaLetta& letta) {
  if (riga == RigaProposta) letta.segno = Segno::Proposta;
  if (MarcaRelazioneOCensuario(riga)) {
    if (Contiene(riga, InizioRelazione)) letta.segno = Segno::ApreRelazione;
    if (Contiene(riga, FineRelazione)) letta.segno = Segno::ChiudeRelazione;
  }
  constexpr std::array<std::string_view, 7> inizi = {"6|51FTP|", "6|3SPC |", "6|M31FU|", "6|O|",
                                                     "6|S|",     "6|C|",     "6|V|"};
  const auto comincia = [&](std::string_view inizio) { return riga.starts_with(inizio); };
  if (Riga6Gps(riga)) {
    letta.forma = FormaRiga::Sessione;
  } else if (Contiene(riga, "6|DettaglioTipoAgg=")) {
    letta.forma = FormaRiga::Altra;
  } else if (riga.size() == LunghezzaCensuario || std::any_of(inizi.begin(), inizi.end(), comincia)) {
    letta.forma = FormaRiga::Censuario;
  }
}

void LeggiForma(std::string_view riga, const Campi& campi, NomiPunti& nomi, RigaLetta& letta) {
  switch (letta.genere) {
  case 1:
    return LeggiStazione(campi, letta);
  case 2:
    return LeggiBattuta(campi, letta);
  case 3:
    return LeggiPoligonale(campi, nomi, letta);
  case 4:
    return LeggiAllineamento(campi, nomi, letta);
  case 5:
    return LeggiSquadro(campi, letta);
  case 6:
    return LeggiRiga6(riga, letta);
  case 7:
    return LeggiContorno(campi, nomi, letta);
  case 8:
    return LeggiCoordinate(campi, nomi.Fiduciale(letta.nome), letta);
  default:
    return;
  }
}

} // namespace

Punto NomiPunti::Numero(std::string_view nome) {
  if (const auto posto = numeri_.find(nome); posto != numeri_.end()) return posto->second;
  const auto [posto, nuovo] = numeri_.emplace(nome, static_cast<Punto>(nomi_.size()));
  nomi_.push_back(&posto->first);
  fiduciali_.push_back(ComincePF(nome));
  return posto->second;
}

std::size_t QuantiCampi(const Campi& campi) {
  const std::size_t quanti = campi.Quanti();
  return quanti > 0 && campi[quanti - 1].empty() ? quanti - 1 : quanti;
}

double Misura(std::string_view testo) {
  constexpr double limite = 1e12;
  return std::clamp(Valore(testo), -limite, limite);
}

Terna LeggiTerna(std::string_view campo) {
  Terna terna;
  for (const auto parte : Dividi(campo, ",")) {
    if (terna.quanti < terna.valori.size()) terna.valori.at(terna.quanti) = Misura(parte);
    ++terna.quanti;
  }
  return terna;
}

bool CampoGnss(std::string_view campo2) {
  return std::count(campo2.begin(), campo2.end(), ',') > 1;
}

std::size_t FineVertici(const Campi& campi) {
  std::size_t fine = 2;
  const auto vertice = [](std::string_view campo) {
    if (NomePuntoFiduciale(campo)) return true;
    return campo.find_first_of("VRNTCP") == std::string_view::npos && Valore(campo) != 0;
  };
  while (fine < campi.Quanti() && vertice(Taglia(campi[fine]))) ++fine;
  return fine;
}

bool NomePuntoFiduciale(std::string_view nome) {
  constexpr std::size_t lungo = 14;
  if (nome.size() != lungo || nome[4] != '/' || nome[9] != '/') return false;
  return (nome.starts_with("PF") || nome.starts_with("PA")) && TutteCifre(nome.substr(2, 2)) &&
         TutteCifre(nome.substr(5, 3)) && LettereOCifre(nome.substr(8, 1)) && LettereOCifre(nome.substr(10));
}

bool CodiceDiLinea(std::string_view codice) {
  if (codice == "PV" || codice == "PD") return true;
  return codice.size() == 2 && std::string_view("NRV").find(codice[0]) != std::string_view::npos &&
         std::string_view("CTP").find(codice[1]) != std::string_view::npos;
}

RigaLetta LeggiRiga(std::string_view riga, const Campi& campi, NomiPunti& nomi) {
  RigaLetta letta;
  letta.genere = GenereNoto(riga);
  letta.impronta = std::hash<std::string_view>{}(riga);
  const bool conNome =
      letta.genere == 1 || letta.genere == 2 || letta.genere == 4 || letta.genere == 5 || letta.genere == 8;
  if (conNome) letta.nome = nomi.Numero(Taglia(CampoSe(campi, 1)));
  LeggiForma(riga, campi, nomi, letta);
  return letta;
}

} // namespace lirmeto
