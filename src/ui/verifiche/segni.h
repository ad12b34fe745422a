#pragma once
// The marks of the findings: a red square, an amber triangle, a blue dot; shape and colour tell them apart.

#include <supporto/segnalazione.h>

#include <QIcon>
#include <QRectF>

class QPainter;

namespace lirmeto::ui {

void DisegnaSegno(QPainter& pittore, Severita severita, const QRectF& dentro);
[[nodiscard]] QIcon IconaSegno(Severita severita);

} // namespace lirmeto::ui
