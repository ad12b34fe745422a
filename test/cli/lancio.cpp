#include <cli/lancio.h>

namespace lirmeto::prova {

namespace {

// One record of the municipal table, as wide as the real ones.
std::string Comune(std::string_view sezione, std::string_view codice, std::string_view provincia, std::string nome,
                   std::string_view campo) {
  nome.resize(34, ' ');
  return "@B" + std::string(sezione) + std::string(codice) + std::string(21, ' ') + std::string(provincia) + nome +
         std::string(campo);
}

} // namespace

ProvaCli::ProvaCli() {
  cartella.Metti("dischi/c/WINDOWS/Pregeo.ini",
                 "[PREGEO]\r\nDskAPPLexe=C:\r\nDskAPPLada=C:\r\n[DATI "
                 "TECNICO]\r\nnome=ROSSI ADA\r\n"
                 "cognome=ROSSI\r\nnome=ADA\r\nqualifica=GEOMETRA\r\nprovincia=PADOVA\r\n"
                 "numero=3127\r\ncodc=RSSDAA80A41G224X\r\n");
  cartella.Metti("dischi/c/pregeo/exe/pregeo.exe", "");
  cartella.Metti("dischi/c/pregeo/exe/prosigle", "PD,PADOVA\r\nFC,FORL\xCC-CESENA\r\n");
  cartella.Metti("dischi/c/pregeo/arch/comunt.dat", "testata" + Comune(" ", "G224", "PD", "PADOVA", "D3AA") +
                                                        Comune("B", "A001", "PD", "ABANO TERME", "D3AB") +
                                                        Comune(" ", "D704", "FC", "FORL\xCC", "E1AA"));
  cartella.Metti("casa/x", "");
  cartella.Metti("fuori/x", "");
}

} // namespace lirmeto::prova
