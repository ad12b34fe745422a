#pragma once
// A main window over the machine in memory, with the real windows for its dialogs.

#include <ui/comune/testo_qt.h>
#include <ui/finestre_qt.h>
#include <ui/libretto/finestra_principale.h>
#include <ui/libretto/vista_righe.h>

#include <applicazione/finestra_principale.h>
#include <base/testo.h>
#include <sostituti/banco.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <ostream>

// How the test framework prints Qt's texts.
inline void PrintTo(const QString& testo, std::ostream* uscita) {
  *uscita << '"' << testo.toStdString() << '"';
}

namespace lirmeto::prova {

inline const std::vector<std::string>& RigheDiProva() {
  static const std::vector<std::string> righe = {
      "0|12032026|18|G224|0010|12|ROSSI MARIO|GEOMETRA|PADOVA|",
      "9|20|10|20|1070|10.00-G,STDA 2.08|FR|NOTE|",
      "1|100|1.430|CHIODO|",
      "2|205|323.5725|100.2380|38.944|3.600|SPIGOLO|",
      "2|PF01/0100/G224|12.0010|99.8740|21.305|1.600|CHIESA|",
      "8|PF01/0100/G224|5029871.220|1724410.300|05|CHIESA|",
  };
  return righe;
}

// Does something once the event loop has run for so many milliseconds.
inline void Dopo(int millisecondi, const std::function<void()>& azione) {
  auto* timer = new QTimer(qApp);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, timer, azione);
  QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
  timer->start(millisecondi);
}

// Does something in the modal window that the next event loop shows; fails the test when none comes up.
inline void NellaProssimaFinestra(const std::function<void(QWidget&)>& azione) {
  Dopo(0, [azione] {
    QWidget* finestra = QApplication::activeModalWidget();
    if (finestra == nullptr) qFatal("no modal window came up");
    azione(*finestra);
  });
}

struct Tavolo {
  explicit Tavolo(const std::vector<std::string>& righe = RigheDiProva()) {
    finestre.Usa(ambiente);
    banco.disco.Metti("C:\\LIBRETTO.DAT", Testo(righe));
    modello.Avvia("C:\\LIBRETTO.DAT");
    banco.dialoghi.detti.clear();
    finestra.emplace(modello,
                     [](const QString& percorso) { return "Z:" + Sostituisci(ui::DaQString(percorso), "/", "\\"); });
    finestra->resize(1300, 800);
    finestra->show();
    QApplication::setActiveWindow(&*finestra);
    vista = finestra->findChild<ui::VistaRighe*>();
    QCoreApplication::processEvents();
  }

  [[nodiscard]] ElencoRighe& Elenco() { return banco.sessione.List1; }

  // Middle of a row's text, in the viewport.
  [[nodiscard]] QPoint Punto(std::size_t riga) const { return {200, vista->RettangoloRiga(riga).center().y()}; }
  void Clicca(std::size_t riga, Qt::KeyboardModifiers modificatori = {}) {
    QTest::mouseClick(vista->viewport(), Qt::LeftButton, modificatori, Punto(riga));
  }
  [[nodiscard]] std::vector<std::size_t> Selezionate() {
    std::vector<std::size_t> quali;
    for (std::size_t i = 0; i < Elenco().Quante(); ++i)
      if (Elenco().Selezionata(i)) quali.push_back(i);
    return quali;
  }

  Banco banco;
  ui::FinestreQt finestre;
  Ambiente ambiente{banco.sessione, banco.disco,        banco.dialoghi, finestre,
                    banco.processi, banco.impostazioni, banco.appunti,  banco.orologio};
  KR_LibrettoOriginale modello{ambiente};
  std::optional<ui::FinestraPrincipale> finestra;
  ui::VistaRighe* vista = nullptr;
};

// A widget of the window by its name; ends the test when there is none.
template <typename T>
T& Figlio(Tavolo& tavolo, const char* nome) {
  auto* figlio = tavolo.finestra->findChild<T*>(QString::fromLatin1(nome));
  if (figlio == nullptr) qFatal("no such widget");
  return *figlio;
}

} // namespace lirmeto::prova
