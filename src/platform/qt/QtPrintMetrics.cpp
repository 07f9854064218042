#include "platform/qt/QtPrintMetrics.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPdfWriter>

#include "platform/qt/PrintPages.h"
#include "platform/qt/QtPrinters.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

// Has the resolution of a printer, and nothing is ever painted on it.
class Ruler final : private QBuffer, public QPdfWriter {
  public:
    Ruler() : QPdfWriter(static_cast<QBuffer*>(this)) { setResolution(kPrinterResolution); }
};

}  // namespace

QtPrintMetrics::QtPrintMetrics(const CodePage& codePage, PrintService& service)
    : codePage_(codePage), service_(service) {}

QtPrintMetrics::~QtPrintMetrics() = default;

QPaintDevice& QtPrintMetrics::device() const {
    if (!device_)
        device_ = std::make_unique<Ruler>();
    return *device_;
}

double QtPrintMetrics::lineHeight(const PrintFont& font) const {
    return QFontMetricsF(toQt(font, codePage_), &device()).height() / kPrinterResolution;
}

double QtPrintMetrics::textWidth(const PrintFont& font, std::string_view line) const {
    const QFontMetricsF metrics(toQt(font, codePage_), &device());
    return metrics.horizontalAdvance(toQt(line, codePage_)) / kPrinterResolution;
}

PrintableArea QtPrintMetrics::printableArea(const std::string& printer,
                                            PageOrientation orientation) const {
    const QSizeF size =
        layoutOf(printer, orientation, service_, codePage_).paintRect(QPageLayout::Inch).size();
    return {.width = size.width(), .height = size.height()};
}

}  // namespace velmora
