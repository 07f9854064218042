#pragma once

#include <span>
#include <string>

#include "platform/Clock.h"
#include "platform/Format.h"
#include "platform/Messages.h"
#include "platform/PrintSurface.h"

namespace velmora {

// Prints the list of hits of a search: a head with today's date in a larger font, two empty lines,
// and the lines as they stand.
class HitListPrint {
  public:
    // All must outlive it.
    HitListPrint(PrintSurface& printer, Messages& messages, const Clock& clock,
                 const LocaleFormats& locale)
        : printer_(printer), messages_(messages), clock_(clock), locale_(locale) {}

    // A printer that does not take the job is told in the standard error box.
    void print(std::span<const std::string> lines);

  private:
    PrintSurface& printer_;
    Messages& messages_;
    const Clock& clock_;
    const LocaleFormats& locale_;
};

}  // namespace velmora
