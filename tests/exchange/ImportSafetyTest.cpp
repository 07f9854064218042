#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <string>

#include "exchange/BookFiller.h"
#include "phonebook/EntryWriter.h"
#include "phonebook/FileBooks.h"
#include "phonebook/RecordState.h"
#include "platform/StorageFailure.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/PosixFiles.h"
#include "support/ChildOfTest.h"
#include "support/FakeMessages.h"
#include "support/MemorySettings.h"
#include "support/OrdinaryUser.h"
#include "support/PhonebookFixture.h"
#include "support/SmallDisk.h"
#include "support/Soak.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::ChildOfTest;

// Does it as often as the other process stands in the way.
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

// Imports into a real book, which other processes write to as well.
class ImportSafetyTest : public testing::Test {
  protected:
    // An entry whose every field tells the version, so that a mixture of two shows.
    static PhonebookRecord versionOf(const std::string& group, int entry, int version) {
        PhonebookRecord record = test::personRecord(group, std::to_string(entry));
        for (std::size_t i = 2; i < kFieldCount; ++i)
            record.assign(static_cast<Field>(i), std::to_string(version));
        return record;
    }

    // How many entries of a group are there, each of them whole; none is there twice.
    std::map<std::string, std::set<int>> found() {
        std::map<std::string, std::set<int>> entries;
        const OpenBook book = store.Open(kYellowPagesFile);
        BookScan records = book.scan();
        while (records.next()) {
            const RecordView record = records.record();
            if (isNeverWritten(record) || isTombstone(record, CodePage::western()))
                continue;
            const std::string group(record.text(Field::Last));
            const int entry = std::stoi(std::string(record.text(Field::First)));
            const int version = std::stoi(std::string(record.text(Field::Title)));
            EXPECT_EQ(std::string(record.bytes().data(), kRecordSize),
                      test::bytesOf(versionOf(group, entry, version)))
                << group << " " << entry << " is torn";
            EXPECT_TRUE(entries[group].insert(entry).second) << group << " " << entry << " twice";
        }
        return entries;
    }

    // Imports the entries 0 to `count` - 1 of a group, `together` at a time.
    bool importGroup(const std::string& group, int count, int version, int together,
                     const std::function<void()>& between = {}) {
        BookFiller filler(store, kYellowPagesFile, [] { return true; });
        for (int entry = 0; entry < count; ++entry) {
            filler.add(versionOf(group, entry, version));
            if ((entry + 1) % together != 0 && entry + 1 != count)
                continue;
            if (!filler.write())
                return false;
            if (between)
                between();
        }
        return filler.counts().unwritten == 0;
    }

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

TEST_F(ImportSafetyTest, TwoImportsFromTwoCopiesLoseNothing) {
    constexpr int kEntries = 600;
    const auto work = [this](const std::string& group) {
        return [this, group](const ChildOfTest::Report&) {
            if (!importGroup(group, kEntries, 1, 25))
                throw Failure("not all could be written");
        };
    };
    ChildOfTest first(work("First"));
    ChildOfTest second(work("Second"));
    EXPECT_TRUE(first.wait());
    EXPECT_TRUE(second.wait());
    const auto entries = found();
    EXPECT_EQ(entries.at("First").size(), static_cast<std::size_t>(kEntries));
    EXPECT_EQ(entries.at("Second").size(), static_cast<std::size_t>(kEntries));
}

TEST_F(ImportSafetyTest,
       EntriesThatOthersAddMeanwhileAreAllThereAndImportedOnesWholeAfterEachKill) {
    std::minstd_rand random(testing::UnitTest::GetInstance()->random_seed() + 1U);
    int others = 0;
    for (int kill = 0; kill < test::soaked(10); ++kill) {
        ChildOfTest child([&](const ChildOfTest::Report& report) {
            for (int version = 1 + kill * 10;; ++version)
                (void)importGroup("Entry", 60 + version * 7, version, 40, [&] { report('w'); });
        });
        for (unsigned writes = 1 + random() % 6; writes > 0; --writes)
            ASSERT_TRUE(child.nextReport());
        patiently([&] { (void)writer.add(kYellowPagesFile, versionOf("Other", others, 1)); });
        ++others;
        // A moment more, so that the kill falls anywhere.
        for (unsigned more = random() % 2'000'000; more > 0; --more)
            (void)random();
        child.kill();
        const auto entries = found();
        ASSERT_EQ(entries.at("Other").size(), static_cast<std::size_t>(others));
        ASSERT_EQ(folder.read("DATAY.QEL").size() % kRecordSize, 0U);
        ASSERT_FALSE(HasFailure()) << "after kill " << kill;
    }
    EXPECT_FALSE(folder.has("DATAY.QEL.unfinished"));
}

TEST_F(ImportSafetyTest, ManyRowsOfFewNamesEndAsOneEntryEach) {
    const int rounds = test::soaked(20);
    BookFiller filler(store, kYellowPagesFile, [] { return true; });
    for (int round = 0; round < rounds; ++round) {
        for (int entry = 0; entry < 500; ++entry)
            filler.add(versionOf("Entry", entry, round));
        ASSERT_TRUE(filler.write());
    }
    EXPECT_EQ(found().at("Entry").size(), 500U);
    EXPECT_EQ(filler.counts().added, 500U);
    EXPECT_EQ(filler.counts().replaced, static_cast<std::uint64_t>(rounds - 1) * 500);
}

TEST_F(ImportSafetyTest, AFullDiskKeepsWhatHasRoomAndSaysWhy) {
    ChildOfTest child([this](const ChildOfTest::Report& report) {
        if (!test::mountSmallDisk(folder.path(), "128k"))
            return report('n');
        BookFiller filler(store, kYellowPagesFile, [] { return true; });
        for (int entry = 0; entry < 200; ++entry)
            filler.add(versionOf("Entry", entry, 1));
        (void)filler.write();
        const FillCounts& counts = filler.counts();
        const auto entries = found();
        const bool whole = entries.contains("Entry") &&
                           entries.at("Entry").size() == counts.added && counts.added > 0 &&
                           counts.added + counts.unwritten == 200 &&
                           folder.read("DATAY.QEL").size() == counts.added * kRecordSize;
        report(whole && counts.whyUnwritten.find("No space left") != std::string::npos ? 'y' : '-');
    });
    const auto report = child.nextReport();
    if (report == 'n')
        GTEST_SKIP() << "this system lets no test mount a small disk";
    EXPECT_EQ(report, 'y');
}

TEST_F(ImportSafetyTest, ABookThatMayOnlyBeReadStaysAsItIs) {
    const std::string before = test::bytesOf(versionOf("Entry", 0, 1));
    folder.write("DATAY.QEL", before);
    std::filesystem::permissions(folder.file("DATAY.QEL"), std::filesystem::perms(0444));
    const test::OrdinaryUser user(folder.path());
    EXPECT_FALSE(importGroup("Entry", 3, 2, 3));
    EXPECT_EQ(folder.read("DATAY.QEL"), before);
}

}  // namespace
}  // namespace velmora
