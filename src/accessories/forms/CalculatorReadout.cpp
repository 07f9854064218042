#include "accessories/forms/CalculatorReadout.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include "platform/controls/FocusRing.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kHeight = 64;
constexpr int kMargin = 15;
constexpr qreal kRadius = 8;
constexpr qreal kLargest = 24;
constexpr qreal kSmallest = 12;

}  // namespace

CalculatorReadout::CalculatorReadout(QWidget* parent) : QLabel(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setTextFormat(Qt::PlainText);
    setAccessibleDescription(tr("Number"));
    setFixedHeight(kHeight);
    // A long number never widens the window.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QFont CalculatorReadout::fontFor(int width) const {
    QFont result = font();
    result.setWeight(QFont::Medium);
    for (qreal size = kLargest; size > kSmallest; size -= 1) {
        result.setPointSizeF(size);
        if (QFontMetrics(result).horizontalAdvance(text()) <= width)
            return result;
    }
    result.setPointSizeF(kSmallest);
    return result;
}

void CalculatorReadout::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    QPainter painter(this);
    drawPanel(painter, rect(), kRadius, theme.surface, theme.edge);
    const QRect inside = rect().adjusted(kMargin, 0, -kMargin, 0);
    const QFont fitting = fontFor(inside.width());
    painter.setFont(fitting);
    painter.setPen(theme.ink);
    painter.drawText(inside, Qt::AlignRight | Qt::AlignVCenter,
                     QFontMetrics(fitting).elidedText(text(), Qt::ElideLeft, inside.width()));
    if (hasFocus())
        drawFocusRing(painter, rect(), kRadius, theme.accent);
}

void CalculatorReadout::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setText(text());
    else
        QLabel::keyPressEvent(event);
}

}  // namespace velmora
