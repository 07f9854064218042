#include "telephony/Fax.h"

#include <algorithm>

#include "platform/PrintDevice.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kWait = "Please Wait.";

}  // namespace

bool Fax::begin() {
    if (parts_.printing.refuses())
        return false;
    parts_.status.show(kWait);
    return true;
}

std::vector<std::string> Fax::queues() {
    if (!parts_.printing.askPrintSystem())
        return {};
    std::vector<std::string> names = parts_.printing.printer().PrinterNames();
    std::erase(names, kPrintToPdf);  // no machine stands behind it
    return names;
}

std::string Fax::currentQueue() const {
    return parts_.printing.printer().CurrentPrinter();
}

void Fax::send(const std::string& queue) {
    if (parts_.printing.refuses() || !choose(queue))
        return;
    const std::string text = parts_.text.empty() ? "Velmora: Fax" : parts_.text.bytes();
    parts_.printing.run({.title = "Fax", .lastText = kWait},
                        [&text](PrintRun& run) { run.printer.Print(text); });
}

bool Fax::choose(const std::string& queue) {
    const std::string_view wanted = trimBlanks(queue);
    if (wanted.empty())
        return true;
    if (!parts_.printing.askPrintSystem())
        return false;
    PrintSurface& printer = parts_.printing.printer();
    bool found = false;
    for (const std::string& name : printer.PrinterNames())
        if (trimBlanks(name) == wanted)
            found = printer.SetCurrentPrinter(name);
    if (!found)
        parts_.messages.warn(kApplicationTitle, "The printer \"" + std::string(wanted) +
                                                    "\" is not there any more. Please choose "
                                                    "another one.");
    return found;
}

}  // namespace velmora
