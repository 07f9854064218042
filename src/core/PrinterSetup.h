#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/PrintJobs.h"
#include "platform/Messages.h"
#include "platform/PrintSurface.h"

namespace velmora {

struct PrinterChoice {
    std::string printer;
    PageOrientation orientation = PageOrientation::Portrait;

    bool operator==(const PrinterChoice&) const = default;
};

// The printer dialog.
class PrinterQuestion {
  public:
    virtual ~PrinterQuestion() = default;

    // Shows the dialog with `now` chosen, whose printer may be missing in `printers`. The answer
    // names one of `printers`; nothing when cancelled.
    [[nodiscard]] virtual std::optional<PrinterChoice> choose(
        const std::vector<std::string>& printers, const PrinterChoice& now) = 0;
};

// `prints`: chooses the current printer, which is kept until the program ends, and how its sheets
// lie for jobs that do not say so themselves. The system's default printer stays as it is.
class PrinterSetup {
  public:
    // All must outlive the command.
    PrinterSetup(PrintJobs& printing, PrinterQuestion& question, Messages& messages)
        : printing_(printing), question_(question), messages_(messages) {}

    // Events run while the print system is asked. A printer that went while the dialog was open is
    // told, and nothing changes. While a job runs it only says so on the status line.
    void change();

  private:
    PrintJobs& printing_;
    PrinterQuestion& question_;
    Messages& messages_;
};

}  // namespace velmora
