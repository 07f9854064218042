#include "platform/qt/DeskStyle.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QStyleFactory>
#include <QStyleOption>

#include "platform/qt/DeskComboBox.h"
#include "platform/qt/DeskSpinBox.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kIndicatorSize = 16;
constexpr int kRingRoom = 4;
constexpr int kDialogMargin = 16;
constexpr int kDialogGap = 12;

bool isDialog(const QWidget* widget) {
    return widget && widget->isWindow() && qobject_cast<const QDialog*>(widget);
}

void drawIndicator(bool round, const QStyleOption& option, QPainter& painter) {
    const Theme& theme = Theme::of(option.palette);
    const bool on = option.state.testFlag(QStyle::State_On);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QRectF box = QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor outline = !enabled ? theme.line : on ? theme.accentfill : theme.line2;
    const bool filled = on && !round;
    painter.setPen(QPen(outline, 1.5));
    painter.setBrush(filled ? (enabled ? theme.accentfill : theme.dis) : theme.surface);
    const qreal radius = round ? box.width() / 2 : 3.5;
    painter.drawRoundedRect(box, radius, radius);
    if (on && round) {
        painter.setPen(QPen(enabled ? theme.accentfill : theme.dis, 5));
        painter.setBrush(Qt::NoBrush);
        const QRectF ring = box.adjusted(2, 2, -2, -2);
        painter.drawEllipse(ring);
    } else if (on) {
        QPainterPath tick;
        tick.moveTo(box.left() + 3.4, box.top() + 7.4);
        tick.lineTo(box.left() + 6.2, box.top() + 10.2);
        tick.lineTo(box.left() + 11.2, box.top() + 4.4);
        painter.setPen(QPen(theme.onaccent, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(tick);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setPen(QPen(theme.accent, 2));
        painter.setBrush(Qt::NoBrush);
        const QRectF ring = QRectF(option.rect).adjusted(-2, -2, 2, 2);
        painter.drawRoundedRect(ring, radius + 2, radius + 2);
    }
    painter.restore();
}

// `rect` within `option` without the room for the ring of the focus.
QRect withoutRingRoom(const QStyleOption& option, const QRect& rect) {
    const QRect leftToRight = QStyle::visualRect(option.direction, option.rect, rect);
    return QStyle::visualRect(option.direction, option.rect,
                              leftToRight.adjusted(kRingRoom, 0, 0, 0));
}

}  // namespace

DeskStyle::DeskStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return kIndicatorSize;
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return 8;
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return isDialog(widget) ? kDialogMargin
                                    : QProxyStyle::pixelMetric(metric, option, widget);
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return isDialog(widget) ? kDialogGap : QProxyStyle::pixelMetric(metric, option, widget);
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    // The doing button first, Cancel last, on every desktop.
    if (hint == SH_DialogButtonLayout)
        return QDialogButtonBox::WinLayout;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    // Who takes the focus shows it by a ring of our own; only the toolkit's lists keep their box.
    if (element == PE_FrameFocusRect && !qobject_cast<const QAbstractItemView*>(widget))
        return;
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)
        drawIndicator(element == PE_IndicatorRadioButton, *option, *painter);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control == CC_ComboBox && box)
        drawComboBox(*box, *painter);
    else if (control == CC_SpinBox && spin)
        drawSpinBox(*spin, *painter);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect DeskStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl subControl, const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ComboBox && box && subControl == SC_ComboBoxEditField)
        return comboBoxEditRect(*box);
    if (control == CC_ComboBox && box && subControl == SC_ComboBoxArrow)
        return comboBoxArrowRect(*box);
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control == CC_SpinBox && spin && subControl == SC_SpinBoxEditField)
        return spinBoxEditRect(*spin);
    if (control == CC_SpinBox && spin && subControl == SC_SpinBoxUp)
        return spinBoxUpRect(*spin);
    if (control == CC_SpinBox && spin && subControl == SC_SpinBoxDown)
        return spinBoxDownRect(*spin);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

QRect DeskStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const {
    const QRect usual = QProxyStyle::subElementRect(element, option, widget);
    switch (element) {
        case SE_CheckBoxIndicator:
        case SE_RadioButtonIndicator: {
            const int step = option->direction == Qt::RightToLeft ? -kRingRoom : kRingRoom;
            return usual.translated(step, 0);
        }
        case SE_CheckBoxContents:
        case SE_RadioButtonContents:
            return withoutRingRoom(*option, usual);
        case SE_CheckBoxLayoutItem:
        case SE_RadioButtonLayoutItem:
            return withoutRingRoom(*option, option->rect);
        default:
            return usual;
    }
}

void DeskStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && (element == CE_CheckBox || element == CE_RadioButton)) {
        QStyleOptionButton inner = *button;
        inner.rect = withoutRingRoom(*option, option->rect);
        QProxyStyle::drawControl(element, &inner, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

QSize DeskStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ComboBox && option)
        result.setHeight(comboBoxHeight(option->fontMetrics.height()));
    if (type == CT_SpinBox && option)
        result.setHeight(comboBoxHeight(option->fontMetrics.height()));
    if (type == CT_CheckBox || type == CT_RadioButton) {
        result.rwidth() += kRingRoom;
        result.setHeight(qMax(result.height(), kIndicatorSize + 2 * kRingRoom));
    }
    return result;
}

}  // namespace velmora
