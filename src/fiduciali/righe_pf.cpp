#include <fiduciali/righe_pf.h>

#include <base/numeri.h>
#include <base/testo.h>

namespace lirmeto {

namespace {

constexpr std::string_view TipoPredefinito = "04";

std::string RigaPosto(const RecordTaf& taf, std::string_view riferimento) {
  return "8|" + taf.nome + "|" + taf.nord + "|" + taf.est + "|" + taf.attendibilitaPlanimetrica + "|" +
         std::string(riferimento) + "|";
}

struct CampiQuota {
  std::string_view quota;
  std::string_view tipo;
  std::string_view riferimento;
};

std::string RigaQuota(const RecordTaf& taf, const CampiQuota& campi) {
  std::string riga = "8|" + taf.nome + "|";
  for (const auto campo : {campi.quota, campi.tipo, campi.riferimento}) (riga += campo) += '|';
  return riga;
}

bool DaManufatto(const RecordTaf& taf) {
  return Contiene(Maiuscolo(taf.riferimentoAltimetrico), "<QUOTA>");
}

std::string_view SeVuoto(std::string_view testo, std::string_view predefinito) {
  return testo.empty() ? predefinito : testo;
}

} // namespace

RighePF RighePFImportate(const RecordTaf& taf) {
  const bool daManufatto = DaManufatto(taf);
  const CampiQuota campi{SeVuoto(taf.quota, "9999.000"),
                         daManufatto ? TipoPredefinito : SeVuoto(taf.attendibilitaAltimetrica, TipoPredefinito),
                         daManufatto ? std::string_view("Base Spigolo") : SeVuoto(taf.riferimentoAltimetrico, "NOTE:")};
  return {RigaPosto(taf, taf.riferimentoPlanimetrico), RigaQuota(taf, campi)};
}

RighePF RighePFDelDisegno(const RecordTaf& taf, std::string_view riga) {
  constexpr std::size_t primaColonna = 30; // of the place
  constexpr std::size_t ultimaColonna = 94;
  const bool senzaTipo = taf.quota.empty() || Valore(taf.attendibilitaAltimetrica) == 0;
  const CampiQuota campi{
      SeVuoto(taf.quota, "9999"), senzaTipo ? TipoPredefinito : std::string_view(taf.attendibilitaAltimetrica),
      DaManufatto(taf) ? std::string_view("BASE MANUFATTO-SUOLO") : std::string_view(taf.riferimentoAltimetrico)};
  const std::string posto = Sostituisci(Colonne(riga, primaColonna, ultimaColonna), "\"", "'");
  return {RigaPosto(taf, posto), RigaQuota(taf, campi)};
}

} // namespace lirmeto
