#include "planner/AlertStack.h"

#include "planner/ClockTime.h"
#include "planner/ListShapes.h"
#include "platform/Text.h"

namespace velmora {

AlertStack::AlertStack(SettingsStore& settings, const Clock& clock, AlarmWindows& windows)
    : settings_(settings), clock_(clock), windows_(windows) {}

void AlertStack::add(const std::string& message) {
    text_ = open_ ? message + "\r\n" + text_ : message;
    open_ = true;
    windows_.showAlert(text_);
}

void AlertStack::Ok() {
    open_ = false;
    windows_.closeAlert();
}

void AlertStack::Snooze(int minutes) {
    const Moment now = clock_.now();
    NumberedList(settings_, alarmsOf(dateOf(now)))
        .append(ClockTime::of(now).plusMinutes(minutes).text(), trimBlanks(text_));
    Ok();
}

}  // namespace velmora
