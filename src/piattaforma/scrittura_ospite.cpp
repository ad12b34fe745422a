// Writing whole files of the host so that the old content or the new one is there at any moment.

#include <piattaforma/cartelle_utente.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/percorsi_ospite.h>
#include <piattaforma/scrittura.h>

#include <base/errore.h>
#include <base/testo.h>

#include <system_error>

namespace lirmeto {

// How a file is written:
//
//   beside                         a new file in the same folder, which takes the old one's place when it is whole; it
//                                  takes its owner, rights and attributes first
//   in place, with a copy kept     where that is not possible: a file with several names, a folder where nothing may be
//                                  made, an owner or rights that cannot be given on, no room for both, a file that is a
//                                  mount of its own. The copy lies beside the file, else in the user's data folder
//                                  (lirmeto/copie), and goes when the new content is known good; after a fault the old
//                                  content is put back, and if that fails too the error names the copy.
//   straight                       a pipe or a device
//   a link                         is followed; what it leads to is written, there or not
//   a file that may not be written is refused, though another could be put in its place

namespace {

namespace fs = std::filesystem;

fs::path TieniCopia(const fs::path& file, std::string_view contenuto) {
  if (const auto accanto = CopiaIn(file.parent_path(), file.filename(), contenuto)) return *accanto;
  const fs::path copie = CartellaDati() / "lirmeto" / "copie";
  std::error_code guasto;
  fs::create_directories(copie, guasto);
  if (const auto altrove = CopiaIn(copie, file.filename(), contenuto)) return *altrove;
  std::string perche = "Nessun posto per la copia del vecchio contenuto: il file ";
  perche += "non è stato toccato"_w;
  throw Errore(errore::DiscoPieno, perche);
}

bool Rimesso(const fs::path& file, std::string_view contenuto) {
  try {
    Riscrivi(file, contenuto);
    return true;
  } catch (const Errore&) {
    return false;
  }
}

Errore ConCopia(const Errore& errore, const fs::path& copia) {
  std::string perche = errore.Descrizione();
  perche += "; il vecchio contenuto è conservato in "_w;
  return {errore.Numero(), perche + DaUtf8(Utf8DaOspite(copia))};
}

void ScriviSulPosto(const fs::path& file, std::string_view contenuto) {
  if (GenereOspite(file) != GenereFile::Regolare) return Riscrivi(file, contenuto);
  const std::string prima = LeggiFileOspite(file);
  const fs::path copia = TieniCopia(file, prima);
  try {
    Riscrivi(file, contenuto);
  } catch (const Errore& errore) {
    if (!Rimesso(file, prima)) throw ConCopia(errore, copia);
    Togli(copia);
    throw;
  }
  Togli(copia);
}

} // namespace

void ScriviFileOspite(const fs::path& file, std::string_view contenuto, bool sicuro) {
  // The links of a pipe or a device lead to no path.
  const fs::path vero = GenereOspite(file) == GenereFile::Altro ? file : SeguiCollegamenti(file);
  ControllaScrittura(vero, contenuto.size());
  if (!ScriviAccanto(vero, contenuto, sicuro)) ScriviSulPosto(vero, contenuto);
}

} // namespace lirmeto
