// The checks in the main window: the list of findings, the picture beside the rows, the walk from one to the next.

#include <applicazione/finestra_principale.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/salvataggio.h>
#include <supporto/stampa_generale.h>

namespace lirmeto {

namespace {

// Where the user's settings keep what is shown and how large.
constexpr std::string_view SezioneVerifiche = "VERIFICHE";
constexpr std::string_view ChiaveElenco = "ELENCO";
constexpr std::string_view ChiaveRilievo = "RILIEVO";
constexpr std::string_view ChiaveAltezza = "ALTEZZA_ELENCO";
constexpr std::string_view ChiaveLarghezza = "LARGHEZZA_RILIEVO";

} // namespace

void KR_LibrettoOriginale::LeggiPostiVerifiche() {
  const auto numero = [&](std::string_view chiave, int predefinito) {
    return static_cast<int>(Valore(ambiente_.impostazioni.Leggi(SezioneVerifiche, chiave, TestoIntero(predefinito))));
  };
  Prova([&] {
    ElencoVerifiche = numero(ChiaveElenco, 0) != 0;
    RilievoVisibile = numero(ChiaveRilievo, 0) != 0;
    AltezzaVerifiche = numero(ChiaveAltezza, AltezzaVerifiche);
    LarghezzaRilievo = numero(ChiaveLarghezza, LarghezzaRilievo);
  });
}

void KR_LibrettoOriginale::DimensionaVerifiche(int altezzaVerifiche, int larghezzaRilievo) {
  AltezzaVerifiche = altezzaVerifiche;
  LarghezzaRilievo = larghezzaRilievo;
  Prova([&] {
    ambiente_.impostazioni.Scrivi(SezioneVerifiche, ChiaveAltezza, TestoIntero(altezzaVerifiche));
    ambiente_.impostazioni.Scrivi(SezioneVerifiche, ChiaveLarghezza, TestoIntero(larghezzaRilievo));
  });
}

bool KR_LibrettoOriginale::AggiornaVerifiche() {
  bool altre = false;
  Prova([&] {
    altre = Verifiche.Aggiorna();
    if (altre) AvvisoErrori.clear();
    if (!RilievoVisibile) return;
    Rilievo.Aggiorna();
    if (altre && rigaAccesa_ >= 0) Rilievo.ScegliRiga(static_cast<std::size_t>(rigaAccesa_), false);
  });
  return altre;
}

// The picture follows the current row.
void KR_LibrettoOriginale::SeguiRiga() {
  const long riga = ambiente_.sessione.List1.Indice();
  if (!RilievoVisibile || riga == rigaAccesa_) return;
  rigaAccesa_ = riga;
  if (riga >= 0) Rilievo.ScegliRiga(static_cast<std::size_t>(riga), true);
}

bool KR_LibrettoOriginale::EseguiVerifiche(Comando comando) {
  const auto inverti = [&](bool& valore, std::string_view chiave) {
    valore = !valore;
    ambiente_.impostazioni.Scrivi(SezioneVerifiche, chiave, valore ? "1" : "0");
    (void)AggiornaVerifiche();
  };
  if (comando == Comando::MostraVerifiche) return Prova([&] { inverti(ElencoVerifiche, ChiaveElenco); }), true;
  if (comando == Comando::MostraRilievo) return Prova([&] { inverti(RilievoVisibile, ChiaveRilievo); }), true;
  if (comando == Comando::PrendiRimedio) return PrendiRimedio(), true;
  const bool avanti = comando == Comando::SegnalazioneSuccessiva;
  if (!avanti && comando != Comando::SegnalazionePrecedente) return false;
  (void)AggiornaVerifiche();
  if (const auto quale = Verifiche.Successiva(avanti, ambiente_.sessione.List1.Indice())) ScegliSegnalazione(*quale);
  return true;
}

void KR_LibrettoOriginale::VaiARiga(std::size_t riga) {
  ElencoRighe& elenco = ambiente_.sessione.List1;
  if (riga >= elenco.Quante()) return;
  elenco.SelezionaSe([](std::string_view) { return false; });
  elenco.Seleziona(riga, true);
  elenco.Indice(static_cast<long>(riga));
  Righe_Indice();
}

void KR_LibrettoOriginale::ScegliSegnalazione(std::size_t indice) {
  if (indice >= Verifiche.Quante()) return;
  Verifiche.Scegli(indice);
  if (const auto riga = Verifiche.Voce(indice).riga) VaiARiga(*riga);
}

void KR_LibrettoOriginale::CliccaRilievo(const PuntoPiano& posto, double entro) {
  const auto riga = Rilievo.RigaVicina(posto, entro);
  if (!riga) return;
  rigaAccesa_ = static_cast<long>(*riga); // the view stays: the point stands under the pointer
  Rilievo.ScegliRiga(*riga, false);
  VaiARiga(*riga);
}

// The row as the finding saw it is the one that is mended.
void KR_LibrettoOriginale::PrendiRimedio() {
  ElencoRighe& elenco = ambiente_.sessione.List1;
  (void)AggiornaVerifiche();
  const auto segnalazione = Verifiche.ConRimedio(elenco.Indice());
  if (!segnalazione || !segnalazione->riga || *segnalazione->riga >= elenco.Quante()) return;
  Comanda("Rimedio " + std::string(segnalazione->regola->codice), [&] {
    elenco.Cambia(*segnalazione->riga, segnalazione->rimedio);
    AggiornaLibrettoMisure(ambiente_);
  });
  if (*segnalazione->riga < elenco.Quante()) VaiARiga(*segnalazione->riga);
  (void)AggiornaVerifiche();
}

// Nothing is refused: what leaves the program is only counted.
void KR_LibrettoOriginale::ContaErrori() {
  (void)AggiornaVerifiche();
  const std::size_t errori = Verifiche.Esito().Quante().errori;
  AvvisoErrori.clear();
  if (errori > 0)
    AvvisoErrori =
        "Il libretto esce con " + TestoIntero(static_cast<long long>(errori)) + (errori == 1 ? " errore" : " errori");
}

void KR_LibrettoOriginale::CopiaSegnalazioni() {
  Prova([&] {
    std::string testo;
    for (const std::string& riga : Verifiche.Righe()) testo.append(riga).append(FineRiga);
    ambiente_.appunti.MettiTesto(testo);
  });
}

void KR_LibrettoOriginale::StampaSegnalazioni() {
  Prova([&] {
    ListaRighe righe{"Verifiche del libretto " + ambiente_.sessione.NomeFileLibretto, Verifiche.Riepilogo(), " "};
    for (const std::string& riga : Verifiche.Righe()) righe.Aggiungi(Sostituisci(riga, "\t", "  "));
    MostraStampaGenerale(ambiente_, std::move(righe));
  });
}

} // namespace lirmeto
