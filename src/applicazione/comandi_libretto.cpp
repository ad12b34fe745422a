#include <applicazione/comandi_libretto.h>

#include <applicazione/forme.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/libretto_in_classi.h>
#include <core/salvataggio.h>
#include <grafica/form_disegno.h>
#include <pregeo/pregeo_ini.h>
#include <pregeo/pregeo_ini_scrittura.h>
#include <pregeo/tecnico.h>
#include <supporto/editor_gen.h>
#include <supporto/stampa_generale.h>

namespace lirmeto {

void StampaLibretto(Ambiente& ambiente) {
  MostraStampaGenerale(ambiente, ambiente.sessione.List1.Righe());
}

void ArchiviaLibretto(Ambiente& ambiente) {
  AggiornaLibrettoMisure(ambiente);
  const Sessione& sessione = ambiente.sessione;
  const std::string aperto(NomeDaPercorso(sessione.NomeFileLibretto));
  const std::string nome = aperto.empty() ? "Libretto" : std::string(SenzaEstensione(aperto));
  const std::string percorso = sessione.CartellaProgramma + "\\Backup_Libretti\\" +
                               ComponenteFile(nome + "_" + DataEOra(ambiente.orologio) + ".DAT");
  ambiente.sessione.ComandoTag = "Silvarca"; // as the sibling programs know it
  ambiente.sessione.PuntoErrore = "ArchiviaLibretto";
  ambiente.disco.Scrivi(percorso, TestoDaSalvare(sessione));
  ambiente.dialoghi.Messaggio("Libretto archiviato in:\r\n" + percorso, "Archivia Libretti");
}

void ScegliMisurate(Ambiente& ambiente) {
  if (!ApriForm(ambiente, forma::SelezionaMisurate) || ambiente.sessione.EsitoForm < 0) return;
  ambiente.sessione.PuntoErrore = "ScegliMisurate";
  const bool scritte = SalvaMisurateInPregeoIni(ambiente);
  const std::string percorso = PercorsoPregeoIni(ambiente.sessione);
  ambiente.dialoghi.Messaggio(
      "Misurate associate : " + ambiente.sessione.MisurateAssociate + "\r\n" +
          (scritte ? "Scritto in " + percorso : "Non scritto: manca FILE_DISTANZETAF in " + percorso),
      "Archivio Distanze Misurate");
}

void ScegliTecnico(Ambiente& ambiente) {
  const std::string cartella = ambiente.sessione.CartellaProgramma + "\\TECNICI\\";
  ambiente.sessione.PuntoErrore = "ArchivioTecnici";
  const std::string scelto =
      ambiente.dialoghi.ScegliFileDaAprire({"Archivio Tecnici", cartella, {}, "Tecnici (*.pfs *.PFS)"});
  const std::string nome(NomeDaPercorso(scelto));
  if (!ambiente.disco.Esiste(cartella + nome))
    return ambiente.dialoghi.Messaggio("Il file di un Tecnico sta nella cartella\r\n" + cartella, "Archivio Tecnici");
  CaricaTecnico(ambiente, nome);
}

void MostraProposta(Ambiente& ambiente) {
  AggiornaLibrettoMisure(ambiente);
  Sessione& sessione = ambiente.sessione;
  CatturaPropostaInLibretto(sessione);
  if (sessione.PropostaLibretto.empty())
    return ambiente.dialoghi.Messaggio("Il Libretto non ha una Proposta di Aggiornamento!");
  const std::string percorso = sessione.CartellaProgramma + "\\temp\\PROPOSTA.DAT";
  sessione.PuntoErrore = "MostraProposta";
  ambiente.disco.Scrivi(percorso, sessione.Libretto);
  FormDisegno form(ambiente);
  if (form.Apri(percorso)) ambiente.finestre.MostraModale(form);
}

void ApriModulistica(Ambiente& ambiente) {
  ambiente.sessione.PuntoErrore = "Modulistica";
  ambiente.processi.ApriDocumento(ambiente.sessione.RadiceDati + "\\fiducial\\MODULISTICA");
}

void AvviaPregeo(Ambiente& ambiente) {
  const std::string programma = ambiente.sessione.RadicePregeo + "\\pregeo\\exe\\Pregeo.EXE";
  ambiente.sessione.PuntoErrore = "AvviaPregeo";
  if (!ambiente.disco.Esiste(programma))
    return ambiente.dialoghi.Messaggio(programma + std::string(FineRiga) + "Non Trovato!", "Attiva Pregeo");
  ambiente.processi.Avvia(programma);
}

void ModificaRelazione(Ambiente& ambiente) {
  AggiornaLibrettoMisure(ambiente);
  subModificaRelazione(ambiente);
}

} // namespace lirmeto
