#include <core/mostra_errore.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <new>

namespace lirmeto {

namespace {

class Lavoro {
public:
  explicit Lavoro(Dialoghi& dialoghi) : dialoghi_(dialoghi) { dialoghi_.Lavora(true); }
  ~Lavoro() { dialoghi_.Lavora(false); }
  Lavoro(const Lavoro&) = delete;
  Lavoro& operator=(const Lavoro&) = delete;

private:
  Dialoghi& dialoghi_;
};

void Annota(Sessione& sessione, const Errore& errore) {
  sessione.NumeroErrore = errore.Numero();
  sessione.TestoErrore = errore.Descrizione();
  if (!errore.Riga().empty()) sessione.TestoErrore += std::string(FineRiga) + "Riga " + errore.Riga();
}

std::string CorpoRapporto(const Sessione& sessione) {
  std::string corpo;
  corpo += "Si è verificato questo errore : "_w;
  corpo += TestoIntero(sessione.NumeroErrore);
  corpo += FineRiga;
  corpo += sessione.TestoErrore;
  if (sessione.NumeroErrore == errore::AccessoAlFile)
    corpo += std::string(FineRiga) + "o il file potrebbe essere di sola lettura!";
  corpo += std::string(FineRiga) + "Nella Routine " + sessione.PuntoErrore;
  return corpo;
}

} // namespace

void MostraErrore(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  if (sessione.NumeroErrore != errore::DialogoAnnullato)
    ambiente.dialoghi.Messaggio(CorpoRapporto(sessione), "Rilevato errore", Gravita::Critico);
  sessione.PuntoErrore.clear();
}

bool Intrappola(Ambiente& ambiente, const std::function<void()>& comando) {
  try {
    const Lavoro lavoro(ambiente.dialoghi);
    comando();
    return true;
  } catch (const Errore& errore) {
    Annota(ambiente.sessione, errore);
  } catch (const std::bad_alloc&) {
    Annota(ambiente.sessione, Errore(errore::MemoriaEsaurita));
  } catch (const std::exception& difetto) {
    Annota(ambiente.sessione,
           Errore(errore::ErroreInterno, DescrizioneErrore(errore::ErroreInterno) + ": " + difetto.what()));
  }
  MostraErrore(ambiente);
  return false;
}

} // namespace lirmeto
