#include <algorithm>

#include "planner/Planner.h"
#include "planner/PlannerTrouble.h"
#include "planner/StoredText.h"
#include "platform/DateText.h"
#include "platform/Failure.h"

// What the planner does about what it could not read or store.
namespace velmora {

namespace {

using std::chrono::year_month_day;

constexpr int kLongestWait = 16;  // calls of TryAgain()
constexpr std::chrono::seconds kTimeToRead{5};

}  // namespace

void Planner::TryAgain() {
    const bool wanted =
        dayIsUnread_ || coloursAreUnread_ || blocksAreUnstored_ || !unstored_.empty();
    if (!wanted) {
        callsToWait_ = 0;
        nextWait_ = 1;
    }
    if (!wanted || editIsOpen_ || --callsToWait_ > 0)
        return;
    const Patience::Suspended impatient(store_.patience());
    storeAgain();
    if (dayIsUnread_ && dayOnShow_) {
        putAside();
        ignoringErrors([&] { store_.SelectByDate(writeDate(*dayOnShow_)); });
        fillDay();
    }
    if (coloursAreUnread_)
        UpdateDays();
    callsToWait_ = nextWait_;
    nextWait_ = std::min(2 * nextWait_, kLongestWait);
}

void Planner::putAside() {
    if (!blocksAreUnstored_ || !dayOnShow_)
        return;
    blocksAreUnstored_ = false;
    for (int index = 0; index < day_.TaskCount(); ++index)
        if (const DayTask task = day_.Task(index); task.TagVariant.empty())
            unstored_.add(*dayOnShow_, task);
}

void Planner::showUnstored() {
    if (!dayOnShow_)
        return;
    for (const DayTask& task : unstored_.take(*dayOnShow_)) {
        day_.AddTask(task.BeginTime, task.EndTime, task.text);
        blocksAreUnstored_ = true;
    }
}

void Planner::addRow(year_month_day day, const DayTask& task, Moment tag) {
    store_.Add(
        {.tag = tag, .day = day, .begin = task.BeginTime, .end = task.EndTime, .text = task.text});
}

// The first that fails ends it: what stands in its way stands in that of all.
void Planner::storeAgain() {
    blocksAreUnstored_ = hasUnstoredBlocks();
    if (!blocksAreUnstored_ && unstored_.empty())
        return;
    const Moment tag = clock_.now();
    try {
        for (int index = 0; dayOnShow_ && index < day_.TaskCount(); ++index)
            if (const DayTask task = day_.Task(index); task.TagVariant.empty()) {
                addRow(*dayOnShow_, task, tag);
                day_.SetTaskTag(index, storedMoment(tag));
            }
        blocksAreUnstored_ = false;
        while (!unstored_.empty()) {
            const auto& [day, tasks] = *unstored_.all().begin();
            addRow(day, tasks.front(), tag);
            unstored_.removeFirst();
        }
        tell("All appointments are stored now.");
    } catch (const Failure&) {
        // They stay, and this is called again.
    }
    UpdateDays();
}

bool Planner::hasUnstoredBlocks() const {
    for (int index = 0; blocksAreUnstored_ && index < day_.TaskCount(); ++index)
        if (day_.Task(index).TagVariant.empty())
            return true;
    return false;
}

void Planner::KeepUnstored() {
    if (!editIsOpen_)
        storeAgain();
    UnstoredTasks all = unstored_;
    for (int index = 0; dayOnShow_ && blocksAreUnstored_ && index < day_.TaskCount(); ++index)
        if (const DayTask task = day_.Task(index); task.TagVariant.empty())
            all.add(*dayOnShow_, task);
    const std::string text = all.text();
    if (text == kept_)
        return;
    ignoringErrors([&] {
        settings_.save(keys::UnstoredAppointments, text);
        kept_ = text;
    });
}

void Planner::TakeOver() {
    ignoringErrors([&] {
        settings_.batch([&] {
            unstored_ = UnstoredTasks::read(settings_.read(keys::UnstoredAppointments));
            if (!unstored_.empty())
                settings_.remove(keys::UnstoredAppointments);
        });
    });
}

void Planner::tell(const std::string& text) {
    status_.show(text);
    helpFrom_ = clock_.now() + kTimeToRead;
}

void Planner::help(const std::string& text) {
    if (clock_.now() >= helpFrom_)
        status_.show(text);
}

}  // namespace velmora
