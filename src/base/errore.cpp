#include <base/errore.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::array<std::pair<int, std::string_view>, 19> Descrizioni = {{
    {errore::ArgomentoNonValido, "Argomento o chiamata di routine non validi"},
    {errore::Overflow, "Overflow"},
    {errore::MemoriaEsaurita, "Memoria esaurita"},
    {errore::IndiceFuoriIntervallo, "Indice non incluso nell'intervallo"},
    {errore::DivisionePerZero, "Divisione per zero"},
    {errore::TipoNonCorrispondente, "Tipo non corrispondente"},
    {errore::ErroreInterno, "Errore interno"},
    {errore::NomeFileNonValido, "Nome o numero di file non valido"},
    {errore::FileNonTrovato, "Impossibile trovare il file"},
    {errore::FileGiaAperto, "Il file è già aperto"_w},
    {errore::FileEsistente, "Il file esiste già"_w},
    {errore::DiscoPieno, "Disco pieno"},
    {errore::OltreLaFine, "Lettura oltre la fine del file"},
    {errore::AutorizzazioneNegata, "Autorizzazione negata"},
    {errore::AccessoAlFile, "Errore nell'accesso al percorso o al file"},
    {errore::PercorsoNonTrovato, "Impossibile trovare il percorso"},
    {errore::ChiaveEsistente, "Questa chiave è già associata a un elemento dell'insieme"_w},
    {errore::ErroreStampante, "Errore della stampante"},
    {errore::DialogoAnnullato, "Operazione annullata"},
}};

} // namespace

std::string DescrizioneErrore(int numero) {
  const auto* trovata = std::find_if(Descrizioni.begin(), Descrizioni.end(),
                                     [numero](const auto& coppia) { return coppia.first == numero; });
  return trovata == Descrizioni.end() ? "Errore definito dall'applicazione" : std::string(trovata->second);
}

Errore Errore::DellaRiga(std::size_t numero, std::string_view riga) const {
  constexpr std::size_t mostrati = 200; // characters; the report is a box
  Errore conRiga = *this;
  if (conRiga.riga_.empty()) {
    conRiga.riga_ = TestoIntero(static_cast<long long>(numero)) + ": ";
    conRiga.riga_ += riga.substr(0, mostrati);
    if (riga.size() > mostrati) conRiga.riga_ += "...";
  }
  return conRiga;
}

} // namespace lirmeto
