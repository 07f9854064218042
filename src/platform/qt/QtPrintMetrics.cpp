#include "platform/qt/QtPrintMetrics.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <algorithm>

#include "platform/qt/PrintPages.h"
#include "platform/qt/QtPrinters.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr std::size_t kMostFonts = 32;

// Has the resolution of a printer, and nothing is ever painted on it.
class Ruler final : private QBuffer, public QPdfWriter {
  public:
    Ruler() : QPdfWriter(static_cast<QBuffer*>(this)) { setResolution(kPrinterResolution); }
};

}  // namespace

QtPrintMetrics::QtPrintMetrics(const CodePage& codePage, PrintService& service)
    : codePage_(codePage), service_(service) {
    // A face that is installed meanwhile may take the place of one that stood in for it.
    if (qGuiApp)
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, &connections_,
                         [this] { fonts_.clear(); });
}

QtPrintMetrics::~QtPrintMetrics() = default;

QPaintDevice& QtPrintMetrics::device() const {
    if (!device_)
        device_ = std::make_unique<Ruler>();
    return *device_;
}

const QtPrintMetrics::KnownFont& QtPrintMetrics::known(const PrintFont& font) const {
    const auto found = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const KnownFont& each) { return each.name == font; });
    if (found != fonts_.end())
        return *found;
    if (fonts_.size() == kMostFonts)
        fonts_.clear();
    const QFontMetricsF metrics(toQt(font, codePage_), &device());
    return fonts_.emplace_back(KnownFont{font, metrics, metrics.height() / kPrinterResolution});
}

double QtPrintMetrics::lineHeight(const PrintFont& font) const {
    return known(font).lineHeight;
}

double QtPrintMetrics::textWidth(const PrintFont& font, std::string_view line) const {
    return known(font).metrics.horizontalAdvance(toQt(line, codePage_)) / kPrinterResolution;
}

PrintableArea QtPrintMetrics::printableArea(const std::string& printer,
                                            PageOrientation orientation) const {
    const QSizeF size = printableRect(layoutOf(printer, orientation, service_, codePage_)).size();
    return {.width = size.width(), .height = size.height()};
}

}  // namespace velmora
