#pragma once
// The points of the viewer as texts of other programs.

#include <fiduciali/elco_pf_grafica.h>

#include <span>
#include <string>

namespace lirmeto {

// An ENTITIES section: a POINT on "Punti" and a TEXT on "Nomi" for each point, a LINE on "Linee" for each segment.
[[nodiscard]] std::string TestoDxfPF(std::span<const PuntoPF> punti, std::span<const SegmentoPF> segmenti);

// The exchange file of the sibling drawing program: all points, and the segments between selected ones.
[[nodiscard]] std::string TestoScambioPF(std::span<const PuntoPF> punti, std::span<const SegmentoPF> segmenti);

// The selected points: with tabs under a header, and in columns, a line each.
[[nodiscard]] std::string TestoStampaPF(std::span<const PuntoPF> punti, const TabellaPF& tabella);
[[nodiscard]] ListaRighe RigheStampaPF(std::span<const PuntoPF> punti, const TabellaPF& tabella);

} // namespace lirmeto
