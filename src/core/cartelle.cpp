#include <core/cartelle.h>

#include <core/mostra_errore.h>

#include <array>
#include <string_view>

namespace lirmeto {

namespace {

enum class Base { Dati, Pregeo, Documenti };

struct CartellaPrevista {
  Base base;
  std::string_view nome;
};

// The order matters: parents come before what lies in them. The one folder
// under FIDUCIAL that hangs on the drive of the programs is where the sibling program that owns it looks.
constexpr std::array<CartellaPrevista, 21> CartellePreviste = {{
    {Base::Dati, "\\FIDUCIAL"},
    {Base::Dati, "\\fiducial\\DITTA"},
    {Base::Dati, "\\fiducial\\VISURE"},
    {Base::Dati, "\\fiducial\\DATI"},
    {Base::Dati, "\\fiducial\\COMUNI"},
    {Base::Pregeo, "\\fiducial\\Silvarca"},
    {Base::Dati, "\\fiducial\\PARTICELLE"},
    {Base::Dati, "\\fiducial\\MODULISTICA"},
    {Base::Pregeo, "\\PREGEO"},
    {Base::Pregeo, "\\PREGEO\\ESTRATTI"},
    {Base::Pregeo, "\\pregeo\\arch\\BackupDB"},
    {Base::Documenti, "\\LIRMETO"},
    {Base::Documenti, "\\LIRMETO\\TEMP"},
    {Base::Documenti, "\\LIRMETO\\GUIDA"},
    {Base::Documenti, "\\LIRMETO\\TECNICI"},
    {Base::Documenti, "\\LIRMETO\\Backup_Libretti"},
    {Base::Documenti, "\\LIRMETO\\Storico_Libretti"},
    {Base::Documenti, "\\LIRMETO\\MODELLI_STAMPA"},
    {Base::Documenti, "\\LIRMETO\\RISORSE"},
    {Base::Documenti, "\\Forvale"},
    {Base::Documenti, "\\Forvale\\TEMP"},
}};

const std::string& Radice(const Sessione& sessione, Base base) {
  switch (base) {
  case Base::Dati:
    return sessione.RadiceDati;
  case Base::Pregeo:
    return sessione.RadicePregeo;
  case Base::Documenti:
    break;
  }
  return sessione.CartellaDocumenti;
}

} // namespace

void CreaCartella(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "NuovaCartella";
  if (!ambiente.disco.EsisteCartella(percorso)) ambiente.disco.CreaCartella(percorso);
}

void CreaPercorso(Ambiente& ambiente, std::string_view percorso) {
  for (std::size_t fine = percorso.find('\\'); fine != std::string_view::npos;) {
    fine = percorso.find('\\', fine + 1);
    CreaCartella(ambiente, percorso.substr(0, fine));
  }
}

void CreaCartelle(Ambiente& ambiente) {
  for (const auto& cartella : CartelleDiLavoro(ambiente.sessione))
    (void)Intrappola(ambiente, [&] { CreaCartella(ambiente, cartella); });
}

std::vector<std::string> CartelleDiLavoro(const Sessione& sessione) {
  std::vector<std::string> cartelle;
  cartelle.reserve(CartellePreviste.size());
  for (const auto& prevista : CartellePreviste)
    cartelle.push_back(Radice(sessione, prevista.base) + std::string(prevista.nome));
  return cartelle;
}

void CartelleSpeciali(Ambiente& ambiente) {
  const CartelleDiSistema cartelle = ambiente.processi.Cartelle();
  Sessione& sessione = ambiente.sessione;
  sessione.CartellaDocumenti = cartelle.documenti;
  sessione.CartellaProgramma = cartelle.documenti + "\\LIRMETO";
  sessione.CartellaWindows = cartelle.windows;
  sessione.CartellaTemp = cartelle.temporanea;
  sessione.CartellaProgrammi = cartelle.programmi;
}

} // namespace lirmeto
