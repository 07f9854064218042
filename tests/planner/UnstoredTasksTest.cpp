#include "planner/UnstoredTasks.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using std::chrono::March;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::chrono::year_month_day kDay = March / 12 / 2026;

TEST(UnstoredTasks, ComeBackFromTheirText) {
    UnstoredTasks tasks;
    tasks.add(kDay, {"09:00 AM", "", "a\r\nb\\ \xe9", ""});
    tasks.add(March / 1 / 100, {"", "1:00 PM", "", ""});
    tasks.add(kDay, {"1", "2", "3", ""});
    EXPECT_EQ(UnstoredTasks::read(tasks.text()).all(), tasks.all());
}

TEST(UnstoredTasks, AreTakenOnce) {
    UnstoredTasks tasks;
    tasks.add(kDay, {"1", "2", "3", ""});
    EXPECT_THAT(tasks.take(kDay), ElementsAre(DayTask{"1", "2", "3", ""}));
    EXPECT_TRUE(tasks.empty());
    EXPECT_THAT(tasks.take(kDay), IsEmpty());
}

TEST(UnstoredTasks, ReadWhatCanBeMadeOfATornText) {
    UnstoredTasks tasks;
    tasks.add(kDay, {"1", "2", "3", ""});
    tasks.add(kDay, {"4", "5", "6", ""});
    const std::string whole = tasks.text();
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_LE(UnstoredTasks::read(whole.substr(0, size)).all().size(), 1U);
    EXPECT_TRUE(UnstoredTasks::read("no text of ours").empty());
    EXPECT_TRUE(UnstoredTasks::read(std::string(100, '\0')).empty());
}

}  // namespace
}  // namespace velmora
