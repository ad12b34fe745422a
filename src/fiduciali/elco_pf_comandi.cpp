// The commands of the plane of the fiducial points, and what they write.

#include <fiduciali/elco_pf_grafica.h>

#include <fiduciali/elco_pf_file.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/programmi.h>
#include <grafica/file_esportati.h>
#include <supporto/stampa_generale.h>

#include <array>
#include <utility>

namespace lirmeto {

namespace {

constexpr double Passo = 0.2; // of the width, by which the view moves

constexpr std::array<VocePF, 15> Voci = {{
    {5, "zoom_tutto", "Tutto", "Mostra tutti i punti"},
    {3, "zoom_piu", "Ingrandisci", "Ingrandisce (rotella avanti)"},
    {4, "zoom_meno", "Riduci", "Riduce (rotella indietro)"},
    {1, "sinistra", "Sinistra", "Sposta la vista a sinistra"},
    {2, "destra", "Destra", "Sposta la vista a destra"},
    {11, "zoom_finestra", "Finestra", "Ingrandisce il riquadro che si traccia"},
    {9, "ricarica", "Ridisegna", "Ridisegna i punti"},
    {6, "misurate", "Misurate", "Disegna le distanze misurate della provincia"},
    {13, "estratti", "Estratto", "Aggiunge i punti fiduciali di un estratto di mappa"},
    {12, "copia", "Copia", "Copia l'immagine negli appunti"},
    {7, "scambio", "Nel disegno", "Copia i punti nel disegno e chiude il visualizzatore"},
    {8, "fiduciali", "Stampa punti", "Stampa i punti selezionati"},
    {14, "dxf", "DXF", "Salva i punti in DXF"},
    {15, "stampa", "Stampa", "Stampa il disegno"},
    {0, "chiudi", "Chiudi", "Chiude il disegno dei punti"},
}};

constexpr std::array<VoceSelezionePF, 7> VociSelezione = {{
    {SelezionePF::Tutti, "seleziona_tutti", "Tutti", "Seleziona tutti i punti"},
    {SelezionePF::Nessuno, "seleziona_nessuno", "Nessuno", "Toglie la selezione"},
    {SelezionePF::Inverti, "inverti", "Inverti", "Inverte la selezione"},
    {SelezionePF::Foglio, "foglio", "Foglio", "Seleziona i punti del foglio su cui si fa clic"},
    {SelezionePF::Intorno, "seleziona_intorno", "Intorno", "Seleziona i punti intorno a un clic, entro un raggio"},
    {SelezionePF::GaussBoaga, "gauss_boaga", "Gauss-Boaga", "Seleziona i punti in coordinate Gauss-Boaga"},
    {SelezionePF::FuoriUso, "fuori_uso", "Fuori uso", "Seleziona i punti non utilizzabili secondo la descrizione"},
}};

} // namespace

std::span<const VocePF> VociElcoPF() {
  return Voci;
}

std::span<const VoceSelezionePF> VociSelezionePF() {
  return VociSelezione;
}

void KR_ElcoPFGrafica::Esegui(int indice) {
  ambiente_.sessione.PuntoErrore = "KR_ElcoPFGrafica";
  (void)Intrappola(ambiente_, [&] { EsegueComando(indice); });
}

void KR_ElcoPFGrafica::EsegueComando(int indice) {
  using F = KR_ElcoPFGrafica;
  static constexpr auto azioni = std::to_array<std::pair<int, void (*)(F&)>>({
      {0, [](F& form) { form.Chiusa = true; }},
      {1, [](F& form) { form.Sposta(-Passo); }},
      {2, [](F& form) { form.Sposta(Passo); }},
      {3, [](F& form) { form.subZoomElcoPF(1); }},
      {4, [](F& form) { form.subZoomElcoPF(2); }},
      {5, [](F& form) { form.ZoomTutto(); }},
      {6, [](F& form) { form.MettiDistanzeMisurate(form.ArchivioDellaProvincia()); }},
      {7,
       [](F& form) {
         form.CopiaInFilePF();
         form.Chiusa = form.TuttoChiuso = true;
       }},
      {8, [](F& form) { form.Stampa(); }},
      {9, [](F& form) { form.RiDisegnaPF(); }},
      {10, [](F& form) { form.RiDisegnaPF(); }},
      {11, [](F& form) { form.Arma(StrumentoPF::ZoomFinestra); }},
      {12, [](F& form) { form.CopiaSchermo(); }},
      {13, [](F& form) { form.AssociamiEstratto(); }},
      {14, [](F& form) { form.ElcoPF_SalvaDXF(); }},
      {15, [](F& form) { form.AnteprimaStampapf(); }},
  });
  for (const auto& [suo, azione] : azioni)
    if (suo == indice) azione(*this);
}

void KR_ElcoPFGrafica::CopiaSchermo() {
  if (grafica_.Picture1 == nullptr) return;
  grafica_.Picture1->CopiaRaster();
  ambiente_.dialoghi.Messaggio("Contenuto Schermo copiato negli Appunti!", "Copia Schermo");
}

void KR_ElcoPFGrafica::Stampa() {
  StampaConFile(ambiente_, RigheStampaPF(Punti, tabella_), TestoStampaPF(Punti, tabella_),
                ambiente_.sessione.CartellaProgramma + "\\temp\\Stampa_Fiduciali");
}

// The order to the sibling program is spelled as that program reads it.
void KR_ElcoPFGrafica::CopiaInFilePF() {
  const std::string cartella = ambiente_.sessione.CartellaDocumenti + "\\Forvale\\TEMP\\";
  ambiente_.disco.Scrivi(cartella + "CopiaInFile.txt", TestoScambioPF(Punti, Segmenti));
  ambiente_.disco.Scrivi(cartella + "EseguiIncollaDaFile.TXT", "EseguiIncolaDaFile" + std::string(FineRiga));
  ambiente_.dialoghi.Messaggio("PF copiati!", "Copia PF in Disegno");
  ambiente_.sessione.FineScambio = SoloPerScambio(ambiente_);
}

void KR_ElcoPFGrafica::ElcoPF_SalvaDXF() {
  const std::string file = ambiente_.sessione.CartellaProgramma + "\\GraficaPF.DXF";
  ambiente_.disco.Scrivi(file, TestoDxfPF(Punti, Segmenti));
  ambiente_.dialoghi.Messaggio("Salvato il file " + file, "Salva in DXF");
  if (ambiente_.dialoghi.Chiedi("Aprire il file DXF ?", "Apertura file DXF ", Bottoni::SiNo) == Risposta::Si)
    ApriDocumentoODillo(ambiente_, file);
}

void KR_ElcoPFGrafica::AnteprimaStampapf() {
  constexpr int stampaConProgramma = 5; // of the drawing's toolbar
  grafica_.Toolbar(stampaConProgramma);
}

} // namespace lirmeto
