// Any settings as a numbered list, and any changes to it, compared with what a plain list makes of
// the same.

#include <algorithm>
#include <string>
#include <vector>

#include "fuzz/Fuzzing.h"
#include "planner/ListShapes.h"
#include "planner/NumberedList.h"
#include "platform/Text.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using fuzz::require;

constexpr std::string_view kPrefix = "Tasks\\";

void checkEntries(const NumberedList& list, const NumberedListShape& shape) {
    const std::vector<NumberedEntry> entries = list.entries();
    require(list.count() >= 0, "a count is none below 0");
    require(std::ssize(entries) <= std::max(list.count(), std::int64_t{0}), "no more than counted");
    std::int64_t before = 0;
    for (const NumberedEntry& entry : entries) {
        require(entry.number > before && entry.number <= list.count(), "numbers go up");
        require(entry.number == before + 1 || before >= shape.mostEntries ||
                    entry.number > shape.mostEntries,
                "none is left out");
        before = entry.number;
    }
}

std::vector<std::string> messagesOf(const NumberedList& list) {
    std::vector<std::string> messages;
    for (const NumberedEntry& entry : list.entries())
        if (const auto message = trimBlanks(entry.message); !message.empty())
            messages.emplace_back(message);
    return messages;
}

void append(NumberedList& list, const std::string& text) {
    const std::int64_t count = list.count();
    list.append("", text);
    require(list.count() >= count, "a list that grows does not shrink");
    require(list.count() > count || count > 1'000'000'000, "a list grows by one");
    const auto found = list.find([&](const NumberedEntry& entry) {
        return entry.number == list.count() && entry.message == text;
    });
    require(found.has_value(), "what was appended is there");
}

void remove(NumberedList& list, std::size_t which) {
    std::vector<std::string> expected = messagesOf(list);
    const std::int64_t count = list.count();
    if (expected.empty())
        return;
    const std::string gone = expected[which % expected.size()];
    expected.erase(std::find(expected.begin(), expected.end(), gone));
    require(
        list.remove([&](const NumberedEntry& entry) { return trimBlanks(entry.message) == gone; }),
        "what is there can be removed");
    require(list.count() == count - 1, "one less");
    require(messagesOf(list) == expected, "the others stay, in their order");
}

// Keys such as "12", "007", "NumTasks", "1M"; values are lines.
void lay(SettingsStore& settings, fuzz::Input& input) {
    for (unsigned keys = input.byte() % 16; keys > 0; --keys) {
        const unsigned kind = input.byte();
        const std::string value(input.line());
        if (kind < 128)
            settings.Save(std::string(kPrefix) + std::to_string(kind % 12), value);
        else if (kind < 160)
            settings.Save(std::string(kPrefix) + "NumTasks", value);
        else
            settings.Save(std::string(kPrefix) + std::string(left(value, 12)), value);
    }
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, std::min<std::size_t>(size, 2000));
    test::MemorySettings medium;
    SettingsStore settings(medium);
    lay(settings, input);
    const NumberedListShape shape = toDoLines();
    NumberedList list(settings, shape);
    checkEntries(list, shape);
    for (int step = 0; step < 12 && !input.empty(); ++step) {
        const unsigned what = input.byte();
        const auto work = [&] {
            if (what % 2 == 0)
                append(list, std::string(input.line()));
            else
                remove(list, what / 2);
        };
        (void)fuzz::succeeds(work);
        checkEntries(list, shape);
    }
    return 0;
}
