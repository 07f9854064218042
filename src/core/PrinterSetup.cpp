#include "core/PrinterSetup.h"

namespace velmora {

void PrinterSetup::change() {
    if (!printing_.askPrintSystem())
        return;
    PrintSurface& printer = printing_.printer();
    const PrinterChoice now{.printer = printer.CurrentPrinter(),
                            .orientation = printer.Orientation()};
    const std::optional<PrinterChoice> chosen = question_.choose(printer.PrinterNames(), now);
    if (!chosen || !printing_.askPrintSystem())
        return;
    if (!printer.SetCurrentPrinter(chosen->printer)) {
        messages_.warn(kApplicationTitle, "The printer \"" + chosen->printer +
                                              "\" is not there any more. Please choose another "
                                              "one.");
        return;
    }
    printer.SetOrientation(chosen->orientation);
}

}  // namespace velmora
