#include "platform/qt/PrintPages.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPen>
#include <algorithm>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr double kPointsAnInch = 72;
constexpr double kMargin = 18;                      // points
constexpr double kLineWidth = 0.5 / kPointsAnInch;  // half a point
constexpr double kSmallestFont = 1;                 // points

QColor colourOf(int number) {
    return {number & 255, number >> 8 & 255, number >> 16 & 255};
}

QPointF place(const QPaintDevice& device, double x, double y) {
    return {x * device.logicalDpiX(), y * device.logicalDpiY()};
}

}  // namespace

QFont toQt(const PrintFont& font, const CodePage& codePage) {
    QFont result;
    result.setFamilies({toQt(font.name, codePage)});
    result.setPointSizeF(std::max<double>(font.size, kSmallestFont));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    // Alternate glyphs, such as the colon between digits, would be lost when the text of a PDF file
    // is searched or copied.
    result.setStyleStrategy(QFont::PreferNoShaping);
    return result;
}

QPageLayout::Orientation toQt(PageOrientation orientation) {
    return orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                     : QPageLayout::Portrait;
}

QPageLayout letterLayout(PageOrientation orientation) {
    return {QPageSize(QPageSize::Letter), toQt(orientation),
            QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Point};
}

QRectF printableRect(const QPageLayout& layout) {
    const QRectF points = layout.paintRect(QPageLayout::Point);
    return {points.topLeft() / kPointsAnInch, points.size() / kPointsAnInch};
}

void PagePainter::paint(const PrintPage& page) {
    Tools tools;
    for (const auto& mark : page)
        std::visit([&](const auto& each) { paint(each, tools); }, mark);
}

// Most texts of a page are alike; telling the painter so each time costs more than drawing some.
void PagePainter::paint(const PrintedText& text, Tools& tools) {
    if (!tools.font || !(tools.font->name == text.font)) {
        tools.font = &known(text.font);
        painter_.setFont(tools.font->font);
    }
    if (tools.colour != text.colour) {
        tools.colour = text.colour;
        painter_.setPen(colourOf(text.colour));
    }
    painter_.drawText(place(*painter_.device(), text.x, text.y) + QPointF(0, tools.font->ascent),
                      toQt(text.text, codePage_));
}

void PagePainter::paint(const PrintedLine& line, Tools& tools) {
    tools.colour.reset();
    const QPaintDevice& device = *painter_.device();
    QPen pen(colourOf(line.colour));
    pen.setWidthF(kLineWidth * device.logicalDpiX());
    painter_.setPen(pen);
    painter_.drawLine(place(device, line.x1, line.y1), place(device, line.x2, line.y2));
}

const PagePainter::KnownFont& PagePainter::known(const PrintFont& font) {
    const auto found = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const KnownFont& each) { return each.name == font; });
    if (found != fonts_.end())
        return *found;
    const QFont made = toQt(font, codePage_);
    const double ascent = QFontMetricsF(made, painter_.device()).ascent();
    return fonts_.emplace_back(KnownFont{font, made, ascent});
}

}  // namespace velmora
