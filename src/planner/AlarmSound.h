#pragma once

#include "core/SettingsStore.h"
#include "platform/Files.h"
#include "platform/Sound.h"

namespace velmora {

// The sound of alarms and of the events of the day: the wave file of the setting "AlarmSound", or
// three beeps where it names no file.
class AlarmSound {
  public:
    // All must outlive the object.
    AlarmSound(const SettingsStore& settings, const Files& files, Sound& sound)
        : settings_(settings), files_(files), sound_(sound) {}

    // Begins to sound and returns at once.
    void ring() const;

  private:
    const SettingsStore& settings_;
    const Files& files_;
    Sound& sound_;
};

}  // namespace velmora
