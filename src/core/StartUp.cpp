#include "core/StartUp.h"

#include <string>
#include <utility>

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr int kRaiseOfWindow = 170;

}  // namespace

StartUp::StartUp(SharedState& state, MainForm& form, const SettingsStore& settings,
                 ClockLine& clockLine, Tray& tray, const Clock& clock, const LocaleFormats& locale,
                 StartUpParts parts)
    : state_(state),
      form_(form),
      settings_(settings),
      clockLine_(clockLine),
      tray_(tray),
      clock_(clock),
      locale_(locale),
      parts_(std::move(parts)) {}

void StartUp::run() {
    state_.PendingBook = -1;
    ignoringErrors(parts_.watchMenus);
    ignoringErrors([&] { tray_.InitTray(); });
    state_.BookKind = kYellowPages;
    state_.BookFile = kYellowPagesFile;
    ignoringErrors(parts_.showLetterA);
    ignoringErrors(parts_.openPlannerDatabase);
    clockLine_.restore();
    restoreFonts();
    form_.setLastNumber(settings_.Read("LastNumber"));
    form_.setDateLine(formatMoment(clock_.now(), "dddd, mmmm dd, yyyy", locale_));
    openEvents();
    ignoringErrors(parts_.setDayLimits);
    ignoringErrors(parts_.reopenDocument);
    form_.raisePaneButton(Pane::Planner);
    clockLine_.tick();
    form_.setShape(storedWindowShape(settings_));
    form_.showCentred(kRaiseOfWindow);
    ignoringErrors(parts_.colourCalendars);
    ignoringErrors(parts_.showToday);
}

void StartUp::restoreFonts() {
    form_.setFont(FontTarget::DocPad, storedFont(settings_, "DocFont"));
    form_.setFont(FontTarget::DayView, storedFont(settings_, "PlanFont"));
    form_.setFont(FontTarget::EntryList, storedFont(settings_, "ListFont"));
}

void StartUp::openEvents() {
    if (settings_.Read("EventStart").empty() || settings_.readSwitch("EventStart") == "1")
        ignoringErrors(parts_.showEvents);
    ignoringErrors(parts_.keepEventsInFront);
}

FontChoice storedFont(const SettingsStore& settings, std::string_view key) {
    FontChoice font;
    const std::string name(key);
    if (const std::string face = settings.Read(name); !face.empty())
        font.face = face;
    if (const std::string size = settings.Read(name + "S"); !size.empty())
        font.size = readNumber(size);
    if (const std::string colour = settings.Read(name + "C"); !colour.empty())
        ignoringErrors([&] { font.colour = roundToWhole(readNumber(colour)); });
    return font;
}

}  // namespace velmora
