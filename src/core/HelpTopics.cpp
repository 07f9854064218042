#include "core/HelpTopics.h"

#include <array>

namespace velmora {
namespace {

struct WindowTopic {
    std::string_view window;
    std::string_view topic;
};

constexpr auto kWindows = std::to_array<WindowTopic>({
    {"AddForm", "add-entry"},     {"Form4", "search"},       {"Other", "associates"},
    {"CallID", "callers"},        {"Faxer", "fax"},          {"Schedule", "scheduling"},
    {"Alarm", "alarms"},          {"AlarmAlert", "alarms"},  {"Form3", "tasks"},
    {"Form10", "tasks"},          {"Monthly", "tasks"},      {"TextSearch", "docpad-search"},
    {"Form9", "letters"},         {"FontDialog", "fonts"},   {"PrinterDialog", "printing"},
    {"Calculator", "calculator"}, {"WeekataGlance", "week"}, {"Form7", "datewarden"},
    {"Form8", "events"},          {"Envelope", "envelope"},  {"HelpWindow", "help"},
    {"Form11", "backup"},         {"Form6", "reports"},      {"DataImport", "import"},
    {"Form2", "import"},          {"Setup", "preferences"},  {"Form5", "run"},
});

constexpr std::array<std::string_view, kPaneCount> kPanes{"planner", "phonebook", "dialer"};

}  // namespace

std::string_view helpTopicOf(std::string_view windowName) {
    for (const WindowTopic& row : kWindows)
        if (row.window == windowName)
            return row.topic;
    return kFirstHelpTopic;
}

std::string_view helpTopicOf(Pane pane) {
    return kPanes[static_cast<std::size_t>(pane)];
}

}  // namespace velmora
