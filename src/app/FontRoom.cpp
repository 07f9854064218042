#include "app/FontRoom.h"

#include "platform/qt/QtText.h"

namespace velmora {

ControlFont CalendarFont::font() const {
    const QFont font = fonts_.fontOf(target_);
    return {.name = fromQt(font.family(), codePage_),
            .size = font.pointSizeF(),
            .colour = fonts_.colourOf(target_)};
}

void CalendarFont::setFont(const ControlFont& font) {
    fonts_.setFont(target_, {.face = font.name, .size = font.size, .colour = font.colour});
}

FontRoom::FontRoom(World& world, Calendar& calendar)
    : calendar_(calendar),
      question_(world.codePage),
      dayFont_(calendar.textFonts(), FontTarget::DayView, world.codePage),
      listFont_(calendar.textFonts(), FontTarget::EntryList, world.codePage),
      // The day view's colour is read at start but never stored.
      dayCommand_(keys::PlanFont, FontCommand::Keeps::NameAndSize, dayFont_, question_,
                  world.settings, world.loop),
      listCommand_(keys::ListFont, FontCommand::Keeps::NameSizeAndColour, listFont_, question_,
                   world.settings, world.loop) {}

void FontRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::chsfntcal, [this] { dayCommand_.change(); });
    commands.bind(Commands::chsfntvlm, [this] { listCommand_.change(); });
    commands.bind(Commands::FontP, [this] {
        if (calendar_.dayViewShown())
            dayCommand_.change();
        else
            listCommand_.change();
    });
}

}  // namespace velmora
