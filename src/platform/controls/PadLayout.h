#pragma once

#include <QPlainTextDocumentLayout>
#include <QTextLine>

namespace velmora {

// The layout of plain text with some room between the lines: half of it above and half of it below
// each line.
class PadLayout final : public QPlainTextDocumentLayout {
    Q_OBJECT

  public:
    explicit PadLayout(QTextDocument* document) : QPlainTextDocumentLayout(document) {}

    // The line with its room, in the coordinates of its block.
    [[nodiscard]] static QRectF rowOf(const QTextLine& line);

    [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& block) const override;
};

}  // namespace velmora
