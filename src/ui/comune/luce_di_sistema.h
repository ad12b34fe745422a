#pragma once
// Whether the user's desktop is dark, and word of it when that changes.

#include <QDBusVariant>
#include <QObject>

namespace lirmeto::ui {

// Asks the palette that the platform gives, and the desktop's own setting where the platform does not follow it. Must be
// made before the application gets a palette of its own.
class LuceDiSistema : public QObject {
  Q_OBJECT
public:
  explicit LuceDiSistema(QObject* padre = nullptr);

  [[nodiscard]] bool Scura() const { return scura_; }

signals:
  void Cambiata(bool scura);

private slots:
  void ImpostazioneCambiata(const QString& gruppo, const QString& chiave, const QDBusVariant& valore);

private:
  bool scura_ = false;
};

} // namespace lirmeto::ui
