// Every window in the smallest room that it has to work in.
#include <ui/tavolo.h>

#include <ui/comune/aspetto.h>
#include <ui/disegno/finestra_disegno.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/estratti/finestra_completa.h>
#include <ui/estratti/finestra_estratti.h>
#include <ui/estratti/finestra_somma.h>
#include <ui/fiduciali/finestra_elco_pf.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>
#include <ui/fiduciali/finestra_elco_pf_griglia.h>
#include <ui/fiduciali/finestra_importa_fiduciali.h>
#include <ui/fiduciali/finestra_quote_medie.h>
#include <ui/fiduciali/finestra_seleziona_misurate.h>
#include <ui/generazione/finestra_libretto_disegno.h>
#include <ui/generazione/finestra_mappali.h>
#include <ui/generazione/finestra_tipol10.h>
#include <ui/intestazione/finestra_catasto1.h>
#include <ui/libretto/finestra_riordino.h>
#include <ui/libretto/finestra_scartate.h>
#include <ui/pregeo/finestra_configura_pregeo.h>
#include <ui/pregeo/finestra_dapregeo.h>
#include <ui/proposte/finestra_edm.h>
#include <ui/proposte/finestra_fusione.h>
#include <ui/proposte/finestra_proposta.h>
#include <ui/proposte/finestra_tipo_mappale.h>
#include <ui/supporto/finestra_assegna_descrizione.h>
#include <ui/supporto/finestra_autore.h>
#include <ui/supporto/finestra_codfis.h>
#include <ui/supporto/finestra_comuni.h>
#include <ui/supporto/finestra_editor.h>
#include <ui/supporto/finestra_imputa.h>
#include <ui/supporto/finestra_possessori.h>
#include <ui/supporto/finestra_stampa_generale.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <typeindex>

namespace lirmeto::prova {
namespace {

// A screen of 1280 by 720 without a taskbar, less the title of the window.
constexpr QSize Spazio(1280, 690);

// What lies in a page that is scrolled can be reached wherever it is.
bool SiScorre(const QWidget& oggetto, const QWidget& finestra) {
  for (const QWidget* padre = oggetto.parentWidget(); padre != nullptr && padre != &finestra;
       padre = padre->parentWidget())
    if (qobject_cast<const QAbstractScrollArea*>(padre) != nullptr) return true;
  return false;
}

QString NomeDi(const QWidget& oggetto) {
  const QString testo = oggetto.property("text").toString();
  return testo.isEmpty() ? QString::fromLatin1(oggetto.metaObject()->className()) + u' ' + oggetto.objectName() : testo;
}

// Buttons and captions that are outside of the window, cut by what they stand in, narrower than their text, or under
// another one.
QStringList Difetti(const QWidget& finestra) {
  QStringList difetti;
  QList<const QWidget*> visti;
  for (const QWidget* oggetto : finestra.findChildren<QWidget*>()) {
    const auto* scritta = qobject_cast<const QLabel*>(oggetto);
    const bool bottone = qobject_cast<const QAbstractButton*>(oggetto) != nullptr;
    if ((!bottone && scritta == nullptr) || !oggetto->isVisible() || SiScorre(*oggetto, finestra)) continue;
    const QRect posto(oggetto->mapTo(&finestra, QPoint()), oggetto->size());
    const bool elastica = scritta != nullptr && (scritta->wordWrap() || scritta->text().isEmpty() ||
                                                 scritta->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
                                                 scritta->testAttribute(Qt::WA_TransparentForMouseEvents));
    if (!finestra.rect().contains(posto)) difetti << NomeDi(*oggetto) + QStringLiteral(": fuori");
    if (!elastica && oggetto->width() < oggetto->minimumSizeHint().width())
      difetti << NomeDi(*oggetto) + QStringLiteral(": stretto");
    if (oggetto->visibleRegion().boundingRect().size() != oggetto->size() && scritta == nullptr)
      difetti << NomeDi(*oggetto) + QStringLiteral(": tagliato");
    for (const QWidget* altro : std::as_const(visti))
      if (altro->parentWidget() == oggetto->parentWidget() && !elastica &&
          altro->geometry().intersects(oggetto->geometry()))
        difetti << NomeDi(*oggetto) + QStringLiteral(" sopra ") + NomeDi(*altro);
    if (!elastica) visti << oggetto;
  }
  return difetti;
}

// In the whole room, and in a part of it where bars have to go on in a second line.
void Prova(QWidget& finestra, const char* nome) {
  for (const QSize& misura : {Spazio, QSize(1000, 640)}) {
    finestra.resize(misura);
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    EXPECT_LE(finestra.width(), Spazio.width()) << nome;
    EXPECT_LE(finestra.height(), Spazio.height()) << nome;
    EXPECT_EQ(Difetti(finestra).join(QStringLiteral("; ")), QString())
        << nome << ' ' << finestra.width() << 'x' << finestra.height();
  }
}

// Each kind of form with its window, opened as the program opens it.
class Tutte {
public:
  explicit Tutte(Tavolo& tavolo) : tavolo_(tavolo) {}

  template <typename Form, typename... Altri>
  void Apri(Altri&&... altri) {
    Form form(tavolo_.ambiente, std::forward<Altri>(altri)...);
    if constexpr (requires { form.AlCaricamento(); }) form.AlCaricamento();
    if constexpr (requires { form.Form_Load(); }) form.Form_Load();
    Mostra(form);
  }
  void Mostra(Modello& form) {
    NellaProssimaFinestra([&](QWidget& finestra) {
      Prova(finestra, typeid(form).name());
      // Not closed by the form's own button, which may ask.
      static_cast<QDialog&>(finestra).done(QDialog::Rejected);
    });
    tavolo_.finestre.MostraModale(form);
    viste.insert(typeid(form));
  }
  std::set<std::type_index> viste;

private:
  Tavolo& tavolo_;
};

TEST(Misure, OgniFinestraStaIn1280Per720) {
  Tavolo tavolo;
  MettiInstallazione(tavolo.banco.disco);
  Prova(*tavolo.finestra, "KR_LibrettoOriginale");
  DisegnoCondiviso disegno;
  TabellaPF tabella;
  const ParticellaScelta particella;
  Tutte tutte(tavolo);
  tutte.Apri<KR_EditorGen>();
  tutte.Apri<FormRiordinoRighe>();
  tutte.Apri<FormCatasto1TXT>();
  tutte.Apri<FormRigheScartate>();
  tutte.Apri<FormConfiguraPregeo>();
  tutte.Apri<FormDisegno>();
  tutte.Apri<LibrettoDaDisegno>(disegno);
  tutte.Apri<KR_Dapregeo>(disegno);
  tutte.Apri<SelezionaMappali>();
  tutte.Apri<MappaleDaMantenere>();
  tutte.Apri<Tipol10>(disegno);
  tutte.Apri<KR_StampaGenerale>();
  tutte.Apri<KR_CodFis>();
  tutte.Apri<KR_Comuni8>();
  tutte.Apri<ArchivioPossessori>();
  autore dati;
  tutte.Mostra(dati);
  tutte.Apri<KR_EstrattiDiMappa1>();
  tutte.Apri<KR_SommaEstratti>("C:\\pregeo\\estratti\\A.EMP");
  tutte.Apri<CompletaAutoallestito>("A.EMP");
  tutte.Apri<FormImportaFiduciali>();
  tutte.Apri<KR_SelezionaMisurate>();
  tutte.Apri<QuoteMedie>();
  tutte.Apri<KR_ElcoPf>();
  tutte.Apri<KR_ElcoPfGriglia>(tabella);
  tutte.Apri<KR_ElcoPFGrafica>(tabella);
  tutte.Apri<Imputa>("Raggio", "Raggio in metri");
  tutte.Apri<AssegnaDescrizione>();
  tutte.Apri<KR_EDM>();
  tutte.Apri<KR_Fraziona>(particella);
  tutte.Apri<KR_Stralcio>(particella);
  tutte.Apri<KR_NuovaCostruzione>(particella);
  tutte.Apri<KR_TMVariazione>(particella);
  tutte.Apri<KR_TMFusione>();
  for (const std::type_info* tipo : ui::ModelliConFinestra())
    EXPECT_TRUE(tutte.viste.contains(*tipo)) << tipo->name() << " non provata";
}

// Drawings and lists that are still empty say how to begin, and no longer once there is something in them.
TEST(Inviti, LeFinestreVuoteDiconoComeCominciare) {
  Banco banco;
  FormDisegno vuoto(banco.ambiente);
  ui::FinestraDisegno finestra(vuoto);
  finestra.show();
  const auto tinte = [&] {
    const QImage foto = finestra.Pannello().Superficie().grab().toImage();
    std::set<QRgb> viste;
    for (int y = 0; y < foto.height(); ++y)
      for (int x = 0; x < foto.width(); ++x) viste.insert(foto.pixel(x, y));
    return viste.size();
  };
  EXPECT_GT(tinte(), 5U) << "letters, with their soft edges";
  finestra.Pannello().Superficie().MettiInvito({});
  EXPECT_EQ(tinte(), 1U);
  const auto invito = [](QWidget& dove) {
    const auto* scritta = dove.findChild<QLabel*>(QStringLiteral("InvitoElenco"));
    return scritta != nullptr && scritta->isVisible() && !scritta->text().isEmpty();
  };
  for (const FiltroEstratti filtro : {FiltroEstratti::Smp, FiltroEstratti::Emp}) {
    banco.disco.Metti("C:\\pregeo\\estratti\\A.EMP", "0|12032026|G224|0010|0000|12|6|\r\n");
    KR_EstrattiDiMappa1 estratti(banco.ambiente);
    estratti.AlCaricamento();
    ui::FinestraEstratti gestore(estratti);
    gestore.show();
    gestore
        .findChild<QAbstractButton*>(filtro == FiltroEstratti::Smp ? QStringLiteral("Filtro_SMP")
                                                                   : QStringLiteral("Filtro_EMP"))
        ->click();
    EXPECT_EQ(invito(gestore), filtro == FiltroEstratti::Smp);
  }
}

// A window larger than the screen, one that was left over its edge, one left on a screen that is gone: the title and the
// whole of the window stay on the screen.
TEST(Misure, OgniFinestraTornaSulloSchermo) {
  const QRect libero = QGuiApplication::primaryScreen()->availableGeometry();
  struct Caso {
    PosizioneForm lasciata;
    bool sposta;
  };
  for (const auto& [lasciata, sposta] :
       {Caso{{10, 20, 5000, 4000}, true}, Caso{{libero.width() - 100, libero.height() - 100, 400, 300}, true},
        Caso{{9000, 9000, 400, 300}, false}, Caso{{30, 40, 400, 300}, true}}) {
    QWidget finestra;
    finestra.move(1, 1);
    ui::RimettiAlPosto(finestra, lasciata);
    EXPECT_TRUE(libero.contains(finestra.geometry())) << lasciata.sinistra;
    EXPECT_LE(finestra.height(), libero.height() - 20) << "no room for the title";
    EXPECT_EQ(finestra.pos() != QPoint(1, 1), sposta) << lasciata.sinistra;
  }
  QWidget sotto;
  sotto.setGeometry(libero);
  QDialog alta(&sotto);
  alta.resize(400, libero.height() - 21);
  ui::MettiNelMezzo(alta);
  EXPECT_TRUE(alta.testAttribute(Qt::WA_Moved)) << "else the window manager chooses";
  EXPECT_EQ(alta.y(), libero.top()) << "the frame's place: its title stands there";
  EXPECT_NEAR(alta.geometry().center().x(), libero.center().x(), 1);
}

} // namespace
} // namespace lirmeto::prova
