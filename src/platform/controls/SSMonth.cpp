#include "platform/controls/SSMonth.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <algorithm>

#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DragFormats.h"
#include "platform/controls/Painting.h"
#include "platform/controls/PlainToolTip.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr year_month_day kFirst = year(100) / 1 / 1;
constexpr year_month_day kLast = year(9999) / 12 / 31;

constexpr int kCaptionGap = 2;
constexpr int kArrowSize = 26;
constexpr int kCaptionInset = 6;
constexpr int kLeafMilliseconds = 700;

QFont captionFont(const QWidget& widget) {
    return sized(widget.font(), 10.5, QFont::DemiBold);
}

QFont headFont(const QWidget& widget) {
    return sized(widget.font(), 8.25);
}

}  // namespace

SSMonth::SSMonth(const LocaleFormats& locale, const CodePage& codePage, year_month_day today,
                 QWidget* parent)
    : CalendarControl(CalendarModel(kFirst, kLast, today, codePage), locale, codePage, parent),
      grid_(year_month(today.year(), today.month()), locale.firstWeekday) {
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("Month"));
}

void SSMonth::setCaptionReserve(int width) {
    captionReserve_ = width;
    updateGeometry();
    update();
}

void SSMonth::setSmall(bool small) {
    small_ = small;
    updateGeometry();
    update();
}

int SSMonth::captionHeight() const {
    return std::max(small_ ? 28 : 30, QFontMetrics(captionFont(*this)).height() + 8);
}

int SSMonth::headHeight() const {
    return std::max(small_ ? 20 : 22, QFontMetrics(headFont(*this)).height() + (small_ ? 5 : 6));
}

int SSMonth::rowHeight() const {
    return small_ ? std::max(24, fontMetrics().height() + 6)
                  : std::max(28, fontMetrics().height() + 10);
}

QSize SSMonth::sizeHint() const {
    const int height =
        captionHeight() + kCaptionGap + headHeight() + MonthGrid::kRows * rowHeight();
    return {std::max(230, minimumSizeHint().width()), height};
}

QSize SSMonth::minimumSizeHint() const {
    const int column = std::max(fontMetrics().horizontalAdvance(QStringLiteral("00")) + 10, 28);
    return {MonthGrid::kColumns * column,
            captionHeight() + kCaptionGap + headHeight() + MonthGrid::kRows * rowHeight()};
}

QRect SSMonth::cellRect(int cell) const {
    const int column = cell % MonthGrid::kColumns;
    const int row = cell / MonthGrid::kColumns;
    const int left = width() * column / MonthGrid::kColumns;
    const int right = width() * (column + 1) / MonthGrid::kColumns;
    const int top = captionHeight() + kCaptionGap + headHeight() + row * rowHeight();
    return {left, top, right - left, rowHeight()};
}

std::optional<year_month_day> SSMonth::dateAt(QPoint point) const {
    for (int cell = 0; cell < MonthGrid::kCells; ++cell)
        if (cellRect(cell).contains(point) && model().contains(grid_.dateAt(cell)))
            return grid_.dateAt(cell);
    return std::nullopt;
}

QRect SSMonth::dateRect(year_month_day date) const {
    const auto cell = grid_.cellOf(date);
    return cell && model().contains(date) ? cellRect(*cell) : QRect();
}

QRect SSMonth::arrowRect(int direction) const {
    const int right = width() - captionReserve_;
    const int left = right - (direction < 0 ? 2 : 1) * kArrowSize;
    return {left, (captionHeight() - kArrowSize) / 2, kArrowSize, kArrowSize};
}

QString SSMonth::arrowName(int direction) const {
    return direction < 0 ? QStringLiteral("Previous month") : QStringLiteral("Next month");
}

void SSMonth::turnPage(int direction) {
    const year_month month = grid_.month() + months(direction);
    if (month / last >= kFirst && month / 1 <= kLast)
        showMonth(month);
}

void SSMonth::showMonth(year_month month) {
    if (month == grid_.month())
        return;
    grid_ = MonthGrid(month, locale().firstWeekday);
    update();
}

void SSMonth::showChosen() {
    showMonth(year_month(date().year(), date().month()));
    if (const auto cell = grid_.cellOf(date()); cell && hasFocus())
        announceFocusedPart(*this, *cell);
}

AccessiblePart SSMonth::part(int index) const {
    if (index >= MonthGrid::kCells)
        return arrowPart(index == MonthGrid::kCells ? -1 : 1);
    return dayPart(grid_.dateAt(index));
}

QString SSMonth::describePart(int index) const {
    return index < MonthGrid::kCells ? spokenMarks(grid_.dateAt(index)) : QString();
}

void SSMonth::pressPart(int index) {
    if (index >= MonthGrid::kCells)
        turnPage(index == MonthGrid::kCells ? -1 : 1);
    else if (model().contains(grid_.dateAt(index)))
        setDate(grid_.dateAt(index));
}

void SSMonth::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme::of(*this).surface);
    const int gridTop = cellRect(0).top();
    if (event->rect().top() < gridTop) {
        paintCaption(painter);
        paintHeads(painter);
    }
    for (int cell = 0; cell < MonthGrid::kCells; ++cell)
        if (event->region().intersects(cellRect(cell)) && model().contains(grid_.dateAt(cell)))
            paintCell(painter, cell);
}

QString SSMonth::caption() const {
    const year_month month = grid_.month();
    return shown(locale().months[unsigned(month.month()) - 1]) + QLatin1Char(' ') +
           QString::number(int(month.year()));
}

// With the short name of the month where the whole one has no room: the year is worth more.
QString SSMonth::fittingCaption() const {
    const QFontMetrics metrics(captionFont(*this));
    const int room = captionRoom().width();
    if (metrics.horizontalAdvance(caption()) <= room)
        return caption();
    const year_month month = grid_.month();
    return metrics.elidedText(shown(locale().shortMonths[unsigned(month.month()) - 1]) +
                                  QLatin1Char(' ') + QString::number(int(month.year())),
                              Qt::ElideRight, room);
}

QRect SSMonth::captionRoom() const {
    return {kCaptionInset, 0, arrowRect(-1).left() - kCaptionInset, captionHeight()};
}

bool SSMonth::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return CalendarControl::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const bool cut = fittingCaption() != caption() && captionRoom().contains(help.pos());
    showPlainToolTip(help, cut ? caption() : QString(), *this, captionRoom());
    return true;
}

void SSMonth::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        showChosen();
        emit menuWanted(mapToGlobal(dateRect(date()).center()));
    } else if (const auto date = dateAt(event->pos())) {
        setDate(*date);
        emit menuWanted(event->globalPos());
    }
}

void SSMonth::paintCaption(QPainter& painter) const {
    const Theme& theme = Theme::of(*this);
    const QRect room = captionRoom();
    painter.setFont(captionFont(*this));
    const QFontMetrics metrics = painter.fontMetrics();
    const QString fitting = fittingCaption();
    painter.setPen(isEnabled() ? theme.ink : theme.dis);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, fitting);
    if (hasFocus()) {
        const int below = (captionHeight() + metrics.height()) / 2 + 1;
        painter.fillRect(room.left(), below, metrics.horizontalAdvance(fitting), 2, theme.accent);
    }
    paintArrows(painter);
}

void SSMonth::paintHeads(QPainter& painter) const {
    painter.setFont(headFont(*this));
    painter.setPen(Theme::of(*this).ink2);
    const QFontMetrics metrics = painter.fontMetrics();
    for (int column = 0; column < MonthGrid::kColumns; ++column) {
        const QRect cell = cellRect(column);
        const QRect head(cell.left(), captionHeight() + kCaptionGap, cell.width(), headHeight());
        const QString name = shown(locale().shortWeekdays[grid_.weekdayOf(column)]);
        painter.drawText(head, Qt::AlignCenter,
                         metrics.elidedText(name, Qt::ElideRight, cell.width()));
    }
}

void SSMonth::paintCell(QPainter& painter, int cell) const {
    const Theme& theme = Theme::of(*this);
    const year_month_day date = grid_.dateAt(cell);
    const QRect rect = cellRect(cell);
    const QRectF box = QRectF(rect).adjusted(1, 1, -1, -1);
    const StyleSet* style = model().styleOf(date);

    QColor number = grid_.inMonth(cell) ? theme.ink : theme.dis;
    QFont::Weight weight = QFont::Normal;
    if (style != nullptr && style->backColor) {
        fillRounded(painter, box, 6, toQt(*style->backColor));
        number = Qt::black;
    }
    if (target_ == date) {
        fillRounded(painter, box, 6, theme.tint);
        number = theme.ink;
    } else if (hovered() == date && (style == nullptr || !style->backColor)) {
        fillRounded(painter, box, 6, theme.hover);
    }
    if (style != nullptr && style->foreColor && *style->foreColor != Rgb{}) {
        number = toQt(*style->foreColor);
        weight = QFont::Bold;
    }
    if (date == model().today()) {
        const QRectF bar(rect.left() + 10, rect.bottom() - 4, rect.width() - 20, 2);
        painter.fillRect(onPixels(painter, bar), theme.accent);
    }
    if (date == model().date() || target_ == date)
        drawRing(painter, box, 2, 6, theme.accent);

    painter.setFont(sized(font(), font().pointSizeF(), weight));
    painter.setPen(number);
    painter.drawText(rect, Qt::AlignCenter, QString::number(unsigned(date.day())));
}

void SSMonth::focusInEvent(QFocusEvent* event) {
    CalendarControl::focusInEvent(event);
    if (const auto cell = grid_.cellOf(date()))
        announceFocusedPart(*this, *cell);
}

void SSMonth::setTarget(std::optional<year_month_day> date) {
    if (date == target_)
        return;
    updateDate(target_);
    target_ = date;
    updateDate(target_);
}

void SSMonth::setDragOverArrow(int arrow) {
    if (arrow == dragOverArrow_)
        return;
    dragOverArrow_ = arrow;
    if (arrow == 0)
        leafTimer_.stop();
    else
        leafTimer_.start(kLeafMilliseconds, this);
}

void SSMonth::timerEvent(QTimerEvent* event) {
    if (event->timerId() != leafTimer_.timerId())
        return CalendarControl::timerEvent(event);
    turnPage(dragOverArrow_);
}

void SSMonth::dragEnterEvent(QDragEnterEvent* event) {
    event->acceptProposedAction();
    setTarget(dateAt(event->position().toPoint()));
}

void SSMonth::dragMoveEvent(QDragMoveEvent* event) {
    const QPoint point = event->position().toPoint();
    event->acceptProposedAction();
    setTarget(dateAt(point));
    setDragOverArrow(arrowAt(point));
}

void SSMonth::dragLeaveEvent(QDragLeaveEvent*) {
    setTarget(std::nullopt);
    setDragOverArrow(0);
}

void SSMonth::dropEvent(QDropEvent* event) {
    const QString format = QString::fromLatin1(kEntryFormat);
    const QMimeData& carried = *event->mimeData();
    QByteArray entry;
    if (carried.hasFormat(format)) {
        entry = carried.data(format);
        if (entry.isNull())
            entry = QByteArray("");
    }
    setTarget(std::nullopt);
    setDragOverArrow(0);
    event->acceptProposedAction();
    emit dropped(event->position().toPoint(), entry);
}

}  // namespace velmora
