#include "platform/qt/DeskSpinBox.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kArrowsWidth = 22;
constexpr int kTextInset = 8;
constexpr int kChevron = 14;
constexpr qreal kRadius = 5;

QRect arrowsRect(const QStyleOptionSpinBox& option) {
    QRect arrows = option.rect.adjusted(1, 1, -1, -1);
    arrows.setLeft(arrows.right() - kArrowsWidth + 1);
    return QStyle::visualRect(option.direction, option.rect, arrows);
}

void drawHalf(const QStyleOptionSpinBox& option, QPainter& painter, bool up) {
    const Theme& theme = Theme::of(option.palette);
    const QRect half = up ? spinBoxUpRect(option) : spinBoxDownRect(option);
    const auto part = up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
    const auto step = up ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled;
    const bool usable =
        option.state.testFlag(QStyle::State_Enabled) && option.stepEnabled.testFlag(step);
    if (usable && option.activeSubControls.testFlag(part))
        painter.fillRect(half,
                         option.state.testFlag(QStyle::State_Sunken) ? theme.press : theme.hover);
    painter.drawPixmap(
        half.center() - QPoint(kChevron / 2 - 1, kChevron / 2 - 1),
        symbolPixmap(up ? QStringLiteral("ChevronUp") : QStringLiteral("ChevronDown"),
                     {kChevron, kChevron}, painter.device()->devicePixelRatioF(),
                     usable ? theme.ink2 : theme.line));
}

}  // namespace

void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter) {
    const Theme& theme = Theme::of(option.palette);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool focus = option.state.testFlag(QStyle::State_HasFocus);
    const qreal pen = focus ? 2 : 1;
    const qreal half = pen / 2;
    QPainterPath frame;
    frame.addRoundedRect(QRectF(option.rect).adjusted(half, half, -half, -half), kRadius - half,
                         kRadius - half);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(frame, enabled ? theme.surface : theme.canvas);
    painter.save();
    painter.setClipPath(frame);
    drawHalf(option, painter, true);
    drawHalf(option, painter, false);
    const QRect arrows = arrowsRect(option);
    painter.fillRect(arrows.left(), arrows.top(), 1, arrows.height(), theme.line);
    painter.fillRect(arrows.left(), spinBoxDownRect(option).top(), arrows.width(), 1, theme.line);
    painter.restore();
    painter.setPen(QPen(!enabled ? theme.line : focus ? theme.accent : theme.line2, pen));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(frame);
    painter.restore();
}

QRect spinBoxEditRect(const QStyleOptionSpinBox& option) {
    return QStyle::visualRect(option.direction, option.rect,
                              option.rect.adjusted(kTextInset, 2, -kArrowsWidth - 2, -2));
}

QRect spinBoxUpRect(const QStyleOptionSpinBox& option) {
    QRect half = arrowsRect(option);
    half.setHeight(half.height() / 2);
    return half;
}

QRect spinBoxDownRect(const QStyleOptionSpinBox& option) {
    QRect half = arrowsRect(option);
    half.setTop(half.top() + half.height() / 2);
    return half;
}

}  // namespace velmora
