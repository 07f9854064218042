#include "platform/controls/CardLayout.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextCharFormat>
#include <QTextLayout>
#include <limits>

#include "platform/controls/CardText.h"

namespace velmora {
namespace {

constexpr qreal kGap = 22;
constexpr qreal kHeadingPoints = 13.5;
constexpr int kLineSpacing = 5;
constexpr int kHeadingSpacing = 4;
constexpr int kCloser = 2;  // lines that stand close together are that much lower
constexpr qreal kCloseEmptyLine = 9;

QFont headingFont(QFont font) {
    font.setPointSizeF(kHeadingPoints);
    font.setWeight(QFont::DemiBold);
    return font;
}

QString shownText(const CardPart& part) {
    if (part.label.isEmpty())
        return part.value;
    return part.value.isEmpty() ? part.label : part.label + QLatin1Char(' ') + part.value;
}

std::unique_ptr<QTextLayout> textLayout(const CardPart& part, const QFont& font,
                                        const QColor& labelColour) {
    auto layout = std::make_unique<QTextLayout>(shownText(part), font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout->setTextOption(option);
    QTextLayout::FormatRange label;
    label.start = 0;
    label.length = static_cast<int>(part.label.size());
    label.format.setForeground(labelColour);
    if (label.length > 0)
        layout->setFormats({label});
    return layout;
}

// Breaks the text at `width`; gives the number of lines.
int breakLines(QTextLayout& layout, qreal width, qreal lineHeight) {
    layout.beginLayout();
    int count = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, count * lineHeight + qRound((lineHeight - line.height()) / 2)});
        ++count;
    }
    layout.endLayout();
    return count;
}

// Wider than any line, and within what the layout can count.
constexpr qreal kEndlessWidth = 1 << 23;

qreal naturalWidth(QTextLayout& layout) {
    breakLines(layout, kEndlessWidth, 0);
    return layout.lineCount() > 0 ? layout.lineAt(0).naturalTextWidth() : 0;
}

}  // namespace

struct CardLayout::Part {
    std::unique_ptr<QTextLayout> layout;
    QPointF place;
    qreal height = 0;
};

struct CardLayout::Line {
    bool heading = false;
    bool spaceBefore = false;
    std::vector<Part> parts;
};

CardLayout::CardLayout() = default;
CardLayout::~CardLayout() = default;

void CardLayout::setText(const QString& text, const QFont& font, const Theme& theme, Lines lines) {
    const int less = lines == Lines::Close ? kCloser : 0;
    const QFont heading = headingFont(font);
    lineHeight_ = QFontMetrics(font).height() + kLineSpacing - less;
    emptyHeight_ = lines == Lines::Close ? kCloseEmptyLine : lineHeight_;
    headingHeight_ = QFontMetrics(heading).height() + kHeadingSpacing - less;
    lines_.clear();
    for (const CardLine& source : partsOfCard(text)) {
        Line line{source.heading, source.spaceBefore && lines != Lines::Even, {}};
        for (const CardPart& part : source.parts)
            line.parts.push_back(
                {textLayout(part, source.heading ? heading : font, theme.ink2), {}, 0});
        lines_.push_back(std::move(line));
    }
}

qreal CardLayout::layOut(qreal width) {
    y_ = 0;
    for (Line& line : lines_) {
        const qreal height = line.heading ? headingHeight_ : lineHeight_;
        x_ = 0;
        if (line.spaceBefore)
            y_ += emptyHeight_;
        for (Part& part : line.parts)
            place(part, width, height);
        if (x_ > 0 || line.parts.empty())
            y_ += height;
    }
    return y_;
}

void CardLayout::place(Part& part, qreal width, qreal lineHeight) {
    const qreal natural = naturalWidth(*part.layout);
    if (x_ > 0 && x_ + kGap + natural > width) {
        x_ = 0;
        y_ += lineHeight;
    }
    if (x_ > 0)
        x_ += kGap;
    const int count =
        breakLines(*part.layout, qMax(width - x_, natural > width ? 1.0 : natural + 1), lineHeight);
    part.place = {x_, y_};
    part.height = count * lineHeight;
    if (count > 1) {
        x_ = 0;
        y_ += part.height;
    } else {
        x_ += natural;
    }
}

void CardLayout::paint(QPainter& painter, qreal top, qreal bottom) const {
    for (const Line& line : lines_)
        for (const Part& part : line.parts)
            if (part.place.y() < bottom && part.place.y() + part.height > top)
                part.layout->draw(&painter, part.place);
}

}  // namespace velmora
