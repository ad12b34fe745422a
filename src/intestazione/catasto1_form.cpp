#include <intestazione/catasto1_form.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/nomi_forme.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <intestazione/catasto1_righe.h>
#include <pregeo/catasto1_file.h>
#include <pregeo/pregeo_ini.h>

#include <algorithm>

namespace lirmeto {

// How the boxes are filled, where it could be done in more than one way:
//
//   field 6 of a row 0           surname and name: those of the boxes where they say the same, else its first word and
//                                what stands behind it
//   Catasto1.txt                 holds the surname box alone, and is read so; a text of several words is divided
//   Recapito                     comes from the session, which has it from the surveyor's file
//   the two options              stand in the section of the surveyor's other option

namespace {

constexpr std::string_view NomeForm = "FormCatasto1TXT";
constexpr std::string_view SezioneOpzioni = "RELAZIONE_TECNICA";
constexpr std::size_t CampiZero = 8;
constexpr std::size_t CampiNove = 7;

std::string PercorsoCatasto1(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\Catasto1.txt";
}

bool Spuntata(const Impostazioni& impostazioni, std::string_view chiave) {
  return Valore(impostazioni.Leggi(SezioneOpzioni, chiave, "1")) != 0;
}

} // namespace

void FormCatasto1TXT::Prova(const std::function<void()>& comando) {
  (void)Intrappola(ambiente_, comando);
}

void FormCatasto1TXT::AlCaricamento() {
  Sessione& sessione = ambiente_.sessione;
  LeggiOpzioni();
  CFDaPregeoINI();
  CaricaElenchi();
  sessione.EsitoForm = EsitoAnnullato;
  Prova([&] { CaricaCatasto1TXT(); });
  if (!sessione.Libretto.empty()) CaricaDalLibretto();
  CompletaCaselle();
  Text1[casella::EstMedio] = NumeroInFormato(Text1[casella::EstMedio], FormatoEstMedio);
  Text1[casella::QuotaMedia] = NumeroInFormato(Text1[casella::QuotaMedia], FormatoQuotaMedia);
  EtichettaEstratto = sessione.EstrattoAssociato;
}

void FormCatasto1TXT::LeggiOpzioni() {
  const Impostazioni& impostazioni = ambiente_.impostazioni;
  PostoSalvato = LeggiPosizione(impostazioni, NomeForm);
  AggiornaPregeoIni = Spuntata(impostazioni, "Aggiorna_Default_Pregeo");
  AggiornaData = Spuntata(impostazioni, "Aggiorna_Default_Data");
}

void FormCatasto1TXT::ScriviOpzioni() {
  ambiente_.impostazioni.Scrivi(SezioneOpzioni, "Aggiorna_Default_Pregeo", AggiornaPregeoIni ? "1" : "0");
  ambiente_.impostazioni.Scrivi(SezioneOpzioni, "Aggiorna_Default_Data", AggiornaData ? "1" : "0");
}

void FormCatasto1TXT::SalvaPosto(const PosizioneForm& posto) {
  ScriviPosizione(ambiente_.impostazioni, NomeForm, posto);
}

void FormCatasto1TXT::CFDaPregeoINI() {
  Sessione& sessione = ambiente_.sessione;
  SistemaDatiPregeoIni(sessione);
  Text1[casella::Iscrizione] = sessione.NumeroIscrizione;
  Text1[casella::CodiceFiscale] = sessione.CodiceFiscale;
  Text1[casella::Cognome] = sessione.Cognome;
  Text1[casella::Nome] = sessione.Nome;
  Text1[casella::Qualifica] = sessione.Qualifica;
  Text1[casella::Provincia] = sessione.Provincia;
  Text1[casella::Recapito] = sessione.Recapito;
}

void FormCatasto1TXT::CaricaCatasto1TXT() {
  const std::string percorso = PercorsoCatasto1(ambiente_.sessione);
  if (!ambiente_.disco.Esiste(percorso)) return;
  const Catasto1 dati = LeggiCatasto1(CaricaFileIntero(ambiente_, percorso));
  for (std::size_t i = 0; i < CampiZero; ++i)
    i == casella::Cognome ? MettiTecnico(dati.zero[i]) : Cambia(i, dati.zero[i]);
  for (std::size_t i = 0; i < CampiNove; ++i) Cambia(casella::QuotaMedia + i, dati.nove[i]);
  Cambia(casella::Commento, dati.commento);
}

void FormCatasto1TXT::CaricaDalLibretto() {
  const auto righe = RigheDi(ambiente_.sessione.Libretto);
  const std::string_view zero = righe.empty() ? std::string_view() : righe[0];
  const std::string_view nove = righe.size() < 2 ? std::string_view() : righe[1];
  for (std::size_t i = 0; i < CampiZero; ++i) {
    const std::string_view campo = Parte(zero, '|', i + 1);
    i == casella::Cognome ? MettiTecnico(campo) : Cambia(i, campo);
  }
  for (std::size_t i = 0; i < CampiNove; ++i) Cambia(casella::QuotaMedia + i, Parte(nove, '|', i + 1));
  constexpr std::size_t primeRighe = 4; // 0, 9, an old 9, the comment
  ListaRighe prime;
  for (std::size_t i = 0; i < std::min(primeRighe, righe.size()); ++i) prime.Aggiungi(righe[i]);
  if (const std::string commento = CommentoDelleRighe(prime); !commento.empty()) Cambia(casella::Commento, commento);
}

void FormCatasto1TXT::MettiTecnico(std::string_view tecnico) {
  const std::string intero(Taglia(InUnCampo(tecnico)));
  std::string& cognome = Text1[casella::Cognome];
  std::string& nome = Text1[casella::Nome];
  if (UgualiSenzaCaso(intero, cognome) || UgualiSenzaCaso(intero, cognome + " " + nome)) return;
  const std::size_t blanco = intero.find(' ');
  cognome = intero.substr(0, blanco);
  if (blanco != std::string::npos) nome = Taglia(std::string_view(intero).substr(blanco));
}

// Empty boxes get what they are when nobody says otherwise.
void FormCatasto1TXT::CompletaCaselle() {
  for (std::size_t i = 0; i < NumeroCaselle; ++i)
    if (Taglia(Text1[i]).empty()) Text1[i] = ValorePredefinito(i, ambiente_.sessione, ambiente_.orologio.Oggi());
}

std::string FormCatasto1TXT::ComuneInCasella() const {
  const Comune* comune = TrovaComune(ambiente_.sessione.Comuni, Taglia(Text1[casella::Comune]));
  return comune == nullptr ? std::string{} : comune->nome + " (" + comune->provincia + ")";
}

void FormCatasto1TXT::Cambia(std::size_t indice, std::string_view testo) {
  Text1.at(indice) = InUnCampo(testo);
}

void FormCatasto1TXT::Lascia(std::size_t indice) {
  std::string& testo = Text1.at(indice);
  const bool vuota = Taglia(testo).empty();
  if (indice == casella::Data) {
    testo = DataAOttoCifre(Taglia(testo));
    ambiente_.sessione.DataLibretto = testo;
  } else if (indice == casella::Foglio) {
    testo = FoglioAQuattroCifre(Taglia(testo));
  } else if (indice == casella::Mappali) {
    testo = RiordinoMappali(testo);
  } else if (indice == casella::EstMedio && vuota) {
    EstMedio();
  } else if (vuota && (indice == casella::PrecisioneLineare || indice == casella::PrecisioneAngolare ||
                       indice == casella::Versione || indice == casella::Tipologia)) {
    testo = ValorePredefinito(indice, ambiente_.sessione, ambiente_.orologio.Oggi());
  }
}

void FormCatasto1TXT::ApriEstratti() {
  constexpr int modoIntestazione = 344;
  ambiente_.sessione.ModoEditor = modoIntestazione;
  Prova([&] { ApriForm(ambiente_, forma::EstrattiDiMappa); });
  EtichettaEstratto = ambiente_.sessione.EstrattoAssociato;
}

// --- Catasto1.txt

void FormCatasto1TXT::SalvaCatasto1() {
  for (std::size_t i = 0; i <= casella::Commento; ++i) Text1[i] = Maiuscolo(Text1[i]);
  Catasto1 dati;
  std::copy_n(Text1.begin(), CampiZero, dati.zero.begin());
  std::copy_n(Text1.begin() + casella::QuotaMedia, CampiNove, dati.nove.begin());
  dati.commento = Text1[casella::Commento];
  const std::string percorso = PercorsoCatasto1(ambiente_.sessione);
  const Disco& disco = ambiente_.disco;
  const std::string originale = disco.Esiste(percorso) ? disco.Leggi(percorso) : std::string{};
  ambiente_.disco.Scrivi(percorso, TestoCatasto1(dati, originale));
}

void FormCatasto1TXT::EliminaCatasto1() {
  const std::string percorso = PercorsoCatasto1(ambiente_.sessione);
  if (ambiente_.disco.Esiste(percorso)) ambiente_.disco.Elimina(percorso);
}

} // namespace lirmeto
