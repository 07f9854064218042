#include "planner/ToDoList.h"

#include "planner/ListShapes.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr float kHeadSize = 14;  // points
constexpr float kLineSize = 11;

NumberedList::Matches saying(const std::string& line) {
    return [&line](const NumberedEntry& entry) {
        return trimBlanks(entry.message) == trimBlanks(line);
    };
}

// At midnight there is just the date.
std::string presentText(Moment now, const LocaleFormats& locale) {
    const bool midnight = timeOfDay(now) == std::chrono::seconds(0);
    return formatMoment(now, midnight ? "m/d/yyyy" : "m/d/yyyy h:nn:ss AM/PM", locale);
}

}  // namespace

ToDoList::ToDoList(SettingsStore& settings, Messages& messages, const Clock& clock,
                   const LocaleFormats& locale)
    : list_(settings, toDoLines()), messages_(messages), clock_(clock), locale_(locale) {}

void ToDoList::Open() {
    text_ = presentText(clock_.now(), locale_) + " - New Task";
    fill(true);
}

void ToDoList::AddTask() {
    const std::string_view task = trimBlanks(text_);
    if (task.empty()) {
        messages_.warn(kApplicationTitle, "No task specified.");
        return;
    }
    list_.append({}, task);
    fill(false);
}

void ToDoList::Pick(const std::string& line) {
    if (const auto entry = list_.find(saying(line)))
        text_ = entry->message;
}

void ToDoList::RemoveTask(const std::string& line) {
    if (trimBlanks(line).empty())
        return;
    text_.clear();
    list_.remove(saying(line));
    fill(false);
}

void ToDoList::PrintTasks(PrintJobs& printing, const std::string& fontName) const {
    const std::vector<std::string> lines = lines_;  // what is added meanwhile is not for this job
    const PrintTask task{.title = "To-Do List", .fontName = fontName, .fontSize = kHeadSize};
    printing.run(task, [&](PrintRun& run) {
        PrintSurface& printer = run.printer;
        printer.Print("Task Manager - To Do       " +
                      formatMoment(clock_.now(), NamedFormat::LongDate, locale_));
        printer.Print("");
        printer.Print("");
        printer.SetFontSize(kLineSize);
        for (const std::string& line : lines) {
            printer.Print(line);
            if (!run.goOn())
                return;
        }
    });
}

void ToDoList::fill(bool blankOnesToo) {
    lines_.clear();
    for (const NumberedEntry& entry : list_.entries()) {
        const std::string_view line = trimBlanks(entry.message);
        if (blankOnesToo || !line.empty())
            lines_.emplace_back(line);
    }
}

}  // namespace velmora
