#include "exchange/Backup.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "phonebook/EntryWriter.h"
#include "phonebook/FileBooks.h"
#include "phonebook/ListLine.h"
#include "platform/Failure.h"
#include "platform/files/CaseTwins.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/ChildProcess.h"
#include "support/FakeClock.h"
#include "support/FakeJobPanel.h"
#include "support/MemorySettings.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using test::personRecord;
using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::multiset<std::string>;

constexpr int kCanNotMount = 77;

struct FakeVolumes final : Volumes {
    [[nodiscard]] std::vector<NativePath> mounted() const override { return roots; }
    std::vector<NativePath> roots;
};

// A run of the program on the books in a folder.
class ProgramOn {
  public:
    explicit ProgramOn(std::string folder) : folder_(std::move(folder)) {}

    void add(const char* book, const std::string& last) {
        ASSERT_TRUE(writer_.add(book, personRecord(last, "Al")));
    }
    void removeAll(const char* book) {
        for (const std::string& name : names(book))
            writer_.remove(book, name);
    }
    [[nodiscard]] Names names(const char* book) {
        Names lines;
        const OpenBook open = store_.Open(book);
        BookScan records = open.scan();
        while (records.next())
            if (const auto line = listLine(records.record(), CodePage::western()))
                lines.insert(*line);
        return lines;
    }

  private:
    std::string folder_;
    test::FakeClock clock_;
    CaseTwins twins_{CodePage::western(), clock_, {"DATAY.QEL", "DATAW.QEL"}};

  public:
    test::MemorySettings medium;
    SettingsStore settings{medium};
    PosixFiles files{NativePaths(CodePage::western()), &twins_};
    DataLocations locations{folder_, settings, files, CodePage::western()};
    FileBooks books{files, locations, [this](const std::string& path) {
                        return fileStampOf(files.nativePath(path));
                    }};

  private:
    PhonebookStore store_{books, CodePage::western()};
    test::FakeMessages messages_;
    EntryWriter writer_{store_, messages_};
};

class BackupTest : public testing::Test {
  protected:
    BackupTest() {
        volumes.roots = {NativePath(volume.path())};
        program.add(kYellowPagesFile, "Yale");
        program.add(kYellowPagesFile, "Yolk");
        program.add(kWhitePagesFile, "White");
    }

    void backUp() { backup.run(volume.path()); }
    [[nodiscard]] std::string failure() {
        try {
            backUp();
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "";
    }
    [[nodiscard]] Names namesOnVolume() const {
        Names names;
        for (const auto& entry : fs::directory_iterator(volume.path()))
            names.insert(entry.path().filename());
        return names;
    }

    test::TemporaryFolder folder;
    test::TemporaryFolder volume;
    ProgramOn program{folder.path()};
    test::PrintDesk desk;
    test::FakeJobPanel panel;
    PosixReplacements replacements;
    FakeVolumes volumes;
    Backup backup{{desk.jobs, panel, program.books, program.locations, program.files, replacements,
                   volumes, desk.messages, CodePage::western()}};
};

TEST_F(BackupTest, BothBooksAreCopiedUnderNamesInSmallLettersAndTheUserIsTold) {
    desk.loop.onYield = [&] {
        EXPECT_EQ(desk.status.text, "Please wait while backing-up.");
        EXPECT_TRUE(panel.shown);
        EXPECT_TRUE(desk.messages.takeShown().empty());
    };
    backUp();
    EXPECT_EQ(volume.read("datay.qel"), folder.read("DATAY.QEL"));
    EXPECT_EQ(volume.read("dataw.qel"), folder.read("DATAW.QEL"));
    EXPECT_EQ(namesOnVolume(), (Names{"datay.qel", "dataw.qel"}));
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("tell|Velmora|Backup complete."));
    EXPECT_EQ(desk.status.text, "Backup completed.");
    EXPECT_FALSE(panel.shown);
}

TEST_F(BackupTest, AnEarlierBackupIsOverwrittenWithoutAQuestion) {
    volume.write("datay.qel", "earlier");
    volume.write("dataw.qel", "earlier");
    backUp();
    EXPECT_EQ(volume.read("datay.qel"), folder.read("DATAY.QEL"));
    EXPECT_EQ(volume.read("dataw.qel"), folder.read("DATAW.QEL"));
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("tell|Velmora|Backup complete."));
}

TEST_F(BackupTest, TheBooksAreTakenFromTheFoldersOfTheSettings) {
    fs::create_directory(folder.file("white"));
    program.medium.save("White", " " + folder.file("white") + " ");
    program.add(kWhitePagesFile, "Elsewhere");
    backUp();
    EXPECT_EQ(volume.read("dataw.qel"), folder.read("white/DATAW.QEL"));
}

TEST_F(BackupTest, AMissingBookIsAFailureAndTheEarlierBackupOfItStays) {
    volume.write("dataw.qel", "earlier");
    fs::remove(folder.file("DATAW.QEL"));
    EXPECT_EQ(failure(), "The phonebook " + folder.file("DATAW.QEL") + " is not there.");
    EXPECT_EQ(volume.read("datay.qel"), folder.read("DATAY.QEL"));
    EXPECT_EQ(volume.read("dataw.qel"), "earlier");
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
    EXPECT_EQ(desk.status.text, "The backup is not complete.");
    EXPECT_FALSE(desk.jobs.running());
    EXPECT_FALSE(panel.shown);
}

TEST_F(BackupTest, AFullDiskLeavesTheEarlierBackupWhole) {
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(volume.path(), "64k"))
            return kCanNotMount;
        backUp();
        const std::string earlier = volume.read("datay.qel");
        (void)desk.messages.takeShown();
        for (int i = 0; i < 40; ++i)
            program.add(kYellowPagesFile, "More" + std::to_string(i));
        if (failure() != "The file " + volume.file("datay.qel") +
                             " can not be written: No space left on device.")
            return 1;
        if (volume.read("datay.qel") != earlier || namesOnVolume().size() != 2)
            return 2;
        return desk.messages.takeShown().empty() &&
                       desk.status.text == "The backup is not complete."
                   ? 0
                   : 3;
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a disk";
    EXPECT_EQ(code, 0);
}

TEST_F(BackupTest, AVolumeThatIsGoneIsTold) {
    volumes.roots.clear();
    EXPECT_EQ(failure(),
              "The drive " + volume.path() + " is no longer there, or can not be written.");
    EXPECT_EQ(desk.status.text, "The backup is not complete.");
}

TEST_F(BackupTest, TheFolderOfABookIsNoPlaceForItsBackup) {
    volumes.roots = {NativePath(folder.path())};
    EXPECT_THROW(backup.run(folder.path()), Failure);
    EXPECT_FALSE(folder.has("datay.qel"));
}

TEST_F(BackupTest, CalledOffItSaysSoAndTheEarlierBackupStays) {
    volume.write("datay.qel", "earlier");
    desk.cancelInYield(1);
    backUp();
    EXPECT_EQ(desk.status.text, "The backup is not complete. It was called off.");
    EXPECT_EQ(volume.read("datay.qel"), "earlier");
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
    EXPECT_EQ(namesOnVolume(), (Names{"datay.qel"}));
}

TEST_F(BackupTest, WhileAnotherJobRunsItDoesNotBegin) {
    desk.jobs.run([&](LongJob&) { EXPECT_FALSE(backup.begin()); });
    EXPECT_TRUE(backup.begin());
}

TEST_F(BackupTest, CopiedBackWhileVelmoraRunsItBringsEveryEntryBack) {
    backUp();
    program.removeAll(kYellowPagesFile);
    program.removeAll(kWhitePagesFile);
    program.add(kYellowPagesFile, "Later");
    for (const char* name : {"datay.qel", "dataw.qel"})
        fs::copy_file(volume.file(name), folder.file(name));
    EXPECT_EQ(program.names(kYellowPagesFile), (Names{"Yale, Al", "Yolk, Al"}));
    EXPECT_EQ(program.names(kWhitePagesFile), (Names{"White, Al"}));
    // The book that was there is put aside, and nothing is lost.
    program.add(kYellowPagesFile, "Next");
    EXPECT_EQ(program.names(kYellowPagesFile), (Names{"Next, Al", "Yale, Al", "Yolk, Al"}));
    EXPECT_FALSE(folder.has("DATAY.QEL"));
}

TEST_F(BackupTest, CopiedBackWhileVelmoraIsClosedItBringsEveryEntryBack) {
    backUp();
    program.removeAll(kYellowPagesFile);
    fs::copy_file(volume.file("datay.qel"), folder.file("datay.qel"));
    ProgramOn next(folder.path());
    EXPECT_EQ(next.names(kYellowPagesFile), (Names{"Yale, Al", "Yolk, Al"}));
    // Under the book's own name, too.
    next.removeAll(kYellowPagesFile);
    fs::copy_file(volume.file("datay.qel"), folder.file("DATAY.QEL"));
    ProgramOn third(folder.path());
    EXPECT_EQ(third.names(kYellowPagesFile), (Names{"Yale, Al", "Yolk, Al"}));
}

}  // namespace
}  // namespace velmora
