#include "platform/controls/DayScene.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "platform/Text.h"
#include "platform/controls/Painting.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr int kCaptionInset = 6;

QString shownSpan(TimeSpan span) {
    return shownTime(span.begin) + DayPainter::dash() + shownTime(span.end);
}

}  // namespace

int DayScene::dragged() const {
    return session.drag() ? session.tasks().indexOf(session.drag()->id) : -1;
}

PlacedBlock DayScene::placeOf(int index) const {
    PlacedBlock place = blocks.at(static_cast<std::size_t>(index)).place;
    if (index == dragged())
        place.drawn =
            placeSideBySide({session.drag()->now}, measures.shortestDrawn()).front().drawn;
    return place;
}

QRect DayScene::reachOf(int index) const {
    const int overhang = DayPainter::kBarOverhang;
    return places.blockRect(placeOf(index)).adjusted(-1, -overhang, 1, overhang);
}

QString DayScene::cutText(int index, const CodePage& codePage) const {
    if (index < 0) {
        const int room = places.paper.width() + 2 - 2 * kCaptionInset;
        const bool cut = QFontMetrics(measures.captionFont).horizontalAdvance(caption) > room;
        return cut ? caption : QString();
    }
    const ShownBlock& block = blocks.at(static_cast<std::size_t>(index));
    if (!DayPainter::cuts(block, places.blockRect(block.place).size(), look))
        return {};
    const QString text = toQt(withLf(session.tasks().Item(index).text), codePage);
    return block.times.isEmpty() ? text : text + QLatin1Char('\n') + block.times;
}

void DayScene::paintFrame(QPainter& painter, QSize size) const {
    const QRect whole(QPoint(0, 0), size);
    if (measures.captioned) {
        const QRect row(0, 0, whole.width(), 1 + measures.captionHeight());
        QPainterPath inside;
        inside.addRoundedRect(whole, kDayFrameRadius, kDayFrameRadius);
        painter.setClipPath(inside);
        painter.fillRect(row, look.theme.chrome);
        painter.setClipping(false);
        drawHorizontal(painter, 0, whole.width(), row.bottom(), look.theme.line);
        painter.setFont(measures.captionFont);
        painter.setPen(look.theme.ink);
        const QRect room = row.adjusted(kCaptionInset, 1, -kCaptionInset, -1);
        painter.drawText(room, Qt::AlignCenter,
                         painter.fontMetrics().elidedText(caption, Qt::ElideRight, room.width()));
    }
    drawRing(painter, whole, 1, kDayFrameRadius, look.theme.edge);
}

void DayScene::paintPaper(QPainter& painter, BlockStamps& stamps, const QRect& area) const {
    const DayPainter paint(painter, places, look);
    paint.paper(area);
    if (!notice.isEmpty())
        paint.notice(notice, area);
    const int held = dragged();
    const bool still = session.isEditing() || session.isReadOnly();
    stamps.keepFor(blocks.size());
    std::vector<ShownBlock> strong;
    for (int i = 0; i < static_cast<int>(blocks.size()); ++i) {
        if (!area.intersects(reachOf(i)))
            continue;
        ShownBlock block = blocks[static_cast<std::size_t>(i)];
        block.place = placeOf(i);
        block.selected = i == session.selected();
        block.hovered = i == hovered;
        block.unstored = session.isUnstored(i);
        if (i == held) {
            block.times = shownSpan(session.drag()->now);
            paint.block(block, places.blockRect(block.place));
        } else {
            stamps.paint(painter, paint, places, look, session.blocks().at(i).id, block);
        }
        if ((block.selected || block.hovered) && !still)
            strong.push_back(block);
    }
    for (const ShownBlock& block : strong)
        paint.strongBars(block);
    paintOverlays(paint);
}

minutes DayScene::secondSlotInView() const {
    minutes slot = places.slotAt(places.paper.top());
    if (places.slotRect(slot).top() < places.paper.top())
        slot += kSlot;  // only its lower part is in view
    return std::min(slot + kSlot, places.shown.end - kSlot);
}

void DayScene::paintOverlays(const DayPainter& paint) const {
    const std::optional<TimeSpan> range = session.range();
    const bool free = !session.isReadOnly() && !session.isEditing();
    if (blocks.empty() && free && !range && !emptyText.isEmpty())
        paint.emptyLine(secondSlotInView(), emptyText);
    if (now && *now >= places.shown.begin && *now <= places.shown.end)
        paint.nowLine(*now);
    if (range)
        paint.range(*range, shownSpan(*range));
    else if (focused && free && session.selected() < 0)
        paint.focusedSlot(session.slot());
    if (const DaySession::Drag* drag = session.drag()) {
        const minutes edge = drag->grip == Grip::End ? drag->now.end : drag->now.begin;
        paint.gutterTime(edge, shownTime(edge));
    }
}

}  // namespace velmora
