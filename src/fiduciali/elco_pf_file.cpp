#include <fiduciali/elco_pf_file.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <grafica/scambio.h>
#include <grafica/scrittore_dxf.h>

#include <array>

namespace lirmeto {

// What could be done in more than one way:
//
//   columns of the .TXT behind the name    each shows the last characters of blanks and its value, references too
//   a selected point that no row tells     one of an extract: its cells are made from what is known of it

namespace {

constexpr std::size_t ColonneStampate = 9; // of the table; the update is left out
constexpr std::array<std::size_t, ColonneStampate> Larghe = {16, 8, 3, 12, 12, 65, 3, 12, 65};
constexpr std::string_view TestataStampa =
    "Punto Fiduciale\tMappale\tAtt.Planim.\tNord\tEst\tRif.Planim.\tAtt.Altim.\tQuota\tRif. Altim.";

LineaGrafica Linea(std::span<const PuntoPF> punti, const SegmentoPF& segmento) {
  const PuntoPF& a = punti[segmento.primo];
  const PuntoPF& b = punti[segmento.secondo];
  return {a.est, a.nord, a.quota, b.est, b.nord, b.quota, 1, colore::Grigio, stile::Continuo};
}

// Cells of the point number `indice`.
RecordTaf Celle(std::span<const PuntoPF> punti, const TabellaPF& tabella, std::size_t indice) {
  if (indice < tabella.punti.size()) return tabella.punti[indice];
  RecordTaf celle;
  celle.nome = punti[indice].nome;
  celle.nord = TestoPieno(punti[indice].nord);
  celle.est = TestoPieno(punti[indice].est);
  return celle;
}

std::string RigaStampa(const RecordTaf& celle) {
  std::string riga = RiempiECorta(celle.nome, Larghe[0]);
  for (std::size_t i = 1; i < ColonneStampate; ++i) riga += AllineaDestra(celle.*ColonnePF[i].cella, Larghe[i]);
  return riga;
}

} // namespace

std::string TestoDxfPF(std::span<const PuntoPF> punti, std::span<const SegmentoPF> segmenti) {
  constexpr std::size_t byteEntita = 100;
  ScrittoreDxf dxf((2 * punti.size() + segmenti.size() + 1) * byteEntita);
  dxf.ApriEntita();
  for (const PuntoPF& punto : punti) {
    dxf.Entita("POINT", "Punti");
    dxf.Posto(punto.est, punto.nord);
    dxf.Entita("TEXT", "Nomi");
    dxf.Posto(punto.est, punto.nord);
    dxf.Nome(punto.nome);
  }
  for (const SegmentoPF& segmento : segmenti) {
    dxf.Entita("LINE", "Linee");
    dxf.Posto(punti[segmento.primo].est, punti[segmento.primo].nord);
    dxf.Fine(punti[segmento.secondo].est, punti[segmento.secondo].nord);
  }
  dxf.Gruppo(" 0", "ENDSEC");
  dxf.Gruppo(" 0", "EOF");
  return dxf.Prendi();
}

std::string TestoScambioPF(std::span<const PuntoPF> punti, std::span<const SegmentoPF> segmenti) {
  ScrittoreScambio scambio;
  for (const PuntoPF& punto : punti) {
    PuntoGrafica grafico;
    grafico.Nome = punto.nome;
    grafico.X = punto.est;
    grafico.Y = punto.nord;
    grafico.Z = punto.quota;
    grafico.Testo = FontPredefinito;
    scambio.Punto(grafico, "TAF");
  }
  for (const SegmentoPF& segmento : segmenti)
    if (punti[segmento.primo].Selezionato() && punti[segmento.secondo].Selezionato())
      scambio.Linea(Linea(punti, segmento), "MISURATE");
  return scambio.Testo();
}

std::string TestoStampaPF(std::span<const PuntoPF> punti, const TabellaPF& tabella) {
  std::string testo(TestataStampa);
  testo += FineRiga;
  for (std::size_t i = 0; i < punti.size(); ++i)
    if (punti[i].Selezionato()) testo.append(RigaConTab(Celle(punti, tabella, i), ColonneStampate)).append(FineRiga);
  return testo;
}

ListaRighe RigheStampaPF(std::span<const PuntoPF> punti, const TabellaPF& tabella) {
  ListaRighe righe;
  for (std::size_t i = 0; i < punti.size(); ++i)
    if (punti[i].Selezionato()) righe.Aggiungi(RigaStampa(Celle(punti, tabella, i)));
  return righe;
}

} // namespace lirmeto
