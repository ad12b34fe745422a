#include <generazione/completa7.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <estratti/superfici.h>
#include <generazione/proposta.h>

namespace lirmeto {

namespace {

constexpr std::size_t PrimoNome = 2; // field of a row 7
constexpr double AreaMassima08 = 20; // square metres

std::vector<PuntoPiano> Vertici(const std::vector<std::string_view>& nomi, const PuntiPerNome& punti) {
  std::vector<PuntoPiano> vertici;
  vertici.reserve(nomi.size());
  for (const auto nome : nomi)
    if (const auto trovato = punti.find(nome); trovato != punti.end()) vertici.push_back(trovato->second);
  return vertici;
}

void Critica(Ambiente& ambiente, std::string_view testo) {
  ambiente.dialoghi.Messaggio(testo, TitoloProgramma, Gravita::Critico);
}

// The area of the row, with what is to be said about it.
double AreaContorno(Ambiente& ambiente, const std::vector<PuntoPiano>& vertici) {
  if (vertici.size() >= MassimoVerticiPoligono) {
    Critica(ambiente, "Contorno di " + TestoIntero(static_cast<long long>(vertici.size())) +
                          " vertici: l'area non viene calcolata");
    return 0;
  }
  const double area = AreaPoligono(vertici);
  if (ambiente.sessione.TipologiaCorrente == "08" && area > AreaMassima08)
    Critica(ambiente, "L'area del nuovo fabbricato supera i 20 mq");
  return area;
}

} // namespace

double AreaPoligono(const std::vector<PuntoPiano>& vertici) {
  constexpr std::size_t triangolo = 3;
  if (vertici.size() < triangolo) return 0;
  std::vector<double> nord;
  std::vector<double> est;
  for (std::size_t i = 0; i <= vertici.size(); ++i) {
    nord.push_back(vertici[i % vertici.size()].nord);
    est.push_back(vertici[i % vertici.size()].est);
  }
  return SuperficieAnello(nord, est);
}

std::vector<std::string> Genera7Completa(Ambiente& ambiente, std::string_view riga, const PuntiPerNome& punti,
                                         std::string_view particella) {
  const auto campi = Dividi(riga, "|");
  if (campi.size() < PrimoNome + 2) return {std::string(riga)};
  const std::vector<std::string_view> nomi(campi.begin() + PrimoNome, campi.end() - 2);
  const double area = AreaContorno(ambiente, Vertici(nomi, punti));
  std::vector<std::string> segnati;
  segnati.reserve(nomi.size());
  for (const auto nome : nomi) segnati.push_back(std::string(nome) + "*");
  std::string coda(particella);
  coda.append("+|").append(particella).append("|").append(Formatta(area, "###########0")).append("|");
  return ComponiRighe7({segnati.begin(), segnati.end()}, campi[campi.size() - 2], coda);
}

} // namespace lirmeto
