#pragma once

#include <QFont>
#include <QPageLayout>
#include <QPainter>
#include <QRectF>
#include <deque>
#include <optional>

#include "platform/CodePage.h"
#include "platform/PrintJob.h"

namespace velmora {

inline constexpr int kPrinterResolution = 1200;  // dots per inch

[[nodiscard]] QFont toQt(const PrintFont& font, const CodePage& codePage);

// Of a file, and of what can not be asked: a Letter sheet with margins of a quarter inch.
[[nodiscard]] QPageLayout letterLayout(PageOrientation orientation);

// What can be printed on of a sheet, in inches from its left top corner: exactly, while the layout
// itself rounds what it does not tell in points.
[[nodiscard]] QRectF printableRect(const QPageLayout& layout);

[[nodiscard]] QPageLayout::Orientation toQt(PageOrientation orientation);

// Paints what stands on a page in the dots of a painter's device, (0, 0) being the corner of the
// printable area.
class PagePainter {
  public:
    // Both must outlive it; the painter is active when a page is painted.
    PagePainter(QPainter& painter, const CodePage& codePage)
        : painter_(painter), codePage_(codePage) {}

    void paint(const PrintPage& page);

  private:
    struct KnownFont {
        PrintFont name;
        QFont font;
        double ascent = 0;  // in dots
    };

    // What the texts before it on the page have been drawn with.
    struct Tools {
        const KnownFont* font = nullptr;
        std::optional<int> colour;
    };

    void paint(const PrintedText& text, Tools& tools);
    void paint(const PrintedLine& line, Tools& tools);
    [[nodiscard]] const KnownFont& known(const PrintFont& font);

    QPainter& painter_;
    const CodePage& codePage_;
    std::deque<KnownFont> fonts_;  // a job has few
};

}  // namespace velmora
