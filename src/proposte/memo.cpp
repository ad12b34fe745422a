#include <proposte/memo.h>

#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/zero_nove.h>

namespace lirmeto {

ListaRighe RigheCensuarie(std::string_view testo) {
  ListaRighe righe;
  for (const auto riga : Dividi(testo, FineRiga))
    if (RigaCensuaria(riga)) righe.Aggiungi(riga);
  return righe;
}

void IniziaMemo(ElencoRighe& memo, std::string_view sezione) {
  memo.Aggiungi(censuario::Intestazione);
  memo.Aggiungi(RigaConteggio(sezione, 0));
}

void AggiungiDati(ElencoRighe& memo, const ListaRighe& sezione) {
  for (std::size_t i = RigheDiTesta; i < sezione.size(); ++i) memo.Aggiungi(sezione[i]);
}

void RinnovaConteggio(ElencoRighe& memo) {
  if (memo.Quante() < RigheDiTesta) return;
  std::string conteggio(memo.Riga(1));
  SovrascriviCampo(conteggio, censuario::Conteggio, TreCifre(memo.Quante() - RigheDiTesta));
  memo.Cambia(1, conteggio);
}

std::string PercorsoCen(const Sessione& sessione, std::string_view nome) {
  return sessione.CartellaProgramma + "\\temp\\" + std::string(nome);
}

std::string LeggiCen(Ambiente& ambiente, std::string_view nome) {
  return nome.empty() ? std::string{} : CaricaFileIntero(ambiente, PercorsoCen(ambiente.sessione, nome));
}

void ScriviCen(Ambiente& ambiente, std::string_view nome, const ElencoRighe& memo) {
  if (nome.empty()) return;
  ambiente.disco.Scrivi(PercorsoCen(ambiente.sessione, nome), RigheUnite(memo.Righe()));
}

void TogliCensuarie(Sessione& sessione) {
  std::string resto;
  resto.reserve(sessione.Libretto.size());
  for (const auto riga : RigheDi(sessione.Libretto))
    if (!riga.empty() && !RigaCensuaria(riga)) resto.append(riga).append(FineRiga);
  sessione.Libretto = std::move(resto);
}

void AccodaAlLibretto(Sessione& sessione, const ListaRighe& righe) {
  std::string& libretto = sessione.Libretto;
  if (!libretto.empty() && !libretto.ends_with(FineRiga)) libretto += FineRiga;
  libretto += RigheUnite(righe);
}

void SalvaPropostaFile(Ambiente& ambiente, const ElencoRighe& memo) {
  if (memo.Quante() <= RigheDiTesta) return;
  DecoZeroNove(ambiente);
  AccodaAlLibretto(ambiente.sessione, memo.Righe());
}

void SalvaPropostaFile1(Ambiente& ambiente, const ElencoRighe& memo) {
  if (memo.Quante() <= RigheDiTesta) return;
  DecoZeroNove(ambiente);
  TogliCensuarie(ambiente.sessione);
  AccodaAlLibretto(ambiente.sessione, memo.Righe());
}

} // namespace lirmeto
