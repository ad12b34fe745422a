#include <piattaforma/estrazione.h>

#include <piattaforma/elenco_zip.h>

#include <base/errore.h>
#include <base/testo.h>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

[[noreturn]] void LanciaGuasto() {
  throw Errore(errore::OltreLaFine, std::string("L'archivio è incompleto o non è un archivio ZIP"_w));
}

struct Chiudi {
  void operator()(archive* archivio) const { archive_read_free(archivio); }
};

VoceArchivio::Genere GenereDi(archive_entry* voce) {
  if (archive_entry_hardlink(voce) != nullptr) return VoceArchivio::Genere::Collegamento;
  switch (archive_entry_filetype(voce)) {
  case AE_IFREG:
    return VoceArchivio::Genere::File;
  case AE_IFDIR:
    return VoceArchivio::Genere::Cartella;
  default:
    return VoceArchivio::Genere::Collegamento;
  }
}

class ArchivioZip final : public ArchivioAperto {
public:
  explicit ArchivioZip(std::string byte) : byte_(std::move(byte)), elenco_(PreparaNomiZip(byte_)) {
    if (ZipSenzaVoci(byte_)) return; // which the library takes for no archive
    archivio_.reset(archive_read_new());
    if (archivio_ == nullptr) throw Errore(errore::MemoriaEsaurita);
    // Only through the directory at the end: an archive that was cut short is refused before anything of it is
    // unpacked.
    archive_read_support_format_zip_seekable(archivio_.get());
    if (archive_read_open_memory(archivio_.get(), byte_.data(), byte_.size()) != ARCHIVE_OK) LanciaGuasto();
  }

  [[nodiscard]] std::size_t Quante() const override { return elenco_.quante; }

  [[nodiscard]] std::optional<VoceArchivio> Prossima() override {
    if (archivio_ == nullptr) return std::nullopt;
    const int esito = archive_read_next_header(archivio_.get(), &voce_);
    if (esito == ARCHIVE_EOF) return std::nullopt;
    if (esito < ARCHIVE_WARN) LanciaGuasto();
    return VoceArchivio{Nome(), GenereDi(voce_), archive_entry_is_encrypted(voce_) != 0};
  }

  // What the entry says of its size is no more than a hint.
  [[nodiscard]] ContenutoVoce Leggi(std::size_t massimo) override {
    constexpr std::size_t riserva = 16UL * 1024 * 1024;
    ContenutoVoce contenuto;
    const auto detti = static_cast<std::size_t>(std::max<la_int64_t>(archive_entry_size(voce_), 0));
    contenuto.byte.reserve(std::min({detti, massimo, riserva}));
    for (;;) {
      const la_ssize_t letti = archive_read_data(archivio_.get(), pezzo_.data(), pezzo_.size());
      if (letti == 0) return contenuto;
      if (letti < 0) return {{}, ContenutoVoce::Stato::Guasto};
      if (static_cast<std::size_t>(letti) > massimo - contenuto.byte.size()) return {{}, ContenutoVoce::Stato::Troppo};
      contenuto.byte.append(pezzo_.data(), static_cast<std::size_t>(letti));
    }
  }

private:
  [[nodiscard]] std::string Nome() const {
    const char* detto = archive_entry_pathname(voce_);
    const std::string nome = detto == nullptr ? "" : detto;
    const auto unicode = elenco_.nomiUnicode.find(Sostituisci(nome, "\\", "/"));
    if (unicode != elenco_.nomiUnicode.end()) return DaUtf8(unicode->second);
    return RappresentabileDaUtf8(nome) ? DaUtf8(nome) : nome;
  }

  std::string byte_;
  ElencoZip elenco_;
  std::unique_ptr<archive, Chiudi> archivio_; // none for an archive without entries
  archive_entry* voce_ = nullptr;             // the library's, of the entry told last
  std::array<char, 64UL * 1024> pezzo_{};
};

} // namespace

std::unique_ptr<ArchivioAperto> ApriArchivioZip(std::string byte) {
  return std::make_unique<ArchivioZip>(std::move(byte));
}

} // namespace lirmeto
