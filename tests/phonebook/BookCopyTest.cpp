#include "phonebook/BookCopy.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "phonebook/EntryWriter.h"
#include "phonebook/FileBooks.h"
#include "platform/StorageFailure.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/ChildProcess.h"
#include "support/FakeMessages.h"
#include "support/MemorySettings.h"
#include "support/PhonebookFixture.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using test::personRecord;

constexpr int kCanNotMount = 77;

// A place for a file whose bytes can be spoilt on their way.
class SpoilingReplacements final : public Replacements {
  public:
    [[nodiscard]] std::unique_ptr<Replacement> beside(const NativePath& target,
                                                      const NativePath& model) override {
        return std::make_unique<Spoiling>(real_.beside(target, model), spoiltByte);
    }
    [[nodiscard]] bool areOne(const NativePath& a, const NativePath& b) const override {
        return real_.areOne(a, b);
    }

    std::uint64_t spoiltByte = 0;

  private:
    class Spoiling final : public Replacement {
      public:
        Spoiling(std::unique_ptr<Replacement> real, std::uint64_t byte)
            : real_(std::move(real)), byte_(byte) {}
        [[nodiscard]] std::uint64_t size() const override { return real_->size(); }
        void append(std::string_view bytes) override { real_->append(bytes); }
        void startOver() override { real_->startOver(); }
        void flush() override { real_->flush(); }
        [[nodiscard]] std::size_t readAt(std::uint64_t offset,
                                         std::span<char> target) const override {
            const std::size_t count = real_->readAt(offset, target);
            if (byte_ >= offset && byte_ < offset + count)
                target[byte_ - offset] ^= 1;
            return count;
        }
        void takePlace() override { real_->takePlace(); }

      private:
        std::unique_ptr<Replacement> real_;
        std::uint64_t byte_;
    };

    PosixReplacements real_;
};

// Books that tell when a block of one is read.
class WatchedBooks final : public Books {
  public:
    explicit WatchedBooks(Books& real) : real_(real) {}

    [[nodiscard]] bool exists(const std::string& bookFile) const override {
        return real_.exists(bookFile);
    }
    [[nodiscard]] std::unique_ptr<BookRecords> open(const std::string& bookFile) override {
        return std::make_unique<Watched>(real_.open(bookFile), *this);
    }

    std::function<void()> onRead = [] {};
    bool hasLocks = true;

  private:
    class Watched final : public BookRecords {
      public:
        Watched(std::unique_ptr<BookRecords> real, WatchedBooks& books)
            : real_(std::move(real)), books_(books) {}
        [[nodiscard]] RecordNumber count() const override { return real_->count(); }
        [[nodiscard]] std::size_t read(RecordNumber first, std::span<char> target) const override {
            const std::size_t count = real_->read(first, target);
            books_.onRead();
            return count;
        }
        void write(RecordNumber number, const PhonebookRecord& record) override {
            real_->write(number, record);
        }
        [[nodiscard]] bool lock() override { return books_.hasLocks && real_->lock(); }
        void unlock() override { real_->unlock(); }
        [[nodiscard]] BookState state() const override { return real_->state(); }

      private:
        std::unique_ptr<BookRecords> real_;
        WatchedBooks& books_;
    };

    Books& real_;
};

// The yellow book as a real file, copied to "copy" in the same folder.
class BookCopyTest : public testing::Test {
  protected:
    [[nodiscard]] NativePath path(const std::string& name) const {
        return NativePath(folder.file(name));
    }
    [[nodiscard]] BookCopy::Paths paths() const {
        return {kYellowPagesFile, path("DATAY.QEL"), path("copy")};
    }
    void copyWhole() {
        BookCopy copy(books, replacements, paths());
        while (copy.step()) {
        }
    }
    // What it fails with.
    [[nodiscard]] std::string failureOf(BookCopy& copy) const {
        try {
            while (copy.step()) {
            }
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "";
    }
    [[nodiscard]] std::size_t filesThere() const {
        const fs::directory_iterator listing(folder.path());
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }
    // So many entries, each block of which is told apart.
    void fill(int entries) const {
        std::string bytes;
        PhonebookRecord record = personRecord("Adams", "");
        for (int i = 0; i < entries; ++i) {
            record.assign(Field::First, std::to_string(i));
            bytes.append(record.bytes().data(), kRecordSize);
        }
        folder.write("DATAY.QEL", bytes);
    }

    test::TemporaryFolder folder;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    PosixFiles files{NativePaths(CodePage::western())};
    DataLocations locations{folder.path(), settings, files, CodePage::western()};
    FileBooks fileBooks{files, locations, [this](const std::string& book) {
                            return fileStampOf(files.nativePath(book));
                        }};
    WatchedBooks books{fileBooks};
    PhonebookStore store{fileBooks, CodePage::western()};
    test::FakeMessages messages;
    EntryWriter writer{store, messages};
    PosixReplacements replacements;
};

TEST_F(BookCopyTest, EveryByteIsCopiedAndTheBookStays) {
    fill(3000);
    copyWhole();
    EXPECT_TRUE(folder.read("copy") == folder.read("DATAY.QEL"));
    EXPECT_EQ(folder.read("copy").size(), 3000 * kRecordSize);
    EXPECT_EQ(filesThere(), 2U);
}

TEST_F(BookCopyTest, AnEarlierCopyIsReplaced) {
    fill(2);
    folder.write("copy", std::string(50000, 'x'));
    copyWhole();
    EXPECT_TRUE(folder.read("copy") == folder.read("DATAY.QEL"));
}

TEST_F(BookCopyTest, AnEmptyBookAndOneWithAShortEndAreCopiedAsTheyAre) {
    for (const std::string& bytes :
         {std::string(), std::string(100, 'x'), std::string(5 * kRecordSize + 7, 'y')}) {
        folder.write("DATAY.QEL", bytes);
        copyWhole();
        EXPECT_EQ(folder.read("copy"), bytes);
    }
}

TEST_F(BookCopyTest, ABookThatIsNotThereFailsAndNoneIsMade) {
    folder.write("copy", "earlier");
    BookCopy copy(books, replacements, paths());
    EXPECT_EQ(failureOf(copy), "The phonebook " + folder.file("DATAY.QEL") + " is not there.");
    EXPECT_FALSE(folder.has("DATAY.QEL"));
    EXPECT_TRUE(folder.read("copy") == "earlier");
}

TEST_F(BookCopyTest, ABookIsNotCopiedOntoItself) {
    fill(2);
    fs::create_symlink("DATAY.QEL", folder.file("copy"));
    const std::string before = folder.read("DATAY.QEL");
    BookCopy copy(books, replacements, paths());
    EXPECT_EQ(failureOf(copy),
              "The phonebook " + folder.file("DATAY.QEL") + " can not be copied onto itself.");
    EXPECT_EQ(folder.read("DATAY.QEL"), before);
}

TEST_F(BookCopyTest, WhatIsReadBackIsCompared) {
    fill(2000);
    SpoilingReplacements spoiling;
    for (const std::uint64_t byte : {0U, 1500000U, 3189999U}) {
        folder.write("copy", "earlier");
        spoiling.spoiltByte = byte;
        BookCopy copy(books, spoiling, paths());
        EXPECT_EQ(failureOf(copy), "The copy " + folder.file("copy") +
                                       " does not hold what was written to it. The volume may be "
                                       "damaged.");
        EXPECT_TRUE(folder.read("copy") == "earlier");
    }
}

TEST_F(BookCopyTest, AFullDiskLeavesTheEarlierCopy) {
    fill(200);
    fs::create_directory(folder.file("disk"));
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.file("disk"), "128k"))
            return kCanNotMount;
        folder.write("disk/copy", "earlier");
        BookCopy copy(books, replacements,
                      {kYellowPagesFile, path("DATAY.QEL"), path("disk/copy")});
        try {
            while (copy.step()) {
            }
            return 1;
        } catch (const Failure& failure) {
            if (obstacleOf(failure) != Obstacle::DiskFull)
                return 2;
        }
        return folder.read("disk/copy") == "earlier" ? 0 : 3;
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a disk";
    EXPECT_EQ(code, 0);
}

TEST_F(BookCopyTest, ACopyThatIsGivenUpLeavesTheEarlierOne) {
    fill(2000);
    folder.write("copy", "earlier");
    for (int steps = 1; steps < 5; ++steps) {
        BookCopy copy(books, replacements, paths());
        for (int i = 0; i < steps; ++i)
            ASSERT_TRUE(copy.step());
    }
    EXPECT_TRUE(folder.read("copy") == "earlier");
    EXPECT_EQ(filesThere(), 2U);
}

// Another copy of the program works between two pieces of a book that is read slowly.
TEST_F(BookCopyTest, ABookThatChangesWhileItIsReadIsReadAnewAndCopiedAsItWasAtOneMoment) {
    fill(3000);
    ASSERT_TRUE(writer.add(kYellowPagesFile, personRecord("Last", "One")));
    BookCopy copy(books, replacements, paths(), {.longestRead = std::chrono::milliseconds(0)});
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(copy.step());
    // The entry goes from the last slot, which is not read yet, to one that is.
    writer.remove(kYellowPagesFile, "Adams, 0");
    ASSERT_TRUE(writer.add(kYellowPagesFile, personRecord("Last", "Two")));
    writer.remove(kYellowPagesFile, "Last, One");
    while (copy.step()) {
    }
    EXPECT_TRUE(folder.read("copy") == folder.read("DATAY.QEL"));
}

TEST_F(BookCopyTest, ABookThatNeverComesToRestIsGivenUpInPlainWords) {
    fill(600);
    folder.write("copy", "earlier");
    books.hasLocks = false;
    int size = 600;
    books.onRead = [&] { fill(++size); };
    BookCopy copy(books, replacements, paths());
    EXPECT_EQ(failureOf(copy), "The phonebook " + folder.file("DATAY.QEL") +
                                   " can not be copied: it is changed all the time. Try again "
                                   "when nobody writes to it.");
    EXPECT_TRUE(folder.read("copy") == "earlier");
}

TEST_F(BookCopyTest, ALockThatIsHeldForAMomentIsWaitedForInPieces) {
    fill(10);
    auto held = fileBooks.open(kYellowPagesFile);
    ASSERT_TRUE(held->lock());
    BookCopy copy(books, replacements, paths());
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(copy.step());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(250));
    EXPECT_TRUE(copy.step());
    held->unlock();
    held.reset();
    while (copy.step()) {
    }
    EXPECT_TRUE(folder.read("copy") == folder.read("DATAY.QEL"));
}

TEST_F(BookCopyTest, ALockThatIsHeldForLongIsTold) {
    fill(10);
    auto held = fileBooks.open(kYellowPagesFile);
    ASSERT_TRUE(held->lock());
    BookCopy copy(books, replacements, paths(), {.patience = std::chrono::milliseconds(500)});
    EXPECT_EQ(failureOf(copy), "The file " + folder.file("DATAY.QEL") +
                                   " is in use by another copy of the program.");
    held->unlock();
    EXPECT_FALSE(folder.has("copy"));
}

TEST_F(BookCopyTest, TheProgressGoesUpToTheWhole) {
    fill(3000);
    BookCopy copy(books, replacements, paths());
    int last = copy.recordsDone();
    EXPECT_EQ(last, 0);
    while (copy.step()) {
        EXPECT_GE(copy.recordsDone(), last);
        EXPECT_LE(copy.recordsDone(), 3000);
        last = copy.recordsDone();
    }
    EXPECT_EQ(last, 3000);
    EXPECT_EQ(copy.records(), 3000);
}

}  // namespace
}  // namespace velmora
