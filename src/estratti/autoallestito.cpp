#include <estratti/autoallestito.h>

#include <base/testo.h>
#include <core/riga.h>
#include <estratti/anelli_interi.h>
#include <estratti/kr_estratto.h>

namespace lirmeto {

namespace {

bool HaLettere(std::string_view riga) {
  return riga.find_first_of("LTPltp") != std::string_view::npos;
}

// The rows that stay, in order, row 0 left out.
std::vector<std::string_view> RigheTenute(const std::vector<std::string_view>& righe) {
  const auto teste = TesteDegliAnelli(righe);
  std::vector<bool> scartati(righe.size()); // rings, by the place of their head
  for (std::size_t i = 1; i < righe.size(); ++i)
    if (teste[i] != NessunaTesta && HaLettere(righe[i])) scartati[teste[i]] = true;
  std::vector<std::string_view> tenute;
  for (std::size_t i = 1; i < righe.size(); ++i) {
    const bool punto = GenereDi(righe[i]) == Genere::Coordinate;
    const bool tiene = teste[i] != NessunaTesta ? !scartati[teste[i]]
                       : punto                  ? !HaLettere(righe[i])
                                                : Contiene(righe[i], "INQUADRAMENTO");
    if (tiene) tenute.push_back(righe[i]);
  }
  return tenute;
}

} // namespace

std::string TrasformaInAutoallestito(std::string_view testo) {
  const std::string file = ConFineRiga(testo);
  std::string uscita;
  uscita.reserve(file.size());
  uscita.append(RigaZeroAutoallestito).append(FineRiga);
  for (const auto riga : RigheTenute(RigheDi(file))) uscita.append(riga).append(FineRiga);
  return uscita;
}

void TrasformaInAutoallestito(Ambiente& ambiente, std::string_view nome) {
  ambiente.sessione.PuntoErrore = "TrasformaInAutoallestito";
  const std::string percorso = PercorsoEstratto(ambiente.sessione, nome);
  ambiente.disco.Scrivi(percorso, TrasformaInAutoallestito(ambiente.disco.Leggi(percorso)));
}

} // namespace lirmeto
