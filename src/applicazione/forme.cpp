#include <applicazione/forme.h>

#include <applicazione/tipologie.h>
#include <estratti/completa_autoallestito.h>
#include <estratti/estratti_di_mappa.h>
#include <estratti/kr_estratto.h>
#include <fiduciali/elco_pf.h>
#include <fiduciali/importa_fiduciali.h>
#include <fiduciali/quote_medie.h>
#include <fiduciali/seleziona_misurate.h>
#include <generazione/libretto_da_disegno.h>
#include <generazione/tipologia.h>
#include <grafica/form_disegno.h>
#include <intestazione/catasto1_form.h>
#include <pregeo/form_configura_pregeo.h>
#include <pregeo/kr_dapregeo.h>
#include <proposte/kr_edm.h>
#include <supporto/archivio_possessori.h>
#include <supporto/assegna_descrizione.h>
#include <supporto/cod_fis.h>
#include <supporto/comuni8.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

// A form whose model needs its surroundings alone.
template <typename Modello>
void Apri(Ambiente& ambiente) {
  Modello form(ambiente);
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
}

void ApriDisegno(Ambiente& ambiente) {
  FormDisegno form(ambiente);
  ambiente.finestre.MostraModale(form);
}

void ApriLibrettoDaDisegno(Ambiente& ambiente) {
  DisegnoDellUtente disegno(ambiente);
  LibrettoDaDisegno form(ambiente, disegno);
  form.Form_Load();
  ambiente.finestre.MostraModale(form);
  form.Form_Unload();
}

// Of the extract associated with the libretto.
void ApriCompletaAutoallestito(Ambiente& ambiente) {
  if (ambiente.sessione.EstrattoAssociato.empty())
    return ambiente.dialoghi.Messaggio("Indicare un Estratto di Mappa!", "Operazione Impossibile!");
  CompletaAutoallestito form(ambiente, ambiente.sessione.EstrattoAssociato);
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
}

void MostraDaPregeo(Ambiente& ambiente, bool conRicerca) {
  DisegnoDellUtente disegno(ambiente);
  KR_Dapregeo form(ambiente, disegno);
  form.ConRicerca = conRicerca;
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
}

void ApriDaPregeo(Ambiente& ambiente) {
  MostraDaPregeo(ambiente, false);
}

void CercaInPregeo(Ambiente& ambiente) {
  MostraDaPregeo(ambiente, true);
}

void ApriImportaDaEstratto(Ambiente& ambiente) {
  if (!EstrattoAssociatoPresente(ambiente)) return;
  FormImportaFiduciali form(ambiente, FonteFiduciali::Estratto);
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
}

// The typology 1000 for its provisional extract alone; the act keeps its own.
void ApriEstrattoProvvisorio(Ambiente& ambiente) {
  ambiente.sessione.TipologiaCorrente = TipologiaSenzaEstratto;
  MostraTipol10(ambiente);
  ambiente.sessione.TipologiaCorrente = ambiente.sessione.TipologiaRilievo;
}

constexpr std::array ElencoForme = {
    Forma{forma::ConfiguraPregeo, &Apri<FormConfiguraPregeo>},
    Forma{forma::Intestazione, &Apri<FormCatasto1TXT>},
    Forma{forma::Disegno, &ApriDisegno},
    Forma{forma::LibrettoDaDisegno, &ApriLibrettoDaDisegno},
    Forma{forma::CodFis, &Apri<KR_CodFis>},
    Forma{forma::Comuni8, &Apri<KR_Comuni8>},
    Forma{forma::ArchivioPossessori, &Apri<ArchivioPossessori>},
    Forma{forma::ImportaFiduciali, &Apri<FormImportaFiduciali>},
    Forma{forma::ImportaFiducialiEstratto, &ApriImportaDaEstratto},
    Forma{forma::AssegnaDescrizione, &Apri<AssegnaDescrizione>},
    Forma{forma::EstrattiDiMappa, &ApriEstrattiDiMappa},
    Forma{forma::CompletaAutoallestito, &ApriCompletaAutoallestito},
    Forma{forma::DaPregeo, &ApriDaPregeo},
    Forma{forma::CercaInPregeo, &CercaInPregeo},
    Forma{forma::QuoteMedie, &Apri<QuoteMedie>},
    Forma{forma::EstrattoProvvisorio, &ApriEstrattoProvvisorio},
    Forma{forma::SelezionaMisurate, &Apri<KR_SelezionaMisurate>},
    Forma{forma::ModelloCensuario, &Apri<KR_EDM>},
    Forma{forma::ElcoPf, &Apri<KR_ElcoPf>},
};

} // namespace

std::span<const Forma> Forme() {
  return ElencoForme;
}

const Forma* TrovaForma(std::string_view nome) {
  const auto forme = Forme();
  const auto trovata =
      std::find_if(forme.begin(), forme.end(), [nome](const Forma& form) { return form.nome == nome; });
  return trovata == forme.end() ? nullptr : &*trovata;
}

} // namespace lirmeto
