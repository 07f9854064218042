#pragma once

#include <QFont>
#include <QWidget>

namespace velmora {

// Gives a widget a size of the type scale, in points, and a weight.
inline void setType(QWidget& widget, qreal points, QFont::Weight weight = QFont::Normal) {
    QFont font = widget.font();
    font.setPointSizeF(points);
    font.setWeight(weight);
    widget.setFont(font);
}

}  // namespace velmora
