#pragma once
// Names of forms that a layer below theirs opens.

#include <string_view>

namespace lirmeto::forma {

inline constexpr std::string_view EstrattiDiMappa = "KR_EstrattiDiMappa1";
inline constexpr std::string_view ModelloCensuario = "KR_EDM";
inline constexpr std::string_view EstrattoProvvisorio = "TIPOL10_PROVVISORIO"; // Tipol10 for typology 1000
inline constexpr std::string_view CompletaAutoallestito = "CompletaAutoallestito";

} // namespace lirmeto::forma
