#include <piattaforma/windows/collegamenti.h>

#include <piattaforma/file_ospite.h>
#include <piattaforma/windows/cartelle_note.h>
#include <piattaforma/windows/win32.h>

#include <base/testo.h>

#include <shellapi.h>
#include <shldisp.h>
#include <shlobj.h>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// The shell's objects, for as long as they are needed.
class Com {
public:
  Com() : esito_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;
  ~Com() {
    if (SUCCEEDED(esito_)) ::CoUninitialize();
  }

private:
  HRESULT esito_;
};

void Controlla(HRESULT esito) {
  if (FAILED(esito)) LanciaWin32(HRESULT_FACILITY(esito) == FACILITY_WIN32 ? HRESULT_CODE(esito) : 0, 76);
}

// An object of the shell, released with this one; none where the shell has none such.
template <typename Interfaccia>
class Oggetto {
public:
  explicit Oggetto(REFCLSID classe) {
    ::CoCreateInstance(classe, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interfaccia), Posto());
  }
  Oggetto() = default;
  Oggetto(const Oggetto&) = delete;
  Oggetto& operator=(const Oggetto&) = delete;
  ~Oggetto() {
    if (puntatore_ != nullptr) puntatore_->Release();
  }

  [[nodiscard]] explicit operator bool() const { return puntatore_ != nullptr; }
  [[nodiscard]] void** Posto() { return reinterpret_cast<void**>(&puntatore_); }
  Interfaccia* operator->() const { return puntatore_; }

private:
  Interfaccia* puntatore_ = nullptr;
};

} // namespace

fs::path CartellaDelPosto(PostoCollegamento posto) {
  switch (posto) {
  case PostoCollegamento::Desktop:
    return CartellaNota(FOLDERID_Desktop);
  case PostoCollegamento::MenuProgrammi:
    return CartellaNota(FOLDERID_Programs);
  case PostoCollegamento::AvvioRapido:
    return CartellaNota(FOLDERID_QuickLaunch);
  }
  throw Errore(errore::PercorsoNonTrovato);
}

void ScriviCollegamento(const fs::path& file, const fs::path& programma) {
  if (GenereOspite(file.parent_path()) != GenereFile::Cartella) throw Errore(errore::PercorsoNonTrovato);
  const Com com;
  const Oggetto<IShellLinkW> collegamento(CLSID_ShellLink);
  Oggetto<IPersistFile> scritto;
  if (!collegamento || FAILED(collegamento->QueryInterface(__uuidof(IPersistFile), scritto.Posto())))
    throw Errore(errore::AccessoAlFile);
  Controlla(collegamento->SetPath(programma.c_str()));
  Controlla(collegamento->SetWorkingDirectory(programma.parent_path().c_str()));
  Controlla(scritto->Save(file.c_str(), TRUE));
}

void ApriConLaShell(const fs::path& cosa, const std::string& nome) {
  const Com com;
  SHELLEXECUTEINFOW richiesta{};
  richiesta.cbSize = sizeof(richiesta);
  richiesta.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  richiesta.lpFile = cosa.c_str();
  richiesta.nShow = SW_SHOWNORMAL;
  if (::ShellExecuteExW(&richiesta) == 0) throw Errore(errore::AccessoAlFile, "Nessun programma apre " + nome);
}

void SgombraDesktop() {
  const Com com;
  const Oggetto<IShellDispatch4> shell(CLSID_Shell);
  if (shell) shell->ToggleDesktop();
}

} // namespace lirmeto
