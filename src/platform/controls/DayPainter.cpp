#include "platform/controls/DayPainter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRegion>
#include <QTextLayout>
#include <algorithm>
#include <vector>

#include "platform/controls/Painting.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr qreal kRadius = 5;
constexpr int kEdge = 4;           // the bar at a block's left
constexpr int kOneLineBelow = 30;  // lower blocks show one line
constexpr int kNoticeMargin = 24;
constexpr int kTimesFrom = 36;     // blocks of this height show their times
constexpr int kNarrowestRoom = 4;  // less holds no text

// A part of a paragraph that makes one line: where it begins, and its length.
struct Part {
    int from;
    int length;
};

// The lines of a paragraph; of more than `most` the first ones, and one more that tells of them.
std::vector<Part> wrapped(const QString& paragraph, const QFont& font, int width, int most) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    std::vector<Part> parts;
    layout.beginLayout();
    while (static_cast<int>(parts.size()) <= most) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        parts.push_back({line.textStart(), line.textLength()});
    }
    layout.endLayout();
    return parts;
}

QString onOneLine(QString text) {
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

}  // namespace

DayPainter::DayPainter(QPainter& painter, const DayGeometry& geometry, const Look& look)
    : painter_(painter), geometry_(geometry), look_(look) {}

QFont DayPainter::gutterFont(const QFont& font, bool small) {
    return sized(font, small ? 8.25 : 9);
}

QString DayPainter::dash() {
    return QStringLiteral(u" \u2013 ");
}

QString DayPainter::unbreakable(QString text) {
    for (qsizetype i = 1; i < text.size(); ++i) {
        const bool betweenDigits = text[i] == QLatin1Char('-') && text[i - 1].isDigit() &&
                                   i + 1 < text.size() && text[i + 1].isDigit();
        if (betweenDigits)
            text[i] = QChar(0x2011);
        else if (text[i] == QLatin1Char(' ') && text[i - 1] == QLatin1Char(')'))
            text[i] = QChar(QChar::Nbsp);
    }
    return text;
}

void DayPainter::paper(const QRegion& region) const {
    const QRect area = region.boundingRect() & geometry_.paper;
    const int gutterRight = geometry_.paper.left() + geometry_.gutter;
    painter_.fillRect(area, look_.theme.surface);
    const QRect gutter(geometry_.paper.topLeft(),
                       QSize(geometry_.gutter, geometry_.paper.height()));
    painter_.fillRect(gutter & area, look_.theme.alt);
    drawVertical(painter_, gutterRight, area.top(), area.bottom() + 1, look_.theme.line);
    const minutes last = geometry_.timeAt(area.bottom());
    for (minutes slot = geometry_.slotAt(area.top()); slot <= last; slot += kSlot) {
        const int y = geometry_.yOf(slot);
        const bool hour = slot % hours(1) == minutes(0);
        if (hour && slot != geometry_.shown.begin)
            drawHorizontal(painter_, geometry_.paper.left(), geometry_.paper.right() + 1, y,
                           look_.theme.line);
        else if (!hour)
            drawDotted(painter_, gutterRight + 1, geometry_.paper.right() + 1, y, look_.theme.line);
        if (hour && slot < geometry_.shown.end)
            hourLabel(slot);
    }
}

void DayPainter::hourLabel(minutes hour) const {
    const auto number = duration_cast<hours>(hour).count();
    const QString label = QString::number(number % 12 == 0 ? 12 : number % 12) + QLatin1Char(' ') +
                          (number < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
    painter_.setFont(gutterFont(look_.font, look_.small));
    painter_.setPen(look_.theme.ink2);
    const QRect room(geometry_.paper.left(), geometry_.yOf(hour) + 3, geometry_.gutter - 8,
                     painter_.fontMetrics().height());
    painter_.drawText(room, Qt::AlignRight | Qt::AlignVCenter, label);
}

// A rounded rectangle with the accent's bar at its left.
void DayPainter::ground(const QRect& rect, const QColor& fill) const {
    const QRectF box = onPixels(painter_, rect);
    fillRounded(painter_, box, kRadius, fill);
    // The bar ends where the round corner nearly reaches the upper edge.
    constexpr qreal kFrom = 101.5;
    constexpr qreal kSweep = 180 - kFrom;
    const QSizeF circle(2 * kRadius, 2 * kRadius);
    QPainterPath bar;
    bar.moveTo(box.left() + kEdge, box.top());
    bar.arcTo(QRectF(box.topLeft(), circle), kFrom, kSweep);
    bar.arcTo(QRectF(QPointF(box.left(), box.bottom() - circle.height()), circle), 180, kSweep);
    bar.lineTo(box.left() + kEdge, box.bottom());
    bar.closeSubpath();
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.fillPath(bar, look_.theme.accent);
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

// A block without its row: neither fill nor bar, and a broken line around it.
void DayPainter::outline(const QRect& rect) const {
    const QRectF box = onPixels(painter_, rect);
    fillRounded(painter_, box, kRadius, look_.theme.surface);
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setPen(QPen(look_.theme.accent, 1.5, Qt::DashLine));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(box.adjusted(0.75, 0.75, -0.75, -0.75), kRadius, kRadius);
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void DayPainter::block(const ShownBlock& block, const QRect& rect) const {
    if (block.unstored)
        outline(rect);
    else
        ground(rect, block.selected ? look_.theme.tint2 : look_.theme.tint);
    if (block.selected)
        drawRing(painter_, rect, 2, kRadius, look_.theme.accent);
    if (!look_.small && !block.selected && !block.hovered)
        barAtRest(rect);
    const Room room = roomIn(rect, block, look_);
    if (room.rect.width() < kNarrowestRoom)
        return;
    painter_.setPen(block.unstored ? look_.theme.ink2 : look_.text);
    painter_.setFont(look_.font);
    if (rect.height() < kOneLineBelow)
        oneLine(block, room.rect);
    else
        lines(block, room);
}

QFont DayPainter::timesFont(const Look& look) {
    return sized(look.font, look.font.pointSizeF() * 8.6 / 9.75);
}

DayPainter::Room DayPainter::roomIn(const QRect& block, const ShownBlock& shown, const Look& look) {
    const QRect rect = block.adjusted(look.small ? 9 : 12, 0, look.small ? -4 : -8, 0);
    const bool times = !look.small && rect.height() >= kTimesFrom && !shown.times.isEmpty();
    const int timesHeight = times ? QFontMetrics(timesFont(look)).height() : 0;
    const int line = QFontMetrics(look.font).height() + (look.small ? 0 : 1);
    return {rect, timesHeight, std::max(1, (rect.height() - 4 - timesHeight) / line)};
}

bool DayPainter::cuts(const ShownBlock& block, QSize size, const Look& look) {
    const Room room = roomIn(QRect(QPoint(0, 0), size), block, look);
    if (room.rect.width() < kNarrowestRoom)
        return true;
    const QFontMetrics metrics(look.font);
    if (size.height() < kOneLineBelow)
        return metrics.horizontalAdvance(onOneLine(block.text)) > room.rect.width();
    int left = room.most;
    for (const QString& paragraph : block.text.split(QLatin1Char('\n'))) {
        left -= static_cast<int>(wrapped(paragraph, look.font, room.rect.width(), left).size());
        if (left < 0)
            return true;
    }
    return false;
}

void DayPainter::oneLine(const ShownBlock& block, const QRect& room) const {
    painter_.drawText(
        room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        painter_.fontMetrics().elidedText(onOneLine(block.text), Qt::ElideRight, room.width()));
}

void DayPainter::lines(const ShownBlock& block, const Room& room) const {
    const QFontMetrics metrics = painter_.fontMetrics();
    const int lineHeight = metrics.height() + (look_.small ? 0 : 1);
    int y = room.rect.top() + (look_.small ? 2 : 3);
    int count = 0;
    const QStringList paragraphs = block.text.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < paragraphs.size() && count < room.most; ++i) {
        const auto parts = wrapped(paragraphs[i], look_.font, room.rect.width(), room.most - count);
        for (std::size_t k = 0; k < parts.size() && count < room.most; ++k, ++count) {
            const bool cut = count + 1 == room.most && k + 1 < parts.size();
            const QString text = cut ? metrics.elidedText(paragraphs[i].mid(parts[k].from),
                                                          Qt::ElideRight, room.rect.width())
                                     : paragraphs[i].mid(parts[k].from, parts[k].length);
            painter_.drawText(QPoint(room.rect.left(), y + metrics.ascent()), text);
            y += lineHeight;
        }
    }
    if (room.times == 0)
        return;
    const QFont small = timesFont(look_);
    painter_.setFont(small);
    painter_.setPen(look_.theme.ink2);
    const QFontMetrics timesMetrics(small);
    painter_.drawText(QPoint(room.rect.left(), y + timesMetrics.ascent()),
                      timesMetrics.elidedText(block.times, Qt::ElideRight, room.rect.width()));
}

void DayPainter::strongBars(const ShownBlock& block) const {
    const QRect rect = geometry_.blockRect(block.place);
    strongBar(rect, true);
    strongBar(rect, false);
}

void DayPainter::barAtRest(const QRect& block) const {
    const int width = std::min(22, block.width() - 8);
    if (width < 4)
        return;
    QColor colour = look_.theme.accent;
    colour.setAlphaF(0.55F);
    fillRounded(painter_,
                QRectF(QRect(block.center().x() - width / 2, block.bottom() - 1, width, 2)), 1,
                colour);
}

void DayPainter::strongBar(const QRect& block, bool atTop) const {
    const int width = std::min(32, block.width() - 8);
    if (width < 4)
        return;
    const QRectF rect(
        QRect(block.center().x() - width / 2, atTop ? block.top() - 3 : block.bottom(), width, 4));
    fillRounded(painter_, rect.adjusted(-2, -2, 2, 2), 4, look_.theme.surface);
    fillRounded(painter_, rect, 2, look_.theme.accent);
}

void DayPainter::range(TimeSpan span, const QString& times) const {
    block({.text = times, .selected = true}, geometry_.spanRect(span));
}

void DayPainter::emptyLine(minutes slot, const QString& text) const {
    const QRect room = geometry_.slotRect(slot);
    painter_.setFont(look_.font);
    painter_.setPen(look_.theme.ink2);
    painter_.drawText(room, Qt::AlignCenter | Qt::TextSingleLine,
                      painter_.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
}

void DayPainter::focusedSlot(minutes slot) const {
    painter_.setPen(QPen(look_.theme.accent, 1, Qt::DotLine));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(geometry_.slotRect(slot).adjusted(2, 1, -3, -1));
}

void DayPainter::nowLine(minutes now) const {
    const int y = geometry_.yOf(now);
    const int left = geometry_.paper.left() + geometry_.gutter;
    const int right = geometry_.paper.right() + 1 - geometry_.blockMargin;
    painter_.fillRect(left, y - 1, right - left, 2, look_.theme.accent);
    fillRounded(painter_, QRectF(left - 5, y - 5, 10, 10), 5, look_.theme.accent);
}

void DayPainter::notice(const QString& text, const QRect& area) const {
    const int left = geometry_.paper.left() + geometry_.gutter;
    const QRect room(left + kNoticeMargin, geometry_.paper.top() + kNoticeMargin,
                     geometry_.paper.right() + 1 - left - 2 * kNoticeMargin,
                     geometry_.paper.height() - 2 * kNoticeMargin);
    if (!room.intersects(area))
        return;
    painter_.setFont(look_.font);
    painter_.setPen(look_.theme.ink2);
    QRect used;
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    painter_.drawText(room, flags | Qt::TextDontPrint, text, &used);
    painter_.fillRect(used.adjusted(-4, -2, 4, 2), look_.theme.surface);
    painter_.drawText(room, flags, text);
}

QRect DayPainter::gutterTimeRect(const DayGeometry& geometry, minutes time) {
    const int height = std::max(16, geometry.slotHeight - 6);
    const int room = geometry.paper.bottom() + 1 - height;
    const int top = std::clamp(geometry.yOf(time) - height / 2, geometry.paper.top(),
                               std::max(geometry.paper.top(), room));
    return {geometry.paper.left(), top, geometry.gutter, height};
}

void DayPainter::gutterTime(minutes time, const QString& text) const {
    const QRect rect = gutterTimeRect(geometry_, time);
    painter_.fillRect(rect, look_.theme.alt);
    painter_.setFont(sized(look_.font, 9, QFont::DemiBold));
    painter_.setPen(look_.theme.accent);
    painter_.drawText(rect.adjusted(0, 0, -3, 0), Qt::AlignRight | Qt::AlignVCenter, text);
}

}  // namespace velmora
