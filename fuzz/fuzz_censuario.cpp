// Any bytes as a parcel's row, a derivation list, areas with their keys and a memo, parted by lines "---"; the same bytes
// as the files of a fusion, as a libretto and as an extract.

#include "pretendi.h"
#include "sostituti/banco.h"

#include <base/testo.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <proposte/archivio_particelle.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>
#include <proposte/kr_tm_fusione.h>

#include <algorithm>
#include <cstdint>

using namespace lirmeto;

namespace {

prova::Banco& IlBanco() {
  static prova::Banco banco;
  return banco;
}

std::string Parte(const std::vector<std::string_view>& parti, std::size_t indice) {
  return indice < parti.size() ? std::string(parti[indice]) : std::string{};
}

void ProvaRighe(const ListaRighe& righe) {
  for (std::size_t i = 2; i < righe.size(); ++i) {
    Pretendi(RigaCensuaria(righe[i]), "a composed row is a census row");
    Pretendi(std::ranges::all_of(BarreCensuarie, [&](std::size_t colonna) { return righe[i][colonna - 1] == '|'; }),
             "bars stand at their columns");
  }
  (void)VerificaElencoCensuario(righe, IlBanco().sessione.TabellaQualita);
}

template <typename Form>
void ProvaDerivate(const ParticellaScelta& scelta, const std::vector<std::string_view>& parti) {
  Form form(IlBanco().ambiente, scelta);
  form.Apri({Parte(parti, 2), Parte(parti, 1), Parte(parti, 3), Parte(parti, 2)});
  form.PropostaAutomatica();
  ProvaRighe(form.List1);
  const auto aree = RigheDi(parti.size() > 2 ? parti[2] : std::string_view{});
  form.CambiaText1(std::to_string(std::min<std::size_t>(aree.size(), 40)));
  for (std::size_t i = 0; i < std::min<std::size_t>(aree.size(), 40); ++i) {
    form.CambiaText2(aree[i]);
    form.Invio();
  }
  form.DoppioClick(4, aree.size() % 9);
  ProvaRighe(form.List1);
  form.AggiungiAlMemo();
  (void)form.RilieviMemo();
}

void ProvaFusione(const std::vector<std::string_view>& parti) {
  prova::Banco& banco = IlBanco();
  KR_TMFusione form(banco.ambiente);
  form.Apri(Parte(parti, 3));
  for (std::size_t i = 0; i < std::min<std::size_t>(parti.size(), 3); ++i) {
    const std::string nome = "C:\\" + std::to_string(i) + ".MAP";
    banco.disco.Metti(nome, Parte(parti, i));
    form.List2.push_back(nome);
  }
  form.Check1 = parti.size() % 2 == 0;
  form.AnteprimaTMFusione();
  ProvaRighe(form.List1);
}

void ProvaArchivio(const std::string& testo, const std::string& riga) {
  Sessione sessione;
  sessione.Libretto = testo;
  (void)ParticelleDelLibretto(sessione);
  const std::string nuovo = EstrattoConParticella(testo, riga);
  Pretendi(Contiene(nuovo, riga), "the saved parcel is in the extract");
  Pretendi(EstrattoConParticella(nuovo, riga) == nuovo, "a parcel saved twice is there once");
  try {
    (void)ParticelleDellEstratto(sessione, testo);
  } catch (const Errore&) {
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string testo = ConFineRiga(std::string_view(reinterpret_cast<const char*>(dati), quanti));
  const auto parti = Dividi(testo, "---\r\n");
  const std::string particella = Parte(parti, 0).substr(0, Parte(parti, 0).find(FineRiga));
  ProvaFusione(parti);
  try {
    const ParticellaScelta scelta = ScegliParticella(IlBanco().sessione, particella, Parte(parti, 1));
    ProvaDerivate<KR_Fraziona>(scelta, parti);
    ProvaDerivate<KR_Stralcio>(scelta, parti);
    ProvaArchivio(testo, RigaParticella(scelta.dati));
  } catch (const Errore&) {
    ProvaArchivio(testo, "6|PARTICELLA|x|");
  }
  return 0;
}
