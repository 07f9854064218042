// Every change to the books, with each call of the system that it makes failing once.

#include <gtest/gtest.h>

#include "faults/Operation.h"
#include "phonebook/BookCopy.h"
#include "phonebook/EntryWriter.h"
#include "phonebook/FileBooks.h"
#include "phonebook/RecordState.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/FakeMessages.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::Bears;
using test::Call;
using test::Operation;
using test::operation;
using test::TemporaryFolder;

constexpr int kEntries = 5;

// Every field tells the version, so that a mixture of two shows.
PhonebookRecord entry(const std::string& number, const std::string& version) {
    PhonebookRecord record = test::personRecord("Entry", number);
    for (std::size_t i = 2; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), version);
    return record;
}

// Both books in a folder, the yellow one with some entries and a free slot in front.
class BooksWorld {
  public:
    explicit BooksWorld(const TemporaryFolder& folder)
        : folder_(folder.path()), locations_(folder_, settings_, files_, CodePage::western()) {
        (void)writer.add(kYellowPagesFile, entry("0", "gone"));
        for (int i = 1; i <= kEntries; ++i)
            (void)writer.add(kYellowPagesFile, entry(std::to_string(i), "old"));
        (void)writer.add(kWhitePagesFile, entry("of white", "old"));
        writer.remove(kYellowPagesFile, "Entry,0");
    }

    [[nodiscard]] std::string state() const {
        return contentsOf(kYellowPagesFile) + "white:\n" + contentsOf(kWhitePagesFile);
    }

    // As an import does it.
    void writeTogether(const std::vector<PlacedRecord>& records) {
        OpenBook book = store_.Open(kYellowPagesFile);
        const OpenBook::Lock lock(book);
        book.WriteAll(records);
    }

  private:
    // Free slots do not count.
    [[nodiscard]] std::string contentsOf(const char* bookFile) const {
        const OpenBook book = store_.Open(bookFile);
        BookScan records = book.scan();
        std::multiset<std::string> lines;
        while (records.next()) {
            if (isTombstone(records.record(), CodePage::western()))
                continue;
            std::string line;
            for (std::size_t i = 0; i < kFieldCount; ++i)
                line += std::string(records.record().text(static_cast<Field>(i))) + "|";
            lines.insert(line + "\n");
        }
        std::string all;
        for (const std::string& line : lines)
            all += line;
        return all;
    }

    std::string folder_;
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(CodePage::western())};
    DataLocations locations_;
    mutable FileBooks books_{files_, locations_, [this](const std::string& path) {
                                 return fileStampOf(files_.nativePath(path));
                             }};
    PhonebookStore store_{books_, CodePage::western()};
    test::FakeMessages messages_;

  public:
    EntryWriter writer{store_, messages_};
};

// The first entry of all makes the book.
class NoBooksWorld {
  public:
    explicit NoBooksWorld(const TemporaryFolder& folder)
        : folder_(folder.path()), locations_(folder_, settings_, files_, CodePage::western()) {}

    [[nodiscard]] std::string state() const {
        const std::string path = locations_.BookPath(kYellowPagesFile);
        return files_.exists(path) ? files_.readWhole(path, 1 << 20).value_or("too long") : "";
    }

  private:
    std::string folder_;
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(CodePage::western())};
    DataLocations locations_;
    FileBooks books_{files_, locations_, [](const std::string&) { return FileStamp(); }};
    PhonebookStore store_{books_, CodePage::western()};
    test::FakeMessages messages_;

  public:
    EntryWriter writer{store_, messages_};
};

// A book, and an earlier copy of it.
class CopyWorld {
  public:
    explicit CopyWorld(const TemporaryFolder& in)
        : folder_(in), locations_(in.path(), settings_, files_, CodePage::western()) {
        std::string bytes;
        for (int i = 0; i < kEntries; ++i)
            bytes += test::bytesOf(entry(std::to_string(i), "new"));
        folder_.write("DATAY.QEL", bytes);
        folder_.write("copy", "earlier");
    }

    [[nodiscard]] std::string state() const {
        return folder_.read("copy") + folder_.read("DATAY.QEL");
    }

    void copy() {
        BookCopy copy(books_, replacements_,
                      {kYellowPagesFile, NativePath(folder_.file("DATAY.QEL")),
                       NativePath(folder_.file("copy"))});
        while (copy.step()) {
        }
    }

  private:
    const TemporaryFolder& folder_;
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(CodePage::western())};
    DataLocations locations_;
    FileBooks books_{files_, locations_, [this](const std::string& path) {
                         return fileStampOf(files_.nativePath(path));
                     }};
    PosixReplacements replacements_;
};

const std::set<Call> kInPlace{Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync};
const std::set<Call> kWithATrace{Call::Open, Call::Read,   Call::Write, Call::HalfWrite,
                                 Call::Sync, Call::Rename, Call::Remove};

// Two writes, the first of which can not be taken back when nothing can be written any more: the
// entry is then there twice rather than nowhere.
constexpr Bears kEndsInTheMiddle = Bears::One;

std::vector<Operation> operations() {
    return {
        operation<NoBooksWorld>(
            "TheFirstEntryMakesTheBook", {Call::Open, Call::Write, Call::HalfWrite, Call::Sync},
            [](NoBooksWorld& world) {
                (void)world.writer.add(kYellowPagesFile, entry("1", "new"));
            },
            Bears::Lasting),
        operation<BooksWorld>(
            "AnEntryGoesIntoAFreeSlot", kWithATrace,
            [](BooksWorld& world) { (void)world.writer.add(kYellowPagesFile, entry("9", "new")); },
            Bears::Lasting),
        operation<BooksWorld>(
            "SeveralEntriesAreWrittenTogether", kWithATrace,
            [](BooksWorld& world) {
                world.writeTogether({{2, entry("1", "new")},
                                     {4, entry("3", "new")},
                                     {kEntries + 2, entry("9", "new")}});
            },
            Bears::One),
        operation<BooksWorld>(
            "SeveralEntriesGoBehindTheEnd",
            {Call::Open, Call::Write, Call::HalfWrite, Call::Sync, Call::Remove},
            [](BooksWorld& world) {
                world.writeTogether(
                    {{kEntries + 2, entry("8", "new")}, {kEntries + 3, entry("9", "new")}});
            },
            Bears::One),
        operation<BooksWorld>(
            "AnEntryGoesBehindTheEnd", kInPlace,
            [](BooksWorld& world) { (void)world.writer.add(kWhitePagesFile, entry("9", "new")); },
            Bears::Lasting),
        operation<BooksWorld>(
            "AnEntryIsChangedWhereItLies", kWithATrace,
            [](BooksWorld& world) {
                (void)world.writer.changeFirst(
                    kYellowPagesFile,
                    [](RecordView record) { return record.text(Field::First) == "3"; },
                    [](PhonebookRecord& record) { record = entry("3", "new"); });
            },
            Bears::Lasting),
        operation<BooksWorld>(
            "AnEntryIsChangedAndGoesToAFreeSlot", kWithATrace,
            [](BooksWorld& world) {
                (void)world.writer.change(kYellowPagesFile, "Entry,3", entry("3", "new"));
            },
            kEndsInTheMiddle),
        operation<BooksWorld>(
            "AnEntryIsRenamed", kWithATrace,
            [](BooksWorld& world) {
                (void)world.writer.change(kYellowPagesFile, "Entry,3", entry("33", "new"));
            },
            kEndsInTheMiddle),
        operation<BooksWorld>(
            "AnEntryIsDeleted", kWithATrace,
            [](BooksWorld& world) { world.writer.remove(kYellowPagesFile, "Entry,3"); },
            Bears::Lasting),
        operation<BooksWorld>(
            "AnEntryMovesToTheOtherBook", kWithATrace,
            [](BooksWorld& world) {
                world.writer.move(kYellowPagesFile, kWhitePagesFile, "Entry,3");
            },
            kEndsInTheMiddle),
        operation<CopyWorld>(
            "ABookIsCopied",
            {Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync, Call::Rename},
            [](CopyWorld& world) { world.copy(); }),
    };
}

class BookFaults : public testing::TestWithParam<Operation> {};

TEST_P(BookFaults, LeaveTheOldOrTheNewAndAreTold) {
    test::expectToBearFaults(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Books, BookFaults, testing::ValuesIn(operations()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace velmora
