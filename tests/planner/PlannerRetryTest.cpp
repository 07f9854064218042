#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <memory>

#include "planner/Planner.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/PlannerFixture.h"
#include "support/SmallDisk.h"

namespace velmora {
namespace {

using test::RawRow;
using test::rowOn;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A planner whose file others lock, fill up or protect.
class PlannerRetryTest : public testing::Test, protected test::PlannerFixture {
  protected:
    void show(const std::string& date) { SSMonth1.SetDate(date); }

    // Another program keeps everybody out, readers too, until unlock().
    void lock(const char* begin = "BEGIN EXCLUSIVE") {
        other_ = std::make_unique<sqlite::Database>(NativePath(path), sqlite::Access::ReadWrite);
        other_->execute(begin);
    }
    void unlock() { other_.reset(); }

    void create(const std::string& text) {
        SSDay1.tasks.push_back({"09:00 AM", "10:00 AM", text, ""});
        const int index = static_cast<int>(SSDay1.tasks.size()) - 1;
        planner.OnTaskEditBegin(index, false);
        planner.OnTaskEditEnd(index, false, true);
    }
    void change(int index, const std::string& text) {
        planner.OnTaskEditBegin(index, !SSDay1.Task(index).TagVariant.empty());
        SSDay1.tasks[static_cast<std::size_t>(index)].text = text;
        SSDay1.tasks[static_cast<std::size_t>(index)].EndTime = "11:00 AM";
        planner.OnTaskEditEnd(index, false, true);
    }
    // As the day view does it.
    void remove(int index) {
        SSDay1.selected = index;
        planner.OnTaskRemove();
        SSDay1.tasks.erase(SSDay1.tasks.begin() + index);
        SSDay1.selected = -1;
    }
    void tryLongAgain() {
        for (int call = 0; call < 20; ++call)
            planner.TryAgain();
    }

  private:
    std::unique_ptr<sqlite::Database> other_;
};

TEST_F(PlannerRetryTest, SaysThatADayCanNotBeReadAndShowsItOnceItCan) {
    add(rowOn("2026-03-12", 1, "a"));
    lock();
    show("03/12/2026");
    EXPECT_THAT(SSDay1.tasks, IsEmpty());
    EXPECT_EQ(SSDay1.notice, "This day can not be read: another program is using the planner.");
    planner.TryAgain();
    EXPECT_THAT(SSDay1.tasks, IsEmpty());
    unlock();
    tryLongAgain();
    EXPECT_THAT(SSDay1.texts(), ElementsAre("a"));
    EXPECT_EQ(SSDay1.notice, "");
}

TEST_F(PlannerRetryTest, NeverShowsTheBlocksOfAnotherDay) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-13", 2, "b"));
    show("03/12/2026");
    lock();
    show("03/13/2026");
    EXPECT_THAT(SSDay1.tasks, IsEmpty());
    unlock();
    tryLongAgain();
    EXPECT_THAT(SSDay1.texts(), ElementsAre("b"));
}

TEST_F(PlannerRetryTest, LoadsTheDayOnShowAndNotTheOnePickedInTheYear) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-13", 2, "b"));
    lock();
    show("03/12/2026");
    SSYear1.SetDate("03/13/2026");
    unlock();
    tryLongAgain();
    EXPECT_THAT(SSDay1.texts(), ElementsAre("a"));
}

TEST_F(PlannerRetryTest, ColoursTheDaysOnceTheyCanBeRead) {
    add(rowOn("2026-03-12", 1, "a"));
    lock();
    planner.UpdateDays();
    EXPECT_THAT(SSMonth1.styles, IsEmpty());
    unlock();
    tryLongAgain();
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Event");
    EXPECT_EQ(SSYear1.styleOf("03/12/2026"), "Event");
}

TEST_F(PlannerRetryTest, SaysNothingOfADatabaseThatIsMissing) {
    std::filesystem::remove(path);
    show("03/12/2026");
    EXPECT_EQ(SSDay1.notice, "");
    EXPECT_EQ(status.text, "");
}

TEST_F(PlannerRetryTest, WaitsOnceForALockThatAnEditMeetsManyTimes) {
    const test::FakeClock clock;
    AppointmentStore slow(CodePage::western(), clock, test::appointmentSource(),
                          std::chrono::milliseconds(1000));
    slow.OpenDatabase(path);
    Planner slowPlanner(slow, {SSDay1, SSMonth1, SSYear1, desk}, status, settings, clock, formats);
    add(rowOn("2026-03-12", 1, "a"));
    slowPlanner.OnMonthSelection("03/12/2026");
    lock();
    const auto began = std::chrono::steady_clock::now();
    slowPlanner.OnTaskEditBegin(0, true);
    slowPlanner.OnTaskEditEnd(0, false, true);
    slowPlanner.OnMonthSelection("03/13/2026");
    const auto took = std::chrono::steady_clock::now() - began;
    EXPECT_GE(took, std::chrono::milliseconds(1000));
    EXPECT_LT(took, std::chrono::milliseconds(2000));
}

TEST_F(PlannerRetryTest, TellsThatANewBlockIsNotStoredAndStoresItLater) {
    show("03/12/2026");
    lock("BEGIN IMMEDIATE");
    create("dentist");
    EXPECT_EQ(status.text,
              "The appointment is not stored yet: another program is using the planner.");
    EXPECT_THAT(SSDay1.tasks, ElementsAre(DayTask{"09:00 AM", "10:00 AM", "dentist", ""}));
    planner.TryAgain();
    unlock();
    EXPECT_THAT(rows(), IsEmpty());
    tryLongAgain();
    EXPECT_THAT(rows(), ElementsAre(RawRow{"2026-03-12 10:42:00", "2026-03-12", "09:00 AM",
                                           "10:00 AM", "dentist", "Event"}));
    EXPECT_EQ(SSDay1.Task(0).TagVariant, "2026-03-12 10:42:00");
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Event");
    EXPECT_EQ(status.text, "All appointments are stored now.");
    tryLongAgain();
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(PlannerRetryTest, StoresANewBlockByItsNextEdit) {
    show("03/12/2026");
    lock();
    create("dentist");
    unlock();
    change(0, "dentist at noon");
    EXPECT_THAT(rows(), ElementsAre(RawRow{"2026-03-12 10:42:00", "2026-03-12", "09:00 AM",
                                           "11:00 AM", "dentist at noon", "Event"}));
    tryLongAgain();
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(PlannerRetryTest, StoresNothingWhileTheBlockIsBeingEdited) {
    show("03/12/2026");
    lock();
    create("dentist");
    unlock();
    planner.OnTaskEditBegin(0, false);
    tryLongAgain();
    EXPECT_THAT(rows(), IsEmpty());
    planner.OnTaskEditEnd(0, false, true);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(PlannerRetryTest, KeepsANewBlockOverAChangeOfTheDay) {
    add(rowOn("2026-03-13", 1, "tomorrow's"));
    show("03/12/2026");
    lock("BEGIN IMMEDIATE");
    create("dentist");
    show("03/13/2026");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("tomorrow's"));
    show("03/12/2026");
    EXPECT_THAT(SSDay1.tasks, ElementsAre(DayTask{"09:00 AM", "10:00 AM", "dentist", ""}));
    show("03/13/2026");
    unlock();
    tryLongAgain();
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_THAT(rows()[1], ElementsAre("2026-03-12 10:42:00", "2026-03-12", "09:00 AM", "10:00 AM",
                                       "dentist", "Event"));
    show("03/12/2026");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("dentist"));
}

TEST_F(PlannerRetryTest, ForgetsANewBlockThatTheUserRemoved) {
    show("03/12/2026");
    lock();
    create("dentist");
    SSDay1.tasks.clear();
    unlock();
    tryLongAgain();
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(PlannerRetryTest, TakesAChangedBlockBackToWhatIsStored) {
    add(rowOn("2026-03-12", 1, "a"));
    show("03/12/2026");
    lock();
    change(0, "changed");
    EXPECT_EQ(status.text, "The change could not be stored: another program is using the planner.");
    EXPECT_THAT(SSDay1.tasks,
                ElementsAre(DayTask{"09:00 AM", "10:00 AM", "a", "2026-01-01 08:00:01"}));
    unlock();
    EXPECT_EQ(rows()[0][4], "a");
    change(0, "changed");
    EXPECT_EQ(rows()[0][4], "changed");
}

TEST_F(PlannerRetryTest, BringsARemovedBlockBackWhoseRowIsStillThere) {
    add(rowOn("2026-03-12", 1, "a"));
    planner.UpdateDays();
    show("03/12/2026");
    lock();
    remove(0);
    EXPECT_EQ(status.text,
              "The appointment could not be removed: another program is using the planner.");
    EXPECT_THAT(SSDay1.tasks,
                ElementsAre(DayTask{"09:00 AM", "10:00 AM", "a", "2026-01-01 08:00:01"}));
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Event");
    unlock();
    remove(0);
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(PlannerRetryTest, RemovesABlockWhoseRowIsGoneWithoutAWord) {
    add(rowOn("2026-03-12", 1, "a"));
    show("03/12/2026");
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite).execute("DELETE FROM appoint");
    remove(0);
    EXPECT_THAT(SSDay1.tasks, IsEmpty());
    EXPECT_EQ(status.text, "");
}

TEST_F(PlannerRetryTest, TellsThatTheFileMayNotBeWritten) {
    add(rowOn("2026-03-12", 1, "a"));
    using std::filesystem::perms;
    std::filesystem::permissions(path, perms::owner_read | perms::group_read | perms::others_read);
    const test::OrdinaryUser user(folder.path());
    show("03/12/2026");
    create("b");
    EXPECT_EQ(status.text, "The appointment is not stored yet: the planner may not be written to.");
    change(0, "changed");
    EXPECT_EQ(status.text, "The change could not be stored: the planner may not be written to.");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("a", "b"));
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(PlannerRetryTest, SaysThatAFileMayNotBeRead) {
    std::filesystem::permissions(path, std::filesystem::perms::none);
    const test::OrdinaryUser user(folder.path());
    show("03/12/2026");
    EXPECT_EQ(SSDay1.notice, "This day can not be read: the planner database can not be used.");
}

// On a disk that is full; gives a number for what went wrong.
int storeOnFullDisk(const std::string& folder) {
    constexpr int kCanNotMount = 77;
    if (!test::mountSmallDisk(folder, "96k"))
        return kCanNotMount;
    test::PlannerFixture there(folder + "/qel.mdb");
    there.add(rowOn("2026-03-12", 1, "small"));
    there.SSMonth1.SetDate("03/12/2026");
    there.planner.OnTaskEditBegin(0, true);
    there.SSDay1.tasks[0].text = std::string(200'000, 'x');
    there.planner.OnTaskEditEnd(0, false, true);
    if (there.status.text != "The change could not be stored: the disk is full.")
        return 1;
    if (there.SSDay1.tasks[0].text != "small" || there.rows()[0][4] != "small")
        return 2;
    there.SSDay1.tasks.push_back({"", "", std::string(200'000, 'x'), ""});
    there.planner.OnTaskEditBegin(1, false);
    there.planner.OnTaskEditEnd(1, false, true);
    if (there.status.text != "The appointment is not stored yet: the disk is full.")
        return 3;
    return there.rows().size() == 1 && there.SSDay1.tasks.size() == 2 ? 0 : 4;
}

TEST_F(PlannerRetryTest, TellsThatTheDiskIsFull) {
    const test::TemporaryFolder small;
    test::ChildProcess child([&] { return storeOnFullDisk(small.path()); });
    const int code = child.wait();
    if (code == 77)
        GTEST_SKIP() << "this system lets no test mount a small disk";
    EXPECT_EQ(code, 0);
}

TEST_F(PlannerRetryTest, LeavesWhatItToldInViewForAWhile) {
    show("03/12/2026");
    lock();
    create("dentist");
    planner.OnDayPointerMoved();
    EXPECT_THAT(status.text, HasSubstr("not stored yet"));
    clock.advance(std::chrono::seconds(6));
    planner.OnDayPointerMoved();
    EXPECT_THAT(status.text, HasSubstr("divider bars"));
}

TEST_F(PlannerRetryTest, KeepsWhatIsNotStoredForTheNextStart) {
    show("03/12/2026");
    lock();
    create("dentist\r\nbring x-ray");
    show("03/13/2026");
    create("second");
    planner.KeepUnstored();
    unlock();
    {
        Planner next(store, {SSDay1, SSMonth1, SSYear1, desk}, status, settings, clock, formats);
        next.TakeOver();
        next.TryAgain();
        EXPECT_THAT(rows(), ElementsAre(RawRow{"2026-03-12 10:42:00", "2026-03-12", "09:00 AM",
                                               "10:00 AM", "dentist\r\nbring x-ray", "Event"},
                                        RawRow{"2026-03-12 10:42:00", "2026-03-13", "09:00 AM",
                                               "10:00 AM", "second", "Event"}));
    }
    EXPECT_TRUE(medium.values.empty());
}

TEST_F(PlannerRetryTest, KeepsNothingOnceItIsStored) {
    show("03/12/2026");
    lock();
    create("dentist");
    planner.KeepUnstored();
    unlock();
    planner.KeepUnstored();
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(settings.Read("UnstoredAppointments"), "");
}

}  // namespace
}  // namespace velmora
