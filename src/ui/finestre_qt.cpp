#include <ui/finestre_qt.h>

#include <ui/finestra_editor.h>
#include <ui/finestra_riordino.h>

#include <base/errore.h>

#include <QApplication>

namespace lirmeto::ui {

namespace {

// Shows `Finestra` when the model is the one it belongs to.
template <typename Tipo, typename Finestra>
bool MostraSe(Modello& modello) {
  auto* questo = dynamic_cast<Tipo*>(&modello);
  if (questo == nullptr) return false;
  Finestra(*questo, QApplication::activeWindow()).exec();
  return true;
}

} // namespace

void FinestreQt::MostraModale(Modello& modello) {
  const bool mostrata =
      MostraSe<KR_EditorGen, FinestraEditor>(modello) || MostraSe<FormRiordinoRighe, FinestraRiordino>(modello);
  if (!mostrata) throw Errore(errore::ErroreInterno);
}

bool FinestreQt::Disponibile(std::string_view /*nome*/) const {
  return false;
}

void FinestreQt::Apri(std::string_view nome) {
  throw Errore(errore::ErroreInterno, "Finestra non disponibile: " + std::string(nome));
}

} // namespace lirmeto::ui
