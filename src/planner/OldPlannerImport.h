#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/LongJobs.h"
#include "planner/AppointmentStore.h"
#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Messages.h"

namespace velmora {

// A day of an old planner: the name of its section in the index, and the file with its note.
struct OldPlannerDay {
    std::string section;
    std::string file;

    bool operator==(const OldPlannerDay&) const = default;
};

// The days that an index names, in its order. A section without a comma is none.
[[nodiscard]] std::vector<OldPlannerDay> daysOfOldPlanner(const std::string& index,
                                                          const CodePage& codePage);

// What stands behind the first comma of a section's name; nothing where that is no day.
[[nodiscard]] std::optional<std::chrono::year_month_day> dayOfOldSection(std::string_view section,
                                                                         std::chrono::year pivot);

// True for a note that says that its day holds nothing.
[[nodiscard]] bool isNoNote(std::string_view note);

// A note as an appointment has it: each marker of a line break, with the character behind it,
// becomes four blanks.
[[nodiscard]] std::string textOfOldNote(std::string note);

// Brings the notes of an old planner into the table of appointments, each as an appointment from 11
// to 1 of its day.
class OldPlannerImport {
  public:
    // All must outlive this object.
    struct Parts {
        LongJobs& jobs;
        Messages& messages;
        AppointmentStore& store;
        const Files& files;
        const Clock& clock;
        const CodePage& codePage;
        // Copies the planner beside itself; gives the path of the copy. Throws Failure.
        std::function<std::string()> copyPlanner;
        // Shows the day and colours the calendars anew.
        std::function<void()> showAnew;
    };

    explicit OldPlannerImport(Parts parts) : parts_(std::move(parts)) {}

    // Asks for the index and imports what it names; events run meanwhile. True when there was an
    // import; the status line tells at its end what was done.
    bool import();

  private:
    struct Outcome {
        std::uint64_t added = 0;
        std::uint64_t withoutFile = 0;
        std::uint64_t failed = 0;
        std::string whyFailed;  // the first time, in UTF-8
        std::string copy;
    };

    [[nodiscard]] bool run(LongJob& job, const std::string& path);
    void importDay(LongJob& job, const OldPlannerDay& day, const std::string& folder,
                   Outcome& outcome);
    [[nodiscard]] std::string noteOf(const OldPlannerDay& day, const std::string& folder,
                                     Outcome& outcome) const;
    void add(LongJob& job, const Appointment& appointment, Outcome& outcome);
    [[nodiscard]] std::string textOf(const Outcome& outcome, bool calledOff) const;

    Parts parts_;
};

}  // namespace velmora
