#include "platform/qt/PdfPages.h"

#include "platform/Failure.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

Failure notMade() {
    return Failure("Nothing was printed: the pages could not be made.");
}

}  // namespace

PdfPages::PdfPages(const std::string& title, const CodePage& codePage)
    : pagePainter_(painter_, codePage) {
    bytes_.open(QIODevice::WriteOnly);
    writer_.setResolution(kPrinterResolution);
    writer_.setTitle(toQt(title, codePage));
    writer_.setCreator(QStringLiteral("Velmora"));
}

PdfPages::~PdfPages() = default;

// The painter's own corner lies on a whole point, margins seldom do.
void PdfPages::beginPage(const QPageLayout& layout) {
    if (layout_ != layout) {
        layout_ = layout;
        QPageLayout whole = layout;
        whole.setMode(QPageLayout::FullPageMode);
        writer_.setPageLayout(whole);
    }
    if (pages_ == 0 ? !painter_.begin(&writer_) : !writer_.newPage())
        throw notMade();
    ++pages_;
    const QRectF area = printableRect(layout);
    painter_.resetTransform();
    painter_.translate(area.topLeft() * kPrinterResolution);
    painter_.setClipRect(QRectF(QPointF(), area.size() * kPrinterResolution));
}

bool PdfPages::play(PrintJob& job, const QPageLayout& layout, PrintWatch* watch) {
    const int count = static_cast<int>(job.pages.size());
    for (int i = 0; i < count; ++i) {
        if (watch && !watch->playing(i + 1, count))
            return false;
        beginPage(layout);
        PrintPage& page = job.pages[static_cast<std::size_t>(i)];
        pagePainter_.paint(page);
        page = {};
    }
    return true;
}

QByteArray PdfPages::finish() {
    if (!painter_.end())
        throw notMade();
    return bytes_.data();
}

}  // namespace velmora
