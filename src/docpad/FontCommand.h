#pragma once

#include "core/ControlFont.h"
#include "core/SettingsStore.h"
#include "platform/EventLoop.h"

namespace velmora {

// The font of one control and the settings that keep it.
class FontCommand {
  public:
    enum class Keeps { NameSizeAndColour, NameAndSize };

    FontCommand(const FontKey& key, Keeps keeps, FontHolder& target, FontQuestion& dialog,
                SettingsStore& settings, const EventLoop& loop)
        : key_(key),
          keeps_(keeps),
          target_(target),
          dialog_(dialog),
          settings_(settings),
          loop_(loop) {}

    // Asks for a font of 4 to 14 points, applies it and saves it. After a cancelled dialog the
    // present font is applied and saved all the same; one that the end of the program closes
    // changes nothing. Throws Failure when it can not be saved.
    void change();

  private:
    FontKey key_;
    Keeps keeps_;
    FontHolder& target_;
    FontQuestion& dialog_;
    SettingsStore& settings_;
    const EventLoop& loop_;
};

}  // namespace velmora
