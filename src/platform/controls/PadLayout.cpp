#include "platform/controls/PadLayout.h"

#include <QTextBlock>
#include <QTextLayout>

namespace velmora {
namespace {

constexpr qreal kHalfRoom = 2;  // above and below each line

// Lines that were laid out anew stand close to each other, the first at 0.
void spread(QTextLayout& layout) {
    if (layout.lineCount() == 0 || layout.lineAt(0).y() >= kHalfRoom)
        return;
    qreal top = 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine line = layout.lineAt(i);
        line.setPosition({line.x(), top + kHalfRoom});
        top += line.height() + 2 * kHalfRoom;
    }
}

}  // namespace

QRectF PadLayout::rowOf(const QTextLine& line) {
    return line.rect().adjusted(0, -kHalfRoom, 0, kHalfRoom);
}

QRectF PadLayout::blockBoundingRect(const QTextBlock& block) const {
    const QRectF rect = QPlainTextDocumentLayout::blockBoundingRect(block);
    if (rect.isNull() || !block.isVisible())
        return rect;
    spread(*block.layout());
    return QPlainTextDocumentLayout::blockBoundingRect(block).adjusted(0, 0, 0, kHalfRoom);
}

}  // namespace velmora
