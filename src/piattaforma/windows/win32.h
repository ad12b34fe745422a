#pragma once
// What the sources of the Windows side share: texts in UTF-16, long paths, handles, error codes.

#include <base/errore.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include <windows.h>

namespace lirmeto {

[[nodiscard]] std::wstring Largo(std::string_view utf8);
// What is no text comes out with U+FFFD in its place, which no name of the logic has.
[[nodiscard]] std::string Stretto(std::wstring_view utf16);

// A path as the system takes it whatever its length: behind "\\?\" when it is longer than the old limits.
[[nodiscard]] std::wstring PercorsoLungo(const std::filesystem::path& percorso);

// Made absolute, as the system says it, without "\\?\".
[[nodiscard]] std::filesystem::path PercorsoPieno(const std::filesystem::path& percorso);

// Whether the system keeps this name for a device, in every folder and whatever stands behind a point: "nul", "COM1.txt".
[[nodiscard]] bool NomeDiDispositivo(std::wstring_view nome);

// `codice` is the system's; `assente` is the number for a path that is not there: 53 for a file to read, 76 for a folder
// to write into.
[[nodiscard]] int NumeroDaWin32(DWORD codice, int assente);
[[noreturn]] void LanciaWin32(DWORD codice, int assente);
[[noreturn]] void LanciaUltimo(int assente); // that of the last call

// An open handle, closed with the object.
class Maniglia {
public:
  explicit Maniglia(HANDLE maniglia) : maniglia_(maniglia == INVALID_HANDLE_VALUE ? nullptr : maniglia) {}
  Maniglia(const Maniglia&) = delete;
  Maniglia& operator=(const Maniglia&) = delete;
  Maniglia(Maniglia&& altra) noexcept : maniglia_(std::exchange(altra.maniglia_, nullptr)) {}
  Maniglia& operator=(Maniglia&&) = delete;
  ~Maniglia() { Chiudi(); }

  [[nodiscard]] HANDLE Dentro() const { return maniglia_; }
  [[nodiscard]] explicit operator bool() const { return maniglia_ != nullptr; }
  void Chiudi() {
    if (maniglia_ != nullptr) ::CloseHandle(std::exchange(maniglia_, nullptr));
  }

private:
  HANDLE maniglia_;
};

// A file opened; nothing in it where the system refuses, and its last error says why. One that somebody else, such as a
// scanner for viruses, holds for a moment is asked for again for a fifth of a second.
[[nodiscard]] Maniglia ApriFile(const std::filesystem::path& file, DWORD accesso, DWORD condiviso, DWORD come,
                                DWORD opzioni = FILE_ATTRIBUTE_NORMAL);

// Calls `prova` until it says yes, or the system refuses for another reason than that somebody holds the file.
template <typename Prova>
[[nodiscard]] bool ConPazienza(const Prova& prova) {
  constexpr int volte = 10;
  constexpr DWORD pausa = 20; // milliseconds
  for (int volta = 1;; ++volta) {
    if (prova()) return true;
    const DWORD codice = ::GetLastError();
    const bool occupato = codice == ERROR_SHARING_VIOLATION || codice == ERROR_LOCK_VIOLATION;
    if (!occupato || volta == volte) return false;
    ::Sleep(pausa);
    ::SetLastError(codice);
  }
}

} // namespace lirmeto
