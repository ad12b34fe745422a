// Any bytes as an act that is checked, with an extract behind the line "---": nothing is thrown, every finding has its
// sentence and a row that is there, and a row that has changed leads to the same as all of them read for the first time.

#include "pretendi.h"

#include <base/testo.h>
#include <core/apertura.h>
#include <sostituti/banco.h>
#include <verifiche/disegno_rilievo.h>
#include <verifiche/verifica_anelli.h>
#include <verifiche/verificatore.h>

#include <cstdint>

using namespace lirmeto;
using lirmeto::prova::Banco;

namespace {

void ProvaSegnalazioni(const std::vector<Segnalazione>& segnalazioni, std::size_t righe) {
  for (const Segnalazione& s : segnalazioni) {
    Pretendi(!Testo(s).empty(), "a finding has a sentence");
    Pretendi(!s.riga || *s.riga < righe, "a finding is about a row that is there");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string_view byte(reinterpret_cast<const char*>(dati), quanti);
  const std::size_t taglio = byte.find("\n---\n");
  Banco banco;
  if (taglio != std::string_view::npos) {
    const std::string estratto(byte.substr(taglio + 5));
    banco.disco.Metti("C:\\pregeo\\estratti\\X.EMP", estratto);
    banco.sessione.EstrattoAssociato = "X.EMP";
    ProvaSegnalazioni(VerificaFileEstratto(ConFineRiga(estratto), {2026, 11, 21}), estratto.size() + 1);
  }
  banco.sessione.Libretto = ConFineRiga(byte.substr(0, taglio));
  CaricaLibrettoInList1(banco.ambiente);
  Verificatore verificatore(banco.ambiente);
  verificatore.Aggiorna();
  ProvaSegnalazioni(verificatore.Segnalazioni(), banco.sessione.List1.Quante());
  ArchivioGrafica archivio;
  DisegnaRilievo({verificatore.Righe(), verificatore.Posti(), verificatore.Archivi()}, archivio);
  const std::size_t meta = banco.sessione.List1.Quante() / 2;
  if (meta >= 2) banco.sessione.List1.Togli(meta);
  verificatore.Aggiorna();
  Verificatore daCapo(banco.ambiente);
  daCapo.Aggiorna();
  Pretendi(verificatore.Segnalazioni() == daCapo.Segnalazioni(), "what was kept takes no part");
  return 0;
}
