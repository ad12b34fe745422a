#include <core/classi_righe.h>

#include <base/avanzamento.h>
#include <base/testo.h>
#include <core/ordine_stazioni.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

namespace lirmeto {

// How rows are told apart and joined, where it could be done in more than one way:
//
//   a Relazione block without its closing mark     no block: its rows are judged one by one
//   a row 6 that holds either Relazione mark       no comment: it is dropped when it stands outside a block
//   a blank row                                    no row
//   census rows behind the proposal                a block with its heading, as the census forms put it there, is of the
//                                                  Modello Censuario and no part of the proposal
//   census rows of province GO                     only those that have all the fields are changed
//   the proposal                                   its rows are of its class even where they are a Relazione block too

namespace {

using Righe = std::vector<std::string_view>;

// Rows from `inizio` to `fine`, both included.
struct Blocco {
  std::size_t inizio = std::string_view::npos;
  std::size_t fine = std::string_view::npos;
  [[nodiscard]] bool Vale() const { return inizio < fine && fine != std::string_view::npos; }
  [[nodiscard]] bool Contiene(std::size_t indice) const { return Vale() && indice >= inizio && indice <= fine; }
};

// Both marks hold the five stars: most rows are passed over by their first
// character.
bool HaMarca(std::string_view riga, std::string_view marca) {
  return riga.find('*') != std::string_view::npos && Contiene(riga, marca);
}

// The last opening mark before the first closing one.
Blocco TrovaRelazione(const Righe& righe) {
  Blocco blocco;
  for (std::size_t i = 0; i < righe.size() && blocco.fine == std::string_view::npos; ++i) {
    if (HaMarca(righe[i], InizioRelazione)) blocco.inizio = i;
    if (HaMarca(righe[i], FineRelazione)) blocco.fine = i;
  }
  return blocco;
}

// `prima` is the kind of the row before it.
ClasseRighe ClasseRiga6(std::string_view riga, Genere prima) {
  if (Riga6Gps(riga)) return ClasseRighe::Gps;
  if (Contiene(riga, "6|DettaglioTipoAgg=")) return ClasseRighe::Commento;
  if (riga.size() == LunghezzaCensuaria) return ClasseRighe::Censuario;
  if (riga.starts_with("6| -")) return ClasseRighe::Appunti;
  if (!PuoEssereCommento(riga)) return ClasseRighe::Nessuna;
  return prima == Genere::Chiusura || prima == Genere::Intestazione ? ClasseRighe::Commento : ClasseRighe::Contorni;
}

ClasseRighe ClasseRiga(std::string_view riga, Genere genere, Genere prima) {
  if (genere == Genere::Poligonale) return ClasseRighe::Poligonali;
  if (genere == Genere::Intestazione) return ClasseRighe::Zero;
  if (genere == Genere::Stazione || genere == Genere::Battuta)
    return RigaGps(riga) ? ClasseRighe::Gps : ClasseRighe::Stazioni;
  if (genere == Genere::Libera) return ClasseRiga6(riga, prima);
  if (genere == Genere::Chiusura) return ClasseRighe::Nove;
  if (genere == Genere::Coordinate) return ClasseRighe::Coordinate;
  if (genere == Genere::Contorno) return ClasseRighe::Contorni;
  if (genere == Genere::Allineamento || genere == Genere::Squadro) return ClasseRighe::Allineate;
  return ClasseRighe::Stazioni;
}

// Each row to the first class that fits.
void Distribuisci(std::span<const std::string_view> righe, const Blocco& relazione, RigheInClassi& classi,
                  Dialoghi& dialoghi) {
  Avanzamento avanzamento(dialoghi, "Riordino Righe", righe.size());
  Genere prima = Genere::Altro; // no row stands before the first
  for (std::size_t i = 0; i < righe.size(); ++i) {
    avanzamento.Fatto(i);
    const Genere genere = GenereDi(righe[i]);
    if (!relazione.Contiene(i) && !Taglia(righe[i]).empty())
      classi[ClasseRiga(righe[i], genere, prima)].AggiungiVista(righe[i]);
    prima = genere;
  }
}

constexpr std::array Unite = {ClasseRighe::Zero,      ClasseRighe::Nove,       ClasseRighe::Commento,
                              ClasseRighe::Appunti,   ClasseRighe::Poligonali, ClasseRighe::Gps,
                              ClasseRighe::Stazioni,  ClasseRighe::Allineate,  ClasseRighe::Contorni,
                              ClasseRighe::Relazione, ClasseRighe::Coordinate, ClasseRighe::Censuario,
                              ClasseRighe::Proposta};

std::size_t Lunghezza(const RigheInClassi& righe) {
  std::size_t byte = 0;
  for (const ClasseRighe classe : Unite)
    for (const auto riga : righe[classe]) byte += riga.size() + FineRiga.size();
  return byte;
}

} // namespace

RigheInClassi DividiInClassi(const std::string& libretto, Dialoghi& dialoghi) {
  const auto testo = std::make_shared<const std::string>(libretto);
  RigheInClassi classi;
  for (const ClasseRighe classe : Unite) classi[classe].Tieni(testo);
  classi[ClasseRighe::Nessuna].Tieni(testo);
  const Righe righe = RigheDi(*testo);
  const Blocco relazione = TrovaRelazione(righe);
  for (std::size_t i = 0; relazione.Vale() && i < righe.size(); ++i)
    if (relazione.Contiene(i)) classi[ClasseRighe::Relazione].AggiungiVista(righe[i]);
  const auto proposta = static_cast<std::size_t>(std::find(righe.begin(), righe.end(), RigaProposta) - righe.begin());
  // A last row that no line end closes is not looked at: a libretto is expected to end with one.
  const bool aperta = proposta == righe.size() && proposta > 0 && !testo->ends_with(FineRiga);
  Distribuisci(std::span(righe).first(proposta - (aperta ? 1 : 0)), relazione, classi, dialoghi);
  BloccoCensuario censuario;
  for (std::size_t i = proposta; i < righe.size(); ++i)
    classi[censuario.Prende(righe[i]) ? ClasseRighe::Censuario : ClasseRighe::Proposta].AggiungiVista(Taglia(righe[i]));
  OrdinaStazioni(classi[ClasseRighe::Stazioni], Ordine::Stazioni);
  OrdinaStazioni(classi[ClasseRighe::Gps], Ordine::Gps);
  return classi;
}

bool CensuarioIntero(const RigheInClassi& righe) {
  const ListaRighe& censuario = righe[ClasseRighe::Censuario];
  return censuario.empty() || RigheIndicate(censuario) == static_cast<double>(censuario.size());
}

void AdattaCensuarioGo(RigheInClassi& righe) {
  ListaRighe& censuario = righe[ClasseRighe::Censuario];
  for (std::size_t i = 0; i < censuario.size(); ++i) censuario.Cambia(i, RigaCensuariaGo(censuario[i]));
}

std::string UnisciClassi(const RigheInClassi& righe) {
  std::string libretto;
  libretto.reserve(Lunghezza(righe));
  std::string_view prima;
  for (const ClasseRighe classe : Unite) {
    // A Relazione of its two mark rows says nothing.
    if (classe == ClasseRighe::Relazione && righe[classe].size() <= 2) continue;
    for (const auto riga : righe[classe]) {
      if (!libretto.empty() && UgualiSenzaCaso(riga, prima)) continue;
      libretto += riga;
      libretto += FineRiga;
      prima = riga;
    }
  }
  return libretto;
}

} // namespace lirmeto
