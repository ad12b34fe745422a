#include <piattaforma/windows/cartelle_note.h>

#include <base/errore.h>

#include <shlobj.h>

namespace lirmeto {

std::filesystem::path CartellaNota(const GUID& quale) {
  wchar_t* detta = nullptr;
  const HRESULT esito = ::SHGetKnownFolderPath(quale, 0, nullptr, &detta);
  std::filesystem::path cartella = SUCCEEDED(esito) ? detta : L"";
  ::CoTaskMemFree(detta);
  if (cartella.empty()) throw Errore(errore::PercorsoNonTrovato);
  return cartella;
}

} // namespace lirmeto
