#include "platform/qt/PrintPages.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPen>
#include <algorithm>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr double kMargin = 0.25;           // inches
constexpr double kLineWidth = 0.5 / 72.0;  // half a point
constexpr double kSmallestFont = 1;        // points

QColor colourOf(int number) {
    return {number & 255, number >> 8 & 255, number >> 16 & 255};
}

// Paints the marks of a page in the dots of the device.
class MarkPainter {
  public:
    MarkPainter(QPainter& painter, const CodePage& codePage)
        : painter_(painter),
          codePage_(codePage),
          dotsX_(painter.device()->logicalDpiX()),
          dotsY_(painter.device()->logicalDpiY()) {}

    void operator()(const PrintedText& text) const {
        const QFont font = toQt(text.font, codePage_);
        painter_.setFont(font);
        painter_.setPen(colourOf(text.colour));
        const double ascent = QFontMetricsF(font, painter_.device()).ascent();
        painter_.drawText(place(text.x, text.y) + QPointF(0, ascent), toQt(text.text, codePage_));
    }

    void operator()(const PrintedLine& line) const {
        QPen pen(colourOf(line.colour));
        pen.setWidthF(kLineWidth * dotsX_);
        painter_.setPen(pen);
        painter_.drawLine(place(line.x1, line.y1), place(line.x2, line.y2));
    }

  private:
    [[nodiscard]] QPointF place(double x, double y) const { return {x * dotsX_, y * dotsY_}; }

    QPainter& painter_;
    const CodePage& codePage_;
    double dotsX_;
    double dotsY_;
};

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
            QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Inch};
}

QPageLayout withNeededMargins(QPageLayout layout) {
    layout.setUnits(QPageLayout::Inch);
    QMarginsF margins = layout.minimumMargins();
    if (margins.isNull())
        margins = QMarginsF(kMargin, kMargin, kMargin, kMargin);
    layout.setMargins(margins);
    return layout;
}

bool paintPages(QPagedPaintDevice& device, const PrintJob& job, const CodePage& codePage) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const QSizeF size = device.pageLayout().paintRect(QPageLayout::Inch).size();
    const QRectF area(0, 0, size.width() * device.logicalDpiX(),
                      size.height() * device.logicalDpiY());
    const MarkPainter paint(painter, codePage);
    for (const PrintPage& page : job.pages) {
        if (&page != &job.pages.front() && !device.newPage())
            return false;
        painter.setClipRect(area);
        for (const auto& mark : page)
            std::visit(paint, mark);
    }
    return painter.end();
}

}  // namespace velmora
