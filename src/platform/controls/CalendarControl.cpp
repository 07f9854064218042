#include "platform/controls/CalendarControl.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <utility>

#include "platform/controls/Painting.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

// What the angle of a wheel's notch adds up to.
constexpr int kNotch = 120;

std::optional<DateStep> stepOf(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
        case Qt::Key_Left:
            return DateStep::PreviousDay;
        case Qt::Key_Right:
            return DateStep::NextDay;
        case Qt::Key_Up:
            return DateStep::PreviousWeek;
        case Qt::Key_Down:
            return DateStep::NextWeek;
        case Qt::Key_PageUp:
            return control ? DateStep::PreviousYear : DateStep::PreviousMonth;
        case Qt::Key_PageDown:
            return control ? DateStep::NextYear : DateStep::NextMonth;
        case Qt::Key_Home:
            return DateStep::FirstOfMonth;
        case Qt::Key_End:
            return DateStep::LastOfMonth;
        default:
            return std::nullopt;
    }
}

}  // namespace

CalendarControl::CalendarControl(CalendarModel model, LocaleFormats locale,
                                 const CodePage& codePage, QWidget* parent)
    : QWidget(parent), model_(std::move(model)), locale_(std::move(locale)), codePage_(codePage) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void CalendarControl::setDate(std::string_view text) {
    setDate(model_.readDate(text));
}

void CalendarControl::setDate(year_month_day date) {
    if (model_.contains(date))
        emit beforeSelection();
    updateDate(model_.date());
    model_.setDate(date);
    showChosen();
    updateDate(date);
    emit selectionChanged(Date());
}

void CalendarControl::setToday(year_month_day today) {
    updateDate(model_.today());
    model_.setToday(today);
    updateDate(today);
}

void CalendarControl::setStyleSet(std::string_view name, const StyleSet& style) {
    model_.setStyleSet(name, style);
    update();
}

void CalendarControl::setDayStyle(std::string_view dateText, std::string_view styleName) {
    updateDate(model_.setDayStyle(dateText, styleName));
}

QString CalendarControl::shown(std::string_view text) const {
    return toQt(text, codePage_);
}

QString CalendarControl::spoken(year_month_day date) const {
    return QString::number(unsigned(date.day())) + QLatin1Char(' ') +
           shown(locale_.months[unsigned(date.month()) - 1]) + QLatin1Char(' ') +
           QString::number(int(date.year()));
}

void CalendarControl::setCounter(std::function<int(year_month_day)> appointmentsOn) {
    appointmentsOn_ = std::move(appointmentsOn);
}

QString CalendarControl::spokenMarks(year_month_day date) const {
    QStringList marks;
    if (date == model_.today())
        marks += QStringLiteral("today");
    const int appointments = appointmentsOn_ ? appointmentsOn_(date) : 0;
    if (appointments == 1)
        marks += QStringLiteral("1 appointment");
    else if (appointments > 1)
        marks += QStringLiteral("%1 appointments").arg(appointments);
    return marks.join(QStringLiteral(", "));
}

AccessiblePart CalendarControl::dayPart(year_month_day date) const {
    const bool chosen = date == model_.date();
    return {.name = spoken(date), .rect = dateRect(date), .selected = chosen, .focused = chosen};
}

AccessiblePart CalendarControl::arrowPart(int direction) const {
    return {.name = arrowName(direction),
            .rect = arrowRect(direction),
            .role = QAccessible::PushButton};
}

int CalendarControl::arrowAt(QPoint point) const {
    for (const int direction : {-1, 1})
        if (arrowRect(direction).contains(point))
            return direction;
    return 0;
}

void CalendarControl::paintArrows(QPainter& painter) const {
    const Theme& theme = Theme::of(*this);
    for (const int direction : {-1, 1}) {
        const QRect rect = arrowRect(direction);
        if (hoveredArrow_ == direction)
            fillRounded(painter, rect, 6, theme.hover);
        drawChevron(painter, rect, direction < 0 ? Chevron::Left : Chevron::Right, theme.ink2);
    }
}

void CalendarControl::updateDate(std::optional<year_month_day> date) {
    if (!date)
        return;
    const QRect rect = dateRect(*date);
    if (!rect.isEmpty())
        update(rect);
}

void CalendarControl::setHovered(std::optional<year_month_day> date, int arrow) {
    if (date != hovered_) {
        updateDate(hovered_);
        hovered_ = date;
        updateDate(hovered_);
    }
    if (arrow != hoveredArrow_) {
        hoveredArrow_ = arrow;
        update(arrowRect(-1));
        update(arrowRect(1));
    }
}

void CalendarControl::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint point = event->position().toPoint();
    if (const int arrow = arrowAt(point); arrow != 0) {
        turnPage(arrow);
        setHovered(std::nullopt, arrow);
    } else if (const auto date = dateAt(point)) {
        setDate(*date);
    }
}

void CalendarControl::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second of two quick clicks on an arrow turns too; on a date it chooses nothing new.
    if (arrowAt(event->position().toPoint()) != 0)
        mousePressEvent(event);
}

void CalendarControl::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    setHovered(dateAt(point), arrowAt(point));
}

void CalendarControl::leaveEvent(QEvent* event) {
    setHovered(std::nullopt, 0);
    QWidget::leaveEvent(event);
}

void CalendarControl::wheelEvent(QWheelEvent* event) {
    wheelTurn_ += event->angleDelta().y();
    for (; wheelTurn_ >= kNotch; wheelTurn_ -= kNotch)
        turnPage(-1);
    for (; wheelTurn_ <= -kNotch; wheelTurn_ += kNotch)
        turnPage(1);
    const QPoint point = event->position().toPoint();
    setHovered(dateAt(point), arrowAt(point));
    event->accept();
}

void CalendarControl::keyPressEvent(QKeyEvent* event) {
    const auto step = stepOf(*event);
    if (!step || event->modifiers().testFlag(Qt::AltModifier)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const year_month_day to = model_.stepped(*step);
    if (to != model_.date())
        setDate(to);
}

namespace {

// A menu has the keys only for as long as it is open: to the window around the control, the
// control has them still.
bool isForMenu(const QFocusEvent& event) {
    return event.reason() == Qt::MenuBarFocusReason || event.reason() == Qt::PopupFocusReason;
}

}  // namespace

void CalendarControl::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
    if (!isForMenu(*event))
        emit focusEntered();
}

void CalendarControl::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
    if (!isForMenu(*event))
        emit focusLeft();
}

}  // namespace velmora
