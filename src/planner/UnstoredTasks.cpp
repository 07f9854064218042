#include "planner/UnstoredTasks.h"

#include <array>
#include <utility>

#include "planner/StoredText.h"

namespace velmora {
namespace {

// Behind each field; nobody can type it.
constexpr char kEndOfField = '\0';
constexpr std::size_t kFields = 4;  // day, begin, end, text

}  // namespace

std::vector<DayTask> UnstoredTasks::take(Day day) {
    auto node = tasks_.extract(day);
    return node.empty() ? std::vector<DayTask>() : std::move(node.mapped());
}

void UnstoredTasks::removeFirst() {
    const auto first = tasks_.begin();
    first->second.erase(first->second.begin());
    if (first->second.empty())
        tasks_.erase(first);
}

std::string UnstoredTasks::text() const {
    std::string text;
    for (const auto& [day, tasks] : tasks_)
        for (const DayTask& task : tasks)
            for (const std::string& field :
                 {storedDay(day), task.BeginTime, task.EndTime, task.text})
                text += field + kEndOfField;
    return text;
}

UnstoredTasks UnstoredTasks::read(std::string_view text) {
    UnstoredTasks result;
    std::array<std::string, kFields> fields;
    for (std::size_t field = 0; !text.empty(); field = (field + 1) % kFields) {
        const std::size_t end = text.find(kEndOfField);
        if (end == std::string_view::npos)
            break;
        fields[field] = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (field + 1 < kFields)
            continue;
        if (const auto day = readStoredDay(fields[0]))
            result.add(*day, {fields[1], fields[2], fields[3], {}});
    }
    return result;
}

}  // namespace velmora
