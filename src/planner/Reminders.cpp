#include "planner/Reminders.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

#include "core/PrintFace.h"
#include "planner/ListShapes.h"
#include "platform/Text.h"

namespace velmora {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::year_month_day;

constexpr const char* kToday = "TODAY";
constexpr float kGapBelowHeading = 0.3F;  // inches
constexpr float kFontSize = 13;           // points

using LineList = std::vector<std::string>;

// Looks far ahead without reading the list of a day twice.
template <typename Key>
class ReadOnce {
  public:
    explicit ReadOnce(std::function<LineList(Key)> read) : read_(std::move(read)) {}

    const LineList& operator()(const Key& key) {
        const auto known = known_.find(key);
        return known != known_.end() ? known->second
                                     : known_.emplace(key, read_(key)).first->second;
    }

  private:
    std::function<LineList(Key)> read_;
    std::map<Key, LineList> known_;
};

OccasionDay occasionDay(year_month_day date) {
    return {unsigned(date.month()), unsigned(date.day())};
}

void append(LineList& lines, const std::string& front, const LineList& texts) {
    for (const std::string& text : texts)
        lines.push_back(front + text);
}

// "In  1 Day - ", "In  10 Days - ".
std::string inDays(int count) {
    return "In " + numberWithLeadingBlank(count) + (count == 1 ? " Day - " : " Days - ");
}

LineList orNone(LineList lines) {
    if (lines.empty())
        lines.emplace_back("No Events Today.");
    return lines;
}

}  // namespace

Reminders::Reminders(SettingsStore& settings, const Clock& clock, const LocaleFormats& formats,
                     std::function<void()> ring)
    : settings_(settings), clock_(clock), formats_(formats), ring_(std::move(ring)) {}

std::vector<std::string> Reminders::events() const {
    const local_days today{dateOf(clock_.now())};
    const int ahead = settings_.read(keys::EventDays);
    const auto dateIn = [&](int count) { return year_month_day(today + days(count)); };
    ReadOnce<OccasionDay> occasions([&](OccasionDay day) { return Occasions(settings_).On(day); });
    ReadOnce<unsigned> monthlyTasks(
        [&](unsigned day) { return messagesOf(NumberedList(settings_, monthlyTasksOf(day))); });
    LineList lines;
    append(lines, std::string(kToday) + " - ", occasions(occasionDay(dateIn(0))));
    for (int i = 1; i <= ahead; ++i)
        append(lines, inDays(i), occasions(occasionDay(dateIn(i))));
    append(lines, std::string(kToday) + ": Monthly Event - ",
           monthlyTasks(unsigned(dateIn(0).day())));
    for (int i = 1; i <= ahead; ++i)
        append(lines, inDays(i) + " Monthly Event - ", monthlyTasks(unsigned(dateIn(i).day())));
    return lines;
}

std::vector<std::string> Reminders::Lines() const {
    return orNone(events());
}

std::vector<std::string> Reminders::Open() const {
    auto lines = events();
    if (!lines.empty())
        ring_();
    return orNone(std::move(lines));
}

void Reminders::Print(PrintJobs& printing, const std::vector<std::string>& lines) const {
    const PrintTask task{
        .title = "Events and Occasions", .fontName = listFace(settings_), .fontSize = kFontSize};
    printing.run(task, [&](PrintRun& run) {
        PrintSurface& printer = run.printer;
        printer.SetFontBold(true);
        printer.Print("Events and Occasions for " +
                      formatMoment(clock_.now(), "mmmm dd, yyyy", formats_));
        printer.SetScaleMode(kInches);
        printer.SetCurrentY(printer.CurrentY() + kGapBelowHeading);
        for (const std::string& line : lines) {
            printer.Print(line);
            if (!run.goOn())
                return;
        }
    });
}

bool isEventOfToday(std::string_view line) {
    return line.substr(0, std::string_view(kToday).size()) == kToday;
}

}  // namespace velmora
