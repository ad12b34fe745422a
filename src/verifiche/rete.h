#pragma once
// The coordinates of a survey computed back from its rows. It is a picture and a check, not an adjustment: every
// station is laid upon the points that those before it gave, and where a point is known twice both places stay.
//
// The first station lies at 0, 0 with its readings as azimuths. A station follows as soon as two of its points (itself
// among them) are known, by the agreement of all that are; all GNSS bases together are one station, in the plane that
// touches the ellipsoid at the first of them. What hangs together with nothing is tried once more with the rows 8 as
// known points. Rows 5 follow in their order. At the end the whole is laid upon the rows 8, so that it lies on the map.
//
// What could be done in more than one way:
//
//   an offset behind the first point of its base    has its sign turned, as the libretto from a drawing writes it
//   a base whose measure is not 0                   its rows 5 may be distances, as those of a base with 50 and -50 are,
//                                                   and the side that the point lies on is not told: no place is computed
//   the heights of stations and prisms              serve only for the zenith: no height is computed

#include <verifiche/adattamento.h>
#include <verifiche/righe_lette.h>

#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace lirmeto {

// One sighting, vector or offset: where it puts its point, in the frame of its station and in that of the survey.
struct Stima {
  std::size_t riga = 0;
  Punto punto = SenzaPunto;
  PuntoPiano locale;
  PuntoPiano posto;
  double distanza = 0; // plane, metres
  bool haDistanza = false;
  bool posta = false; // `posto` holds
};

struct Stazionamento {
  std::size_t riga = 0;
  Punto punto = SenzaPunto;
  bool gps = false;
  std::size_t prima = 0; // its estimates: from this one
  std::size_t dopo = 0;  // up to the one before this
  bool posto = false;
  Rototraslazione frame;   // from the station's own frame
  std::size_t noti = 0;    // of its points, itself among them
  std::size_t appoggi = 0; // known points that its frame rests on
};

enum class Origine : std::uint8_t { Ignota, Misure, Squadro, Coordinate };

struct PuntoRete {
  Origine origine = Origine::Ignota;
  PuntoPiano posto;
  std::size_t riga = 0; // that gave its first place
  bool propria = false; // of the first station, and of one that found its place by itself, from three known points
};

class Rete {
public:
  void Calcola(const RigheLette& righe);

  // By number of the point.
  [[nodiscard]] const std::vector<PuntoRete>& Punti() const { return punti_; }
  [[nodiscard]] const std::vector<Stazionamento>& Stazioni() const { return stazioni_; }
  // Of the stations, each with its own behind one another; then those of the rows 5.
  [[nodiscard]] const std::vector<Stima>& Stime() const { return stime_; }
  [[nodiscard]] std::size_t PrimoOffset() const { return primoOffset_; }
  // The estimates that put a point somewhere, by their index, in the order of the rows.
  [[nodiscard]] std::span<const std::size_t> StimeDi(Punto punto) const;
  // Rows 8 of the measures that give coordinates.
  [[nodiscard]] const std::vector<Stima>& Coordinate() const { return coordinate_; }
  // Whether two rows 8 at least hold it, so that the coordinates are those of the map.
  [[nodiscard]] bool SullaMappa() const { return sullaMappa_; }

  [[nodiscard]] bool Nota(Punto punto) const {
    return punto < punti_.size() && punti_[punto].origine != Origine::Ignota;
  }
  [[nodiscard]] const PuntoPiano& Dove(Punto punto) const { return punti_[punto].posto; }
  // Station that an estimate belongs to.
  [[nodiscard]] const Stazionamento& StazioneDi(std::size_t stima) const;
  // The sighting from one point to another: of a station on the first that sees the second; none when there is none.
  [[nodiscard]] const Stima* Battuta(Punto da, Punto a) const;

private:
  void Raccogli(const RigheLette& righe);
  void RaccogliGps(const RigheLette& righe);
  void Collega();
  void Scopri(Punto punto, const PuntoPiano& posto, std::size_t riga, Origine origine);
  void Avvisa(std::size_t stazione);
  void Svolgi();
  [[nodiscard]] bool Orienta(Stazionamento& stazione) const;
  [[nodiscard]] bool OrientaSuDirezione(Stazionamento& stazione) const;
  void Radia(Stazionamento& stazione);
  void IncludiCoordinate();
  void Raggruppa();
  void Media();
  void Squadri(const RigheLette& righe);
  void PortaSullaMappa();

  std::vector<PuntoRete> punti_;
  std::vector<Stazionamento> stazioni_;
  std::vector<Stima> stime_;
  std::vector<Stima> coordinate_;
  std::size_t primoOffset_ = 0;
  bool sullaMappa_ = false;
  // Stations that see a point or stand on it: those of point p from inizi_[p] on, up to inizi_[p + 1].
  std::vector<std::size_t> inizi_;
  std::vector<std::size_t> vedono_;
  std::deque<std::size_t> coda_;
  // Placed estimates by point, in the same way.
  std::vector<std::size_t> iniziStime_;
  std::vector<std::size_t> perPunto_;
};

} // namespace lirmeto
