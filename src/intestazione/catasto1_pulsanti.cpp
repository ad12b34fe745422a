// The buttons of the header form.

#include <intestazione/catasto1_form.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/zero_nove.h>
#include <estratti/dati_estratto.h>
#include <fiduciali/quota_media.h>
#include <intestazione/catasto1_righe.h>
#include <pregeo/tecnico.h>
#include <supporto/cod_fis.h>

#include <algorithm>
#include <utility>

namespace lirmeto {

// What the buttons do, where it could be done in more than one way:
//
//   the lists' nine buttons           one adds the box's text to each list and one takes it off; the ninth brings the
//                                     first entries back. Those of titles and provinces last as long as the form.
//   5, several lines hold the name    the last of them counts
//   8, parts of its message           a line each
//   27, an extract that gives nothing leaves the boxes as they are

namespace {

constexpr std::string_view Aggiungi = "Aggiungi all'Archivio";
constexpr std::string_view Togli = "Elimina dall'Archivio";

} // namespace

std::span<const FormCatasto1TXT::Pulsante> FormCatasto1TXT::Pulsanti() {
  using F = FormCatasto1TXT;
  static constexpr std::array pulsanti = {
      Pulsante{0, "Conferma", "Scrive le righe 0 e 9, il tecnico e la configurazione di Pregeo",
               [](F& form) {
                 form.ambiente_.sessione.EsitoForm = EsitoConfermato;
                 form.ConfermaConfigurazione0();
               }},
      Pulsante{1, "Chiudi", "Chiude senza modificare il libretto", [](F& form) { form.Chiudi(); }},
      Pulsante{2, "Salva Predefiniti", "Salva le caselle come intestazione predefinita (Catasto1.txt)",
               [](F& form) { form.SalvaCatasto1(); }},
      Pulsante{22, "Elimina Predefiniti", "Elimina l'intestazione predefinita (Catasto1.txt)",
               [](F& form) { form.EliminaCatasto1(); }},
      Pulsante{3, "ggmmaaaa", "Completa una data di sei cifre con il secolo",
               [](F& form) { form.caselle_.Metti(casella::Data, DataAOttoCifre(form.caselle_[casella::Data])); }},
      Pulsante{4, "da Righe 8", "Media fra la minima e la massima quota delle righe 8",
               [](F& form) { form.QuotaMediaDaRighe8(); }},
      Pulsante{5, "del Comune", "Quota media del comune del libretto (QUOTAMEDIA.TXT)",
               [](F& form) { form.QuotaMediaDelComune(); }},
      Pulsante{6, "Cerca...", "Cerca il comune per nome o codice", [](F& form) { form.CercaComune(); }},
      Pulsante{7, "da Righe 8", "Media fra la minima e la massima Est delle righe 8", [](F& form) { form.EstMedio(); }},
      Pulsante{13, "Ricalcola Est Medio", "Media fra la minima e la massima Est delle righe 8",
               [](F& form) { form.EstMedio(); }},
      Pulsante{27, "Importa dall'Estratto", "Comune e foglio dall'estratto associato, Est medio dalle righe 8",
               [](F& form) { form.ImportaEstratto(); }},
      Pulsante{9, Aggiungi, "Aggiunge la qualifica all'elenco",
               [](F& form) { form.elenchi_.Aggiungi(Elenco::Qualifica, form.TestoPer(Elenco::Qualifica)); }},
      Pulsante{11, Togli, "Toglie la qualifica dall'elenco",
               [](F& form) { form.elenchi_.Elimina(Elenco::Qualifica, form.TestoPer(Elenco::Qualifica)); }},
      Pulsante{12, Aggiungi, "Aggiunge la provincia all'elenco",
               [](F& form) { form.elenchi_.Aggiungi(Elenco::Provincia, form.TestoPer(Elenco::Provincia)); }},
      Pulsante{15, Togli, "Toglie la provincia dall'elenco",
               [](F& form) { form.elenchi_.Elimina(Elenco::Provincia, form.TestoPer(Elenco::Provincia)); }},
      Pulsante{16, Aggiungi, "Aggiunge la strumentazione all'archivio",
               [](F& form) { form.elenchi_.Aggiungi(Elenco::Strumentazione, form.TestoPer(Elenco::Strumentazione)); }},
      Pulsante{17, Togli, "Elimina la strumentazione dall'archivio",
               [](F& form) { form.elenchi_.Elimina(Elenco::Strumentazione, form.TestoPer(Elenco::Strumentazione)); }},
      Pulsante{18, Aggiungi, "Aggiunge il commento all'archivio",
               [](F& form) { form.elenchi_.Aggiungi(Elenco::Commento, form.TestoPer(Elenco::Commento)); }},
      Pulsante{20, Togli, "Elimina il commento dall'archivio",
               [](F& form) { form.elenchi_.Elimina(Elenco::Commento, form.TestoPer(Elenco::Commento)); }},
      Pulsante{30, "Ripristina Elenchi", "Rimette negli elenchi le voci iniziali che mancano",
               [](F& form) { form.elenchi_.Ripristina(); }},
      Pulsante{8, "Usa Libretto Singolo", "Mette al posto dell'archivio di Pregeo quello della cartella indicata",
               [](F& form) { form.UsaLibrettoSingolo(); }},
      Pulsante{21, "Carica Tecnico", "Riempie le caselle dal tecnico scelto",
               [](F& form) { form.CaricaTecnicoScelto(); }},
      Pulsante{14, "Elimina Tecnico", "Elimina il file del tecnico scelto", [](F& form) { form.tecnici_.Elimina(); }},
      Pulsante{23, "Dissocia Misurate", "Il libretto non ha più un archivio di distanze misurate"_w,
               [](F& form) { form.ambiente_.sessione.MisurateAssociate.clear(); }},
  };
  return pulsanti;
}

void FormCatasto1TXT::Premi(int indice) {
  for (const Pulsante& pulsante : Pulsanti())
    if (pulsante.indice == indice) return Prova([&] { pulsante.azione(*this); });
}

// --- heights and coordinates

void FormCatasto1TXT::QuotaMediaDaRighe8() {
  const auto quota = QuotaMediaDelleRighe(ambiente_.sessione.List1.Righe());
  if (!quota) return ambiente_.dialoghi.Messaggio("Nessuna quota nelle righe 8!", "Quota Media");
  caselle_.Metti(casella::QuotaMedia, Formatta(*quota, FormatoQuotaMedia));
}

void FormCatasto1TXT::QuotaMediaDelComune() {
  Sessione& sessione = ambiente_.sessione;
  DecoZeroNove(ambiente_);
  const std::string percorso = PercorsoQuotaMedia(sessione);
  const std::string fine(FineRiga);
  if (!ambiente_.disco.Esiste(percorso)) return ambiente_.dialoghi.Messaggio(percorso + fine + "Non Trovato!");
  const auto trovata = QuotaMediaCon(CaricaFileIntero(ambiente_, percorso), sessione.NomeComune);
  if (!trovata)
    return ambiente_.dialoghi.Messaggio("Comune non trovato in QUOTAMEDIA.TXT:" + fine + sessione.CodiceComune + " " +
                                        sessione.NomeComune);
  sessione.QuotaMedia = *trovata;
  Cambia(casella::QuotaMedia, sessione.QuotaMedia);
}

void FormCatasto1TXT::EstMedio() {
  const double est = EstMedioDelleRighe(ambiente_.sessione.List1.Righe()).value_or(0);
  caselle_.Metti(casella::EstMedio, Formatta(est, FormatoEstMedio));
}

void FormCatasto1TXT::CaricaTecnicoScelto() {
  if (!tecnici_.Carica()) return;
  caselle_.PrendiTecnico(ambiente_.sessione);
  for (const std::size_t precisione : {casella::PrecisioneLineare, casella::PrecisioneAngolare})
    Cambia(precisione, ValorePredefinito(precisione, ambiente_.sessione, {}));
}

// --- comune, extract, archive

void FormCatasto1TXT::CercaComune() {
  Sessione& sessione = ambiente_.sessione;
  const auto esito = sessione.EsitoForm; // the search answers there too
  KR_CodFis form(ambiente_);
  form.AlCaricamento();
  ambiente_.finestre.MostraModale(form);
  sessione.EsitoForm = esito;
  if (sessione.EsitoSelezione > 0) Cambia(casella::Comune, sessione.CodiceComune);
}

// The parcels stay those of the act: an extract has more of them than are worked on.
void FormCatasto1TXT::ImportaEstratto() {
  Sessione& sessione = ambiente_.sessione;
  const auto dati = CopiaIDatiDellEstratto(ambiente_, sessione.EstrattoAssociato);
  if (!dati || (dati->comune.empty() && dati->foglio.empty() && dati->particelle.empty()))
    return ambiente_.dialoghi.Messaggio("Nessun dato dall'Estratto " + sessione.EstrattoAssociato,
                                        "Importa dall'Estratto");
  sessione.CodiceComune = dati->comune;
  sessione.Foglio = dati->foglio;
  Cambia(casella::Comune, sessione.CodiceComune);
  Cambia(casella::Foglio, sessione.Foglio);
  EstMedio();
  if (sessione.EsitoForm > 0) Cambia(casella::Protocollo, sessione.Protocollo);
}

void FormCatasto1TXT::UsaLibrettoSingolo() {
  std::string cartella(Taglia(NomeBackupArch2));
  while (cartella.ends_with('\\')) cartella.pop_back();
  const std::string percorso = cartella + "\\arch2.db";
  if (cartella.empty() || !ambiente_.disco.Esiste(percorso)) {
    std::string detto = "Il File " + percorso + std::string(FineRiga);
    detto += "Non è stato trovato!"_w;
    detto += std::string(FineRiga) + "Comando NON eseguito!";
    return ambiente_.dialoghi.Messaggio(detto, "Usa Libretto Singolo");
  }
  SalvaArch2(ambiente_);
  ambiente_.disco.Copia(percorso, ambiente_.sessione.Arch2Db);
  NomeBackupArch2.clear();
}

} // namespace lirmeto
