#include "planner/Scheduling.h"

#include <utility>

#include "planner/DateReference.h"
#include "platform/DateText.h"
#include "platform/StorageFailure.h"
#include "platform/Text.h"

namespace velmora {

namespace {

constexpr int kMostTries = 10;  // five seconds
constexpr const char* kNoAppointmentYet =
    "There is no current appointment. Type the first appointment of a new planner into the day "
    "view.";

// The very first row comes from the day view.
void goToFirst(AppointmentStore& store) {
    try {
        store.MoveFirst();
    } catch (const Failure& failure) {
        if (obstacleOf(failure) == Obstacle::NoSuchRow)
            throw Failure(kNoAppointmentYet);
        throw;
    }
}

}  // namespace

Scheduling::Scheduling(const SchedulingParts& parts) : parts_(parts) {}

void Scheduling::Start(ScheduleCommand command) {
    parts_.desk.ShowPlannerPane();
    std::string answer;
    if (command == ScheduleCommand::Other)
        answer =
            parts_.messages
                .askText("Schedule Other...", "What would you like to schedule?", "Other Event")
                .value_or("");
    if (parts_.loop.closing())
        return;  // the end of the program has closed the question
    waiting_.push_back({.command = command, .answer = std::move(answer)});
    parts_.desk.OpenSchedule();
}

void Scheduling::OnApplied() {
    parts_.loop.post(wakes_, [this] { wake(); });
}

bool Scheduling::textsAreFilled() const {
    return !trimBlanks(parts_.texts.ScheduleBegin).empty() ||
           !trimBlanks(parts_.texts.ScheduleEnd).empty();
}

void Scheduling::wake() {
    heldUp_ = false;
    if (parts_.loop.closing())
        return waiting_.clear();
    try {
        while (!waiting_.empty() && textsAreFilled()) {
            Waiting latest = std::move(waiting_.back());
            waiting_.pop_back();
            try {
                run(latest);
            } catch (const StorageFailure& failure) {
                if (failure.obstacle() != Obstacle::InUse || ++latest.tries > kMostTries)
                    throw;
                waiting_.push_back(std::move(latest));
                heldUp_ = true;
                parts_.status.show("Waiting for the planner, which another program is using...");
                return;
            }
        }
    } catch (const Failure& failure) {
        waiting_.clear();
        parts_.desk.EndProgram(failure.what());
    }
}

void Scheduling::TryAgain() {
    if (heldUp_)
        wake();
}

// Before anything is written: what can not be read now is not to be written half.
void Scheduling::expectRows() {
    AppointmentStore& store = parts_.appointments;
    store.SelectAll();
    store.Refresh();
    if (!store.Eof())
        return;
    if (store.obstacle() == Obstacle::InUse)
        throw StorageFailure("The planner is in use by another program.", Obstacle::InUse);
}

void Scheduling::run(Waiting& waiting) {
    expectRows();
    ScheduleTexts& texts = parts_.texts;
    texts.ScheduleBegin = formatTimeText(texts.ScheduleBegin, "hh:mm AMPM", parts_.formats);
    texts.ScheduleEnd = formatTimeText(texts.ScheduleEnd, "hh:mm AMPM", parts_.formats);

    if (!waiting.booked)
        waiting.booked =
            writeDateReference(parts_.entries, parts_.shared.BookFile,
                               BookedName::ofListLine(parts_.desk.SelectedLine()),
                               parts_.planner.SelectedDate() + ", " + texts.ScheduleBegin);
    const PhonebookRecord& record = *waiting.booked;
    parts_.desk.SetCurrentEntry(record);
    addAppointment(beginningOf(waiting) + nameForAppointment(record) + " " +
                   std::string(record.text(Field::Phone)));

    ignoringErrors([&] { parts_.day.Refresh(); });
    parts_.planner.UpdateDays();
    parts_.planner.LoadDayTasks();
    if (infoOf(waiting.command).emptiesTexts)
        texts = {};
}

std::string Scheduling::beginningOf(const Waiting& waiting) const {
    const char* beginning = infoOf(waiting.command).beginning;
    return beginning ? std::string(beginning) : std::string(trimBlanks(waiting.answer)) + " with ";
}

void Scheduling::addAppointment(const std::string& description) {
    AppointmentStore& store = parts_.appointments;
    store.SelectAll();
    store.Refresh();
    goToFirst(store);
    const Moment now = parts_.clock.now();
    store.Add({.tag = now,
               .day = readDate(parts_.month.Date(), dateOf(now).year()),
               .begin = parts_.texts.ScheduleBegin,
               .end = parts_.texts.ScheduleEnd,
               .text = description});
    store.Refresh();
}

}  // namespace velmora
