#include "core/ClockLine.h"

namespace velmora {

void ClockLine::restore() {
    face_.setTwentyFourHourTick(settings_.read(keys::TwentyFourHours));
}

void ClockLine::tick() {
    const NamedFormat format =
        face_.twentyFourHourTick() ? NamedFormat::ShortTime : NamedFormat::MediumTime;
    const std::string text = formatMoment(clock_.now(), format, locale_);
    if (text != face_.clockText())
        face_.setClockText(text);
}

void ClockLine::toggleTwentyFourHours() {
    const bool ticked = !face_.twentyFourHourTick();
    face_.setTwentyFourHourTick(ticked);
    tick();
    settings_.save(keys::TwentyFourHours, ticked);
}

}  // namespace velmora
