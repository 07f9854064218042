#pragma once

#include <span>
#include <string>

#include "core/JobRunning.h"
#include "platform/Clock.h"
#include "platform/Format.h"
#include "platform/Messages.h"
#include "platform/PrintSurface.h"
#include "platform/StatusLine.h"

namespace velmora {

// Prints the list of hits of a search: a head with today's date in a larger font, two empty lines,
// and the lines as they stand.
class HitListPrint {
  public:
    // All must outlive it.
    HitListPrint(PrintSurface& printer, const JobRunning& jobs, StatusLine& status,
                 Messages& messages, const Clock& clock, const LocaleFormats& locale)
        : printer_(printer),
          jobs_(jobs),
          status_(status),
          messages_(messages),
          clock_(clock),
          locale_(locale) {}

    // A printer that does not take the job is told in the standard error box. While another job
    // runs it only says so on the status line.
    void print(std::span<const std::string> lines);

  private:
    PrintSurface& printer_;
    const JobRunning& jobs_;
    StatusLine& status_;
    Messages& messages_;
    const Clock& clock_;
    const LocaleFormats& locale_;
};

}  // namespace velmora
