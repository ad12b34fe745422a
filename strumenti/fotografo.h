#pragma once
// Takes the pictures of the windows over one libretto or drawing and saves them.

#include <applicazione/finestra_principale.h>
#include <applicazione/forme.h>

#include <QDir>
#include <QSize>
#include <QWidget>

#include <string>

namespace lirmeto::ui {
class FinestraDisegno;
class FinestraPrincipale;
} // namespace lirmeto::ui

namespace lirmeto {
class FormCatasto1TXT;
struct ParticellaScelta;
} // namespace lirmeto

namespace lirmeto::foto {

class Fotografo {
public:
  // `massima` is the room that a window has; none: as large as it wants to be.
  Fotografo(KR_LibrettoOriginale& modello, Ambiente& ambiente, const QDir& uscita, const QSize& massima)
      : modello_(modello), ambiente_(ambiente), uscita_(uscita), massima_(massima) {}

  // The main window, what it opens, and the archives.
  [[nodiscard]] bool Libretto();
  [[nodiscard]] bool Disegno(const std::string& file);
  // The libretto from a drawing, over the old libretto beside it, with one line lit.
  [[nodiscard]] bool LibrettoDisegno(const std::string& file);
  // Pregeo's archive, and a new building from the menu to its proposal. They write, and start the exchange programs.
  [[nodiscard]] bool Tipologie(const std::string& dxf);
  // The workbench on the libretto's first parcel, and the forms on it; the proposal is the exported one.
  [[nodiscard]] bool Censuario();

private:
  bool Principale(ui::FinestraPrincipale& finestra);
  bool Ricerca(ui::FinestraPrincipale& finestra);
  bool Strumenti(ui::FinestraPrincipale& finestra);
  bool Verifiche(ui::FinestraPrincipale& finestra);
  bool Scartate(ui::FinestraPrincipale& finestra);
  bool Editor();
  bool Riordino();
  bool ConfiguraPregeo();
  bool Intestazione();
  bool IntestazioneErrata(FormCatasto1TXT& form);
  bool Stampa();
  bool Comuni();
  bool Domande();
  bool Fiduciali();
  bool Estratti();
  bool Somma();
  bool Completa();
  bool Mappali();
  bool RicercaInPregeo();
  bool DaEstratto();
  bool Proposta(const std::string& dxf);
  bool Derivate(const ParticellaScelta& scelta);
  bool TipoMappale(const ParticellaScelta& scelta);
  bool Fusione();
  bool Righello(ui::FinestraDisegno& finestra);
  bool Vuota();

  // As large as it wants to be, or so large, within the room that there is.
  void Mostra(QWidget& finestra, int larghezza = 0, int altezza = 0) const;
  bool Salva(QWidget& finestra, const char* nome) const;
  template <typename Finestra, typename Form>
  bool Ritrai(Form& form, const char* nome) const {
    Finestra finestra(form);
    Mostra(finestra);
    return Salva(finestra, nome);
  }

  KR_LibrettoOriginale& modello_;
  Ambiente& ambiente_;
  QDir uscita_;
  QSize massima_;
};

} // namespace lirmeto::foto
