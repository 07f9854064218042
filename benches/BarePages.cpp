#include "benches/BarePages.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <utility>

#include "platform/qt/PrintPages.h"

namespace velmora::bench {
namespace {

// Fonts change between few; the last one is kept.
class Pen {
  public:
    explicit Pen(QPainter& painter) : painter_(painter) {}

    void draw(const PrintedText& text) {
        if (std::exchange(isSet_, true) == false || !(text.font == font_)) {
            font_ = text.font;
            const QFont font = toQt(font_, CodePage::western());
            painter_.setFont(font);
            ascent_ = QFontMetricsF(font, painter_.device()).ascent();
        }
        painter_.drawText(
            QPointF(static_cast<double>(text.x) * kPrinterResolution,
                    static_cast<double>(text.y) * kPrinterResolution + ascent_),
            QString::fromLatin1(text.text.data(), static_cast<qsizetype>(text.text.size())));
    }

    void draw(const PrintedLine& line) {
        const auto dots = [](float inches) {
            return static_cast<double>(inches) * kPrinterResolution;
        };
        painter_.drawLine(QPointF(dots(line.x1), dots(line.y1)),
                          QPointF(dots(line.x2), dots(line.y2)));
    }

  private:
    QPainter& painter_;
    PrintFont font_{};
    bool isSet_ = false;
    double ascent_ = 0;
};

}  // namespace

std::size_t drawBare(const std::vector<PrintJob>& jobs) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(kPrinterResolution);
    writer.setPageLayout(letterLayout(PageOrientation::Portrait));
    QPainter painter(&writer);
    Pen pen(painter);
    bool first = true;
    for (const PrintJob& job : jobs)
        for (const PrintPage& page : job.pages) {
            if (!std::exchange(first, false))
                writer.newPage();
            for (const auto& mark : page)
                std::visit([&](const auto& each) { pen.draw(each); }, mark);
        }
    painter.end();
    return static_cast<std::size_t>(bytes.size());
}

}  // namespace velmora::bench
