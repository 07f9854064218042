#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/SharedState.h"
#include "phonebook/EntryWriter.h"
#include "phonebook/PhonebookRecord.h"
#include "planner/AppointmentStore.h"
#include "planner/Planner.h"
#include "planner/PlannerControls.h"
#include "planner/ScheduleCommands.h"
#include "planner/ScheduleTimes.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/Format.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

namespace velmora {

// What the scheduling commands ask of the main form.
class ScheduleDesk {
  public:
    virtual ~ScheduleDesk() = default;

    // As a click on planner tab 0. The selected entry stays selected.
    virtual void ShowPlannerPane() = 0;

    // Opens the form `Schedule`, not blocking, or brings the open one to the front as it is.
    virtual void OpenSchedule() = 0;

    // The text selected in the phonebook list; empty when nothing is.
    [[nodiscard]] virtual std::string SelectedLine() const = 0;

    // The entry becomes the current one of the main form.
    virtual void SetCurrentEntry(const PhonebookRecord& record) = 0;

    // A failure that no command survives: the standard error box with this text (UTF-8), then the
    // program closes by its orderly path.
    virtual void EndProgram(const std::string& utf8Text) = 0;
};

// What scheduling works with; all outlive it.
struct SchedulingParts {
    const SharedState& shared;
    EntryWriter& entries;  // of the phonebook
    AppointmentStore& appointments;
    Planner& planner;
    DayControl& day;
    MonthControl& month;
    ScheduleDesk& desk;
    ScheduleTexts& texts;
    Messages& messages;
    EventLoop& loop;
    const Clock& clock;
    const LocaleFormats& formats;
    StatusLine& status;
};

// The scheduling commands. A command opens the form `Schedule` and waits; the latest that waits
// gets the times once they are applied, and makes the appointment in one go with what is selected
// then. A command whose form is cancelled goes on waiting, and costs nothing.
class Scheduling {
  public:
    explicit Scheduling(const SchedulingParts& parts);

    void Start(ScheduleCommand command);

    // The form `Schedule` has filled the texts and closed.
    void OnApplied();

    // Called twice a second: where another program locked the planner, the command is tried again,
    // for five seconds.
    void TryAgain();

    // How many commands wait for their times.
    [[nodiscard]] std::size_t waiting() const { return waiting_.size(); }

  private:
    struct Waiting {
        ScheduleCommand command;
        std::string answer{};  // what the user wants to schedule; of the command Other only
        std::optional<PhonebookRecord> booked{};  // once its entry has been written
        int tries = 0;
    };

    [[nodiscard]] bool textsAreFilled() const;
    void wake();
    void run(Waiting& waiting);
    void expectRows();
    [[nodiscard]] std::string beginningOf(const Waiting& waiting) const;
    void addAppointment(const std::string& description);

    SchedulingParts parts_;
    std::vector<Waiting> waiting_;
    bool heldUp_ = false;  // the latest command met a lock
    WorkOwner wakes_;
};

}  // namespace velmora
