#pragma once

#include <QPageLayout>

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/PrintDevice.h"

namespace velmora {

inline constexpr int kPrinterResolution = 1200;  // dots per inch

// The layout in which a job is printed on a printer: the size that the printer has by default and
// the margins that it needs. For what is no printer of the system that of a file.
[[nodiscard]] QPageLayout layoutOf(const std::string& printer, PageOrientation orientation,
                                   const CodePage& codePage);

// The printers of the system, and the file that the user names when a job goes to `kPrintToPdf`.
// The system is asked anew each time, and for nothing before.
class QtPrinters final : public PrintOutput {
  public:
    // All must outlive the printers.
    QtPrinters(Messages& messages, Files& files, const CodePage& codePage)
        : messages_(messages), files_(files), codePage_(codePage) {}

    [[nodiscard]] std::vector<std::string> printerNames() const override;
    [[nodiscard]] std::string defaultPrinter() const override;

    // False when the user names no file for "Print to PDF".
    bool print(const PrintJob& job) override;

  private:
    void printOnPaper(const PrintJob& job);
    bool printToFile(const PrintJob& job);

    Messages& messages_;
    Files& files_;
    const CodePage& codePage_;
};

}  // namespace velmora
