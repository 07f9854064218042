#include "core/ClockLine.h"

namespace velmora {

void ClockLine::restore() {
    form_.setTwentyFourHourTick(settings_.readSwitch("24hr") == "YES");
}

void ClockLine::tick() {
    const NamedFormat format =
        form_.twentyFourHourTick() ? NamedFormat::ShortTime : NamedFormat::MediumTime;
    const std::string text = formatMoment(clock_.now(), format, locale_);
    if (text != form_.clockText())
        form_.setClockText(text);
}

void ClockLine::toggleTwentyFourHours() {
    const bool ticked = !form_.twentyFourHourTick();
    form_.setTwentyFourHourTick(ticked);
    tick();
    settings_.Save("24hr", ticked ? "YES" : "NO");
}

}  // namespace velmora
