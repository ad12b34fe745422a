#include <piattaforma/linux/errori_ospite.h>

#include <cerrno>

namespace lirmeto {

int NumeroDaErrno(int codice, int assente) {
  switch (codice) {
  case ENOENT:
  case ENOTDIR:
    return assente;
  case EACCES:
  case EPERM:
    return errore::AutorizzazioneNegata;
  case ENOSPC:
  case EDQUOT:
  case EFBIG:
    return errore::DiscoPieno;
  case ENAMETOOLONG:
    return errore::NomeFileNonValido;
  case ENOMEM:
    return errore::MemoriaEsaurita;
  default:
    return errore::AccessoAlFile;
  }
}

void LanciaErrno(int codice, int assente) {
  throw Errore(NumeroDaErrno(codice, assente));
}

} // namespace lirmeto
