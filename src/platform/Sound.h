#pragma once

#include <string>

namespace velmora {

// What the user hears. Nothing here waits for the end of a sound.
class Sound {
  public:
    virtual ~Sound() = default;

    // Starts to play a wave file and cuts off the one that is playing. `path` is code-page text,
    // as `Files` takes it. A file that turns out to be missing or no sound, and a machine that can
    // not play it, ends in beepThreeTimes().
    virtual void play(const std::string& path) = 0;

    // Three beeps of the system, far enough apart to be heard as three.
    virtual void beepThreeTimes() = 0;
};

}  // namespace velmora
