#include <gmock/gmock.h>

#include <string>

#include "planner/AlarmEditor.h"
#include "planner/AlarmTick.h"
#include "planner/ListShapes.h"
#include "planner/WeeklyTasks.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/ChildOfTest.h"
#include "support/FakeClock.h"
#include "support/FakeEventLoop.h"
#include "support/FakeSound.h"
#include "support/MemoryFiles.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::chrono;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr year_month_day kDay = March / 12 / 2026;

// The alert of one copy; something happens elsewhere while it comes up.
class AlertOfCopy final : public AlarmWindows {
  public:
    void showAlert(const std::string& message) override {
        shown.push_back(message);
        if (meanwhile)
            std::exchange(meanwhile, nullptr)();
    }
    void closeAlert() override {}
    void warnAboveAll(const std::string&, const std::string&) override {}

    std::vector<std::string> shown;
    std::function<void()> meanwhile;
};

// A copy of the program with its own handle on the settings of all copies.
struct Copy {
    explicit Copy(const std::string& path) : medium(NativePath(path)) {}

    void tickAt(int hour, int minute) {
        clock.set(kDay, hours(hour) + minutes(minute));
        AlertStack alerts(settings, clock, windows);
        AlarmTick(settings, clock, alarmSound, alerts, windows, loop).run();
    }
    [[nodiscard]] std::vector<std::string> left() {
        std::vector<std::string> messages;
        for (const NumberedEntry& entry : NumberedList(settings, alarmsOf(kDay)).entries())
            messages.push_back(entry.message);
        return messages;
    }

    SqliteSettings medium;
    SettingsStore settings{medium};
    test::FakeClock clock;
    test::MemoryFiles files;
    test::FakeSound sound;
    test::FakeEventLoop loop;
    AlarmSound alarmSound{settings, files, sound};
    AlertOfCopy windows;
};

class TwoCopiesTest : public testing::Test {
  protected:
    // Runs `work` in another process, to its end.
    void inAnotherProcess(const std::function<void(Copy&)>& work) const {
        test::ChildOfTest child([&](const auto&) {
            Copy other(path);
            work(other);
        });
        EXPECT_TRUE(child.wait());
    }
    void alarm(const std::string& time, const std::string& message) {
        NumberedList(copy.settings, alarmsOf(kDay)).append(time, message);
    }

    test::TemporaryFolder folder;
    std::string path = folder.file("settings.db");
    Copy copy{path};
};

TEST_F(TwoCopiesTest, RingTheSameAlarmAndDeleteNoOther) {
    alarm("10:00", "both ring this");
    alarm("17:00", "nobody has rung this");
    alarm("18:00", "nor this");
    // Between the ringing here and the removal here, another copy does both.
    copy.windows.meanwhile = [this] { inAnotherProcess([](Copy& other) { other.tickAt(10, 0); }); };
    copy.tickAt(10, 0);
    EXPECT_THAT(copy.windows.shown, ElementsAre("both ring this"));
    EXPECT_THAT(copy.left(), ElementsAre("nobody has rung this", "nor this"));
}

TEST_F(TwoCopiesTest, KeepAnAlarmThatWasChangedWhileItRang) {
    alarm("10:00", "old");
    copy.windows.meanwhile = [this] {
        inAnotherProcess([](Copy& other) {
            AlarmEditor editor(other.settings, other.clock, [] { return kDay; });
            editor.Open();
            editor.Pick("10:00");
            editor.setMessage("new");
            editor.AddOrChange();
        });
    };
    copy.tickAt(10, 0);
    EXPECT_THAT(copy.left(), ElementsAre("new"));
}

TEST_F(TwoCopiesTest, RingEachAlarmOnceInAllWhateverTheirPace) {
    for (int n = 0; n < 40; ++n)
        alarm(n % 2 == 0 ? "10:00" : "17:00", std::to_string(n));
    {
        const auto ring = [](Copy& each) {
            for (int look = 0; look < 30; ++look)
                each.tickAt(10, 0);
        };
        test::ChildOfTest other([&](const auto&) {
            Copy its(path);
            ring(its);
        });
        ring(copy);
        EXPECT_TRUE(other.wait());
    }
    std::vector<std::string> expected;
    for (int n = 1; n < 40; n += 2)
        expected.push_back(std::to_string(n));
    EXPECT_EQ(copy.left(), expected);
}

TEST_F(TwoCopiesTest, RemoveNoAlarmThatTheOtherHasGivenAnotherMessage) {
    alarm("10:00", "as it was read");
    AlarmEditor editor(copy.settings, copy.clock, [] { return kDay; });
    editor.Open();
    inAnotherProcess([](Copy& other) {
        NumberedList(other.settings, alarmsOf(kDay))
            .replaceOrAppend([](const NumberedEntry&) { return true; }, "10:00", "changed since");
    });
    editor.Remove("10:00");
    EXPECT_THAT(copy.left(), ElementsAre("changed since"));
    EXPECT_EQ(editor.message(), "changed since");
    editor.Remove("10:00");
    EXPECT_THAT(copy.left(), IsEmpty());
}

TEST_F(TwoCopiesTest, RemoveNoWeeklyTaskThatTheOtherHasGivenAnotherText) {
    NumberedList(copy.settings, weeklyTasksOf("Monday")).append("10:00", "as it was read");
    WeeklyTasks tasks(copy.settings, copy.clock);
    tasks.Open();
    inAnotherProcess([](Copy& other) {
        NumberedList(other.settings, weeklyTasksOf("Monday"))
            .replaceOrAppend([](const NumberedEntry&) { return true; }, "10:00", "changed since");
    });
    tasks.Remove("Monday - 10:00 - as it was read");
    EXPECT_THAT(tasks.lines(), ElementsAre("Monday - 10:00 - changed since"));
    tasks.Remove("Monday - 10:00 - changed since");
    EXPECT_THAT(tasks.lines(), IsEmpty());
}

}  // namespace
}  // namespace velmora
