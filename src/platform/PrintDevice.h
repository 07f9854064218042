#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/PrintJob.h"

// What a recorded job stands on: something that measures, and something that prints.
namespace velmora {

// The printer that is always there and writes a file.
inline constexpr const char* kPrintToPdf = "Print to PDF";

struct PrintableArea {
    double width = 0;  // inches
    double height = 0;
};

// Measures at the resolution of printers. Never throws: without a printer it measures all the same.
class PrintMetrics {
  public:
    virtual ~PrintMetrics() = default;

    // Ascent and descent, in inches; the same for every line in this font, more than 0.
    [[nodiscard]] virtual double lineHeight(const PrintFont& font) const = 0;

    // Of one line without control characters, in inches.
    [[nodiscard]] virtual double textWidth(const PrintFont& font, std::string_view line) const = 0;

    // What the printer can print on of a sheet. For an unknown one that of a Letter sheet with
    // margins of a quarter inch.
    [[nodiscard]] virtual PrintableArea printableArea(const std::string& printer,
                                                      PageOrientation orientation) const = 0;
};

// The printers of this machine.
class PrintOutput {
  public:
    virtual ~PrintOutput() = default;

    // Asks the print system what there is, and what sheets `printer` has by default, the default
    // one when that is empty. Events run. False when `goOn` said no. Throws Failure when the print
    // system does not answer. The questions below are answered as of then.
    virtual bool ask(const std::string& printer, const GoOn& goOn) = 0;

    // By name, as the system lists them, and `kPrintToPdf` behind them.
    [[nodiscard]] virtual std::vector<std::string> printerNames() const = 0;

    // The one that the system prints on by default; `kPrintToPdf` where it names none.
    [[nodiscard]] virtual std::string defaultPrinter() const = 0;

    // Sends a job; see PrintSurface::EndDoc(). Throws Failure when its printer is not there any
    // more or does not take it; nothing is printed elsewhere instead.
    virtual bool print(PrintJob job, PrintWatch* watch) = 0;

    // See PrintSurface.
    virtual void beginRun(const std::string& title) = 0;
    virtual std::optional<std::string> endRun() = 0;
};

}  // namespace velmora
