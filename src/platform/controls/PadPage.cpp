#include "platform/controls/PadPage.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kHalfRoom = 2;  // above and below each line
constexpr int kUnits = 64;    // of a pixel
constexpr qreal kTabStop = 80;

bool isRightToLeft(QChar c) {
    return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
}

QChar charOf(const CodePage& codePage, int index) {
    return {static_cast<char16_t>(codePage.toUnicode(static_cast<char>(index)))};
}

}  // namespace

PadPage::PadPage(const CodePage& codePage) : codePage_(codePage), letters_(codePage) {
    widths_.tab = static_cast<std::int32_t>(kTabStop * kUnits);
    widths_.joins = letters_.allThatJoin();
    rows_.learn(widths_);
    for (int i = 0; i < 256; ++i)
        hasRightToLeft_ = hasRightToLeft_ || isRightToLeft(charOf(codePage, i));
}

void PadPage::fit(const QWidget& widget, int width) {
    metrics_.emplace(widget.font(), &widget);
    font_ = QFont(widget.font(), &widget);
    rowHeight_ = qRound(metrics_->height()) + 2 * kHalfRoom;
    const PadWidths before = widths_;
    for (std::size_t byte = 0; byte < met_.size(); ++byte)
        measure(byte);
    if (width == width_ && widths_ == before)
        return;
    width_ = width;
    rows_.wrap(text_.bytes(), widths_, width_ * kUnits);
}

void PadPage::meet(std::string_view bytes) {
    bool news = false;
    for (const char each : bytes) {
        const auto byte = static_cast<unsigned char>(each);
        if (met_[byte])
            continue;
        met_[byte] = true;
        measure(byte);
        news = true;
    }
    if (news)
        rows_.learn(widths_);
}

void PadPage::measure(std::size_t byte) {
    if (!met_[byte] || !metrics_ || widths_.joins[byte])
        return;
    const QChar character = charOf(codePage_, static_cast<int>(byte));
    widths_.of[byte] =
        static_cast<std::int32_t>(std::ceil(metrics_->horizontalAdvance(character) * kUnits));
}

void PadPage::follow(const PadBuffer::Change& change) {
    direction_ = {};
    meet(std::string_view(text_.bytes()).substr(change.position, change.inserted));
    rows_.change(text_.bytes(), change.position, change.removed.size(), change.inserted);
}

std::size_t PadPage::rowEnd(std::size_t row) const {
    const std::string& bytes = text_.bytes();
    const std::size_t begin = rows_.begin(row);
    std::size_t end = rows_.begin(row + 1);
    if (end > begin && bytes[end - 1] == '\n')
        return end - (end - begin > 1 && bytes[end - 2] == '\r' ? 2 : 1);
    if (end > begin && bytes[end - 1] == '\r')
        --end;
    return end;
}

bool PadPage::wraps(std::size_t row) const {
    return row + 1 < rows_.count() && rowEnd(row) == rows_.begin(row + 1);
}

std::size_t PadPage::rowOf(const Place& place) const {
    const std::size_t row = rows_.at(place.position);
    const bool before = place.atRowEnd && row > 0 && rows_.begin(row) == place.position;
    return before && wraps(row - 1) ? row - 1 : row;
}

// As the first letter of the line that has a direction.
bool PadPage::rightToLeft(std::size_t position) const {
    if (!hasRightToLeft_)
        return false;
    if (position < direction_.begin || position > direction_.end) {
        direction_.begin = text_.lineBegin(position);
        direction_.end = text_.lineEnd(position);
        direction_.rightToLeft = firstIsRightToLeft(direction_.begin, direction_.end);
    }
    return direction_.rightToLeft;
}

bool PadPage::firstIsRightToLeft(std::size_t begin, std::size_t end) const {
    for (std::size_t i = begin; i < end; ++i) {
        const QChar c = charOf(codePage_, static_cast<unsigned char>(text_.bytes()[i]));
        if (isRightToLeft(c))
            return true;
        if (c.direction() == QChar::DirL)
            return false;
    }
    return false;
}

void PadPage::lay(QTextLayout& layout, std::size_t row, const Preedit* preedit,
                  std::size_t caret) const {
    const std::size_t begin = rows_.begin(row);
    layout.setText(
        toQt(std::string_view(text_.bytes()).substr(begin, rowEnd(row) - begin), codePage_));
    layout.setFont(font_);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTabStopDistance(kTabStop);
    const bool turned = rightToLeft(begin);
    option.setTextDirection(turned ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(turned ? Qt::AlignRight : Qt::AlignLeft);
    layout.setTextOption(option);
    if (preedit != nullptr)
        layout.setPreeditArea(static_cast<int>(caret - begin), preedit->text);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) {
        line.setLineWidth(width_);
        line.setPosition({0, 0});
    }
    layout.endLayout();
}

qreal PadPage::xOf(const Place& place, const Preedit* preedit) const {
    const std::size_t row = rowOf(place);
    QTextLayout layout;
    lay(layout, row, preedit, place.position);
    const std::size_t end = rowEnd(row);
    auto column = static_cast<int>(std::min(place.position, end) - rows_.begin(row));
    if (preedit != nullptr)
        column += preedit->caret;
    return layout.lineCount() > 0 ? layout.lineAt(0).cursorToX(column) : 0;
}

PadPage::Place PadPage::placeAt(std::size_t row, qreal x) const {
    QTextLayout layout;
    lay(layout, row, nullptr, 0);
    const int column = layout.lineCount() > 0 ? layout.lineAt(0).xToCursor(x) : 0;
    const std::size_t begin = rows_.begin(row);
    const std::size_t position =
        std::min(begin + static_cast<std::size_t>(std::max(column, 0)), rowEnd(row));
    return {position, position > begin && position == rows_.begin(row + 1)};
}

void PadPage::draw(QPainter& painter, std::size_t row, QPointF corner, const Ink& ink,
                   std::size_t caret) const {
    QTextLayout layout;
    lay(layout, row, ink.preedit, caret);
    const std::size_t begin = rows_.begin(row);
    const std::size_t end = rowEnd(row);
    const std::size_t first = std::max(ink.selected.first(), begin);
    const std::size_t last =
        std::min(ink.selected.first() + ink.selected.length(), rows_.begin(row + 1));
    QList<QTextLayout::FormatRange> formats;
    if (first < last && layout.lineCount() > 0) {
        const QTextLine line = layout.lineAt(0);
        const auto column = [&](std::size_t position) {
            return static_cast<int>(std::min(position, end) - begin);
        };
        // Letters of both directions lie apart, and only their own ground is filled.
        if (!hasRightToLeft_) {
            const qreal left = line.cursorToX(column(first));
            const qreal right = last > end ? width_ : line.cursorToX(column(last));
            painter.fillRect(QRectF(corner.x() + left, corner.y(), right - left, rowHeight_),
                             ink.selection);
        }
        QTextLayout::FormatRange range;
        range.start = column(first);
        range.length = column(last) - column(first);
        range.format.setForeground(ink.selectedText);
        range.format.setBackground(ink.selection);
        formats.append(range);
    }
    if (ink.preedit != nullptr)
        for (QTextLayout::FormatRange range : ink.preedit->formats) {
            range.start += static_cast<int>(caret - begin);
            formats.append(range);
        }
    painter.setPen(ink.text);
    layout.draw(&painter, corner + QPointF(0, kHalfRoom), formats);
}

}  // namespace velmora
