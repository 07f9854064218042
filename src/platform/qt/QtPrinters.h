#pragma once

#include <memory>
#include <optional>

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/PrintDevice.h"
#include "platform/qt/PdfPages.h"
#include "platform/qt/PrintService.h"

namespace velmora {

// The layout in which a job is printed on a printer: the size that the printer has by default and
// the margins that it needs. For what is no printer of the system that of a file.
[[nodiscard]] QPageLayout layoutOf(const std::string& printer, PageOrientation orientation,
                                   PrintService& service, const CodePage& codePage);

// The printers of the system, and the file that the user names when a job goes to `kPrintToPdf`:
// once for each run, when its first job ends. The file is written when the run ends; a job that is
// called off while its pages are played takes the whole file with it.
class QtPrinters final : public PrintOutput {
  public:
    // All must outlive the printers.
    QtPrinters(Messages& messages, Files& files, const CodePage& codePage, PrintService& service)
        : messages_(messages), files_(files), codePage_(codePage), service_(service) {}

    bool ask(const std::string& printer, const GoOn& goOn) override;
    [[nodiscard]] std::vector<std::string> printerNames() const override;
    [[nodiscard]] std::string defaultPrinter() const override;

    // A job outside a run is a run of its own.
    bool print(PrintJob job, PrintWatch* watch) override;

    void beginRun(const std::string& title) override;
    std::optional<std::string> endRun() override;

  private:
    struct Run {
        std::string title;
        std::string path{};                 // empty as long as nothing was asked
        std::unique_ptr<PdfPages> pages{};  // from the first job that goes to the file
    };

    bool printOnPaper(PrintJob& job, PrintWatch* watch);
    bool printToFile(PrintJob& job, PrintWatch* watch);
    [[nodiscard]] std::optional<std::string> fileToWrite();

    Messages& messages_;
    Files& files_;
    const CodePage& codePage_;
    PrintService& service_;
    std::optional<Run> run_;
};

}  // namespace velmora
