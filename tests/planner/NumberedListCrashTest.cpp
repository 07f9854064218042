#include <gtest/gtest.h>

#include <string>

#include "planner/ListShapes.h"
#include "planner/NumberedList.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/ChildOfTest.h"
#include "support/Soak.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr year_month_day kDay = March / 9 / 2026;
constexpr int kAlarms = 200;

// Real settings that report each write with ".".
class ReportingSettings final : public SettingsMedium {
  public:
    ReportingSettings(const std::string& path, const test::ChildOfTest::Report& report)
        : real_(NativePath(path)), report_(report) {}

    [[nodiscard]] std::string read(std::string_view key) const override { return real_.read(key); }
    [[nodiscard]] std::string readOrFail(std::string_view key) const override {
        return real_.readOrFail(key);
    }
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const override {
        return real_.readAll(prefix);
    }
    void save(std::string_view key, std::string_view value) override {
        real_.save(key, value);
        report_('.');
    }
    void remove(std::string_view key) override {
        real_.remove(key);
        report_('.');
    }
    void batch(const std::function<void()>& changes) override { real_.batch(changes); }

  private:
    SqliteSettings real_;
    const test::ChildOfTest::Report& report_;
};

NumberedList alarmsIn(SettingsStore& settings) {
    return {settings, alarmsOf(kDay)};
}

// One text of the whole list, count included.
std::string contentsOf(const std::string& path) {
    SqliteSettings medium{NativePath(path)};
    if (medium.putAside())
        return "damaged";
    SettingsStore settings(medium);
    std::string text = settings.Read("Alarms\\03092026") + ":";
    for (const NumberedEntry& entry : alarmsIn(settings).entries())
        text += std::to_string(entry.number) + "=" + entry.time + entry.message + ";";
    return text;
}

void makeAlarms(const std::string& path) {
    SqliteSettings medium{NativePath(path)};
    SettingsStore settings(medium);
    NumberedList list = alarmsIn(settings);
    settings.batch([&] {
        for (int n = 1; n <= kAlarms; ++n)
            list.append("10:00", "alarm " + std::to_string(n));
    });
}

// What the list is when the first `removed` alarms have been taken away.
std::string withoutTheFirst(int removed) {
    std::string text = std::to_string(kAlarms - removed) + ":";
    for (int n = 1; n <= kAlarms - removed; ++n)
        text += std::to_string(n) + "=10:00alarm " + std::to_string(removed + n) + ";";
    return text;
}

// Takes the first alarm away again and again, with "+" for each that is stored.
void removeAll(const std::string& path, const test::ChildOfTest::Report& report) {
    ReportingSettings medium(path, report);
    SettingsStore settings(medium);
    NumberedList list = alarmsIn(settings);
    while (list.remove([](const NumberedEntry&) { return true; }))
        report('+');
}

// Kills at fifteen points of a rewrite.
void killRewrites() {
    const test::TemporaryFolder folder;
    const std::string path = folder.file("settings.db");
    makeAlarms(path);
    int removed = 0;
    for (int round = 0; round < 15; ++round) {
        test::ChildOfTest child([&](const auto& report) { removeAll(path, report); });
        // Somewhere in a rewrite: behind its first write, its last one, or between.
        for (int left = round * 29; left > 0; --left)
            if (child.nextReport() == '+')
                ++removed;
        child.kill();
        while (const auto late = child.nextReport())
            removed += *late == '+' ? 1 : 0;
        // The rewrite under way may have made it, or not.
        const std::string found = contentsOf(path);
        if (found != withoutTheFirst(removed))
            ++removed;
        ASSERT_EQ(found, withoutTheFirst(removed));
    }
}

TEST(NumberedListCrash, LeavesTheListOfBeforeOrAfterARewriteThatIsKilled) {
    for (int run = 0; run < test::soaked(1) && !testing::Test::HasFailure(); ++run)
        killRewrites();
}

TEST(NumberedListCrash, TwoProgramsLoseNoAlarmOfEachOther) {
    const test::TemporaryFolder folder;
    const std::string path = folder.file("settings.db");
    { const SqliteSettings made{NativePath(path)}; }
    const auto append = [&](const std::string& name) {
        return [&path, name](const auto&) {
            // Both write without a pause, which no user does.
            SqliteSettings medium{NativePath(path), std::chrono::minutes(1)};
            SettingsStore settings(medium);
            for (int i = 0; i < 100; ++i)
                alarmsIn(settings).append("10:00", name);
        };
    };
    {
        test::ChildOfTest first(append("a"));
        test::ChildOfTest second(append("b"));
        EXPECT_TRUE(first.wait());
        EXPECT_TRUE(second.wait());
    }
    SqliteSettings medium{NativePath(path)};
    SettingsStore settings(medium);
    int found[2] = {0, 0};
    for (const NumberedEntry& entry : alarmsIn(settings).entries())
        ++found[entry.message == "a" ? 0 : 1];
    EXPECT_EQ(found[0], 100);
    EXPECT_EQ(found[1], 100);
}

}  // namespace
}  // namespace velmora
