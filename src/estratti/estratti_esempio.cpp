#include <estratti/estratti_esempio.h>

#include <base/testo.h>
#include <core/cartelle.h>
#include <estratti/anelli_interi.h>
#include <estratti/kr_estratto.h>

#include <string>

namespace lirmeto {

namespace {

// A parcel of fifteen vertices.
constexpr std::string_view Punti = "8|1%|-5558.7901700704|-3805.0654129576|\r\n"
                                   "8|2%|-5541.2203415526|-3782.9441870312|\r\n"
                                   "8|3%|-5526.9017324458|-3758.1106624971|\r\n"
                                   "8|4%|-5517.0038847719|-3731.2950117806|\r\n"
                                   "8|5%|-5512.4771092365|-3703.2841695527|\r\n"
                                   "8|6%|-5513.8412256014|-3674.9102773318|\r\n"
                                   "8|7%|-5521.1034471180|-3647.5516904283|\r\n"
                                   "8|8%|-5534.6017826639|-3622.7013358017|\r\n"
                                   "8|9%|-5571.2284406653|-3634.4918870265|\r\n"
                                   "8|10%|-5608.0152299471|-3646.3320817742|\r\n"
                                   "8|11%|-5622.5540176120|-3679.9087723168|\r\n"
                                   "8|12%|-5631.7720184409|-3715.5513027751|\r\n"
                                   "8|13%|-5634.0417702261|-3752.6602211838|\r\n"
                                   "8|14%|-5616.3392750084|-3772.1874400219|\r\n"
                                   "8|15%|-5594.9038125570|-3789.6618270046|\r\n";
constexpr std::string_view Anello = "7|16|1%|2%|3%|4%|5%|6%|7%|8%|9%|10%|NC|257|257|15997.2226623190|\r\n"
                                    "7|0|11%|12%|13%|14%|15%|1%|NC|\r\n";

// A further ring of the same parcel, beside it.
constexpr std::string_view PuntiOltre = "8|16%|-5566.0113826405|-3838.2270916633|\r\n"
                                        "8|17%|-5598.4410077152|-3846.0518824470|\r\n"
                                        "8|18%|-5631.5502914426|-3817.9966371855|\r\n";
constexpr std::string_view AnelloOltre = "7|7|1%|16%|17%|18%|14%|15%|1%|NC|257+|257+|3161.9339287270|\r\n";

constexpr std::string_view Inquadramento =
    "6|INQUADRAMENTO|-5314.4370600949|-4186.262295231|0.5064939016|-5314.4370600949|-4186.262295231|6.2823896247|\r\n";

std::string Estratto(std::initializer_list<std::string_view> parti) {
  std::string testo(RigaZeroAutoallestito);
  testo += FineRiga;
  for (const auto parte : parti) testo += parte;
  return testo;
}

} // namespace

void ScriviEstrattiEsempio(Ambiente& ambiente) {
  CreaCartella(ambiente, CartellaEstratti(ambiente.sessione));
  const std::string cartella = CartellaEstratti(ambiente.sessione) + "\\";
  ambiente.disco.Scrivi(cartella + "ESTRATTO.emp", Estratto({Punti, Anello, Inquadramento}));
  ambiente.disco.Scrivi(cartella + "ESTRATTO1.emp", Estratto({Punti, PuntiOltre, Anello, AnelloOltre, Inquadramento}));
}

} // namespace lirmeto
