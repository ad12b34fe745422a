#include <supporto/modello_stampa.h>

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/lettura.h>

#include <array>

namespace lirmeto {

namespace {

// Ends a line within a paragraph, in the model's first colour.
constexpr std::string_view FineLinea = "\\cf1\\line ";

struct Segnaposto {
  std::string_view nome;
  std::string Sessione::*valore; // null: wiped
};

// In the order of their replacement. The comune's name is not put in: a model is of one comune and has it in
// its text.
constexpr std::array<Segnaposto, 13> Segnaposti = {{
    {"_nome_dos_libretto_", &Sessione::NomeFileLibretto},
    {"_anno_libretto_", &Sessione::AnnoLibretto},
    {"_data_libretto_", &Sessione::DataLibretto},
    {"_protocollo_libretto_", &Sessione::Protocollo},
    {"_mappali_libretto_", &Sessione::Mappali},
    {"_foglio_libretto_", &Sessione::Foglio},
    {"_nome_comune_rilievo_", nullptr},
    {"_codice_comune_rilievo_", &Sessione::CodiceComune},
    {"_nome_provincia_rilievo_", &Sessione::NomeProvincia},
    {"_sigla_provincia_rilievo_", &Sessione::SiglaProvincia},
    {"_nome_tecnico_libretto_", &Sessione::Tecnico},
    {"_titolo_tecnico_libretto_", &Sessione::Qualifica},
    {"_nome_provincia_tecnico_", &Sessione::Provincia},
}};

std::string_view SenzaBianchiInFondo(std::string_view riga) {
  while (riga.ends_with(' ')) riga.remove_suffix(1);
  return riga;
}

std::string TestoDellaStampa(const ListaRighe& righe) {
  std::string testo;
  for (const auto riga : righe) {
    testo += PerRtf(SenzaBianchiInFondo(riga));
    testo += FineLinea;
  }
  return testo;
}

} // namespace

std::string PerRtf(std::string_view valore) {
  std::string testo;
  testo.reserve(valore.size());
  for (const char lettera : valore) {
    if (lettera == '\\' || lettera == '{' || lettera == '}') testo += '\\';
    testo += lettera;
  }
  return testo;
}

bool EModelloRtf(std::string_view modello) {
  return modello.starts_with("{\\rtf");
}

std::string CompilaModello(std::string_view modello, const Sessione& sessione, const ListaRighe& righe) {
  std::string testo(modello);
  for (const auto& [nome, valore] : Segnaposti)
    testo = Sostituisci(testo, nome, valore == nullptr ? std::string() : PerRtf(sessione.*valore));
  testo = Sostituisci(testo, "_stampa_generale_", TestoDellaStampa(righe));
  return Sostituisci(testo, "_elenco_possessori_", Sostituisci(PerRtf(sessione.ElencoPossessori), FineRiga, FineLinea));
}

std::string LeggiModello(Ambiente& ambiente, const std::string& percorso) {
  std::string modello = CaricaFileBinario(ambiente, percorso);
  const std::string nome(NomeDaPercorso(percorso));
  std::string vuoto = "Il modello " + nome;
  vuoto += " è vuoto"_w;
  if (modello.empty()) throw Errore(errore::OltreLaFine, vuoto);
  std::string avviso = "Il modello " + nome;
  avviso += " non è un documento RTF:"_w;
  avviso += std::string(FineRiga) + "viene compilato come testo.";
  if (!EModelloRtf(modello)) ambiente.dialoghi.Messaggio(avviso);
  return modello;
}

} // namespace lirmeto
