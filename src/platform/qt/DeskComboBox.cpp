#include "platform/qt/DeskComboBox.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kArrowWidth = 30;
constexpr int kTextInset = 9;
constexpr int kChevron = 16;
constexpr int kLeastHeight = 30;
constexpr qreal kRadius = 5;

}  // namespace

void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter) {
    const Theme& theme = Theme::of(option.palette);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool focus = option.state.testFlag(QStyle::State_HasFocus);
    const qreal pen = focus ? 2 : 1;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(!enabled ? theme.line : focus ? theme.accent : theme.line2, pen));
    painter.setBrush(enabled ? theme.surface : theme.canvas);
    const qreal half = pen / 2;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(half, half, -half, -half), kRadius - half,
                            kRadius - half);
    const QRect arrow = comboBoxArrowRect(option);
    painter.drawPixmap(
        arrow.center() - QPoint(kChevron / 2 - 1, kChevron / 2 - 1),
        symbolPixmap(QStringLiteral("ChevronDown"), {kChevron, kChevron},
                     painter.device()->devicePixelRatioF(), enabled ? theme.ink2 : theme.dis));
    painter.restore();
}

QRect comboBoxEditRect(const QStyleOptionComboBox& option) {
    return QStyle::visualRect(option.direction, option.rect,
                              option.rect.adjusted(kTextInset, 2, -kArrowWidth, -2));
}

QRect comboBoxArrowRect(const QStyleOptionComboBox& option) {
    QRect arrow = option.rect;
    arrow.setLeft(arrow.right() - kArrowWidth + 1);
    return QStyle::visualRect(option.direction, option.rect, arrow.adjusted(0, 0, -2, 0));
}

int comboBoxHeight(int textHeight) {
    return std::max(kLeastHeight, textHeight + 12);
}

}  // namespace velmora
