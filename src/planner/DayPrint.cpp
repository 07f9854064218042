#include "planner/DayPrint.h"

#include <algorithm>
#include <vector>

#include "phonebook/Sorts.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr int kMostRows = 32001;
constexpr const char* kLineEnd = "\r\n";
constexpr float kHeadLarger = 5;  // points

std::vector<std::string> sortedRows(const DayTasks& tasks, const CodePage& codePage) {
    std::vector<std::string> rows;
    for (int i = 0; i < std::min(tasks.Count(), kMostRows); ++i) {
        const DayTask& task = tasks.Item(i);
        rows.push_back(task.BeginTime + " - " + task.EndTime + kLineEnd + task.text + kLineEnd);
    }
    if (!rows.empty())
        SortNameList(rows, 0, static_cast<int>(rows.size()) - 1, kSortAscending + kSortIgnoringCase,
                     codePage);
    return rows;
}

void printRow(PrintSurface& printer, const std::string& row) {
    const std::size_t times = row.find('\r');
    std::string_view text = std::string_view(row).substr(times + 2);
    text.remove_suffix(2);  // the row's own line end
    printer.SetFontBold(true);
    printer.Print(row.substr(0, times));
    printer.SetFontBold(false);
    printer.Print(std::string(trimBlanks(text)));
    printer.Print("");
}

}  // namespace

void PrintEventsOfDay(PrintJobs& printing, const DayOnShow& day, const CodePage& codePage) {
    const std::vector<std::string> rows = sortedRows(day.tasks, codePage);
    const PrintTask task{
        .title = "Events of the Day", .fontName = day.fontName, .fontSize = day.fontSize};
    printing.run(task, [&](PrintRun& run) {
        PrintSurface& printer = run.printer;
        printer.SetForeColor(day.colour);
        printer.SetFontBold(true);
        printer.Print(std::string("Velmora: Events of the Day") + kLineEnd);
        printer.SetFontSize(day.fontSize + kHeadLarger);
        printer.Print(day.longDate + kLineEnd);
        printer.SetFontSize(day.fontSize);
        printer.SetFontBold(false);
        for (const std::string& row : rows) {
            printRow(printer, row);
            if (!run.goOn())
                return;
        }
    });
}

}  // namespace velmora
