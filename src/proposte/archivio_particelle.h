#pragma once
// The archive of parcels filled from what is at hand, and an extract kept in step with it.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct FileParticella {
  std::string nome; // of the file, without its folder
  std::string riga;
  bool operator==(const FileParticella&) const = default;
};

// The new parcels of the split sections of a libretto: each "C" row with the quality and class of the "O" row before it.
// Names of the open libretto's comune and sheet. A name that comes twice is there once, with its last row.
[[nodiscard]] std::vector<FileParticella> ParticelleDelLibretto(const Sessione& sessione);

// The parcels of an extract's text: its rows "6|PARTICELLA|" as they are; where it has none, its rings, with neither
// class nor quality. Holes, further rings and free lines give none. Throws Errore 9 for a row that lacks a field that is
// read.
[[nodiscard]] std::vector<FileParticella> ParticelleDellEstratto(const Sessione& sessione, std::string_view testo);

// The extract with a parcel's row in place of the one of the same name, as the last of the parcel rows. Rows of a kind
// that the extract does not need are dropped.
[[nodiscard]] std::string EstrattoConParticella(std::string_view testo, const std::string& riga);

// The associated extract's parcels into the archive, over those that are there; an extract that is not there is told.
void ArchiviaParticelle(Ambiente& ambiente);

void ScriviParticelle(Ambiente& ambiente, const std::vector<FileParticella>& particelle);

} // namespace lirmeto
