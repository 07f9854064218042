#include "core/PrinterSetup.h"

namespace velmora {

void PrinterSetup::change() {
    const PrinterChoice now{.printer = printer_.CurrentPrinter(),
                            .orientation = printer_.Orientation()};
    const std::optional<PrinterChoice> chosen = question_.choose(printer_.PrinterNames(), now);
    if (!chosen)
        return;
    if (!printer_.SetCurrentPrinter(chosen->printer)) {
        messages_.warn(kApplicationTitle, "The printer \"" + chosen->printer +
                                              "\" is not there any more. Please choose another "
                                              "one.");
        return;
    }
    printer_.SetOrientation(chosen->orientation);
}

}  // namespace velmora
