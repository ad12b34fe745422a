// Any bytes as the TAF of a comune and as an archive of measured distances.

#include "pretendi.h"

#include <base/testo.h>
#include <core/riga.h>
#include <fiduciali/elco_pf_grafica.h>
#include <fiduciali/elco_pf_griglia.h>
#include <fiduciali/importa_fiduciali.h>
#include <fiduciali/misurate.h>
#include <fiduciali/misurate_pf.h>
#include <fiduciali/relazioni_pf.h>
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

// One walk over the archive finds what a search for each pair would, and the report of all pairs comes out.
void ProvaCoppie(prova::Banco& banco, const std::string& testo) {
  const std::vector<std::string> nomi = {"PF", "PF0", Punto, Punto + "@", "PF02/0010/G224"};
  const RelazioniPF relazioni(banco.dialoghi, nomi, testo);
  for (std::size_t i = 0; i < nomi.size(); ++i)
    for (std::size_t j = i + 1; j < nomi.size(); ++j) {
      std::size_t attese = 0;
      for (const auto riga : RigheDi(testo))
        if (Contiene(riga, nomi[i]) && Contiene(riga, nomi[j])) ++attese;
      Pretendi(relazioni.Righe(i, j).size() == attese, "a pair has the lines that hold both its names");
    }
  banco.sessione.Libretto = "8|" + Punto + "|\r\n8|" + nomi[3] + "|\r\n8|" + nomi[4] + "|\r\n";
  Pretendi(MisurateDelLibretto(banco.ambiente).has_value(), "no archive stops the report");
}

// The table and the plane, each command of the view.
void ProvaVisualizzatore(prova::Banco& banco) {
  constexpr int ultimo = 15;
  TabellaPF tabella{"G224", "", "PD", {}};
  CaricaPunti(banco.ambiente, tabella);
  KR_ElcoPfGriglia griglia(banco.ambiente, tabella);
  griglia.Carica();
  for (std::size_t colonna = 0; colonna < ColonnePF.size(); ++colonna) griglia.Ordina(colonna);
  Pretendi(griglia.Viste.size() == tabella.punti.size(), "sorting loses no row");
  KR_ElcoPFGrafica piano(banco.ambiente, tabella);
  piano.AlCaricamento();
  for (int comando = 0; comando <= ultimo; ++comando) piano.Esegui(comando);
  for (const SegmentoPF& segmento : piano.Segmenti)
    Pretendi(segmento.primo < segmento.secondo && segmento.secondo < piano.Punti.size(), "a segment has two points");
  piano.Seleziona(SelezionePF::GaussBoaga);
  piano.Seleziona(SelezionePF::Inverti);
  piano.SelezionaFoglio({0, 0});
  (void)piano.Leggenda({0, 0});
  Pretendi(piano.Larghezza() > 0, "a view has a width");
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
  ProvaCoppie(banco, testo);
  ProvaVisualizzatore(banco);
  return 0;
}
