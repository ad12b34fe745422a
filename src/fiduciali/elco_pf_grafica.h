#pragma once
// The form that draws the fiducial points of a comune on a plane, with the distances measured between them.

#include <base/dialoghi.h>
#include <fiduciali/segmenti_pf.h>
#include <fiduciali/tabella_pf.h>
#include <grafica/grafica.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Whether a point is selected, as its record has it. The two values stand nowhere else.
namespace selezione {
inline constexpr double Si = 0;
inline constexpr double No = -1;
} // namespace selezione

struct PuntoPF {
  std::string nome;
  double est = 0; // metres
  double nord = 0;
  double quota = 0;
  std::string riferimentoPlanimetrico;
  double selezionato = selezione::No;
  std::string mappale;
  std::string riferimentoAltimetrico;

  [[nodiscard]] bool Selezionato() const { return selezionato == selezione::Si; }
};

// What the next click does.
enum class StrumentoPF { Nessuno, ZoomFinestra, Foglio, Intorno };

// Selections that the user asks for.
enum class SelezionePF { Tutti, Nessuno, Inverti, Foglio, Intorno, GaussBoaga, FuoriUso };

class KR_ElcoPFGrafica : public Modello {
public:
  // The table must outlive the form.
  KR_ElcoPFGrafica(Ambiente& ambiente, const TabellaPF& tabella);

  std::vector<PuntoPF> Punti;       // those of the table first, in its order
  std::vector<SegmentoPF> Segmenti; // at most MassimoSegmenti
  double LarghezzaFoglio = 0.25;    // metres, of the picture on the screen
  bool Chiusa = false;
  bool TuttoChiuso = false; // the points were handed over: the forms before this one close too

  [[nodiscard]] Grafica& Grafica1() { return grafica_; }
  [[nodiscard]] const Grafica& Grafica1() const { return grafica_; }
  [[nodiscard]] StrumentoPF Strumento() const { return strumento_; }
  [[nodiscard]] bool Check1() const { return !grafica_.Vista().Check2; } // names beside the marks
  [[nodiscard]] std::size_t Selezionati() const;

  void AlCaricamento();

  // A button of the indexed row. Errors are reported here.
  void Esegui(int indice);
  void Seleziona(SelezionePF quali);
  void CambiaCheck1(bool si);

  // A click at map coordinates, with the tool that is armed; it is used up.
  void Clic(const PuntoPiano& posto);
  // The armed window: two opposite corners of it in map coordinates.
  void ZoomFinestra(const PuntoPiano& primo, const PuntoPiano& secondo);
  // Without using it.
  void LasciaStrumento() { strumento_ = StrumentoPF::Nessuno; }

  // Width of the view, metres; 0 or less is taken as 640.
  [[nodiscard]] double Larghezza() const { return grafica_.Vista().Larghezza(); }
  void MettiLarghezza(double metri);
  // The surface has this shape, width over height. The first time the view is fitted to it.
  void MettiRapporto(double rapporto);

  // What is said of a place of the map: coordinates, scale, and the point that stands there.
  [[nodiscard]] std::string Leggenda(const PuntoPiano& posto) const;

  void ZoomTutto();
  void RiDisegnaPF();
  void subZoomElcoPF(int verso); // 1 nearer, 2 farther
  void SelezionaFoglio(const PuntoPiano& posto);
  void SelezionaIntorno(const PuntoPiano& posto, double raggio);
  void MettiDistanzeMisurate(const std::string& archivio);
  void AssociamiEstratto();
  void Stampa();
  void CopiaInFilePF();
  void ElcoPF_SalvaDXF();
  void AnteprimaStampapf();

private:
  void EsegueComando(int indice);
  void Sposta(double partiDiLarghezza);
  void Arma(StrumentoPF strumento);
  void ChiediRaggio();
  void CopiaSchermo();
  void SelezionaSe(bool (*condizione)(const PuntoPF&));
  void AggiungiPunti(std::string_view estratto);
  [[nodiscard]] const PuntoPF* PiuVicino(const PuntoPiano& posto, double entro) const;
  [[nodiscard]] std::string ArchivioDellaProvincia();

  Ambiente& ambiente_;
  const TabellaPF& tabella_;
  DisegnoCondiviso disegno_;
  Grafica grafica_;
  StrumentoPF strumento_ = StrumentoPF::Nessuno;
  double raggio_ = 0;     // round the click to come, metres
  bool adattata_ = false; // to the shape of the surface
};

// What the two rows of buttons offer, for the window to show.
struct VocePF {
  int indice = 0; // of Esegui
  std::string_view icona;
  std::string_view didascalia;
  std::string_view spiegazione;
};
struct VoceSelezionePF {
  SelezionePF selezione;
  std::string_view icona; // name of its file, without extension
  std::string_view didascalia;
  std::string_view spiegazione;
};
[[nodiscard]] std::span<const VocePF> VociElcoPF();
[[nodiscard]] std::span<const VoceSelezionePF> VociSelezionePF();

} // namespace lirmeto
