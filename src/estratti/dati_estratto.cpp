#include <estratti/dati_estratto.h>

#include <base/estremi.h>
#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/campi.h>
#include <estratti/kr_estratto.h>

#include <algorithm>
#include <cmath>

namespace lirmeto {

namespace {

constexpr double MesiValidita = 6;

// The text from a place on, which may lie behind its end.
std::string Pezzo(std::string_view testo, std::size_t da, std::size_t quanti) {
  return std::string(testo.substr(std::min(da, testo.size()), quanti));
}

std::string UltimiCaratteri(std::string_view testo, std::size_t quanti) {
  return std::string(testo.substr(testo.size() - std::min(quanti, testo.size())));
}

// Whether a row 7 is the head of a base ring.
bool AnelloBase(std::string_view riga, const Campi& campi) {
  return Valore(campi[1]) != 0 && !Contiene(riga, "+|") && !Contiene(riga, "-|") && !Contiene(riga, "L|") &&
         !Contiene(riga, "T|");
}

// Collects what the rows behind row 0 say.
class Raccolta {
public:
  void Aggiungi(std::string_view riga) {
    const Genere genere = GenereDi(riga);
    if (genere != Genere::Contorno && genere != Genere::Coordinate) return;
    campi_.Dividi(riga);
    if (genere == Genere::Contorno && AnelloBase(riga, campi_)) particelle_ += "," + std::string(campi_.DaUltimo(3));
    if (genere == Genere::Coordinate && !riga.starts_with("8|PF")) est_.Vedi(Valore(campi_[3]));
  }

  [[nodiscard]] std::string Particelle() const { return Pezzo(particelle_, 1, std::string::npos); }
  [[nodiscard]] std::string EstMedio() const { return Formatta(est_.Media(), "##########0"); }

private:
  Campi campi_;
  std::string particelle_; // a comma before each
  Estremi est_;
};

} // namespace

std::optional<DatiEstratto> CopiaIDatiDellEstratto(Ambiente& ambiente, std::string_view nome) {
  if (Contiene(Maiuscolo(nome), ".AGG")) {
    ambiente.dialoghi.Messaggio("selezionare un .EMP !");
    return std::nullopt;
  }
  const std::string percorso = CartellaEstratti(ambiente.sessione) + "\\" + ComponenteFile(nome);
  if (nome.empty() || !ambiente.disco.Esiste(percorso)) return DatiEstratto{};
  const std::string testo = ConFineRiga(ambiente.disco.Leggi(percorso));
  const auto righe = RigheDi(testo);
  const Campi zero(righe.empty() ? std::string_view{} : righe.front());
  ambiente.sessione.Provincia = zero[6];
  // The parcels of row 0 are those that were asked for; what counts are those that are there.
  Raccolta raccolta;
  for (std::size_t i = 1; i < righe.size(); ++i) raccolta.Aggiungi(righe[i]);
  return DatiEstratto{std::string(zero[3]), UltimiCaratteri(zero[4], 4), raccolta.Particelle(), raccolta.EstMedio()};
}

void RiconosciEstratto(Sessione& sessione, std::string_view testo) {
  sessione.VersionePregeoEstratto = Contiene(testo, "DISTORSIONE") ? "10" : "9";
  sessione.TipoEstratto = Contiene(testo, "|AUTOALLESTITO|") ? "AUTOALLESTITO" : "";
}

std::string ScadenzaEstratto(const Sessione& sessione) {
  const double mesi = Valore(sessione.EstrattoMesi) - MesiValidita;
  std::string frase;
  frase += mesi > 0 ? "L'Estratto è scaduto da "_w : std::string_view("L'Estratto scade tra    ");
  return frase + TestoPieno(mesi) + " mesi";
}

std::string RilascioEstratto(const Sessione& sessione) {
  const std::string& data = sessione.EstrattoData;
  return "Rilasciato il " + Pezzo(data, 0, 2) + "-" + Pezzo(data, 2, 2) + "-" + Pezzo(data, 4, 4);
}

} // namespace lirmeto
