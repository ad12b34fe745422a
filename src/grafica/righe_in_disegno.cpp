#include <grafica/righe_in_disegno.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <array>
#include <numbers>
#include <utility>

namespace lirmeto {

// How rows become a drawing, where it could be done in more than one way:
//
//   fields that are missing         are empty; a row 7 too short for its closing fields gives what it has
//   the first vertex of a walk      has no line, but the pending colour becomes the current one there too
//   a ring's closing fields         draw nothing, even where a point bears the parcel's name

namespace {

// The font of all points but toponyms.
constexpr std::string_view Macchina = "Courier New";

struct Aspetto {
  std::string_view classi; // last characters of the names
  double dimensione = 0;   // points
  std::int16_t colore = 0;
};

// Map vertices "5%" and all other names look like the last entry.
constexpr std::array<Aspetto, 5> Aspetti = {{
    {"*", 10, colore::RossoChiaro},
    {"#", 8, colore::MagentaChiaro},
    {"@", 8, colore::BluChiaro},
    {"LT", 8, colore::Verde},
    {"", 8, colore::Nero},
}};

const Aspetto& AspettoDi(std::string_view nome) {
  const auto* trovato = std::find_if(Aspetti.begin(), Aspetti.end() - 1, [&](const Aspetto& aspetto) {
    return !nome.empty() && aspetto.classi.find(nome.back()) != std::string_view::npos;
  });
  return *trovato;
}

// "8|name|north|east|"; a toponym has its angle in radians and its text behind them.
PuntoGrafica PuntoDaRiga8(std::string_view riga) {
  PuntoGrafica punto;
  punto.Nome = Parte(riga, '|', 1);
  punto.Y = Valore(Parte(riga, '|', 2));
  punto.X = Valore(Parte(riga, '|', 3));
  const Aspetto& aspetto = AspettoDi(punto.Nome);
  punto.Colore = aspetto.colore;
  punto.Dimensione = aspetto.dimensione;
  punto.Font = Macchina;
  if (!punto.Nome.ends_with('T')) return punto;
  punto.Font = "Arial Narrow";
  punto.Angolo = Valore(Parte(riga, '|', 4)) / (2 * std::numbers::pi) * 360;
  punto.Testo = Parte(riga, '|', 5);
  return punto;
}

// Fields of a row 7, the empty one behind its closing bar left out.
std::vector<std::string_view> CampiRiga7(std::string_view riga) {
  auto campi = Dividi(riga, "|");
  if (!campi.empty() && campi.back().empty()) campi.pop_back();
  return campi;
}

void Accoda(std::string& testo, const std::vector<std::string_view>& campi, std::size_t da, std::size_t a) {
  for (std::size_t i = da; i < a; ++i) {
    testo += '|';
    testo += campi[i];
  }
}

// The rows 7 of a ring behind one another: "|1%|2%|1%|NC", and apart from them "|12|12|500", what closes it.
struct Anello {
  std::string campi;
  std::string chiusura;

  // The first row of a ring: its count, then vertices and tokens, then the parcel twice and its surface, which are not
  // there when the row ends in a token.
  void Inizia(const std::vector<std::string_view>& riga) {
    constexpr std::size_t primo = 2;
    constexpr std::size_t quantiChiudono = 3;
    const bool chiuso = riga.empty() || !CodiceLinea(riga.back());
    const std::size_t fine = chiuso ? riga.size() - std::min(riga.size(), quantiChiudono) : riga.size();
    Accoda(campi, riga, primo, fine);
    Accoda(chiusura, riga, std::max(fine, primo), riga.size());
  }
};

// A ring as it is walked from its last field to its first.
class Cammino {
public:
  Cammino(ArchivioGrafica& archivio, std::string& punto, std::int16_t spessore, bool sottoProposta)
      : archivio_(archivio), punto_(punto), spessore_(spessore), sottoProposta_(sottoProposta) {}

  void Campo(std::string_view campo) {
    if (Valore(campo) != 0)
      Vertice(campo);
    else if (CodiceLinea(campo))
      Token(campo);
  }

  [[nodiscard]] std::int16_t Colore() const { return colore_; }

private:
  void Token(std::string_view token) {
    punto_ = "AggiungiGrafica1";
    inAttesa_ = token[0] == 'R' ? colore::RossoChiaro : token[0] == 'V' ? colore::Verde : colore::Nero;
    stile_ = token[1] == 'T' ? stile::Tratteggiato : token[1] == 'P' ? stile::Punteggiato : stile::Continuo;
    punto_ = "AggiungiGrafica2";
  }

  // The colour of a stretch lags a vertex behind its style: where two codes meet, the line between shows both.
  void Vertice(std::string_view nome) {
    if (sottoProposta_) colore_ = colore::BluChiaro;
    if (!prima_.empty()) archivio_.AggiungiTra(nome, prima_, {colore_, spessore_, stile_});
    prima_ = nome;
    colore_ = inAttesa_;
  }

  ArchivioGrafica& archivio_;
  std::string& punto_; // where an error happened
  std::int16_t spessore_;
  bool sottoProposta_; // the original extract is blue beneath the proposal
  std::string_view prima_;
  std::int16_t colore_ = colore::Nero;
  std::int16_t inAttesa_ = colore::Nero;
  std::int16_t stile_ = stile::Continuo;
};

// Puts the rings of a list into the store, each as soon as it is whole. An error names the row that began the ring.
class Anelli {
public:
  Anelli(const ListaRighe& righe, ArchivioGrafica& archivio, std::string& punto, bool sottoProposta)
      : righe_(righe), archivio_(archivio), punto_(punto), sottoProposta_(sottoProposta) {}

  void Riga(std::size_t indice) {
    const auto campi = CampiRiga7(righe_[indice]);
    if (campi.size() > 1 && campi[1] == "0") return Accoda(anello_.campi, campi, 2, campi.size());
    if (campi.size() > 3 && campi[3] == "PV") return;
    if (!anello_.campi.empty()) Disegna();
    anello_.campi.clear();
    anello_.chiusura.clear();
    anello_.Inizia(campi);
    testa_ = indice;
  }

  // The last ring counts when it has vertices.
  void Fine() {
    const auto campi = Dividi(anello_.campi, "|");
    if (std::any_of(campi.begin(), campi.end(), [](std::string_view campo) { return Valore(campo) != 0; })) Disegna();
  }

private:
  void Disegna() {
    AllaRiga([&] { return righe_.NumeroDiRiga(testa_); }, righe_[testa_], [&] { DisegnaAnello(); });
  }

  void DisegnaAnello() {
    const std::string intero = anello_.campi + anello_.chiusura + "|";
    const auto campi = Dividi(anello_.campi, "|");
    Cammino cammino(archivio_, punto_, Contiene(intero, "+") ? 2 : 1, sottoProposta_);
    for (auto campo = campi.rbegin(); campo != campi.rend(); ++campo) cammino.Campo(*campo);
    DisegnaNomeParticella(intero, cammino.Colore(), archivio_);
  }

  const ListaRighe& righe_;
  ArchivioGrafica& archivio_;
  std::string& punto_;
  bool sottoProposta_;
  Anello anello_;
  std::size_t testa_ = 0; // row that began it
};

} // namespace

void DisegnaRighe(const ListaRighe& righe, bool sottoProposta, ArchivioGrafica& archivio, std::string& punto) {
  constexpr std::size_t poche = 2;
  if (righe.size() < poche) return;
  punto = "AggiungiGrafica";
  const auto diGenere = [&](Genere genere) {
    return static_cast<std::size_t>(
        std::count_if(righe.begin(), righe.end(), [&](std::string_view riga) { return GenereDi(riga) == genere; }));
  };
  // A point for each row 8, a label for each row 7 at most.
  archivio.Riserva(archivio.Punti().size() + diGenere(Genere::Coordinate) + diGenere(Genere::Contorno), 0);
  for (const auto riga : righe)
    if (GenereDi(riga) == Genere::Coordinate) archivio.Aggiungi(PuntoDaRiga8(riga));
  Anelli anelli(righe, archivio, punto, sottoProposta);
  for (std::size_t i = 0; i < righe.size(); ++i)
    if (GenereDi(righe[i]) == Genere::Contorno) anelli.Riga(i);
  anelli.Fine();
}

std::vector<PuntoPiano> PostiDellaRiga(std::string_view riga, const ArchivioGrafica& archivio) {
  const std::vector<std::string_view> campi = Dividi(riga, "|");
  const bool contorno = !campi.empty() && campi[0] == "7";
  std::vector<PuntoPiano> posti;
  if (!contorno && (campi.empty() || campi[0] != "8")) return posti;
  const std::size_t primo = contorno ? 2 : 1;
  const std::size_t fine = contorno ? campi.size() : std::min<std::size_t>(campi.size(), primo + 1);
  for (std::size_t i = primo; i < fine; ++i)
    if (const auto indice = archivio.PrimoDiNome(campi[i])) posti.push_back(archivio.Punti()[*indice].Posto());
  return posti;
}

void DisegnaNomeParticella(std::string_view riga7, std::int16_t colore, ArchivioGrafica& archivio) {
  constexpr double dimensione = 12;
  const auto campi = Dividi(riga7, "|");
  if (campi.size() < 2 || Valore(campi[campi.size() - 2]) == 0) return;
  if (campi.size() < 4) throw Errore(errore::IndiceFuoriIntervallo);
  const std::size_t ultimo = campi.size() - 1;
  double x = 0;
  double y = 0;
  int quanti = 0;
  for (std::size_t i = 1; i + 4 <= ultimo; ++i)
    if (const auto trovato = archivio.PrimoDiNome(campi[i])) {
      const PuntoGrafica& punto = archivio.Punti()[*trovato];
      x += punto.X;
      y += punto.Y;
      ++quanti;
    }
  if (quanti == 0) throw Errore(errore::DivisionePerZero);
  PuntoGrafica etichetta;
  etichetta.Nome = " " + std::string(campi[ultimo - 3]);
  etichetta.X = x / quanti;
  etichetta.Y = y / quanti;
  etichetta.Colore = colore;
  etichetta.Font = Macchina;
  etichetta.Dimensione = dimensione;
  archivio.Aggiungi(std::move(etichetta));
}

} // namespace lirmeto
