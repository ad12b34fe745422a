#include <proposte/file_particella.h>

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/riga.h>
#include <proposte/derivazioni.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t ColonneQualita = 12;
constexpr std::string_view Estensione = ".MAP";

// Places of the fields.
enum Posto : std::size_t { Nome = 2, Classe, Qualita, Superficie, Grafica, Agrario, Dominicale, SrSn };

} // namespace

DatiParticella LeggiRigaParticella(std::string_view riga) {
  const std::vector<std::string_view> campi = Dividi(riga, "|");
  if (!UgualiSenzaCaso(riga.substr(0, InizioParticella.size()), InizioParticella))
    throw Errore(errore::ArgomentoNonValido, std::string("La riga non è di una particella"_w)).DellaRiga(1, riga);
  if (campi.size() <= Superficie)
    throw Errore(errore::IndiceFuoriIntervallo, "La riga della particella non ha tutti i campi").DellaRiga(1, riga);
  const auto campo = [&](Posto posto) { return std::string(posto < campi.size() ? campi[posto] : std::string_view{}); };
  return {campo(Nome),    campo(Classe),  campo(Qualita),    campo(Superficie),
          campo(Grafica), campo(Agrario), campo(Dominicale), campo(SrSn)};
}

std::string RigaParticella(const DatiParticella& dati) {
  std::string riga(InizioParticella);
  const std::string qualita = RiempiECorta(dati.qualita, ColonneQualita);
  for (const std::string_view campo :
       {std::string_view(dati.nome), std::string_view(dati.classe), std::string_view(qualita),
        std::string_view(dati.superficie), std::string_view(dati.superficieGrafica), std::string_view(dati.agrario),
        std::string_view(dati.dominicale), std::string_view(dati.srSn)})
    riga.append(campo).append("|");
  return riga;
}

std::string RigaParticellaNuova(std::string_view nome, std::string_view classe, std::string_view qualita,
                                std::string_view area) {
  const std::string qualitaPiena = RiempiECorta(qualita, ColonneQualita);
  return std::string(InizioParticella) + Unisci({nome, classe, qualitaPiena, area, area, "0", "0"}, "|") + "|";
}

std::string ClasseInDueCifre(std::string_view classe) {
  const std::string zeri = "00" + std::string(classe);
  return zeri.substr(zeri.size() - 2);
}

std::string CartellaParticelle(const Sessione& sessione) {
  return sessione.RadiceDati + "\\FIDUCIAL\\PARTICELLE";
}

std::string PercorsoParticella(const Sessione& sessione, std::string_view nome) {
  if (Contiene(nome, "\\")) return std::string(nome);
  return CartellaParticelle(sessione) + "\\" + ComponenteFile(nome);
}

std::string NomeFileParticella(std::string_view comune, std::string_view foglio, std::string_view particella,
                               std::string_view estensione) {
  return std::string(comune) + "_" + std::string(foglio) + "_" + Sostituisci(particella, "/", "_") +
         std::string(estensione);
}

std::string InizioFoglio(const Sessione& sessione) {
  return sessione.CodiceComune + "_0" + sessione.Foglio;
}

std::vector<std::string> ElencaParticelle(const Ambiente& ambiente, std::string_view inizio) {
  std::vector<std::string> nomi = ambiente.disco.Elenca(CartellaParticelle(ambiente.sessione), Estensione);
  std::erase_if(nomi, [inizio](const std::string& nome) {
    return !UgualiSenzaCaso(std::string_view(nome).substr(0, inizio.size()), inizio);
  });
  return nomi;
}

std::string LeggiFileParticella(const Ambiente& ambiente, std::string_view nome) {
  constexpr std::size_t quantoBasta = 65536; // bytes of a file in which the line must end
  const std::string inizio = ambiente.disco.LeggiInizio(PercorsoParticella(ambiente.sessione, nome), quantoBasta);
  if (inizio.empty())
    throw Errore(errore::OltreLaFine, "Il file della particella " + std::string(nome) + std::string(" è vuoto"_w));
  return inizio.substr(0, inizio.find_first_of(FineRiga));
}

void ScriviFileParticella(Ambiente& ambiente, std::string_view nome, std::string_view riga) {
  ambiente.disco.Scrivi(PercorsoParticella(ambiente.sessione, ComponenteFile(nome)),
                        std::string(riga) + std::string(FineRiga));
}

ParticellaScelta ScegliParticella(const Sessione& sessione, std::string_view riga, std::string_view modello) {
  ParticellaScelta scelta{LeggiRigaParticella(riga), {}, DerivazioniVere(modello)};
  scelta.codiceQualita = CodiceQualita(sessione.TabellaQualita, scelta.dati.qualita);
  return scelta;
}

} // namespace lirmeto
