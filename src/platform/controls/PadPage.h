#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPalette>
#include <QRect>
#include <QString>
#include <QTextLayout>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/controls/models/PadBuffer.h"
#include "platform/controls/models/PadLetters.h"
#include "platform/controls/models/PadRows.h"

class QPainter;
class QWidget;

namespace velmora {

// A text of bytes as it lies on the screen: wrapped into rows of one height. Only the rows that are
// drawn or pointed at are laid out, so that the length of the text and of its lines costs nothing.
class PadPage {
  public:
    // A position in bytes. Where a row is full, its end and the begin of the next row are the same
    // position; `atRowEnd` tells them apart.
    struct Place {
        std::size_t position = 0;
        bool atRowEnd = false;
    };

    // What an input method composes; shown at the caret, but no part of the text yet.
    struct Preedit {
        QString text;
        QList<QTextLayout::FormatRange> formats;
        int caret = 0;  // within `text`
    };

    // What a row is drawn with.
    struct Ink {
        QColor text;
        QColor selectedText;
        QColor selection;
        PadBuffer::Selection selected;
        const Preedit* preedit = nullptr;  // nothing, or what stands at the caret in this row
    };

    explicit PadPage(const CodePage& codePage);

    // Fits rows into `width` pixels, as `widget` draws them in its font.
    void fit(const QWidget& widget, int width);

    [[nodiscard]] PadBuffer& text() { return text_; }
    [[nodiscard]] const PadBuffer& text() const { return text_; }
    [[nodiscard]] const PadRows& rows() const { return rows_; }
    [[nodiscard]] const PadLetters& letters() const { return letters_; }
    [[nodiscard]] const CodePage& codePage() const { return codePage_; }

    // To be called after each change of text().
    void follow(const PadBuffer::Change& change);

    [[nodiscard]] int rowHeight() const { return rowHeight_; }

    // The end of what a row shows: its line end lies behind.
    [[nodiscard]] std::size_t rowEnd(std::size_t row) const;

    // Full, so that its line goes on in the next row.
    [[nodiscard]] bool wraps(std::size_t row) const;

    [[nodiscard]] std::size_t rowOf(const Place& place) const;
    // The direction of the line around `position`.
    [[nodiscard]] bool rightToLeft(std::size_t position) const;

    // Pixels from the left edge of the row, and back; outside the row, its nearest end.
    [[nodiscard]] qreal xOf(const Place& place, const Preedit* preedit = nullptr) const;
    [[nodiscard]] Place placeAt(std::size_t row, qreal x) const;

    // Draws a row with its left top corner at `corner`.
    void draw(QPainter& painter, std::size_t row, QPointF corner, const Ink& ink,
              std::size_t caret) const;

  private:
    [[nodiscard]] bool firstIsRightToLeft(std::size_t begin, std::size_t end) const;
    void meet(std::string_view bytes);
    void measure(std::size_t byte);
    void lay(QTextLayout& layout, std::size_t row, const Preedit* preedit, std::size_t caret) const;

    const CodePage& codePage_;
    PadLetters letters_;
    bool hasRightToLeft_ = false;
    // Of the line that was asked about last, since a long one is on many rows.
    struct Direction {
        std::size_t begin = 1;
        std::size_t end = 0;
        bool rightToLeft = false;
    };
    mutable Direction direction_;
    PadBuffer text_;
    PadRows rows_;
    // Only of the characters that the text holds or has held: one that the font lacks is looked for
    // in all others, and most code pages have some that nobody ever types.
    PadWidths widths_;
    std::array<bool, 256> met_{};
    std::optional<QFontMetricsF> metrics_;  // none before it has been fitted
    QFont font_;
    int width_ = 0;
    int rowHeight_ = 1;
};

}  // namespace velmora
