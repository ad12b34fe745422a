#pragma once
// Whether the user's desktop is dark, and word of it when that changes.

#include <QObject>

namespace lirmeto::ui {

// Begins with the palette that the platform gives, and goes on with what the desktop says where the platform does not
// follow it. Must be made before the application gets a palette of its own.
class LuceDiSistema : public QObject {
  Q_OBJECT
public:
  explicit LuceDiSistema(QObject* padre = nullptr);

  [[nodiscard]] bool Scura() const { return scura_; }
  // The desktop is so from now on.
  void Cambia(bool scura);

signals:
  void Cambiata(bool scura);

private:
  bool scura_ = false;
};

// Has the desktop tell a light how it is, now and whenever it changes; each system has its own.
void AscoltaDesktop(LuceDiSistema& luce);

} // namespace lirmeto::ui
