// What Windows keeps of the user's choice between light and dark programs, and word of it when that changes.

#include <ui/comune/luce_di_sistema.h>

#include <piattaforma/windows/win32.h>

#include <QWinEventNotifier>

namespace lirmeto::ui {

namespace {

constexpr auto* Scelte = L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";

// A system that knows no dark programs keeps nothing there.
bool SceltoScuro() {
  DWORD chiaro = 1;
  DWORD lungo = sizeof(chiaro);
  ::RegGetValueW(HKEY_CURRENT_USER, Scelte, L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &chiaro, &lungo);
  return chiaro == 0;
}

// Waits for the next change of the choices; it goes with the light.
class Ascolto : public QObject {
public:
  explicit Ascolto(LuceDiSistema& luce)
      : QObject(&luce), cambiata_(::CreateEventW(nullptr, FALSE, FALSE, nullptr)), avviso_(cambiata_.Dentro()) {
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, Scelte, 0, KEY_NOTIFY, &chiave_) != ERROR_SUCCESS) chiave_ = nullptr;
    connect(&avviso_, &QWinEventNotifier::activated, this, [this, &luce] { Guarda(luce); });
    Guarda(luce);
  }
  ~Ascolto() override {
    if (chiave_ != nullptr) ::RegCloseKey(chiave_);
  }
  Ascolto(const Ascolto&) = delete;
  Ascolto& operator=(const Ascolto&) = delete;
  Ascolto(Ascolto&&) = delete;
  Ascolto& operator=(Ascolto&&) = delete;

private:
  // The system tells of one change for each time it is asked; asked first, so that none falls between.
  void Guarda(LuceDiSistema& luce) {
    if (chiave_ != nullptr)
      ::RegNotifyChangeKeyValue(chiave_, FALSE, REG_NOTIFY_CHANGE_LAST_SET, cambiata_.Dentro(), TRUE);
    luce.Cambia(SceltoScuro());
  }

  HKEY chiave_ = nullptr;
  Maniglia cambiata_;
  QWinEventNotifier avviso_; // ends before what it waits for
};

} // namespace

void AscoltaDesktop(LuceDiSistema& luce) {
  new Ascolto(luce);
}

} // namespace lirmeto::ui
