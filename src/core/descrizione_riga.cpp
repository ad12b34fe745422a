#include <core/descrizione_riga.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>

#include <array>
#include <span>

namespace lirmeto {

namespace {

using Campi = std::vector<std::string_view>;

struct Nome {
  std::string_view nome;
  std::string_view unita = {};
};

// Names of the fields from field 1 on, as many as there are.
std::vector<CampoDescritto> Descrivi(const Campi& campi, std::initializer_list<Nome> nomi) {
  std::vector<CampoDescritto> descritti;
  std::size_t indice = 1;
  for (const Nome& nome : nomi) {
    if (indice >= campi.size()) break;
    descritti.push_back({std::string(nome.nome), std::string(nome.unita), std::string(campi[indice++])});
  }
  return descritti;
}

RigaDescritta Intestazione(const Campi& campi) {
  return {
      "Riga 0 - Intestazione",
      Descrivi(
          campi,
          {{"Data"}, {"Protocollo"}, {"Comune"}, {"Foglio"}, {"Mappali"}, {"Tecnico"}, {"Qualifica"}, {"Provincia"}})};
}

RigaDescritta DatiFinali(const Campi& campi) {
  return {"Riga 9 - Dati generali", Descrivi(campi, {{"Quota media", "m"},
                                                     {"Precisione lineare", "cm"},
                                                     {"Precisione angolare"},
                                                     {"Est medio", "m"},
                                                     {"Versione Pregeo"},
                                                     {"Tipologia"},
                                                     {"Strumentazione"}})};
}

RigaDescritta Stazione(std::string_view riga, const Campi& campi) {
  if (RigaGps(riga))
    return {"Riga 1 - Base GPS",
            Descrivi(campi, {{"Punto"}, {"Coordinate X,Y,Z", "m"}, {"Altezza antenna", "m"}, {"Nota"}})};
  if (campi.size() <= 3) return {"Riga 1 - Stazione planimetrica", Descrivi(campi, {{"Stazione"}, {"Nota"}})};
  return {"Riga 1 - Stazione", Descrivi(campi, {{"Stazione"}, {"Altezza strumento", "m"}, {"Nota"}})};
}

RigaDescritta Battuta(std::string_view riga, const Campi& campi) {
  if (RigaGps(riga))
    return {"Riga 2 - Punto GPS", Descrivi(campi, {{"Punto"},
                                                   {"Differenze X,Y,Z", "m"},
                                                   {"Varianze e covarianze"},
                                                   {"PDOP"},
                                                   {"Altezza antenna", "m"},
                                                   {"Nota"}})};
  if (campi.size() <= 6)
    return {"Riga 2 - Battuta planimetrica",
            Descrivi(campi, {{"Punto"}, {"Hz", "gon"}, {"Distanza ridotta", "m"}, {"Nota"}})};
  return {"Riga 2 - Battuta", Descrivi(campi, {{"Punto"},
                                               {"Hz", "gon"},
                                               {"Zenit", "gon"},
                                               {"Distanza inclinata", "m"},
                                               {"Altezza prisma", "m"},
                                               {"Nota"}})};
}

// Points behind a count, numbered from 1.
std::vector<CampoDescritto> Elencati(std::span<const std::string_view> punti, const std::string& nome) {
  std::vector<CampoDescritto> descritti;
  for (const auto punto : punti)
    descritti.push_back(
        {nome + " " + TestoIntero(static_cast<long long>(descritti.size()) + 1), {}, std::string(punto)});
  return descritti;
}

RigaDescritta Poligonale(const Campi& campi) {
  RigaDescritta descritta{"Riga 3 - Poligonale", Descrivi(campi, {{"Vertici"}})};
  if (campi.size() > 2)
    for (auto& campo : Elencati(std::span(campi).subspan(2), "Vertice")) descritta.campi.push_back(std::move(campo));
  return descritta;
}

RigaDescritta Allineamento(const Campi& campi) {
  if (campi.size() <= 3) return {"Riga 4 - Quota di riferimento", Descrivi(campi, {{"Punto"}, {"Quota", "m"}})};
  if (campi.size() == 4)
    return {"Riga 4 - Livellazione dall'estremo", Descrivi(campi, {{"Punto"}, {"Altezza strumento", "m"}, {"Nota"}})};
  if (campi.size() == 5) return {"Riga 4 - Allineamento", Descrivi(campi, {{"Da"}, {"A"}, {"Valore"}, {"Nota"}})};
  return {"Riga 4 - Livellazione dal mezzo",
          Descrivi(campi, {{"Da"}, {"A"}, {"Lettura indietro", "m"}, {"Lettura avanti", "m"}, {"Nota"}})};
}

RigaDescritta Squadro(const Campi& campi) {
  if (campi.size() <= 4)
    return {"Riga 5 - Livellazione", Descrivi(campi, {{"Punto"}, {"Dislivello o lettura", "m"}, {"Nota"}})};
  return {"Riga 5 - Squadro", Descrivi(campi, {{"Punto"}, {"Ascissa", "m"}, {"Ordinata", "m"}, {"Nota"}})};
}

std::string_view NomeRiga6(std::string_view riga) {
  if (riga == RigaProposta) return "Riga 6 - Proposta di aggiornamento";
  if (Contiene(riga, InizioRelazione) || Contiene(riga, FineRelazione)) return "Riga 6 - Relazione Tecnica";
  if (Riga6Gps(riga)) return "Riga 6 - GPS";
  if (Contiene(riga, "6|DettaglioTipoAgg=")) return "Riga 6 - Dettaglio tipo di aggiornamento";
  if (riga.starts_with("6| -")) return "Riga 6 - Appunto";
  return "Riga 6 - Commento o dati";
}

std::string_view SignificatoOperazione(std::string_view operazione) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 4> significati = {{
      {"O", "O originale"},
      {"S", "S soppressa"},
      {"C", "C costituita"},
      {"V", "V variata"},
  }};
  for (const auto& [lettera, significato] : significati)
    if (lettera == operazione) return significato;
  return operazione;
}

// A row of fixed columns: heading, count of a section, or the fields that are not blank.
RigaDescritta Censuaria(std::string_view riga) {
  using namespace censuario;
  RigaDescritta descritta{"Riga 6 - Modello Censuario", {}};
  const auto aggiungi = [&](const CampoCensuario& campo, std::string_view unita, std::string_view valore) {
    if (!Taglia(valore).empty())
      descritta.campi.push_back({std::string(campo.nome), std::string(unita), std::string(Taglia(valore))});
  };
  if (riga == censuario::Intestazione) return {"Riga 6 - Modello Censuario, intestazione", {}};
  if (ApreSezione(riga)) {
    for (const CampoCensuario& campo : {Sezione, Conteggio}) aggiungi(campo, {}, LeggiCampo(riga, campo));
    return descritta;
  }
  aggiungi(Operazione, {}, SignificatoOperazione(LeggiCampo(riga, Operazione)));
  for (const CampoCensuario& campo : {Particella, Subalterno, Lettera, Temporaneo})
    aggiungi(campo, {}, LeggiCampo(riga, campo));
  aggiungi(Area, "mq", LeggiCampo(riga, Area));
  for (const CampoCensuario& campo : {SrSn, LetteraDestinazione, TemporaneoDestinazione, Qualita, Classe, Coda})
    aggiungi(campo, {}, LeggiCampo(riga, campo));
  return descritta;
}

RigaDescritta Contorno(const Campi& campi) {
  // Only the beginning of the row was split; SplitRiga would refuse a row of
  // too many fields.
  std::size_t fine = 2;
  while (fine < campi.size() && campi[fine].find_first_of("VRNTCP") == std::string_view::npos &&
         Valore(campi[fine]) != 0)
    ++fine;
  RigaDescritta descritta{"Riga 7 - Contorno", Descrivi(campi, {{"Vertici"}})};
  if (campi.size() > 2)
    for (auto& campo : Elencati(std::span(campi).subspan(2, fine - 2), "Vertice"))
      descritta.campi.push_back(std::move(campo));
  Campi chiusura(campi.begin() + static_cast<std::ptrdiff_t>(std::min(fine, campi.size()) - 1), campi.end());
  for (auto& campo : Descrivi(chiusura, {{"Linea"}, {"Particella"}, {"Particella"}, {"Superficie", "mq"}}))
    descritta.campi.push_back(std::move(campo));
  return descritta;
}

RigaDescritta Coordinate(const Campi& campi) {
  const bool fiduciale = campi.size() > 1 && campi[1].starts_with("PF");
  if (fiduciale && campi.size() == 5)
    return {"Riga 8 - Quota del Punto Fiduciale",
            Descrivi(campi, {{"PF"}, {"Quota", "m"}, {"Codice"}, {"Descrizione"}})};
  if (fiduciale)
    return {"Riga 8 - Punto Fiduciale",
            Descrivi(campi, {{"PF"}, {"Nord", "m"}, {"Est", "m"}, {"Codice"}, {"Descrizione"}})};
  if (campi.size() > 3 && campi[3] == "04")
    return {"Riga 8 - Quota", Descrivi(campi, {{"Punto"}, {"Quota", "m"}, {"Codice"}, {"Nota"}})};
  return {"Riga 8 - Coordinate", Descrivi(campi, {{"Punto"}, {"Nord", "m"}, {"Est", "m"}, {"Nota"}, {"Codice"}})};
}

} // namespace

RigaDescritta DescriviRiga(std::string_view riga) {
  constexpr std::size_t quantoBasta = 2000; // characters looked at: a line of text shows no more
  const std::string_view inizio = riga.substr(0, quantoBasta);
  Campi campi = Dividi(inizio, "|");
  if (!campi.empty() && campi.back().empty()) campi.pop_back();
  const Genere genere = GenereDi(inizio);
  if (genere == Genere::Stazione) return Stazione(inizio, campi);
  if (genere == Genere::Battuta) return Battuta(inizio, campi);
  if (genere == Genere::Poligonale) return Poligonale(campi);
  if (genere == Genere::Allineamento) return Allineamento(campi);
  if (genere == Genere::Squadro) return Squadro(campi);
  if (RigaCensuaria(riga)) return Censuaria(riga);
  if (genere == Genere::Libera)
    return {std::string(NomeRiga6(riga)), {{"Testo", {}, std::string(inizio.substr(inizio.find('|') + 1))}}};
  if (genere == Genere::Contorno) return Contorno(campi);
  if (genere == Genere::Coordinate) return Coordinate(campi);
  if (genere == Genere::Chiusura) return DatiFinali(campi);
  if (genere == Genere::Intestazione && inizio.starts_with("0|")) return Intestazione(campi);
  return {"Riga di tipo sconosciuto", {{"Testo", {}, std::string(inizio)}}};
}

std::string TestoDescrizione(const RigaDescritta& descritta) {
  std::string testo = descritta.genere;
  std::string_view separatore = ": ";
  for (const auto& campo : descritta.campi) {
    if (campo.valore.empty()) continue;
    testo += std::string(separatore) + campo.nome + " " + campo.valore;
    if (!campo.unita.empty()) testo += " " + campo.unita;
    separatore = " · "_w;
  }
  return testo;
}

} // namespace lirmeto
