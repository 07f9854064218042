#pragma once

#include <span>
#include <string>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "platform/Clock.h"
#include "platform/Format.h"

namespace velmora {

// Prints the list of hits of a search: a head with today's date in a larger font, two empty lines,
// and the lines as they stand, in the face of the entry list.
class HitListPrint {
  public:
    // All must outlive it.
    HitListPrint(PrintJobs& printing, const SettingsStore& settings, const Clock& clock,
                 const LocaleFormats& locale)
        : printing_(printing), settings_(settings), clock_(clock), locale_(locale) {}

    // Events run meanwhile; the lines may change then.
    void print(std::span<const std::string> lines);

  private:
    PrintJobs& printing_;
    const SettingsStore& settings_;
    const Clock& clock_;
    const LocaleFormats& locale_;
};

}  // namespace velmora
