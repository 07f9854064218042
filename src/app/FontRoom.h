#pragma once

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/ControlFont.h"
#include "core/forms/Calendar.h"
#include "docpad/FontCommand.h"
#include "docpad/forms/FontDialog.h"

namespace velmora {

// The font of the day view or of the entry list, as the font commands see it.
class CalendarFont final : public FontHolder {
  public:
    CalendarFont(CalendarTextFonts& fonts, FontTarget target, const CodePage& codePage)
        : fonts_(fonts), target_(target), codePage_(codePage) {}

    [[nodiscard]] ControlFont font() const override;
    void setFont(const ControlFont& font) override;

  private:
    CalendarTextFonts& fonts_;
    FontTarget target_;
    const CodePage& codePage_;
};

// The commands that choose the fonts of the planner and of the entry list.
class FontRoom {
  public:
    // Both must outlive the room.
    FontRoom(World& world, Calendar& calendar);

    void bindCommands(CommandSet& commands);

  private:
    Calendar& calendar_;
    QtFontQuestion question_;
    CalendarFont dayFont_;
    CalendarFont listFont_;
    FontCommand dayCommand_;
    FontCommand listCommand_;
};

}  // namespace velmora
