// Any bytes as the answers of the exchange programs: the dialog shows them, and the import only adds rows.

#include "pretendi.h"

#include <base/testo.h>
#include <core/apertura.h>
#include <pregeo/kr_dapregeo.h>
#include <sostituti/banco.h>

#include <cstdint>

using namespace lirmeto;
using lirmeto::prova::Banco;

namespace {

constexpr std::string_view Separatore = "\x01"; // between the answers

void Rispondi(Banco& banco, std::string_view byte) {
  const std::string temp = banco.sessione.CartellaProgramma + "\\TEMP\\";
  const std::string file[] = {banco.sessione.CartellaDocumenti + "\\TEMP\\ELENCO_LIBRETTI.txt",
                              temp + "ESPORTA_LIBRETTO.txt", temp + "ESPORTA_PUNTI_ELABORATI.txt",
                              temp + "ESPORTA_PROPOSTA.txt", temp + "ASSOCIA_ESTRATTO.txt"};
  const auto parti = Dividi(byte, Separatore);
  for (std::size_t i = 0; i < std::size(file) && i < parti.size(); ++i)
    banco.disco.Metti(file[i], std::string(parti[i]));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  Banco banco;
  banco.Apri("0|12032026|18|G224|0010|12|ROSSI MARIO|GEOMETRA|PADOVA|\r\n9|20|10|20|0|P|FR|N|\r\n8|A|1|2|\r\n");
  Rispondi(banco, {reinterpret_cast<const char*>(dati), quanti});
  const std::string estratto = banco.sessione.EstrattoAssociato;
  DisegnoCondiviso disegno;
  KR_Dapregeo form(banco.ambiente, disegno);
  form.AlCaricamento();
  form.CambiaRiga(form.MSFlexGrid1.size() - 1);
  Pretendi(form.MSFlexGrid1.empty() || form.MSFlexGrid1.front().size() == 9, "nine columns");
  Pretendi(banco.Righe().size() == 3, "looking changes no row");
  form.Pulsante(2);
  Pretendi(banco.Righe().size() >= 3 && banco.Righe()[2] == "8|A|1|2|", "an import only adds");
  if (!form.Chiusa) form.Pulsante(0);
  if (form.MSFlexGrid1.empty()) Pretendi(banco.sessione.EstrattoAssociato == estratto, "nothing was shown");
  return 0;
}
