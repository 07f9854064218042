#include "core/DataLocations.h"

#include <gtest/gtest.h>

#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

class DataLocationsTest : public ::testing::Test {
  protected:
    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::MemoryFiles files;
    DataLocations locations{"/opt/velmora", settings, files, CodePage::western()};
};

TEST_F(DataLocationsTest, WithNoSettingsEverythingLiesBesideTheProgram) {
    EXPECT_EQ(locations.BookPath(kYellowPagesFile), "/opt/velmora\\DATAY.QEL");
    EXPECT_EQ(locations.BookPath(kWhitePagesFile), "/opt/velmora\\DATAW.QEL");
    EXPECT_EQ(locations.PlannerDatabasePath(), "/opt/velmora\\qel.mdb");
    EXPECT_EQ(locations.HelpFilePath(), "/opt/velmora\\vlm.chm");
}

TEST_F(DataLocationsTest, AFolderOfBlanksIsNone) {
    settings.Save("White", "   ");
    EXPECT_EQ(locations.BookPath(kWhitePagesFile), "/opt/velmora\\DATAW.QEL");
}

TEST_F(DataLocationsTest, EachBookHasItsOwnFolderAnewAtEachUse) {
    settings.Save("White", " /share/white pages ");
    settings.Save("Yellow", "/share/yellow");
    EXPECT_EQ(locations.BookPath(kWhitePagesFile), "/share/white pages\\DATAW.QEL");
    EXPECT_EQ(locations.BookPath(kYellowPagesFile), "/share/yellow\\DATAY.QEL");
    settings.Save("White", "/elsewhere");
    EXPECT_EQ(locations.BookFolder(kWhitePagesFile), "/elsewhere");
}

TEST_F(DataLocationsTest, TheNameDecidesInAnyCaseAndWhiteWins) {
    settings.Save("White", "/w");
    settings.Save("Yellow", "/y");
    EXPECT_EQ(locations.BookFolder("\\dataY.old"), "/y");
    EXPECT_EQ(locations.BookFolder("\\datay-dataw"), "/w");
    EXPECT_EQ(locations.BookFolder("\\other.qel"), "/opt/velmora");
    settings.Save("White", "");
    EXPECT_EQ(locations.BookFolder("\\datay-dataw"), "/opt/velmora");
}

TEST_F(DataLocationsTest, ACalendarFolderWithoutADatabaseFallsBackInSilence) {
    settings.Save("Calendar", "/share");
    EXPECT_EQ(locations.PlannerDatabasePath(), "/opt/velmora\\qel.mdb");
    files["/share\\qel.mdb"];
    EXPECT_EQ(locations.PlannerDatabasePath(), "/share\\qel.mdb");
}

TEST_F(DataLocationsTest, WhereASettingCanNotBeReadNothingElseIsNamed) {
    settings.Save("White", "/share");
    EXPECT_EQ(locations.whyUnknown(), std::nullopt);
    medium.unreadable = true;
    EXPECT_THROW((void)locations.BookPath(kWhitePagesFile), Failure);
    EXPECT_THROW((void)locations.BookPath(kYellowPagesFile), Failure);
    EXPECT_THROW((void)locations.PlannerDatabasePath(), Failure);
    EXPECT_EQ(locations.whyUnknown(), "The settings can not be read.");
}

TEST(SettingsStore, DeletingAMissingKeyOrFailingToDeleteIsSilent) {
    test::MemorySettings medium;
    SettingsStore settings(medium);
    EXPECT_NO_THROW(settings.Delete("never saved"));
    settings.Save("key", "value");
    medium.failing = true;
    EXPECT_NO_THROW(settings.Delete("key"));
    EXPECT_EQ(settings.Read("KEY"), "value");
    EXPECT_THROW(settings.Save("key", "other"), Failure);
}

TEST(SettingsStore, TheMailSettingIsFoundInEitherSpelling) {
    test::MemorySettings medium;
    SettingsStore settings(medium);
    settings.Save("EMailSettings", "/n");
    EXPECT_EQ(settings.Read("EmailSettings"), "/n");
}

}  // namespace
}  // namespace velmora
