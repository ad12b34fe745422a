// The search in the rows.

#include <ui/libretto/finestra_principale.h>

#include <ui/comune/barra_ricerca.h>
#include <ui/comune/ricerca.h>
#include <ui/comune/testo_qt.h>
#include <ui/libretto/vista_righe.h>

#include <algorithm>

namespace lirmeto::ui {

void FinestraPrincipale::CollegaRicerca() {
  connect(ricerca_, &BarraRicerca::TestoCambiato, this, &FinestraPrincipale::Cerca);
  connect(ricerca_, &BarraRicerca::Successiva, this, [this] { VaiATrovata(true); });
  connect(ricerca_, &BarraRicerca::Precedente, this, [this] { VaiATrovata(false); });
  connect(ricerca_, &BarraRicerca::Chiusa, this, [this] {
    righe_->Evidenzia({});
    righe_->setFocus();
  });
}

void FinestraPrincipale::Cerca() {
  const std::string testo = DaQString(ricerca_->Testo());
  trovate_ = RigheCheContengono(Elenco().Righe(), testo);
  versioneTrovate_ = Elenco().Versione();
  righe_->Evidenzia(testo);
  const auto posto = std::find(trovate_.begin(), trovate_.end(), static_cast<std::size_t>(Elenco().Indice()));
  ricerca_->MostraEsito(posto == trovate_.end() ? 0 : static_cast<std::size_t>(posto - trovate_.begin()) + 1,
                        trovate_.size());
}

void FinestraPrincipale::VaiATrovata(bool avanti) {
  if (ricerca_->Testo().isEmpty()) return ricerca_->Apri();
  if (!ricerca_->isVisible() || versioneTrovate_ != Elenco().Versione()) Cerca();
  if (trovate_.empty()) return;
  const long da = Elenco().Indice();
  const std::size_t quale = avanti ? TrovataDopo(trovate_, da) : TrovataPrima(trovate_, da);
  righe_->VaiA(trovate_[quale]);
  ricerca_->MostraEsito(quale + 1, trovate_.size());
}

} // namespace lirmeto::ui
