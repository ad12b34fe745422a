#pragma once
// What all drawings of the program share.

#include <core/ambiente.h>
#include <grafica/archivio_grafica.h>
#include <grafica/gancio_grafica.h>
#include <grafica/vista_grafica.h>

namespace lirmeto {

// Store, view and hook are one for all instances; the owner of the instances hands them to each.
struct DisegnoCondiviso {
  ArchivioGrafica archivio;
  VistaGrafica vista;
  GancioGrafica gancio;
};

// One that shows what the user wants to see: it begins with his display flags and keeps them when it ends.
class DisegnoDellUtente : public DisegnoCondiviso {
public:
  explicit DisegnoDellUtente(Ambiente& ambiente);
  DisegnoDellUtente(const DisegnoDellUtente&) = delete;
  DisegnoDellUtente& operator=(const DisegnoDellUtente&) = delete;
  ~DisegnoDellUtente();

private:
  Ambiente& ambiente_;
};

} // namespace lirmeto
