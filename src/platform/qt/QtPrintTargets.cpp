#include "platform/qt/QtPrintTargets.h"

#include <utility>

#include "platform/qt/PrintPages.h"
#include "platform/qt/QtPrinters.h"
#include "platform/qt/QtText.h"

namespace velmora {

PrintTarget QtPrintTargets::target(PageOrientation orientation) const {
    const std::string printer = surface_.CurrentPrinter();
    const QPageLayout layout = layoutOf(printer, orientation, service_, codePage_);
    const QRectF sheet = layout.fullRect(QPageLayout::Inch);
    const QRectF printable = printableRect(layout);
    return {
        .printer = printer,
        // Some have more than one name: "Letter / ANSI A".
        .paper = fromQt(layout.pageSize().name().section(QStringLiteral(" / "), 0, 0), codePage_),
        .width = sheet.width(),
        .height = sheet.height(),
        .left = printable.left(),
        .top = printable.top(),
        .printableWidth = printable.width(),
        .printableHeight = printable.height()};
}

void QtPrintTargets::ask(PageOrientation orientation,
                         std::function<void(const std::optional<PrintTarget>&)> known) {
    const std::string chosen = surface_.chosenPrinter();
    if (chosen == kPrintToPdf) {  // which nobody has to be asked for
        known(target(orientation));
        return;
    }
    service_.askSoon(toQt(chosen, codePage_), [this, orientation, known](bool good) {
        known(good ? std::optional(target(orientation)) : std::nullopt);
    });
}

}  // namespace velmora
