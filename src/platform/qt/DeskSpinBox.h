#pragma once

#include <QRect>

class QPainter;
class QStyleOptionSpinBox;

namespace velmora {

// The frame of a spin box and the two chevrons in it.
void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter);

// Where the number stands, and the two halves at the right of it.
[[nodiscard]] QRect spinBoxEditRect(const QStyleOptionSpinBox& option);
[[nodiscard]] QRect spinBoxUpRect(const QStyleOptionSpinBox& option);
[[nodiscard]] QRect spinBoxDownRect(const QStyleOptionSpinBox& option);

}  // namespace velmora
