#include <fiduciali/misurate_pf.h>

#include <fiduciali/relazioni_pf.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <fiduciali/misurate.h>
#include <fiduciali/taf.h>

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// What could be done in more than one way:
//
//   a name in the report                 fifteen columns of the name and two blanks, cut: a name of ten has twelve
//   "@" in a name                        is taken off to look the point up, and stays everywhere else
//   the pair in an archive's line        takes the place of its first 32 columns, whatever is shorter
//   one name inside another              a line, or an entry of the TAF, that holds the longer one holds both
//   the third marker                     stands while the report is put together and opened
//   the comune of the first point        with "@" taken off; all points are looked up in the archive of its province

namespace {

constexpr std::size_t MassimoPunti = 50;
constexpr std::size_t LungoSenzaComune = 13; // a name of a drawing must be longer to have a comune
constexpr std::size_t CampoComune = 2;       // of a name, at "/"
constexpr std::size_t ColonneNome = 15;
constexpr std::size_t ColonneNomi = 32; // of both, in a line
constexpr std::size_t ColonneDistanza = 13;
constexpr std::size_t ColonneDifferenza = 10;
constexpr std::string_view Titolo = "Elenco Distanze Misurate Trovate";
constexpr std::string_view Testata =
    "PF1              PF2                  Distanza     SQM     Anno Prot.       Diff.";

struct Variante {
  std::string_view coda; // of the markers
  std::string_view senzaPunti;
  std::string_view formato;
  bool proponeArchivio; // a missing archive may be fetched
};

constexpr Variante DaDisegno = {"", "Nessun PF trovato nel disegno", "#########0.##0", false};
constexpr Variante DaLibretto = {"_DaLibretto", "Nessun PF trovato nel libretto", "######0.##0", true};

// Distance of two points as the survey has it, metres.
using Reale = std::function<double(const std::string&, const std::string&)>;

bool IniziaPF(std::string_view nome) {
  return Maiuscolo(nome.substr(0, 2)) == "PF";
}

std::string SenzaChiocciola(std::string_view nome) {
  return Sostituisci(nome, "@", "");
}

std::string Left15(std::string_view nome) {
  return (std::string(nome.substr(0, ColonneNome)) + "  ").substr(0, ColonneNome);
}

void Marca(Ambiente& ambiente, const Variante& variante, char stadio) {
  ambiente.sessione.PuntoErrore = "CalcolaMisuratePF" + std::string(1, stadio) + std::string(variante.coda);
}

// Path of the archive for all points; none when it is not installed, which is told.
std::optional<std::string> Archivio(Ambiente& ambiente, const Variante& variante, const std::string& primo) {
  if (QuanteParti(primo, '/') <= CampoComune) throw Errore(errore::IndiceFuoriIntervallo);
  const std::string nome = TrovaArchivioMisurate(ambiente, SenzaChiocciola(Parte(primo, '/', CampoComune)));
  std::string percorso = CartellaArchivi(ambiente.sessione) + nome;
  if (ArchivioInstallato(ambiente, nome)) return percorso;
  constexpr std::string_view titolo = "Archivio Misurate";
  const std::string manca = "Archivio " + percorso + std::string(FineRiga) + " Non installato. ";
  if (!variante.proponeArchivio)
    ambiente.dialoghi.Messaggio(manca + "Provvedere e ritentare!", titolo);
  else if (ambiente.dialoghi.Chiedi(manca + "Scaricare Archivio?", titolo, Bottoni::SiNo) == Risposta::Si)
    ImportaTafMisurate(ambiente);
  return std::nullopt;
}

// Entries of the TAF by the points that are looked for.
class PuntiTaf {
public:
  PuntiTaf(Ambiente& ambiente, const std::vector<std::string>& nomi) {
    std::vector<std::string> cercati;
    cercati.reserve(nomi.size());
    for (const std::string& nome : nomi) cercati.push_back(SenzaChiocciola(nome));
    const auto trovati = CercaPFinTAF(ambiente, cercati);
    for (std::size_t i = 0; i < nomi.size(); ++i) {
      if (trovati[i])
        voci_.push_back(nomi[i] + "|" + trovati[i]->est + "|" + trovati[i]->nord);
      else
        ambiente.dialoghi.Messaggio("Il " + nomi[i] + std::string(FineRiga) +
                                        std::string(" Non è stato trovato nella TAF!"_w),
                                    "PF Non trovato");
    }
  }

  // None when either is missing.
  [[nodiscard]] std::optional<double> Distanza(std::string_view primo, std::string_view secondo) const {
    const std::string* a = Prima(primo);
    const std::string* b = Prima(secondo);
    if (a == nullptr || b == nullptr) return std::nullopt;
    const auto posto = [](const std::string& voce) {
      return PuntoPiano{Valore(Parte(voce, '|', 1)), Valore(Parte(voce, '|', 2))};
    };
    return DistanzaPiana(posto(*a), posto(*b));
  }

private:
  [[nodiscard]] const std::string* Prima(std::string_view nome) const {
    const auto voce =
        std::find_if(voci_.begin(), voci_.end(), [nome](const std::string& una) { return Contiene(una, nome); });
    return voce == voci_.end() ? nullptr : &*voce;
  }

  std::vector<std::string> voci_; // name|east|north
};

// The lines of the report, in the order of the pairs.
class Relazione {
public:
  explicit Relazione(std::string_view formato) : formato_(formato) { Riga(std::string(Titolo)); }

  void Coppia(std::string_view primo, std::string_view secondo, double reale) {
    nomi_ = Left15(primo) + "- " + Left15(secondo);
    reale_ = reale;
    Riga(" ");
    Riga(std::string(Testata));
    Riga(nomi_ + Numero(ColonneDistanza, reale) + "               (REALE)");
  }
  void Taf(double distanza) {
    Riga(nomi_ + Numero(ColonneDistanza, distanza) + "               ( TAF )    " + Differenza(distanza));
  }
  void Archivio(const std::vector<std::string_view>& righe) {
    double somma = 0;
    for (const auto riga : righe) {
      const double distanza = DistanzaMisurata(riga);
      Riga(nomi_ + std::string(riga.substr(std::min(riga.size(), ColonneNomi))) + Differenza(distanza));
      somma += distanza;
    }
    if (somma > 0)
      Riga(std::string(ColonneNomi, ' ') + Numero(ColonneDistanza, somma / static_cast<double>(righe.size())) +
           "               ( Media )    ");
  }

  [[nodiscard]] std::string Prendi() { return std::move(testo_); }

private:
  void Riga(std::string riga) {
    std::replace(riga.begin(), riga.end(), ',', '.');
    testo_ += riga;
    testo_ += FineRiga;
  }
  [[nodiscard]] std::string Numero(std::size_t colonne, double metri) const {
    return AllineaDestra(Formatta(metri, formato_), colonne);
  }
  [[nodiscard]] std::string Differenza(double distanza) const { return Numero(ColonneDifferenza, reale_ - distanza); }

  std::string_view formato_;
  std::string nomi_;
  double reale_ = 0;
  std::string testo_;
};

std::string Componi(const std::vector<std::string>& nomi, const RelazioniPF& relazioni, const PuntiTaf& taf,
                    const Reale& reale, std::string_view formato) {
  Relazione relazione(formato);
  for (std::size_t i = 0; i + 1 < nomi.size(); ++i)
    for (std::size_t j = i + 1; j < nomi.size(); ++j) {
      relazione.Coppia(nomi[i], nomi[j], reale(nomi[i], nomi[j]));
      if (const auto distanza = taf.Distanza(nomi[i], nomi[j])) relazione.Taf(*distanza);
      relazione.Archivio(relazioni.Righe(i, j));
    }
  return relazione.Prendi();
}

std::optional<std::string> Calcola(Ambiente& ambiente, const Variante& variante, std::vector<std::string> nomi,
                                   const Reale& reale) {
  std::sort(nomi.begin(), nomi.end());
  nomi.erase(std::unique(nomi.begin(), nomi.end()), nomi.end());
  if (nomi.empty()) {
    ambiente.dialoghi.Messaggio(variante.senzaPunti, "MISURATE PF");
    return std::nullopt;
  }
  if (nomi.size() > MassimoPunti) {
    ambiente.dialoghi.Messaggio("Troppi PF da elaborare", "Problema !!");
    return std::nullopt;
  }
  const auto archivio = Archivio(ambiente, variante, nomi.front());
  if (!archivio) return std::nullopt;
  const PuntiTaf taf(ambiente, nomi);
  Marca(ambiente, variante, '2');
  const std::string testo = CaricaFileIntero(ambiente, *archivio);
  const RelazioniPF relazioni(ambiente.dialoghi, nomi, testo);
  Marca(ambiente, variante, '3');
  return Componi(nomi, relazioni, taf, reale, variante.formato);
}

// The points of a drawing by name, the first of each, names of fiducial points in capitals.
class Disegnati {
public:
  Disegnati(Ambiente& ambiente, std::span<const PuntoMisurato> punti) {
    for (const PuntoMisurato& punto : punti) {
      if (punto.Nome.size() <= LungoSenzaComune || !IniziaPF(punto.Nome)) continue;
      const std::string nome = Maiuscolo(punto.Nome);
      if (nome[LungoSenzaComune] < '0' || nome[LungoSenzaComune] > '9')
        Scarta(ambiente, nome);
      else if (punti_.try_emplace(nome, &punto).second)
        nomi_.push_back(nome);
    }
  }

  [[nodiscard]] const std::vector<std::string>& Nomi() const { return nomi_; }
  [[nodiscard]] double Distanza(const std::string& primo, const std::string& secondo) const {
    const PuntoMisurato& a = *punti_.at(primo);
    const PuntoMisurato& b = *punti_.at(secondo);
    return DistanzaPiana({a.X, a.Y}, {b.X, b.Y});
  }

private:
  static void Scarta(Ambiente& ambiente, const std::string& nome) {
    const std::string fine(FineRiga);
    ambiente.dialoghi.Messaggio("Trovato PF con C.F. Catastale " + fine + "SCARTATO!" + fine + nome);
  }

  std::vector<std::string> nomi_;
  std::unordered_map<std::string, const PuntoMisurato*> punti_;
};

std::vector<std::string> NomiDelLibretto(const Sessione& sessione) {
  std::vector<std::string> nomi;
  for (const auto riga : RigheDi(sessione.Libretto)) {
    const auto nome = Taglia(Parte(riga, '|', 1));
    if (GenereDi(riga) == Genere::Coordinate && IniziaPF(nome)) nomi.push_back(Maiuscolo(nome));
  }
  return nomi;
}

} // namespace

std::optional<std::string> MisurateDelDisegno(Ambiente& ambiente, std::span<const PuntoMisurato> punti) {
  Marca(ambiente, DaDisegno, '1');
  const Disegnati disegnati(ambiente, punti);
  return Calcola(ambiente, DaDisegno, disegnati.Nomi(), [&](const std::string& primo, const std::string& secondo) {
    return disegnati.Distanza(primo, secondo);
  });
}

std::optional<std::string> MisurateDelLibretto(Ambiente& ambiente) {
  Marca(ambiente, DaLibretto, '1');
  return Calcola(ambiente, DaLibretto, NomiDelLibretto(ambiente.sessione),
                 [](const std::string&, const std::string&) { return 0.0; });
}

void CalcolaMisuratePF_DaLibretto(Ambiente& ambiente) {
  if (const auto relazione = MisurateDelLibretto(ambiente)) ApriListaMisurate(ambiente, *relazione);
}

} // namespace lirmeto
