#include <gtest/gtest.h>

#include <string>

#include "planner/AppointmentStore.h"
#include "support/ChildOfTest.h"
#include "support/PlannerFixture.h"
#include "support/SamePaths.h"
#include "support/Soak.h"

namespace velmora {
namespace {

// Works on the file of the test in a process of its own.
void addRows(const std::string& path, const std::string& name, int count,
             const std::function<void(char)>& stored) {
    const test::FakeClock clock;
    AppointmentStore store(CodePage::western(), clock, test::appointmentSource(),
                           std::chrono::seconds(60));
    store.OpenDatabase(path);
    for (int i = 0; i < count; ++i) {
        store.AddNew();
        store.Put(Column::TagVariant, "2026-03-12 10:42:00");
        store.Put(Column::Date, "03/12/2026");
        store.Put(Column::Desc, name + std::to_string(i) + std::string(3000, 'x'));
        store.Update();
        stored('+');
    }
}

bool isSound(const std::string& path) {
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    auto check = database.prepare("PRAGMA integrity_check");
    return check.step() && check.text(0) == "ok";
}

TEST(AppointmentCrash, LeavesEveryRowThatWasStored) {
    const test::TemporaryFolder folder;
    const std::string path = folder.file("qel.mdb");
    layDownDatabase(NativePath(path));
    std::size_t stored = 0;
    for (int round = 0; round < test::soaked(8); ++round) {
        test::ChildOfTest child(
            [&](const auto& report) { addRows(path, std::to_string(round) + ".", 1000, report); });
        for (int i = 0; i <= round % 8 * 3; ++i, ++stored)
            ASSERT_EQ(child.nextReport(), '+');
        child.kill();
        while (child.nextReport())
            ++stored;
        ASSERT_TRUE(isSound(path));
        // The row under way may have made it, or not.
        const std::size_t there = test::rawRows(path).size();
        ASSERT_GE(there, stored);
        ASSERT_LE(there, stored + 1);
        stored = there;
    }
}

TEST(AppointmentCrash, LosesNoRowOfTwoWriters) {
    const test::TemporaryFolder folder;
    const std::string path = folder.file("qel.mdb");
    const int count = test::soaked(100);
    layDownDatabase(NativePath(path));
    {
        test::ChildOfTest first([&](const auto&) { addRows(path, "a", count, [](char) {}); });
        test::ChildOfTest second([&](const auto&) { addRows(path, "b", count, [](char) {}); });
        EXPECT_TRUE(first.wait());
        EXPECT_TRUE(second.wait());
    }
    int next[2] = {0, 0};
    for (const auto& row : test::rawRows(path)) {
        int& expected = next[row[4][0] - 'a'];
        EXPECT_EQ(row[4].substr(1, row[4].find('x') - 1), std::to_string(expected));
        ++expected;
    }
    EXPECT_EQ(next[0], count);
    EXPECT_EQ(next[1], count);
}

}  // namespace
}  // namespace velmora
