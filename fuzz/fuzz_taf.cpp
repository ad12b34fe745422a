// Any bytes as the TAF of a comune and as an archive of measured distances.

#include "pretendi.h"

#include <base/testo.h>
#include <core/riga.h>
#include <fiduciali/importa_fiduciali.h>
#include <fiduciali/misurate.h>
#include <fiduciali/taf.h>
#include <sostituti/banco.h>

#include <cstdint>
#include <map>

using namespace lirmeto;

namespace {

const std::string Dati = "C:\\fiducial\\DATI\\";
const std::string Lista = "C:\\Program Files (x86)\\Gondella\\temp\\Misurate.TXT";
const std::string Punto = "PF01/0010/G224";

void ProvaRecord(std::string_view riga) {
  const RecordTaf taf = DecodificaRigaTAF(riga);
  Pretendi(taf.foglio.size() == 3 && taf.allegato.size() == 1 && taf.numero.size() == 4, "a name has fixed pieces");
  Pretendi(taf.nome == taf.numero + "/" + taf.foglio + taf.allegato + "/" + taf.comune, "a name is its pieces");
  for (const auto& campo : {taf.nord, taf.est, taf.quota, taf.riferimentoPlanimetrico})
    Pretendi(Taglia(campo) == campo, "fields are trimmed");
}

// The archive's index finds what a walk over the lines finds.
void ProvaArchivio(prova::Banco& banco, const std::string& testo) {
  std::map<std::string, std::string_view> prime;
  for (const auto riga : RigheDi(testo)) {
    ProvaRecord(riga);
    prime.try_emplace(DecodificaRigaTAF(riga).nome, riga);
  }
  ArchivioTaf archivio(banco.ambiente);
  for (const auto& [nome, riga] : prime)
    if (ComuneDelPunto(nome) == "G224") Pretendi(archivio.Riga(nome) == riga, "the first record of a name is found");
  if (CercaPFinTAF(banco.ambiente, Punto)) Pretendi(Contiene(testo, "G224"), "what is found is there");
}

void ProvaForm(prova::Banco& banco) {
  banco.Apri("0|\r\n9|\r\n8|" + Punto + "|1|2|\r\n6|x|\r\n");
  FormImportaFiduciali form(banco.ambiente);
  form.AggiungiRigheQuota = true;
  form.AlCaricamento();
  Pretendi(form.List1 == std::vector<std::string>{Punto}, "the libretto's points do not depend on the archive");
  Pretendi(form.List2.size() == 2 * form.PuntiInTaf && form.PuntiInTaf <= 1, "two rows for a point");
  for (const auto& riga : form.List2) Pretendi(riga.starts_with("8|" + Punto + "|"), "rows 8 of the point");
}

void ProvaMisurate(prova::Banco& banco, const std::string& testo) {
  std::string attese;
  for (const auto riga : RigheDi(testo))
    if (Contiene(riga, Punto)) attese.append(riga).append(FineRiga);
  if (attese.empty()) attese = "Nessuna relazione con altri PF trovata!\r\n";
  InfoMisurate(banco.ambiente, Punto);
  Pretendi(banco.disco.Contenuto(Lista) == "Provincia di : PD.DDD\r\n" + attese, "the report has the point's lines");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string byte(reinterpret_cast<const char*>(dati), quanti);
  prova::Banco banco;
  banco.disco.Metti(Dati + "G224.taf", byte);
  banco.disco.Metti(Dati + "PD.DDD", byte);
  const std::string testo = ConFineRiga(byte);
  ProvaArchivio(banco, testo);
  ProvaForm(banco);
  ProvaMisurate(banco, testo);
  return 0;
}
