#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "planner/AlarmWindows.h"
#include "platform/Clock.h"

namespace velmora {

// What the form `AlarmAlert` knows: the messages of all alarms that went off while it is open.
class AlertStack {
  public:
    // All must outlive the object.
    AlertStack(SettingsStore& settings, const Clock& clock, AlarmWindows& windows);

    // An alarm goes off: its message comes on top of those of the open alert, or opens it.
    void add(const std::string& message);

    // What the open alert says, the newest message first, CR LF between them.
    [[nodiscard]] const std::string& text() const { return text_; }

    // "&Ok", and the close box.
    void Ok();

    // Sets one alarm with all messages `minutes` from now, on today's date whatever the clock shows
    // then, and closes the alert. Throws Failure; the alert then stays open.
    void Snooze(int minutes);

  private:
    SettingsStore& settings_;
    const Clock& clock_;
    AlarmWindows& windows_;
    std::string text_;
    bool open_ = false;
};

}  // namespace velmora
