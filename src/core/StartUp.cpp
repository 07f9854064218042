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
    form_.setLastNumber(settings_.read(keys::LastNumber));
    form_.setDateLine(formatMoment(clock_.now(), "dddd, mmmm dd, yyyy", locale_));
    openEvents();
    ignoringErrors(parts_.setDayLimits);
    ignoringErrors(parts_.reopenDocument);
    form_.raisePaneButton(Pane::Planner);
    clockLine_.tick();
    form_.place().setShape(storedWindowShape(settings_));
    form_.place().showCentred(kRaiseOfWindow);
    ignoringErrors(parts_.colourCalendars);
    ignoringErrors(parts_.showToday);
}

void StartUp::restoreFonts() {
    TextFonts& fonts = form_.textFonts();
    fonts.setFont(FontTarget::DocPad, storedFont(settings_, keys::DocFont));
    fonts.setFont(FontTarget::DayView, storedFont(settings_, keys::PlanFont));
    fonts.setFont(FontTarget::EntryList, storedFont(settings_, keys::ListFont));
}

void StartUp::openEvents() {
    if (settings_.read(keys::EventStart))
        ignoringErrors(parts_.showEvents);
    ignoringErrors(parts_.keepEventsInFront);
}

FontChoice storedFont(const SettingsStore& settings, const FontKey& key) {
    FontChoice font;
    if (const std::string face = settings.read(key.face); !face.empty())
        font.face = face;
    if (const std::string size = settings.read(key.size); !size.empty())
        font.size = readNumber(size);
    if (const std::string colour = settings.read(key.colour); !colour.empty())
        ignoringErrors([&] { font.colour = roundToWhole(readNumber(colour)); });
    return font;
}

}  // namespace velmora
