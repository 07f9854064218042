#pragma once

#include <string>

#include "core/ControlFont.h"
#include "core/SettingsStore.h"

namespace velmora {

// The font of one control and the settings that keep it: the name under a key such as "DocFont",
// the size and the colour under the same key with "S" and "C" behind it.
class FontCommand {
  public:
    enum class Keeps { NameSizeAndColour, NameAndSize };

    FontCommand(std::string key, Keeps keeps, FontHolder& target, FontQuestion& dialog,
                SettingsStore& settings)
        : key_(std::move(key)),
          keeps_(keeps),
          target_(target),
          dialog_(dialog),
          settings_(settings) {}

    // Asks for a font of 4 to 14 points, applies it and saves it. After a cancelled dialog the
    // present font is applied and saved all the same. Throws Failure when it can not be saved.
    void change();

  private:
    std::string key_;
    Keeps keeps_;
    FontHolder& target_;
    FontQuestion& dialog_;
    SettingsStore& settings_;
};

}  // namespace velmora
