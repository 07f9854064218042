#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>

#include "phonebook/EntryWriter.h"
#include "phonebook/FileBooks.h"
#include "phonebook/ListLine.h"
#include "platform/StorageFailure.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/FakeMessages.h"
#include "support/MemorySettings.h"
#include "support/OrdinaryUser.h"
#include "support/PhonebookFixture.h"
#include "support/SmallDisk.h"
#include "support/Soak.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::personRecord;

constexpr int kCanNotMount = 77;

// The books as real files.
class BookSafetyTest : public testing::Test {
  protected:
    static std::string book() { return kYellowPagesFile; }

    test::TemporaryFolder folder;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    PosixFiles files{NativePaths(CodePage::western())};
    DataLocations locations{folder.path(), settings, files, CodePage::western()};
    FileBooks books{files, locations, [this](const std::string& path) {
                        return fileStampOf(files.nativePath(path));
                    }};
    PhonebookStore store{books, CodePage::western()};
    test::FakeMessages messages;
    EntryWriter writer{store, messages};
};

// Does it as often as the other copy of the program stands in the way.
template <class Work>
void patiently(const Work& work) {
    for (;;)
        try {
            return work();
        } catch (const StorageFailure& failure) {
            if (failure.obstacle() != Obstacle::InUse)
                throw;
        }
}

TEST_F(BookSafetyTest, TwoCopiesOfTheProgramNeverTakeOneSlot) {
    constexpr int kEach = 250;
    const auto adding = [&](const char* name) {
        return [this, name] {
            for (int i = 0; i < kEach; ++i)
                patiently([&] { (void)writer.add(book(), personRecord(name, std::to_string(i))); });
            return 0;
        };
    };
    test::ChildProcess one(adding("Adams"));
    test::ChildProcess two(adding("Baker"));
    EXPECT_EQ(one.wait(), 0);
    EXPECT_EQ(two.wait(), 0);
    std::set<std::string> names;
    const OpenBook open = store.Open(book());
    EXPECT_EQ(open.recordCount(), 2 * kEach);
    BookScan records = open.scan();
    while (records.next())
        names.insert(listLine(records.record(), CodePage::western()).value_or(""));
    EXPECT_EQ(names.size(), 2U * kEach);
    EXPECT_EQ(names.count(""), 0U);
}

TEST_F(BookSafetyTest, TwoCopiesThatMoveAgainstEachOtherLoseAndDoubleNothing) {
    const std::string white = kWhitePagesFile;
    const int moves = test::soaked(60);
    ASSERT_TRUE(writer.add(book(), personRecord("Adams", "Ann")));
    ASSERT_TRUE(writer.add(white, personRecord("Baker", "Bob")));
    const auto moving = [&](const std::string& line, bool toWhite) {
        return [&, line, toWhite]() mutable {
            for (int i = 0; i < moves; ++i, toWhite = !toWhite)
                patiently(
                    [&] { writer.move(toWhite ? book() : white, toWhite ? white : book(), line); });
            return 0;
        };
    };
    test::ChildProcess one(moving("Adams, Ann", true));
    test::ChildProcess two(moving("Baker, Bob", false));
    EXPECT_EQ(one.wait(), 0);
    EXPECT_EQ(two.wait(), 0);
    std::multiset<std::string> names;
    for (const std::string& file : {book(), white}) {
        const OpenBook open = store.Open(file);
        BookScan records = open.scan();
        while (records.next())
            if (const auto line = listLine(records.record(), CodePage::western()))
                names.insert(*line);
    }
    EXPECT_EQ(names, (std::multiset<std::string>{"Adams, Ann", "Baker, Bob"}));
}

// A copy of the program that has stopped in the middle of a write.
class LockedBookTest : public BookSafetyTest {
  protected:
    LockedBookTest() {
        (void)writer.add(book(), personRecord("Adams", "Ann"));
        folder.write("DATAY.QEL.unfinished", "a write that was begun");
        other_ = files.openOrCreate(locations.BookPath(book()));
        locked_ = other_->lock(std::chrono::milliseconds(0));
    }

    template <class Work>
    static std::chrono::milliseconds timeOf(const Work& work) {
        const auto began = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - began);
    }

    bool locked_ = false;
    std::unique_ptr<RandomFile> other_;
};

TEST_F(LockedBookTest, IsReadAtOnce) {
    ASSERT_TRUE(locked_);
    constexpr int kReadings = 20;  // as many as a list that is loaded anew may take
    const auto took = timeOf([&] {
        for (int i = 0; i < kReadings; ++i)
            EXPECT_EQ(store.Open(book()).FindByListLine("Adams, Ann"), 1);
    });
    EXPECT_LT(took, std::chrono::milliseconds(1000));
}

TEST_F(LockedBookTest, HoldsUpWhoWritesForAMomentOnlyAndSaysWhy) {
    ASSERT_TRUE(locked_);
    std::optional<Obstacle> obstacle;
    const auto took = timeOf([&] {
        try {
            (void)writer.add(book(), personRecord("Baker", "Bob"));
        } catch (const StorageFailure& failure) {
            obstacle = failure.obstacle();
        }
    });
    EXPECT_EQ(obstacle, Obstacle::InUse);
    EXPECT_LT(took, std::chrono::milliseconds(1000));
    other_->unlock();
    EXPECT_TRUE(writer.add(book(), personRecord("Baker", "Bob")));
}

// An entry whose every field tells the version, so that a mixture of two shows.
PhonebookRecord versionOf(int entry, int version) {
    PhonebookRecord record = personRecord("Entry", std::to_string(entry));
    for (std::size_t i = 2; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), std::to_string(version));
    return record;
}

class KilledWriterTest : public BookSafetyTest {
  protected:
    static constexpr int kEntries = 40;

    struct Note {
        int entry;
        int version;
    };

    // Changes entries without end; an entry that comes and goes makes free slots for them to
    // move to. Each change is noted in the pipe once it is written.
    int changeForever(int notes, unsigned seed) {
        std::minstd_rand random(seed);
        std::map<int, int> versions = found();
        for (;;) {
            if (random() % 3 == 0) {
                const auto name = static_cast<int>(random() % 5);
                writer.remove(book(), "Filler, " + std::to_string(name));
                if (!writer.add(book(), personRecord("Filler", std::to_string(name))))
                    return 1;
                writer.remove(book(), "Filler, " + std::to_string(random() % 5));
            }
            const int entry = static_cast<int>(random() % kEntries);
            const Note note{entry, ++versions[entry]};
            if (writer.change(book(), "Entry, " + std::to_string(entry),
                              versionOf(entry, note.version)) != EntryWriter::ChangeResult::Written)
                return 2;
            if (write(notes, &note, sizeof(note)) != static_cast<ssize_t>(sizeof(note)))
                return 3;
        }
    }

    // The version of each entry whose record is whole; the first in the file of each.
    std::map<int, int> found() {
        std::map<int, int> versions;
        const OpenBook open = store.Open(book());
        BookScan records = open.scan();
        while (records.next()) {
            const RecordView record = records.record();
            if (record.text(Field::Last) != "Entry")
                continue;
            const int entry = std::stoi(std::string(record.text(Field::First)));
            const int version = std::stoi(std::string(record.text(Field::Title)));
            const std::string whole = bytesOf(versionOf(entry, version));
            EXPECT_TRUE(std::ranges::equal(record.bytes(), whole)) << "entry " << entry << " torn";
            versions[entry] = std::max(versions[entry], version);
        }
        return versions;
    }
};

TEST_F(KilledWriterTest, EveryEntryIsThereInItsOldOrItsNewStateAfterEveryKill) {
    const int kills = test::soaked(15);
    for (int i = 0; i < 5; ++i)
        ASSERT_TRUE(writer.add(book(), personRecord("Filler", std::to_string(i))));
    std::map<int, int> written;
    for (int i = 0; i < kEntries; ++i) {
        ASSERT_TRUE(writer.add(book(), versionOf(i, 1)));
        written[i] = 1;
    }
    std::minstd_rand random(testing::UnitTest::GetInstance()->random_seed() + 1U);
    int changes = 0;
    for (int killed = 0; killed < kills; ++killed) {
        std::array<int, 2> pipeEnds{};
        ASSERT_EQ(pipe(pipeEnds.data()), 0);
        const unsigned seed = random();
        test::ChildProcess child([&] {
            close(pipeEnds[0]);
            return changeForever(pipeEnds[1], seed);
        });
        close(pipeEnds[1]);
        Note note{};
        const auto nextNote = [&] {
            if (read(pipeEnds[0], &note, sizeof(note)) != static_cast<ssize_t>(sizeof(note)))
                return false;
            written[note.entry] = note.version;
            ++changes;
            return true;
        };
        for (unsigned wanted = 20 + random() % 100; wanted > 0; --wanted)
            ASSERT_TRUE(nextNote());
        // A moment more, so that the kill falls anywhere in a change.
        for (unsigned more = random() % 200000; more > 0; --more)
            (void)random();
        child.killAndWait();
        while (nextNote()) {
        }
        close(pipeEnds[0]);
        const std::map<int, int> after = found();
        int ahead = 0;
        for (const auto& [entry, version] : written) {
            ASSERT_EQ(after.count(entry), 1U) << "entry " << entry << " is lost";
            const int now = after.at(entry);
            ASSERT_TRUE(now == version || now == version + 1)
                << "entry " << entry << " was at " << version << " and is at " << now;
            ahead += now - version;
        }
        EXPECT_LE(ahead, 1);
        written = after;
    }
    EXPECT_GT(changes, kills * 20);
}

TEST_F(BookSafetyTest, AFullDiskLeavesTheBookAsItWas) {
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.path(), "64k"))
            return kCanNotMount;
        int added = 0;
        try {
            for (; added < 100; ++added)
                (void)writer.add(book(), personRecord("Adams", std::to_string(added)));
            return 1;
        } catch (const Failure&) {
        }
        if (folder.read("DATAY.QEL").size() != static_cast<std::size_t>(added) * kRecordSize)
            return 2;
        for (int i = 0; i < added; ++i)
            if (!store.Open(book()).FindByListLine("Adams, " + std::to_string(i)))
                return 3;
        // What fits still works.
        const auto changed =
            writer.change(book(), "Adams, 3", personRecord("Adams", "3", "changed"));
        if (changed != EntryWriter::ChangeResult::Written)
            return 4;
        writer.remove(book(), "Adams, 0");
        return writer.add(book(), personRecord("Baker", "Bob")) ? 0 : 5;
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a small disk";
    EXPECT_EQ(code, 0);
}

TEST_F(BookSafetyTest, AReadOnlyBookIsShownAndEveryChangeSaysWhyNot) {
    folder.write("DATAY.QEL", bytesOf(personRecord("Adams", "Ann")));
    std::filesystem::permissions(folder.file("DATAY.QEL"), std::filesystem::perms(0444));
    const test::OrdinaryUser user(folder.path());
    EXPECT_EQ(store.Open(book()).FindByListLine("Adams, Ann"), 1);
    const std::string why =
        "The file " + folder.file("DATAY.QEL") + " can not be written: Permission denied.";
    const auto failureOf = [](const auto& work) -> std::string {
        try {
            work();
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "";
    };
    EXPECT_EQ(failureOf([&] { (void)writer.add(book(), personRecord("Baker", "Bob")); }), why);
    EXPECT_EQ(
        failureOf([&] { (void)writer.change(book(), "Adams, Ann", personRecord("Adams", "Al")); }),
        why);
    EXPECT_EQ(failureOf([&] { writer.remove(book(), "Adams, Ann"); }), why);
    EXPECT_EQ(folder.read("DATAY.QEL"), bytesOf(personRecord("Adams", "Ann")));
}

TEST_F(BookSafetyTest, AFolderThatDoesNotExistIsAFailureAndIsNotMade) {
    settings.Save("Yellow", folder.file("gone"));
    EXPECT_THROW((void)store.Open(book()), Failure);
    EXPECT_THROW((void)writer.add(book(), personRecord("Baker", "Bob")), Failure);
    EXPECT_FALSE(folder.has("gone"));
}

TEST_F(BookSafetyTest, AChangeTouchesNoOtherRecordOfADamagedBook) {
    std::string noise;
    std::minstd_rand random(11);
    for (std::size_t i = 0; i < 6 * kRecordSize + 700; ++i)
        noise += static_cast<char>(random() >> 7);
    const std::string baker = bytesOf(personRecord("Baker", "Bob"));
    noise.replace(2 * kRecordSize, kRecordSize, baker);
    folder.write("DATAY.QEL", noise);
    const PhonebookRecord changed = personRecord("Baker", "Bob", "new");
    EXPECT_EQ(writer.change(book(), "Baker, Bob", changed), EntryWriter::ChangeResult::Written);
    noise.replace(2 * kRecordSize, kRecordSize, bytesOf(changed));
    EXPECT_EQ(folder.read("DATAY.QEL"), noise);
    EXPECT_TRUE(writer.add(book(), personRecord("Clark", "Cy")));
    const std::string grown = folder.read("DATAY.QEL");
    EXPECT_EQ(grown.substr(0, noise.size()), noise);
    EXPECT_EQ(grown.substr(7 * kRecordSize), bytesOf(personRecord("Clark", "Cy")));
}

}  // namespace
}  // namespace velmora
