#include <QFontMetrics>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <algorithm>

#include "platform/Text.h"
#include "platform/controls/Painting.h"
#include "platform/controls/PlainToolTip.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

// What of the day view is painted anew, and how.
namespace velmora {
namespace {

using namespace std::chrono;

constexpr qreal kFrameRadius = 8;

}  // namespace

void SSDay::updateBlock(int index) {
    if (index >= 0 && index < static_cast<int>(blocks().size()))
        update(reachOf(geometryNow(), blocks_[static_cast<std::size_t>(index)].shown.place));
}

void SSDay::updateSlot() {
    update(geometryNow().slotRect(slot_));
}

void SSDay::updateNowLine() {
    if (!now_)
        return;
    const DayGeometry geometry = geometryNow();
    update(geometry.paper.left(), geometry.yOf(*now_) - 6, geometry.paper.width(), 12);
}

DayPainter::Look SSDay::look() const {
    const Theme& theme = Theme::of(*this);
    return {.theme = theme,
            .font = blockFont(),
            .text = textColor_.isValid() ? textColor_ : theme.ink,
            .small = readOnly_};
}

// The round corners of the frame take a clip that is slow to paint through, so only the strips at
// the upper and the lower edge pay for it.
void SSDay::paintEvent(QPaintEvent* event) {
    (void)blocks();
    QPainter painter(this);
    const QRect paper = geometryNow().paper & event->rect();
    const int strip = static_cast<int>(kFrameRadius);
    const QRect middle = paper & rect().adjusted(0, strip, 0, -strip);
    if (!middle.isEmpty()) {
        painter.setClipRect(middle);
        paintPaper(painter, middle);
    }
    QPainterPath inside;
    inside.addRoundedRect(rect(), kFrameRadius, kFrameRadius);
    for (const QRect& edge :
         {QRect(0, 0, width(), strip), QRect(0, height() - strip, width(), strip)}) {
        if (!edge.intersects(event->rect()))
            continue;
        painter.setClipPath(inside);
        painter.setClipRect(edge, Qt::IntersectClip);
        painter.fillRect(edge, Theme::of(*this).surface);
        if (const QRect part = edge & paper; !part.isEmpty())
            paintPaper(painter, part);
    }
    painter.setClipping(false);
    paintFrame(painter);
}

void SSDay::paintFrame(QPainter& painter) const {
    const Theme& theme = Theme::of(*this);
    if (!caption_.empty()) {
        const QRect row(0, 0, width(), 1 + captionHeight());
        QPainterPath inside;
        inside.addRoundedRect(rect(), kFrameRadius, kFrameRadius);
        painter.setClipPath(inside);
        painter.fillRect(row, theme.chrome);
        painter.setClipping(false);
        drawHorizontal(painter, 0, width(), row.bottom(), theme.line);
        painter.setFont(captionFontSet_ ? captionFont_ : font());
        painter.setPen(theme.ink);
        const QRect room = row.adjusted(6, 1, -6, -1);
        painter.drawText(room, Qt::AlignCenter,
                         painter.fontMetrics().elidedText(toQt(caption_, codePage_), Qt::ElideRight,
                                                          room.width()));
    }
    drawRing(painter, rect(), 1, kFrameRadius, theme.edge);
}

void SSDay::paintPaper(QPainter& painter, const QRect& area) const {
    const DayGeometry geometry = geometryNow();
    const DayPainter::Look look = this->look();
    const DayPainter paint(painter, geometry, look);
    paint.paper(area);
    paintBlocks(painter, paint, geometry, area);
    paintOverlays(paint);
}

void SSDay::paintBlocks(QPainter& painter, const DayPainter& paint, const DayGeometry& geometry,
                        const QRect& area) const {
    const int dragged = drag_ && drag_->begun ? tasks_.indexOf(drag_->id) : -1;
    const int selected = SelectedIndex();
    std::vector<ShownBlock> strong;
    for (int i = 0; i < static_cast<int>(blocks_.size()); ++i) {
        const Block& known = blocks_[static_cast<std::size_t>(i)];
        if (!area.intersects(reachOf(geometry, i == dragged ? draggedPlace() : known.shown.place)))
            continue;
        ShownBlock block = known.shown;
        block.selected = i == selected;
        block.hovered = i == hovered_;
        if (i == dragged) {
            block.place = draggedPlace();
            block.times =
                shownTime(drag_->now.begin) + DayPainter::dash() + shownTime(drag_->now.end);
            paint.block(block, geometry.blockRect(block.place));
        } else {
            paintBlock(painter, paint, geometry.blockRect(block.place), known.id, block);
        }
        if ((block.selected || block.hovered) && !edit_ && !readOnly_)
            strong.push_back(block);
    }
    for (const ShownBlock& block : strong)
        paint.strongBars(block);
}

// Blocks are drawn once and then copied: shaping their texts is most of the work of a full day.
// A copy lands on whole pixels, so at a scale like 1.5 it is good only where a block begins at the
// same fraction of a pixel as the one that was drawn.
void SSDay::paintBlock(QPainter& painter, const DayPainter& paint, const QRect& rect,
                       DayTasks::Id id, const ShownBlock& block) const {
    const QTransform toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale || toDevice.m11() != toDevice.m22()) {
        paint.block(block, rect);
        return;
    }
    const qreal scale = toDevice.m11();
    const QRectF onDevice = toDevice.mapRect(QRectF(rect));
    const QRect pixels = onDevice.toAlignedRect();
    const QPointF fraction = onDevice.topLeft() - pixels.topLeft();
    Drawn& drawn = drawn_[id];
    const bool fits = drawn.pixmap.size() == pixels.size() && drawn.fraction == fraction &&
                      drawn.shown.selected == block.selected &&
                      drawn.shown.hovered == block.hovered && drawn.shown.text == block.text &&
                      drawn.shown.times == block.times;
    if (!fits) {
        drawn = {QPixmap(pixels.size()), fraction, block};
        drawn.pixmap.setDevicePixelRatio(scale);
        drawn.pixmap.fill(Qt::transparent);
        QPainter onPixmap(&drawn.pixmap);
        onPixmap.translate(fraction / scale);
        const DayGeometry geometry = geometryNow();
        const DayPainter::Look look = this->look();
        DayPainter(onPixmap, geometry, look).block(block, QRect(QPoint(0, 0), rect.size()));
    }
    painter.drawPixmap(toDevice.inverted().map(QPointF(pixels.topLeft())), drawn.pixmap);
}

bool SSDay::saysEmpty() const {
    return tasks_.Count() == 0 && !readOnly_ && !emptyText_.isEmpty();
}

minutes SSDay::secondSlotInView() const {
    const DayGeometry geometry = geometryNow();
    minutes slot = geometry.slotAt(geometry.paper.top());
    if (geometry.slotRect(slot).top() < geometry.paper.top())
        slot += kSlot;  // only its lower part is in view
    return std::min(slot + kSlot, shown_.end - kSlot);
}

// What is cut short in a block or in the caption is told as a whole.
void SSDay::showToolTip(const QHelpEvent& event) {
    const QRect row(0, 0, width(), 1 + captionHeight());
    if (!caption_.empty() && row.contains(event.pos())) {
        const QString caption = toQt(caption_, codePage_);
        const QFontMetrics metrics(captionFontSet_ ? captionFont_ : font());
        const bool cut = metrics.horizontalAdvance(caption) > row.width() - 12;
        return showPlainToolTip(event, cut ? caption : QString(), *this, row);
    }
    const int index = hitAt(event.pos()).index;
    if (index < 0)
        return showPlainToolTip(event, QString(), *this, rect());
    const ShownBlock& block = blocks().at(static_cast<std::size_t>(index)).shown;
    const QRect area = blockRect(index);
    const QSize size = geometryNow().blockRect(block.place).size();
    QString whole = toQt(withLf(tasks_.Item(index).text), codePage_);
    if (!block.times.isEmpty())
        whole += QLatin1Char('\n') + block.times;
    const DayPainter::Look look = this->look();
    showPlainToolTip(event, DayPainter::cuts(block, size, look) ? whole : QString(), *this, area);
}

bool SSDay::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    showToolTip(*static_cast<QHelpEvent*>(event));
    return true;
}

void SSDay::paintOverlays(const DayPainter& paint) const {
    if (saysEmpty() && !edit_ && !(range_ && range_->begun))
        paint.emptyLine(secondSlotInView(), emptyText_);
    if (now_ && *now_ >= shown_.begin && *now_ <= shown_.end)
        paint.nowLine(*now_);
    if (range_ && range_->begun) {
        const TimeSpan span = range_->span();
        paint.range(span, shownTime(span.begin) + DayPainter::dash() + shownTime(span.end));
    } else if (hasFocus() && !readOnly_ && !selected_ && !edit_) {
        paint.focusedSlot(slot_);
    }
    if (drag_ && drag_->begun) {
        const minutes edge = drag_->grip == Grip::End ? drag_->now.end : drag_->now.begin;
        paint.gutterTime(edge, shownTime(edge));
    }
}

PlacedBlock SSDay::draggedPlace() const {
    const auto index = static_cast<std::size_t>(tasks_.indexOf(drag_->id));
    PlacedBlock place = blocks().at(index).shown.place;
    place.drawn = placeSideBySide({drag_->now}, shortestDrawn()).front().drawn;
    return place;
}

}  // namespace velmora
