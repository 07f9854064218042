#include "exchange/DailyCopies.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "phonebook/FileBooks.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "platform/sqlite/Database.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/FakeClock.h"
#include "support/OrdinaryUser.h"
#include "support/PhonebookFixture.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using std::chrono::days;
using Names = std::set<std::string>;

// A running copy of the program on shared data.
struct RunningProgram {
    RunningProgram(const test::TemporaryFolder& data, const test::TemporaryFolder& user,
                   const Clock& clock)
        : locations(data.path(), settings, files, CodePage::western()),
          copies({files, files, locations, books, replacements, clock,
                  NativePath(user.file("settings.db")), NativePath(user.file("copies")),
                  [this](const NativePath&) { return freeRoom; }}) {}

    void work() {
        while (copies.step()) {
        }
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    PosixFiles files{NativePaths(CodePage::western())};
    DataLocations locations;
    FileBooks books{files, locations, [this](const std::string& path) {
                        return fileStampOf(files.nativePath(path));
                    }};
    PosixReplacements replacements;
    std::uint64_t freeRoom = 1 << 30;
    DailyCopies copies;
};

class DailyCopiesTest : public testing::Test {
  protected:
    DailyCopiesTest() {
        data.write("DATAY.QEL", book("Yale"));
        data.write("DATAW.QEL", book("White"));
        appoint("first");
        clock.set(std::chrono::year(2026) / 3 / 9, std::chrono::hours(10));
        SqliteSettings(NativePath(user.file("settings.db"))).save("Key", "value");
    }

    static std::string book(const std::string& last) {
        return test::bytesOf(test::personRecord(last, "Al"));
    }
    // The planner is any database here.
    void appoint(const std::string& text) const {
        sqlite::Database planner(NativePath(data.file("qel.mdb")),
                                 sqlite::Access::ReadWriteOrCreate);
        planner.execute("CREATE TABLE IF NOT EXISTS appoint (t); INSERT INTO appoint VALUES ('" +
                        text + "')");
    }
    [[nodiscard]] static int appointments(const std::string& path) {
        sqlite::Database planner(NativePath(path), sqlite::Access::ReadWrite);
        auto count = planner.prepare("SELECT count(*) FROM appoint");
        return count.step() ? static_cast<int>(count.integer(0)) : -1;
    }
    [[nodiscard]] Names copies() const { return copiesOf(user); }
    [[nodiscard]] static Names copiesOf(const test::TemporaryFolder& of) {
        Names names;
        if (of.has("copies"))
            for (const auto& entry : fs::directory_iterator(of.file("copies")))
                names.insert(entry.path().filename());
        return names;
    }
    void workOn(RunningProgram& running) {
        EXPECT_TRUE(running.copies.areDue());
        running.work();
        EXPECT_FALSE(running.copies.areDue());
    }
    void tomorrow() { clock.advance(days(1)); }

    test::TemporaryFolder data;
    test::TemporaryFolder user;
    test::FakeClock clock;
    RunningProgram program{data, user, clock};
};

TEST_F(DailyCopiesTest, BothBooksThePlannerAndTheSettingsAreCopiedOnceADay) {
    workOn(program);
    EXPECT_EQ(copies(), (Names{"DATAY.QEL.2026-03-09", "DATAW.QEL.2026-03-09", "qel.mdb.2026-03-09",
                               "settings.db.2026-03-09"}));
    EXPECT_EQ(user.read("copies/DATAY.QEL.2026-03-09"), book("Yale"));
    EXPECT_EQ(user.read("copies/DATAW.QEL.2026-03-09"), book("White"));
    EXPECT_EQ(appointments(user.file("copies/qel.mdb.2026-03-09")), 1);
    EXPECT_EQ(SqliteSettings(NativePath(user.file("copies/settings.db.2026-03-09"))).read("Key"),
              "value");
    EXPECT_FALSE(program.copies.failure());
}

TEST_F(DailyCopiesTest, OnlyWhatChangedIsCopiedAgain) {
    workOn(program);
    tomorrow();
    data.write("DATAW.QEL", book("Black"));
    workOn(program);
    Names expected{"DATAY.QEL.2026-03-09", "DATAW.QEL.2026-03-09", "DATAW.QEL.2026-03-10",
                   "qel.mdb.2026-03-09", "settings.db.2026-03-09"};
    EXPECT_EQ(copies(), expected);
    tomorrow();
    appoint("second");
    SqliteSettings(NativePath(user.file("settings.db"))).save("Key", "another");
    workOn(program);
    expected.insert({"qel.mdb.2026-03-11", "settings.db.2026-03-11"});
    EXPECT_EQ(copies(), expected);
    EXPECT_EQ(appointments(user.file("copies/qel.mdb.2026-03-11")), 2);
}

TEST_F(DailyCopiesTest, OnTheSameDayNothingIsDoneTwice) {
    workOn(program);
    data.write("DATAY.QEL", book("Changed"));
    RunningProgram restarted(data, user, clock);
    workOn(restarted);
    EXPECT_EQ(user.read("copies/DATAY.QEL.2026-03-09"), book("Yale"));
}

TEST_F(DailyCopiesTest, SevenDaysAndFourWeeksOfAFileStay) {
    for (int day = 0; day < 60; ++day, tomorrow()) {
        data.write("DATAY.QEL", book("Day" + std::to_string(day)));
        workOn(program);
    }
    Names of;
    for (const std::string& name : copies())
        if (name.starts_with("DATAY.QEL."))
            of.insert(name);
    EXPECT_EQ(of.size(), 11U);
    EXPECT_TRUE(of.contains("DATAY.QEL.2026-05-07")) << "the last day";
    EXPECT_TRUE(copies().contains("DATAW.QEL.2026-03-09")) << "the only copy stays for good";
}

TEST_F(DailyCopiesTest, OnASharedFolderOneCopyOfTheProgramDoesItForAll) {
    const test::TemporaryFolder otherUser;
    SqliteSettings(NativePath(otherUser.file("settings.db"))).save("Key", "value");
    RunningProgram other(data, otherUser, clock);
    // Both at once.
    EXPECT_TRUE(program.copies.step());
    other.work();
    EXPECT_EQ(copiesOf(otherUser), (Names{"settings.db.2026-03-09"}));
    program.work();
    EXPECT_EQ(copies().size(), 4U);
    // And one after the other.
    RunningProgram third(data, otherUser, clock);
    third.work();
    EXPECT_EQ(copiesOf(otherUser), (Names{"settings.db.2026-03-09"}));
    const std::string mark = data.read(".velmora-copies");
    EXPECT_TRUE(mark.starts_with("2026-03-09 ")) << mark;
    EXPECT_NE(mark.find(":" + user.file("copies")), std::string::npos) << mark;
    // The next day it may be the other one's turn.
    tomorrow();
    data.write("DATAY.QEL", book("Changed"));
    other.work();
    EXPECT_TRUE(copiesOf(otherUser).contains("DATAY.QEL.2026-03-10"));
}

TEST_F(DailyCopiesTest, WithoutRoomNothingIsCopiedAndTheUserIsTold) {
    program.freeRoom = 4 * kRecordSize;
    workOn(program);
    EXPECT_TRUE(copies().empty());
    ASSERT_TRUE(program.copies.failure());
    EXPECT_EQ(*program.copies.failure(),
              data.file("DATAY.QEL") + " was not copied today. There is too little room in " +
                  user.file("copies") + "; five times the size of the file has to be free.");
    EXPECT_FALSE(data.read(".velmora-copies").starts_with("2026-03-09"))
        << "another user's program may try";
}

TEST_F(DailyCopiesTest, OneFileThatFailsDoesNotKeepTheOthersFromTheirCopies) {
    data.write("qel.mdb", "no database at all, but long enough to be looked at");
    workOn(program);
    EXPECT_EQ(copies().size(), 3U);
    ASSERT_TRUE(program.copies.failure());
    EXPECT_TRUE(
        program.copies.failure()->starts_with(data.file("qel.mdb") + " was not copied today. "));
}

TEST_F(DailyCopiesTest, WhatIsNotThereIsPassedOver) {
    fs::remove(data.file("DATAW.QEL"));
    workOn(program);
    EXPECT_EQ(copies().size(), 3U);
    EXPECT_FALSE(data.has("DATAW.QEL"));
    EXPECT_FALSE(program.copies.failure());
}

TEST_F(DailyCopiesTest, AFolderThatMayOnlyBeReadIsCopiedAllTheSame) {
    fs::remove(user.file("settings.db"));
    for (const char* name : {"DATAY.QEL", "DATAW.QEL", "qel.mdb"})
        fs::permissions(data.file(name), fs::perms(0444));
    fs::permissions(data.path(), fs::perms(0555));
    {
        const test::OrdinaryUser somebody(user.path());
        workOn(program);
    }
    fs::permissions(data.path(), fs::perms(0777));
    EXPECT_EQ(copies().size(), 3U);
    EXPECT_EQ(program.copies.failure().value_or(""), "");
    EXPECT_FALSE(data.has(".velmora-copies"));
}

TEST_F(DailyCopiesTest, GivenUpInTheMiddleNothingHalfIsLeftAndItIsDueAgain) {
    for (int steps = 1; steps < 6; ++steps) {
        for (int i = 0; i < steps; ++i)
            ASSERT_TRUE(program.copies.step());
        program.copies.stop();
        EXPECT_TRUE(program.copies.areDue());
    }
    for (const std::string& name : copies())
        EXPECT_TRUE(name.ends_with(".2026-03-09")) << name;
    workOn(program);
    EXPECT_EQ(copies().size(), 4U);
}

TEST_F(DailyCopiesTest, TheFolderIsForItsOwnerOnly) {
    workOn(program);
    EXPECT_EQ(fs::status(user.file("copies")).permissions() & fs::perms(0777), fs::perms(0700));
}

// As the help says: with Velmora closed, under its own name.
TEST_F(DailyCopiesTest, ACopyPutBackBringsEverythingBack) {
    workOn(program);
    data.write("DATAY.QEL", "damaged");
    fs::remove(data.file("qel.mdb"));
    fs::remove(user.file("settings.db"));
    for (const auto& [copy, place] : {std::pair{"DATAY.QEL", data.file("DATAY.QEL")},
                                      std::pair{"qel.mdb", data.file("qel.mdb")},
                                      std::pair{"settings.db", user.file("settings.db")}})
        fs::copy_file(user.file(std::string("copies/") + copy + ".2026-03-09"), place,
                      fs::copy_options::overwrite_existing);
    EXPECT_EQ(data.read("DATAY.QEL"), book("Yale"));
    EXPECT_EQ(appointments(data.file("qel.mdb")), 1);
    SqliteSettings settings(NativePath(user.file("settings.db")));
    EXPECT_EQ(settings.read("Key"), "value");
    settings.save("Key", "new");
    EXPECT_EQ(settings.read("Key"), "new");
}

}  // namespace
}  // namespace velmora
