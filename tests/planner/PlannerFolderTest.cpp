#include "planner/PlannerFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "planner/sqlite/PlannerDatabaseMove.h"
#include "planner/sqlite/PlannerFiles.h"
#include "platform/Failure.h"
#include "platform/files/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/FakeAccessReader.h"
#include "support/FakeMessages.h"
#include "support/PlannerFixture.h"
#include "support/SmallDisk.h"

namespace velmora {
namespace {

using test::rowOn;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kAdvice =
    "warn|Velmora|If you have changed your network settings, you should exit the program and then "
    "run it again for best results.";

class DatabaseCopy : public testing::Test {
  protected:
    DatabaseCopy() {
        std::filesystem::create_directory(folder.file("to"));
        layDownDatabase(NativePath(from));
        test::addRawRow(from, rowOn("2026-03-12", 1, "own"));
    }

    void layDownTarget(const std::string& text) const {
        layDownDatabase(NativePath(to));
        test::addRawRow(to, rowOn("2026-03-12", 1, text));
    }

    static std::string textIn(const std::string& path) { return test::rawRows(path).at(0)[4]; }

    std::size_t filesInTarget() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry :
             std::filesystem::directory_iterator(folder.file("to")))
            ++count;
        return count;
    }

    test::TemporaryFolder folder;
    std::string from = folder.file("qel.mdb");
    std::string to = folder.file("to/qel.mdb");
    std::string previous = folder.file("to/qel.previous.mdb");
};

TEST_F(DatabaseCopy, ArrivesWhole) {
    copyPlannerDatabase(NativePath(from), NativePath(to));
    EXPECT_EQ(folder.read("to/qel.mdb"), folder.read("qel.mdb"));
    EXPECT_EQ(filesInTarget(), 1U);
}

TEST_F(DatabaseCopy, ReplacesWhatIsThereAndKeepsOneGeneration) {
    layDownTarget("first");
    copyPlannerDatabase(NativePath(from), NativePath(to));
    EXPECT_EQ(textIn(to), "own");
    EXPECT_EQ(textIn(previous), "first");
    std::filesystem::remove(to);
    layDownTarget("second");
    copyPlannerDatabase(NativePath(from), NativePath(to));
    EXPECT_EQ(textIn(previous), "second");
    EXPECT_EQ(filesInTarget(), 2U);
}

TEST_F(DatabaseCopy, KeepsTheGenerationWhenNothingHasChanged) {
    layDownTarget("shared");
    copyPlannerDatabase(NativePath(from), NativePath(to));
    copyPlannerDatabase(NativePath(from), NativePath(to));
    EXPECT_EQ(textIn(previous), "shared");
}

TEST_F(DatabaseCopy, LeavesOneFileWithTwoNamesAlone) {
    std::filesystem::create_hard_link(from, to);
    copyPlannerDatabase(NativePath(from), NativePath(to));
    copyPlannerDatabase(NativePath(from), NativePath(folder.path() + "/./qel.mdb"));
    std::filesystem::create_symlink(from, folder.file("link.mdb"));
    copyPlannerDatabase(NativePath(folder.file("link.mdb")), NativePath(from));
    EXPECT_EQ(textIn(from), "own");
    EXPECT_EQ(filesInTarget(), 1U);
}

TEST_F(DatabaseCopy, RemovesAJournalLeftBesideTheReplacedFile) {
    layDownTarget("shared");
    folder.write("to/qel.mdb-journal", "left behind by a crash");
    copyPlannerDatabase(NativePath(from), NativePath(to));
    EXPECT_FALSE(folder.has("to/qel.mdb-journal"));
    EXPECT_EQ(textIn(to), "own");
}

TEST_F(DatabaseCopy, TakesNothingButAPlannerDatabase) {
    layDownTarget("shared");
    folder.write("qel.mdb", "noise");
    EXPECT_THROW(copyPlannerDatabase(NativePath(from), NativePath(to)), Failure);
    std::filesystem::remove(from);
    EXPECT_THROW(copyPlannerDatabase(NativePath(from), NativePath(to)), Failure);
    EXPECT_EQ(textIn(to), "shared");
    EXPECT_EQ(filesInTarget(), 1U);
}

TEST_F(DatabaseCopy, KeepsAForeignFileThatItReplaces) {
    folder.write("to/qel.mdb", "foreign");
    copyPlannerDatabase(NativePath(from), NativePath(to));
    EXPECT_EQ(textIn(to), "own");
    EXPECT_EQ(folder.read("to/qel.previous.mdb"), "foreign");
}

TEST_F(DatabaseCopy, FailsWithoutTheTargetsFolder) {
    EXPECT_THROW(copyPlannerDatabase(NativePath(from), NativePath(folder.file("nowhere/qel.mdb"))),
                 Failure);
}

class PlannerFolderTest : public testing::Test, protected test::PlannerFixture {
  protected:
    PlannerFolderTest() {
        std::filesystem::create_directory(folder.file("shared"));
        add(rowOn("2026-03-12", 1, "own"));
        SSMonth1.SetDate("03/12/2026");
    }

    void share(const std::string& text) const {
        layDownDatabase(NativePath(shared));
        test::addRawRow(shared, rowOn("2026-03-12", 1, text));
    }

    // The store's paths hold a backslash, as the settings make them.
    std::string own = folder.path() + "\\qel.mdb";
    std::string shared = folder.file("shared/qel.mdb");
    test::FakeMessages messages;
    test::FakeAccessReader reader;
    PosixFiles files{NativePaths(CodePage::western())};
    SqliteAppointmentSource source{files};
    AppointmentStore store{CodePage::western(), clock, source, std::chrono::milliseconds(50)};
    Planner planner{store, {SSDay1, SSMonth1, SSYear1, desk}, status, settings, clock, formats};
    DataLocations locations{folder.path(), settings, files, CodePage::western()};
    int waits = 0;
    PlannerFiles places{reader, messages, CodePage::western(), files,
                        [this](const std::function<void()>& work) {
                            ++waits;
                            work();
                        }};
    PlannerFolder plannerFolder{
        {locations, places, store, planner, desk, messages, status, CodePage::western()}};

    void SetUp() override {
        SSMonth1.onSelection = [this](const std::string& date) { planner.OnMonthSelection(date); };
        plannerFolder.OpenAtStart();
        SSMonth1.SetDate("03/12/2026");
    }
};

TEST_F(PlannerFolderTest, OpensTheProgramsOwnDatabase) {
    EXPECT_EQ(store.path(), own);
    EXPECT_THAT(SSDay1.texts(), ElementsAre("own"));
}

TEST_F(PlannerFolderTest, OpensNothingWhereTheSettingCanNotBeRead) {
    AppointmentStore other{CodePage::western(), clock, source, std::chrono::milliseconds(50)};
    PlannerFolder unknown{
        {locations, places, other, planner, desk, messages, status, CodePage::western()}};
    medium.unreadable = true;
    unknown.OpenAtStart();
    EXPECT_EQ(other.path(), "");
    other.AddNew();
    other.Put(Column::Desc, "text");
    EXPECT_THROW(other.Update(), Failure);
}

TEST_F(PlannerFolderTest, OpensTheSharedDatabaseThatTheSettingsName) {
    share("shared");
    settings.Save("Calendar", "  " + folder.file("shared") + " ");
    plannerFolder.OpenAtStart();
    EXPECT_EQ(store.path(), folder.file("shared") + "\\qel.mdb");
}

TEST_F(PlannerFolderTest, FallsBackSilentlyWhenTheFolderHasNone) {
    settings.Save("Calendar", folder.file("shared"));
    plannerFolder.OpenAtStart();
    EXPECT_EQ(store.path(), own);
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(PlannerFolderTest, MovesAndShowsTheCopy) {
    share("shared");
    plannerFolder.Move(folder.file("shared"));
    EXPECT_EQ(store.path(), folder.file("shared") + "\\qel.mdb");
    EXPECT_EQ(test::rawRows(shared)[0][4], "own");
    EXPECT_EQ(test::rawRows(folder.file("shared/qel.previous.mdb"))[0][4], "shared");
    EXPECT_EQ(desk.weekClosed, 1);
    EXPECT_EQ(SSDay1.refreshes, 1);
    EXPECT_EQ(SSMonth1.refreshes, 1);
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Event");
    EXPECT_THAT(messages.takeShown(), ElementsAre(kAdvice));
}

TEST_F(PlannerFolderTest, FillsTheDayAnewFromTheDatabaseThatItOpened) {
    share("shared");
    std::filesystem::remove(path);  // so that the copy fails and the shared one stays
    plannerFolder.Move(folder.file("shared"));
    EXPECT_THAT(SSDay1.texts(), ElementsAre("shared"));
}

TEST_F(PlannerFolderTest, StaysOnItsDatabaseWhenThereIsNoneInTheFolder) {
    plannerFolder.Move(folder.file("nowhere"));
    EXPECT_EQ(store.path(), own);
    EXPECT_THAT(SSDay1.texts(), ElementsAre("own"));
    EXPECT_THAT(messages.takeShown(), ElementsAre(kAdvice));
}

TEST_F(PlannerFolderTest, TellsOnTheStatusLineWhyThePlannerWasNotCopied) {
    plannerFolder.Move(folder.file("nowhere"));
    EXPECT_THAT(status.text, testing::StartsWith("The planner was not copied to \"" +
                                                 folder.file("nowhere") + "\\qel.mdb\". "));
    EXPECT_EQ(waits, 1);
    status.text = "as before";
    plannerFolder.Move(folder.file("shared"));
    EXPECT_EQ(status.text, "as before");
}

TEST_F(PlannerFolderTest, AFolderThatVanishesCostsNothing) {
    plannerFolder.Move(folder.file("shared"));
    std::filesystem::remove_all(folder.file("shared"));
    plannerFolder.Move(folder.file("shared"));
    EXPECT_THAT(status.text, testing::StartsWith("The planner was not copied to "));
    EXPECT_EQ(rows().size(), 1U);
    plannerFolder.OpenAtStart();
    EXPECT_EQ(store.path(), own);
}

TEST_F(PlannerFolderTest, ReplacesADatabaseThatAnotherCopyHasOpenAndThatFindsTheNewOne) {
    share("shared");
    AppointmentStore other{CodePage::western(), clock, source, std::chrono::milliseconds(50)};
    other.OpenDatabase(folder.file("shared") + "\\qel.mdb");
    other.SelectAll();
    other.Refresh();
    EXPECT_EQ(other.Get(Column::Desc), "shared");
    plannerFolder.Move(folder.file("shared"));
    other.SelectAll();
    other.Refresh();
    EXPECT_EQ(other.Get(Column::Desc), "own");
}

TEST_F(PlannerFolderTest, WaitsForACopyThatWritesAndLeavesItsDatabaseWhenThatTakesTooLong) {
    share("shared");
    {
        sqlite::Database busy(NativePath(shared), sqlite::Access::ReadWrite);
        const sqlite::Transaction writing(busy);
        plannerFolder.Move(folder.file("shared"));
    }
    EXPECT_EQ(waits, 1);
    EXPECT_THAT(status.text, testing::StartsWith("The planner was not copied to "));
    EXPECT_EQ(test::rawRows(shared)[0][4], "shared");
    EXPECT_FALSE(folder.has("shared/qel.previous.mdb"));
    EXPECT_EQ(store.path(), folder.file("shared") + "\\qel.mdb");
}

TEST_F(PlannerFolderTest, AFullDiskLeavesTheDatabaseThatIsThere) {
    constexpr int kCanNotMount = 77;
    for (int second = 2; second < 40; ++second)
        add(rowOn("2026-03-12", second, std::string(4000, 'x')));
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.file("shared"), "64k"))
            return kCanNotMount;
        share("shared");
        plannerFolder.Move(folder.file("shared"));
        const bool told = status.text.starts_with("The planner was not copied to ");
        const bool kept = test::rawRows(shared).at(0)[4] == "shared";
        const bool inUse = store.path() == folder.file("shared") + "\\qel.mdb";
        return (told ? 0 : 1) + (kept ? 0 : 2) + (inUse ? 0 : 4);
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a small disk";
    EXPECT_EQ(code, 0);
}

TEST_F(PlannerFolderTest, MovingTwiceLosesNothing) {
    share("shared");
    plannerFolder.Move(folder.file("shared"));
    plannerFolder.Move(folder.file("shared"));
    EXPECT_EQ(test::rawRows(folder.file("shared/qel.previous.mdb"))[0][4], "shared");
    EXPECT_THAT(messages.takeShown(), ElementsAre(kAdvice, kAdvice));
}

TEST_F(PlannerFolderTest, LeavesItsOwnFolderAsItIs) {
    plannerFolder.Move(folder.path());
    EXPECT_THAT(SSDay1.texts(), ElementsAre("own"));
    EXPECT_FALSE(folder.has("qel.previous.mdb"));
}

TEST_F(PlannerFolderTest, GoesBackToItsOwnDatabaseWithoutAWord) {
    plannerFolder.Move(folder.file("shared"));
    (void)messages.takeShown();
    test::addRawRow(shared, rowOn("2026-03-12", 2, "only shared"));
    plannerFolder.Move("  ");
    EXPECT_EQ(store.path(), own);
    EXPECT_THAT(SSDay1.texts(), ElementsAre("own"));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(desk.weekClosed, 1);
}

TEST_F(PlannerFolderTest, ConvertsAnAccessDatabaseBeforeItIsCopied) {
    using namespace std::string_literals;
    std::filesystem::remove(path);
    folder.write("qel.mdb", "\0\1\0\0Standard Jet DB\0"s);
    reader.rows = {{"1", "2001-03-09 14:05:07", "2026-03-12 00:00:00", "", "", "old", "Event"}};
    plannerFolder.Move(folder.file("shared"));
    EXPECT_THAT(SSDay1.texts(), ElementsAre("old"));
    EXPECT_TRUE(folder.has("qel.access-original.mdb"));
    EXPECT_EQ(messages.takeShown().size(), 2U);
}

}  // namespace
}  // namespace velmora
