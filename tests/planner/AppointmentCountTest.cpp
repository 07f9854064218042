#include "planner/AppointmentCount.h"

#include <gtest/gtest.h>

#include "support/PlannerFixture.h"

namespace velmora {
namespace {

class AppointmentCountTest : public testing::Test, protected test::PlannerFixture {
  protected:
    AppointmentStore own{CodePage::western(), clock, test::appointmentSource(),
                         std::chrono::milliseconds(0)};
    AppointmentCount count{store, own};
};

using std::chrono::year;

TEST_F(AppointmentCountTest, CountsTheRowsOfADay) {
    add(test::rowOn("2026-03-12", 1, "first"));
    add(test::rowOn("2026-03-12", 1, "second"));
    add(test::rowOn("2026-03-13", 2, "other"));
    EXPECT_EQ(count.of(year(2026) / 3 / 12), 2);
    EXPECT_EQ(count.of(year(2026) / 3 / 13), 1);
    EXPECT_EQ(count.of(year(2026) / 3 / 14), 0);
    EXPECT_EQ(count.of(year(1926) / 3 / 12), 0);
}

TEST_F(AppointmentCountTest, TellsAnEmptyPlannerFromOneThatOthersHaveFilled) {
    EXPECT_TRUE(count.isEmpty());
    add(test::rowOn("2026-03-12", 1, "first"));
    EXPECT_FALSE(count.isEmpty());
}

TEST_F(AppointmentCountTest, LeavesTheCursorOfTheOtherStoreAlone) {
    add(test::rowOn("2026-03-12", 1, "first"));
    store.SelectByDate("03/12/2026");
    store.Refresh();
    EXPECT_EQ(count.of(year(2026) / 3 / 13), 0);
    EXPECT_EQ(store.Get(Column::Desc), "first");
}

TEST_F(AppointmentCountTest, FollowsTheOtherStoreToItsDatabaseAndFindsNoneInAMissingOne) {
    add(test::rowOn("2026-03-12", 1, "first"));
    store.OpenDatabase(path);
    EXPECT_EQ(count.of(year(2026) / 3 / 12), 1);
    store.OpenDatabase("nowhere.mdb");
    EXPECT_EQ(count.of(year(2026) / 3 / 12), 0);
}

}  // namespace
}  // namespace velmora
