// Exports, backups and copies of planners, with each call of the system that they make failing
// once.

#include <gtest/gtest.h>

#include "exchange/Backup.h"
#include "exchange/Export.h"
#include "faults/Operation.h"
#include "phonebook/FileBooks.h"
#include "platform/Failure.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/FolderSteps.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "platform/sqlite/Database.h"
#include "platform/sqlite/DatabaseCopy.h"
#include "support/FakeClock.h"
#include "support/FakeJobPanel.h"
#include "support/MemorySettings.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using test::Bears;
using test::Call;
using test::Operation;
using test::operation;
using test::TemporaryFolder;

std::string bookOf(const std::string& first) {
    std::string bytes;
    for (int i = 0; i < 3; ++i)
        bytes += test::bytesOf(test::personRecord("Entry" + std::to_string(i), first));
    return bytes;
}

// Both books in a folder.
class CopyingWorld {
  public:
    explicit CopyingWorld(const TemporaryFolder& in)
        : folder(in), locations(in.path(), settings, files, CodePage::western()) {
        folder.write("DATAY.QEL", bookOf("yellow"));
        folder.write("DATAW.QEL", bookOf("white"));
    }

    const TemporaryFolder& folder;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    PosixFiles files{NativePaths(CodePage::western())};
    DataLocations locations;
    FileBooks books{files, locations, [this](const std::string& path) {
                        return fileStampOf(files.nativePath(path));
                    }};
    PhonebookStore store{books, CodePage::western()};
    PosixReplacements replacements;
    test::PrintDesk desk;
    test::FakeJobPanel panel;
};

class ExportWorld : public CopyingWorld {
  public:
    explicit ExportWorld(const TemporaryFolder& in) : CopyingWorld(in) {
        folder.write("out.txt", "earlier");
    }

    [[nodiscard]] std::string state() const { return folder.read("out.txt"); }

    // Lines that could not be written are told on the status line, and the others are there.
    void write() {
        desk.messages.willAnswer(folder.file("out.txt"));
        desk.messages.willAnswer(true);
        desk.messages.willAnswer(false);
        desk.messages.willAnswer(true);
        exporting.run();
        if (desk.status.text != "Velmora")
            throw Failure(desk.status.text);
    }

  private:
    SharedState shared_;

  public:
    Export exporting{{desk.jobs, panel, desk.printing.state(), shared_, store, settings, files,
                      files, replacements, desk.messages, [](const std::string&) {}}};
};

class FolderOfBackup final : public Volumes {
  public:
    explicit FolderOfBackup(std::string root) : root_(std::move(root)) {}
    [[nodiscard]] std::vector<NativePath> mounted() const override { return {NativePath(root_)}; }

  private:
    std::string root_;
};

// With a backup of the first book as it is, and an earlier one of the second.
class BackupWorld : public CopyingWorld {
  public:
    explicit BackupWorld(const TemporaryFolder& in) : CopyingWorld(in), volume_(in.file("drive")) {
        makePrivateFolder(NativePath(in.file("drive")));
        folder.write("drive/datay.qel", bookOf("yellow"));
        folder.write("drive/dataw.qel", "earlier");
    }

    [[nodiscard]] std::string state() const {
        return folder.read("drive/datay.qel") + folder.read("drive/dataw.qel");
    }

    void backUp() {
        backup.run(folder.file("drive"));
        (void)desk.messages.takeShown();
    }

  private:
    FolderOfBackup volume_;

  public:
    Backup backup{{desk.jobs, panel, books, locations, files, replacements, volume_, desk.messages,
                   CodePage::western()}};
};

// A planner of which there is a copy of yesterday.
class PlannerCopyWorld {
  public:
    explicit PlannerCopyWorld(const TemporaryFolder& in) : folder_(in) {
        sqlite::Database(path("data"), sqlite::Access::ReadWriteOrCreate)
            .execute("CREATE TABLE t (n); INSERT INTO t VALUES (1)");
        folder_.write("copy", "earlier");
    }

    [[nodiscard]] std::string state() const {
        return folder_.read("copy") == "earlier" ? "earlier" : rows();
    }

    void copy() {
        sqlite::DatabaseCopy copy(path("data"), path("copy"));
        while (copy.step()) {
        }
    }

  private:
    [[nodiscard]] NativePath path(const char* name) const { return NativePath(folder_.file(name)); }
    [[nodiscard]] std::string rows() const {
        sqlite::Database copied(path("copy"), sqlite::Access::ReadOnly);
        auto row = copied.prepare("SELECT n FROM t");
        return row.step() ? std::to_string(row.integer(0)) : "none";
    }

    const TemporaryFolder& folder_;
};

const std::set<Call> kBeside{Call::Open, Call::Read,      Call::Write,
                             Call::Sync, Call::HalfWrite, Call::Rename};

// What can not be written is left out, and its number is told.
constexpr Bears kGoesOnWithTheNextLine = Bears::One;

std::vector<Operation> operations() {
    return {
        operation<ExportWorld>(
            "ABookIsExported", {Call::Open, Call::Write, Call::HalfWrite, Call::Sync, Call::Rename},
            [](ExportWorld& world) { world.write(); }, kGoesOnWithTheNextLine),
        operation<BackupWorld>("TheBooksAreBackedUp", kBeside,
                               [](BackupWorld& world) { world.backUp(); }),
        operation<PlannerCopyWorld>("APlannerIsCopied", kBeside,
                                    [](PlannerCopyWorld& world) { world.copy(); }),
    };
}

class CopyFaults : public testing::TestWithParam<Operation> {};

TEST_P(CopyFaults, LeaveTheOldOrTheNewAndAreTold) {
    test::expectToBearFaults(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Copies, CopyFaults, testing::ValuesIn(operations()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace velmora
