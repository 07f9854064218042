#pragma once

#include <string>

#include "core/PrintJobs.h"
#include "platform/CodePage.h"
#include "platform/calendar/DayTasks.h"

namespace velmora {

// What the day view looks like, and what stands above it.
struct DayOnShow {
    const DayTasks& tasks;
    std::string fontName;
    float fontSize = 0;    // points
    int colour = -1;       // of its texts, as PrintSurface::SetForeColor() takes it
    std::string longDate;  // the caption
};

// Prints the appointments of the day on show in the day view's font: a head with the date, then
// each with its times in bold, its text below and an empty line. They come in the order of their
// times as text, so "01:00 PM" before "09:00 AM". Events run meanwhile; changes that they make to
// the day are not for this job.
void PrintEventsOfDay(PrintJobs& printing, const DayOnShow& day, const CodePage& codePage);

}  // namespace velmora
