#include <core/posizione_form.h>

#include <base/numeri.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace lirmeto {

namespace {

constexpr std::string_view Sinistra = "POSIZIONE_FORMx";
constexpr std::string_view Alto = "POSIZIONE_FORMy";
constexpr std::string_view Larghezza = "FORMx";
constexpr std::string_view Altezza = "FORMy";

// A whole number of pixels; none for a text that is no number, the nearest that fits for one too large.
std::optional<int> Pixel(std::string_view testo) {
  if (!ENumero(testo)) return std::nullopt;
  constexpr double massimo = std::numeric_limits<std::int16_t>::max();
  return static_cast<int>(std::clamp(Valore(testo), -massimo, massimo));
}

} // namespace

std::optional<PosizioneForm> LeggiPosizione(const Impostazioni& impostazioni, std::string_view form) {
  const auto leggi = [&](std::string_view sezione) { return Pixel(impostazioni.Leggi(sezione, form, "")); };
  const auto sinistra = leggi(Sinistra);
  const auto alto = leggi(Alto);
  if (!sinistra || !alto) return std::nullopt;
  return PosizioneForm{*sinistra, *alto, std::max(0, leggi(Larghezza).value_or(0)),
                       std::max(0, leggi(Altezza).value_or(0))};
}

void ScriviPosizione(Impostazioni& impostazioni, std::string_view form, const PosizioneForm& posizione) {
  impostazioni.Scrivi(Sinistra, form, TestoIntero(posizione.sinistra));
  impostazioni.Scrivi(Alto, form, TestoIntero(posizione.alto));
  if (posizione.larghezza <= 0 || posizione.altezza <= 0) return;
  impostazioni.Scrivi(Larghezza, form, TestoIntero(posizione.larghezza));
  impostazioni.Scrivi(Altezza, form, TestoIntero(posizione.altezza));
}

} // namespace lirmeto
