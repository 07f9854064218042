#include "exchange/forms/Form11.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>

#include "forms/Widgets.h"
#include "platform/Failure.h"
#include "platform/controls/EntryList.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/FakeJobPanel.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct FakeVolumes final : Volumes {
    [[nodiscard]] std::vector<NativePath> mounted() const override { return roots; }
    std::vector<NativePath> roots{NativePath("/media/BLUE-STICK"), NativePath("/media/ARCHIVE")};
};

// Books in memory, and volumes that are only named, but for one.
class Form11Test : public testing::Test, protected test::PhonebookFixture {
  protected:
    EntryList& drives() { return test::named<EntryList>(form, "Drive1"); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }
    std::string text(const char* name) {
        return test::named<QLabel>(form, name).text().toStdString();
    }

    test::TemporaryFolder volume;
    FakeVolumes volumes;
    test::PrintDesk desk;
    test::FakeJobPanel panel;
    PosixFiles paths{NativePaths(CodePage::western())};
    PosixReplacements replacements;
    Backup backup{{desk.jobs, panel, books, locations, paths, replacements, volumes, desk.messages,
                   codePage}};
    Form11 form{backup, codePage};
};

TEST_F(Form11Test, ShowsItsTextsAndTheDrivesWithTheFirstChosen) {
    form.present();
    EXPECT_EQ(form.windowTitle().toStdString(), "Backup Phonebooks");
    EXPECT_EQ(text("Label1"),
              "Please select a drive to back up to. Backups will be stored in the root directory.");
    EXPECT_EQ(text("Label2"), "Only the address books will be stored on the disk.");
    EXPECT_EQ(text("Label3"), "All previous backups on the diskette will be overwritten.");
    EXPECT_EQ(text("Label4"), "If the disk is full no data will be backed up.");
    EXPECT_EQ(text("Label5"),
              "To restore after a backup, simply copy the files into your VLM's directory. That's "
              "it. This function is meant for local users, not network backup.");
    EXPECT_EQ(text("Label6"),
              "To backup calendar (planner) data, find the planner database file, qel.mdb (either "
              "in your Velmora folder OR in the network path you specified), and copy this onto a "
              "disk. Since this file may be quite large, you may need a ZIP Disk or CD or some "
              "other media to properly store your planner database file.");
    EXPECT_EQ(button("Command1").text().toStdString(), "&Backup");
    EXPECT_EQ(button("Command2").text().toStdString(), "&Cancel");
    EXPECT_TRUE(button("Command1").isDefault());
    EXPECT_THAT(drives().lines(), ElementsAre("/media/BLUE-STICK", "/media/ARCHIVE"));
    EXPECT_EQ(drives().selectedLine(), "/media/BLUE-STICK");
    EXPECT_EQ(form.focusWidget(), &drives());
    EXPECT_FALSE(form.isModal());
}

TEST_F(Form11Test, WithoutADriveTheListSaysSoAndBackupIsOff) {
    volumes.roots.clear();
    form.present();
    EXPECT_THAT(drives().lines(), IsEmpty());
    EXPECT_EQ(drives().emptyText().toStdString(), "There is no drive to back up to. Connect one.");
    EXPECT_FALSE(button("Command1").isEnabled());
    EXPECT_TRUE(button("Command2").isEnabled());
}

TEST_F(Form11Test, TheListFollowsDrivesThatComeAndGo) {
    form.present();
    drives().selectLine("/media/ARCHIVE");
    volumes.roots.insert(volumes.roots.begin(), NativePath("/media/NEW"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return drives().lines().size() == 3; }));
    EXPECT_EQ(drives().selectedLine(), "/media/ARCHIVE") << "what is chosen stays chosen";
    volumes.roots.pop_back();
    EXPECT_TRUE(QTest::qWaitFor([&] { return drives().lines().size() == 2; }));
    EXPECT_EQ(drives().selectedLine(), "/media/NEW");
    volumes.roots.clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !button("Command1").isEnabled(); }));
}

TEST_F(Form11Test, BackupHidesTheFormAndCopiesToTheChosenDrive) {
    yellow() = test::bytesOf(test::personRecord("Adams", "Ann"));
    white() = test::bytesOf(test::personRecord("White", "Al"));
    volumes.roots.emplace_back(volume.path());
    form.present();
    drives().selectLine(volume.path());
    desk.loop.onYield = [&] { EXPECT_FALSE(form.isVisible()); };
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_GT(desk.loop.yields, 0);
    EXPECT_EQ(volume.read("datay.qel"), yellow());
    EXPECT_EQ(volume.read("dataw.qel"), white());
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("tell|Velmora|Backup complete."));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Form11Test, EscapeAndCancelCloseItAndNothingIsCopied) {
    form.present();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    form.present();
    QTest::mouseClick(&button("Command2"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(desk.status.text, "");
}

TEST_F(Form11Test, WhileAnotherJobRunsItDoesNotOpen) {
    desk.jobs.run([&](LongJob&) { form.present(); });
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(desk.status.text, "Velmora is still busy with a job. Try again when it is done.");
}

}  // namespace
}  // namespace velmora
