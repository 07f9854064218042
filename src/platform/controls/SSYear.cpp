#include "platform/controls/SSYear.h"

#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/Painting.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr year_month_day kFirst = year(101) / 1 / 1;
constexpr year_month_day kLast = year(9998) / 12 / 31;

constexpr int kColumns = 4;
constexpr int kRows = 3;
constexpr int kMargin = 16;
constexpr int kTighterWeekdays = 3;  // their row is that much lower than a week
constexpr int kArrowSize = 32;
constexpr int kArrowInset = 10;

struct Measures {
    QSize size;
    int caption;
    int columnGap;
    int rowGap;
    int row;
    int rowMargin;  // of the number in its row, above and below together
};

constexpr Measures kNormal{{724, 548}, 46, 20, 14, 21, 5};
constexpr Measures kSmall{{696, 445}, 34, 16, 8, 16, 1};

const Measures& measures(bool small) {
    return small ? kSmall : kNormal;
}

QFont captionFont(const QWidget& widget) {
    return sized(widget.font(), 13.5, QFont::DemiBold);
}

QFont headFont(const QWidget& widget) {
    return sized(widget.font(), 9, QFont::DemiBold);
}

QFont dayFont(const QWidget& widget, QFont::Weight weight = QFont::Normal) {
    return sized(widget.font(), 8.25, weight);
}

}  // namespace

SSYear::SSYear(const LocaleFormats& locale, const CodePage& codePage, year_month_day today,
               QWidget* parent)
    : CalendarControl(CalendarModel(kFirst, kLast, today, codePage), locale, codePage, parent),
      year_(today.year()) {
    setAccessibleName(QStringLiteral("Year"));
}

int SSYear::captionHeight() const {
    return std::max(measures(small_).caption, QFontMetrics(captionFont(*this)).height() + 8);
}

int SSYear::headHeight() const {
    return std::max(22, QFontMetrics(headFont(*this)).height() + 6);
}

int SSYear::naturalRowHeight() const {
    const Measures& own = measures(small_);
    return std::max(own.row, QFontMetrics(dayFont(*this)).height() + own.rowMargin);
}

int SSYear::naturalHeight(int weekRows) const {
    return captionHeight() + kRows * headHeight() + (kRows - 1) * measures(small_).rowGap +
           kMargin + (weekRows + kRows) * naturalRowHeight() - kRows * kTighterWeekdays;
}

QSize SSYear::sizeHint() const {
    const int cell =
        std::max(22, QFontMetrics(dayFont(*this)).horizontalAdvance(QStringLiteral("00")) + 6);
    const int monthsWidth = kColumns * MonthGrid::kColumns * cell;
    const Measures& own = measures(small_);
    return own.size.expandedTo(
        {monthsWidth + (kColumns - 1) * own.columnGap + 2 * kMargin, naturalHeight(kRows * 5)});
}

void SSYear::setSmall(bool small) {
    small_ = small;
    months_.clear();
    updateGeometry();
    update();
}

const std::vector<SSYear::Month>& SSYear::months() const {
    if (months_.empty())
        layOut();
    return months_;
}

// Months of a row share their top; a row is as high as the longest of its months, and where not
// all weeks have room at their natural height, all of them are lower by the same amount.
void SSYear::layOut() const {
    months_.clear();
    for (unsigned i = 1; i <= 12; ++i)
        months_.push_back({MonthGrid(year_ / month(i), locale().firstWeekday), QRect()});
    std::array<int, kRows> weeks{};
    for (std::size_t i = 0; i < months_.size(); ++i) {
        int& longest = weeks[i / kColumns];
        longest = std::max(longest, months_[i].grid.weeks());
    }
    const int weekRows = weeks[0] + weeks[1] + weeks[2];
    const int excess = std::max(0, naturalHeight(weekRows) - height());
    const int lines = weekRows + kRows;
    rowHeight_ = std::max(1, naturalRowHeight() - (excess + lines - 1) / lines);

    const Measures& own = measures(small_);
    int top = captionHeight();
    for (int row = 0; row < kRows; ++row) {
        const int rowsOfCells = weeks[static_cast<std::size_t>(row)] + 1;
        const int monthHeight = headHeight() + rowsOfCells * rowHeight_ - kTighterWeekdays;
        const int room = width() - 2 * kMargin - (kColumns - 1) * own.columnGap;
        for (int column = 0; column < kColumns; ++column) {
            const int left = kMargin + room * column / kColumns + column * own.columnGap;
            months_[static_cast<std::size_t>(row) * kColumns + static_cast<std::size_t>(column)]
                .rect = QRect(left, top, room / kColumns, monthHeight);
        }
        top += monthHeight + own.rowGap;
    }
}

QRect SSYear::cellRect(const Month& month, int cell) const {
    const int column = cell % MonthGrid::kColumns;
    const int row = cell / MonthGrid::kColumns + 1;  // the weekdays stand in row 0
    const int left = month.rect.left() + month.rect.width() * column / MonthGrid::kColumns;
    const int right = month.rect.left() + month.rect.width() * (column + 1) / MonthGrid::kColumns;
    const int top = month.rect.top() + headHeight() - kTighterWeekdays + row * rowHeight_;
    return {left, top, right - left, rowHeight_};
}

std::optional<year_month_day> SSYear::dateAt(QPoint point) const {
    for (const Month& month : months()) {
        if (!month.rect.contains(point))
            continue;
        for (int cell = 0; cell < MonthGrid::kCells; ++cell)
            if (month.grid.inMonth(cell) && cellRect(month, cell).contains(point))
                return month.grid.dateAt(cell);
    }
    return std::nullopt;
}

QRect SSYear::dateRect(year_month_day date) const {
    if (date.year() != year_)
        return {};
    const Month& month = months()[unsigned(date.month()) - 1];
    return cellRect(month, *month.grid.cellOf(date));
}

QRect SSYear::arrowRect(int direction) const {
    const int left = direction < 0 ? kArrowInset : width() - kArrowInset - kArrowSize;
    return {left, (captionHeight() - kArrowSize) / 2, kArrowSize, kArrowSize};
}

QString SSYear::arrowName(int direction) const {
    return direction < 0 ? QStringLiteral("Previous year") : QStringLiteral("Next year");
}

bool SSYear::onCaption(QPoint point) const {
    return rect().contains(point) && point.y() < captionHeight() && arrowAt(point) == 0;
}

void SSYear::turnPage(int direction) {
    const year to = year_ + years(direction);
    if (to >= kFirst.year() && to <= kLast.year())
        showYear(to);
}

void SSYear::showYear(year year) {
    if (year == year_)
        return;
    year_ = year;
    months_.clear();
    update();
}

void SSYear::showChosen() {
    showYear(date().year());
    if (hasFocus())
        announceChosen();
}

void SSYear::announceChosen() {
    if (date().year() == year_)
        announceFocusedPart(*this,
                            static_cast<int>((sys_days(date()) - sys_days(year_ / 1 / 1)).count()));
}

int SSYear::partCount() const {
    return (year_.is_leap() ? 366 : 365) + 2;
}

AccessiblePart SSYear::part(int index) const {
    const int daysOfYear = partCount() - 2;
    if (index >= daysOfYear)
        return arrowPart(index == daysOfYear ? -1 : 1);
    return dayPart(sys_days(year_ / 1 / 1) + days(index));
}

QString SSYear::describePart(int index) const {
    return index < partCount() - 2 ? spokenMarks(sys_days(year_ / 1 / 1) + days(index)) : QString();
}

void SSYear::pressPart(int index) {
    const int daysOfYear = partCount() - 2;
    if (index >= daysOfYear)
        turnPage(index == daysOfYear ? -1 : 1);
    else
        setDate(sys_days(year_ / 1 / 1) + days(index));
}

void SSYear::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme::of(*this).surface);
    if (event->rect().top() < captionHeight())
        paintCaption(painter);
    for (const Month& month : months())
        if (event->region().intersects(month.rect))
            paintMonth(painter, month, event->region());
}

void SSYear::paintCaption(QPainter& painter) const {
    const Theme& theme = Theme::of(*this);
    const QString caption = QString::number(int(year_));
    painter.setFont(captionFont(*this));
    painter.setPen(theme.ink);
    painter.drawText(QRect(0, 0, width(), captionHeight()), Qt::AlignCenter, caption);
    if (hasFocus()) {
        const QFontMetrics metrics = painter.fontMetrics();
        const int length = metrics.horizontalAdvance(caption);
        painter.fillRect((width() - length) / 2, (captionHeight() + metrics.height()) / 2 + 1,
                         length, 2, theme.accent);
    }
    paintArrows(painter);
}

void SSYear::paintMonth(QPainter& painter, const Month& month, const QRegion& region) const {
    const Theme& theme = Theme::of(*this);
    const QRect head(month.rect.left() + 4, month.rect.top(), month.rect.width() - 4,
                     headHeight() - 4);
    painter.setFont(headFont(*this));
    painter.setPen(theme.ink);
    painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter,
                     shown(locale().months[unsigned(month.grid.month().month()) - 1]));
    painter.setFont(dayFont(*this));
    painter.setPen(theme.ink2);
    for (int column = 0; column < MonthGrid::kColumns; ++column) {
        const QRect cell =
            cellRect(month, column).adjusted(0, kTighterWeekdays - rowHeight_, 0, -rowHeight_);
        const QString name = shown(locale().shortWeekdays[month.grid.weekdayOf(column)]);
        painter.drawText(cell, Qt::AlignCenter, name.left(1).toUpper());
    }
    for (int cell = 0; cell < MonthGrid::kCells; ++cell)
        if (month.grid.inMonth(cell) && region.intersects(cellRect(month, cell)))
            paintDay(painter, cellRect(month, cell), month.grid.dateAt(cell));
}

void SSYear::paintDay(QPainter& painter, const QRect& rect, year_month_day date) const {
    const Theme& theme = Theme::of(*this);
    const StyleSet* style = model().styleOf(date);
    const bool filled = style != nullptr && style->backColor;
    const QRectF box = QRectF(rect).adjusted(0, 0, -1, -1);
    QColor number = theme.ink;
    if (filled) {
        stamps_.fill(painter, box, 3, toQt(*style->backColor));
        number = Qt::black;
    } else if (hovered() == date) {
        fillRounded(painter, box, 3, theme.hover);
    }
    if (style != nullptr && style->foreColor && *style->foreColor != Rgb{})
        number = toQt(*style->foreColor);
    if (date == model().today())
        painter.fillRect(onPixels(painter, QRectF(box.center().x() - 6, box.bottom() - 4, 12, 2)),
                         filled ? QColor(Qt::black) : theme.accent);
    if (date == model().date()) {
        if (filled)
            drawRing(painter, box.adjusted(2, 2, -2, -2), 1, 1, Qt::white);
        drawRing(painter, box, 2, 3, theme.accent);
    } else if (filled && hovered() == date) {
        drawRing(painter, box, 1, 3, Qt::black);
    }
    painter.setFont(dayFont(*this, filled ? QFont::DemiBold : QFont::Normal));
    painter.setPen(number);
    painter.drawText(rect.adjusted(0, 0, -1, -1), Qt::AlignCenter,
                     QString::number(unsigned(date.day())));
}

void SSYear::resizeEvent(QResizeEvent* event) {
    CalendarControl::resizeEvent(event);
    months_.clear();
}

void SSYear::changeEvent(QEvent* event) {
    CalendarControl::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        months_.clear();
        updateGeometry();
    }
}

void SSYear::focusInEvent(QFocusEvent* event) {
    CalendarControl::focusInEvent(event);
    announceChosen();
}

void SSYear::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && onCaption(event->position().toPoint()))
        emit captionClicked();
}

void SSYear::mouseDoubleClickEvent(QMouseEvent* event) {
    const bool onDate = dateAt(event->position().toPoint()).has_value();
    if (onDate && event->button() == Qt::LeftButton)
        emit doubleClicked();
    else
        CalendarControl::mouseDoubleClickEvent(event);
}

void SSYear::mouseMoveEvent(QMouseEvent* event) {
    CalendarControl::mouseMoveEvent(event);
    setCursor(onCaption(event->position().toPoint()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void SSYear::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit doubleClicked();
            break;
        case Qt::Key_Escape:
            emit captionClicked();
            break;
        default:
            CalendarControl::keyPressEvent(event);
    }
}

}  // namespace velmora
