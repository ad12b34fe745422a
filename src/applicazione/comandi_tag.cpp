#include <applicazione/comandi_tag.h>

#include <applicazione/forme.h>
#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/apri_form.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <estratti/copia_estratto.h>
#include <fiduciali/misurate.h>
#include <generazione/misurate_disegno.h>
#include <generazione/tabelle_disegno.h>

#include <algorithm>
#include <array>

namespace lirmeto {

// What could be done in more than one way:
//
//   a .PDF                                   is opened by its sections, as a drop on the list does
//   a libretto that cannot be read           the report, and the command is not run
//   a drawing without its .TXT               Libretto is empty: the rows of a drawing are none of a libretto
//   a drawing closed without a generation    the main window has the .TXT, so that its save leaves the drawing alone
//   a command whose window is to come        says so before it asks the user for anything

namespace {

void ApriFile(Ambiente& ambiente, const std::string& percorso) {
  if (percorso.empty()) return;
  if (!EstensioneEstratto(percorso)) {
    if (!ambiente.disco.Esiste(percorso))
      return ambiente.dialoghi.Messaggio(percorso + std::string(FineRiga) + "NON trovato!");
    (void)Intrappola(ambiente, [&] { ApriLibretto(ambiente, percorso, Accetta::SoloLibretti); });
    return;
  }
  (void)Intrappola(ambiente, [&] { CopiaEstrattoInPregeo(ambiente, percorso); });
  (void)Intrappola(ambiente, [&] { ApriForm(ambiente, forma::EstrattiDiMappa); });
}

DopoComando EseguiComandoDi(Ambiente& ambiente, std::string_view linea) {
  Sessione& sessione = ambiente.sessione;
  sessione.ParametroTag = Maiuscolo(Parte(linea, '|', 2));
  sessione.ComandoTag = sessione.UltimaTag = Maiuscolo(Parte(linea, '|', 1));
  return EseguiComandoTag(ambiente);
}

DopoComando EseguiLinea(Ambiente& ambiente, std::string_view linea) {
  const std::string file(Parte(linea, '|', 0));
  ApriLibretto(ambiente,
               file.empty() ? ambiente.sessione.CartellaProgramma + "\\Nuovo.DAT"
                            : PercorsoInCapitali(ambiente.disco, file),
               Accetta::SoloLibretti);
  return EseguiComandoDi(ambiente, linea);
}

// --- the commands

DopoComando Apri(Ambiente& ambiente, std::string_view form) {
  ApriForm(ambiente, form);
  return DopoComando::Finisce;
}

DopoComando ApriDaPregeo(Ambiente& ambiente, std::int16_t modo) {
  ambiente.sessione.ModoDaPregeo = modo;
  return Apri(ambiente, forma::DaPregeo);
}

DopoComando Annuncia(Ambiente& ambiente) {
  ambiente.dialoghi.Messaggio(NonAncoraDisponibile);
  return DopoComando::Finisce;
}

// The .TXT beside the drawing; the path of anything else as it is.
std::string PercorsoLibretto(const std::string& disegno) {
  if (!FinisceConSenzaCaso(disegno, EstensioneDisegno)) return disegno;
  return ConEstensione(disegno, ".TXT");
}

// The libretto that belongs to the drawing, listed.
void CaricaLibrettoDelDisegno(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  const std::string disegno = PercorsoInCapitali(ambiente.disco, sessione.NomeFileLibretto);
  const std::string testo = PercorsoLibretto(disegno);
  if (!ambiente.disco.Esiste(testo)) sessione.Libretto.clear();
  ApriLibretto(ambiente, testo);
  CaricaLibrettoInList1(ambiente);
  sessione.PuntoErrore = "Decozero_130";
  sessione.NomeFileLibretto = disegno;
}

DopoComando LibrettoDaDisegno(Ambiente& ambiente) {
  for (const auto form : {forma::Intestazione, forma::LibrettoDaDisegno})
    if (!ambiente.finestre.Disponibile(form)) return Annuncia(ambiente);
  CaricaLibrettoDelDisegno(ambiente);
  ApriForm(ambiente, forma::Intestazione);
  if (ambiente.sessione.EsitoForm < 0) return DopoComando::Finisce;
  ambiente.sessione.EsitoForm = EsitoAnnullato;
  ApriForm(ambiente, forma::LibrettoDaDisegno);
  const bool fatto = ambiente.sessione.EsitoForm == EsitoConfermato; // made, and written
  if (fatto || ambiente.sessione.FineScambio) return DopoComando::Finisce;
  ambiente.sessione.NomeFileLibretto = PercorsoLibretto(ambiente.sessione.NomeFileLibretto);
  return DopoComando::FinestraPrincipale;
}

// The comune chosen there is the viewer's: the session keeps that of row 0.
DopoComando GestionePf(Ambiente& ambiente) {
  if (ApriForm(ambiente, forma::ElcoPf)) DecoZeroNove(ambiente);
  return DopoComando::Finisce;
}

struct ComandoConosciuto {
  std::string_view nome;
  DopoComando (*esegui)(Ambiente& ambiente);
};

constexpr std::array Conosciuti = {
    ComandoConosciuto{"LIBRETTO_DA_DISEGNO", &LibrettoDaDisegno},
    ComandoConosciuto{"CONFIGURA_PREGEO", [](Ambiente& ambiente) { return Apri(ambiente, forma::ConfiguraPregeo); }},
    ComandoConosciuto{"SELEZIONA_MISURATE",
                      [](Ambiente& ambiente) { return Apri(ambiente, forma::SelezionaMisurate); }},
    ComandoConosciuto{"MISURATE_DA1_PF",
                      [](Ambiente& ambiente) {
                        InfoMisurate(ambiente, ambiente.sessione.ParametroTag);
                        return DopoComando::Finisce;
                      }},
    ComandoConosciuto{"INFO_MISURATE",
                      [](Ambiente& ambiente) {
                        CalcolaMisuratePF(ambiente);
                        return DopoComando::Finisce;
                      }},
    ComandoConosciuto{"GESTIONE_PF", &GestionePf},
    ComandoConosciuto{"DA_PREGEO", [](Ambiente& ambiente) { return ApriDaPregeo(ambiente, 0); }},
    ComandoConosciuto{"DA_PREGEO_DXF", [](Ambiente& ambiente) { return ApriDaPregeo(ambiente, 1); }},
    ComandoConosciuto{"IMPORT-INST_TAF-MISURATE",
                      [](Ambiente& ambiente) {
                        ImportaTafMisurate(ambiente);
                        return DopoComando::Finisce;
                      }},
};

} // namespace

DopoComando ComandoTag1(Ambiente& ambiente) {
  ambiente.sessione.PuntoErrore = "COMANDOTAG_1";
  const std::string linea = Sostituisci(ambiente.sessione.ComandoTag, "\"", "");
  const bool disegno = !Contiene(linea, "|") && EDisegno(ambiente, PercorsoInCapitali(ambiente.disco, linea));
  if (!disegno && !Contiene(linea, "|")) {
    ApriFile(ambiente, PercorsoInCapitali(ambiente.disco, linea));
    return DopoComando::FinestraPrincipale;
  }
  DopoComando dopo = DopoComando::Finisce;
  if (disegno) ambiente.sessione.EsitoForm = EsitoAnnullato;
  (void)Intrappola(ambiente,
                   [&] { dopo = EseguiLinea(ambiente, disegno ? linea + std::string(ComandoDisegno) : linea); });
  const bool fatto = disegno && ambiente.sessione.EsitoForm == EsitoConfermato;
  return fatto ? DopoComando::FinestraPrincipale : dopo;
}

bool EDisegno(const Ambiente& ambiente, const std::string& percorso) {
  constexpr std::size_t inizio = 65536; // bytes, in which a point stands
  if (!FinisceConSenzaCaso(percorso, EstensioneDisegno)) return false;
  try {
    const std::string testo = ambiente.disco.LeggiInizio(percorso, inizio);
    const auto righe = RigheDi(testo);
    return std::any_of(righe.begin(), righe.end(), [](std::string_view riga) { return riga.starts_with("P,"); });
  } catch (const Errore&) { // whoever opens it tells
    return false;
  }
}

void EseguiLineaDiComando(Ambiente& ambiente, std::string_view linea) {
  const std::string file(Parte(linea, '|', 0));
  if (!file.empty()) ApriLibretto(ambiente, PercorsoInCapitali(ambiente.disco, file), Accetta::SoloLibretti);
  (void)EseguiComandoDi(ambiente, linea);
}

DopoComando EseguiComandoTag(Ambiente& ambiente) {
  const std::string comando = Maiuscolo(ambiente.sessione.ComandoTag);
  const auto trovato = std::find_if(Conosciuti.begin(), Conosciuti.end(),
                                    [&](const ComandoConosciuto& voce) { return voce.nome == comando; });
  return trovato == Conosciuti.end() ? DopoComando::Finisce : trovato->esegui(ambiente);
}

} // namespace lirmeto
