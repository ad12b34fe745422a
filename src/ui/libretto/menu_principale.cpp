#include <ui/libretto/menu_principale.h>

#include <ui/comune/testo_qt.h>

#include <QMenu>
#include <QMenuBar>
#include <QSet>

#include <array>
#include <utility>

namespace lirmeto::ui {

namespace {

// Marks the first letter that no other entry of the same menu has taken.
QString ConMnemonica(const QString& testo, QSet<QChar>& prese) {
  for (qsizetype i = 0; i < testo.size(); ++i) {
    const QChar lettera = testo[i].toUpper();
    if (lettera < u'A' || lettera > u'Z' || prese.contains(lettera)) continue;
    prese.insert(lettera);
    return QString(testo).insert(i, u'&');
  }
  return testo;
}

class Costruttore {
public:
  Costruttore(QMenuBar& barra, ComandoDisponibile disponibile, EseguiComando esegui)
      : barra_(barra), disponibile_(std::move(disponibile)), esegui_(std::move(esegui)) {}

  void Aggiungi(const VoceMenu& voce) {
    QMenu* menu = Menu(AQString(voce.menu));
    if (!voce.sottomenu.empty()) menu = Sottomenu(*menu, AQString(voce.sottomenu));
    if (voce.comando == Comando::LibrettiRecenti) {
      QMenu* recenti = Sottomenu(*menu, AQString(voce.didascalia));
      recenti->setObjectName(QString::fromLatin1(MenuRecenti));
      recenti->menuAction()->setToolTip(AQString(EffettoDi(voce.comando)));
      return;
    }
    if (voce.didascalia == Separatore) {
      menu->addSeparator();
      return;
    }
    QAction* azione = menu->addAction(ConMnemonica(AQString(voce.didascalia), prese_[menu]));
    azione->setData(static_cast<int>(voce.comando));
    azione->setToolTip(AQString(EffettoDi(voce.comando)));
    azione->setEnabled(disponibile_(voce.comando));
    if (!usate_.contains(voce.comando)) azione->setShortcut(Scorciatoia(voce.comando));
    usate_.insert(voce.comando);
    QObject::connect(azione, &QAction::triggered, &barra_,
                     [esegui = esegui_, comando = voce.comando] { esegui(comando); });
  }

private:
  QMenu* Nuovo(QMenu* menu) {
    menu->setToolTipsVisible(true);
    return menu;
  }

  QMenu* Menu(const QString& titolo) {
    if (!menu_.contains(titolo)) menu_[titolo] = Nuovo(barra_.addMenu(ConMnemonica(titolo, preseBarra_)));
    return menu_[titolo];
  }

  QMenu* Sottomenu(QMenu& padre, const QString& titolo) {
    const QString chiave = padre.title() + u'\n' + titolo;
    if (!menu_.contains(chiave)) menu_[chiave] = Nuovo(padre.addMenu(ConMnemonica(titolo, prese_[&padre])));
    return menu_[chiave];
  }

  QMenuBar& barra_;
  ComandoDisponibile disponibile_;
  EseguiComando esegui_;
  QHash<QString, QMenu*> menu_;
  QHash<QMenu*, QSet<QChar>> prese_;
  QSet<QChar> preseBarra_;
  QSet<Comando> usate_;
};

} // namespace

QKeySequence Scorciatoia(Comando comando) {
  constexpr auto scorciatoie = std::to_array<std::pair<Comando, QKeyCombination>>({
      {Comando::NuovoLibretto, Qt::CTRL | Qt::Key_N},
      {Comando::ApriDaFile, Qt::CTRL | Qt::Key_O},
      {Comando::StampaLibretto, Qt::CTRL | Qt::Key_P},
      {Comando::SalvaLibretto, Qt::CTRL | Qt::Key_S},
      {Comando::EsportaLibretto, Qt::CTRL | Qt::SHIFT | Qt::Key_S},
      {Comando::ModificaDiretta, Qt::Key_F2},
      {Comando::RiordinoRighe, Qt::Key_F5},
      {Comando::IncollaDaAppunti, Qt::CTRL | Qt::SHIFT | Qt::Key_V},
      {Comando::Annulla, Qt::CTRL | Qt::Key_Z},
      {Comando::Ripeti, Qt::CTRL | Qt::Key_Y},
      {Comando::TagliaRighe, Qt::CTRL | Qt::Key_X},
      {Comando::CopiaRighe, Qt::CTRL | Qt::Key_C},
      {Comando::IncollaRighe, Qt::CTRL | Qt::Key_V},
      {Comando::EliminaRighe, Qt::Key_Delete},
      {Comando::SelezionaTutte, Qt::CTRL | Qt::Key_A},
      {Comando::CampiRiga, Qt::Key_F4},
      {Comando::MostraVerifiche, Qt::CTRL | Qt::Key_F8},
      {Comando::SegnalazioneSuccessiva, Qt::Key_F8},
      {Comando::SegnalazionePrecedente, Qt::SHIFT | Qt::Key_F8},
      {Comando::PrendiRimedio, Qt::ALT | Qt::Key_Return},
      {Comando::MostraRilievo, Qt::Key_F9},
      {Comando::Chiudi, Qt::CTRL | Qt::Key_Q},
  });
  for (const auto& [suo, tasti] : scorciatoie)
    if (suo == comando) return tasti;
  return {};
}

QAction* VoceDi(const QMenuBar& barra, Comando comando) {
  for (QAction* voce : barra.findChildren<QAction*>())
    if (!voce->data().isNull() && voce->data().toInt() == static_cast<int>(comando)) return voce;
  return nullptr;
}

// Numbered, the first nine by a mnemonic: a path may hold any character, "&" too.
void RiempiRecenti(QMenu& menu, const std::vector<std::string>& recenti, const std::function<void(std::size_t)>& apri) {
  menu.clear();
  for (std::size_t i = 0; i < recenti.size(); ++i) {
    const QString percorso = AQString(recenti[i]).replace(u'&', QStringLiteral("&&"));
    QAction* azione = menu.addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(percorso));
    QObject::connect(azione, &QAction::triggered, &menu, [apri, i] { apri(i); });
  }
  menu.setEnabled(!recenti.empty());
}

void RiempiMenu(QMenuBar& barra, const ComandoDisponibile& disponibile, const EseguiComando& esegui) {
  Costruttore costruttore(barra, disponibile, esegui);
  for (const VoceMenu& voce : VociMenu()) costruttore.Aggiungi(voce);
}

} // namespace lirmeto::ui
